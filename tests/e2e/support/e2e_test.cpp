// SPDX-License-Identifier: MIT
#include "e2e_test.h"

#include "deadline.h"

#include <QJsonDocument>
#include <QProcess>

#include <algorithm>

E2E_TEST::E2E_TEST() = default;

E2E_TEST::~E2E_TEST() = default;

void E2E_TEST::initTestCase()
{
    QVERIFY2(m_screen.start(screen_size()), qPrintable(m_screen.problem()));
}

void E2E_TEST::init()
{
    m_scratch = std::make_unique<QTemporaryDir>();
    QVERIFY(m_scratch->isValid());
}

void E2E_TEST::cleanup()
{
    m_user.reset();
    m_session.reset();
    m_scratch.reset();
}

void E2E_TEST::create_session()
{
    m_user.reset();
    m_session = std::make_unique<HOST_SESSION>(m_screen, m_scratch->path());
    m_user = std::make_unique<USER>(m_screen, *m_session);
}

bool E2E_TEST::start(const QStringList& options)
{
    create_session();
    return m_session->start(options);
}

bool E2E_TEST::start_with_database(const QString& database_directory, const QStringList& options)
{
    create_session();
    return m_session->start(options, database_directory);
}

bool E2E_TEST::start_probe(const QStringList& options)
{
    create_session();
    return m_session->start_probe(options);
}

bool E2E_TEST::wait_for_property(const char* widget, const char* property, const QJsonValue& value)
{
    return m_session->wait_for(widget_called(widget), [&](const QJsonObject& answer) {
        return answer.value(QLatin1String(property)) == value;
    });
}

namespace {

QJsonObject rows_of(const char* view)
{
    return {{QStringLiteral("ask"), QStringLiteral("rows")}, {QStringLiteral("name"), QLatin1String(view)}};
}

QStringList first_column(const QJsonObject& answer)
{
    QStringList texts;
    for (const QJsonValue& row : answer.value(QLatin1String("rows")).toArray())
        texts.append(row.toArray().at(0).toString());
    return texts;
}

} // namespace

QStringList E2E_TEST::column_of(const char* view)
{
    return first_column(m_session->ask(rows_of(view)));
}

bool E2E_TEST::wait_for_column(const char* view, const QStringList& texts)
{
    return m_session->wait_for(rows_of(view), [&](const QJsonObject& answer) { return first_column(answer) == texts; });
}

bool E2E_TEST::wait_for_box_text(const std::function<bool(const QString& text)>& is_right)
{
    return m_session->wait_for({{QStringLiteral("ask"), QStringLiteral("windows")}}, [&](const QJsonObject& answer) {
        const QJsonArray windows = answer.value(QLatin1String("windows")).toArray();
        return std::any_of(windows.begin(), windows.end(), [&](const QJsonValue& window) {
            const QJsonObject described = window.toObject();
            return described.value(QLatin1String("is_active")).toBool() &&
                   described.value(QLatin1String("class")) == QLatin1String("QMessageBox") &&
                   is_right(described.value(QLatin1String("text")).toString());
        });
    });
}

bool E2E_TEST::wait_for_box(const QString& text)
{
    return wait_for_box_text([&text](const QString& shown) { return shown == text; });
}

bool E2E_TEST::wait_for_box_that_opens_with(const QString& text)
{
    return wait_for_box_text([&text](const QString& shown) { return shown.startsWith(text); });
}

bool E2E_TEST::wait_for_window(const QString& title)
{
    return m_session->wait_for({{QStringLiteral("ask"), QStringLiteral("windows")}}, [&](const QJsonObject& answer) {
        return answer.value(QLatin1String("active")).toString() == title;
    });
}

QJsonObject E2E_TEST::read_database(int family, int scheme, const QStringList& names) const
{
    QProcess reader;
    reader.start(QStringLiteral(E2E_READER_PROGRAM),
                 QStringList{m_session->database_directory(), QString::number(family), QString::number(scheme)} +
                     names);
    if (!reader.waitForFinished(DEADLINE_MS) || reader.exitCode() != 0)
        qWarning("the reader fails: %s", reader.readAllStandardError().constData());
    return QJsonDocument::fromJson(reader.readAllStandardOutput()).object();
}

bool E2E_TEST::ended_well()
{
    const bool ended = m_session->wait_for_end();
    if (ended && m_session->exit_code() == 0 && m_session->log().isEmpty())
        return true;
    qWarning("ended: %d, exit code: %d, log: %s", ended, m_session->exit_code(), m_session->log().constData());
    return false;
}
