#include "window/viewcontroller.h"

namespace tabulon {

void ViewController::parsStart() {}
void ViewController::parsNfachStart() {}

} // namespace tabulon
