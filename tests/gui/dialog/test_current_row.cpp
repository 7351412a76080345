// SPDX-License-Identifier: MIT

// The table's current row: it is the selected one, it is current before its device is loaded, and it names the right
// device while a filter makes the table's rows other ones than the model's.
#include "dialog_test.h"

class TEST_CURRENT_ROW : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_row_is_current_before_it_is_loaded_data()
    {
        rows_named<QString>({"mouse", "keyboard", "current index", "selected only"});
    }

    void a_row_is_current_before_it_is_loaded()
    {
        const QString way = row<QString>();
        open();
        show_dialog();
        table().setFocus();
        QStringList current;
        log().on_call(qs("find_flash"), [&](const QString&) { current.append(current_row()); });

        go(way);

        QCOMPARE(current, list_of({"Zeta"}));
        QCOMPARE(calls_of({"find_flash"}), list_of({R"(mgr.find_flash("Zeta", true))"}));
        QCOMPARE(table().selectionModel()->selectedIndexes(), QModelIndexList{table().currentIndex()});
    }

    void the_current_row_is_the_selected_one()
    {
        for (const char* way : {"family", "mode", "directory", "m_apply_button", "m_delete_button"}) {
            const bool is_deleted = qstrcmp(way, "m_delete_button") == 0;
            open_with("MX25L");

            go(qs(way));

            QCOMPARE(current_row(), is_deleted ? qs("<<new device>>") : qs("MX25L"));
            QCOMPARE(table().selectionModel()->selectedIndexes(), QModelIndexList{table().currentIndex()});
            QCOMPARE(text("m_device_name_edit"), is_deleted ? QString() : qs("MX25L"));
        }
    }

    // A click with Control held takes the selection away, and no more.
    void a_row_that_is_not_selected_any_more_is_still_current()
    {
        open_with("Zeta");
        table().clearSelection();

        QVERIFY(apply());

        QCOMPARE(calls_of({"is_hidden_flash", "delete_flash"}).mid(0, 2),
                 list_of({R"(mgr.is_hidden_flash("Zeta", false))", R"(mgr.delete_flash("Zeta", "/db/custom/"))"}));
    }

    void a_filtered_row_names_the_right_device_data()
    {
        const QStringList reloaded =
            list_of({R"(mgr.find_flash("W25Q", true))", R"(mgr.is_hidden_flash("W25Q", false))"});
        const QStringList replaced =
            list_of({R"(mgr.is_hidden_flash("W25Q", false))", R"(mgr.delete_flash("W25Q", "/db/custom/"))"}) + reloaded;
        rows<QString, QStringList>(
            {{"family", "family", reloaded},
             {"mode", "mode", reloaded},
             {"directory", "directory", reloaded},
             {"m_apply_button", "m_apply_button", replaced},
             {"m_ok_button", "m_ok_button", replaced},
             {"m_delete_button", "m_delete_button", {R"(mgr.delete_flash("W25Q", "/db/of/W25Q/"))"}},
             {"template", "template", {"flash:W25Q.get_operations(false)"}}});
    }

    void a_filtered_row_names_the_right_device()
    {
        const auto [way, calls] = row<QString, QStringList>();
        mgr().unused_properties = {GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY};
        open();
        type_in("m_filter_line_edit", "25");
        pick("W25Q");
        QCOMPARE(table().currentIndex().row(), 1);
        log().clear();

        go(way);

        QStringList looked_at{qs("find_flash"), qs("is_hidden_flash"), qs("delete_flash")};
        if (way == QLatin1String("template"))
            looked_at = QStringList{qs("get_operations"), qs("get_builtin_template_operations")};
        QCOMPARE(log().calls_of(looked_at), calls);
        // The unchanged name is the selected one.
        QVERIFY(log().calls().filter(qs("check_string_property(0")).isEmpty());
        if (way == QLatin1String("m_ok_button"))
            QCOMPARE(dlg().device_name(), std::string("W25Q"));
        else if (way != QLatin1String("m_delete_button"))
            QCOMPARE(current_row(), qs("W25Q"));
        QCOMPARE(text("m_filter_line_edit"), qs("25"));
    }

    void a_filter_asks_nothing_and_goes_before_a_save_data()
    {
        rows<QString, QString, int>({{"new device, Apply", "<<new device>>", "on_apply_clicked", 2},
                                     {"new device, OK", "<<new device>>", "on_ok_clicked", 2},
                                     {"custom, Apply", "W25Q", "on_apply_clicked", 1},
                                     {"custom, OK", "W25Q", "on_ok_clicked", 1},
                                     {"built-in, Apply", "built-in", "on_apply_clicked", 0},
                                     {"built-in, OK", "built-in", "on_ok_clicked", 0}});
    }

    void a_filter_asks_nothing_and_goes_before_a_save()
    {
        const auto [device, slot, checks] = row<QString, QString, int>();
        open_with(device);
        type_in("m_device_id_edit", "typed");
        for (const char* pattern : {"e", "none", "(", "25", ""})
            type_in("m_filter_line_edit", pattern);
        QCOMPARE(calls(), QStringList());
        QCOMPARE(current_row(), device);
        QCOMPARE(table().selectionModel()->selectedIndexes(), QModelIndexList{table().currentIndex()});
        type_in("m_filter_line_edit", "none");
        mgr().refuse(GFPDB_FLASH_DEVICE_ID, "refused");
        if (checks > 0)
            m_modals.expect(MODAL_DRIVER::accept());
        QStringList shown_when_asked;
        log().on_call(qs("is_hidden_flash"),
                      [&](const QString&) { shown_when_asked << current_row() << text("m_filter_line_edit"); });
        log().clear();

        run(slot.toLatin1().constData());

        QCOMPARE(shown_when_asked, QStringList({device, QString()}));
        QCOMPARE(calls().first(), qs("mgr.is_hidden_flash(\"%1\", false)").arg(device));
        QCOMPARE(count_of("find_flash"), 0);
        QCOMPARE(count_of("check_string_property"), checks);
        QCOMPARE(text("m_device_id_edit"), qs("typed"));
    }

    void a_new_device_whose_row_is_hidden_still_takes_a_template()
    {
        open();
        type_in("m_filter_line_edit", "25");
        QCOMPARE(current_row(), QString());

        combo("m_flow_template_cbox").setCurrentIndex(1);

        QCOMPARE(page_flow(2), list_of({"0:second 2"}));
    }

    void apply_deletes_by_the_row_and_delete_by_the_record()
    {
        mgr().flashes["Zeta"]->name = "of the record";
        mgr().follows_saves = false;
        open_with("Zeta");
        QCOMPARE(text("m_device_name_edit"), qs("of the record"));

        button("m_delete_button").click();
        QCOMPARE(calls_of({"delete_flash"}), list_of({R"(mgr.delete_flash("of the record", "/db/of/Zeta/"))"}));
        pick("Zeta");
        log().clear();
        button("m_apply_button").click();

        // The name in the form is another one than the selected row's, so it is checked.
        QCOMPARE(calls_of({"check_string_property", "create_flash", "delete_flash", "save_flash"}),
                 list_of({R"(mgr.check_string_property(0, "of the record"))", R"(mgr.check_string_property(1, ""))",
                          R"(mgr.create_flash("of the record"))", R"(mgr.delete_flash("Zeta", "/db/custom/"))",
                          R"(mgr.save_flash(new:of the record, "/db/custom/"))"}));
    }

