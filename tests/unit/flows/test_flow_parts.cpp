// SPDX-License-Identifier: MIT

// The flows of every built-in part and template, against tables and against rules that hold for all of them.
//
// expected_traits.txt has a line for every part, expected_flows.txt whole flows of one part of each kind; both were
// written down from the facts that docs/flows.md gives, and are compared word for word.
#include "flow_parts.h"

#include "catalogue/gfpdb_flow_templates.h"
#include "gfpdb/gfpdb_flow_check.h"
#include "model/gfpdb_embedded_flash.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <map>
#include <set>

namespace {

QString text(const std::string& value)
{
    return QString::fromStdString(value);
}

QString hex(int value)
{
    return QString::number(value, 16).toUpper().rightJustified(2, '0');
}

// "Write Register: Write Enable | 0x06 | none | 0 | 1-1"
QString action_line(const GFPDB_ACTION& action)
{
    static const char* const TYPES[] = {"WR", "RR", "WD", "RD", "ER", "--"};
    QStringList values;
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list())
        values += text(action.get_property_value(property));
    return QString("    %1 %2").arg(TYPES[action.m_action_type], values.join(" | "));
}

QStringList flow_lines(const QString& title, const std::vector<GFPDB_OPERATION*>& operations)
{
    static const char* const NAMES[] = {"Initialization", "Program", "Erase", "Verify", "Termination"};
    QStringList lines = {title};
    for (const GFPDB_OPERATION* operation : operations) {
        lines += QString("  ") + NAMES[operation->m_kind];
        for (const GFPDB_ACTION* action : *operation->get_actions())
            lines += action_line(*action);
    }
    return lines;
}

QString command_text(const GFPDB_DATA_COMMAND& command)
{
    return QString("%1 %2 %3").arg(hex(command.opcode), command.bus_width).arg(command.dummy_clocks);
}

// One line of expected_traits.txt.
QString traits_line(const GFPDB_PART& part)
{
    static const char* const STATUS_WRITES[] = {"01[00]", "01[40]", "01[00 02]", "01[00] 31[02]", "01[00] 3E[80]"};
    static const char* const ENTRIES[] = {"3", "B7/", "06+B7/", "17/", "own", "4"};
    static const char* const EXITS[] = {"", "E9", "06+E9", "17", "99"};
    const GFPDB_FLOW_TRAITS single = gfpdb_flow_traits(part, false);
    const GFPDB_FLOW_TRAITS quad = gfpdb_flow_traits(part, true);
    QStringList extras;
    if (!quad.verified)
        extras += "unverified";
    if (quad.flag_status)
        extras += "flag-status";
    if (quad.reset_at_start)
        extras += "reset-first";
    if (quad.reset_at_end)
        extras += "reset-last";
    if (quad.locked_at_power_up)
        extras += "unlock";
    if (quad.clears_extended_address)
        extras += "C5[00]";
    if (quad.selected_dies > 1)
        extras += QString("dies %1").arg(quad.selected_dies);
    if (quad.status_dies > 1)
        extras += QString("status-dies %1").arg(quad.status_dies);
    const QString check = quad.mode_check ? hex(quad.mode_check->opcode) + "&" + hex(quad.mode_check->mask) : "-";
    const QString erase = quad.sector_erase
                              ? QString("%1:%2").arg(hex(quad.sector_erase->opcode)).arg(quad.sector_erase->size_bytes)
                              : QString("C7");
    return QStringList{text(part.name),
                       QString("T%1").arg(quad.flow_template + 1),
                       STATUS_WRITES[static_cast<int>(quad.status_write)],
                       QString(ENTRIES[static_cast<int>(quad.enter_four_byte)]) +
                           EXITS[static_cast<int>(quad.leave_four_byte)],
                       check,
                       QString::number(quad.page_size),
                       command_text(single.program),
                       command_text(quad.program),
                       command_text(single.read),
                       command_text(quad.read),
                       erase,
                       extras.isEmpty() ? QString("-") : extras.join(' ')}
        .join(" | ");
}

