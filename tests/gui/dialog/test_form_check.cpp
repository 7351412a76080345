// SPDX-License-Identifier: MIT

// What Apply takes from the form and the pages, and how the user learns of a value that is refused. What is checked and
// stored of it is the draft's (test_device_draft.cpp).
#include "dialog_test.h"

namespace {

// The text of the box for an error on one tab.
QString heading(const char* tab, const char* error)
{
    return QString::fromUtf8("Failed to save flash as ") + QString::fromUtf8(tab) +
           QString::fromUtf8(" tab has invalid property value: \n\n") + QString::fromUtf8(error);
}

} // namespace

class TEST_FORM_CHECK : public DIALOG_TEST
{
    Q_OBJECT

private:
    void fill_world() override { mgr().builtin_template_operations[{0, false}] = make_operations("step"); }

private slots:
    void the_box_of_a_failed_check_is_the_warning_box()
    {
        mgr().refuse(GFPDB_FLASH_DEVICE_ID, "<b>%1</b> %2 & 100 %");
        open();
        m_modals.expect(MODAL_DRIVER::accept());

        QVERIFY(!apply());

        const MET_MODAL& box = m_modals.last();
        QCOMPARE(box.text, heading("Configuration Device", "<b>%1</b> %2 & 100 %"));
        QCOMPARE(box.text_format, Qt::PlainText);
        QCOMPARE(box.icon, QMessageBox::Warning);
        QCOMPARE(box.title, QString());
        QCOMPARE(box.buttons, list_of({"OK"}));
        QVERIFY(!box.has_parent);
    }

    void a_failed_check_leaves_everything_as_it_was()
    {
        mgr().add_custom("A").operations[false] = make_operations("own");
        open_with("A");
        tabs().setCurrentIndex(2);
        edit("m_device_name_edit").setText(QStringLiteral("renamed"));
        mgr().refuse(GFPDB_FLASH_NAME, "taken");
        m_modals.expect(MODAL_DRIVER::accept());
        log().clear();

        QVERIFY(!apply());

        QCOMPARE(calls(), list_of({R"(mgr.is_hidden_flash("A", false))", "flash:A.is_user_defined()",
                                   R"(mgr.check_string_property(0, "renamed"))"}));
        QCOMPARE(tabs().currentIndex(), 2);
        QCOMPARE(current_row(), QStringLiteral("A"));
        QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("renamed"));
        QCOMPARE(page_flow(2), list_of({"0:own 2"}));
        QVERIFY(prompted_messages().empty());
    }

    void edited_actions_are_checked()
    {
        open();
        tabs().setCurrentIndex(1);
        page(2).get_flow().at(0)->set_property_value(GFPDB_WR_DATA, "edited");
        dynamic_cast<ACTION_DOUBLE&>(*page(4).get_flow().at(0)).refused = {{GFPDB_WR_COMMAND, "bad command"}};
        m_modals.expect(MODAL_DRIVER::accept());

        QVERIFY(!apply());

        QVERIFY(log().calls().contains(qs(R"(action(0:step 2).check_property_value(2, "edited"))")));
        QCOMPARE(m_modals.last().text, heading("Termination", "bad command"));
        // The user stays on the page.
        QCOMPARE(tabs().currentIndex(), 1);
    }

    void the_template_name_is_checked_only_when_asked_for()
    {
        mgr().refuse(GFPDB_FLASH_TEMPLATE_NAME, "no template");
        open();
        edit("m_device_name_edit").setText(QStringLiteral("X"));
        edit("m_template_name_edit").setText(QStringLiteral("X"));

        QVERIFY(apply());

        QVERIFY(log().calls().filter(QStringLiteral("_property(7")).isEmpty());
    }

    void the_chosen_template_gives_both_variants()
    {
        mgr().templates.push_back("gr\xC3\xBCn");
        mgr().template_operations[{"gr\xC3\xBCn", false}] = make_operations("by name");
        mgr().add_record("gr\xC3\xBCn").operations[true] = make_operations("by record");
        open();
        choose_text("m_flow_template_cbox", qs("gr\xC3\xBCn"));

        QVERIFY(apply());

        QCOMPARE(mgr().last_created->flow(1, false), list_of({"0:by name 1"}));
        QCOMPARE(mgr().last_created->flow(1, true), list_of({"0:by record 1"}));
    }

    void without_a_template_the_other_variant_is_empty()
    {
        mgr().templates.clear();
        open();
        QCOMPARE(combo("m_flow_template_cbox").currentIndex(), -1);

        QVERIFY(apply());

        QVERIFY(mgr().last_created->operations.count(true) == 0);
        QCOMPARE(log().count(qs("save_flash")), 1);
    }

    void without_flow_editing_the_other_variant_is_still_copied()
    {
        mgr().add_custom("A").operations[true] = make_operations("own");
        open_with("A");
        mgr().flow_edit_allowed = false;

        QVERIFY(apply());

        QCOMPARE(mgr().last_created->flow(2, true), list_of({"0:own 2"}));
        QVERIFY(mgr().last_created->operations.count(false) == 0);
    }
};

GFPQ_TEST_MAIN(TEST_FORM_CHECK)

#include "test_form_check.moc"
