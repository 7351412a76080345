// SPDX-License-Identifier: MIT

// What Apply, OK and Delete do to the records of the real database: nothing that the user did not mean.
#include "lost_work_test.h"

namespace {

const QString USED_HERE = qs("return says \"Mine\" for this family and configuration mode");
// A device of the user's own with the name of a built-in one.
const QString OF_A_PART = qs("store Mine; sql UPDATE device SET name = 'MX25L25645G', name_key = 'mx25l25645g'; "
                             "open MX25L25645G; rows of MX25L25645G is 1; ");

} // namespace

class TEST_APPLY : public LOST_WORK_TEST
{
    Q_OBJECT

private slots:
    void what_is_stored_is_what_the_user_meant_data()
    {
        rows<QString>({
            {"an Apply is one entry of the history",
             "store Mine; open Mine; id = 0x01; apply; device_id of Mine is 0x01; history is replaced Mine"},
            {"a rename is one entry of the history",
             "store Mine; open Mine; name = Yours; apply; devices is Yours; history is replaced Mine"},
            {"a device that became a template stays unchanged",
             "store Mine; open Mine; save_as Mine as a template; apply; history is replaced Mine; apply; "
             "history is replaced Mine; template_name of Mine is Mine as a template"},
            // As another version of the program may have stored it; the user then corrects the name.
            {"a device whose save fails is put back",
             "store Mine; sql UPDATE device SET name = 'Mine ', name_key = 'mine '; open Mine ; id = 0x01; "
             "apply says 20439; devices is Mine ; device_id of Mine  is 0xC2 0x20 0x19; history is put back Mine ; "
             "name = Mine; apply; devices is Mine; device_id of Mine is 0x01"},
            {"a locked database keeps the device and the form",
             "store Mine; open Mine; id = 0x01; lock IMMEDIATE; apply says 20439; unlock; id is 0x01; "
             "device_id of Mine is 0xC2 0x20 0x19; history is"},
            // The form keeps the values of the device that was shown before.
            {"a device that could not be read is not replaced",
             "store Broken, 0xEF 0x40 0x18; store Mine; sql UPDATE device SET single_flows = '{' WHERE name = "
             "'Broken'; "
             "open Mine; row Broken; name = Fresh; apply says 20439; devices is Broken, Mine; "
             "device_id of Broken is 0xEF 0x40 0x18; history is"},
            {"the name of an unreadable device that is gone is free",
             "store Mine; sql UPDATE device SET single_flows = '{', revision = 'broken'; open Mine; "
             "sql DELETE FROM device; open; name = Mine; id = 0x01; dies = 1; apply; device_id of Mine is 0x01"},
            {"a rename can change only case",
             "store Mine; open Mine; name = MINE; apply; devices is MINE; current is MINE"},
            {"a new device cannot take a name in another case",
             "store Mine; open Mine; row <<new device>>; name = MINE; id = 0x01; dies = 1; apply says \"Mine\"; "
             "devices is Mine; device_id of Mine is 0xC2 0x20 0x19"},
            {"the box names the stored spelling",
             "store Mine; store Other; open Other; name = mINE; return says \"Mine\", case"},
            {"an unchanged name is reported as the device that it is",
             "store Mine; open Mine; return says \"Mine\", the one that is shown"},
            {"a template name that differs only in case deletes nothing",
             "store Mine; open Mine; name = Yours; save_as YOURS; "
             "apply says Failed to save flash as Configuration Device tab; devices is Mine; history is"},
            {"the new device's row is not the device shown before",
             qs("store Mine; open Mine; row <<new device>>; name = Mine; ") + USED_HERE},
            {"the new device's row is not the device shown before, in another case",
             qs("store Mine; open Mine; row <<new device>>; name = MINE; ") + USED_HERE},
            {"nor in the next dialog", qs("store Mine; open Mine; open; name = Mine; ") + USED_HERE},
            {"nor in the next dialog in another case", qs("store Mine; open Mine; open; name = MINE; ") + USED_HERE},
            {"a new device cannot take the name of a part",
             "store Mine; open; name = MX25L25645G; id = 0x01; dies = 1; apply says MX25L25645G; devices is Mine"},
            {"a custom device with the name of a part is saved",
             OF_A_PART + qs("name = MX25L25645G; id = 0x01; apply; device_id of MX25L25645G is 0x01; "
                            "devices is MX25L25645G; rows of MX25L25645G is 1")},
            {"a custom device with the name of a part is renamed",
             OF_A_PART + qs("name = Mine; id = 0x01; apply; device_id of Mine is 0x01; devices is Mine; "
                            "rows of MX25L25645G is 1")},
            {"a custom device with the name of a part is deleted",
             OF_A_PART + qs("delete; devices is; rows of MX25L25645G is 1")},
        });
        // Nobody keeps others from reading a server.
        if (!tests_are_on_server())
            QTest::newRow("no name is free while the database cannot be read")
                << qs("store Mine; store Other; open Mine; name = OTHER; lock EXCLUSIVE; "
                      "return says locked by another program; unlock");
    }

    void what_is_stored_is_what_the_user_meant() { play(row<QString>()); }

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

    void a_message_that_fails_to_save_keeps_the_flows()
    {
        store("Mine");
        open("Mine");
        const int actions = page(1).get_flow().size();
        QVERIFY(actions > 0);
        lock();

        play(qs("apply says 20439; unlock"));

        QCOMPARE(page(1).get_flow().size(), actions);
        click("m_apply_button");
        QCOMPARE(page(1).get_flow().size(), actions);
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
