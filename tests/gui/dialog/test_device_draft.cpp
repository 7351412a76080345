// SPDX-License-Identifier: MIT

// What Apply checks and stores, without a widget: which values are asked about in which order, what the user reads of
// the first that is refused, and what a new record is made of.
#include "dialog/gfpq_device_draft.h"

#include "gfpdb_double.h"
#include "marking_translator.h"
#include "test_rows.h"

#include <QTest>

namespace {

using test_rows::TEXTS;

const char* const NEW_DEVICE = "<<new device>>";
const QStringList CHECKS{QStringLiteral("check_string_property"), QStringLiteral("check_int_property")};

MGR_DOUBLE& mgr()
{
    return gfpdb_mgr();
}

CALL_LOG& calls()
{
    return CALL_LOG::instance();
}

QStringList list_of(const TEXTS& texts)
{
    return texts;
}

// What the user reads of an error on one tab.
QString fault_on(const char* tab, const char* error)
{
    const char* const heading = "Failed to save flash as %1 tab has invalid property value: \n\n%2";
    return QString::fromUtf8(heading).arg(QString::fromUtf8(tab), QString::fromUtf8(error));
}

// A new device "X" with a value in each field, from the second built-in template.
GFPQ_DEVICE_DRAFT new_draft(const char* name = "X")
{
    GFPQ_DEVICE_DRAFT draft(mgr());
    draft.selected = NEW_DEVICE;
    draft.values = {{GFPDB_FLASH_NAME, GFPQ_FIELD_KIND::TEXT, QString::fromUtf8(name)},
                    {GFPDB_FLASH_DEVICE_ID, GFPQ_FIELD_KIND::TEXT, QStringLiteral("0xC2")},
                    {GFPDB_FLASH_VOLTAGE, GFPQ_FIELD_KIND::CHOICE, QStringLiteral("3.3 V")},
                    {GFPDB_FLASH_DENSITY, GFPQ_FIELD_KIND::CHOICE, QStringLiteral("1 Gb")},
                    {GFPDB_FLASH_TOTAL_DIE, GFPQ_FIELD_KIND::NUMBER, QStringLiteral("4 dies")},
                    {GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, GFPQ_FIELD_KIND::NUMBER, QString()},
                    {GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, GFPQ_FIELD_KIND::NUMBER, QStringLiteral(" -7")},
                    {GFPDB_FLASH_FLOW_TEMPLATE, GFPQ_FIELD_KIND::CHOICE, QStringLiteral("Built-in B")}};
    draft.flow_template = {1, "Built-in B"};
    draft.directory = "/typed/";
    return draft;
}

// A draft of "X" that replaces `previous`.
GFPQ_DEVICE_DRAFT draft_of(const FLASH_DOUBLE& previous)
{
    GFPQ_DEVICE_DRAFT draft = new_draft();
    draft.selected = previous.name;
    draft.previous = &previous;
    return draft;
}

// Gives the draft the actions of `operations`, which keep them.
void set_flows(GFPQ_DEVICE_DRAFT& draft, const std::vector<GFPDB_OPERATION*>& operations)
{
    for (const GFPDB_OPERATION* const operation : operations) {
        for (GFPDB_ACTION* const action : *operation->get_actions())
            draft.flows[operation->m_kind].append(action);
    }
}

} // namespace

class TEST_DEVICE_DRAFT : public QObject
{
    Q_OBJECT

private slots:
    void init() { GFPDB_WORLD::instance().reset(); }

    void cleanup()
    {
        GFPDB_WORLD::instance().reset();
        calls().reset();
        QCOMPARE(live_actions() + live_operations(), 0);
    }

    void the_first_refusal_ends_the_check_data()
    {
        rows<int, int>({{"name", 0, 1},
                        {"id", 1, 2},
                        {"die", 4, 3},
                        {"single", 5, 4},
                        {"quad", 6, 5},
                        {"template name", 7, 6},
                        {"none", 99, 6}});
    }

