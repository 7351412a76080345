// SPDX-License-Identifier: MIT

// Texts outside ASCII where the local 8-bit encoding is no UTF-8: on their way from the library to the widgets and
// back.
#include "code_page.h"
#include "dialog_test.h"

#include "dialog/gfpq_edit_template_dlg.h"

#include <filesystem>

namespace {

// The euro sign stands elsewhere in Latin-1, and takes three bytes in UTF-8.
constexpr const char* CODE_PAGE_NAME = "ISO-8859-15";
const std::string EURO = "\xA4";

QString shown(const char* before)
{
    return QString::fromUtf8(before) + QChar(0x20AC);
}

} // namespace

class TEST_CODE_PAGE : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void a_record_is_shown_in_the_code_page();
    void choices_are_shown_in_the_code_page();
    void families_keep_their_own_encoding();
    void a_saved_record_has_the_bytes_of_the_code_page();
    void fields_are_checked_in_the_code_page();
    void refusals_are_shown_in_the_code_page_data();
    void refusals_are_shown_in_the_code_page();
    void form_errors_are_shown_in_the_code_page_data();
    void form_errors_are_shown_in_the_code_page();
    void a_stored_template_is_asked_for_in_the_code_page();
    void stored_templates_are_listed_and_removed_in_the_code_page();
    void a_typed_directory_goes_out_in_the_code_page();
    void browsing_starts_and_ends_in_the_code_page();

private:
    void fill_world() override;
    bool apply();

    const CODE_PAGE m_code_page{CODE_PAGE_NAME};
};

void TEST_CODE_PAGE::fill_world()
{
    FLASH_DOUBLE& flash = mgr().add_custom("name " + EURO);
    flash.strings = {{1, "id " + EURO}, {2, "volt " + EURO}, {3, "dense " + EURO}, {8, "gone " + EURO}};
    mgr().voltages = {"volt", "volt " + EURO};
    mgr().densities = {"dense", "dense " + EURO};
    mgr().templates.push_back("template " + EURO);
    mgr().user_templates = {"template " + EURO};
}

bool TEST_CODE_PAGE::apply()
{
    bool applied = false;
    QMetaObject::invokeMethod(&dlg(), "on_apply_clicked", Qt::DirectConnection, Q_RETURN_ARG(bool, applied));
    return applied;
}

void TEST_CODE_PAGE::a_record_is_shown_in_the_code_page()
{
    open_with("name " + EURO);

    QCOMPARE(current_row(), shown("name "));
    QCOMPARE(edit("m_device_name_edit").text(), shown("name "));
    QCOMPARE(edit("m_device_id_edit").text(), shown("id "));
    QCOMPARE(combo("m_voltage_cbox").currentText(), shown("volt "));
    QCOMPARE(combo("m_density_cbox").currentText(), shown("dense "));
    QCOMPARE(combo("m_flow_template_cbox").currentText(), shown("gone "));
}

void TEST_CODE_PAGE::choices_are_shown_in_the_code_page()
{
    open();

    QCOMPARE(items("m_voltage_cbox"), QStringList({qs("volt"), shown("volt ")}));
    QCOMPARE(items("m_density_cbox"), QStringList({qs("dense"), shown("dense ")}));
    QCOMPARE(items("m_flow_template_cbox").last(), shown("template "));
}

// The host's names of families are UTF-8, whatever the code page.
void TEST_CODE_PAGE::families_keep_their_own_encoding()
{
    mgr().families = {CEDAR, 8};
    DIALOG_ARGS args;
    args.family = 8;

    open(args);

    QCOMPARE(items("m_family_cbox"), QStringList({qs("Cedar"), shown("Nu\xC3\x9F"
                                                                     "baum ")}));
    QCOMPARE(combo("m_family_cbox").currentIndex(), 1);
}

void TEST_CODE_PAGE::a_saved_record_has_the_bytes_of_the_code_page()
{
    open_with("name " + EURO);
    check("m_save_template_check").setChecked(true);
    edit("m_template_name_edit").setText(shown("new template "));
    log().clear();

    button("m_ok_button").click();

    const FLASH_DOUBLE& saved = *mgr().last_created;
    QCOMPARE(saved.name, "name " + EURO);
    QCOMPARE(saved.strings, (std::map<int, std::string>{{1, "id " + EURO},
                                                        {2, "volt " + EURO},
                                                        {3, "dense " + EURO},
                                                        {7, "new template " + EURO},
                                                        {8, "gone " + EURO}}));
    QCOMPARE(log().calls_of({qs("delete_flash")}),
             QStringList(QStringLiteral("mgr.delete_flash(%1, \"/db/custom/\")").arg(log_text("name " + EURO))));
    QCOMPARE(dlg().device_name(), "name " + EURO);
}

