#pragma once
// QtPlattform, what the window model needs of the desktop: beep, the two-button question, random
// numbers, exit and the documents folder. The main window hooks itself in through two callbacks:
// vorDerFrage copies the model's values onto the screen before a modal question hides the
// window's later updates, and blinken gives the beep something to see, because many Linux
// desktops mute the bell.

#include "window/plattform.h"

#include <QElapsedTimer>

#include <functional>
#include <memory>

#include <QPointer>

class QWidget;
class QPixmap;
class QProgressDialog;

namespace tabulon {

class QtPlattform : public Plattform {
public:
    QWidget* elternFenster = nullptr;
    std::function<void()> vorDerFrage;
    std::function<void()> blinken;
    // While the main window asks whether to close, an answer to end the program is only noted
    // here, and the window closes the ordinary way; beendetSich then lets every later close
    // event through without asking again.
    bool beendenAbfangen = false;
    std::optional<int> abgefangenerStatus;
    bool beendetSich = false;

    void piep() override;
    int frage(const std::string& nachricht, const std::string& option1,
              const std::string& option2) override;
    std::uint32_t zufallUnter(std::uint32_t grenze) override;
    void beenden(int status) override;
    std::optional<std::filesystem::path> dokumentenOrdner() override;

    // Shows the practice in a window of its own beside the main window; a new practice replaces
    // the window of the one before.
    void uebungGeoeffnet(UebungsController& uebung) override;
    QPointer<QWidget> uebungsfenster;

    // A command that runs longer than half a second shows a modal progress dialog with a cancel
    // button; a shorter one shows nothing.
    bool fortschritt(std::int64_t fertig, std::int64_t gesamt) override;
    void fortschrittEnde() override;

    QtPlattform();
    ~QtPlattform() override;

private:
    QElapsedTimer fortschrittUhr;
    qint64 naechsterBlick = 0;
    std::unique_ptr<QProgressDialog> fortschrittDialog;
};

// The application icon "M128.png": drawn rather than shipped, so the build needs no binary file.
QPixmap anwendungsIcon(int kante = 128);

} // namespace tabulon
