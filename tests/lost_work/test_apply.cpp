// SPDX-License-Identifier: MIT

// What Apply, OK and Delete do to the records of the real database: nothing that the user did not mean.
#include "lost_work_test.h"

namespace {

constexpr const char* BUILTIN_PART = "MX25L25645G";

} // namespace

class TEST_APPLY : public LOST_WORK_TEST
{
    Q_OBJECT

private:
    // Clicks the button, and OK in the one box that opens; what the box says.
    QString click_and_read(const char* button_name);
    // What Return in the name field says.
    QString return_in_name();
    // Makes the stored record "Mine" one that the rules refuse, as another version of the program may have stored it.
    void give_mine_a_refused_name() const;

private slots:
    void an_apply_is_one_entry_of_the_history();
    void a_rename_is_one_entry_of_the_history();
    void saving_an_unchanged_device_adds_no_state();
    void a_device_that_became_a_template_stays_unchanged_likewise();
    void opening_and_saving_changes_no_value_data();
    void opening_and_saving_changes_no_value();
    void a_device_whose_save_fails_is_put_back();
    void a_locked_database_keeps_the_device_and_the_form();
    void a_device_that_could_not_be_read_is_not_replaced();
    void a_device_that_can_be_read_again_is_replaced();
    void a_rename_can_change_only_case();
    void a_new_device_cannot_take_a_name_in_another_case();
    void the_box_names_the_stored_spelling();
    void an_unchanged_name_is_told_as_the_device_that_it_is();
    void a_template_name_that_differs_only_in_case_deletes_nothing();
    void a_custom_device_with_the_name_of_a_part_is_the_users_own_data();
    void a_custom_device_with_the_name_of_a_part_is_the_users_own();
    void a_new_device_cannot_take_the_name_of_a_part();
    void a_message_that_fails_to_save_keeps_the_flows();
    void the_new_device_row_is_not_the_device_shown_before_data();
    void the_new_device_row_is_not_the_device_shown_before();
    void the_name_of_an_unreadable_device_that_is_gone_is_free();
    void no_name_is_free_while_the_database_cannot_be_read();
    void a_mode_without_devices_is_accepted();
};

QString TEST_APPLY::click_and_read(const char* button_name)
{
    m_modals.expect(MODAL_DRIVER::accept());
    click(button_name);
    return m_modals.met().isEmpty() ? QString() : m_modals.last().text;
}

QString TEST_APPLY::return_in_name()
{
    m_modals.expect(MODAL_DRIVER::accept());
    QTest::keyClick(&part("m_device_name_edit"), Qt::Key_Return);
    return m_modals.met().isEmpty() ? QString() : m_modals.last().text;
}

void TEST_APPLY::give_mine_a_refused_name() const
{
    run_foreign(qs("UPDATE device SET name = 'Mine ', name_key = 'mine ' WHERE name = 'Mine'"));
}

void TEST_APPLY::an_apply_is_one_entry_of_the_history()
{
    store("Mine");
    open("Mine");
    type("m_device_id_edit", qs("0x01"));

    click("m_apply_button");

    QCOMPARE(stored(qs("Mine")), qs("0x01"));
    QCOMPARE(history(), QStringList{qs("replaced Mine")});
}

void TEST_APPLY::a_rename_is_one_entry_of_the_history()
{
    store("Mine");
    open("Mine");
    type("m_device_name_edit", qs("Yours"));

    click("m_apply_button");

    QCOMPARE(stored_names(), QStringList{qs("Yours")});
    QCOMPARE(history(), QStringList{qs("replaced Mine")});
}

void TEST_APPLY::saving_an_unchanged_device_adds_no_state()
{
    store("Mine");
    const QString revision = stored(qs("Mine"), "revision");
    open("Mine");

    click("m_apply_button");
    click("m_ok_button");

    QCOMPARE(stored_names(), QStringList{qs("Mine")});
    QCOMPARE(stored(qs("Mine"), "revision"), revision);
    QCOMPARE(history(), QStringList());
}

