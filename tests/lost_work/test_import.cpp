// SPDX-License-Identifier: MIT

// Record files through the import's window into the real database: what is shown first, and what then is stored.
#include "lost_work_test.h"

#include "database/import_dialog.h"
#include "fault_injector.h"

#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSemaphore>
#include <QTimer>

#include <atomic>
#include <cerrno>

namespace {

constexpr const char* SOURCE = "MX25L25645G";
constexpr int MANY = 1000;
// Nobody waits so long.
constexpr int LIMIT_MS = 30000;

} // namespace

class TEST_IMPORT : public LOST_WORK_TEST
{
    Q_OBJECT

private:
    void take_down() override
    {
        FAULT_INJECTOR::stop();
        m_import.reset();
        m_database.reset();
    }

    template <typename WIDGET>
    WIDGET& in_dialog(const char* name) const
    {
        auto* const found = m_import->findChild<WIDGET*>(qs(name));
        if (found == nullptr)
            qFatal("no widget %s", name);
        return *found;
    }

    GFPDB_DATABASE& database()
    {
        if (m_database == nullptr)
            m_database = std::make_unique<GFPDB_DATABASE>(directory());
        return *m_database;
    }

    GFPDB_RECORD device(const std::string& name, const std::string& id = "0xC2 0x20 0x19")
    {
        static const GFPDB_RECORD MODEL = database().find_builtin({SOURCE, std::nullopt, std::nullopt}).front();
        GFPDB_RECORD record = MODEL;
        record.row.name = name;
        record.row.family = LOST_WORK_FAMILY;
        record.row.scheme = PGMIO_ACTIVE_SERIAL_X4;
        record.row.device_id = id;
        return record;
    }

    void put(const std::vector<GFPDB_RECORD>& records)
    {
        GFPDB_RECORD_FILE file;
        file.records = records;
        GFPDB_IMPORT_PLAN plan(database(), GFPDB_EXISTING::REPLACED, GFPDB_RECORD_RULES::IMPORTED);
        plan.add(file);
        QVERIFY(file.problems.empty());
        QVERIFY2(database().import(plan, [](int) { return true; }), database().get_last_error().c_str());
    }

    QString write(const QString& name, const QByteArray& content) const
    {
        QFile file(QFile::decodeName(other_directory().c_str()) + name);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(name));
        return file.fileName();
    }

    QString write(const QString& name, const std::vector<GFPDB_RECORD>& records) const
    {
        std::vector<GFPDB_RECORD> unreadable;
        return write(name, QByteArray::fromStdString(gfpdb_write_records(records, unreadable)));
    }

    void show(const QStringList& files)
    {
        m_import = std::make_unique<IMPORT_DIALOG>(database(), files, nullptr);
        m_import->show();
    }

    void wait_for_preview()
    {
        QTRY_VERIFY_WITH_TIMEOUT(!in_dialog<QProgressBar>("m_import_progress").isVisible(), 60000);
    }

    void preview(const QStringList& files)
    {
        show(files);
        m_import->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_import.get()));
        wait_for_preview();
    }

    void click_in_dialog(const char* button) const { in_dialog<QAbstractButton>(button).click(); }
    QString problem() const { return in_dialog<QLabel>("m_import_problem").text(); }
    QString summary() const { return in_dialog<QLabel>("m_import_summary").text(); }
    bool can_import() const { return in_dialog<QAbstractButton>("m_import_button").isEnabled(); }

    // "State, record, file:line, remark" of each row.
    QStringList rows_shown() const
    {
        const QAbstractItemModel& model = *in_dialog<QTableView>("m_import_table").model();
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            const auto cell = [&](int column) { return model.index(row, column).data().toString(); };
            texts += QStringLiteral("%1, %2, %3:%4, %5")
                         .arg(cell(IMPORT_MODEL::STATE), cell(IMPORT_MODEL::RECORD), cell(IMPORT_MODEL::FILE_NAME),
                              cell(IMPORT_MODEL::LINE), cell(IMPORT_MODEL::REMARK));
        }
        return texts;
    }

    // Name, ID and revision of everything that is stored.
    QStringList content()
    {
        QStringList texts;
        for (const GFPDB_HISTORY_ENTRY& entry : database().find_history({}))
            texts += QString::fromStdString(entry.reason + ' ' + entry.name());
        for (const GFPDB_RECORD& record : database().find_stored({}))
            texts += QString::fromStdString(record.name() + ' ' + record.row.device_id + ' ' + record.row.revision);
        return texts;
    }

    // Shows the preview of two records that are stored when it is imported, one of them instead of another.
    void preview_two()
    {
        put({device("Mine")});
        preview({write(qs("a.json"), {device("New"), device("Mine", "0xC2 0x20 0x18")})});
        click_in_dialog("m_replace_check");
        wait_for_preview();
    }
    // Does something when the window has its turn the next time.
    template <typename ACT>
    void later(const ACT& act) const
    {
        QMetaObject::invokeMethod(m_import.get(), act, Qt::QueuedConnection);
    }

    std::unique_ptr<GFPDB_DATABASE> m_database;
    std::unique_ptr<IMPORT_DIALOG> m_import;

