// The menu actions: each one goes through the window model's table to the main window's
// controller, or does nothing while no window has registered yet.

#include "app/appdelegate.h"

#include "window/aktionen.h"

namespace tabulon {

bool AppDelegate::menueAktion(std::string_view name) {
    const Menueaktion* aktion = menueaktion(name);
    if (aktion == nullptr) {
        return false;
    }
    if (mainVC) {
        aktion->aktion(*mainVC);
    }
    return true;
}

} // namespace tabulon