void TEST_APPLY::a_device_that_became_a_template_stays_unchanged_likewise()
{
    store("Mine");
    open("Mine");
    part<QCheckBox>("m_save_template_check").setChecked(true);
    type("m_template_name_edit", qs("Mine as a template"));
    click("m_apply_button");
    const QStringList states = history();

    click("m_apply_button");

    QCOMPARE(history(), states);
    QCOMPARE(stored(qs("Mine"), "template_name"), qs("Mine as a template"));
}

void TEST_APPLY::opening_and_saving_changes_no_value_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("value");

    QTest::newRow("a range that no list has") << qs("voltage") << qs("2.75-3.45V");
    QTest::newRow("a listed voltage in another case") << qs("voltage") << qs("3.3v");
    QTest::newRow("a density that no list has") << qs("density") << qs("96Mb");
    QTest::newRow("a listed density in another case") << qs("density") << qs("128MB");
    QTest::newRow("a template that is gone") << qs("flow_template") << qs("Removed");
    QTest::newRow("an ID in another form") << qs("device_id") << qs("c2,20,19");
    QTest::newRow("a voltage of no list") << qs("voltage") << qs("4.5-5.5V");
    QTest::newRow("a density of no list") << qs("density") << qs("96Mb");
}

void TEST_APPLY::opening_and_saving_changes_no_value()
{
    QFETCH(const QString, column);
    QFETCH(const QString, value);
    store("Mine");
    run_foreign(qs("UPDATE device SET %1 = '%2'").arg(column, value));
    open("Mine");

    click("m_ok_button");

    QVERIFY(!dlg().isVisible());
    QCOMPARE(stored(qs("Mine"), column.toLatin1().constData()), value);
    QCOMPARE(history(), QStringList());
}

void TEST_APPLY::a_device_whose_save_fails_is_put_back()
{
    store("Mine");
    give_mine_a_refused_name();
    open("Mine ");
    type("m_device_id_edit", qs("0x01"));

    QVERIFY(click_and_read("m_apply_button").contains(qs("20439")));

    QCOMPARE(stored_names(), QStringList{qs("Mine ")});
    QCOMPARE(stored(qs("Mine ")), qs("0xC2 0x20 0x19"));
    QCOMPARE(history(), QStringList{qs("put back Mine ")});
    // The user corrects the name and tries again.
    type("m_device_name_edit", qs("Mine"));
    click("m_apply_button");
    QCOMPARE(stored_names(), QStringList{qs("Mine")});
    QCOMPARE(stored(qs("Mine")), qs("0x01"));
}

void TEST_APPLY::a_locked_database_keeps_the_device_and_the_form()
{
    store("Mine");
    open("Mine");
    type("m_device_id_edit", qs("0x01"));
    lock();

    QVERIFY(click_and_read("m_apply_button").contains(qs("20439")));
    unlock();

    QCOMPARE(text("m_device_id_edit"), qs("0x01"));
    QCOMPARE(stored(qs("Mine")), qs("0xC2 0x20 0x19"));
    QCOMPARE(history(), QStringList());
}

// The form keeps the values of the device that was shown before; they must not take the place of the other one.
void TEST_APPLY::a_device_that_could_not_be_read_is_not_replaced()
{
    store("Broken", "0xEF 0x40 0x18");
    store("Mine");
    run_foreign(qs("UPDATE device SET single_flows = '{' WHERE name = 'Broken'"));
    open("Mine");
    click_row(qs("Broken"));
    type("m_device_name_edit", qs("Fresh"));

    QVERIFY(click_and_read("m_apply_button").contains(qs("20439")));

    QCOMPARE(stored_names(), (QStringList{qs("Broken"), qs("Mine")}));
    QCOMPARE(stored(qs("Broken")), qs("0xEF 0x40 0x18"));
    QCOMPARE(history(), QStringList());
}