// The lines of a file beside this one, without comments.
QStringList expected_lines(const char* name)
{
    QFile file(QString(FLOW_TEST_DIRECTORY "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", name);
    QStringList lines;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        if (!line.isEmpty() && !line.startsWith('#'))
            lines += line;
    }
    return lines;
}

void compare_lines(const QStringList& found, const QStringList& expected)
{
    for (int at = 0; at < std::min(found.size(), expected.size()); ++at)
        QCOMPARE(found[at], expected[at]);
    QCOMPARE(found.size(), expected.size());
}

const char* const PARTS_WITH_WHOLE_FLOWS[] = {
    "MX25L1606E",    "MX25L12833F", "MX25L25645G", "IS25LP256D", "GD25Q256C",  "W25Q128JV-Q", "W25Q128JW-M",
    "W25Q256FV",     "W25M512JV",   "W25Q01JV-Q",  "GD25Q64E",   "GD25LQ128E", "GD25S512MD",  "SST26VF016B",
    "S25FL256S-64K", "S25FL512S",   "S25FL256L",   "S25FS512S",  "S25HL512T",  "S25HL02GT",   "MT25QL01GBBB",
    "N25Q128A13",    "XM25QH256C",  "EN25QH64A",   "GD25B512ME",
};

// Runs over the actions of a flow and notes what breaks one of the rules of writing.
class WRITE_RULES
{
public:
    // `polled_dies` is 0 for a part with one status register.
    WRITE_RULES(const FLOW& flow, int busy_opcode, int polled_dies)
        : m_busy_opcode(busy_opcode), m_polled_dies(polled_dies)
    {
        for (const OPERATION& operation : flow) {
            const auto& actions = *operation->get_actions();
            for (std::size_t at = 0; at < actions.size(); ++at)
                check(actions, at);
        }
    }

    QStringList m_broken;

private:
    static int opcode_of(const GFPDB_ACTION& action)
    {
        static const int COMMANDS[] = {GFPDB_WR_COMMAND, GFPDB_RR_COMMAND, GFPDB_WD_COMMAND, GFPDB_RD_COMMAND,
                                       GFPDB_ER_COMMAND};
        if (action.m_action_type == GFPDB_ACT_CUSTOM)
            return -1;
        return QByteArray::fromStdString(value_of(action, COMMANDS[action.m_action_type])).toInt(nullptr, 16);
    }

    void check(const std::vector<GFPDB_ACTION*>& actions, std::size_t at)
    {
        const GFPDB_ACTION& action = *actions[at];
        const int opcode = opcode_of(action);
        const bool changes_data =
            action.m_action_type == GFPDB_ACT_WRITE_DATA || action.m_action_type == GFPDB_ACT_ERASE;
        const bool changes_status =
            action.m_action_type == GFPDB_ACT_WRITE_REGISTER && std::set<int>{0x01, 0x31, 0x98}.count(opcode);
        const bool needs_enable = changes_data || changes_status || opcode == 0xC5;
        if (needs_enable && (at == 0 || opcode_of(*actions[at - 1]) != 0x06))
            m_broken += "no write enable before " + action_line(action);
        const int polled = changes_data ? m_busy_opcode : 0x05;
        if ((changes_data || changes_status) && !is_polled(actions, at + 1, polled))
            m_broken += "no poll after " + action_line(action);
    }

    // The first die is asked last, so that it is the selected one afterwards.
    bool is_polled(const std::vector<GFPDB_ACTION*>& actions, std::size_t at, int opcode) const
    {
        if (m_polled_dies == 0)
            return at < actions.size() && is_poll(*actions[at], opcode);
        for (int die = m_polled_dies - 1; die >= 0; --die, at += 2) {
            if (at + 1 >= actions.size() || opcode_of(*actions[at]) != 0xC2 || !is_poll(*actions[at + 1], opcode) ||
                value_of(*actions[at], GFPDB_WR_DATA) != "0x0" + std::to_string(die))
                return false;
        }
        return true;
    }

