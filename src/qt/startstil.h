#pragma once
// StartStil, the application's own style with one thing put off until it is needed. Every menu
// bar asks the style for the icon of its overflow button when it is made, and the styles read that
// icon from a PNG file, for which Qt loads every image format plugin of the system to ask whether
// it reads PNG better. The button shows only when the menus do not fit beside each other, which in
// the main window they always do, so the icon is read when it is first painted or measured.
// Everything else goes unchanged to the style Qt chose (system theme, -style, QT_STYLE_OVERRIDE).

#include <QProxyStyle>

namespace tabulon {

class StartStil : public QProxyStyle {
public:
    // Takes ownership of basis.
    explicit StartStil(QStyle* basis);

    QIcon standardIcon(StandardPixmap symbol, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};

// Puts StartStil over a fresh copy of the style QApplication would use; leaves the style alone
// when that style cannot be made again by its name. Call it before the first widget is made.
void startStilEinrichten();

} // namespace tabulon