    void the_first_refusal_ends_the_check()
    {
        const auto [property, checks] = row<int, int>();
        GFPQ_DEVICE_DRAFT draft = new_draft();
        draft.template_name = QStringLiteral("T");
        // Everything behind the first refusal would be refused, too; choices were checked when they were made.
        for (const int later : {0, 1, 4, 5, 6, 7}) {
            if (later >= property)
                mgr().refuse(later, "error of " + std::to_string(later));
        }
        for (const int choice : {2, 3, 8})
            mgr().refuse(choice, "never asked");

        const QString fault = draft.find_fault();

        const QStringList all =
            list_of({R"(mgr.check_string_property(0, "X"))", R"(mgr.check_string_property(1, "0xC2"))",
                     "mgr.check_int_property(4, 4)", "mgr.check_int_property(5, 0)", "mgr.check_int_property(6, -7)",
                     R"(mgr.check_string_property(7, "T"))"});
        QCOMPARE(calls().calls_of(CHECKS), all.mid(0, checks));
        const std::string error = "error of " + std::to_string(property);
        QCOMPARE(fault, property == 99 ? QString() : fault_on("Configuration Device", error.c_str()));
    }

    void a_name_is_checked_when_it_differs_data()
    {
        rows<QByteArray, int>({{"the same", "X", 0}, {"another", "Y", 1}, {"in case", "x", 1}});
    }

    void a_name_is_checked_when_it_differs()
    {
        const auto [name, checks] = row<QByteArray, int>();
        GFPQ_DEVICE_DRAFT draft = new_draft(name.constData());
        draft.selected = "X";

        QCOMPARE(draft.find_fault(), QString());

        QCOMPARE(calls().calls_of(CHECKS).filter(QStringLiteral("property(0,")).size(), checks);
    }

    // Page by page, action by action, in the order of the action's own list, disabled, empty and strange values
    // included; custom actions are left out.
    void actions_are_checked_in_order()
    {
        ACTION_DOUBLE* const reading = make_named_action(GFPDB_ACT_READ_REGISTER, "read");
        reading->properties = {GFPDB_RR_DELAY, GFPDB_RR_NAME, GFPDB_CUSTOM_LOOP_MARKER};
        reading->disabled = {GFPDB_RR_NAME};
        auto* const unknown = new ACTION_DOUBLE(6);
        unknown->properties = {GFPDB_WR_NAME};
        ACTION_DOUBLE* const erasing = make_named_action(GFPDB_ACT_ERASE, "erase");
        erasing->properties = {GFPDB_ER_NAME};
        ACTION_DOUBLE* const marker = make_loop_action("page", "start");
        marker->refused = {{38, "never asked"}, {39, "never asked"}};
        OPERATION_DOUBLE first(0, {erasing});
        OPERATION_DOUBLE last(4, {marker, reading, unknown});
        GFPQ_DEVICE_DRAFT draft = new_draft();
        set_flows(draft, {&last, &first});

        QCOMPARE(draft.find_fault(), QString());

        QCOMPARE(calls().calls_of({QStringLiteral("check_property_value")}),
                 list_of({R"(action(4:erase).check_property_value(31, "erase"))",
                          R"(action(1:default 11).check_property_value(11, "default 11"))",
                          R"(action(1:default 11).check_property_value(5, "read"))",
                          R"(action(1:default 11).check_property_value(39, ""))",
                          R"(action(6:).check_property_value(0, ""))"}));
        mgr().flow_edit_allowed = false;
        calls().clear();
        QCOMPARE(draft.find_fault(), QString());
        QCOMPARE(calls().count(QStringLiteral("check_property_value")), 0);
    }

    void a_refused_action_names_its_page_data()
    {
        rows<int>({{"Initialization", 0},
                   {"Program", 1},
                   {"Erase", 2},
                   {"Verify/Blank-Check/Examine", 3},
                   {"Termination", 4}});
    }

    void a_refused_action_names_its_page()
    {
        const auto kind = row<int>();
        const std::vector<GFPDB_OPERATION*>& steps = mgr().add_record("S").operations[false] = make_operations("step");
        for (int later = kind; later < GFPDB_OPERATION_COUNT; ++later)
            dynamic_cast<ACTION_DOUBLE&>(*steps[later]->get_actions()->front()).refused = {
                {GFPDB_WR_DATA, "no data"}, {GFPDB_WR_DELAY, "no delay"}};
        GFPQ_DEVICE_DRAFT draft = new_draft();
        draft.template_name = QStringLiteral("T");
        set_flows(draft, steps);

        QCOMPARE(draft.find_fault(), fault_on(QTest::currentDataTag(), "no data"));

        QCOMPARE(calls().count(QStringLiteral("check_property_value")), kind * 5 + 3);
        // The actions come before the name of the template.
        QVERIFY(calls().calls_of(CHECKS).filter(QStringLiteral("property(7,")).isEmpty());
    }

