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
    void a_record_is_shown_in_the_code_page()
    {
        open_with("name " + EURO);

        QCOMPARE(current_row(), shown("name "));
        QCOMPARE(text("m_device_name_edit"), shown("name "));
        QCOMPARE(text("m_device_id_edit"), shown("id "));
        QCOMPARE(text("m_voltage_cbox"), shown("volt "));
        QCOMPARE(text("m_density_cbox"), shown("dense "));
        QCOMPARE(text("m_flow_template_cbox"), shown("gone "));
    }

    void choices_are_shown_in_the_code_page()
    {
        open();

        QCOMPARE(items("m_voltage_cbox"), QStringList({qs("volt"), shown("volt ")}));
        QCOMPARE(items("m_density_cbox"), QStringList({qs("dense"), shown("dense ")}));
        QCOMPARE(items("m_flow_template_cbox").last(), shown("template "));
    }

    // The host's names of families are UTF-8, whatever the code page.
    void families_keep_their_own_encoding()
    {
        mgr().families = {CEDAR, 8};
        DIALOG_ARGS args;
        args.family = 8;

        open(args);

        QCOMPARE(items("m_family_cbox"), QStringList({qs("Cedar"), shown("Nu\xC3\x9F"
                                                                         "baum ")}));
        QCOMPARE(combo("m_family_cbox").currentIndex(), 1);
        // So are the dialog's own tables.
        QVERIFY(page(GFPDB_OPERATION_ERASE).findChild<QLabel*>()->text().contains(QChar(0x201C)));
    }

    void a_saved_record_has_the_bytes_of_the_code_page()
    {
        open_with("name " + EURO);
        check("m_save_template_check").setChecked(true);
        edit("m_template_name_edit").setText(shown("new template "));
        log().clear();

        button("m_ok_button").click();

        const FLASH_DOUBLE& saved = *mgr().last_created;
        QCOMPARE(saved.name, "name " + EURO);
        QCOMPARE(saved.strings, (std::map<int, std::string>{{GFPDB_FLASH_DEVICE_ID, "id " + EURO},
                                                            {GFPDB_FLASH_VOLTAGE, "volt " + EURO},
                                                            {GFPDB_FLASH_DENSITY, "dense " + EURO},
                                                            {GFPDB_FLASH_TEMPLATE_NAME, "new template " + EURO},
                                                            {GFPDB_FLASH_FLOW_TEMPLATE, "gone " + EURO}}));
        QCOMPARE(calls_of({"delete_flash"}),
                 QStringList(qs("mgr.delete_flash(%1, \"/db/custom/\")").arg(logged("name " + EURO))));
        QCOMPARE(dlg().device_name(), "name " + EURO);
    }

    void fields_are_checked_in_the_code_page()
    {
        open();

        enter("m_device_name_edit", shown("name "));
        enter("m_device_id_edit", shown("id "));
        choose_text("m_voltage_cbox", shown("volt "));
        choose_text("m_density_cbox", shown("dense "));

        QCOMPARE(calls(), QStringList({qs("mgr.check_string_property(0, %1)").arg(logged("name " + EURO)),
                                       qs("mgr.check_string_property(1, %1)").arg(logged("id " + EURO)),
                                       qs("mgr.check_string_property(2, %1)").arg(logged("volt " + EURO)),
                                       qs("mgr.verify_string_property(2, %1)").arg(logged("volt " + EURO)),
                                       qs("mgr.check_string_property(3, %1)").arg(logged("dense " + EURO))}));
    }

    void refusals_are_shown_in_the_code_page_data()
    {
        rows<int>({{"m_device_name_edit", 0}, {"m_voltage_cbox", 2}, {"m_total_die_edit", 4}});
    }

    void refusals_are_shown_in_the_code_page()
    {
        const int property = row<int>();
        mgr().refuse(property, "error " + EURO);
        open();
        m_modals.expect(MODAL_DRIVER::accept());

        if (property == 2)
            choose_text("m_voltage_cbox", shown("volt "));
        else
            enter(QTest::currentDataTag(), qs("1"));

        QCOMPARE(m_modals.last().text, shown("error "));
    }

    void form_errors_are_shown_in_the_code_page_data() { rows<int>({{"text", 1}, {"number", 5}, {"action", -1}}); }

    void form_errors_are_shown_in_the_code_page()
    {
        const int property = row<int>();
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

    void a_stored_template_is_asked_for_in_the_code_page()
    {
        const QString name = logged("template " + EURO);
        open();

        choose_text("m_flow_template_cbox", shown("template "));
        QVERIFY(apply());

        QCOMPARE(calls_of({"check_string_property", "get_template_operations", "find_flash"}).mid(0, 4),
                 QStringList({qs("mgr.check_string_property(8, %1)").arg(name),
                              qs("mgr.get_template_operations(%1, false)").arg(name),
                              qs("mgr.check_string_property(0, \"\")"), qs("mgr.check_string_property(1, \"\")")}));
        QVERIFY(log().calls().contains(qs("mgr.find_flash(%1, true)").arg(name)));
        QCOMPARE(mgr().last_created->strings[GFPDB_FLASH_FLOW_TEMPLATE], "template " + EURO);
    }

    void stored_templates_are_listed_and_removed_in_the_code_page()
    {
        GFPQ_EDIT_TEMPLATE_DLG editor(nullptr, &mgr());
        auto* const list = editor.findChild<QTableView*>(qs("m_template_table_view"));
        QCOMPARE(list->model()->index(0, 0).data().toString(), shown("template "));
        list->selectRow(0);

        editor.findChild<QPushButton*>(qs("m_remove_button"))->click();

        QCOMPARE(calls_of({"remove_template"}),
                 QStringList(qs("mgr.remove_template(%1)").arg(logged("template " + EURO))));
    }

    void a_typed_directory_goes_out_in_the_code_page()
    {
        open();

        enter("m_directory_edit", shown("/typed "));

        QCOMPARE(world().custom_dir, "/typed " + EURO + "/");
        // What comes back is shown byte by byte.
        QCOMPARE(text("m_directory_edit"), qs("/typed ") + QChar(0xA4) + QLatin1Char('/'));
    }

    void browsing_starts_and_ends_in_the_code_page()
    {
        const std::string start = scratch().toStdString() + "/start " + EURO;
        std::filesystem::create_directory(start);
        world().custom_dir = start + "/";
        file_dlg_answers().result = QDialog::Accepted;
        file_dlg_answers().selected = QStringList{shown("/chosen ")};
        open();

        button("m_browse_button").click();

        QCOMPARE(calls_of({"set_directory"}),
                 QStringList(qs("file_dlg.set_directory(\"%1/\")").arg(scratch() + shown("/start "))));
        QCOMPARE(world().custom_dir, "/chosen " + EURO + "/");
    }

private:
    void fill_world() override
    {
        FLASH_DOUBLE& flash = mgr().add_custom("name " + EURO);
        set_texts(flash, "id " + EURO, "volt " + EURO, "dense " + EURO, "gone " + EURO);
        mgr().voltages = {"volt", "volt " + EURO};
        mgr().densities = {"dense", "dense " + EURO};
        mgr().templates.push_back("template " + EURO);
        mgr().user_templates = {"template " + EURO};
    }

    const CODE_PAGE m_code_page{CODE_PAGE_NAME};
};

GFPQ_TEST_MAIN(TEST_CODE_PAGE)

#include "test_code_page.moc"
