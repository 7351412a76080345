// SPDX-License-Identifier: MIT

// Every connection of the dialog, as it was asked for; that each also works is shown by the other tests.
#include "dialog_test.h"

#include "dialog/gfpq_edit_template_dlg.h"
#include "flow/gfpq_operation_tab_widget.h"

class TEST_CONNECTIONS : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void an_opening_dialog_connects_in_order()
    {
        open();

        // The combos' own slots are cut and connected again while the first device is loaded; that is not of interest
        // here.
        QStringList expected = list_of({"QItemSelectionModel selectionChanged(QItemSelection,QItemSelection) -> "
                                        "device_changed(QItemSelection,QItemSelection)",
                                        "m_delete_button clicked() -> on_delete_clicked()",
                                        "m_filter_line_edit textChanged(QString) -> update_filter(QString)",
                                        "m_device_name_edit returnPressed() -> on_device_name_editing_finished()",
                                        "m_device_id_edit returnPressed() -> on_device_id_editing_finished()",
                                        "m_voltage_cbox currentIndexChanged(int) -> on_change_voltage(int)",
                                        "m_density_cbox currentIndexChanged(int) -> on_change_density(int)",
                                        "m_total_die_edit returnPressed() -> on_total_die_edit_editing_finished()",
                                        "m_clock_cycle_edit returnPressed() -> on_clock_cycle_editing_finished()",
                                        "m_clock_cycle_edit_x4 returnPressed() -> on_clock_cycle_x4_editing_finished()",
                                        "m_flow_template_cbox currentIndexChanged(int) -> on_change_flow_template(int)",
                                        "m_prog_flows_tab_widget currentChanged(int) -> on_tab_index_changed(int)",
                                        "m_save_template_check toggled(bool) -> on_save_template_toggled(bool)",
                                        "m_edit_template_button clicked() -> on_edit_template_clicked()"});
        const QStringList last =
            list_of({"m_ok_button clicked() -> on_ok_clicked()", "m_cancel_button clicked() -> on_cancel_clicked()",
                     "m_apply_button clicked() -> on_apply_clicked()",
                     "m_family_cbox currentIndexChanged(int) -> on_change_family(int)",
                     "m_config_mode_cbox currentIndexChanged(int) -> on_change_config_mode(int)",
                     "m_directory_edit returnPressed() -> on_directory_editing_finished()",
                     "m_browse_button clicked() -> on_browse_directory()"});
        const QStringList all = made();
        QCOMPARE(all.mid(0, expected.size()), expected);
        QCOMPARE(all.mid(all.size() - last.size()), last);
        const QStringList between = all.mid(expected.size(), all.size() - expected.size() - last.size());
        for (const QString& connection : between)
            QVERIFY2(connection.contains(QLatin1String("_cbox currentIndexChanged(int)")), qPrintable(connection));
    }

    void the_operation_pages_are_made_between_the_fields_and_the_first_device()
    {
        QStringList pages_when_listed;
        log().on_call(qs("can_add_flash"), [&](const QString&) {
            for (const QString& text : texts())
                pages_when_listed.append(text.section(QLatin1Char(' '), 0, 0));
        });

        open();

        // Each page connects its chart to itself, and itself to its chart.
        const int last_field = pages_when_listed.lastIndexOf(qs("m_edit_template_button"));
        const QStringList made_before = pages_when_listed.mid(0, last_field);
        const QStringList made_after = pages_when_listed.mid(last_field + 1);
        QVERIFY(last_field >= 0);
        QCOMPARE(made_before.count(qs("GPFQ_OPERATION_TAB_WIDGET")), 0);
        QCOMPARE(made_after.count(qs("GPFQ_OPERATION_TAB_WIDGET")), 5);
    }

    void unused_fields_are_not_connected()
    {
        mgr().unused_properties = ALL_FIELDS;

        open();

        QCOMPARE(made().size(), 3 + 7);
    }

    void rebuilds_make_their_connections_again()
    {
        const QStringList mode_family_selection =
            list_of({"m_config_mode_cbox currentIndexChanged(int) -> on_change_config_mode(int)",
                     "m_family_cbox currentIndexChanged(int) -> on_change_family(int)",
                     "QItemSelectionModel selectionChanged(QItemSelection,QItemSelection) -> "
                     "device_changed(QItemSelection,QItemSelection)"});
        mgr().unused_properties = {GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY, GFPDB_FLASH_FLOW_TEMPLATE};
        mgr().add_custom("A");
        open_with("A");
        made_connections().clear();

        choose("m_family_cbox", ALDER);
        choose("m_config_mode_cbox", SCHEME_X1);
        button("m_delete_button").click();

        QCOMPARE(made(), mode_family_selection + mode_family_selection + mode_family_selection.mid(2));
    }

    void a_load_makes_the_connections_of_the_choices_again()
    {
        const QStringList choices =
            list_of({"m_voltage_cbox currentIndexChanged(int) -> on_change_voltage(int)",
                     "m_density_cbox currentIndexChanged(int) -> on_change_density(int)",
                     "m_flow_template_cbox currentIndexChanged(int) -> on_change_flow_template(int)"});
        mgr().add_custom("A");
        open();
        made_connections().clear();

        // After they are filled, and after the record's choice is shown.
        pick("A");
        QCOMPARE(made(), choices + choices);
        made_connections().clear();
        pick("<<new device>>");
        QCOMPARE(made(), choices);
    }

    void the_template_editor_connects_its_buttons()
    {
        const GFPQ_EDIT_TEMPLATE_DLG editor(nullptr, &mgr());

        QCOMPARE(texts(), list_of({"m_close_button clicked() -> gfpq_edit_template_dlg on_close_clicked()",
                                   "m_remove_button clicked() -> gfpq_edit_template_dlg on_remove_clicked()"}));
    }

    void an_operation_page_connects_its_chart_then_itself()
    {
        const GPFQ_OPERATION_TAB_WIDGET page(nullptr, GFPDB_OPERATION_ERASE);

        QCOMPARE(
            texts(),
            list_of({"GFPQ_FLOW_SCENE selectionChanged() -> GFPQ_FLOW_SCENE on_selection()",
                     "GFPQ_FLOW_SCENE sceneRectChanged(QRectF) -> GFPQ_FLOW_SCENE on_change_scene()",
                     "Refresh triggered() -> GFPQ_FLOW_SCENE create_flow_chain()",
                     "Delete triggered() -> GFPQ_FLOW_SCENE on_delete_action()",
                     "Copy triggered() -> GFPQ_FLOW_SCENE on_copy_action()",
                     "Paste triggered() -> GFPQ_FLOW_SCENE on_paste_action()",
                     "Write Register triggered() -> GFPQ_FLOW_SCENE on_insert_wr_action()",
                     "Read Register triggered() -> GFPQ_FLOW_SCENE on_insert_rr_action()",
                     "Write Data triggered() -> GFPQ_FLOW_SCENE on_insert_wd_action()",
                     "Read Data triggered() -> GFPQ_FLOW_SCENE on_insert_rd_action()",
                     "Erase triggered() -> GFPQ_FLOW_SCENE on_insert_e_action()",
                     "GFPQ_FLOW_SCENE emit_action_selection_changed(GFPDB_ACTION*) -> GPFQ_OPERATION_TAB_WIDGET "
                     "update_property_table(GFPDB_ACTION*)",
                     "GFPQ_FLOW_SCENE emit_clear_table() -> GPFQ_OPERATION_TAB_WIDGET clear_property_table()",
                     "GPFQ_OPERATION_TAB_WIDGET emit_update_flow_scene() -> GFPQ_FLOW_SCENE refresh_flow_chain()"}));
    }

private:
    // The texts of all connections; each is made in the same way.
    static QStringList texts()
    {
        QStringList texts;
        for (const MADE_CONNECTION& connection : qAsConst(made_connections())) {
            texts.append(connection.text);
            if (connection.type != Qt::AutoConnection)
                texts.last() += qs(", another kind of connection");
            if (connection.text.contains(qs("-> gfpq_dlg ")) && (connection.file != "" || connection.line != 0))
                texts.last() += qs(", with a place");
        }
        return texts;
    }

    // Those whose receiver is the dialog.
    static QStringList made()
    {
        return texts().filter(qs("-> gfpq_dlg ")).replaceInStrings(qs("-> gfpq_dlg "), qs("-> "));
    }
};

GFPQ_TEST_MAIN(TEST_CONNECTIONS)

#include "test_connections.moc"
