// SPDX-License-Identifier: MIT

// Nothing is lost when programs are killed, work at the same time, or run out of room.
//
// The program is its own helper: "work" and "fill" (see main) run as processes of their own. GFPDB_KILLS and
// GFPDB_RECORDS set how often and how much, 200 and 1000 if not set.
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb_test.h"
#include "manager/gfpdb_embedded_mgr.h"
#include "test_rows.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <csignal>
#include <cstdio>
#include <map>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int DEFAULT_KILLS = 200;
constexpr int DEFAULT_RECORDS = 1000;
constexpr int NAME_COUNT = 6;
// A worker is killed within this time after it has said so many lines.
constexpr int LONGEST_DELAY_US = 4000;
constexpr int MOST_LINES = 12;
// A database lives for this many kills, then another one is begun, so that the making of a file is killed too.
constexpr int KILLS_PER_DATABASE = 10;
constexpr int MARK_LENGTH = 40;

int count_from(const char* variable, int default_count)
{
    bool is_number = false;
    const int count = qEnvironmentVariableIntValue(variable, &is_number);
    return is_number ? count : default_count;
}

// The content of a record follows from its name and its mark, so that a mixed or half one is noticed.
void fill_record(GFPDB_MGR& manager, GFPDB_FLASH& record, const std::string& mark)
{
    record.set_user_defined(true);
    record.set_string_property(GFPDB_FLASH_DEVICE_ID, mark);
    record.set_density(mark);
    record.set_int_property(GFPDB_FLASH_TOTAL_DIE, int(mark.size()));
    fill_flows(manager, record, record.get_name() + ' ' + mark);
}

std::string expected_text(const std::string& name, const std::string& mark)
{
    GFPDB_EMBEDDED_FLASH record(name);
    fill_record(GFPDB_EMBEDDED_MGR::instance(), record, mark);
    return text_of(record);
}

void say(const std::string& line)
{
    std::fputs((line + '\n').c_str(), stdout);
    std::fflush(stdout);
}

bool save_marked(GFPDB_MGR& manager, const std::string& name, const std::string& mark)
{
    GFPDB_FLASH* record = manager.create_flash(name);
    fill_record(manager, *record, mark);
    say("saving " + name + ' ' + mark);
    const bool is_saved = manager.save_flash(record, std::string());
    say((is_saved ? "saved " : "not-saved ") + name + ' ' + mark);
    return is_saved;
}

bool remove(GFPDB_MGR& manager, const std::string& name)
{
    say("deleting " + name);
    const bool is_deleted = manager.delete_flash(name, std::string());
    say((is_deleted ? "deleted " : "not-deleted ") + name);
    return is_deleted;
}

std::string random_name()
{
    return "Name " + std::to_string(QRandomGenerator::global()->bounded(NAME_COUNT));
}

std::string random_mark()
{
    const quint32 number = QRandomGenerator::global()->generate();
    return std::to_string(number) + std::string(number % MARK_LENGTH, 'x');
}

// Saves, renames and deletes until it is killed. As the dialog does, a save deletes the name first, and a device gets
// no name that another one has.
int work()
{
    GFPDB_MGR* manager = fresh_manager();
    for (;;) {
        const std::string old_name = random_name();
        const int action = QRandomGenerator::global()->bounded(4);
        const std::string wish = action <= 1 ? random_name() : old_name;
        const std::string new_name = manager->is_custom_flash(wish) ? old_name : wish;
        if (!remove(*manager, old_name))
            return 1;
        if (action != 2 && !save_marked(*manager, new_name, random_mark()))
            return 1;
    }
}

// Saves `count` records whose names begin with `prefix`.
int fill(const std::string& prefix, int count)
{
    GFPDB_MGR* manager = fresh_manager();
    for (int i = 0; i < count; ++i) {
        if (!save_marked(*manager, prefix + std::to_string(i), random_mark()))
            return 1;
    }
    return 0;
}

// What a worker has reported of a database: the mark of each record, and the change it was at when it died.
class REPORT
{
public:
    // Takes in one line of a worker.
    void add(const QByteArray& line);
    bool is_within_a_change() const { return !m_pending.isEmpty(); }
    // True when `text` is what the record `name` may be now.
    bool allows(const std::string& name, const std::string& text) const;
    // The record that the worker had deleted to save it under another name; empty when it was not at that.
    std::string renamed() const;
    std::string mark_before_rename() const { return m_deleted_mark; }
    // The database was looked at: `name` has the mark `mark`, or is not there when that is empty.
    void settle(const std::string& name, const std::string& mark);
    std::string pending_name() const { return m_pending.value(1).toStdString(); }
    std::string pending_mark() const { return m_pending.value(2).toStdString(); }
    std::string mark(const std::string& name) const;

private:
    std::map<std::string, std::string> m_marks;
    QList<QByteArray> m_pending;
    std::string m_deleted_name;
    std::string m_deleted_mark;
};

