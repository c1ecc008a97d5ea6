#pragma once
// Hilfefenster, the help window on the desktop: the 24 topic buttons of TabulonHilfen and the
// read-only text field hifeF. A new window, and so a new model, is made each time the help is
// opened, which shows the general information first again.

#include "app/tabulonhilfen.h"

#include <QDialog>

class QPlainTextEdit;

namespace tabulon {

class Hilfefenster : public QDialog {
public:
    explicit Hilfefenster(QWidget* eltern = nullptr);

    const TabulonHilfen& modell() const { return hilfen; }
    // Fires a topic action (or fensterZuB) and shows the model's values.
    void aktion(std::string_view name);

protected:
    void showEvent(QShowEvent* ereignis) override;

private:
    void zeigeModell();

    TabulonHilfen hilfen;
    QPlainTextEdit* hifeF = nullptr;
};

} // namespace tabulon
