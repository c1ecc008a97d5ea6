#pragma once
// The process-wide state of the input tableau and of the protocol pages, and the primitives on
// them that do not need the window itself. tableauZustand() and protokollZustand() create the
// state with its start values on first use; allesZuruecksetzen() (app/zustand.h) assigns them
// again.

#include "numeric/matrix.h"
#include "textmatrix/smatrix.h"

#include <array>
#include <string>
#include <vector>

namespace tabulon {

struct TableauZustand {
    int rowmax = 7;                      // index of the last visible row
    int columnmax = 7;                   // index of the last visible column
    std::array<bool, 80> fensterZustand; // hidden flag of cell (i, j) at i * 10 + j
    SMatrix strEinAusMatrix{8, 8};       // the in/out text matrix, always 8 x 8
    SMatrix leerMatrix{8, 8};            // a blank tableau, never changed

    TableauZustand() { fensterZustand.fill(true); }
};

TableauZustand& tableauZustand();

struct ProtokollZustand {
    std::vector<std::string> protokoll{std::string()}; // page 0 is the empty start page
    int aktSeitenNr = 0;
    int maxSeitenNr = 0;
};

ProtokollZustand& protokollZustand();

void refreshMatrixView();
void rowplus();
void rowminus();
void columnplus();
void columninus();
void clearEingabematix();

// The text matrix (at most 8 x 8) into the tableau: rowmax and columnmax follow its size,
// refreshMatrixView(), then its entries are copied into strEinAusMatrix.
void einbettenInEinAusMatrix(const SMatrix& m);
// The numeric matrix into the tableau as standard texts; sets rowmax and columnmax but does not
// refresh the visible block: every caller calls refreshMatrixView() right after it.
void einbettenInEinAusMatrix(const Matrix& m);

} // namespace tabulon