void TEST_CODE_PAGE::fields_are_checked_in_the_code_page()
{
    open();

    enter("m_device_name_edit", shown("name "));
    enter("m_device_id_edit", shown("id "));
    choose_text("m_voltage_cbox", shown("volt "));
    choose_text("m_density_cbox", shown("dense "));

    QCOMPARE(calls(), QStringList({QStringLiteral("mgr.check_string_property(0, %1)").arg(log_text("name " + EURO)),
                                   QStringLiteral("mgr.check_string_property(1, %1)").arg(log_text("id " + EURO)),
                                   QStringLiteral("mgr.check_string_property(2, %1)").arg(log_text("volt " + EURO)),
                                   QStringLiteral("mgr.verify_string_property(2, %1)").arg(log_text("volt " + EURO)),
                                   QStringLiteral("mgr.check_string_property(3, %1)").arg(log_text("dense " + EURO))}));
}

void TEST_CODE_PAGE::refusals_are_shown_in_the_code_page_data()
{
    QTest::addColumn<int>("property");

    QTest::newRow("m_device_name_edit") << 0;
    QTest::newRow("m_voltage_cbox") << 2;
    QTest::newRow("m_total_die_edit") << 4;
}

void TEST_CODE_PAGE::refusals_are_shown_in_the_code_page()
{
    QFETCH(const int, property);
    mgr().refuse(property, "error " + EURO);
    open();
    m_modals.expect(MODAL_DRIVER::accept());

    if (property == 2)
        choose_text("m_voltage_cbox", shown("volt "));
    else
        enter(QTest::currentDataTag(), QStringLiteral("1"));

    QCOMPARE(m_modals.last().text, shown("error "));
}

void TEST_CODE_PAGE::form_errors_are_shown_in_the_code_page_data()
{
    QTest::addColumn<int>("property");

    QTest::newRow("text") << 1;
    QTest::newRow("number") << 5;
    QTest::newRow("action") << -1;
}

void TEST_CODE_PAGE::form_errors_are_shown_in_the_code_page()
{
    QFETCH(const int, property);
    mgr().builtin_template_operations[{0, false}] = make_operations("step");
    if (property >= 0)
        mgr().refuse(property, "error " + EURO);
    open();
    if (property < 0)
        dynamic_cast<ACTION_DOUBLE&>(*page(2).get_flow().at(0)).refused[GFPDB_WR_DATA] = "error " + EURO;
    m_modals.expect(MODAL_DRIVER::accept());

    QVERIFY(!apply());

    QVERIFY(m_modals.last().text.endsWith(shown("\n\nerror ")));
}

void TEST_CODE_PAGE::a_stored_template_is_asked_for_in_the_code_page()
{
    const QString name = log_text("template " + EURO);
    open();

    choose_text("m_flow_template_cbox", shown("template "));
    QVERIFY(apply());

    QCOMPARE(log().calls_of({qs("check_string_property"), qs("get_template_operations"), qs("find_flash")}).mid(0, 4),
             QStringList({QStringLiteral("mgr.check_string_property(8, %1)").arg(name),
                          QStringLiteral("mgr.get_template_operations(%1, false)").arg(name),
                          QStringLiteral("mgr.check_string_property(0, \"\")"),
                          QStringLiteral("mgr.check_string_property(1, \"\")")}));
    QVERIFY(log().calls().contains(QStringLiteral("mgr.find_flash(%1, true)").arg(name)));
    QCOMPARE(mgr().last_created->strings[8], "template " + EURO);
}

void TEST_CODE_PAGE::stored_templates_are_listed_and_removed_in_the_code_page()
{
    GFPQ_EDIT_TEMPLATE_DLG editor(nullptr, &mgr());
    auto* const list = editor.findChild<QTableView*>(QStringLiteral("m_template_table_view"));
    QCOMPARE(list->model()->index(0, 0).data().toString(), shown("template "));
    list->selectRow(0);

    editor.findChild<QPushButton*>(QStringLiteral("m_remove_button"))->click();

    QCOMPARE(log().calls_of({qs("remove_template")}),
             QStringList(QStringLiteral("mgr.remove_template(%1)").arg(log_text("template " + EURO))));
}

void TEST_CODE_PAGE::a_typed_directory_goes_out_in_the_code_page()
{
    open();

    enter("m_directory_edit", shown("/typed "));

    QCOMPARE(world().custom_dir, "/typed " + EURO + "/");
    // What comes back is shown byte by byte.
    QCOMPARE(edit("m_directory_edit").text(), qs("/typed ") + QChar(0xA4) + QLatin1Char('/'));
}

void TEST_CODE_PAGE::browsing_starts_and_ends_in_the_code_page()
{
    const std::string start = scratch().toStdString() + "/start " + EURO;
    std::filesystem::create_directory(start);
    world().custom_dir = start + "/";
    file_dlg_answers().result = QDialog::Accepted;
    file_dlg_answers().selected = QStringList{shown("/chosen ")};
    open();

    button("m_browse_button").click();

    QCOMPARE(log().calls_of({qs("set_directory")}),
             QStringList(QStringLiteral("file_dlg.set_directory(\"%1/\")").arg(scratch() + shown("/start "))));
    QCOMPARE(world().custom_dir, "/chosen " + EURO + "/");
}

GFPQ_TEST_MAIN(TEST_CODE_PAGE)

#include "test_code_page.moc"