void TEST_APPLY::a_device_that_can_be_read_again_is_replaced()
{
    store("Broken", "0xEF 0x40 0x18");
    store("Mine");
    const QString flows = stored(qs("Broken"), "single_flows");
    run_foreign(qs("UPDATE device SET single_flows = '{', revision = 'x' WHERE name = 'Broken'"));
    open("Mine");
    click_row(qs("Broken"));
    run_foreign(qs("UPDATE device SET single_flows = '%1', revision = 'y' WHERE name = 'Broken'").arg(flows));

    click_row(qs("Mine"));
    click_row(qs("Broken"));
    type("m_device_id_edit", qs("0x01"));
    click("m_apply_button");

    QCOMPARE(stored(qs("Broken")), qs("0x01"));
}

void TEST_APPLY::a_rename_can_change_only_case()
{
    store("Mine");
    open("Mine");
    type("m_device_name_edit", qs("MINE"));

    click("m_apply_button");

    QCOMPARE(stored_names(), QStringList{qs("MINE")});
    QCOMPARE(current_row(), qs("MINE"));
}

void TEST_APPLY::a_new_device_cannot_take_a_name_in_another_case()
{
    store("Mine");
    open("Mine");
    click_row(qs("<<new device>>"));
    type("m_device_name_edit", qs("MINE"));
    type("m_device_id_edit", qs("0x01"));
    type("m_total_die_edit", qs("1"));

    const QString told = click_and_read("m_apply_button");

    QVERIFY2(told.contains(qs("\"Mine\"")), qPrintable(told));
    QCOMPARE(stored_names(), QStringList{qs("Mine")});
    QCOMPARE(stored(qs("Mine")), qs("0xC2 0x20 0x19"));
}

void TEST_APPLY::the_box_names_the_stored_spelling()
{
    store("Mine");
    store("Other");
    open("Other");
    type("m_device_name_edit", qs("mINE"));

    const QString told = return_in_name();

    QVERIFY2(told.contains(qs("\"Mine\"")), qPrintable(told));
    QVERIFY2(told.contains(qs("case")), qPrintable(told));
}

void TEST_APPLY::an_unchanged_name_is_told_as_the_device_that_it_is()
{
    store("Mine");
    open("Mine");

    const QString told = return_in_name();

    QVERIFY2(told.contains(qs("\"Mine\"")), qPrintable(told));
    QVERIFY2(told.contains(qs("the one that is shown")), qPrintable(told));
}

void TEST_APPLY::a_template_name_that_differs_only_in_case_deletes_nothing()
{
    store("Mine");
    open("Mine");
    type("m_device_name_edit", qs("Yours"));
    part<QCheckBox>("m_save_template_check").setChecked(true);
    type("m_template_name_edit", qs("YOURS"));

    const QString told = click_and_read("m_apply_button");

    QVERIFY2(told.startsWith(qs("Failed to save flash as Configuration Device tab")), qPrintable(told));
    QCOMPARE(stored_names(), QStringList{qs("Mine")});
    QCOMPARE(history(), QStringList());
}

void TEST_APPLY::a_custom_device_with_the_name_of_a_part_is_the_users_own_data()
{
    QTest::addColumn<QString>("new_name");
    QTest::addColumn<QStringList>("names_afterwards");

    QTest::newRow("saved") << qs(BUILTIN_PART) << QStringList{qs(BUILTIN_PART)};
    QTest::newRow("renamed") << qs("Mine") << QStringList{qs("Mine")};
    QTest::newRow("deleted") << QString() << QStringList();
}