    void a_refusal_needs_no_text_data() { rows<int>({{"id", 1}, {"die", 4}, {"template name", 7}, {"action", -1}}); }

    void a_refusal_needs_no_text()
    {
        const auto property = row<int>();
        mgr().refuse(property, "");
        OPERATION_DOUBLE program(1, {make_named_action(GFPDB_ACT_ERASE, "step")});
        GFPQ_DEVICE_DRAFT draft = new_draft();
        draft.template_name = QStringLiteral("T");
        set_flows(draft, {&program});
        if (property < 0)
            dynamic_cast<ACTION_DOUBLE&>(*program.actions.front()).refused = {{GFPDB_ER_NAME, ""}};

        QCOMPARE(draft.find_fault(), fault_on(property < 0 ? "Program" : "Configuration Device", ""));
    }

    void a_template_is_not_called_like_the_device_data()
    {
        rows<QByteArray, QByteArray, QByteArray>(
            {{"another case", "X", "x", ""},
             {"the same", "X 25", "X 25", "Tempate name 'X 25' is conflicts with the device name X 25."},
             {"place markers", "%2 <i>%1</i>", "%2 <i>%1</i>",
              "Tempate name '%2 <i>%1</i>' is conflicts with the device name %2 <i>%1</i>."},
             {"refused before", "taken", "taken", "no %1"}});
    }

    void a_template_is_not_called_like_the_device()
    {
        const auto [name, template_name, error] = row<QByteArray, QByteArray, QByteArray>();
        mgr().refuse(7, "taken", "no %1");
        GFPQ_DEVICE_DRAFT draft = new_draft(name.constData());
        draft.template_name = QString::fromUtf8(template_name);

        QCOMPARE(draft.find_fault(), error.isEmpty() ? QString() : fault_on("Configuration Device", error.constData()));

        QCOMPARE(calls().calls_of(CHECKS).filter(QStringLiteral("property(7,")).size(), 1);
    }

    // But it may be called like the device that this one replaces.
    void a_template_name_is_compared_with_the_name_that_was_entered()
    {
        mgr().unused_properties = {GFPDB_FLASH_NAME};
        GFPQ_DEVICE_DRAFT draft = new_draft();
        draft.selected = "replaced";
        draft.template_name = QStringLiteral("replaced");
        QCOMPARE(draft.find_fault(), QString());
        QVERIFY(calls().calls().contains(QStringLiteral(R"(mgr.check_string_property(7, "replaced"))")));

        draft.template_name = QStringLiteral("X");
        QCOMPARE(draft.find_fault(),
                 fault_on("Configuration Device", "Tempate name 'X' is conflicts with the device name X."));
    }

    void an_empty_template_name_is_checked_and_stored()
    {
        FLASH_DOUBLE& flash = mgr().add_record("X");
        GFPQ_DEVICE_DRAFT draft = new_draft();
        draft.template_name = QString();

        QCOMPARE(draft.find_fault(), QString());
        draft.store_template(flash);

        QCOMPARE(calls().calls().filter(QStringLiteral("property(7,")),
                 list_of({R"(mgr.check_string_property(7, ""))", R"(flash:X.set_string_property(7, ""))"}));
    }

    // The names of the operations are not.
    void what_the_user_reads_is_translated()
    {
        const MARKING_TRANSLATOR translator("gfpq_dlg");
        GFPQ_DEVICE_DRAFT draft = new_draft();
        draft.template_name = QStringLiteral("X");
        const QString fault =
            fault_on("[Configuration Device]", "[Tempate name 'X' is conflicts with the device name X.]");
        QCOMPARE(draft.find_fault(), QLatin1Char('[') + fault + QLatin1Char(']'));

        OPERATION_DOUBLE erase(2, {make_named_action(GFPDB_ACT_ERASE, "step")});
        dynamic_cast<ACTION_DOUBLE&>(*erase.actions.front()).refused = {{GFPDB_ER_NAME, "no name"}};
        set_flows(draft, {&erase});
        QCOMPARE(draft.find_fault(), QLatin1Char('[') + fault_on("Erase", "no name") + QLatin1Char(']'));
    }

