// SPDX-License-Identifier: MIT

// Exporting a directory and importing it elsewhere, again and again in one process, gives the same bytes and keeps
// memory flat.
#include "soak_stand.h"

#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_mgr.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

#include <cstdio>

#include <unistd.h>

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = 7;
constexpr int DEFAULT_ROUNDS = 6;
constexpr int WARM_UP_ROUNDS = 3;
// Of the built-in parts one in so many becomes a device, and of the devices one in so many a template as well.
constexpr std::size_t PARTS_A_DEVICE = 4;
constexpr std::size_t DEVICES_A_TEMPLATE = 10;
// For each record, in bytes: less than the smallest block that could be left behind.
constexpr double LARGEST_GROWTH = 25.0;

std::vector<GFPDB_RECORD> user_records(GFPDB_DATABASE& database)
{
    const std::vector<GFPDB_RECORD> parts = database.find_builtin({});
    std::vector<GFPDB_RECORD> records;
    std::vector<GFPDB_RECORD> templates;
    for (std::size_t at = 0; at < parts.size(); at += PARTS_A_DEVICE) {
        records.push_back(parts[at]);
        GFPDB_ROW& row = records.back().row;
        row.name += " of the user";
        row.family = FAMILY;
        row.scheme = SCHEME;
        row.single_io_dummy_clock = 8; // Some parts have more than a device can.
        if (records.size() % DEVICES_A_TEMPLATE != 1)
            continue;
        row.template_name = row.name + " as a template";
        templates.push_back({true, row, 0});
    }
    records.insert(records.end(), templates.begin(), templates.end());
    return records;
}

std::string text_of(const std::vector<GFPDB_RECORD>& records)
{
    std::vector<GFPDB_RECORD> unreadable;
    return gfpdb_write_records(records, unreadable);
}

std::string exported(GFPDB_DATABASE& database)
{
    std::vector<GFPDB_RECORD> records;
    for (const GFPDB_RECORD& stored : database.find_stored({}))
        records.push_back(database.load(stored).value_or(GFPDB_RECORD()));
    return text_of(records);
}

bool write(const QString& path, const std::string& text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.data(), qint64(text.size())) == qint64(text.size());
}

// What comes out of `directory`, which has no database, once the file was imported there.
std::string round_trip(const std::string& directory, const std::string& file)
{
    GFPDB_DATABASE database(directory);
    GFPDB_RECORD_FILE content = gfpdb_read_records(file, database.get_manager(), {});
    GFPDB_IMPORT_PLAN plan(database, GFPDB_EXISTING::REFUSED, GFPDB_RECORD_RULES::IMPORTED);
    plan.add(content);
    for (const GFPDB_FINDING& problem : content.problems)
        return problem.field + ": " + problem.text;
    return database.import(plan, [](int) { return true; }) ? exported(database) : database.get_last_error();
}

} // namespace

class TEST_ROUND_TRIPS : public QObject
{
    Q_OBJECT

private slots:
    void memory_stays_flat_and_the_bytes_the_same()
    {
        const SOAK_STAND stand;
        const QString elsewhere = stand.database_directories().last();
        const std::string directory = elsewhere.toStdString();
        const QString file = stand.path(QStringLiteral("records.json"));
        GFPDB_DATABASE database(directory);
        const std::vector<GFPDB_RECORD> records = user_records(database);
        std::string text = text_of(records);
        const int rounds = number_from_environment("GFPDB_SOAK_ROUNDS", DEFAULT_ROUNDS);
        std::vector<std::size_t> levels;
        for (int round = 0; round < WARM_UP_ROUNDS + rounds; ++round) {
            for (const QString& name : QDir(elsewhere).entryList(QDir::Files))
                QVERIFY(QFile::remove(elsewhere + name));
            QVERIFY(write(file, text));
            const std::string back = round_trip(directory, file.toStdString());
            // The first file has the order of the catalogue, and values that are not set.
            QVERIFY2(back == text || round == 0, back.substr(0, 200).c_str());
            text = back;
            if (round >= WARM_UP_ROUNDS)
                levels.push_back(allocated_bytes());
        }
        const double growth = usual_growth(levels) / double(records.size());
        std::printf(
            "%d round trips of %zu records, %zu bytes, after %d: %+.1f bytes a record each; %zu bytes at first, "
            "%zu at the end\n",
            rounds, records.size(), text.size(), WARM_UP_ROUNDS, growth, levels.front(), levels.back());
        QVERIFY2(growth < LARGEST_GROWTH, qPrintable(QStringLiteral("%1 bytes for each record").arg(growth)));
    }
};

// The C library counts what it keeps of freed memory for later as allocated, unless it is told at the start to keep
// nothing.
void count_exactly(char** argv)
{
    constexpr const char* TUNABLES = "GLIBC_TUNABLES";
    if (qEnvironmentVariableIsSet(TUNABLES))
        return;
    qputenv(TUNABLES, "glibc.malloc.tcache_count=0");
    ::execv("/proc/self/exe", argv);
}

int main(int argc, char** argv)
{
    count_exactly(argv);
    allow_a_long_run();
    QCoreApplication application(argc, argv);
    TEST_ROUND_TRIPS test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_round_trips.moc"
