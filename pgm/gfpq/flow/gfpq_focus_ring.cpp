// SPDX-License-Identifier: MIT
#include "flow/gfpq_focus_ring.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPainter>

namespace {

constexpr int WIDTH = 2;

} // namespace

GFPQ_FOCUS_RING::GFPQ_FOCUS_RING(QAbstractScrollArea& area) : QWidget(&area)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setVisible(area.hasFocus());
    setGeometry(area.rect());
    area.installEventFilter(this);
}

bool GFPQ_FOCUS_RING::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        setVisible(event->type() == QEvent::FocusIn);
        raise();
    } else if (event->type() == QEvent::Resize) {
        setGeometry(parentWidget()->rect());
    }
    return QWidget::eventFilter(watched, event);
}

void GFPQ_FOCUS_RING::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), WIDTH, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    constexpr int HALF = WIDTH / 2;
    painter.drawRect(rect().adjusted(HALF, HALF, -HALF, -HALF));
}
