// SPDX-License-Identifier: MIT

// The device table: its rows and how they are shown, rebuilt, selected and filtered.
#include "dialog_test.h"

#include "marking_translator.h"
#include "property_differences.h"

#include <QHeaderView>
#include <QSignalSpy>

namespace {

// What size and place make of a header.
const QStringList OF_THE_PLACE = qs("geometry frameGeometry frameRect normalGeometry x y pos frameSize size width "
                                    "height rect childrenRect childrenRegion "
                                    "minimumSize minimumWidth minimumHeight maximumSize sizeHint minimumSizeHint")
                                     .split(QLatin1Char(' '));

} // namespace

class TEST_DEVICE_LIST : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void rows_come_in_order_with_their_marks()
    {
        open();

        QCOMPARE(shown_rows(), list_of({"<<new device>>", "Zeta", "alpha", "MX25L", "W25Q"}));
        QCOMPARE(device_model().columnCount(), 1);
        for (int row = 0; row < 5; ++row) {
            const QStandardItem* const item = device_model().item(row);
            // A name and one mark, and nothing else.
            const QMap<int, QVariant> expected{{Qt::DisplayRole, item->text()},
                                               {row < 3 ? EDITABLE_ROLE : READ_ONLY_ROLE, true}};
            QCOMPARE(device_model().itemData(item->index()), expected);
            QCOMPARE(item->data(row < 3 ? EDITABLE_ROLE : READ_ONLY_ROLE).type(), QVariant::Bool);
            QCOMPARE(item->flags(), QStandardItem().flags() & ~Qt::ItemIsEditable);
        }
    }

    void without_adding_there_is_no_new_device_row()
    {
        mgr().add_allowed = false;

        open();

        QCOMPARE(shown_rows(), list_of({"Zeta", "alpha", "MX25L", "W25Q"}));
        QCOMPARE(current_row(), qs("Zeta"));

        mgr().custom_names.clear();
        mgr().builtin_names.clear();
        log().clear();
        open_recorded();

        QVERIFY(!table().currentIndex().isValid());
        QCOMPARE(calls_of({"find_flash", "can_edit_flow"}), QStringList());
    }

    // The row's text is compared with, so it stays in every language.
    void the_heading_is_translated_and_the_new_device_row_is_not()
    {
        const MARKING_TRANSLATOR translator("gfpq_dlg");
        open();

        QCOMPARE(device_model().headerData(0, Qt::Horizontal).toString(), qs("[Name]"));
        QCOMPARE(shown_rows().first(), qs("<<new device>>"));
    }

    void names_are_asked_for_the_current_family_and_mode()
    {
        mgr().custom_names_of[{ALDER, SCHEME_X1}] = {"only here"};
        mgr().builtin_names_of[{ALDER, SCHEME_X1}] = {};

        open_recorded({ALDER, SCHEME_X1});

        QCOMPARE(shown_rows(), list_of({"<<new device>>", "only here"}));
        QCOMPARE(calls_of({"get_custom_flash_names", "get_builtin_flash_names"}),
                 list_of({"mgr.get_custom_flash_names(3, 7, 0)", "mgr.get_builtin_flash_names(3, 7, 0)"}));
    }

    void the_table_is_set_up_data()
    {
        rows<QString, int>(
            {{"opened", QString(), CEDAR}, {"filtered", "25", CEDAR}, {"another family", QString(), ALDER}});
    }

    void the_table_is_set_up()
    {
        const auto [filter, family] = row<QString, int>();
        open();

        edit("m_filter_line_edit").setText(filter);
        choose("m_family_cbox", family);

        QCOMPARE(table().selectionMode(), QAbstractItemView::SingleSelection);
        QCOMPARE(table().selectionBehavior(), QAbstractItemView::SelectRows);
        QVERIFY(table().alternatingRowColors());
        const QHeaderView& header = *table().horizontalHeader();
        QCOMPARE(header.model()->headerData(0, Qt::Horizontal).toString(), qs("Name"));
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

    void the_models_and_headers_are_left_as_they_are_otherwise()
    {
        const QTableView plain;
        open();

        const QStringList differences =
            property_differences(*table().horizontalHeader(), *plain.horizontalHeader(), OF_THE_PLACE) +
            property_differences(*table().verticalHeader(), *plain.verticalHeader(), OF_THE_PLACE) +
            property_differences(proxy(), QSortFilterProxyModel(), QStringList());
        QCOMPARE(differences.join(qs(", ")),
                 qs("QHeaderView selectionMode, QHeaderView stretchLastSection, QHeaderView defaultSectionSize, "
                    "QSortFilterProxyModel sourceModel"));
        for (const QHeaderView* const header : {table().horizontalHeader(), table().verticalHeader()}) {
            QVERIFY(!header->isHidden());
            QVERIFY(!header->sectionsMovable());
            QVERIFY(header->sectionsClickable());
            QCOMPARE(header->sectionResizeMode(0), QHeaderView::Interactive);
        }
    }

    void a_rebuild_removes_and_inserts_in_one_step_each()
    {
        open();
        QSignalSpy removed(&device_model(), &QAbstractItemModel::rowsRemoved);
        QSignalSpy inserted(&device_model(), &QAbstractItemModel::rowsInserted);
        QSignalSpy reset(&device_model(), &QAbstractItemModel::modelReset);
        int rows_when_asked = -1;
        log().on_call(qs("can_add_flash"), [&](const QString&) { rows_when_asked = device_model().rowCount(); });

        choose("m_family_cbox", ALDER);

        QCOMPARE(rows_when_asked, 0);
        QCOMPARE(reset.size(), 0);
        for (const QSignalSpy* spy : {&removed, &inserted}) {
            QCOMPARE(spy->size(), 1);
            QCOMPARE(spy->first().mid(1), (QVariantList{0, 4}));
        }
    }

    void a_name_is_selected_exactly_data()
    {
        rows<QString, int>({{"custom", "alpha", 2},
                            {"built-in", "W25Q", 4},
                            {"empty", "", 0},
                            {"unknown", "none", 0},
                            {"other case", "ALPHA", 0},
                            {"part", "W25", 0},
                            {"new device", "<<new device>>", 0},
                            {"the first of two", "MX25L", 3}});
    }

    void a_name_is_selected_exactly()
    {
        const auto [name, selected] = row<QString, int>();
        mgr().builtin_names.push_back("MX25L");

        open_with(name);

        QCOMPARE(table().currentIndex().row(), selected);
        QVERIFY(table().selectionModel()->isSelected(table().currentIndex()));
    }

    void the_filter_shows_what_contains_the_pattern_data()
    {
        const QStringList all =
            list_of({"<<new device>>", "Zeta", "alpha", "MX25L", "W25Q", "gr\xC3\xBCn", "two\nlines"});
        const QStringList none;
        const QStringList green = all.mid(5, 1);
        rows<QString, QStringList>({{"empty", "", all},
                                    {"star", "*", all},
                                    {"two stars", "**", all},
                                    {"empty group", "()", all},
                                    {"text", "25", {"MX25L", "W25Q"}},
                                    {"new device", "new", {"<<new device>>"}},
                                    {"other case", "ALPHA", {"alpha"}},
                                    {"star between", "w*q", {"W25Q"}},
                                    {"star before", "*q", {"W25Q"}},
                                    {"two star parts", "m*2*l", {"MX25L"}},
                                    {"dot", "m.2", {"MX25L"}},
                                    {"anchors", "^a*A$", {"alpha"}},
                                    {"alternatives", "zeta|w25q", {"Zeta", "W25Q"}},
                                    {"class", "[mw][x2]", {"MX25L", "W25Q"}},
                                    {"plus", "x2+5", {"MX25L"}},
                                    {"nothing", "none", none},
                                    {"other case of another letter", "GR\xC3\x9CN", green},
                                    {"any letter", "gr.n", green},
                                    // Classes are those of ASCII.
                                    {"class of letters", "gr\\wn", none},
                                    // A line feed is not any character, and no place where a line begins.
                                    {"dot for a line feed", "two.lines", none},
                                    {"star for a line feed", "two*lines", none},
                                    {"anchor behind a line feed", "^lines", none},
                                    // Not valid, and without a warning: the base of the tests sees to that.
                                    {"(", "(", none},
                                    {"[", "[", none},
                                    {"a(b", "a(b", none},
                                    {"+", "+", none},
                                    {"?", "?", none},
                                    {"a{2,1}", "a{2,1}", none},
                                    {"\\", "\\", none}});
    }

    void the_filter_shows_what_contains_the_pattern()
    {
        const auto [filter, shown] = row<QString, QStringList>();
        mgr().builtin_names.push_back("gr\xC3\xBCn");
        mgr().builtin_names.push_back("two\nlines");
        open();

        type_in("m_filter_line_edit", "before");
        type_in("m_filter_line_edit", filter);
        QCOMPARE(shown_rows(), shown);

        choose("m_family_cbox", ALDER);
        QCOMPARE(shown_rows(), shown);
        type_in("m_filter_line_edit", "");
        QCOMPARE(shown_rows().size(), 7);
    }

    void the_filter_works_while_the_user_types()
    {
        open();
        show_dialog();
        edit("m_filter_line_edit").setFocus();

        QTest::keyClick(&edit("m_filter_line_edit"), Qt::Key_M);
        QCOMPARE(shown_rows(), list_of({"MX25L"}));
        QTest::keyClick(&edit("m_filter_line_edit"), Qt::Key_Backspace);
        QCOMPARE(shown_rows().size(), 5);
    }

    void a_rebuild_selects_among_the_rows_that_the_filter_shows_data()
    {
        rows<QString, QString, QString>({{"hidden name", "none", "MX25L W25Q", QString()},
                                         {"name is gone, first shown", "25", "MX25L S25", "MX25L"},
                                         {"name is gone, only shown", "25", "S26 MX25L", "MX25L"},
                                         {"name is gone, none shown", "25Q", "MX25L", QString()},
                                         {"no row before", "MX", "MX25L W25Q", QString()}});
    }

    void a_rebuild_selects_among_the_rows_that_the_filter_shows()
    {
        const auto [filter, names, selected] = row<QString, QString, QString>();
        open_with("W25Q");
        type_in("m_filter_line_edit", filter);
        mgr().builtin_names.clear();
        for (const QString& name : names.split(QLatin1Char(' ')))
            mgr().builtin_names.push_back(name.toStdString());
        log().clear();

        choose("m_family_cbox", ALDER);

        QCOMPARE(current_row(), selected);
        QCOMPARE(text("m_device_name_edit"), selected);
        QCOMPARE(calls_of({"find_flash"}),
                 selected.isEmpty() ? QStringList() : QStringList(qs("mgr.find_flash(\"%1\", true)").arg(selected)));
        QCOMPARE(text("m_filter_line_edit"), filter);
        // The built-in device that was shown before is not the current one any more: Apply would not touch that.
        run("on_apply_clicked");
        QCOMPARE(count_of("create_flash"), selected.isEmpty() ? 1 : 0);
    }

    void the_mouse_selects_a_device_through_the_filter()
    {
        open();
        show_dialog();
        type_in("m_filter_line_edit", "25");
        log().clear();
        const QModelIndex index = proxy().index(1, 0);

        QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, table().visualRect(index).center());

        QCOMPARE(text("m_device_name_edit"), qs("W25Q"));
        QCOMPARE(calls_of({"find_flash"}), list_of({R"(mgr.find_flash("W25Q", true))"}));
    }

    void the_keyboard_selects_a_device()
    {
        open();
        show_dialog();
        table().setFocus();

        QTest::keyClick(&table(), Qt::Key_Down);
        QTest::keyClick(&table(), Qt::Key_Down);

        QCOMPARE(text("m_device_name_edit"), qs("alpha"));
        QCOMPARE(calls_of({"find_flash"}),
                 list_of({R"(mgr.find_flash("Zeta", true))", R"(mgr.find_flash("alpha", true))"}));
        QTest::keyClick(&table(), Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(current_row(), qs("<<new device>>"));
        QVERIFY(table().hasFocus());
    }

    void only_another_row_is_loaded()
    {
        open_with("alpha");

        pick("alpha");
        table().clearSelection();

        QCOMPARE(calls(), QStringList());
        QCOMPARE(text("m_device_name_edit"), qs("alpha"));
        for (const char* name : {"Zeta", "alpha", "Zeta"})
            pick(name);
        QCOMPARE(count_of("find_flash"), 3);
    }

    void a_change_loads_its_current_row_unless_it_is_the_previous_data()
    {
        rows<int, int, QStringList>({{"another row", 2, 1, {R"(mgr.find_flash("W25Q", true))"}},
                                     {"the same row", 2, 2, QStringList()},
                                     {"nothing before", 1, -1, {R"(mgr.find_flash("MX25L", true))"}},
                                     {"nothing now", -1, 1, QStringList()}});
    }

    void a_change_loads_its_current_row_unless_it_is_the_previous()
    {
        const auto [current, previous, loaded] = row<int, int, QStringList>();
        open();
        // Rows of the table are not those of the model: "alpha", "MX25L", "W25Q" are shown.
        type_in("m_filter_line_edit", "^[amw]");
        log().clear();
        const auto selection_of = [this](int row) {
            const QModelIndex index = proxy().index(row, 0);
            return index.isValid() ? QItemSelection(index, index) : QItemSelection();
        };

        QVERIFY(QMetaObject::invokeMethod(&dlg(), "device_changed", Qt::DirectConnection,
                                          Q_ARG(QItemSelection, selection_of(current)),
                                          Q_ARG(QItemSelection, selection_of(previous))));

        QCOMPARE(calls_of({"find_flash"}), loaded);
    }

    void names_come_and_go_as_they_are_data()
    {
        rows<QString>({{"letters and markup", "gr\xC3\xBCn <b>'%1;\""},
                       {"blanks", "  a  b "},
                       {"pattern", "a.*(b)"},
                       {"right to left", "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D"},
                       {"byte order mark", QChar(0xFEFF) + qs("A")},
                       {"10,000 letters", QString(10000, QLatin1Char('x'))}});
    }

    void names_come_and_go_as_they_are()
    {
        const QString name = row<QString>();
        mgr().add_custom(name.toStdString());

        open_with(name.toStdString());
        button("m_ok_button").click();

        QCOMPARE(text("m_device_name_edit"), name);
        QVERIFY(calls_of({"check_string_property"}).filter(qs("(0,")).isEmpty());
        QCOMPARE(mgr().last_created->name, name.toStdString());
        QCOMPARE(dlg().device_name(), name.toStdString());
    }

private:
    void fill_world() override
    {
        mgr().add_custom("Zeta");
        mgr().add_custom("alpha");
        mgr().add_builtin("MX25L");
        mgr().add_builtin("W25Q");
    }
};

GFPQ_TEST_MAIN(TEST_DEVICE_LIST)

#include "test_device_list.moc"
