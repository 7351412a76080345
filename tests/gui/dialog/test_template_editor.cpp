// SPDX-License-Identifier: MIT

// The template editor: its form, its list, Remove and Close.
#include "dialog_test.h"

#include "dialog/gfpq_edit_template_dlg.h"

#include "marking_translator.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QSignalSpy>

namespace {

QString item_name(QLayoutItem* item)
{
    if (item->widget() != nullptr)
        return item->widget()->objectName();
    if (item->layout() != nullptr)
        return item->layout()->objectName();
    return qs("spacer");
}

} // namespace

class TEST_TEMPLATE_EDITOR : public GUI_TEST
{
    Q_OBJECT

private slots:
    void the_window_has_its_title_size_and_flags()
    {
        open();

        QCOMPARE(m_editor->objectName(), qs("gfpq_edit_template_dlg"));
        QCOMPARE(m_editor->windowTitle(), qs("Edit Templates"));
        QCOMPARE(m_editor->size(), QSize(551, 361));
        QCOMPARE(static_cast<int>(m_editor->windowFlags() & ~Qt::WindowType_Mask), 0x08003000);
        QCOMPARE(m_editor->windowType(), Qt::Dialog);
        // The size is only the first one.
        m_editor->resize(400, 300);
        QCOMPARE(m_editor->size(), QSize(400, 300));
    }

    void the_form_is_laid_out()
    {
        open();

        QCOMPARE(m_editor->layout()->objectName(), qs("verticalLayout"));
        QCOMPARE(items_of("verticalLayout"), list_of({"horizontalLayout_2", "horizontalLayout"}));
        QCOMPARE(items_of("horizontalLayout_2"), list_of({"m_templates_label", "spacer"}));
        QCOMPARE(items_of("horizontalLayout"), list_of({"verticalLayout_3", "verticalLayout_2"}));
        QCOMPARE(items_of("verticalLayout_3"), list_of({"m_template_table_view"}));
        QCOMPARE(items_of("verticalLayout_2"), list_of({"m_remove_button", "spacer", "m_close_button"}));
        for (const char* name : {"verticalLayout", "verticalLayout_2", "verticalLayout_3"})
            QCOMPARE(child<QBoxLayout>(name).direction(), QBoxLayout::TopToBottom);
        for (const char* name : {"horizontalLayout", "horizontalLayout_2"})
            QCOMPARE(child<QBoxLayout>(name).direction(), QBoxLayout::LeftToRight);
    }

