// SPDX-License-Identifier: MIT

// Nothing that was acknowledged is lost, and nothing is stored twice: programs are killed, the server stops without
// notice, many write at once.
//
// The suite does this a few times; GFPDB_SERVER_KILLS, GFPDB_SERVER_STOPS and GFPDB_SERVER_CHANGES make it a long run.
#include "journal.h"
#include "test_rows.h"

#include <QRandomGenerator>

#include <unistd.h>

namespace {

constexpr int KILLS = 12;
constexpr int STOPS = 3;
constexpr int WRITERS = 8;
constexpr int CHANGES = 25;
// A worker is killed at some moment of so many changes.
constexpr int MOST_LINES = 8;
constexpr int LONGEST_DELAY_US = 8000;
constexpr int WITHOUT_END = 1000000;

int count_from(const char* variable, int default_count)
{
    bool is_number = false;
    const int count = qEnvironmentVariableIntValue(variable, &is_number);
    return is_number ? count : default_count;
}

} // namespace

class TEST_SERVER_JOURNAL : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void a_killed_program_loses_nothing_that_it_reported_data()
    {
        rows<QString>({{"one that saves", "apply"}, {"one that imports", "import"}});
    }

    void a_killed_program_loses_nothing_that_it_reported()
    {
        const QString how = row<QString>();
        JOURNAL journal;
        for (int i = 0; i < count_from("GFPDB_SERVER_KILLS", KILLS); ++i) {
            WORKER worker(*m_place, how, QStringLiteral("Name"), WITHOUT_END);
            const int lines = QRandomGenerator::global()->bounded(MOST_LINES) + 1;
            for (int line = 0; line < lines; ++line)
                journal.add(not_refused(worker.hear()));
            ::usleep(useconds_t(QRandomGenerator::global()->bounded(LONGEST_DELAY_US)));
            worker.kill();
            for (const QByteArray& line : worker.rest())
                journal.add(not_refused(line));
            QCOMPARE(problems(journal), QStringList());
        }
        QVERIFY(journal.stored_count() > 0);
        qInfo("%d changes stored, %d killed", journal.stored_count(), journal.open_count());
    }

    // As when the power fails: what was committed is read from the log again.
    void a_server_that_stops_loses_nothing_that_was_reported()
    {
        POSTGRES_SERVER& server = POSTGRES_SERVER::of_program();
        restart(server, {QStringLiteral("fsync=on"), QStringLiteral("full_page_writes=on")});
        JOURNAL journal;
        WORKER saver(*m_place, QStringLiteral("apply"), QStringLiteral("Name"), WITHOUT_END);
        WORKER importer(*m_place, QStringLiteral("import"), QStringLiteral("Import"), WITHOUT_END);
        for (int i = 0; i < count_from("GFPDB_SERVER_STOPS", STOPS); ++i) {
            for (int line = QRandomGenerator::global()->bounded(MOST_LINES); line >= 0; --line) {
                hear(saver, journal);
                hear(importer, journal);
            }
            server.stop("immediate");
            hear_refusal(saver, journal);
            hear_refusal(importer, journal);
            server.start({QStringLiteral("fsync=on"), QStringLiteral("full_page_writes=on")});
            QCOMPARE(problems(journal), QStringList());
            saver.go_on();
            importer.go_on();
        }
        saver.kill();
        importer.kill();
        QVERIFY(journal.stored_count() > 0);
        qInfo("%d changes stored, %d interrupted", journal.stored_count(), journal.open_count());
        restart(server, {});
    }

    void many_write_at_once()
    {
        const int changes = count_from("GFPDB_SERVER_CHANGES", CHANGES);
        std::vector<std::unique_ptr<WORKER>> workers;
        for (int i = 0; i < WRITERS; ++i)
            workers.push_back(std::make_unique<WORKER>(*m_place, QStringLiteral("apply"),
                                                       QStringLiteral("Writer %1").arg(i), changes));

        JOURNAL journal;
        for (const auto& worker : workers) {
            for (const QByteArray& line : worker->rest())
                journal.add(not_refused(line));
        }

        QCOMPARE(journal.stored_count(), WRITERS * changes);
        QCOMPARE(problems(journal), QStringList());
    }

private:
    QStringList problems(const JOURNAL& journal) const { return journal.problems(*m_place); }

    static void restart(POSTGRES_SERVER& server, const QStringList& settings)
    {
        server.stop();
        server.start(settings);
    }

    static QByteArray not_refused(const QByteArray& line)
    {
        if (line.startsWith("refused"))
            QTest::qFail(line.constData(), __FILE__, __LINE__);
        return line;
    }

    // A busy machine may take longer than a program waits for the server that has just begun.
    static void hear(WORKER& worker, JOURNAL& journal)
    {
        const QByteArray line = worker.hear();
        journal.add(line);
        if (line.startsWith("refused"))
            worker.go_on();
    }

    static void hear_refusal(WORKER& worker, JOURNAL& journal)
    {
        QByteArray line;
        do {
            line = worker.hear();
            QVERIFY2(!line.isEmpty(), "the worker has ended");
            journal.add(line);
        } while (!line.startsWith("refused"));
    }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (application.arguments().value(1) == QLatin1String("work"))
        return run_worker(application.arguments());
    TEST_SERVER_JOURNAL test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_server_journal.moc"
