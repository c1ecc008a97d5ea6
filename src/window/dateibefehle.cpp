#include "window/viewcontroller.h"

namespace tabulon {

void ViewController::speichern() {}
void ViewController::laden() {}
void ViewController::texAusgabeEinzel() {}
void ViewController::texAusgabeAlle() {}
void ViewController::protoSpeichern() {}
std::string ViewController::listeAllerMatrizen() const { return {}; }

} // namespace tabulon
