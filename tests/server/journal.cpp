// SPDX-License-Identifier: MIT
#include "journal.h"

#include "gfpdb/gfpdb_helper.h"
#include "store/gfpdb_store.h"

#include <QCoreApplication>
#include <QUuid>

#include <cstdio>
#include <iostream>

namespace {

constexpr int NAMES_OF_A_WORKER = 5;
// Every so many changes the shared name is the one that is changed.
constexpr int SHARED_STEP = 10;

void say(const std::string& line)
{
    std::fputs((line + '\n').c_str(), stdout);
    std::fflush(stdout);
}

std::string new_mark()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
}

bool was_too_late(const std::string& reason)
{
    return reason.find("since it was ") != std::string::npos;
}

std::string import_marked(const std::string& prefix, const std::string& mark)
{
    std::vector<GFPDB_ROW> rows;
    for (int i = 0; i < JOURNAL_IMPORT_RECORDS; ++i) {
        rows.push_back(make_row(prefix + std::to_string(i)));
        rows.back().device_id = mark;
    }
    const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(qgetenv("GFPDB_TEST_DIR").toStdString());
    return store->save_all(rows, {}, [](int) { return true; }) ? std::string() : store->get_last_error();
}

std::string change(const std::string& how, const std::string& name, const std::string& mark)
{
    if (how == "import")
        return import_marked(name, mark);
    GFPDB_MGR* manager = GFPDB_HELPER::get_active_flash_manager(false);
    std::string reason = apply_marked(*manager, name, mark);
    while (was_too_late(reason))
        reason = apply_marked(*manager, name, mark);
    return reason;
}

} // namespace

std::string apply_marked(GFPDB_MGR& manager, const std::string& name, const std::string& mark)
{
    const bool is_there = manager.find_flash(name, true) != nullptr;
    if (is_there && !manager.delete_flash(name, std::string()))
        return manager.get_last_error();
    GFPDB_FLASH* record = make_device(manager, name);
    record->set_string_property(GFPDB_FLASH_DEVICE_ID, mark);
    return manager.save_flash(record, std::string()) ? std::string() : manager.get_last_error();
}

int run_worker(const QStringList& arguments)
{
    const std::string how = arguments.value(2).toStdString();
    const std::string prefix = arguments.value(3).toStdString();
    const int changes = arguments.value(4).toInt();
    GFPDB_MGR::set_db_custom_dir(qgetenv("GFPDB_TEST_DIR").toStdString());
    fresh_manager();
    for (int done = 0; done < changes; ++done) {
        const std::string mark = new_mark();
        const bool is_shared = how == "apply" && done % SHARED_STEP == SHARED_STEP - 1;
        const std::string name = is_shared        ? JOURNAL_SHARED_NAME
                                 : how == "apply" ? prefix + ' ' + std::to_string(done % NAMES_OF_A_WORKER)
                                                  : prefix;
        say("begins " + mark + ' ' + std::to_string(how == "import" ? JOURNAL_IMPORT_RECORDS : 1));
        const std::string reason = change(how, name, mark);
        say((reason.empty() ? "stored " : "refused ") + mark + ' ' + reason);
        std::string line;
        if (reason.empty())
            continue;
        if (!std::getline(std::cin, line))
            return 1;
        fresh_manager();
    }
    return 0;
}

void JOURNAL::add(const QByteArray& line)
{
    const QList<QByteArray> words = line.trimmed().split(' ');
    const QString mark = QString::fromUtf8(words.value(1));
    if (words.first() == "begins")
        m_records[mark] = words.value(2).toInt();
    if (words.first() == "stored")
        m_stored.append(mark);
}

QStringList JOURNAL::problems(const GFPDB_PLACE& place) const
{
    QMap<QString, int> found;
    // What was put back is the current state again: that is no second one.
    const QString marks = QStringLiteral(
        "SELECT device_id FROM device UNION ALL SELECT device_id FROM history WHERE reason <> 'put back'");
    for (const QString& mark : SERVER_DATABASE::find(place.db_dir())->list(marks))
        ++found[mark];
    QStringList problems;
    for (auto change = m_records.cbegin(); change != m_records.cend(); ++change) {
        const int count = found.take(change.key());
        const bool is_right = count == change.value() || (count == 0 && !m_stored.contains(change.key()));
        if (!is_right)
            problems += QStringLiteral("%1 is there %2 times of %3%4")
                            .arg(change.key())
                            .arg(count)
                            .arg(change.value())
                            .arg(QLatin1String(m_stored.contains(change.key()) ? ", and was reported as stored" : ""));
    }
    for (const QString& mark : found.keys())
        problems += mark + QStringLiteral(" was changed by nobody");
    return problems;
}

WORKER::WORKER(const GFPDB_PLACE& place, const QString& how, const QString& prefix, int changes)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("GFPDB_TEST_DIR"), QString::fromStdString(place.db_dir()));
    m_process.setProcessEnvironment(variables);
    m_process.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("work"), how, prefix, QString::number(changes)});
}

QByteArray WORKER::hear()
{
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(-1))
            return QByteArray();
    }
    return m_process.readLine();
}

void WORKER::go_on()
{
    m_process.write("go on\n");
    m_process.waitForBytesWritten(-1);
}

void WORKER::kill()
{
    m_process.kill();
}

QList<QByteArray> WORKER::rest()
{
    m_process.closeWriteChannel();
    m_process.waitForFinished(-1);
    return m_process.readAllStandardOutput().split('\n');
}
