#pragma once
// What the window model needs of a window system, and nothing more. The Qt desktop window, the
// script driver tabulon-skript and the tests each implement it.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace tabulon {

class UebungsController;

class Plattform {
public:
    // The modal question's results, as the platform's alert reports them.
    static constexpr int ersterKnopf = 1000;
    static constexpr int zweiterKnopf = 1001;

    virtual ~Plattform() = default;

    // The system beep: a refused action.
    virtual void piep() = 0;
    // A modal question with two buttons in this order; ersterKnopf, zweiterKnopf or anything
    // else for an unexpected result.
    virtual int frage(const std::string& nachricht, const std::string& option1,
                      const std::string& option2) = 0;
    // A uniformly distributed integer from 0 to grenze - 1.
    virtual std::uint32_t zufallUnter(std::uint32_t grenze) = 0;
    // Ends the process at once with this status. An implementation for tests may return.
    virtual void beenden(int status) = 0;
    // The user's documents folder; nothing when it cannot be determined. It is only named here:
    // the file writer creates it when missing and reports a folder that cannot be created.
    virtual std::optional<std::filesystem::path> dokumentenOrdner() = 0;

    // A long command reports its progress: `fertig` of `gesamt` runs are done. Returning false
    // asks it to stop after this run. Called after every run but the last, so it must be cheap;
    // a window shows something only when the command lasts long enough for a user to notice.
    // By default the command runs to its end unasked.
    virtual bool fortschritt(std::int64_t fertig, std::int64_t gesamt) {
        (void)fertig;
        (void)gesamt;
        return true;
    }
    // The command whose progress was reported has ended, completed or stopped.
    virtual void fortschrittEnde() {}
    // The main window has opened the practice of row operations; a window system shows it. The
    // main window owns the practice until it opens the next one.
    virtual void uebungGeoeffnet(UebungsController&) {}
};

} // namespace tabulon
