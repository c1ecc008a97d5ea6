#pragma once
// TableauWidget, the 8 x 8 input cells a00F ... a77F. Every edit goes into the model's cell at
// once, so the model always holds what the screen shows; zeigeModell() copies texts and hidden
// flags back after a command. Besides typing, the widget moves through the cells with the arrow
// keys and Enter, pastes a block copied from a spreadsheet or a text from the current cell on,
// and copies the visible block out as tab-separated text.

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
    // column 7, then shows the model. Hidden cells receive their entries too, like typed text
    // that stays in a hidden cell.
    void blockEinfuegen(const QString& text);
    void blockAusZwischenablage();
    QString sichtbarerBlockText() const;
    void sichtbarenBlockKopieren();

    int aktuelleZeile() const { return aktZeile; }
    int aktuelleSpalte() const { return aktSpalte; }
    void setzeAktuelleZelle(int zeile, int spalte);

    // Called after the widget changed the model's cells by itself (a pasted block).
    std::function<void()> nachEinfuegen;

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    bool sichtbar(int zeile, int spalte) const;
    enum class Cursor { anfang, ende, alles };
    bool gehe(int zeile, int spalte, Cursor cursor);
    void naechsteZelle();
    void kontextMenue(int zeile, int spalte, const QPoint& ort);

    ViewController& vc;
    std::array<QLineEdit*, 64> zellen{};
    int aktZeile = 0;
    int aktSpalte = 0;
};

} // namespace tabulon
