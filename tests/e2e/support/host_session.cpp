// SPDX-License-Identifier: MIT
#include "host_session.h"

#include "deadline.h"
#include "screen.h"

#include <QDir>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QTest>

namespace {

QByteArray json_line(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

HOST_SESSION::HOST_SESSION(const SCREEN& screen, const QString& directory) : m_screen(screen), m_directory(directory)
{
    QDir().mkpath(database_directory());
}

HOST_SESSION::~HOST_SESSION()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished(DEADLINE_MS);
}

QString HOST_SESSION::database_directory() const
{
    return m_directory + QLatin1String("/database");
}

QProcessEnvironment HOST_SESSION::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.insert(QStringLiteral("DISPLAY"), m_screen.display());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(E2E_PLUGIN_PATH));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"),
                       QLatin1String("gfpq_inspector:") + m_server.fullServerName());
    // Where Mesa's drivers are installed the platform plugin would load GL, which nothing here draws with, and which
    // leaks in a library that is unloaded before leaks are looked for.
    environment.insert(QStringLiteral("QT_XCB_GL_INTEGRATION"), QStringLiteral("none"));
    // A window may close while the inspector asks the X server which one is under the pointer.
    environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("qt.qpa.xcb.warning=false"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_directory + QLatin1String("/config"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_directory + QLatin1String("/data"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_socket_directory.path());
    environment.insert(QStringLiteral("GFPDB_SETTINGS"), m_directory + QLatin1String("/config/gfpdb.ini"));
    return environment;
}

bool HOST_SESSION::start(const QStringList& options, const QString& database_directory_or_null)
{
    const QString directory = database_directory_or_null.isNull() ? database_directory() : database_directory_or_null;
    return start_program(QStringLiteral(E2E_HOST_PROGRAM), QStringList(options)
                                                               << QLatin1String("--database=") + directory);
}

bool HOST_SESSION::start_probe(const QStringList& options)
{
    return start_program(QStringLiteral(E2E_PROBE_PROGRAM), options);
}

bool HOST_SESSION::start_program(const QString& program, const QStringList& options)
{
    QDir().mkpath(m_directory + QLatin1String("/config"));
    if (!m_server.listen(m_socket_directory.filePath(QStringLiteral("inspector")))) {
        qWarning("no socket: %s", qUtf8Printable(m_server.errorString()));
        return false;
    }
    m_process.setProcessEnvironment(environment());
    m_process.setWorkingDirectory(m_directory);
    m_process.start(program, options);
    if (!m_server.waitForNewConnection(DEADLINE_MS)) {
        read_streams();
        qWarning("the program does not answer: %s%s", m_output.constData(), m_log.constData());
        return false;
    }
    m_inspector.reset(m_server.nextPendingConnection());
    m_inspector->setParent(nullptr);
    return true;
}

QJsonObject HOST_SESSION::ask(const QJsonObject& question)
{
    if (!m_inspector)
        return {};
    m_inspector->write(json_line(question));
    while (!m_inspector->canReadLine()) {
        if (!m_inspector->waitForReadyRead(DEADLINE_MS))
            return {};
    }
    return QJsonDocument::fromJson(m_inspector->readLine()).object();
}

bool HOST_SESSION::wait_for(const QJsonObject& question, const std::function<bool(const QJsonObject&)>& is_right)
{
    QJsonObject answer;
    const auto is_right_now = [&] {
        answer = ask(question);
        return is_right(answer);
    };
    if (QTest::qWaitFor(is_right_now, DEADLINE_MS))
        return true;
    qWarning("asked: %slast answer: %s", json_line(question).constData(), json_line(answer).constData());
    return false;
}

void HOST_SESSION::read_streams()
{
    m_output += m_process.readAllStandardOutput();
    m_log += m_process.readAllStandardError();
}

bool HOST_SESSION::wait_for_end()
{
    const bool ended = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(DEADLINE_MS);
    read_streams();
    return ended && m_process.exitStatus() == QProcess::NormalExit;
}

QJsonObject HOST_SESSION::record() const
{
    return QJsonDocument::fromJson(m_output.trimmed().split('\n').last()).object();
}