private:
    void fill_world() override
    {
        for (const char* name : {"Zeta", "MX25L", "W25Q"})
            mgr().add_custom(name).operations[false] = make_operations(name);
        mgr().add_builtin("built-in");
        mgr().builtin_template_operations[{1, false}] = make_operations("second");
    }

    // Does what the test's row names: the user's ways to another device, or to another list.
    void go(const QString& way)
    {
        const QModelIndex second = proxy().index(1, 0);
        if (way == QLatin1String("mouse"))
            QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, table().visualRect(second).center());
        else if (way == QLatin1String("keyboard"))
            QTest::keyClick(&table(), Qt::Key_Down);
        else if (way == QLatin1String("current index"))
            table().setCurrentIndex(second);
        else if (way == QLatin1String("selected only"))
            table().selectionModel()->select(second, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        else if (way == QLatin1String("family"))
            choose("m_family_cbox", ALDER);
        else if (way == QLatin1String("mode"))
            choose("m_config_mode_cbox", SCHEME_X1);
        else if (way == QLatin1String("directory"))
            enter("m_directory_edit", "/other");
        else if (way == QLatin1String("template"))
            combo("m_flow_template_cbox").setCurrentIndex(1);
        else
            button(way.toLatin1().constData()).click();
    }
};

GFPQ_TEST_MAIN(TEST_CURRENT_ROW)

#include "test_current_row.moc"
