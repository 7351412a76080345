// SPDX-License-Identifier: MIT

// A window that stays alive while a call in it takes long and may not be disturbed.
#pragma once

#include <QElapsedTimer>
#include <QObject>

class QWidget;

// While it exists, timers of everything outside the window wait: what they start would use what the call is working on.
// The window is modal, so that input reaches nothing else. GUI thread only.
class LIVE_WINDOW : public QObject
{
public:
    // `window` is not owned and must outlive this.
    explicit LIVE_WINDOW(QWidget& window);
    ~LIVE_WINDOW() override;

    // To be called often: draws, and delivers input, as often as a user notices.
    void live();
    // Delivers what has come by now: it was meant for the window as it looks until then.
    void catch_up();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_window;
    // Since the last time.
    QElapsedTimer m_clock;
};
