// SPDX-License-Identifier: MIT

// Runs the flows of every part, in both variants, on an emulated chip of that part.
#include "chip_of_part.h"
#include "test_rows.h"

#include "catalogue/gfpdb_flow_templates.h"

#include <QTest>

namespace {

constexpr int PROTECTED = OLD_CHIP::PROTECTED;

// Runs at the start, across the 16 MiB border and every die's, in the middle of pages, and to the very end.
SPARSE_IMAGE* fill(SPARSE_IMAGE& image, std::int64_t device_bytes)
{
    const auto run = [](std::int64_t length, int seed) {
        BYTES bytes;
        for (std::int64_t at = 0; at < length; ++at)
            bytes.push_back(static_cast<std::uint8_t>(at * 31 + seed));
        return bytes;
    };
    constexpr std::int64_t THREE_BYTE_END = 1 << 24;
    image.add(0, run(5000, 1));
    image.add(device_bytes / 8 + 100, run(700, 2));
    image.add(device_bytes / 2 - 300, run(600, 3));
    image.add(device_bytes - 777, run(777, 4));
    if (device_bytes > THREE_BYTE_END * 4)
        image.add(THREE_BYTE_END - 200, run(456, 5));
    return &image;
}

// A chip of a part, and what a session with it came to.
struct SESSION
{
    explicit SESSION(const GFPDB_PART& part_of_chip, int protection = 0,
                     OLD_CHIP::QUAD_BIT quad_bit = OLD_CHIP::QUAD_DISABLED)
        : part(part_of_chip), chip(part, protection, quad_bit)
    {
        fill(image, device_of(part).bytes);
    }

    bool run(const FLOW& flow, const char* order)
    {
        result = chip.run(flow, order_of(order), image);
        return has_passed(result);
    }
    bool run(bool quad, const char* order) { return run(flow_of(part, quad), order); }

    std::string report() const { return part.name + ": " + report_of(result) + "; " + chip.notes(); }
    bool failed_at_action(const char* name) const { return result.failure && result.failure->action_name == name; }
    // Nothing but the data, the protection and the quad-enable bit is other than before, and nobody had to complain.
    bool is_at_rest() { return chip.notes().empty() && chip.chip().is_at_rest(); }

    const GFPDB_PART part;
    OLD_CHIP chip;
    SPARSE_IMAGE image;
    GFPE_RESULT result;
};

// Actions that only turn a failure of the chip into an error, or that leave no trace on a chip in good order.
bool only_checks(const GFPDB_ACTION& action)
{
    const std::string name = value_of(action, action.get_property_enum_list()[0]);
    return name.rfind("Check", 0) == 0 || name == "Write Disable" || name == "Clear Flag Status" ||
           action.m_action_type == GFPDB_ACT_READ_DATA || name.rfind("Reset", 0) == 0 || name == "Unlock All Blocks";
}

OPERATION without(const GFPDB_OPERATION& operation, std::size_t left_out)
{
    OPERATION copy(gfpdb_make_operation(operation.m_kind));
    for (std::size_t at = 0; at < operation.get_actions()->size(); ++at) {
        const GFPDB_ACTION& original = *(*operation.get_actions())[at];
        if (at == left_out)
            continue;
        GFPDB_ACTION* action = gfpdb_make_action(original.get_action_type());
        for (const GFPDB_ACT_PROPERTY property : original.get_property_enum_list())
            action->set_property_value(property, original.get_property_value(property));
        copy->add_action(action);
    }
    return copy;
}

// True when nobody could tell an altered flow from a good one.
bool passes(const GFPDB_PART& part, const FLOW& flow)
{
    SESSION session(part, PROTECTED);
    return session.run(flow, "EPV") && session.is_at_rest() && session.chip.holds(session.image);
}

} // namespace

