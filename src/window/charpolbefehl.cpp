#include "window/viewcontroller.h"

namespace tabulon {

void ViewController::charPol() {}

} // namespace tabulon