    static bool is_poll(const GFPDB_ACTION& action, int opcode)
    {
        const std::string ready = opcode == 0x05 ? "0x00" : "0x80";
        const std::string mask = opcode == 0x05 ? "0x01" : "0x80";
        return action.m_action_type == GFPDB_ACT_READ_REGISTER && opcode_of(action) == opcode &&
               value_of(action, GFPDB_RR_EXPECTED_DATA) == ready &&
               value_of(action, GFPDB_RR_EXPECTED_DATA_MASK) == mask &&
               std::stoi(value_of(action, GFPDB_RR_ATTEMPT_COUNT)) >= 200 &&
               std::stoi(value_of(action, GFPDB_RR_DELAY)) >= 100;
    }

    const int m_busy_opcode;
    const int m_polled_dies;
};

int busy_opcode(const GFPDB_PART& part)
{
    return part.manufacturer == "Micron" ? 0x70 : 0x05;
}

int polled_dies(const GFPDB_PART& part)
{
    return part.name.rfind("W25Q01", 0) == 0 ? 2 : part.name.rfind("W25Q02", 0) == 0 ? 4 : 0;
}

template <typename USE>
void for_each_action(const FLOW& flow, const USE& use)
{
    for (const OPERATION& operation : flow) {
        for (const GFPDB_ACTION* action : *operation->get_actions())
            use(*action);
    }
}

// How often an opcode is written as a register command in an operation.
int count_of(const GFPDB_OPERATION& operation, const char* opcode, const char* data = nullptr)
{
    int count = 0;
    for (const GFPDB_ACTION* action : *operation.get_actions())
        count += value_of(*action, GFPDB_WR_COMMAND) == opcode && (!data || value_of(*action, GFPDB_WR_DATA) == data);
    return count;
}

} // namespace

class TEST_FLOW_PARTS : public QObject
{
    Q_OBJECT

private slots:
    void every_part_has_its_traits()
    {
        QStringList found;
        for (const GFPDB_PART& part : gfpdb_catalogue_parts())
            found += traits_line(part);
        compare_lines(found, expected_lines("expected_traits.txt"));
    }

    void whole_flows_are_these()
    {
        QStringList found;
        for (const char* name : PARTS_WITH_WHOLE_FLOWS) {
            for (const bool quad : {false, true})
                found += flow_lines(QString(name) + (quad ? " quad" : " single"),
                                    pointers(flow_of(part_called(name), quad)));
        }
        compare_lines(found, expected_lines("expected_flows.txt"));
    }

    void the_templates_are_these()
    {
        QStringList found;
        for (int index = 0; index < GFPDB_FLOW_TEMPLATE_COUNT; ++index) {
            const QString name = text(gfpdb_builtin_template_names()[static_cast<std::size_t>(index)]);
            for (const bool quad : {false, true})
                found += flow_lines(name + (quad ? " - quad" : " - single"),
                                    *gfpdb_builtin_template_operations(index, quad));
        }
        compare_lines(found, expected_lines("expected_templates.txt"));
    }

    void there_is_no_other_template()
    {
        QCOMPARE(gfpdb_builtin_template_names().size(), std::size_t(5));
        QVERIFY(!gfpdb_builtin_template_operations(-1, false));
        QVERIFY(!gfpdb_builtin_template_operations(5, true));
        QCOMPARE(gfpdb_builtin_template_operations(3, true), gfpdb_builtin_template_operations(3, true));
        QVERIFY(gfpdb_builtin_template_operations(3, true) != gfpdb_builtin_template_operations(3, false));
        QVERIFY(!gfpdb_build_operation(5, gfpdb_template_traits(0, false), false));
    }

