// SPDX-License-Identifier: MIT

// The device table: its rows and how they are shown, rebuilt, selected and filtered.
#include "dialog_test.h"

#include "marking_translator.h"

#include <QHeaderView>
#include <QSignalSpy>

class TEST_DEVICE_LIST : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void rows_come_in_order_with_their_marks();
    void without_adding_there_is_no_new_device_row();
    void names_are_asked_for_the_current_family_and_mode();
    void rows_cannot_be_edited();
    void the_table_is_set_up_data();
    void the_table_is_set_up();
    void its_heading_is_translated();
    void the_new_device_row_is_never_translated();
    void a_rebuild_removes_and_inserts_in_one_step_each();
    void a_name_is_selected_exactly_data();
    void a_name_is_selected_exactly();
    void the_first_of_equal_names_is_selected();
    void an_empty_list_selects_nothing();
    void the_filter_shows_what_contains_the_pattern_data();
    void the_filter_shows_what_contains_the_pattern();
    void a_filter_that_is_no_valid_expression_shows_no_row_data();
    void a_filter_that_is_no_valid_expression_shows_no_row();
    void the_filter_knows_the_case_of_other_letters_data();
    void the_filter_knows_the_case_of_other_letters();
    void the_filter_hides_the_new_device_row_too();
    void the_filter_works_while_the_user_types();
    void the_filter_stays_when_the_list_is_rebuilt();
    void a_name_that_the_filter_hides_is_not_selected();
    void a_name_that_is_gone_leaves_the_first_row_that_the_filter_shows();
    void a_name_that_is_gone_leaves_the_only_row_that_the_filter_shows();
    void a_name_that_is_gone_leaves_the_first_row_of_all_when_the_filter_shows_none();
    void no_device_stands_for_the_new_device_row_even_when_the_filter_hides_it();
    void selecting_through_the_filter_takes_the_right_device();
    void the_mouse_selects_a_device();
    void the_keyboard_selects_a_device();
    void selecting_the_selected_device_again_loads_nothing();
    void an_emptied_selection_loads_nothing();
    void a_change_loads_its_current_row_unless_it_is_the_previous_data();
    void a_change_loads_its_current_row_unless_it_is_the_previous();
    void names_come_and_go_as_they_are_data();
    void names_come_and_go_as_they_are();
    void an_old_row_selected_by_its_index_is_loaded_once();

private:
    void fill_world() override;
};

void TEST_DEVICE_LIST::fill_world()
{
    mgr().add_custom("Zeta");
    mgr().add_custom("alpha");
    mgr().add_builtin("MX25L");
    mgr().add_builtin("W25Q");
}

void TEST_DEVICE_LIST::rows_come_in_order_with_their_marks()
{
    open();

    QCOMPARE(shown_rows(), list_of({"<<new device>>", "Zeta", "alpha", "MX25L", "W25Q"}));
    QCOMPARE(device_model().columnCount(), 1);
    for (int row = 0; row < 5; ++row) {
        const QStandardItem* const item = device_model().item(row);
        QCOMPARE(item->data(EDITABLE_ROLE), row < 3 ? QVariant(true) : QVariant());
        QCOMPARE(item->data(READ_ONLY_ROLE), row < 3 ? QVariant() : QVariant(true));
        QCOMPARE(item->data(row < 3 ? EDITABLE_ROLE : READ_ONLY_ROLE).userType(), static_cast<int>(QMetaType::Bool));
        QCOMPARE(item->data(Qt::UserRole), QVariant());
    }
}

void TEST_DEVICE_LIST::without_adding_there_is_no_new_device_row()
{
    mgr().add_allowed = false;

    open();

    QCOMPARE(shown_rows(), list_of({"Zeta", "alpha", "MX25L", "W25Q"}));
    QCOMPARE(current_row(), QStringLiteral("Zeta"));
}

void TEST_DEVICE_LIST::names_are_asked_for_the_current_family_and_mode()
{
    mgr().custom_names_of[{ALDER, SCHEME_X1}] = {"only here"};
    mgr().builtin_names_of[{ALDER, SCHEME_X1}] = {};
    DIALOG_ARGS args;
    args.family = ALDER;
    args.config_scheme = SCHEME_X1;

    open_recorded(args);

    QCOMPARE(shown_rows(), list_of({"<<new device>>", "only here"}));
    QCOMPARE(log().calls_of({qs("get_custom_flash_names"), qs("get_builtin_flash_names")}),
             list_of({"mgr.get_custom_flash_names(3, 7, 0)", "mgr.get_builtin_flash_names(3, 7, 0)"}));
}