private slots:
    void the_preview_says_what_becomes_of_each_record()
    {
        put({device("Same"), device("Other")});
        const QStringList before = content();
        preview({write(qs("a.json"), {device("Same"), device("New"), device("Other", "0xC2 0x20 0x18")})});

        QCOMPARE(rows_shown(), QStringList({qs("Differs, not imported, Other, a.json:877, Differs in: device ID"),
                                            qs("New, New, a.json:441, "), qs("Already exists, Same, a.json:5, ")}));
        QCOMPARE(in_dialog<QTableView>("m_import_table").currentIndex().row(), 0);
        const auto& details_text = in_dialog<QPlainTextEdit>("m_import_details");
        QVERIFY(in_dialog<QTableView>("m_import_table").height() > 2 * details_text.height());
        const QString details = details_text.toPlainText();
        m_modals.expect(MODAL_DRIVER::reject());
        click_in_dialog("m_import_compare_button");
        QCOMPARE(m_modals.last().class_name, qs("COMPARE_DIALOG"));
        QVERIFY2(details.contains(qs("device ID: stored 0xC2 0x20 0x19, in the file 0xC2 0x20 0x18")),
                 qPrintable(details));
        QCOMPARE(content(), before);
    }

    void what_differs_is_replaced_only_when_that_is_wanted_data()
    {
        rows<bool, QString, QString, QString>(
            {{"kept", false, "Differs, not imported", "0xC2 0x20 0x19", "New: 1, replaced: 0"},
             {"replaced", true, "Will be replaced", "0xC2 0x20 0x18", "New: 1, replaced: 1"}});
    }

    void what_differs_is_replaced_only_when_that_is_wanted()
    {
        const auto [replaces, state, id, told] = row<bool, QString, QString, QString>();
        put({device("Other")});
        preview({write(qs("a.json"), {device("New"), device("Other", "0xC2 0x20 0x18")})});
        if (replaces) {
            click_in_dialog("m_replace_check");
            wait_for_preview();
        }
        QVERIFY(rows_shown().first().startsWith(state));
        click_in_dialog("m_import_button");

        QVERIFY2(summary().endsWith(told), qPrintable(summary()));
        QCOMPARE(stored_names(), QStringList({qs("New"), qs("Other")}));
        QCOMPARE(stored(qs("Other")), id);
        QCOMPARE(history(), replaces ? QStringList(qs("replaced Other")) : QStringList());
        // What is left to do is to close it, and its caller hears that something is stored.
        QTest::keyClick(m_import.get(), Qt::Key_Return);
        QCOMPARE(m_import->result(), int(QDialog::Accepted));
        QVERIFY(!m_import->isVisible());
    }

    void nothing_is_stored_of_a_preview_that_is_cancelled()
    {
        preview({write(qs("a.json"), {device("New")})});
        QVERIFY(can_import());
        QTest::keyClick(m_import.get(), Qt::Key_Escape);
        QCOMPARE(m_import->result(), int(QDialog::Rejected));
        QCOMPARE(content(), QStringList());
    }

    // The content of the second file; of records, with what is replaced in it.
    void a_file_with_problems_keeps_all_files_out_data()
    {
        rows<QString, QString, QString>(
            {{"a value", "b.json", "", "Problem, devices[0].density, b.json:11, The density \"3Mx\" is not "},
             {"no JSON", "b.json", "{,", "Problem, , b.json:1, This is not valid JSON: an object needs a name "},
             {"a column", "b.csv", "name,family,scheme,colour\n",
              "Problem, colour, b.csv:1, The column is not known. "},
             {"no file", "missing.json", "-", "Problem, , missing.json:, The file cannot be read: No such file "}});
    }

    void a_file_with_problems_keeps_all_files_out()
    {
        const auto [name, text, expected] = row<QString, QString, QString>();
        GFPDB_RECORD wrong = device("Wrong");
        wrong.row.density = "3Mx";
        const QString path = QFile::decodeName(other_directory().c_str()) + name;
        if (text.isEmpty())
            write(qs("b.json"), {wrong});
        else if (text != qs("-"))
            write(name, text.toUtf8());
        preview({write(qs("a.json"), {device("Good")}), path});

        QVERIFY2(rows_shown().first().startsWith(expected), qPrintable(rows_shown().first()));
        QVERIFY(rows_shown().last().startsWith(qs("New, Good, a.json:5")));
        QCOMPARE(problem(), qs("Nothing is imported while there are problems."));
        QVERIFY(!can_import());
        QTest::keyClick(m_import.get(), Qt::Key_Return);
        QCOMPARE(content(), QStringList());
    }

    void a_name_that_is_in_two_files_is_a_problem()
    {
        const QString first = write(qs("a.json"), {device("Twice")});
        preview({first, write(qs("b.json"), {device("twice")}), first});
        QCOMPARE(rows_shown(),
                 QStringList({qs("Problem, , b.json:5, The device \"twice\" is already in ") + first + qs(":5."),
                              qs("New, Twice, a.json:5, ")}));
        click_in_dialog("m_replace_check");
        wait_for_preview();
        QCOMPARE(rows_shown().size(), 2);
    }

    void family_and_mode_are_chosen_for_a_list_without_them()
    {
        preview({write(qs("a.csv"), "name,device_id,voltage,density\nListed,0xC2 0x20 0x19,3.3V,256Mb\n")});
        QCOMPARE(rows_shown().size(), 2);
        QVERIFY(!can_import());

        for (const auto& [name, value] : {std::pair<const char*, int>{"m_import_family_combo", LOST_WORK_FAMILY},
                                          {"m_import_mode_combo", PGMIO_ACTIVE_SERIAL_X4}}) {
            auto& combo = in_dialog<QComboBox>(name);
            combo.setCurrentIndex(combo.findData(value));
            emit combo.activated(combo.currentIndex());
            wait_for_preview();
        }
        QVERIFY2(can_import(), qPrintable(problem()));
        QVERIFY(rows_shown().first().startsWith(qs("Warning, device \"Listed\": ")));
        click_in_dialog("m_import_button");
        QCOMPARE(stored(qs("Listed"), "family").toInt(), LOST_WORK_FAMILY);
        QCOMPARE(stored(qs("Listed"), "scheme").toInt(), int(PGMIO_ACTIVE_SERIAL_X4));
    }

    void a_change_of_another_user_is_shown_before_anything_is_stored()
    {
        put({device("Mine")});
        preview({write(qs("a.json"), {device("New"), device("Mine", "0xC2 0x20 0x18")})});
        click_in_dialog("m_replace_check");
        wait_for_preview();
        run_foreign(qs("UPDATE device SET density = '64Mb', revision = 'theirs'"));
        const QStringList before = content();

        click_in_dialog("m_import_button");
        wait_for_preview();
        QVERIFY2(problem().startsWith(qs("Nothing was imported: The device \"Mine\" was changed by ")),
                 qPrintable(problem()));
        QCOMPARE(content(), before);
        QVERIFY2(rows_shown().first().endsWith(qs("Differs in: device ID, density")), qPrintable(rows_shown().first()));
        click_in_dialog("m_import_button");
        QCOMPARE(stored(qs("Mine")), qs("0xC2 0x20 0x18"));
        QCOMPARE(stored_names(), QStringList({qs("Mine"), qs("New")}));
    }

    void an_import_that_fails_on_its_way_stores_nothing()
    {
        put({device("Mine")});
        const QStringList before = content();
        std::vector<GFPDB_RECORD> records = {device("Mine", "0xC2 0x20 0x18")};
        for (int number = 0; number < 3; ++number)
            records.push_back(device("New " + std::to_string(number)));
        preview({write(qs("a.json"), records)});
        click_in_dialog("m_replace_check");
        wait_for_preview();

        int failures = 0;
        for (;; ++failures) {
            FAULT_INJECTOR::inject(directory(), {FAULT_CALL::WRITE, failures + 1, ENOSPC, true});
            click_in_dialog("m_import_button");
            FAULT_INJECTOR::stop();
            if (summary().startsWith(qs("Imported into ")))
                break;
            wait_for_preview();
            QVERIFY2(problem().startsWith(qs("Nothing was imported: ")), qPrintable(problem()));
            QCOMPARE(content(), before);
            QVERIFY(can_import());
        }
        QVERIFY(failures > 3);
        QCOMPARE(stored_names().size(), 4);
        QCOMPARE(history(), QStringList(qs("replaced Mine")));
    }

    void the_window_can_be_used_while_many_records_are_read()
    {
        std::vector<GFPDB_RECORD> records;
        for (int number = 0; number < MANY; ++number)
            records.push_back(device("Device " + std::to_string(number)));
        show({write(qs("a.json"), records)});
        QCoreApplication::processEvents();
        QVERIFY(!can_import());
        QTest::keyClick(m_import.get(), Qt::Key_Return);
        QVERIFY(in_dialog<QProgressBar>("m_import_progress").isVisible());
        QTest::keyClick(m_import.get(), Qt::Key_Escape);
        QVERIFY(!m_import->isVisible());
        QCOMPARE(content(), QStringList());
    }

    void the_window_lives_while_a_file_is_read_data() { rows<bool>({{"to its end", false}, {"cancelled", true}}); }

    void the_window_lives_while_a_file_is_read()
    {
        const auto is_cancelled = row<bool>();
        const QString file = write(qs("a.json"), {device("New")});
        QSemaphore release;
        std::atomic<bool> is_held{false};
        std::atomic<bool> is_released{false};
        FAULT_INJECTOR::run_after(other_directory(), FAULT_CALL::READ, 1, [&] {
            is_held = true;
            is_released = release.tryAcquire(1, LIMIT_MS);
        });
        show({file});
        QTRY_VERIFY(is_held);
        QCOMPARE(summary(), qs("The files are being read."));
        QVERIFY(in_dialog<QProgressBar>("m_import_progress").isVisible());
        if (is_cancelled)
            QTest::keyClick(m_import.get(), Qt::Key_Escape);
        QCOMPARE(m_import->isVisible(), !is_cancelled);
        release.release();
        if (is_cancelled)
            m_import.reset();
        else
            wait_for_preview();
        QVERIFY(is_released);
    }

    void the_window_lives_while_it_stores()
    {
        preview_two();
        int disturbances = 0;
        QTimer other;
        connect(&other, &QTimer::timeout, this, [&] {
            if (summary() == qs("The records are being stored."))
                ++disturbances;
        });
        other.start(0);
        bool is_seen = false;
        in_dialog<QAbstractButton>("m_import_button").setFocus();
        later([&] {
            is_seen = in_dialog<QProgressBar>("m_import_progress").isVisible();
            // A key that is held down goes on, and a row that is looked at offers no dialog.
            QTest::keyClick(m_import->focusWidget(), Qt::Key_Return);
            in_dialog<QTableView>("m_import_table").selectRow(1);
            in_dialog<QTableView>("m_import_table").selectRow(0);
            QVERIFY(!in_dialog<QAbstractButton>("m_import_compare_button").isEnabled());
        });
        click_in_dialog("m_import_button");
        QVERIFY(is_seen);
        QCOMPARE(disturbances, 0);
        QVERIFY2(summary().endsWith(qs("New: 1, replaced: 1")), qPrintable(summary()));
    }

    void an_import_is_cancelled_while_it_stores()
    {
        preview_two();
        const QStringList before = content();
        later([this] { QTest::keyClick(m_import.get(), Qt::Key_Escape); });
        click_in_dialog("m_import_button");
        QVERIFY(m_import->isVisible());
        QCOMPARE(problem(), qs("Nothing was imported: you have cancelled it."));
        QCOMPARE(content(), before);

        QVERIFY(can_import());
        click_in_dialog("m_import_button");
        QCOMPARE(stored_names(), QStringList({qs("Mine"), qs("New")}));
        QTest::keyClick(m_import.get(), Qt::Key_Escape);
        QCOMPARE(m_import->result(), int(QDialog::Accepted));
    }

    // It was meant for the button that was there then.
    void a_click_that_comes_with_the_end_closes_nothing()
    {
        preview_two();
        bool is_clicked = false;
        FAULT_INJECTOR::run_after(directory(), FAULT_CALL::SYNC, 1, [&] {
            later([&] {
                is_clicked = true;
                QTest::keyClick(m_import.get(), Qt::Key_Escape);
            });
        });
        click_in_dialog("m_import_button");
        QVERIFY(is_clicked);
        QVERIFY(m_import->isVisible());
        QVERIFY(summary().startsWith(qs("Imported into ")));
    }

    void a_database_that_cannot_be_written_says_so_at_once()
    {
        put({device("Mine")});
        const QString file = write(qs("a.json"), {device("New")});
        run_foreign(qs("UPDATE meta SET value = '99' WHERE name = 'schema_version'"));
        m_database.reset();
        preview({file});
        QVERIFY(!can_import());
        QVERIFY(!problem().isEmpty());
    }
};

LOST_WORK_TEST_MAIN(TEST_IMPORT)

#include "test_import.moc"
