// SPDX-License-Identifier: MIT

// OK, Cancel and Delete.
#include "dialog_test.h"

#include <QSignalSpy>

class TEST_OK_AND_DELETE : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void ok_applies_stores_the_choice_and_rejects_data()
    {
        const QString same;
        rows<QString, QString, QString, int>(
            {{"custom", "A", same, "A", 1},
             {"renamed", "A", "renamed", "renamed", 1},
             {"new device", "<<new device>>", "X", "X", 1},
             {"built-in", "B", same, "B", 0},
             {"hidden", "C", same, "C", 0},
             {"no record can be made", "A", same, "A", 0},
             {"no new record can be made", "<<new device>>", "X", "<<new device>>", 0}});
    }

    void ok_applies_stores_the_choice_and_rejects()
    {
        const auto [device, typed, handed_back, saved] = row<QString, QString, QString, int>();
        mgr().hidden_properties = {"C"};
        // The row's name is handed back, not the record's.
        mgr().flashes["B"]->name = "of the record";
        mgr().creates_flash = !QByteArray(QTest::currentDataTag()).contains("can be made");
        open_with(device);
        choose("m_family_cbox", 70);
        choose("m_config_mode_cbox", 25);
        show_dialog();
        if (!typed.isEmpty())
            type_in("m_device_name_edit", typed);
        QSignalSpy rejected(&dlg(), &QDialog::rejected);
        QSignalSpy accepted(&dlg(), &QDialog::accepted);
        QString at_the_end;
        connect(&dlg(), &QDialog::rejected, this, [&] { at_the_end = choice(); });

        button("m_ok_button").click();

        QCOMPARE(count_of("save_flash"), saved);
        QCOMPARE(rejected.size(), 1);
        QCOMPARE(accepted.size(), 0);
        QCOMPARE(dlg().result(), static_cast<int>(QDialog::Rejected));
        QVERIFY(!dlg().isVisible());
        // The choice is there before the dialog closes.
        QCOMPARE(at_the_end, qs("70 25 ") + handed_back);
        QCOMPARE(choice(), at_the_end);
    }

    void cancel_rejects()
    {
        open_with("A");
        show_dialog();
        QSignalSpy rejected(&dlg(), &QDialog::rejected);
        QSignalSpy finished(&dlg(), &QDialog::finished);

        button("m_cancel_button").click();

        QCOMPARE(rejected.size(), 1);
        QCOMPARE(finished.size(), 1);
        QVERIFY(!dlg().isVisible());
        QCOMPARE(calls(), QStringList());
    }

    // No row is selected then, but one is current.
    void ok_hands_back_the_current_row_without_a_selection()
    {
        open_with("A");
        table().clearSelection();

        button("m_ok_button").click();

        QCOMPARE(calls_of({"delete_flash"}), list_of({R"(mgr.delete_flash("A", "/db/custom/"))"}));
        QCOMPARE(dlg().device_name(), std::string("A"));
    }

    void ok_with_a_name_that_the_filter_hides_hands_it_back()
    {
        open_with("A");
        type_in("m_filter_line_edit", "^A$");
        type_in("m_device_name_edit", "renamed");
        QSignalSpy rejected(&dlg(), &QDialog::rejected);

        button("m_ok_button").click();

        QCOMPARE(calls_of({"delete_flash", "save_flash"}),
                 list_of({R"(mgr.delete_flash("A", "/db/custom/"))", R"(mgr.save_flash(new:renamed, "/db/custom/"))"}));
        QCOMPARE(rejected.size(), 1);
        QCOMPARE(dlg().device_name(), std::string("renamed"));
    }

    void delete_removes_the_current_record()
    {
        open_with("A");
        type_in("m_device_name_edit", "typed");
        type_in("m_directory_edit", "/typed");

        run("on_delete_clicked");

        // The arguments of a call are read in an order that is the compiler's.
        QCOMPARE(count_of("get_name"), 1);
        QCOMPARE(count_of("get_db_dir"), 1);
        QCOMPARE(log().calls_without({qs("get_name"), qs("get_db_dir")}).mid(0, 4),
                 list_of({R"(mgr.delete_flash("A", "/db/of/A/"))", "mgr.can_add_flash()",
                          "mgr.get_custom_flash_names(5, 13, 0)", "mgr.get_builtin_flash_names(5, 13, 0)"}));
        QCOMPARE(all_rows(), list_of({"<<new device>>", "C", "B"}));
        QVERIFY(prompted_messages().empty());
        // There is no record on the new device's row.
        log().clear();
        run("on_delete_clicked");
        QCOMPARE(calls(), QStringList());
        pick("C");
        QCOMPARE(calls_of({"find_flash"}), list_of({R"(mgr.find_flash("C", true))"}));
    }

    void a_failed_delete_raises_the_message()
    {
        mgr().delete_succeeds = false;
        open_with("A");

        button("m_delete_button").click();

        QCOMPARE(log().calls_without({qs("get_name"), qs("get_db_dir")}),
                 list_of({R"(mgr.delete_flash("A", "/db/of/A/"))", "MSG_O.created(null)",
                          R"(MSG_O.fill_args("Failed to delete flash from database./OGFPQ_DELETE_DB_FAILED"))",
                          "MSG_O.set_id(20440)", "MSG_O.prompt(null)", "MSG_O.destroyed()"}));
        QCOMPARE(all_rows(), list_of({"<<new device>>", "A", "C", "B"}));
        QCOMPARE(current_row(), qs("A"));
        QCOMPARE(text("m_device_name_edit"), qs("A"));
        // The record stays current.
        mgr().delete_succeeds = true;
        log().clear();
        button("m_delete_button").click();
        QCOMPARE(count_of("delete_flash"), 1);
    }

    void delete_takes_the_device_of_the_form_though_it_is_hidden()
    {
        open_with("A");
        type_in("m_filter_line_edit", "none");
        log().clear();

        run("on_delete_clicked");

        QCOMPARE(calls_of({"delete_flash"}), list_of({R"(mgr.delete_flash("A", "/db/of/A/"))"}));
        QCOMPARE(text("m_filter_line_edit"), qs("none"));
    }

    void delete_selects_the_new_device_row()
    {
        open_with("C");

        button("m_delete_button").click();

        QCOMPARE(current_row(), qs("<<new device>>"));
        QCOMPARE(text("m_device_name_edit"), QString());
        QVERIFY(!button("m_delete_button").isEnabled());
        QVERIFY(combo("m_flow_template_cbox").isEnabled());
        // Loaded once, not through the selection too.
        QCOMPARE(count_of("get_voltage_list"), 1);
    }

    void delete_without_a_new_device_row_selects_the_first_row()
    {
        mgr().add_allowed = false;
        open_with("C");

        button("m_delete_button").click();

        QCOMPARE(current_row(), qs("A"));
        QCOMPARE(text("m_device_name_edit"), qs("A"));
        QCOMPARE(calls_of({"find_flash"}), list_of({R"(mgr.find_flash("A", true))"}));
        // That row's record is the current one now.
        log().clear();
        button("m_delete_button").click();
        QCOMPARE(calls_of({"delete_flash"}), list_of({R"(mgr.delete_flash("A", "/db/of/A/"))"}));
    }

private:
    void fill_world() override
    {
        mgr().add_custom("A");
        mgr().add_custom("C");
        mgr().add_builtin("B");
    }

    // What the dialog hands back: family, scheme and device name.
    QString choice() const
    {
        return qs("%1 %2 ").arg(dlg().family()).arg(dlg().config_scheme()) +
               QString::fromStdString(dlg().device_name());
    }
};

GFPQ_TEST_MAIN(TEST_OK_AND_DELETE)

#include "test_ok_and_delete.moc"
