// SPDX-License-Identifier: MIT

// The page of the history: what it lists, finds and compares, and that a long history is read a page at a time.
#include "database/compare_dialog.h"
#include "database/history_page.h"
#include "lost_work_test.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QDateTime>
#include <QLabel>
#include <QScrollBar>
#include <QTextDocument>

class TEST_HISTORY_PAGE : public LOST_WORK_TEST
{
    Q_OBJECT

private slots:
    void states_are_listed_with_who_when_and_what()
    {
        qputenv("USER", "anna");
        store("Mine", "0x01");
        store("Mine", "0x02");
        QVERIFY(manager().delete_flash("Mine", directory()));
        run_foreign(qs("UPDATE history SET changed_at = '2024-05-17T09:30:00Z' WHERE id = 1"));
        open_page();

        QCOMPARE(column(HISTORY_MODEL::NUMBER), (QStringList{qs("2"), qs("1")}));
        QCOMPARE(column(HISTORY_MODEL::CHANGE), (QStringList{qs("Deleted"), qs("Changed")}));
        QCOMPARE(column(HISTORY_MODEL::KIND), (QStringList{qs("Device"), qs("Device")}));
        QCOMPARE(column(HISTORY_MODEL::NAME), (QStringList{qs("Mine"), qs("Mine")}));
        QCOMPARE(column(HISTORY_MODEL::MODE).first(), qs("Active Serial x4"));
        QVERIFY(column(HISTORY_MODEL::USER).first().startsWith(qs("anna@")));
        const QDateTime time = QDateTime::fromString(qs("2024-05-17T09:30:00Z"), Qt::ISODate).toLocalTime();
        QCOMPARE(column(HISTORY_MODEL::WHEN).last(), time.toString(qs("yyyy-MM-dd HH:mm:ss")));
        QCOMPARE(count(), qs("States: 2"));
        const QAbstractItemModel& model = *table().model();
        QVERIFY(model.index(0, HISTORY_MODEL::CHANGE).data(Qt::ToolTipRole).toString().contains(qs("was deleted")));
        for (const int missing : {-1, int(HISTORY_MODEL::COLUMNS)})
            QVERIFY(!model.headerData(missing, Qt::Horizontal).isValid());
    }

    void a_filter_finds_names_users_and_kinds_data()
    {
        rows<QString, QString, QString, QStringList>({{"a part of a name", "INE", "", "", {"Mine", "Mine"}},
                                                      {"a user", "", "bert", "", {"Other"}},
                                                      {"templates", "", "", "Templates", {"T"}},
                                                      {"devices", "", "", "Devices", {"Other", "Mine", "Mine"}},
                                                      {"nothing", "zzz", "", "", {}}});
    }

    void a_filter_finds_names_users_and_kinds()
    {
        const auto [name, user, kind, expected] = row<QString, QString, QString, QStringList>();
        make_history();
        open_page();
        QCOMPARE(count(), qs("States: 4"));

        child<QLineEdit>("m_history_name_edit").setText(name);
        child<QLineEdit>("m_history_user_edit").setText(user);
        if (!kind.isEmpty())
            child<QComboBox>("m_history_kind_combo").setCurrentText(kind);

        QTRY_VERIFY(!count().contains(qs("searching")));
        QCOMPARE(column(HISTORY_MODEL::NAME), expected);
        QCOMPARE(count(), qs("States: %1").arg(expected.size()));
    }

    void a_long_history_is_read_as_it_is_scrolled()
    {
        make_long_history(2000);
        open_page();

        const int first = table().model()->rowCount();
        QVERIFY(first > 0 && first < 1000);
        QCOMPARE(count(), qs("States: ") + QLocale().toString(2000));
        table().verticalScrollBar()->setValue(table().verticalScrollBar()->maximum());
        QTRY_VERIFY(table().model()->rowCount() > first);
        while (table().model()->canFetchMore(QModelIndex()))
            table().model()->fetchMore(QModelIndex());
        const QStringList numbers = column(HISTORY_MODEL::NUMBER);
        QCOMPARE(numbers.size(), 2000);
        QCOMPARE(numbers.first(), qs("2000"));
        QCOMPARE(numbers.last(), qs("1"));
    }

    // One look is not enough, and the window has its turn between two.
    void a_rare_name_is_found_in_a_long_history()
    {
        make_long_history(25000);
        run_foreign(qs("UPDATE history SET name = 'Needle', name_key = 'needle' WHERE id = 3"));
        open_page();

        child<QLineEdit>("m_history_name_edit").setText(qs("need"));

        QCOMPARE(table().model()->rowCount(), 0);
        QVERIFY(count().contains(qs("searching")));
        QTRY_COMPARE(column(HISTORY_MODEL::NUMBER), QStringList{qs("3")});
        QTRY_COMPARE(count(), qs("States: 1"));
    }

