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
    QString click_and_read(const char* button_name)
    {
        m_modals.expect(MODAL_DRIVER::accept());
        click(button_name);
        return m_modals.met().isEmpty() ? QString() : m_modals.last().text;
    }

    // What Return in the name field says.
    QString return_in_name()
    {
        m_modals.expect(MODAL_DRIVER::accept());
        QTest::keyClick(&part("m_device_name_edit"), Qt::Key_Return);
        return m_modals.met().isEmpty() ? QString() : m_modals.last().text;
    }

    // Makes the stored record "Mine" one that the rules refuse, as another version of the program may have stored it.
    void give_mine_a_refused_name() const
    {
        run_foreign(qs("UPDATE device SET name = 'Mine ', name_key = 'mine ' WHERE name = 'Mine'"));
    }

private slots:
    void an_apply_is_one_entry_of_the_history()
    {
        store("Mine");
        open("Mine");
        type("m_device_id_edit", qs("0x01"));

        click("m_apply_button");

        QCOMPARE(stored(qs("Mine")), qs("0x01"));
        QCOMPARE(history(), QStringList{qs("replaced Mine")});
    }

    void a_rename_is_one_entry_of_the_history()
    {
        store("Mine");
        open("Mine");
        type("m_device_name_edit", qs("Yours"));

        click("m_apply_button");

        QCOMPARE(stored_names(), QStringList{qs("Yours")});
        QCOMPARE(history(), QStringList{qs("replaced Mine")});
    }

    void saving_an_unchanged_device_adds_no_state()
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

    void a_device_that_became_a_template_stays_unchanged_likewise()
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

    void opening_and_saving_changes_no_value_data()
    {
        rows<QString, QString>({{"a range that no list has", "voltage", "2.75-3.45V"},
                                {"a listed voltage in another case", "voltage", "3.3v"},
                                {"a density that no list has", "density", "96Mb"},
                                {"a listed density in another case", "density", "128MB"},
                                {"a template that is gone", "flow_template", "Removed"},
                                {"an ID in another form", "device_id", "c2,20,19"},
                                {"a voltage of no list", "voltage", "4.5-5.5V"},
                                {"a density of no list", "density", "96Mb"}});
    }

    void opening_and_saving_changes_no_value()
    {
        const auto [column, value] = row<QString, QString>();
        store("Mine");
        run_foreign(qs("UPDATE device SET %1 = '%2'").arg(column, value));
        open("Mine");

        click("m_ok_button");

        QVERIFY(!dlg().isVisible());
        QCOMPARE(stored(qs("Mine"), column.toLatin1().constData()), value);
        QCOMPARE(history(), QStringList());
    }

    void a_device_whose_save_fails_is_put_back()
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

    void a_locked_database_keeps_the_device_and_the_form()
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
    void a_device_that_could_not_be_read_is_not_replaced()
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

    void a_device_that_can_be_read_again_is_replaced()
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

    void a_rename_can_change_only_case()
    {
        store("Mine");
        open("Mine");
        type("m_device_name_edit", qs("MINE"));

        click("m_apply_button");

        QCOMPARE(stored_names(), QStringList{qs("MINE")});
        QCOMPARE(current_row(), qs("MINE"));
    }

    void a_new_device_cannot_take_a_name_in_another_case()
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

    void the_box_names_the_stored_spelling()
    {
        store("Mine");
        store("Other");
        open("Other");
        type("m_device_name_edit", qs("mINE"));

        const QString told = return_in_name();

        QVERIFY2(told.contains(qs("\"Mine\"")), qPrintable(told));
        QVERIFY2(told.contains(qs("case")), qPrintable(told));
    }

    void an_unchanged_name_is_told_as_the_device_that_it_is()
    {
        store("Mine");
        open("Mine");

        const QString told = return_in_name();

        QVERIFY2(told.contains(qs("\"Mine\"")), qPrintable(told));
        QVERIFY2(told.contains(qs("the one that is shown")), qPrintable(told));
    }

    void a_template_name_that_differs_only_in_case_deletes_nothing()
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

    void a_custom_device_with_the_name_of_a_part_is_the_users_own_data()
    {
        rows<QString, QStringList>({{"saved", qs(BUILTIN_PART), QStringList{qs(BUILTIN_PART)}},
                                    {"renamed", "Mine", QStringList{qs("Mine")}},
                                    {"deleted", QString(), QStringList()}});
    }

    void a_custom_device_with_the_name_of_a_part_is_the_users_own()
    {
        const auto [new_name, names_afterwards] = row<QString, QStringList>();
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

    void a_new_device_cannot_take_the_name_of_a_part()
    {
        store("Mine");
        open();
        type("m_device_name_edit", qs(BUILTIN_PART));
        type("m_device_id_edit", qs("0x01"));
        type("m_total_die_edit", qs("1"));

        QVERIFY(click_and_read("m_apply_button").contains(qs(BUILTIN_PART)));

        QCOMPARE(stored_names(), QStringList{qs("Mine")});
    }

    void a_message_that_fails_to_save_keeps_the_flows()
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

    void the_new_device_row_is_not_the_device_shown_before_data()
    {
        QTest::addColumn<bool>("is_opened_again");
        QTest::addColumn<QString>("name");

        for (const bool is_opened_again : {false, true}) {
            const char* const where = is_opened_again ? "in the next dialog" : "in the same dialog";
            QTest::addRow("its name, %s", where) << is_opened_again << qs("Mine");
            QTest::addRow("its name in another case, %s", where) << is_opened_again << qs("MINE");
        }
    }

    void the_new_device_row_is_not_the_device_shown_before()
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

    void the_name_of_an_unreadable_device_that_is_gone_is_free()
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

    void no_name_is_free_while_the_database_cannot_be_read()
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

    void a_mode_without_devices_is_accepted()
    {
        store("Mine");
        open(std::string(), 0);
        QCOMPARE(shown_rows(), QStringList());

        click("m_ok_button");

        QVERIFY(!dlg().isVisible());
        QCOMPARE(stored_names(), QStringList{qs("Mine")});
    }
};

LOST_WORK_TEST_MAIN(TEST_APPLY)

#include "test_apply.moc"
