#pragma once
// MyView, the window's background: a click or a drag on it, away from every field and button,
// sounds the beep unless Shift is held. The main window's widgets sit on top of it, so only the
// quiet space between them reacts.

#include <QWidget>

#include <functional>

namespace tabulon {

class MyView : public QWidget {
public:
    explicit MyView(std::function<void()> piep, QWidget* eltern = nullptr)
        : QWidget(eltern), piep(std::move(piep)) {}

protected:
    void mousePressEvent(QMouseEvent* ereignis) override;
    // Without mouse tracking Qt sends moves only while a button is held, which is a drag.
    void mouseMoveEvent(QMouseEvent* ereignis) override;

private:
    std::function<void()> piep;
};

} // namespace tabulon
