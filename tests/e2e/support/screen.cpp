// SPDX-License-Identifier: MIT
#include "screen.h"

#include "deadline.h"

#include <QTest>

namespace {

const QString SERVER = QStringLiteral("Xvfb");
const QString WINDOW_MANAGER = QStringLiteral("openbox");

QProcessEnvironment environment_for(const QString& display)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display);
    return environment;
}

void end(QProcess& process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(DEADLINE_MS))
        process.kill();
    process.waitForFinished(DEADLINE_MS);
}

} // namespace

SCREEN::SCREEN() = default;

SCREEN::~SCREEN()
{
    end(m_window_manager);
    end(m_server);
}

bool SCREEN::fail(const QString& problem)
{
    m_problem = problem;
    return false;
}

bool SCREEN::start(const QSize& size)
{
    return start_server(size) && start_window_manager();
}

bool SCREEN::start_server(const QSize& size)
{
    // The server chooses the display number and tells it on its standard output once it takes connections.
    m_server.start(SERVER, {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                            QStringLiteral("0"), QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height()),
                            QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
    if (!m_server.waitForStarted(DEADLINE_MS))
        return fail(QStringLiteral("%1 cannot be started: %2").arg(SERVER, m_server.errorString()));
    while (!m_server.canReadLine()) {
        if (!m_server.waitForReadyRead(DEADLINE_MS))
            return fail(QStringLiteral("%1 tells no display number: %2")
                            .arg(SERVER, QString::fromLocal8Bit(m_server.readAllStandardError())));
    }
    m_display = QLatin1Char(':') + QString::fromLatin1(m_server.readLine().trimmed());
    return true;
}

bool SCREEN::start_window_manager()
{
    m_window_manager.setProcessEnvironment(environment_for(m_display));
    m_window_manager.start(WINDOW_MANAGER, {QStringLiteral("--sm-disable")});
    if (!m_window_manager.waitForStarted(DEADLINE_MS))
        return fail(QStringLiteral("%1 cannot be started: %2").arg(WINDOW_MANAGER, m_window_manager.errorString()));
    return QTest::qWaitFor([this] { return window_manager_obeys(); }, DEADLINE_MS) ||
           fail(QStringLiteral("%1 takes no charge").arg(WINDOW_MANAGER));
}

// The window manager says that it is there (_NET_SUPPORTING_WM_CHECK) long before it has started: until then requests
// are lost, and a window that asks to be mapped never gets the focus. Only its event loop does as it is told, so it is
// told something: that one desktop will do.
bool SCREEN::window_manager_obeys() const
{
    QByteArray desktops;
    return run(QStringLiteral("xdotool"), {QStringLiteral("set_num_desktops"), QStringLiteral("1")}) &&
           run(QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("_NET_NUMBER_OF_DESKTOPS")},
               &desktops) &&
           desktops.trimmed().endsWith("= 1");
}

bool SCREEN::run(const QString& program, const QStringList& arguments, QByteArray* output) const
{
    QProcess process;
    process.setProcessEnvironment(environment_for(m_display));
    process.start(program, arguments);
    const bool ended = process.waitForFinished(DEADLINE_MS);
    if (output)
        *output = process.readAllStandardOutput();
    return ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}
