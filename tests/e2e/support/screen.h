// SPDX-License-Identifier: MIT

// A screen of the test's own: an X server without a monitor, and a window manager on it.
#pragma once

#include <QProcess>
#include <QSize>
#include <QString>
#include <QStringList>

class SCREEN
{
public:
    SCREEN();
    // Ends both programs.
    ~SCREEN();
    SCREEN(const SCREEN&) = delete;
    SCREEN& operator=(const SCREEN&) = delete;

    // Starts the X server with a screen of `size` on a free display number and waits until the window manager does as
    // it is told: a window that is opened from then on gets the focus. False when that does not come about; problem()
    // says why.
    bool start(const QSize& size);
    QString problem() const { return m_problem; }

    // ":7"; what a program needs in DISPLAY.
    QString display() const { return m_display; }

    // Runs a program that talks to this screen to its end. False when it cannot or ends with an error.
    bool run(const QString& program, const QStringList& arguments, QByteArray* output = nullptr) const;

private:
    bool start_server(const QSize& size);
    bool start_window_manager();
    bool window_manager_obeys() const;
    bool fail(const QString& problem);

    QProcess m_server;
    QProcess m_window_manager;
    QString m_display;
    QString m_problem;
};
