#pragma once
// The platform of the script driver: every beep, question and end of the program becomes one line
// of output, written and flushed at once, so that the transcript keeps the order of events even
// when the program ends in the middle of a command. The answers to questions come from a queue
// that the script fills with `antwort` lines.

#include "skript/zufall.h"
#include "window/plattform.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <ostream>
#include <string>

namespace tabulon::skript {

class SkriptPlattform : public Plattform {
public:
    // `ende` is called by beenden after the `ende N` line; the driver passes std::exit, tests pass
    // something that returns.
    SkriptPlattform(std::ostream& aus, std::uint32_t saat, std::filesystem::path dokumente,
                    std::function<void(int)> ende);

    void piep() override;
    int frage(const std::string& nachricht, const std::string& option1,
              const std::string& option2) override;
    std::uint32_t zufallUnter(std::uint32_t grenze) override;
    void beenden(int status) override;
    std::optional<std::filesystem::path> dokumentenOrdner() override;

    // The button pressed at the next question: the one with this title, or none of the two when
    // neither has it.
    void antwortVormerken(std::string titel) { antworten.push_back(std::move(titel)); }

    // Writes one line and flushes it.
    void zeile(const std::string& text);

private:
    std::ostream& aus;
    Zufall zufall;
    std::filesystem::path dokumente;
    std::function<void(int)> ende;
    std::deque<std::string> antworten;
};

} // namespace tabulon::skript