std::string text_for(const std::string& name, const std::string& mark)
{
    return mark.empty() ? "none" : expected_text(name, mark);
}

// A line is "saving|saved|deleting|deleted Name N [mark]"; the name holds one blank.
void REPORT::add(const QByteArray& line)
{
    const QList<QByteArray> words = line.trimmed().split(' ');
    const QByteArray name = words.value(1) + ' ' + words.value(2);
    const QByteArray mark = words.value(3);
    if (words.first() == "saving" || words.first() == "deleting") {
        m_pending = {words.first(), name, mark};
        return;
    }
    if (words.first() == "deleted") {
        m_deleted_name = name.toStdString();
        m_deleted_mark = m_marks[m_deleted_name];
    }
    m_marks[name.toStdString()] = mark.toStdString();
    m_pending.clear();
}

std::string REPORT::mark(const std::string& name) const
{
    const auto place = m_marks.find(name);
    return place == m_marks.end() ? std::string() : place->second;
}

bool REPORT::allows(const std::string& name, const std::string& text) const
{
    if (text == text_for(name, mark(name)))
        return true;
    return is_within_a_change() && pending_name() == name && text == text_for(name, pending_mark());
}

std::string REPORT::renamed() const
{
    const bool is_saving = m_pending.value(0) == "saving" && !m_deleted_mark.empty();
    return is_saving && pending_name() != m_deleted_name ? m_deleted_name : std::string();
}

void REPORT::settle(const std::string& name, const std::string& mark)
{
    m_marks[name] = mark;
    m_pending.clear();
}

std::string stored_text(GFPDB_MGR& manager, const std::string& name)
{
    const GFPDB_FLASH* record = manager.find_flash(name, true);
    return record == nullptr ? "none" : text_of(*record);
}

QProcessEnvironment environment(const GFPDB_PLACE& place)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("GFPDB_TEST_DIR"), QString::fromStdString(place.db_dir()));
    return variables;
}

void start(QProcess& process, const GFPDB_PLACE& place, const QStringList& arguments)
{
    process.setProcessEnvironment(environment(place));
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), arguments);
}

// While it lives, no file can grow beyond `size` bytes, as on a full disk.
class FILE_SIZE_LIMIT
{
public:
    explicit FILE_SIZE_LIMIT(rlim_t size)
    {
        m_former_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_former);
        rlimit limit = m_former;
        limit.rlim_cur = size;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FILE_SIZE_LIMIT()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_former_handler);
    }

private:
    rlimit m_former = {};
    void (*m_former_handler)(int) = nullptr;
};

} // namespace

