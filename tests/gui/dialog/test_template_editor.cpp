// SPDX-License-Identifier: MIT

// The template editor: its form, its list, Remove and Close.
#include "dialog_test.h"

#include "dialog/gfpq_edit_template_dlg.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTranslator>

namespace {

QString item_name(QLayoutItem* item)
{
    if (item->widget() != nullptr)
        return item->widget()->objectName();
    if (item->layout() != nullptr)
        return item->layout()->objectName();
    return QStringLiteral("spacer");
}

} // namespace

class TEST_TEMPLATE_EDITOR : public GUI_TEST
{
    Q_OBJECT

private slots:
    void the_window_has_its_title_size_and_flags();
    void the_form_is_laid_out();
    void spacers_have_their_sizes();
    void the_texts_are_translated();
    void the_remove_button_is_no_auto_default_button();
    void the_table_is_set_up();
    void the_stored_templates_are_listed_in_order();
    void without_a_manager_there_is_no_editor();
    void remove_takes_the_selected_template();
    void remove_without_a_selection_does_nothing();
    void a_failed_removal_raises_the_message();
    void an_emptied_list_stays_usable();
    void names_go_out_as_they_are();
    void close_accepts();
    void escape_rejects();
    void return_in_the_table_removes_nothing();
    void removing_asks_no_question();

private:
    void set_up() override;
    void take_down() override;
    GFPQ_EDIT_TEMPLATE_DLG& open();
    QStringList rows() const;
    QTableView& table() const { return child<QTableView>("m_template_table_view"); }
    QPushButton& remove_button() const { return child<QPushButton>("m_remove_button"); }
    QPushButton& close_button() const { return child<QPushButton>("m_close_button"); }
    QStringList items_of(const char* layout) const;

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

void TEST_TEMPLATE_EDITOR::set_up()
{
    mgr().user_templates = {"zeta", "Alpha", "beta"};
}

void TEST_TEMPLATE_EDITOR::take_down()
{
    m_editor.reset();
}

GFPQ_EDIT_TEMPLATE_DLG& TEST_TEMPLATE_EDITOR::open()
{
    m_editor = std::make_unique<GFPQ_EDIT_TEMPLATE_DLG>(nullptr, &mgr());
    log().clear();
    return *m_editor;
}

QStringList TEST_TEMPLATE_EDITOR::rows() const
{
    QStringList names;
    for (int row = 0; row < table().model()->rowCount(); ++row)
        names.append(table().model()->index(row, 0).data().toString());
    return names;
}

QStringList TEST_TEMPLATE_EDITOR::items_of(const char* layout) const
{
    auto& box = child<QBoxLayout>(layout);
    QStringList names;
    for (int index = 0; index < box.count(); ++index)
        names.append(item_name(box.itemAt(index)));
    return names;
}

void TEST_TEMPLATE_EDITOR::the_window_has_its_title_size_and_flags()
{
    open();

    QCOMPARE(m_editor->objectName(), QStringLiteral("gfpq_edit_template_dlg"));
    QCOMPARE(m_editor->windowTitle(), QStringLiteral("Edit Templates"));
    QCOMPARE(m_editor->size(), QSize(551, 361));
    QCOMPARE(static_cast<int>(m_editor->windowFlags() & ~Qt::WindowType_Mask), 0x08003000);
    QCOMPARE(m_editor->windowType(), Qt::Dialog);
}

void TEST_TEMPLATE_EDITOR::the_form_is_laid_out()
{
    open();

    QCOMPARE(m_editor->layout()->objectName(), QStringLiteral("verticalLayout"));
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

void TEST_TEMPLATE_EDITOR::spacers_have_their_sizes()
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

namespace {

class MARKING_TRANSLATOR : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return qstrcmp(context, "gfpq_edit_template_dlg") == 0 ? QLatin1Char('<') + QString::fromUtf8(source)
                                                               : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

void TEST_TEMPLATE_EDITOR::the_texts_are_translated()
{
    open();
    QCOMPARE(child<QLabel>("m_templates_label").text(), QStringLiteral("Templates:"));
    QCOMPARE(remove_button().text(), QStringLiteral("Remove"));
    QCOMPARE(close_button().text(), QStringLiteral("Close"));
    MARKING_TRANSLATOR translator;
    QCoreApplication::installTranslator(&translator);

    open();
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(m_editor->windowTitle(), QStringLiteral("<Edit Templates"));
    QCOMPARE(child<QLabel>("m_templates_label").text(), QStringLiteral("<Templates:"));
    QCOMPARE(remove_button().text(), QStringLiteral("<Remove"));
    QCOMPARE(close_button().text(), QStringLiteral("<Close"));
}

void TEST_TEMPLATE_EDITOR::the_remove_button_is_no_auto_default_button()
{
    open();

    QVERIFY(!remove_button().autoDefault());
    QVERIFY(!remove_button().isDefault());
    QVERIFY(!close_button().isDefault());
}

void TEST_TEMPLATE_EDITOR::the_table_is_set_up()
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

void TEST_TEMPLATE_EDITOR::the_stored_templates_are_listed_in_order()
{
    open();

    QCOMPARE(rows(), list_of({"zeta", "Alpha", "beta"}));
    for (int row = 0; row < 3; ++row)
        QVERIFY(!table().model()->index(row, 0).flags().testFlag(Qt::ItemIsEditable));
    QVERIFY(!m_editor->changed());
}

void TEST_TEMPLATE_EDITOR::without_a_manager_there_is_no_editor()
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
    QVERIFY(!built.contains(QStringLiteral("m_template_table_view")));
}

void TEST_TEMPLATE_EDITOR::remove_takes_the_selected_template()
{
    open();
    table().selectRow(1);

    remove_button().click();

    QCOMPARE(log().calls(), list_of({R"(mgr.remove_template("Alpha"))", "mgr.get_user_template_list()"}));
    QCOMPARE(rows(), list_of({"zeta", "beta"}));
    QVERIFY(m_editor->changed());
}

void TEST_TEMPLATE_EDITOR::remove_without_a_selection_does_nothing()
{
    open();
    table().clearSelection();

    remove_button().click();

    QCOMPARE(log().calls(), QStringList());
    QVERIFY(!m_editor->changed());
    QCOMPARE(rows().size(), 3);
}

void TEST_TEMPLATE_EDITOR::a_failed_removal_raises_the_message()
{
    mgr().remove_succeeds = false;
    open();
    table().selectRow(0);

    remove_button().click();

    QCOMPARE(log().calls(),
             list_of({R"(mgr.remove_template("zeta"))", "MSG_O.created(null)",
                      R"(MSG_O.fill_args("Failed to delete flash from database./OGFPQ_DELETE_DB_FAILED"))",
                      "MSG_O.set_id(20440)", "MSG_O.prompt(null)", "MSG_O.destroyed()"}));
    QCOMPARE(rows(), list_of({"zeta", "Alpha", "beta"}));
    QVERIFY(!m_editor->changed());
}

void TEST_TEMPLATE_EDITOR::an_emptied_list_stays_usable()
{
    mgr().user_templates = {"only"};
    open();
    table().selectRow(0);

    remove_button().click();
    remove_button().click();

    QCOMPARE(rows(), QStringList());
    QCOMPARE(log().count(qs("remove_template")), 1);
    QVERIFY(m_editor->changed());
}

void TEST_TEMPLATE_EDITOR::names_go_out_as_they_are()
{
    mgr().user_templates = {"gr\xC3\xBCn <b>'%1;\""};
    open();
    table().selectRow(0);

    remove_button().click();

    QCOMPARE(log().calls().first(), qs("mgr.remove_template(\"gr\xC3\xBCn <b>'%1;\"\")"));
}

void TEST_TEMPLATE_EDITOR::close_accepts()
{
    open();
    QSignalSpy accepted(m_editor.get(), &QDialog::accepted);

    close_button().click();

    QCOMPARE(accepted.size(), 1);
    QCOMPARE(log().calls(), QStringList());
}

void TEST_TEMPLATE_EDITOR::escape_rejects()
{
    open();
    QSignalSpy rejected(m_editor.get(), &QDialog::rejected);

    QTest::keyClick(m_editor.get(), Qt::Key_Escape);

    QCOMPARE(rejected.size(), 1);
}

void TEST_TEMPLATE_EDITOR::return_in_the_table_removes_nothing()
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

void TEST_TEMPLATE_EDITOR::removing_asks_no_question()
{
    open();
    table().selectRow(0);

    remove_button().click();

    QVERIFY(m_modals.met().isEmpty());
}

GFPQ_TEST_MAIN(TEST_TEMPLATE_EDITOR)

#include "test_template_editor.moc"