    void the_fields_are_stored_in_order()
    {
        FLASH_DOUBLE& flash = mgr().add_record("X");

        new_draft().store_fields(flash);

        QCOMPARE(calls().calls_without({QStringLiteral("is_property_used")}),
                 list_of({"flash:X.set_user_defined(true)", R"(flash:X.set_string_property(1, "0xC2"))",
                          R"(flash:X.set_string_property(2, "3.3 V"))", R"(flash:X.set_density("1 Gb"))",
                          "flash:X.set_int_property(4, 4)", "flash:X.set_int_property(5, 0)",
                          "flash:X.set_int_property(6, -7)", R"(flash:X.set_string_property(8, "Built-in B"))",
                          R"(flash:X.set_db_dir("/typed/"))"}));
    }

    void empty_values_are_stored()
    {
        FLASH_DOUBLE& flash = mgr().add_record("X");
        GFPQ_DEVICE_DRAFT draft = new_draft();
        for (GFPQ_FIELD_VALUE& value : draft.values)
            value.text.clear();

        draft.store_fields(flash);

        QCOMPARE(
            calls().calls_without({QStringLiteral("is_property_used")}).mid(1, 7),
            list_of({R"(flash:X.set_string_property(1, ""))", R"(flash:X.set_string_property(2, ""))",
                     R"(flash:X.set_density(""))", "flash:X.set_int_property(4, 0)", "flash:X.set_int_property(5, 0)",
                     "flash:X.set_int_property(6, 0)", R"(flash:X.set_string_property(8, ""))"}));
    }

    void an_unused_field_is_not_stored()
    {
        mgr().unused_properties = {0, 1, 2, 3, 4, 5, 6, 8};
        FLASH_DOUBLE& flash = mgr().add_record("X");
        GFPQ_DEVICE_DRAFT draft = new_draft();
        draft.template_name = QStringLiteral("T");

        QCOMPARE(draft.find_fault(), QString());
        draft.store_fields(flash);
        draft.store_template(flash);

        QCOMPARE(
            calls().calls_without({QStringLiteral("is_property_used")}),
            list_of({"mgr.can_edit_flow()", "flash:X.set_user_defined(true)", R"(flash:X.set_db_dir("/typed/"))"}));
    }

    void the_actions_are_handed_over_where_flows_are_edited()
    {
        FLASH_DOUBLE& flash = mgr().add_record("X");
        GFPQ_DEVICE_DRAFT draft = new_draft();
        mgr().flow_edit_allowed = false;
        QVERIFY(!draft.store_flows(flash));
        QCOMPARE(calls().calls(), list_of({"mgr.can_edit_flow()"}));
        mgr().flow_edit_allowed = true;
        mgr().flow_variant = true;
        ACTION_DOUBLE* const first = make_named_action(GFPDB_ACT_ERASE, "first");
        ACTION_DOUBLE* const last = make_named_action(GFPDB_ACT_ERASE, "last");
        draft.flows[GFPDB_OPERATION_ERASE] = {first, last};

        QVERIFY(draft.store_flows(flash));

        QCOMPARE(flash.operations[true].size(), std::size_t(GFPDB_OPERATION_COUNT));
        QCOMPARE(dynamic_cast<OPERATION_DOUBLE&>(*flash.operations[true][2]).actions,
                 std::vector<GFPDB_ACTION*>({first, last}));
    }

    void the_other_variant_comes_from_where_the_device_comes_from_data()
    {
        rows<int, QStringList>(
            {{"first",
              0,
              {"mgr.get_builtin_template_operations(0, true)", "mgr.get_builtin_template_operations(0, false)"}},
             {"last built-in",
              4,
              {"mgr.get_builtin_template_operations(4, true)", "mgr.get_builtin_template_operations(4, false)"}},
             {"first stored", 5, {R"(mgr.get_template_operations("T", true))", R"(mgr.find_flash("T", true))"}},
             {"nothing chosen", -1, {}},
             {"record", 99, {R"(mgr.get_template_operations("T", true))", "flash:A.get_operations(false)"}}});
    }