class TEST_DURABILITY : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void a_killed_program_loses_nothing_that_it_reported()
    {
        REPORT report;
        m_kills_within_a_change = 0;
        m_undone_renames = 0;
        for (int i = 0; i < count_from("GFPDB_KILLS", DEFAULT_KILLS); ++i) {
            if (i % KILLS_PER_DATABASE == 0) {
                QVERIFY(QDir(QString::fromStdString(m_place->db_dir())).removeRecursively());
                make_dir(m_place->db_dir());
                report = REPORT();
            }
            kill_a_worker(report);
            verify_all(report);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY(m_kills_within_a_change > 0);
        QVERIFY(m_undone_renames > 0);
        qInfo("%d kills within a change, %d interrupted renames undone", m_kills_within_a_change, m_undone_renames);
    }

    void two_programs_share_a_directory()
    {
        const int count = count_from("GFPDB_RECORDS", DEFAULT_RECORDS);
        QProcess programs[2];
        const QString prefixes[] = {QStringLiteral("First "), QStringLiteral("Second ")};
        for (int i = 0; i < 2; ++i)
            start(programs[i], *m_place, {QStringLiteral("fill"), prefixes[i], QString::number(count)});

        std::map<std::string, std::string> reported;
        for (QProcess& program : programs) {
            QVERIFY(program.waitForFinished(-1));
            QCOMPARE(program.exitCode(), 0);
            for (const QByteArray& line : program.readAllStandardOutput().split('\n')) {
                const QList<QByteArray> words = line.split(' ');
                if (words.first() == "saved")
                    reported[(words[1] + ' ' + words[2]).toStdString()] = words[3].toStdString();
            }
        }

        m_mgr = fresh_manager();
        QCOMPARE(int(reported.size()), 2 * count);
        QCOMPARE(custom_names(*m_mgr).size(), reported.size());
        for (const auto& [name, mark] : reported)
            QCOMPARE(stored_text(*m_mgr, name), expected_text(name, mark));
        QVERIFY(GFPDB_EMBEDDED_MGR::instance().store().check_integrity());
        QVERIFY(GFPDB_EMBEDDED_MGR::instance().store().get_history().empty());
    }

    void a_full_disk_leaves_everything_as_it_was_data()
    {
        rows<QByteArray>({{"save", QByteArrayLiteral("save")},
                          {"replace", QByteArrayLiteral("replace")},
                          {"delete", QByteArrayLiteral("delete")}});
    }

    void a_full_disk_leaves_everything_as_it_was()
    {
        const QByteArray change = row<QByteArray>();
        m_mgr = fresh_manager();
        QVERIFY(save_marked(*m_mgr, "A", "1"));
        const std::string before = stored_text(*m_mgr, "A");
        const std::string file = read_file(m_place->db_file());
        GFPDB_FLASH* record = m_mgr->create_flash(change == "replace" ? "A" : "B");
        fill_record(*m_mgr, *record, "2");
        const auto do_it = [&] {
            return change == "delete" ? m_mgr->delete_flash("A", std::string())
                                      : m_mgr->save_flash(record, std::string());
        };

        {
            const FILE_SIZE_LIMIT limit(file.size());
            expect_warning("gfpdb.sqlite");
            QVERIFY(!do_it());
            QVERIFY(!m_mgr->get_last_error().empty());
            QCOMPARE(stored_text(*m_mgr, "A"), before);
        }
        QCOMPARE(read_file(m_place->db_file()), file);
        m_mgr = fresh_manager();
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
        QCOMPARE(stored_text(*m_mgr, "A"), before);
        QVERIFY(GFPDB_EMBEDDED_MGR::instance().store().check_integrity());
        QVERIFY(do_it());
    }

    void no_file_is_left_where_there_is_no_room_for_one()
    {
        m_mgr = fresh_manager();
        GFPDB_FLASH* record = make_device(*m_mgr, "A");
        {
            const FILE_SIZE_LIMIT limit(4096);
            expect_warning("gfpdb.sqlite");
            QVERIFY(!m_mgr->save_flash(record, std::string()));
        }
        const QDir directory(QString::fromStdString(m_place->db_dir()));
        QCOMPARE(directory.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
        QCOMPARE(open_files(m_place->db_dir()), QStringList());
        QVERIFY(m_mgr->save_flash(record, std::string()));
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
    }

    // A small file system of its own; where that may not be mounted, a limit on file sizes stands for it.
    void a_full_medium_is_reported_as_such()
    {
        constexpr rlim_t ROOM = 128 * 1024;
        const std::string directory = m_place->path("small/");
        make_dir(directory);
        const bool is_mounted = ::mount("tmpfs", directory.c_str(), "tmpfs", 0, "size=128k") == 0;
        GFPDB_MGR::set_db_custom_dir(directory);
        m_mgr = fresh_manager();
        NAMES saved;
        std::string error;
        {
            const FILE_SIZE_LIMIT limit(is_mounted ? RLIM_INFINITY : ROOM);
            expect_warning("gfpdb.sqlite");
            for (int i = 0; error.empty(); ++i) {
                const std::string name = "Name " + std::string(1, char('a' + i));
                if (save_marked(*m_mgr, name, "mark"))
                    saved.push_back(name);
                else
                    error = m_mgr->get_last_error();
            }
        }
        m_mgr = fresh_manager();
        const NAMES found = custom_names(*m_mgr);
        NAMES whole;
        for (const std::string& name : found) {
            if (stored_text(*m_mgr, name) == expected_text(name, "mark"))
                whole.push_back(name);
        }
        const bool is_sound = GFPDB_EMBEDDED_MGR::instance().store().check_integrity();
        GFPDB_MGR::set_db_custom_dir(m_place->db_dir());
        fresh_manager();
        if (is_mounted)
            ::umount2(directory.c_str(), MNT_DETACH);

        QVERIFY(is_sound);
        QVERIFY(!saved.empty());
        QCOMPARE(found, saved);
        QCOMPARE(whole, saved);
        if (is_mounted)
            QVERIFY2(error.find("There is no room for the database " + directory) == 0, error.c_str());
    }

    void changes_fail_when_the_directory_is_gone()
    {
        m_mgr = fresh_manager();
        QVERIFY(save_marked(*m_mgr, "A", "1"));
        const QString moved = QString::fromStdString(m_place->path("moved"));
        QVERIFY(QDir().rename(QString::fromStdString(m_place->db_dir()), moved));

        for (int i = 0; i < 4; ++i)
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("replaced or removed|does not exist")));
        QVERIFY(!m_mgr->delete_flash("A", m_place->db_dir()));
        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "A"), m_place->db_dir()));
        QVERIFY(!QFile::exists(QString::fromStdString(m_place->db_dir())));
        QVERIFY(QDir().rename(moved, QString::fromStdString(m_place->db_dir())));
        QCOMPARE(stored_text(*m_mgr, "A"), expected_text("A", "1"));
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
    }

    void changes_fail_once_when_the_file_was_replaced()
    {
        m_mgr = fresh_manager();
        QVERIFY(save_marked(*m_mgr, "A", "1"));
        QVERIFY(QFile::copy(QString::fromStdString(m_place->db_file()), QString::fromStdString(m_place->path("copy"))));
        QVERIFY(save_marked(*m_mgr, "B", "1"));
        QCOMPARE(std::rename(m_place->path("copy").c_str(), m_place->db_file().c_str()), 0);
        const std::string before = read_file(m_place->db_file());

        expect_warning("was replaced or removed by another program");
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "C"), std::string());
        expect_warning("was replaced or removed by another program while it was in use");
        QVERIFY(!m_mgr->delete_flash("A", m_place->db_dir()));
        QCOMPARE(read_file(m_place->db_file()), before);
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        QVERIFY(save_marked(*m_mgr, "C", "1"));
        QCOMPARE(custom_names(*m_mgr), NAMES{"C"});
    }

