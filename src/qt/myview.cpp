#include "qt/myview.h"

#include <QMouseEvent>

namespace tabulon {

void MyView::mousePressEvent(QMouseEvent* ereignis) {
    if (!(ereignis->modifiers() & Qt::ShiftModifier) && piep) {
        piep();
    }
    ereignis->accept();
}

void MyView::mouseMoveEvent(QMouseEvent* ereignis) {
    if (ereignis->buttons() != Qt::NoButton) {
        mousePressEvent(ereignis);
    }
}

} // namespace tabulon