    void spacers_have_their_sizes()
    {
        open();
        const QSpacerItem& horizontal = *child<QBoxLayout>("horizontalLayout_2").itemAt(1)->spacerItem();
        const QSpacerItem& vertical = *child<QBoxLayout>("verticalLayout_2").itemAt(1)->spacerItem();

        QCOMPARE(horizontal.sizeHint(), QSize(40, 20));
        QCOMPARE(horizontal.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(horizontal.sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(vertical.sizeHint(), QSize(20, 40));
        QCOMPARE(vertical.sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(vertical.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    }

    void the_texts_are_translated()
    {
        const auto texts = [this] {
            open();
            return QStringList{m_editor->windowTitle(), child<QLabel>("m_templates_label").text(),
                               remove_button().text(), close_button().text()};
        };
        QCOMPARE(texts(), list_of({"Edit Templates", "Templates:", "Remove", "Close"}));
        const MARKING_TRANSLATOR translator("gfpq_edit_template_dlg");
        QCOMPARE(texts(), list_of({"[Edit Templates]", "[Templates:]", "[Remove]", "[Close]"}));
    }

    void the_table_is_set_up()
    {
        open();

        QCOMPARE(table().selectionMode(), QAbstractItemView::SingleSelection);
        QCOMPARE(table().selectionBehavior(), QAbstractItemView::SelectRows);
        QVERIFY(table().alternatingRowColors());
        QVERIFY(table().horizontalHeader()->stretchLastSection());
        QVERIFY(table().horizontalHeader()->isHidden());
        QVERIFY(table().verticalHeader()->isHidden());
        QCOMPARE(table().model()->columnCount(), 1);
    }

    void the_stored_templates_are_listed_in_order()
    {
        open();

        QCOMPARE(rows(), list_of({"zeta", "Alpha", "beta"}));
        for (int row = 0; row < 3; ++row)
            QVERIFY(!table().model()->index(row, 0).flags().testFlag(Qt::ItemIsEditable));
        QVERIFY(!m_editor->changed());
        QVERIFY(!remove_button().autoDefault() && !remove_button().isDefault() && !close_button().isDefault());
    }

    void without_a_manager_there_is_no_editor()
    {
        QStringList built;
        log().on_call(qs("report"), [&built](const QString&) {
            for (const QWidget* widget : QApplication::allWidgets())
                built.append(widget->objectName());
        });

        QVERIFY_EXCEPTION_THROWN(GFPQ_EDIT_TEMPLATE_DLG(nullptr, nullptr), INTERNAL_ERROR_REPORTED);

        const INTERNAL_ERROR_REPORTED& error = reported_internal_errors().back();
        QCOMPARE(error.condition, std::string("m_gfpdb_mgr != NULL"));
        QCOMPARE(error.category, std::string("GFPQ"));
        QCOMPARE(error.source, std::string("pgm/gfpq/gfpq_edit_template_dlg"));
        QVERIFY(!built.isEmpty());
        QVERIFY(!built.contains(qs("m_template_table_view")));
    }

    void remove_takes_the_selected_template()
    {
        mgr().user_templates = {"zeta", "gr\xC3\xBCn <b>'%1;\""};
        open();
        QSignalSpy finished(m_editor.get(), &QDialog::finished);
        // Nothing is selected at first.
        QVERIFY(remove_button().isEnabled());
        remove_button().click();
        QVERIFY(!m_editor->changed());
        QCOMPARE(log().calls(), QStringList());

        table().selectRow(1);
        remove_button().click();
        QCOMPARE(log().calls(),
                 list_of({"mgr.remove_template(\"gr\xC3\xBCn <b>'%1;\"\")", "mgr.get_user_template_list()"}));
        QCOMPARE(rows(), list_of({"zeta"}));
        QVERIFY(m_editor->changed());
        remove_button().click();
        QCOMPARE(count_of("remove_template"), 1);

        table().selectRow(0);
        remove_button().click();
        remove_button().click();
        QCOMPARE(count_of("remove_template"), 2);
        QCOMPARE(rows(), QStringList());
        QCOMPARE(finished.size(), 0);
    }

    void a_failed_removal_raises_the_message()
    {
        mgr().remove_succeeds = false;
        open();
        const MARKING_TRANSLATOR translator("gfpq_dlg");
        table().selectRow(0);

        remove_button().click();

        QCOMPARE(log().calls(),
                 list_of({R"(mgr.remove_template("zeta"))", "MSG_O.created(null)",
                          R"(MSG_O.fill_args("Failed to delete flash from database./OGFPQ_DELETE_DB_FAILED"))",
                          "MSG_O.set_id(20440)", "MSG_O.prompt(null)", "MSG_O.destroyed()"}));
        QCOMPARE(rows(), list_of({"zeta", "Alpha", "beta"}));
        QCOMPARE(table().selectionModel()->selectedRows().value(0).row(), 0);
        QVERIFY(!m_editor->changed());
        // Nor is an earlier removal forgotten.
        mgr().remove_succeeds = true;
        remove_button().click();
        mgr().remove_succeeds = false;
        table().selectRow(0);
        remove_button().click();
        QVERIFY(m_editor->changed());
    }

    void close_accepts_and_escape_rejects()
    {
        open();
        QSignalSpy accepted(m_editor.get(), &QDialog::accepted);
        QSignalSpy rejected(m_editor.get(), &QDialog::rejected);

        close_button().click();
        QCOMPARE(accepted.size(), 1);
        QCOMPARE(rejected.size(), 0);
        QTest::keyClick(m_editor.get(), Qt::Key_Escape);
        QCOMPARE(rejected.size(), 1);
        QCOMPARE(log().calls(), QStringList());
    }

    void return_in_the_table_removes_nothing()
    {
        open();
        m_editor->show();
        m_editor->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_editor.get()));
        table().setFocus();
        table().selectRow(1);

        QTest::keyClick(&table(), Qt::Key_Return);

        QCOMPARE(log().calls(), QStringList());
        QCOMPARE(rows().size(), 3);
    }

private:
    void set_up() override { mgr().user_templates = {"zeta", "Alpha", "beta"}; }

    void take_down() override { m_editor.reset(); }

    GFPQ_EDIT_TEMPLATE_DLG& open()
    {
        m_editor = std::make_unique<GFPQ_EDIT_TEMPLATE_DLG>(nullptr, &mgr());
        log().clear();
        return *m_editor;
    }

    QStringList rows() const
    {
        QStringList names;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            names.append(table().model()->index(row, 0).data().toString());
        return names;
    }

    QTableView& table() const { return child<QTableView>("m_template_table_view"); }
    QPushButton& remove_button() const { return child<QPushButton>("m_remove_button"); }
    QPushButton& close_button() const { return child<QPushButton>("m_close_button"); }

    QStringList items_of(const char* layout) const
    {
        auto& box = child<QBoxLayout>(layout);
        QStringList names;
        for (int index = 0; index < box.count(); ++index)
            names.append(item_name(box.itemAt(index)));
        return names;
    }

    template <typename OBJECT>
    OBJECT& child(const char* name) const
    {
        auto* const found = m_editor->findChild<OBJECT*>(QLatin1String(name));
        if (found == nullptr)
            qFatal("no %s", name);
        return *found;
    }

    std::unique_ptr<GFPQ_EDIT_TEMPLATE_DLG> m_editor;
};

GFPQ_TEST_MAIN(TEST_TEMPLATE_EDITOR)

#include "test_template_editor.moc"