void TEST_DEVICE_LIST::rows_cannot_be_edited()
{
    open();

    for (int row = 0; row < device_model().rowCount(); ++row)
        QVERIFY(!device_model().item(row)->isEditable());
}

void TEST_DEVICE_LIST::its_heading_is_translated()
{
    const MARKING_TRANSLATOR translator("gfpq_dlg");
    open();

    QCOMPARE(device_model().headerData(0, Qt::Horizontal).toString(), QStringLiteral("[Name]"));
}

void TEST_DEVICE_LIST::the_table_is_set_up_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<int>("family");

    QTest::newRow("opened") << QString() << CEDAR;
    QTest::newRow("filtered") << qs("25") << CEDAR;
    QTest::newRow("another family") << QString() << ALDER;
}

void TEST_DEVICE_LIST::the_table_is_set_up()
{
    QFETCH(const QString, filter);
    QFETCH(const int, family);
    open();

    edit("m_filter_line_edit").setText(filter);
    choose("m_family_cbox", family);

    QCOMPARE(table().selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(table().selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(table().alternatingRowColors());
    const QHeaderView& header = *table().horizontalHeader();
    QCOMPARE(header.model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Name"));
    QVERIFY(header.stretchLastSection());
    QCOMPARE(header.selectionMode(), QAbstractItemView::NoSelection);
    QVERIFY(!header.sectionsMovable());
    const QHeaderView& rows = *table().verticalHeader();
    QCOMPARE(rows.defaultSectionSize(), rows.minimumSectionSize());
    for (int row = 0; row < rows.count(); ++row)
        QCOMPARE(rows.sectionSize(row), rows.minimumSectionSize());
    QCOMPARE(proxy().filterKeyColumn(), 0);
    QCOMPARE(proxy().sortColumn(), -1);
    QVERIFY(!table().isSortingEnabled());
}

namespace {

class NAME_TRANSLATOR : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const bool is_ours = qstrcmp(context, "gfpq_dlg") == 0 && qstrcmp(source, "<<new device>>") == 0;
        return is_ours ? QStringLiteral("<<anders>>") : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

// The text is compared with, so it stays in every language.
void TEST_DEVICE_LIST::the_new_device_row_is_never_translated()
{
    NAME_TRANSLATOR translator;
    QCoreApplication::installTranslator(&translator);
    open();
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(shown_rows().first(), QStringLiteral("<<new device>>"));
}

void TEST_DEVICE_LIST::a_rebuild_removes_and_inserts_in_one_step_each()
{
    open();
    QSignalSpy removed(&device_model(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(&device_model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy reset(&device_model(), &QAbstractItemModel::modelReset);
    int rows_when_asked = -1;
    log().on_call(qs("can_add_flash"), [&](const QString&) { rows_when_asked = device_model().rowCount(); });

    choose("m_family_cbox", ALDER);

    QCOMPARE(rows_when_asked, 0);
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed.first().at(1).toInt(), 0);
    QCOMPARE(removed.first().at(2).toInt(), 4);
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(inserted.first().at(1).toInt(), 0);
    QCOMPARE(inserted.first().at(2).toInt(), 4);
    QCOMPARE(reset.size(), 0);
    QCOMPARE(device_model().headerData(0, Qt::Horizontal).toString(), QStringLiteral("Name"));
}

void TEST_DEVICE_LIST::a_name_is_selected_exactly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("selected");

    QTest::newRow("custom") << qs("alpha") << qs("alpha");
    QTest::newRow("built-in") << qs("W25Q") << qs("W25Q");
    QTest::newRow("empty") << QString() << qs("<<new device>>");
    QTest::newRow("unknown") << qs("none") << qs("<<new device>>");
    QTest::newRow("other case") << qs("ALPHA") << qs("<<new device>>");
    QTest::newRow("part") << qs("W25") << qs("<<new device>>");
    QTest::newRow("new device") << qs("<<new device>>") << qs("<<new device>>");
}

void TEST_DEVICE_LIST::a_name_is_selected_exactly()
{
    QFETCH(const QString, name);
    QFETCH(const QString, selected);
    // The new-device row is not where a fallback ends by chance.
    mgr().custom_names_of[{CEDAR, SCHEME_X4}] = {"Zeta", "alpha"};

    open_with(name.toStdString());

    QCOMPARE(current_row(), selected);
    QVERIFY(table().selectionModel()->isSelected(table().currentIndex()));
}

void TEST_DEVICE_LIST::the_first_of_equal_names_is_selected()
{
    mgr().builtin_names = {"W25Q", "alpha"};

    open_with("alpha");

    QCOMPARE(table().currentIndex().row(), 2);
}

void TEST_DEVICE_LIST::an_empty_list_selects_nothing()
{
    mgr().add_allowed = false;
    mgr().custom_names.clear();
    mgr().builtin_names.clear();

    open_recorded();

    QVERIFY(!table().currentIndex().isValid());
    QCOMPARE(log().count(qs("find_flash")), 0);
    QCOMPARE(log().count(qs("can_edit_flow")), 0);
}

void TEST_DEVICE_LIST::the_filter_shows_what_contains_the_pattern_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("shown");

    const QStringList all = list_of({"<<new device>>", "Zeta", "alpha", "MX25L", "W25Q"});
    QTest::newRow("empty") << QString() << all;
    QTest::newRow("star") << qs("*") << all;
    QTest::newRow("two stars") << qs("**") << all;
    QTest::newRow("empty group") << qs("()") << all;
    QTest::newRow("text") << qs("25") << list_of({"MX25L", "W25Q"});
    QTest::newRow("other case") << qs("ALPHA") << list_of({"alpha"});
    QTest::newRow("star between") << qs("w*q") << list_of({"W25Q"});
    QTest::newRow("star before") << qs("*q") << list_of({"W25Q"});
    QTest::newRow("two star parts") << qs("m*2*l") << list_of({"MX25L"});
    QTest::newRow("dot") << qs("m.2") << list_of({"MX25L"});
    QTest::newRow("anchors") << qs("^a*A$") << list_of({"alpha"});
    QTest::newRow("alternatives") << qs("zeta|w25q") << list_of({"Zeta", "W25Q"});
    QTest::newRow("class") << qs("[mw][x2]") << list_of({"MX25L", "W25Q"});
    QTest::newRow("plus") << qs("x2+5") << list_of({"MX25L"});
    QTest::newRow("nothing") << qs("none") << QStringList();
}

void TEST_DEVICE_LIST::the_filter_shows_what_contains_the_pattern()
{
    QFETCH(const QString, filter);
    QFETCH(const QStringList, shown);
    open();

    edit("m_filter_line_edit").setText(QStringLiteral("before"));
    edit("m_filter_line_edit").setText(filter);

    QCOMPARE(shown_rows(), shown);
}

void TEST_DEVICE_LIST::a_filter_that_is_no_valid_expression_shows_no_row_data()
{
    QTest::addColumn<QString>("filter");

    for (const char* filter : {"(", "[", "a(b", "+", "?", "a{2,1}", "\\"})
        QTest::newRow(filter) << qs(filter);
}

// Without a warning: the base of the tests sees to that.
void TEST_DEVICE_LIST::a_filter_that_is_no_valid_expression_shows_no_row()
{
    QFETCH(const QString, filter);
    open();

    edit("m_filter_line_edit").setText(filter);

    QCOMPARE(shown_rows(), QStringList());
    edit("m_filter_line_edit").clear();
    QCOMPARE(shown_rows().size(), 5);
}

void TEST_DEVICE_LIST::the_filter_knows_the_case_of_other_letters_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("shown");

    QTest::newRow("other case") << qs("GR\xC3\x9CN") << QStringList(qs("gr\xC3\xBCn"));
    QTest::newRow("any letter") << qs("gr.n") << QStringList(qs("gr\xC3\xBCn"));
    // Classes are those of ASCII.
    QTest::newRow("class") << qs("gr\\wn") << QStringList();
}

void TEST_DEVICE_LIST::the_filter_knows_the_case_of_other_letters()
{
    QFETCH(const QString, filter);
    QFETCH(const QStringList, shown);
    mgr().add_custom("gr\xC3\xBCn");
    open();

    edit("m_filter_line_edit").setText(filter);

    QCOMPARE(shown_rows(), shown);
}

void TEST_DEVICE_LIST::the_filter_hides_the_new_device_row_too()
{
    open();

    edit("m_filter_line_edit").setText(QStringLiteral("new"));
    QCOMPARE(shown_rows(), list_of({"<<new device>>"}));
    edit("m_filter_line_edit").setText(QStringLiteral("zeta"));
    QCOMPARE(shown_rows(), list_of({"Zeta"}));
}

void TEST_DEVICE_LIST::the_filter_works_while_the_user_types()
{
    open();
    show_dialog();
    edit("m_filter_line_edit").setFocus();

    QTest::keyClick(&edit("m_filter_line_edit"), Qt::Key_M);
    QCOMPARE(shown_rows(), list_of({"MX25L"}));
    QTest::keyClick(&edit("m_filter_line_edit"), Qt::Key_Backspace);
    QCOMPARE(shown_rows().size(), 5);
}

void TEST_DEVICE_LIST::the_filter_stays_when_the_list_is_rebuilt()
{
    open();
    edit("m_filter_line_edit").setText(QStringLiteral("25"));

    choose("m_family_cbox", ALDER);

    QCOMPARE(shown_rows(), list_of({"MX25L", "W25Q"}));
    QCOMPARE(edit("m_filter_line_edit").text(), QStringLiteral("25"));
}

void TEST_DEVICE_LIST::a_name_that_the_filter_hides_is_not_selected()
{
    open_with("W25Q");
    edit("m_filter_line_edit").setText(QStringLiteral("none"));
    log().clear();

    choose("m_family_cbox", ALDER);

    QCOMPARE(all_rows().size(), 5);
    QVERIFY(!table().currentIndex().isValid());
    QCOMPARE(log().count(qs("find_flash")), 0);
    // The built-in device that was shown before is no longer the current one: Apply would not touch that.
    run("on_apply_clicked");
    QCOMPARE(log().count(qs("create_flash")), 1);
}

void TEST_DEVICE_LIST::a_name_that_is_gone_leaves_the_first_row_that_the_filter_shows()
{
    open_with("W25Q");
    edit("m_filter_line_edit").setText(QStringLiteral("25"));
    mgr().builtin_names = {"MX25L", "S25"};
    log().clear();

    choose("m_family_cbox", ALDER);

    QCOMPARE(shown_rows(), list_of({"MX25L", "S25"}));
    QCOMPARE(current_row(), QStringLiteral("MX25L"));
    QCOMPARE(log().calls_of({qs("find_flash")}), list_of({R"(mgr.find_flash("MX25L", true))"}));
}

void TEST_DEVICE_LIST::a_name_that_is_gone_leaves_the_only_row_that_the_filter_shows()
{
    open_with("W25Q");
    edit("m_filter_line_edit").setText(QStringLiteral("25"));
    mgr().builtin_names = {"S26", "MX25L"};
    log().clear();

    choose("m_family_cbox", ALDER);

    QCOMPARE(shown_rows(), list_of({"MX25L"}));
    QCOMPARE(current_row(), QStringLiteral("MX25L"));
    QCOMPARE(log().calls_of({qs("find_flash")}), list_of({R"(mgr.find_flash("MX25L", true))"}));
}

void TEST_DEVICE_LIST::a_name_that_is_gone_leaves_the_first_row_of_all_when_the_filter_shows_none()
{
    open_with("W25Q");
    edit("m_filter_line_edit").setText(QStringLiteral("25Q"));
    QCOMPARE(current_row(), QStringLiteral("W25Q"));
    mgr().builtin_names = {"MX25L"};
    log().clear();

    choose("m_family_cbox", ALDER);

    QCOMPARE(shown_rows(), QStringList());
    QVERIFY(!table().currentIndex().isValid());
    QCOMPARE(log().count(qs("find_flash")), 0);
    QCOMPARE(edit("m_device_name_edit").text(), QString());
    edit("m_filter_line_edit").clear();
    QCOMPARE(current_row(), QStringLiteral("<<new device>>"));
}

void TEST_DEVICE_LIST::no_device_stands_for_the_new_device_row_even_when_the_filter_hides_it()
{
    open_with("W25Q");
    edit("m_filter_line_edit").setText(QStringLiteral("MX"));
    QVERIFY(!table().currentIndex().isValid());
    log().clear();

    choose("m_family_cbox", ALDER);

    QCOMPARE(shown_rows(), list_of({"MX25L"}));
    QCOMPARE(edit("m_device_name_edit").text(), QString());
    QVERIFY(!table().currentIndex().isValid());
    QCOMPARE(log().count(qs("find_flash")), 0);
}

void TEST_DEVICE_LIST::selecting_through_the_filter_takes_the_right_device()
{
    open();
    edit("m_filter_line_edit").setText(QStringLiteral("25"));
    log().clear();

    pick(QStringLiteral("W25Q"));

    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("W25Q"));
    QCOMPARE(log().calls_of({qs("find_flash")}), list_of({R"(mgr.find_flash("W25Q", true))"}));
}

void TEST_DEVICE_LIST::the_mouse_selects_a_device()
{
    open();
    show_dialog();
    const QModelIndex index = proxy().index(3, 0);

    QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, table().visualRect(index).center());

    QCOMPARE(current_row(), QStringLiteral("MX25L"));
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("MX25L"));
    QCOMPARE(log().calls_of({qs("find_flash")}), list_of({R"(mgr.find_flash("MX25L", true))"}));
}

