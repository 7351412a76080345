// SPDX-License-Identifier: MIT
#include "database/live_window.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace {

// A window that answers within this time seems to answer at once.
constexpr qint64 TURN_MS = 30;

} // namespace

LIVE_WINDOW::LIVE_WINDOW(QWidget& window) : m_window(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

LIVE_WINDOW::~LIVE_WINDOW()
{
    QCoreApplication::instance()->removeEventFilter(this);
}

void LIVE_WINDOW::live()
{
    if (!m_clock.isValid() || m_clock.elapsed() >= TURN_MS)
        catch_up();
}

void LIVE_WINDOW::catch_up()
{
    QCoreApplication::processEvents();
    m_clock.start();
}

// A timer that is not heard comes again.
bool LIVE_WINDOW::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Timer)
        return false;
    for (const QObject* object = watched; object != nullptr; object = object->parent()) {
        if (object == &m_window)
            return false;
    }
    return true;
}
