// SPDX-License-Identifier: MIT

// The table's current row: it is the selected one, it is current before its device is loaded, and it names the right
// device while a filter makes the table's rows other ones than the model's.
#include "dialog_test.h"

class TEST_CURRENT_ROW : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_row_is_current_before_it_is_loaded_data();
    void a_row_is_current_before_it_is_loaded();
    void the_current_row_is_the_selected_one_data();
    void the_current_row_is_the_selected_one();
    void a_filtered_row_names_the_right_device_data();
    void a_filtered_row_names_the_right_device();
    void a_filter_loads_and_asks_nothing_data();
    void a_filter_loads_and_asks_nothing();
    void a_hidden_row_is_uncovered_before_anything_is_asked_data();
    void a_hidden_row_is_uncovered_before_anything_is_asked();
    void a_new_device_whose_row_is_hidden_still_takes_a_template();
    void apply_deletes_by_the_row_and_delete_by_the_record();

private:
    void fill_world() override;
    // Does what the test's row names: the user's ways to another device, or to another list.
    void go(const QString& way);
    void filter(const char* text) { edit("m_filter_line_edit").setText(QString::fromUtf8(text)); }
};

void TEST_CURRENT_ROW::fill_world()
{
    for (const char* name : {"Zeta", "MX25L", "W25Q"})
        mgr().add_custom(name).operations[false] = make_operations(name);
    mgr().add_builtin("built-in");
    mgr().builtin_template_operations[{1, false}] = make_operations("second");
}

void TEST_CURRENT_ROW::go(const QString& way)
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
        enter("m_directory_edit", QStringLiteral("/other"));
    else if (way == QLatin1String("template"))
        combo("m_flow_template_cbox").setCurrentIndex(1);
    else
        button(way.toLatin1().constData()).click();
}

void TEST_CURRENT_ROW::a_row_is_current_before_it_is_loaded_data()
{
    QTest::addColumn<QString>("way");

    for (const char* way : {"mouse", "keyboard", "current index", "selected only"})
        QTest::newRow(way) << qs(way);
}

void TEST_CURRENT_ROW::a_row_is_current_before_it_is_loaded()
{
    QFETCH(const QString, way);
    open();
    show_dialog();
    table().setFocus();
    QStringList current;
    log().on_call(qs("find_flash"), [&](const QString&) { current.append(current_row()); });

    go(way);

    QCOMPARE(current, list_of({"Zeta"}));
    QCOMPARE(log().calls_of({qs("find_flash")}), list_of({R"(mgr.find_flash("Zeta", true))"}));
    QCOMPARE(table().selectionModel()->selectedIndexes(), QModelIndexList{table().currentIndex()});
}

void TEST_CURRENT_ROW::the_current_row_is_the_selected_one_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("current");

    for (const char* way : {"family", "mode", "directory", "m_apply_button"})
        QTest::newRow(way) << qs(way) << qs("MX25L");
    QTest::newRow("m_delete_button") << qs("m_delete_button") << qs("<<new device>>");
}

void TEST_CURRENT_ROW::the_current_row_is_the_selected_one()
{
    QFETCH(const QString, way);
    QFETCH(const QString, current);
    open_with("MX25L");
    QCOMPARE(table().selectionModel()->selectedIndexes(), QModelIndexList{table().currentIndex()});

    go(way);

    QCOMPARE(current_row(), current);
    QCOMPARE(table().selectionModel()->selectedIndexes(), QModelIndexList{table().currentIndex()});
    QCOMPARE(edit("m_device_name_edit").text(),
             current.startsWith(QLatin1Char('<')) ? QString() : QStringLiteral("MX25L"));
}

void TEST_CURRENT_ROW::a_filtered_row_names_the_right_device_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QStringList>("calls");

    const QStringList reloaded = list_of({R"(mgr.find_flash("W25Q", true))", R"(mgr.is_hidden_flash("W25Q", false))"});
    const QStringList replaced =
        list_of({R"(mgr.is_hidden_flash("W25Q", false))", R"(mgr.delete_flash("W25Q", "/db/custom/"))"}) + reloaded;
    QTest::newRow("family") << qs("family") << reloaded;
    QTest::newRow("mode") << qs("mode") << reloaded;
    QTest::newRow("directory") << qs("directory") << reloaded;
    QTest::newRow("m_apply_button") << qs("m_apply_button") << replaced;
    QTest::newRow("m_ok_button") << qs("m_ok_button") << replaced;
    QTest::newRow("m_delete_button") << qs("m_delete_button")
                                     << list_of({R"(mgr.delete_flash("W25Q", "/db/of/W25Q/"))"});
    QTest::newRow("template") << qs("template") << list_of({"flash:W25Q.get_operations(false)"});
}