void TEST_DEVICE_LIST::the_keyboard_selects_a_device()
{
    open();
    show_dialog();
    table().setFocus();

    QTest::keyClick(&table(), Qt::Key_Down);
    QTest::keyClick(&table(), Qt::Key_Down);

    QCOMPARE(current_row(), QStringLiteral("alpha"));
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("alpha"));
    QCOMPARE(log().calls_of({qs("find_flash")}),
             list_of({R"(mgr.find_flash("Zeta", true))", R"(mgr.find_flash("alpha", true))"}));
}

void TEST_DEVICE_LIST::selecting_the_selected_device_again_loads_nothing()
{
    open_with("alpha");

    pick(QStringLiteral("alpha"));

    QCOMPARE(calls(), QStringList());
}

void TEST_DEVICE_LIST::an_emptied_selection_loads_nothing()
{
    open_with("alpha");

    table().clearSelection();

    QCOMPARE(calls(), QStringList());
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("alpha"));
}

void TEST_DEVICE_LIST::a_change_loads_its_current_row_unless_it_is_the_previous_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("previous");
    QTest::addColumn<QStringList>("loaded");

    QTest::newRow("another row") << 2 << 1 << list_of({R"(mgr.find_flash("W25Q", true))"});
    QTest::newRow("the same row") << 2 << 2 << QStringList();
    QTest::newRow("nothing before") << 1 << -1 << list_of({R"(mgr.find_flash("MX25L", true))"});
    QTest::newRow("nothing now") << -1 << 1 << QStringList();
}

