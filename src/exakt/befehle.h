#pragma once
// The commands of the menu "Exakt". Each takes the name from the field 'Name' and the text
// matrix the list holds under it (the window looks both up and handles an unknown name as the
// classic commands do) and returns its whole answer as a value: the page for the protocol, the
// matrix for the tableau (as the standard number texts of the classic commands), and the note.
// ok false means: beep, show the note, change nothing else.

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "exakt/seite.h"
#include "textmatrix/smatrix.h"

namespace tabulon {

struct ExaktAntwort {
    bool ok = false;
    Seite seite;
    std::optional<SMatrix> tableau; // nothing: the tableau stays as it is
    std::string notiz;
};

ExaktAntwort exaktGauss(const std::string& name, const SMatrix& m);
ExaktAntwort exaktLGS(const std::string& name, const SMatrix& m);
ExaktAntwort exaktKern(const std::string& name, const SMatrix& m);
ExaktAntwort exaktInverse(const std::string& name, const SMatrix& m);
ExaktAntwort exaktDeterminante(const std::string& name, const SMatrix& m);
ExaktAntwort exaktEigen(const std::string& name, const SMatrix& m);

// The last exact page of each matrix, which exaktTexAusgabe writes as TeX. The window stores
// the page of every answer with ok true under the matrix's name.
struct ExaktZustand {
    std::map<std::string, Seite> letzteSeiten;
};
ExaktZustand& exaktZustand();
void merkeSeite(const std::string& name, const Seite& seite);

// The TeX document of the last exact page of `name`; "" when there is none.
std::string exaktTex(const std::string& name);

// exaktTexAusgabe writes exaktTex(name) with the files helper schreiben() under this name, that
// is into "Matrix_<name>_exakt.txt" of the documents folder, next to the classic export
// "Matrix_<name>.txt".
std::string exaktTexDateiname(const std::string& name);
std::string exaktTexErfolgNotiz(const std::string& name);
std::string exaktTexKeineSeiteNotiz(const std::string& name);
inline const std::string exaktTexFehlerNotiz = "Da hat irgendetwas nicht funktioniert.";

} // namespace tabulon