    void every_value_passes_the_check_of_its_own_action()
    {
        const auto check = [](const std::vector<GFPDB_OPERATION*>& operations, const std::string& name) {
            for (const GFPDB_FLOW_PROBLEM& problem : gfpdb_check_flow(operations))
                QFAIL((name + ": " + problem.text).c_str());
            for (const GFPDB_OPERATION* operation : operations)
                QVERIFY2(operation->get_action_count() > 0, name.c_str());
        };
        for_each_flow([&](const GFPDB_PART& part, bool quad) { check(pointers(flow_of(part, quad)), part.name); });
        for (int index = 0; index < GFPDB_FLOW_TEMPLATE_COUNT; ++index) {
            for (const bool quad : {false, true})
                check(*gfpdb_builtin_template_operations(index, quad), "template " + std::to_string(index));
        }
    }

    void writes_are_enabled_and_watched()
    {
        for_each_flow([](const GFPDB_PART& part, bool quad) {
            const QStringList broken = WRITE_RULES(flow_of(part, quad), busy_opcode(part), polled_dies(part)).m_broken;
            QVERIFY2(broken.isEmpty(), qPrintable(text(part.name) + ": " + broken.join("; ")));
        });
    }

    void four_byte_mode_is_entered_and_left()
    {
        for_each_flow([](const GFPDB_PART& part, bool quad) {
            const FLOW flow = flow_of(part, quad);
            const int entered = count_of(*flow[0], "0xB7") + count_of(*flow[0], "0x17", "0x80");
            const char* const leave = part.name == "S25FS512S" ? "0x99" : "0xE9";
            const int left = count_of(*flow[4], leave) + count_of(*flow[4], "0x17", "0x00");
            const bool own_commands =
                gfpdb_flow_traits(part, quad).enter_four_byte == GFPDB_FOUR_BYTE_ENTRY::OWN_COMMANDS;
            const int expected = part.addressing_bytes == 4 && !own_commands ? 1 : 0;
            QVERIFY2(entered == expected && left == expected, part.name.c_str());
            for (const std::size_t kind : {1, 2, 3}) {
                for (const char* opcode : {"0xB7", "0xE9", "0x17"})
                    QCOMPARE(count_of(*flow[kind], opcode), 0);
            }
        });
    }

    void address_bytes_are_those_of_the_part()
    {
        for_each_flow([](const GFPDB_PART& part, bool quad) {
            const std::string bytes = std::to_string(part.addressing_bytes);
            for_each_action(flow_of(part, quad), [&](const GFPDB_ACTION& action) {
                if (action.m_action_type == GFPDB_ACT_WRITE_DATA)
                    QCOMPARE(value_of(action, GFPDB_WD_ADDRESSING_MODE), bytes);
                if (action.m_action_type == GFPDB_ACT_READ_DATA)
                    QCOMPARE(value_of(action, GFPDB_RD_ADDRESSING_MODE), bytes);
                if (action.m_action_type == GFPDB_ACT_ERASE)
                    QCOMPARE(value_of(action, GFPDB_ER_ADDRESSING_MODE),
                             value_of(action, GFPDB_ER_COMMAND) == "0xC7" ? std::string("0") : bytes);
            });
        });
    }

    void the_id_is_checked_before_anything_is_written()
    {
        for_each_flow([](const GFPDB_PART& part, bool quad) {
            const FLOW flow = flow_of(part, quad);
            const GFPDB_ACTION& check = *(*flow[0]->get_actions())[busy_opcode(part) == 0x70 ? 2 : 0];
            QCOMPARE(value_of(check, GFPDB_RR_COMMAND), std::string("0x9F"));
            QStringList id;
            QStringList mask;
            for (std::size_t byte = 0; byte < part.jedec_id.size(); ++byte) {
                const bool micron_option = part.manufacturer == "Micron" && byte > 3;
                const int compared = !micron_option ? 0xFF : byte == 4 ? 0x40 : 0x00;
                id += "0x" + hex(part.jedec_id[byte] & compared);
                mask += "0x" + hex(compared);
            }
            QCOMPARE(text(value_of(check, GFPDB_RR_EXPECTED_DATA)), id.join(' '));
            QCOMPARE(text(value_of(check, GFPDB_RR_EXPECTED_DATA_MASK)), mask.join(' '));
        });
    }

