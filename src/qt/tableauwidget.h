#pragma once
// TableauWidget, the 8 x 8 input cells a00F ... a77F. Every edit goes into the model's cell at
// once, so the model always holds what the screen shows; zeigeModell() copies texts and hidden
// flags back after a command. Besides typing, the widget moves through the cells with the arrow
// keys, Tab and Enter, pastes a block copied from a spreadsheet from the current cell on, and
// copies the visible block out as tab-separated text.
//
// Results such as -1.66666666666667 are long, and a student must read them whole. The cells
// share the grid's width equally and one font, which shrinks, down to a floor, until the longest
// visible text fits; a text that still does not fit shows its start (sign and integer part)
// rather than its last digits, and the whole text on hovering or focusing. A text that is not a
// number is marked, since every computation would take it as 0 without a word.

#include <QFont>
#include <QString>
#include <QWidget>

#include <array>
#include <functional>
#include <vector>

class QLineEdit;

namespace tabulon {

class ViewController;

// Rows of a pasted block: lines split at tabs if the text has any, else at semicolons, else at
// runs of blanks. A trailing line break (spreadsheets add one) makes no empty last row.
std::vector<std::vector<QString>> zerlegeBlock(const QString& text);

// Whether pasted text is a block rather than one entry for the current cell.
bool istBlock(const QString& text);

class TableauWidget : public QWidget {
public:
    TableauWidget(ViewController& vc, QWidget* eltern = nullptr);

    QLineEdit* zelle(int zeile, int spalte) const {
        return zellen[static_cast<std::size_t>(zeile * 8 + spalte)];
    }
    void zeigeModell();

    // Writes the block into the model's cells from the current cell on, clipped at row and
    // column 7, and grows the visible block until every pasted cell is visible. Entries with a
    // decimal comma that would be numbers with a point get the point, and the note line says
    // how many; nothing else of the text changes. Then shows the model.
    void blockEinfuegen(const QString& text);
    void blockAusZwischenablage();
    QString sichtbarerBlockText() const;
    void sichtbarenBlockKopieren();

    int aktuelleZeile() const { return aktZeile; }
    int aktuelleSpalte() const { return aktSpalte; }
    void setzeAktuelleZelle(int zeile, int spalte);

    // Whether the cell's whole text is in view at the cells' present font.
    bool passtGanz(int zeile, int spalte) const;

    // Called after the widget changed the model by itself (a pasted block).
    std::function<void()> nachEinfuegen;

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    bool sichtbar(int zeile, int spalte) const;
    enum class Cursor { anfang, ende, alles };
    bool gehe(int zeile, int spalte, Cursor cursor);
    void naechsteZelleAbwaerts();
    void kontextMenue(int zeile, int spalte, const QPoint& ort);
    void schriftAnpassen();
    void zelleZeigen(int zeile, int spalte);
    int textBreite(const QLineEdit* feld) const;

    ViewController& vc;
    std::array<QLineEdit*, 64> zellen{};
    QFont grundSchrift;
    qreal kleinstePunkte = 0;
    int aktZeile = 0;
    int aktSpalte = 0;
};

} // namespace tabulon