    void states_are_compared_data()
    {
        rows<int, QByteArray, QString, QString>(
            {{"with the next one", 1, "m_compare_after_action", "Mine, state 1", "Mine, state 3"},
             {"the last one with what came of it", 3, "m_compare_after_action", "Mine, state 3", "Mine, now"},
             {"with the one before", 3, "m_compare_before_action", "Mine, state 1", "Mine, state 3"},
             {"with the current one", 1, "m_compare_current_action", "Mine, state 1", "Mine, now"}});
    }

    // Between them is one of a device of that name in another mode.
    void states_are_compared()
    {
        const auto [id, action, left, right] = row<int, QByteArray, QString, QString>();
        store("Mine", "0x01");
        store("Other");
        store("Mine", "0x02");
        store("Other", "0x02");
        store("Mine", "0x03");
        run_foreign(qs("UPDATE history SET name = 'Mine', name_key = 'mine', scheme = 7 WHERE id = 2"));
        open_page();
        select(id);

        QCOMPARE(compared(action), (QStringList{left, right}));
    }

    void two_selected_states_are_compared()
    {
        make_history();
        open_page();
        select(2);
        QVERIFY(!child<QAction>("m_compare_selected_action").isEnabled());
        table().selectionModel()->select(table().model()->index(3, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);

        QVERIFY(!child<QAction>("m_compare_before_action").isEnabled());
        QVERIFY(!child<QAction>("m_bring_back_action").isEnabled());
        QCOMPARE(compared(QByteArrayLiteral("m_compare_selected_action")),
                 (QStringList{qs("Mine, state 1"), qs("Mine, state 2")}));
    }

    void what_there_is_nothing_to_compare_with_is_said_data()
    {
        rows<QByteArray, QString>(
            {{"before", "m_compare_before_action", "There is no state before this one."},
             {"after", "m_compare_after_action", "There is no state after this one: it was deleted or renamed."},
             {"now", "m_compare_current_action", "There is no current state: it was deleted or renamed."}});
    }

    void what_there_is_nothing_to_compare_with_is_said()
    {
        const auto [action, expected] = row<QByteArray, QString>();
        store("Mine");
        QVERIFY(manager().delete_flash("Mine", directory()));
        open_page();
        select(1);

        child<QAction>(action.constData()).trigger();

        QCOMPARE(problem(), expected);
    }

    void a_database_that_cannot_be_read_says_so_and_is_read_again()
    {
        make_history();
        lock(qs("EXCLUSIVE"));
        open_page();
        QVERIFY2(problem().contains(qs("locked")), qPrintable(problem()));
        QCOMPARE(table().model()->rowCount(), 0);

        unlock();
        m_page->refresh();

        QCOMPARE(table().model()->rowCount(), 4);
        QCOMPARE(problem(), QString());
    }

    void the_selected_state_stays_selected()
    {
        make_history();
        open_page();
        select(2);
        store("Other", "0x09");
        QVERIFY(manager().delete_flash("Other", directory()));

        m_page->refresh();

        QCOMPARE(table().model()->rowCount(), 5);
        QCOMPARE(table().currentIndex().siblingAtColumn(HISTORY_MODEL::NUMBER).data().toString(), qs("2"));
    }

    // Somebody stores, while an old state is looked at.
    void a_state_far_down_stays_selected_and_in_sight()
    {
        make_long_history(1000);
        open_page();
        while (table().model()->canFetchMore(QModelIndex()))
            table().model()->fetchMore(QModelIndex());
        select(300);
        table().scrollTo(table().currentIndex());
        table().selectionModel()->select(table().model()->index(800, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
        store("Mine", "0x03");

        m_page->refresh();

        QCOMPARE(table().model()->index(0, HISTORY_MODEL::NUMBER).data().toString(), qs("1001"));
        QCOMPARE(table().currentIndex().siblingAtColumn(HISTORY_MODEL::NUMBER).data().toString(), qs("300"));
        QCOMPARE(table().selectionModel()->selectedRows().size(), 2);
        QVERIFY(table().viewport()->rect().intersects(table().visualRect(table().currentIndex())));
    }

    void a_name_is_no_markup()
    {
        store("Mine", "0x01");
        store("Mine", "0x02");
        run_foreign(qs("UPDATE history SET name = '<b>Mine</b>'"));
        open_page();

        const QModelIndex name = table().model()->index(0, HISTORY_MODEL::NAME);
        QCOMPARE(name.data().toString(), qs("<b>Mine</b>"));
        QTextDocument tip;
        tip.setHtml(name.data(Qt::ToolTipRole).toString());
        QCOMPARE(tip.toPlainText(), qs("<b>Mine</b>"));
    }

    void the_table_follows_the_rules_of_models()
    {
        make_long_history(600);
        open_page();
        const QAbstractItemModelTester tester(table().model(), QAbstractItemModelTester::FailureReportingMode::QtTest);

        child<QLineEdit>("m_history_name_edit").setText(qs("mine"));
        QTRY_VERIFY(!count().contains(qs("searching")));
        while (table().model()->canFetchMore(QModelIndex()))
            table().model()->fetchMore(QModelIndex());
        QCOMPARE(table().model()->rowCount(), 600);
        QVERIFY(!table().model()->data(QModelIndex(), Qt::DisplayRole).isValid());
    }

    void return_shows_what_a_change_was()
    {
        make_history();
        open_page();
        select(1);

        m_modals.expect(MODAL_DRIVER::reject());
        QTest::keyClick(&table(), Qt::Key_Return);

        QCOMPARE(m_modals.met().size(), 1);
        QCOMPARE(m_modals.last().title, qs("Compare"));
    }

private:
    void take_down() override
    {
        m_page.reset();
        m_database.reset();
    }

    void open_page()
    {
        m_page.reset();
        m_database = std::make_unique<GFPDB_DATABASE>(directory());
        m_page = std::make_unique<HISTORY_PAGE>(*m_database);
        m_page->resize(900, 500);
        m_page->show();
        m_page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    }

    template <typename PART>
    PART& child(const char* name)
    {
        auto* found = m_page->findChild<PART*>(qs(name));
        if (found == nullptr)
            qFatal("the page has no %s", name);
        return *found;
    }
    QTableView& table() { return child<QTableView>("m_history_table"); }
    QString count() { return child<QLabel>("m_history_count_label").text(); }
    QString problem() { return child<QLabel>("m_history_problem").text(); }
    QStringList column(int column)
    {
        QStringList texts;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            texts.append(table().model()->index(row, column).data().toString());
        return texts;
    }
    void select(int id)
    {
        const int row = column(HISTORY_MODEL::NUMBER).indexOf(QString::number(id));
        QVERIFY(row >= 0);
        table().selectRow(row);
        table().setFocus();
    }

    // The titles of the two sides of the comparison that `action` opens, without their times.
    QStringList compared(const QByteArray& action)
    {
        QStringList titles;
        m_modals.expect([&titles](QWidget* window) {
            const QAbstractItemModel& model = *window->findChild<QTableView*>(qs("m_compare_table"))->model();
            for (const int side : {COMPARE_MODEL::LEFT, COMPARE_MODEL::RIGHT})
                titles.append(model.headerData(side, Qt::Horizontal).toString().section(qs(" (until"), 0, 0));
            qobject_cast<QDialog*>(window)->reject();
        });
        child<QAction>(action.constData()).trigger();
        return titles;
    }

    // "Mine" twice and the template "T" by Anna, then "Other" by Bert.
    void make_history()
    {
        qputenv("USER", "anna");
        store("Mine", "0x01");
        store("Mine", "0x02");
        store("Mine", "0x03");
        run_foreign(qs("INSERT INTO history SELECT 3, 1, 'deleted', changed_at, family, scheme, name, device_id, "
                       "voltage, density, total_die, single_io_dummy_clock, quad_io_dummy_clock, 'T', flow_template, "
                       "revision, saved_at, single_flows, quad_flows, changed_by, 't', saved_by FROM history WHERE "
                       "id = 2"));
        qputenv("USER", "bert");
        store("Other");
        QVERIFY(manager().delete_flash("Other", directory()));
    }

    void make_long_history(int states)
    {
        store("Mine", "0x01");
        store("Mine", "0x02");
        run_foreign(qs("INSERT INTO history WITH RECURSIVE numbers (n) AS (SELECT 2 UNION ALL SELECT n + 1 FROM "
                       "numbers WHERE n < %1) SELECT n, is_template, reason, changed_at, family, scheme, name, "
                       "device_id, voltage, density, total_die, single_io_dummy_clock, quad_io_dummy_clock, "
                       "template_name, flow_template, revision, saved_at, '', '', changed_by, name_key, saved_by "
                       "FROM numbers, history WHERE id = 1")
                        .arg(states));
    }

    std::unique_ptr<GFPDB_DATABASE> m_database;
    std::unique_ptr<HISTORY_PAGE> m_page;
};

LOST_WORK_TEST_MAIN(TEST_HISTORY_PAGE)

#include "test_history_page.moc"