    void quad_widths_occur_in_the_quad_variant_only()
    {
        std::set<std::string> without_quad;
        for_each_flow([&](const GFPDB_PART& part, bool quad) {
            int quad_widths = 0;
            for_each_action(flow_of(part, quad), [&](const GFPDB_ACTION& action) {
                quad_widths += value_of(action, action.get_property_enum_list().back()).find('4') != std::string::npos;
            });
            QVERIFY2(quad || quad_widths == 0, part.name.c_str());
            if (quad && quad_widths == 0)
                without_quad.insert(part.name);
        });
        QCOMPARE(without_quad, std::set<std::string>{"MX25L1606E"});
    }

    void commands_fit_the_row_of_the_part()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            const GFPDB_FLOW_TRAITS quad = gfpdb_flow_traits(part, true);
            const GFPDB_FLOW_TRAITS single = gfpdb_flow_traits(part, false);
            if (part.page_size)
                QCOMPARE(quad.page_size, part.page_size);
            if (part.dummy_single)
                QCOMPARE(single.read.dummy_clocks, part.dummy_single);
            if (part.dummy_quad) {
                QCOMPARE(quad.read.dummy_clocks, part.dummy_quad);
                QCOMPARE(quad.read.bus_width, "1-4-4");
            }
            if (quad.sector_erase) {
                const auto is_same = [&quad](const GFPDB_ERASE_COMMAND& erase) {
                    return erase.opcode == quad.sector_erase->opcode &&
                           erase.size_bytes == quad.sector_erase->size_bytes;
                };
                QVERIFY2(std::any_of(part.sector_erase.begin(), part.sector_erase.end(), is_same), part.name.c_str());
            }
        }
    }

    void the_classes_have_the_known_numbers_of_parts()
    {
        std::map<std::string, int> verified;
        std::map<std::string, int> unverified;
        for (const GFPDB_PART& part : gfpdb_catalogue_parts())
            ++(gfpdb_flow_traits(part, true).verified ? verified : unverified)[gfpdb_part_template_name(part)];
        const std::vector<std::string>& names = gfpdb_builtin_template_names();
        QCOMPARE(verified, (std::map<std::string, int>{
                               {names[0], 20}, {names[1], 49}, {names[2], 17}, {names[3], 26}, {names[4], 25}}));
        QCOMPARE(unverified, (std::map<std::string, int>{{names[1], 1}, {names[2], 1}, {names[3], 7}}));
    }

    // A host's own catalogue has makers that this library never heard of.
    void a_part_of_an_unknown_maker_has_flows()
    {
        GFPDB_PART part;
        part.name = "Own1";
        part.jedec_id = {0xAA, 0x01};
        part.density = "128Mb";
        QCOMPARE(traits_line(part),
                 QString("Own1 | T2 | 01[00 02] | 3 | - | 256 | 02 1-1-1 0 | 02 1-1-1 0 | 0B 1-1-1 8 | "
                         "6B 1-1-4 8 | C7 | unverified"));
        part.density = "256Mb";
        part.sector_erase = {{0x20, 4096}, {0xD8, 65536}, {0xDC, 65536}};
        part.quad_enable = GFPDB_QUAD_ENABLE::SR1_BIT6;
        part.dummy_quad = 6;
        part.dummy_single = 4;
        QCOMPARE(traits_line(part),
                 QString("Own1 | T3 | 01[40] | B7/E9 | - | 256 | 02 1-1-1 0 | 32 1-1-4 0 | 0B 1-1-1 4 | "
                         "EB 1-4-4 6 | D8:65536 | -"));
        part.manufacturer = "Infineon";
        for (const char* name : {"S25", "S25XL512S", "S25FL512", "S25FL512X", "S25FS512X"}) {
            part.name = name;
            QVERIFY2(traits_line(part).contains("| B7/E9 | - |"), name);
        }
        // The commands with an address length of their own are used where the row lists one of them.
        part.name = "S25FL512L";
        for (const int opcode : {0x20, 0xD8, 0x21, 0xDC}) {
            part.sector_erase = {{opcode, 65536}};
            QCOMPARE(traits_line(part).contains("| own | - |"), opcode == 0x21 || opcode == 0xDC);
        }
        part.sector_erase = {{0xD8, 65536}};
        for (const bool quad : {false, true})
            QVERIFY(gfpdb_check_flow(pointers(flow_of(part, quad))).empty());
    }

    void the_options_in_an_extended_id_are_not_compared()
    {
        GFPDB_PART part;
        part.name = "Own1";
        part.manufacturer = "Micron";
        part.density = "128Mb";
        using BYTES = std::vector<int>;
        const std::pair<BYTES, BYTES> masks[] = {
            {{1, 2, 3}, {0xFF, 0xFF, 0xFF}},
            {{1, 2, 3, 4}, {0xFF, 0xFF, 0xFF, 0xFF}},
            {{1, 2, 3, 4, 5}, {0xFF, 0xFF, 0xFF, 0xFF, 0x40}},
            {{1, 2, 3, 4, 5, 6, 7}, {0xFF, 0xFF, 0xFF, 0xFF, 0x40, 0x00, 0x00}},
        };
        for (const auto& [id, mask] : masks) {
            part.jedec_id = id;
            QCOMPARE(gfpdb_flow_traits(part, true).id_mask, mask);
        }
        part.manufacturer = "Infineon";
        QCOMPARE(gfpdb_flow_traits(part, true).id_mask, BYTES(7, 0xFF));
        QCOMPARE(gfpdb_template_traits(GFPDB_TEMPLATE_NO_QE, true).id_mask, BYTES(3, 0xFF));
    }

    void a_stack_of_dies_needs_their_number()
    {
        GFPDB_PART part;
        part.name = "W25Q01XX";
        part.density = "1024Mb";
        QCOMPARE(gfpdb_flow_traits(part, true).status_dies, 1);
        part.total_die = 2;
        QVERIFY(traits_line(part).contains("status-dies 2"));
        part.name = "W25Q51XX";
        QCOMPARE(gfpdb_flow_traits(part, true).status_dies, 1);
    }

    void one_dummy_clock_is_one()
    {
        GFPDB_PART part;
        part.name = "Own1";
        part.density = "128Mb";
        part.dummy_single = 1;
        part.dummy_quad = 1;
        QVERIFY(traits_line(part).contains("| 0B 1-1-1 1 | EB 1-4-4 1 |"));
    }

    // No part of the catalogue needs it: the whole chip at once, watched by the flag status register.
    void a_chip_that_reports_by_flags_is_erased_with_patience()
    {
        GFPDB_PART part;
        part.name = "Own1";
        part.manufacturer = "Micron";
        part.density = "128Mb";
        const FLOW flow = flow_of(part, false);

        const QString lines = flow_lines("", {flow[GFPDB_OPERATION_ERASE].get()}).join('\n');
        QVERIFY2(QRegularExpression("ER [^\n]*0xC7[^\n]*\n    RR [^\n]*\\| 0x70 \\|[^\n]*\\| 1600 \\| 1000000 \\|")
                     .match(lines)
                     .hasMatch(),
                 qPrintable(lines));
    }

    void a_record_gets_both_variants()
    {
        const GFPDB_PART& part = gfpdb_catalogue_parts()[10];
        GFPDB_EMBEDDED_FLASH record(part.name);

        gfpdb_fill_part_flows(part, record);

        for (const bool quad : {false, true})
            QCOMPARE(flow_lines("", *record.get_operations(quad)), flow_lines("", pointers(flow_of(part, quad))));
    }
};

int main(int argc, char** argv)
{
    TEST_FLOW_PARTS test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_flow_parts.moc"
