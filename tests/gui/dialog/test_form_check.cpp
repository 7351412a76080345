// SPDX-License-Identifier: MIT

// The check of the whole form before anything is saved: what is asked in which order, and what the user is told.
#include "dialog_test.h"

#include "marking_translator.h"

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

private slots:
    void the_first_failure_stops_the_check_data();
    void the_first_failure_stops_the_check();
    void the_box_of_a_failed_check_is_the_warning_box();
    void a_failed_check_leaves_everything_as_it_was();
    void markup_and_place_markers_are_shown_as_they_stand();
    void actions_are_checked_page_by_page_in_order();
    void a_refused_action_names_its_page_data();
    void a_refused_action_names_its_page();
    void loop_markers_are_not_checked();
    void the_value_of_the_action_is_what_is_checked();
    void actions_are_not_checked_without_flow_editing();
    void edited_actions_are_checked();
    void the_template_name_is_checked_only_when_asked_for();
    void a_template_name_equal_to_the_device_name_is_refused();
    void a_template_name_in_another_case_is_accepted();
    void the_librarys_refusal_of_a_template_name_comes_first();
    void names_with_place_markers_are_told_as_they_stand();
    void what_the_user_is_told_is_translated();
    void an_operation_is_told_by_its_one_name();

private:
    void fill_world() override;
    // What the user enters of a device that is also to be a template.
    void name_with_template(const char* device, const char* flow_template);
    bool apply();
};

void TEST_FORM_CHECK::fill_world()
{
    mgr().builtin_template_operations[{0, false}] = {};
}

void TEST_FORM_CHECK::name_with_template(const char* device, const char* flow_template)
{
    edit("m_device_name_edit").setText(QString::fromUtf8(device));
    check("m_save_template_check").setChecked(true);
    edit("m_template_name_edit").setText(QString::fromUtf8(flow_template));
}

bool TEST_FORM_CHECK::apply()
{
    bool applied = false;
    QMetaObject::invokeMethod(&dlg(), "on_apply_clicked", Qt::DirectConnection, Q_RETURN_ARG(bool, applied));
    return applied;
}

void TEST_FORM_CHECK::the_first_failure_stops_the_check_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<int>("checks");

    QTest::newRow("name") << 0 << 1;
    QTest::newRow("id") << 1 << 2;
    QTest::newRow("die") << 4 << 3;
    QTest::newRow("single") << 5 << 4;
    QTest::newRow("quad") << 6 << 5;
    QTest::newRow("template name") << 7 << 6;
}

void TEST_FORM_CHECK::the_first_failure_stops_the_check()
{
    QFETCH(const int, property);
    QFETCH(const int, checks);
    open();
    name_with_template("X", "T");
    // Everything behind the first failure would fail, too.
    for (int later = property; later <= 8; ++later)
        mgr().refuse(later, "error of " + std::to_string(later));
    m_modals.expect(MODAL_DRIVER::accept());

    QVERIFY(!apply());

    const QStringList all = list_of({R"(mgr.check_string_property(0, "X"))", R"(mgr.check_string_property(1, ""))",
                                     "mgr.check_int_property(4, 0)", "mgr.check_int_property(5, 0)",
                                     "mgr.check_int_property(6, 0)", R"(mgr.check_string_property(7, "T"))"});
    QCOMPARE(log().calls_of({qs("check_string_property"), qs("check_int_property")}), all.mid(0, checks));
    QCOMPARE(log().count(qs("create_flash")), 0);
    QCOMPARE(m_modals.met().size(), 1);
    QCOMPARE(m_modals.last().text, heading("Configuration Device", ("error of " + std::to_string(property)).c_str()));
}

void TEST_FORM_CHECK::the_box_of_a_failed_check_is_the_warning_box()
{
    mgr().refuse(1, "error");
    open();
    m_modals.expect(MODAL_DRIVER::accept());

    button("m_apply_button").click();

    const MET_MODAL& box = m_modals.last();
    QCOMPARE(box.text,
             QStringLiteral("Failed to save flash as Configuration Device tab has invalid property value: \n\nerror"));
    QCOMPARE(box.text_format, Qt::PlainText);
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.title, QString());
    QCOMPARE(box.buttons, list_of({"OK"}));
    QVERIFY(!box.has_parent);
}

