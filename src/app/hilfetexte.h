#pragma once
// The German help texts of the help window. Each text starts with its title line, an empty line,
// then the explanation; lines after the title mostly begin with one blank, which the help
// window's plain text field shows as a small indent. Button labels are quoted in single quotes
// exactly as the main window shows them, so that a reader finds the button the text speaks of.

#include <string_view>

namespace tabulon {

extern const std::string_view allgInfoH;
extern const std::string_view anweisungsH;
extern const std::string_view nMalAusfuehrungHT;
extern const std::string_view einauslistenHT;
extern const std::string_view loescheHT;
extern const std::string_view loescheListeHT;
extern const std::string_view druckeHT;
extern const std::string_view freierMAtrixNameHT;
extern const std::string_view elemZeilenUmfHT;
extern const std::string_view transponiereHT;
extern const std::string_view basisZuKernHT;
extern const std::string_view invertiereHT;
extern const std::string_view orthonormiereHT;
extern const std::string_view charPolynomEigenwerteHT;
extern const std::string_view gramscheDetHT;
extern const std::string_view matrixRaendernHT;
extern const std::string_view zufallsMatrixHT;
extern const std::string_view RundenHT;
extern const std::string_view protoAktionenHT;
extern const std::string_view EzHT;
extern const std::string_view texSpeichernHT;
extern const std::string_view protoSpeichernHT;
extern const std::string_view matrixGroesseAendernHT;
extern const std::string_view ladeHT;
extern const std::string_view speichereHT;

} // namespace tabulon