private:
    void set_up() override { write_file(m_place->settings(), "[database]\nbusy_timeout=60000\n"); }

    void kill_a_worker(REPORT& report)
    {
        QProcess worker;
        start(worker, *m_place, {QStringLiteral("work")});
        QByteArray said;
        const int lines = QRandomGenerator::global()->bounded(MOST_LINES);
        while (said.count('\n') < lines) {
            QVERIFY(worker.waitForReadyRead());
            said += worker.readAllStandardOutput();
        }
        ::usleep(useconds_t(QRandomGenerator::global()->bounded(LONGEST_DELAY_US)));
        QCOMPARE(::kill(pid_t(worker.processId()), SIGKILL), 0);
        QVERIFY(worker.waitForFinished());
        QCOMPARE(worker.exitStatus(), QProcess::CrashExit);

        said += worker.readAllStandardOutput();
        for (const QByteArray& line : said.split('\n')) {
            QVERIFY2(!line.startsWith("not-"), line.constData());
            if (!line.isEmpty())
                report.add(line);
        }
        m_kills_within_a_change += report.is_within_a_change();
    }

    // Everything that was reported is there whole; what was going on happened whole or not at all.
    void verify_all(REPORT& report)
    {
        m_mgr = fresh_manager();
        QCOMPARE(GFPDB_HELPER::get_database_problem(), std::string());
        QVERIFY(GFPDB_EMBEDDED_MGR::instance().store().check_integrity());
        for (int i = 0; i < NAME_COUNT; ++i) {
            const std::string name = "Name " + std::to_string(i);
            const std::string text = stored_text(*m_mgr, name);
            QVERIFY2(report.allows(name, text), (name + " is\n" + text).c_str());
        }
        if (!report.is_within_a_change())
            return;
        const std::string name = report.pending_name();
        const bool has_happened = stored_text(*m_mgr, name) == text_for(name, report.pending_mark());
        if (!has_happened && !report.renamed().empty())
            undo_rename(report);
        report.settle(name, has_happened ? report.pending_mark() : report.mark(name));
    }

    // The old name is gone and the new one is not there yet: the history has the old record.
    void undo_rename(const REPORT& report)
    {
        const std::string name = report.renamed();
        const std::vector<GFPDB_HISTORY_ENTRY> entries = GFPDB_EMBEDDED_MGR::instance().store().get_history();
        QVERIFY(!entries.empty());
        QCOMPARE(entries.back().row.name, name);
        QVERIFY(m_mgr->restore_flash(entries.back().id, std::string(), GFPDB_RESTORE_KEEP, std::string()));
        QCOMPARE(stored_text(*m_mgr, name), expected_text(name, report.mark_before_rename()));
        QVERIFY(m_mgr->delete_flash(name, std::string()));
        ++m_undone_renames;
    }

    int m_kills_within_a_change = 0;
    int m_undone_renames = 0;
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QByteArray directory = qgetenv("GFPDB_TEST_DIR");
    if (!directory.isEmpty())
        GFPDB_MGR::set_db_custom_dir(directory.toStdString());
    if (arguments.value(1) == QLatin1String("work"))
        return work();
    if (arguments.value(1) == QLatin1String("fill"))
        return fill(arguments.value(2).toStdString(), arguments.value(3).toInt());
    TEST_DURABILITY test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_durability.moc"