void TEST_FORM_CHECK::a_failed_check_leaves_everything_as_it_was()
{
    mgr().add_custom("A").operations[false] = make_operations("own");
    open_with("A");
    tabs().setCurrentIndex(2);
    edit("m_device_name_edit").setText(QStringLiteral("renamed"));
    mgr().refuse(0, "taken");
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

void TEST_FORM_CHECK::markup_and_place_markers_are_shown_as_they_stand()
{
    mgr().refuse(1, "<b>%1</b> %2 & 100 %");
    open();
    m_modals.expect(MODAL_DRIVER::accept());

    QVERIFY(!apply());

    QCOMPARE(m_modals.last().text, heading("Configuration Device", "<b>%1</b> %2 & 100 %"));
}

void TEST_FORM_CHECK::actions_are_checked_page_by_page_in_order()
{
    auto& operations = mgr().builtin_template_operations[{0, false}];
    for (const int kind : {4, 2, 0}) {
        ACTION_DOUBLE* const first = make_named_action(1, "a" + std::to_string(kind));
        first->properties = {GFPDB_RR_DELAY, GFPDB_RR_NAME};
        ACTION_DOUBLE* const second = make_named_action(4, "b" + std::to_string(kind));
        second->properties = {GFPDB_ER_NAME};
        operations.push_back(new OPERATION_DOUBLE(kind, {first, second}));
    }
    open();
    // The copies that the pages hold answer with their own property lists.
    for (const int kind : {0, 2, 4}) {
        dynamic_cast<ACTION_DOUBLE&>(*page(kind).get_flow().at(0)).properties = {GFPDB_RR_DELAY, GFPDB_RR_NAME};
        dynamic_cast<ACTION_DOUBLE&>(*page(kind).get_flow().at(1)).properties = {GFPDB_ER_NAME};
    }
    log().clear();

    QVERIFY(apply());

    QStringList expected;
    for (const int kind : {0, 2, 4}) {
        expected << QStringLiteral(R"(action(1:default 11).check_property_value(11, "default 11"))")
                 << QStringLiteral(R"(action(1:default 11).check_property_value(5, "a%1"))").arg(kind)
                 << QStringLiteral(R"(action(4:b%1).check_property_value(31, "b%1"))").arg(kind);
    }
    QCOMPARE(log().calls_of({qs("check_property_value")}), expected);
}

void TEST_FORM_CHECK::a_refused_action_names_its_page_data()
{
    QTest::addColumn<int>("kind");

    QTest::newRow("Initialization") << 0;
    QTest::newRow("Program") << 1;
    QTest::newRow("Erase") << 2;
    QTest::newRow("Verify/Blank-Check/Examine") << 3;
    QTest::newRow("Termination") << 4;
}

void TEST_FORM_CHECK::a_refused_action_names_its_page()
{
    QFETCH(const int, kind);
    mgr().builtin_template_operations[{0, false}] = make_operations("step");
    open();
    check("m_save_template_check").setChecked(true);
    for (int later = kind; later < 5; ++later) {
        auto& action = dynamic_cast<ACTION_DOUBLE&>(*page(later).get_flow().at(0));
        action.refused = {{GFPDB_WR_DATA, "no data"}, {GFPDB_WR_DELAY, "no delay"}};
    }
    m_modals.expect(MODAL_DRIVER::accept());
    log().clear();

    QVERIFY(!apply());

    QCOMPARE(m_modals.met().size(), 1);
    QCOMPARE(m_modals.last().text, heading(QTest::currentDataTag(), "no data"));
    QCOMPARE(log().calls_of({qs("check_property_value")}).size(), kind * 5 + 3);
    // The actions come before the template name.
    QVERIFY(log().calls().filter(QStringLiteral("check_string_property(7")).isEmpty());
    QCOMPARE(log().count(qs("create_flash")), 0);
}

void TEST_FORM_CHECK::loop_markers_are_not_checked()
{
    mgr().builtin_template_operations[{0, false}] = {new OPERATION_DOUBLE(
        1, {make_loop_action("page", "start"), make_named_action(2, "program"), make_loop_action("page", "end")})};
    open();
    for (GFPDB_ACTION* action : page(1).get_flow()) {
        if (action->m_action_type == GFPDB_ACT_CUSTOM)
            dynamic_cast<ACTION_DOUBLE&>(*action).refused = {{38, "never asked"}, {39, "never asked"}};
    }
    log().clear();

    QVERIFY(apply());

    QVERIFY(log().calls().filter(QStringLiteral("action(5:page).check_property_value")).isEmpty());
    QCOMPARE(log().count(qs("check_property_value")), 8);
}

void TEST_FORM_CHECK::the_value_of_the_action_is_what_is_checked()
{
    mgr().builtin_template_operations[{0, false}] = make_operations("step");
    open();
    page(2).get_flow().at(0)->set_property_value(GFPDB_WR_DATA, "edited");
    log().clear();

    QVERIFY(apply());

    QVERIFY(log().calls().contains(qs(R"(action(0:step 2).check_property_value(2, "edited"))")));
}

void TEST_FORM_CHECK::actions_are_not_checked_without_flow_editing()
{
    mgr().builtin_template_operations[{0, false}] = make_operations("step");
    open();
    mgr().flow_edit_allowed = false;
    log().clear();

    QVERIFY(apply());

    QCOMPARE(log().count(qs("check_property_value")), 0);
}

void TEST_FORM_CHECK::edited_actions_are_checked()
{
    mgr().builtin_template_operations[{0, false}] = make_operations("step");
    open();
    tabs().setCurrentIndex(1);
    dynamic_cast<ACTION_DOUBLE&>(*page(0).get_flow().at(0)).refused = {{GFPDB_WR_COMMAND, "bad command"}};
    m_modals.expect(MODAL_DRIVER::accept());

    button("m_apply_button").click();

    QCOMPARE(m_modals.last().text, heading("Initialization", "bad command"));
    // The user stays where the error can be mended.
    QCOMPARE(tabs().currentIndex(), 1);
}

void TEST_FORM_CHECK::the_template_name_is_checked_only_when_asked_for()
{
    mgr().refuse(7, "no template");
    open();
    edit("m_device_name_edit").setText(QStringLiteral("X"));
    edit("m_template_name_edit").setText(QStringLiteral("X"));

    QVERIFY(apply());

    QVERIFY(log().calls().filter(QStringLiteral("_property(7")).isEmpty());
}

void TEST_FORM_CHECK::a_template_name_equal_to_the_device_name_is_refused()
{
    open();
    name_with_template("X 25", "X 25");
    m_modals.expect(MODAL_DRIVER::accept());

    QVERIFY(!apply());

    QVERIFY(log().calls().contains(qs(R"(mgr.check_string_property(7, "X 25"))")));
    QCOMPARE(m_modals.last().text,
             heading("Configuration Device", "Tempate name 'X 25' is conflicts with the device name X 25."));
    QCOMPARE(log().count(qs("create_flash")), 0);
}

void TEST_FORM_CHECK::a_template_name_in_another_case_is_accepted()
{
    open();
    name_with_template("X", "x");

    QVERIFY(apply());

    QCOMPARE(mgr().last_created->strings[7], std::string("x"));
}

void TEST_FORM_CHECK::the_librarys_refusal_of_a_template_name_comes_first()
{
    mgr().refuse(7, "taken");
    open();
    name_with_template("X", "X");
    m_modals.expect(MODAL_DRIVER::accept());

    QVERIFY(!apply());

    QCOMPARE(m_modals.met().size(), 1);
    QCOMPARE(m_modals.last().text, heading("Configuration Device", "taken"));
}

void TEST_FORM_CHECK::names_with_place_markers_are_told_as_they_stand()
{
    open();
    name_with_template("%2 <i>%1</i>", "%2 <i>%1</i>");
    m_modals.expect(MODAL_DRIVER::accept());

    QVERIFY(!apply());

    QCOMPARE(
        m_modals.last().text,
        heading("Configuration Device", "Tempate name '%2 <i>%1</i>' is conflicts with the device name %2 <i>%1</i>."));
}

void TEST_FORM_CHECK::what_the_user_is_told_is_translated()
{
    const MARKING_TRANSLATOR translator("gfpq_dlg");
    open();
    name_with_template("X", "X");
    m_modals.expect(MODAL_DRIVER::accept());

    QVERIFY(!apply());

    QCOMPARE(m_modals.last().text,
             QLatin1Char('[') +
                 heading("[Configuration Device]", "[Tempate name 'X' is conflicts with the device name X.]") +
                 QLatin1Char(']'));
}

void TEST_FORM_CHECK::an_operation_is_told_by_its_one_name()
{
    mgr().builtin_template_operations[{0, false}] = make_operations("step");
    const MARKING_TRANSLATOR translator("gfpq_dlg");
    open();
    dynamic_cast<ACTION_DOUBLE&>(*page(2).get_flow().at(0)).refused = {{GFPDB_WR_DATA, "no data"}};
    m_modals.expect(MODAL_DRIVER::accept());

    QVERIFY(!apply());

    QCOMPARE(m_modals.last().text, QLatin1Char('[') + heading("Erase", "no data") + QLatin1Char(']'));
}

GFPQ_TEST_MAIN(TEST_FORM_CHECK)

#include "test_form_check.moc"