void TEST_APPLY::a_custom_device_with_the_name_of_a_part_is_the_users_own()
{
    QFETCH(const QString, new_name);
    QFETCH(const QStringList, names_afterwards);
    store("Mine");
    run_foreign(qs("UPDATE device SET name = '%1', name_key = lower('%1')").arg(qs(BUILTIN_PART)));
    open(BUILTIN_PART);
    QCOMPARE(shown_rows().count(qs(BUILTIN_PART)), 1);

    if (new_name.isEmpty()) {
        click("m_delete_button");
    } else {
        type("m_device_name_edit", new_name);
        type("m_device_id_edit", qs("0x01"));
        click("m_apply_button");
        QCOMPARE(stored(new_name), qs("0x01"));
    }

    QCOMPARE(stored_names(), names_afterwards);
    QCOMPARE(shown_rows().count(qs(BUILTIN_PART)), 1);
}

void TEST_APPLY::a_new_device_cannot_take_the_name_of_a_part()
{
    store("Mine");
    open();
    type("m_device_name_edit", qs(BUILTIN_PART));
    type("m_device_id_edit", qs("0x01"));
    type("m_total_die_edit", qs("1"));

    QVERIFY(click_and_read("m_apply_button").contains(qs(BUILTIN_PART)));

    QCOMPARE(stored_names(), QStringList{qs("Mine")});
}

void TEST_APPLY::a_message_that_fails_to_save_keeps_the_flows()
{
    store("Mine");
    open("Mine");
    const int actions = page(1).get_flow().size();
    QVERIFY(actions > 0);
    lock();

    click_and_read("m_apply_button");
    unlock();

    QCOMPARE(page(1).get_flow().size(), actions);
    click("m_apply_button");
    QCOMPARE(page(1).get_flow().size(), actions);
}

void TEST_APPLY::the_new_device_row_is_not_the_device_shown_before_data()
{
    QTest::addColumn<bool>("is_opened_again");
    QTest::addColumn<QString>("name");

    for (const bool is_opened_again : {false, true}) {
        const char* const where = is_opened_again ? "in the next dialog" : "in the same dialog";
        QTest::addRow("its name, %s", where) << is_opened_again << qs("Mine");
        QTest::addRow("its name in another case, %s", where) << is_opened_again << qs("MINE");
    }
}

void TEST_APPLY::the_new_device_row_is_not_the_device_shown_before()
{
    QFETCH(const bool, is_opened_again);
    QFETCH(const QString, name);
    store("Mine");
    open("Mine");
    if (is_opened_again) {
        close_dialog();
        open();
    } else {
        click_row(qs("<<new device>>"));
    }
    type("m_device_name_edit", name);

    const QString told = return_in_name();

    QVERIFY2(told.contains(qs("\"Mine\" for this family and configuration mode")), qPrintable(told));
}

void TEST_APPLY::the_name_of_an_unreadable_device_that_is_gone_is_free()
{
    store("Mine");
    run_foreign(qs("UPDATE device SET single_flows = '{', revision = 'broken'"));
    open("Mine");
    run_foreign(qs("DELETE FROM device"));
    open();
    type("m_device_name_edit", qs("Mine"));
    type("m_device_id_edit", qs("0x01"));
    type("m_total_die_edit", qs("1"));

    click("m_apply_button");

    QCOMPARE(stored(qs("Mine")), qs("0x01"));
}

void TEST_APPLY::no_name_is_free_while_the_database_cannot_be_read()
{
    store("Mine");
    store("Other");
    open("Mine");
    type("m_device_name_edit", qs("OTHER"));
    lock(qs("EXCLUSIVE"));

    const QString told = return_in_name();
    unlock();

    QVERIFY2(told.contains(qs("locked by another program")), qPrintable(told));
}

void TEST_APPLY::a_mode_without_devices_is_accepted()
{
    store("Mine");
    open(std::string(), 0);
    QCOMPARE(shown_rows(), QStringList());

    click("m_ok_button");

    QVERIFY(!dlg().isVisible());
    QCOMPARE(stored_names(), QStringList{qs("Mine")});
}

LOST_WORK_TEST_MAIN(TEST_APPLY)
#include "test_apply.moc"
