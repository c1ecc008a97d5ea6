#include "qt/tastenkuerzel.h"

#include <QAction>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace tabulon {

namespace {

QString ohneKuerzelzeichen(QString titel) {
    titel.remove(QRegularExpression(QStringLiteral("&(?!&)")));
    return titel;
}

QString zeile(const QString& taste, const QString& wirkung) {
    return QStringLiteral("<tr><td style='padding-right:18px'><b>") + taste.toHtmlEscaped() +
           QStringLiteral("</b></td><td>") + wirkung.toHtmlEscaped() + QStringLiteral("</td></tr>");
}

QString taste(const QKeySequence& folge) {
    return folge.toString(QKeySequence::NativeText);
}

} // namespace

QString tastenkuerzelHtml(const QMenuBar& menues, const QWidget& fenster) {
    QString html = QStringLiteral("<h3>Menüs</h3><table>");
    for (QAction* oben : menues.actions()) {
        const QMenu* menue = oben->menu();
        if (!menue) {
            continue;
        }
        const QString name = ohneKuerzelzeichen(oben->text());
        html += QStringLiteral("<tr><td colspan='2'><br><i>") + name.toHtmlEscaped() +
                QStringLiteral(" (Alt+") + oben->text().at(oben->text().indexOf('&') + 1) +
                QStringLiteral(")</i></td></tr>");
        for (QAction* eintrag : menue->actions()) {
            if (!eintrag->shortcut().isEmpty()) {
                html += zeile(taste(eintrag->shortcut()), ohneKuerzelzeichen(eintrag->text()));
            }
        }
    }
    html += QStringLiteral("</table><h3>Im Fenster</h3><table>");
    const QString eingabe = taste(QKeySequence(Qt::Key_Return));
    const QString tab = taste(QKeySequence(Qt::Key_Tab));
    const std::pair<QString, QString> imFenster[] = {
        {taste(QKeySequence(Qt::Key_F10)), QStringLiteral("Menüleiste öffnen")},
        {QStringLiteral("Alt+Buchstabe"),
         QStringLiteral("Menü oder Feld mit dem unterstrichenen Buchstaben")},
        {eingabe + QStringLiteral(" in 'Name'"),
         QStringLiteral("Tableau-Matrix unter <Name> eintragen ('<-')")},
        {eingabe + QStringLiteral(" in 'Term'"), QStringLiteral("Term-Auswertung")},
        {eingabe + QStringLiteral(" in 'n ='"), QStringLiteral("n-malige Term-Auswertung")},
        {eingabe + QStringLiteral(" in 'Seite'"), QStringLiteral("Die eingetragene Seite zeigen")},
        {tab + QStringLiteral(", Umschalt+") + tab,
         QStringLiteral("Nächstes, voriges Feld; im Tableau die Zelle rechts, links")},
        {QStringLiteral("Leertaste"), QStringLiteral("Knopf mit dem Tastaturfokus drücken")},
    };
    for (const auto& [tasten, wirkung] : imFenster) {
        html += zeile(tasten, wirkung);
    }
    const auto buchstabe = [](const QString& titel) {
        const qsizetype stelle = titel.indexOf(QLatin1Char('&'));
        return stelle >= 0 && stelle + 1 < titel.size() ? titel.at(stelle + 1).toUpper() : QChar();
    };
    for (const QLabel* titel : fenster.findChildren<QLabel*>()) {
        const QChar b = buchstabe(titel->text());
        if (titel->buddy() && !b.isNull()) {
            html += zeile(QStringLiteral("Alt+") + b, QStringLiteral("Zum Feld '") +
                                                          ohneKuerzelzeichen(titel->text()) +
                                                          QLatin1Char('\''));
        }
    }
    for (const QCheckBox* kasten : fenster.findChildren<QCheckBox*>()) {
        const QChar b = buchstabe(kasten->text());
        if (!b.isNull()) {
            html += zeile(QStringLiteral("Alt+") + b,
                          QStringLiteral("'") + ohneKuerzelzeichen(kasten->text()) +
                              QStringLiteral("' ein- oder ausschalten"));
        }
    }
    html += QStringLiteral("</table><h3>Im Tableau</h3><table>");
    const std::pair<QString, QString> tableau[] = {
        {eingabe, QStringLiteral("Zelle darunter, nach der letzten Zeile oben in der nächsten "
                                 "Spalte")},
        {QStringLiteral("Pfeiltasten"),
         QStringLiteral("Zur Nachbarzelle (links und rechts am Rand des Textes oder wenn er ganz "
                        "markiert ist)")},
        {taste(QKeySequence::Paste),
         QStringLiteral("Einen Block aus einer Tabellenkalkulation ab dieser Zelle einfügen")},
    };
    for (const auto& [tasten, wirkung] : tableau) {
        html += zeile(tasten, wirkung);
    }
    return html + QStringLiteral("</table>");
}

Tastenkuerzelfenster::Tastenkuerzelfenster(const QMenuBar& menues, QWidget* fenster)
    : QDialog(fenster) {
    setObjectName(QStringLiteral("Tastenkuerzel"));
    setWindowTitle(QStringLiteral("Tabulon Tastenkürzel"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* text = new QTextBrowser;
    text->setObjectName(QStringLiteral("tastenkuerzelF"));
    text->setHtml(tastenkuerzelHtml(menues, *fenster));
    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* spalte = new QVBoxLayout(this);
    spalte->addWidget(text);
    spalte->addWidget(knoepfe);
    resize(fontMetrics().horizontalAdvance(QLatin1Char('x')) * 90,
           fontMetrics().lineSpacing() * 40);
}

} // namespace tabulon
