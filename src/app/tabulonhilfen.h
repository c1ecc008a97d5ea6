#pragma once
// TabulonHilfen, the help window as a platform-neutral model: the text field hifeF, the window
// title and the topic actions. A platform window shows hifeF and the title, offers one button per
// entry of themen() and closes itself when fensterZuB() has cleared `offen`. The help window
// changes nothing of the calculator's state.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tabulon {

class TabulonHilfen {
public:
    struct Thema {
        std::string_view aktion; // the action's name, e.g. "invertiereH"
        std::string_view knopf;  // the label of its button
        void (TabulonHilfen::*ausfuehren)();
    };

    std::string hifeF;
    std::string titel;
    bool offen = true;

    // The topic buttons in the order the window shows them: the 24 of the classic commands, then
    // one for each command of the menu "Exakt" and one for the practice of row operations.
    static constexpr std::size_t anzahlThemen = 32;
    static const std::array<Thema, anzahlThemen>& themen();

    void viewDidLoad();
    void viewDidAppear();
    void fensterAusgabe(std::string_view t);
    void fensterZuB();

    // Fires the topic action of this name; false when there is none.
    bool hilfeAktion(std::string_view name);

    void allgInfoB();
    void anweisungH();
    void nMalAusfuehrungH();
    void einauslistenH();
    void loescheH();
    void druckeH();
    void freierMAtrixNameH();
    void elemZeilenUmfH();
    void transponiereH();
    void basisZuKernH();
    void invertiereH();
    void orthonormiereH();
    void charPolynomEigenwerteH();
    void gramscheDetH();
    void matrixRaendern();
    void zufallsMatrix();
    void Runden();
    void protoAktionenH();
    void EzH();
    void texSpeichernH();
    void protoSpeichernH();
    void matrixGroesseAendern();
    void ladeH();
    void speicherH();
    void exaktGaussH();
    void exaktLGSH();
    void exaktKernH();
    void exaktInverseH();
    void exaktDeterminanteH();
    void exaktEigenH();
    void exaktTexAusgabeH();
    void uebungH();
};

} // namespace tabulon