class TEST_FLOW_EXECUTION : public QObject
{
    Q_OBJECT

private slots:
    void every_part_ends_with_the_image_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("quad");
        for_each_flow([](const GFPDB_PART& part, bool quad) {
            QTest::addRow("%s %s", part.name.c_str(), quad ? "quad" : "single")
                << QByteArray::fromStdString(part.name) << quad;
        });
    }

    void every_part_ends_with_the_image()
    {
        QFETCH(QByteArray, name);
        QFETCH(bool, quad);
        SESSION session(part_called(name.toStdString()), quad ? PROTECTED : 0);

        QVERIFY2(session.run(quad, "EBPV"), session.report().c_str());

        QVERIFY2(session.is_at_rest(), session.report().c_str());
        QVERIFY(session.chip.holds(session.image));
        QVERIFY(session.chip.is_unprotected());
    }

    // The ID check is before anything that changes the chip.
    void another_chip_is_not_touched()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            GFPDB_PART other = part;
            other.jedec_id[2] ^= 1;
            SESSION session(other, PROTECTED);

            COMMAND_COUNTS counts;
            session.result = run_flow(device_of(part), flow_of(part, true), session.chip.chip(), order_of("EBPV"),
                                      &session.image, nullptr, &counts);

            QVERIFY2(session.failed_at_action("Check Device ID") && session.result.chip_is_unknown,
                     session.report().c_str());
            QCOMPARE(letters_of(session.result.phases), std::string("I"));
            QCOMPARE(counts.of(0x06) + counts.of(0x01), 0);
            QVERIFY(!session.chip.is_unprotected() || part.manufacturer == "Microchip (SST)");
        }
    }

    void an_order_option_in_the_id_makes_no_other_chip_data()
    {
        rows<int, int, bool>({{"as in the catalogue", 0x44, 0x00, true},
                              {"RESET instead of HOLD", 0x4C, 0x00, true},
                              {"no second reset pin", 0x40, 0x00, true},
                              {"other protection bits", 0x64, 0x00, true},
                              {"configured by the maker", 0x44, 0x01, true},
                              {"the predecessor", 0x00, 0x00, false},
                              {"the predecessor with options", 0x3F, 0x00, false}});
    }

    // The fifth byte of the MT25Q's ID tells its generation in one bit; the others say how the part was ordered.
    void an_order_option_in_the_id_makes_no_other_chip()
    {
        const auto [fifth, sixth, passes] = row<int, int, bool>();
        for (const char* name : {"MT25QL128ABA", "MT25QU02GCBB"}) {
            GFPDB_PART other = part_called(name);
            other.jedec_id[4] = fifth;
            other.jedec_id[5] = sixth;
            SESSION session(other);

            QVERIFY2(session.run(flow_of(part_called(name), false), "") == passes, session.report().c_str());
        }
    }

    // What protects a chip was set by somebody, and the flow could not put it back.
    void a_protected_chip_stops_every_single_flow_unchanged()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            if (part.manufacturer == "Microchip (SST)")
                continue; // its protection is gone at the next power-up, and never in the first status register
            SESSION session(part, PROTECTED, OLD_CHIP::QUAD_ENABLED);

            QVERIFY2(!session.run(false, "EP"), part.name.c_str());

            QVERIFY2(session.failed_at_action("Check Protection"), session.report().c_str());
            QVERIFY2(!session.chip.is_unprotected() && session.chip.is_quad_enabled(), part.name.c_str());
            QCOMPARE(session.chip.byte_at(0), int(OLD_CHIP::OLD));
        }
    }

    void a_single_flow_keeps_the_quad_enable_bit()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            SESSION session(part, 0, OLD_CHIP::QUAD_ENABLED);

            QVERIFY2(session.run(false, ""), session.report().c_str());

            QVERIFY2(session.is_at_rest() && session.chip.is_quad_enabled(), session.report().c_str());
            QCOMPARE(session.chip.count_of(0x01) + session.chip.count_of(0x31), 0);
        }
    }

    // The read-back after the status write turns a write-protected register into an error.
    void a_status_write_that_is_refused_stops_the_flow()
    {
        for (const char* name : {"MX25L12833F", "W25Q128JV-Q", "MX25L25645G", "W25Q256JV-Q", "MT25QL256ABA", "GD25Q64E",
                                 "W25M512JV", "IS25LP256D"}) {
            for (const bool quad : {false, true}) {
                SESSION session(part_called(name), PROTECTED);
                const FLOW flow = flow_of(session.part, quad);
                // The register stays as it is when its writes are taken out.
                for (GFPDB_ACTION* action : *flow[0]->get_actions()) {
                    const std::string opcode = action->get_property_value(GFPDB_WR_COMMAND);
                    if (opcode == "0x01" || opcode == "0x31") {
                        action->set_property_value(GFPDB_WR_COMMAND, "0x04");
                        action->set_property_value(GFPDB_WR_DATA, "none");
                    }
                }

                QVERIFY2(!session.run(flow, "E"), name);

                QVERIFY2(session.result.failure->action_name.rfind("Check", 0) == 0, session.report().c_str());
            }
        }
    }

    void a_blank_check_finds_what_is_not_blank()
    {
        SESSION session(part_called("MX25L12833F"));

        QVERIFY(!session.run(true, "B"));

        QCOMPARE(session.result.failure->text,
                 std::string("Blank-Check, action 1 \"Read Data\": expected FF at 0x00000000, received 5A."));
    }

    void a_verify_finds_a_wrong_byte()
    {
        SESSION session(part_called("W25M512JV"));
        QVERIFY2(session.run(true, "EP"), session.report().c_str());
        const std::int64_t wrong = device_of(session.part).bytes / 2 + 1000;
        session.image.add(wrong, {0x7E});

        QVERIFY(!session.run(true, "V"));
        QCOMPARE(session.result.failure->position, wrong);
    }

    void an_examine_reads_whatever_is_there()
    {
        SESSION session(part_called("MT25QL256ABA"));

        QVERIFY2(session.run(false, "X"), session.report().c_str());
    }

    void every_step_and_constant_of_a_flow_counts_data()
    {
        rows_named<QByteArray>({"MX25L12833F", "MX25L25645G", "IS25LP256D", "W25Q64JV-Q", "W25Q256FV", "S25FL256S-64K",
                                "S25FL256L", "MT25QL256ABA", "N25Q128A13", "GD25Q64E", "W25M512JV", "SST26VF032B"});
    }

    // A flow from which one step is left out, or in which a number of the data commands is another one, must not pass:
    // this shows both that it is needed, and that the emulated chip notices.
    void every_step_and_constant_of_a_flow_counts()
    {
        const GFPDB_PART& part = part_called(row<QByteArray>().toStdString());
        QVERIFY(passes(part, flow_of(part, true)));
        for (std::size_t kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
            const FLOW whole = flow_of(part, true);
            const std::vector<GFPDB_ACTION*>& actions = *whole[kind]->get_actions();
            for (std::size_t at = 0; at < actions.size(); ++at) {
                if (actions[at]->m_action_type == GFPDB_ACT_CUSTOM || only_checks(*actions[at]))
                    continue;
                FLOW flow = flow_of(part, true);
                flow[kind] = without(*whole[kind], at);
                const std::string name = value_of(*actions[at], actions[at]->get_property_enum_list()[0]);
                QVERIFY2(!passes(part, flow), (std::to_string(kind) + "/" + std::to_string(at) + " " + name).c_str());
            }
        }
        const std::pair<int, const char*> alterations[] = {
            {GFPDB_WD_COMMAND, "0x03"},       {GFPDB_WD_PAGE_SIZE, "1024"}, {GFPDB_WD_BUS_WIDTH, "2-2-2"},
            {GFPDB_RD_COMMAND, "0x9F"},       {GFPDB_RD_DUMMY_CLOCK, "7"},  {GFPDB_RD_BUS_WIDTH, "1-2-2"},
            {GFPDB_RD_ADDRESS, "0x00000100"}, {GFPDB_ER_COMMAND, "0x02"},
        };
        for (const auto& [property, value] : alterations) {
            const FLOW flow = flow_of(part, true);
            for (const OPERATION& operation : flow) {
                for (GFPDB_ACTION* action : *operation->get_actions())
                    action->set_property_value(static_cast<GFPDB_ACT_PROPERTY>(property), value);
            }
            QVERIFY2(!passes(part, flow), QByteArray::number(property).constData());
        }
    }

    // The templates of the five classes, executed for a device that its user has entered by hand.
    void a_template_serves_the_device_of_the_record()
    {
        const char* const names[] = {"MX25L12833F", "W25Q128JV-Q", "MX25L25645G", "W25Q256JV-Q", "MT25QL256ABA"};
        for (int index = 0; index < GFPDB_FLOW_TEMPLATE_COUNT; ++index) {
            for (const bool quad : {false, true}) {
                SESSION session(part_called(names[index]), quad ? PROTECTED : 0);
                GFPE_RUN run(std::make_shared<GFPE_PLAN>(device_of(session.part),
                                                         *gfpdb_builtin_template_operations(index, quad)),
                             session.chip.chip());
                run.set_image(&session.image);

                session.result = run.run(order_of("EPV"));

                QVERIFY2(has_passed(session.result) && session.is_at_rest(), session.report().c_str());
                QVERIFY(session.chip.holds(session.image));
            }
        }
    }
};

QTEST_APPLESS_MAIN(TEST_FLOW_EXECUTION)

#include "test_flow_execution.moc"