    void the_other_variant_comes_from_where_the_device_comes_from()
    {
        const auto [index, expected] = row<int, QStringList>();
        mgr().flow_variant = true;
        FLASH_DOUBLE& flash = mgr().add_record("X");
        GFPQ_DEVICE_DRAFT draft = index == 99 ? draft_of(mgr().add_custom("A")) : new_draft();
        draft.flow_template = {index, "T"};

        QVERIFY(draft.flow_template.shown_operations(mgr()) == nullptr);
        draft.store_template(flash);

        QCOMPARE(calls().calls_without({QStringLiteral("is_property_used"), QStringLiteral("get_flow_variant")}),
                 expected);
        QVERIFY(flash.operations.empty());
    }

    void a_record_or_template_gives_its_other_variant_data()
    {
        rows<int, QByteArray, QString>({{"built-in", 1, NEW_DEVICE, "built-in"},
                                        {"in any case", 1, "<<NEW Device>>", "built-in"},
                                        {"stored", 5, NEW_DEVICE, "stored"},
                                        {"record", 1, "A", "record"}});
    }

    void a_record_or_template_gives_its_other_variant()
    {
        const auto [index, selected, source] = row<int, QByteArray, QString>();
        FLASH_DOUBLE& flash = mgr().add_record("X");
        FLASH_DOUBLE& previous = mgr().add_custom("A");
        previous.operations[true] = make_operations("record");
        mgr().builtin_template_operations[{1, true}] = make_operations("built-in");
        mgr().add_record("T").operations[true] = make_operations("stored");
        GFPQ_DEVICE_DRAFT draft = draft_of(previous);
        draft.selected = selected.toStdString();
        draft.flow_template = {index, "T"};

        draft.store_template(flash);

        for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
            QCOMPARE(flash.flow(kind, true), QStringList(QStringLiteral("0:%1 %2").arg(source).arg(kind)));
        QVERIFY(flash.operations[true][0] != previous.operations[true][0]);
    }

    // In the order and of the kinds of the source; what is missing there, or cannot be made, is left out.
    void the_other_variant_is_a_copy()
    {
        auto* const without_list = new OPERATION_DOUBLE(7);
        without_list->without_list = true;
        ACTION_DOUBLE* const reading = make_action(3, {{21, "read"}, {24, "256"}, {30, "1-1-4"}});
        reading->properties = {GFPDB_RD_BUS_WIDTH, GFPDB_RD_NAME, GFPDB_RD_DATA_LENGTH};
        FLASH_DOUBLE& previous = mgr().add_custom("A");
        previous.operations[true] = {
            nullptr, without_list, new OPERATION_DOUBLE(3),
            new OPERATION_DOUBLE(2, {reading, nullptr, make_named_action(4, "refused"), make_named_action(1, "last")})};
        mgr().refused_actions = {4};
        FLASH_DOUBLE& flash = mgr().add_record("X");

        draft_of(previous).store_template(flash);

        QCOMPARE(calls().calls_of({QStringLiteral("set_operation")}),
                 list_of({"flash:X.set_operation(op7, true)", "flash:X.set_operation(op3, true)",
                          "flash:X.set_operation(op2, true)"}));
        QCOMPARE(calls().calls_of({QStringLiteral("add_action")}),
                 list_of({"op2.add_action(3:read)", "op2.add_action(1:last)"}));
        QCOMPARE(calls().calls_of({QStringLiteral("create_action"), QStringLiteral("set_property_value")}).mid(0, 4),
                 list_of({"mgr.create_action(3)", R"(action(3:default 21).set_property_value(30, "1-1-4"))",
                          R"(action(3:default 21).set_property_value(21, "read"))",
                          R"(action(3:read).set_property_value(24, "256"))"}));
    }

    void the_name_as_a_template_comes_last()
    {
        FLASH_DOUBLE& flash = mgr().add_record("X");
        GFPQ_DEVICE_DRAFT draft = new_draft();
        draft.template_name = QStringLiteral("T");

        draft.store_template(flash);

        QCOMPARE(calls().calls().last(), QStringLiteral(R"(flash:X.set_string_property(7, "T"))"));
    }
};

QTEST_GUILESS_MAIN(TEST_DEVICE_DRAFT)

#include "test_device_draft.moc"
