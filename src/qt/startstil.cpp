#include "qt/startstil.h"

#include <QApplication>
#include <QIconEngine>
#include <QPointer>
#include <QStyleFactory>
#include <QStyleOption>

#include <memory>
#include <optional>

namespace tabulon {

namespace {

// An icon engine that asks the style for the real icon on first use and then answers with it.
// Sizes reach an engine in device pixels, so the real icon is always asked at ratio 1.
class SpaetesSymbol : public QIconEngine {
public:
    SpaetesSymbol(const QStyle* stil, QStyle::StandardPixmap symbol, const QStyleOption* option,
                  const QWidget* widget)
        : stil(stil), symbol(symbol), widget(widget) {
        if (option) {
            richtung = option->direction;
        }
    }

    void paint(QPainter* maler, const QRect& rechteck, QIcon::Mode modus,
               QIcon::State zustand) override {
        echt().paint(maler, rechteck, Qt::AlignCenter, modus, zustand);
    }
    QPixmap pixmap(const QSize& groesse, QIcon::Mode modus, QIcon::State zustand) override {
        return echt().pixmap(groesse, 1.0, modus, zustand);
    }
    QSize actualSize(const QSize& groesse, QIcon::Mode modus, QIcon::State zustand) override {
        return pixmap(groesse, modus, zustand).size();
    }
    QList<QSize> availableSizes(QIcon::Mode modus, QIcon::State zustand) override {
        return echt().availableSizes(modus, zustand);
    }
    bool isNull() override { return echt().isNull(); }
    QString iconName() override { return echt().name(); }
    QString key() const override { return QStringLiteral("SpaetesSymbol"); }
    QIconEngine* clone() const override { return new SpaetesSymbol(*this); }

private:
    const QIcon& echt() {
        if (!icon) {
            // The style may have been replaced since; the application's style then answers.
            const QStyle* fragen = stil ? stil.data() : QApplication::style();
            std::optional<QStyleOption> option;
            if (richtung) {
                option.emplace();
                option->direction = *richtung;
            }
            icon = fragen->standardIcon(symbol, option ? &*option : nullptr, widget.data());
        }
        return *icon;
    }

    QPointer<const QStyle> stil;
    QStyle::StandardPixmap symbol;
    QPointer<const QWidget> widget;
    std::optional<Qt::LayoutDirection> richtung;
    std::optional<QIcon> icon;
};

} // namespace

StartStil::StartStil(QStyle* basis) : QProxyStyle(basis) {}

QIcon StartStil::standardIcon(StandardPixmap symbol, const QStyleOption* option,
                              const QWidget* widget) const {
    if (symbol == SP_ToolBarHorizontalExtensionButton) {
        return QIcon(new SpaetesSymbol(baseStyle(), symbol, option, widget));
    }
    return QProxyStyle::standardIcon(symbol, option, widget);
}

void startStilEinrichten() {
    const QString name = QApplication::style()->name();
    if (QStyle* basis = QStyleFactory::create(name)) {
        QApplication::setStyle(new StartStil(basis));
    }
}

} // namespace tabulon