void TEST_CURRENT_ROW::a_filtered_row_names_the_right_device()
{
    QFETCH(const QString, way);
    QFETCH(const QStringList, calls);
    mgr().unused_properties = {2, 3};
    open();
    filter("25");
    pick(QStringLiteral("W25Q"));
    QCOMPARE(table().currentIndex().row(), 1);
    log().clear();

    go(way);

    QStringList looked_at{qs("find_flash"), qs("is_hidden_flash"), qs("delete_flash")};
    if (way == QLatin1String("template"))
        looked_at = QStringList{qs("get_operations"), qs("get_builtin_template_operations")};
    QCOMPARE(log().calls_of(looked_at), calls);
    // The unchanged name is the selected one.
    QVERIFY(log().calls().filter(QStringLiteral("check_string_property(0")).isEmpty());
    if (way == QLatin1String("m_ok_button"))
        QCOMPARE(dlg().device_name(), std::string("W25Q"));
    else if (way != QLatin1String("m_delete_button"))
        QCOMPARE(current_row(), QStringLiteral("W25Q"));
    QCOMPARE(edit("m_filter_line_edit").text(), QStringLiteral("25"));
}

void TEST_CURRENT_ROW::a_filter_loads_and_asks_nothing_data()
{
    QTest::addColumn<QString>("device");

    for (const char* device : {"<<new device>>", "W25Q", "built-in"})
        QTest::newRow(device) << qs(device);
}

void TEST_CURRENT_ROW::a_filter_loads_and_asks_nothing()
{
    QFETCH(const QString, device);
    open_with(device.toStdString());
    edit("m_device_id_edit").setText(QStringLiteral("typed"));

    for (const char* text : {"e", "none", "(", "25", ""})
        filter(text);

    QCOMPARE(calls(), QStringList());
    QCOMPARE(current_row(), device);
    QCOMPARE(table().selectionModel()->selectedIndexes(), QModelIndexList{table().currentIndex()});
    QCOMPARE(edit("m_device_id_edit").text(), QStringLiteral("typed"));
}

void TEST_CURRENT_ROW::a_hidden_row_is_uncovered_before_anything_is_asked_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("button_name");

    for (const char* device : {"<<new device>>", "W25Q", "built-in"}) {
        for (const char* name : {"m_apply_button", "m_ok_button"})
            QTest::addRow("%s %s", device, name) << qs(device) << qs(name);
    }
}

void TEST_CURRENT_ROW::a_hidden_row_is_uncovered_before_anything_is_asked()
{
    QFETCH(const QString, device);
    QFETCH(const QString, button_name);
    open_with(device.toStdString());
    edit("m_device_id_edit").setText(QStringLiteral("typed"));
    filter("none");
    mgr().refuse(1, "refused");
    const bool is_saved = device != QLatin1String("built-in");
    if (is_saved)
        m_modals.expect(MODAL_DRIVER::accept());
    QStringList shown_when_asked;
    log().on_call(qs("is_hidden_flash"),
                  [&](const QString&) { shown_when_asked << current_row() << edit("m_filter_line_edit").text(); });
    log().clear();

    // Apply is disabled for a built-in device.
    run(button_name == QLatin1String("m_ok_button") ? "on_ok_clicked" : "on_apply_clicked");

    QCOMPARE(shown_when_asked, QStringList({device, QString()}));
    QCOMPARE(calls().first(), QStringLiteral("mgr.is_hidden_flash(\"%1\", false)").arg(device));
    QCOMPARE(log().count(qs("find_flash")), 0);
    QCOMPARE(log().count(qs("check_string_property")), is_saved ? (device == QLatin1String("W25Q") ? 1 : 2) : 0);
    QCOMPARE(edit("m_device_id_edit").text(), QStringLiteral("typed"));
}

void TEST_CURRENT_ROW::a_new_device_whose_row_is_hidden_still_takes_a_template()
{
    open();
    filter("25");
    QCOMPARE(current_row(), QString());

    combo("m_flow_template_cbox").setCurrentIndex(1);

    QCOMPARE(page_flow(2), list_of({"0:second 2"}));
}

void TEST_CURRENT_ROW::apply_deletes_by_the_row_and_delete_by_the_record()
{
    mgr().flashes["Zeta"]->name = "of the record";
    mgr().follows_saves = false;
    open_with("Zeta");
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("of the record"));

    button("m_delete_button").click();
    QCOMPARE(log().calls_of({qs("delete_flash")}), list_of({R"(mgr.delete_flash("of the record", "/db/of/Zeta/"))"}));
    pick(QStringLiteral("Zeta"));
    log().clear();
    button("m_apply_button").click();

    // The name in the form is another one than the selected row's, so it is checked.
    QCOMPARE(log().calls_of({qs("check_string_property"), qs("create_flash"), qs("delete_flash"), qs("save_flash")}),
             list_of({R"(mgr.check_string_property(0, "of the record"))", R"(mgr.check_string_property(1, ""))",
                      R"(mgr.create_flash("of the record"))", R"(mgr.delete_flash("Zeta", "/db/custom/"))",
                      R"(mgr.save_flash(new:of the record, "/db/custom/"))"}));
}

GFPQ_TEST_MAIN(TEST_CURRENT_ROW)

#include "test_current_row.moc"