void TEST_DEVICE_LIST::a_change_loads_its_current_row_unless_it_is_the_previous()
{
    QFETCH(const int, current);
    QFETCH(const int, previous);
    QFETCH(const QStringList, loaded);
    open();
    // Rows of the table are not those of the model: "alpha", "MX25L", "W25Q" are shown.
    edit("m_filter_line_edit").setText(QStringLiteral("^[amw]"));
    log().clear();
    const auto selection_of = [this](int row) {
        const QModelIndex index = proxy().index(row, 0);
        return index.isValid() ? QItemSelection(index, index) : QItemSelection();
    };

    QVERIFY(QMetaObject::invokeMethod(&dlg(), "device_changed", Qt::DirectConnection,
                                      Q_ARG(QItemSelection, selection_of(current)),
                                      Q_ARG(QItemSelection, selection_of(previous))));

    QCOMPARE(log().calls_of({qs("find_flash")}), loaded);
}

void TEST_DEVICE_LIST::names_come_and_go_as_they_are_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("letters and markup") << qs("gr\xC3\xBCn <b>'%1;\"");
    QTest::newRow("blanks") << qs("  a  b ");
    QTest::newRow("pattern") << qs("a.*(b)");
    QTest::newRow("right to left") << qs("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D");
    QTest::newRow("byte order mark") << QChar(0xFEFF) + qs("A");
    QTest::newRow("10,000 letters") << QString(10000, QLatin1Char('x'));
}

void TEST_DEVICE_LIST::names_come_and_go_as_they_are()
{
    QFETCH(const QString, name);
    mgr().add_custom(name.toStdString());

    open_with(name.toStdString());
    button("m_ok_button").click();

    QCOMPARE(edit("m_device_name_edit").text(), name);
    QVERIFY(log().calls_of({qs("check_string_property")}).filter(QStringLiteral("(0,")).isEmpty());
    QCOMPARE(mgr().last_created->name, name.toStdString());
    QCOMPARE(dlg().device_name(), name.toStdString());
}

void TEST_DEVICE_LIST::an_old_row_selected_by_its_index_is_loaded_once()
{
    open();

    pick(QStringLiteral("Zeta"));
    pick(QStringLiteral("alpha"));
    pick(QStringLiteral("Zeta"));

    QCOMPARE(log().count(qs("find_flash")), 3);
}

GFPQ_TEST_MAIN(TEST_DEVICE_LIST)

#include "test_device_list.moc"
