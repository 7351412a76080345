// SPDX-License-Identifier: MIT

// Executes the flows of every part, in both variants, on an emulated chip of that part.
#include "chip_of_part.h"
#include "test_rows.h"

#include "catalogue/gfpdb_flow_templates.h"

#include <QTest>

namespace {

constexpr int PROTECTED = 0x1C;

// Runs at the start, across the 16 MiB border and every die's, in the middle of pages, and to the very end.
FLOW_IMAGE image_for(std::int64_t device_bytes)
{
    FLOW_IMAGE image;
    const auto run = [](std::int64_t length, int seed) {
        FLOW_BYTES bytes;
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
    return image;
}

// A chip with old data, and what a session with it came to.
struct SESSION
{
    SESSION(const GFPDB_PART& part_of_chip, bool quad_variant, int protection)
        : part(part_of_chip), quad(quad_variant), chip(chip_facts(part_of_chip), protection),
          image(image_for(chip_facts(part_of_chip).bytes)), executor(chip, device_of(part_of_chip), image)
    {}

    bool run(int kind, FLOW_PURPOSE purpose = FLOW_PURPOSE::VERIFY)
    {
        const OPERATION operation(gfpdb_build_operation(kind, gfpdb_flow_traits(part, quad), quad));
        return executor.run(*operation, purpose);
    }

    std::string report() const
    {
        std::string text = executor.failed_at();
        for (const std::string& complaint : chip.complaints())
            text += "; " + complaint;
        return text;
    }

    const GFPDB_PART& part;
    const bool quad;
    SPI_NOR_CHIP chip;
    FLOW_IMAGE image;
    FLOW_EXECUTOR executor;
};

// A flow with one thing altered, executed as a whole.
struct ALTERED_SESSION
{
    explicit ALTERED_SESSION(const GFPDB_PART& part)
        : chip(chip_facts(part), PROTECTED), image(image_for(chip_facts(part).bytes)),
          executor(chip, device_of(part), image)
    {
        operations = flow_of(part, true);
    }

    // True when nobody could tell the altered flow from a good one.
    bool passes()
    {
        try {
            for (const int kind : {0, 2, 1, 3, 4}) {
                if (!executor.run(*operations[static_cast<std::size_t>(kind)]))
                    return false;
            }
        } catch (const std::runtime_error&) {
            return false;
        }
        return chip.complaints().empty() && chip.holds(image) && chip.is_at_rest();
    }

    SPI_NOR_CHIP chip;
    FLOW_IMAGE image;
    FLOW_EXECUTOR executor;
    FLOW operations;
};

std::string name_of(const GFPDB_ACTION& action)
{
    return action.get_property_value(action.get_property_enum_list()[0]);
}

// Actions that only turn a failure of the chip into an error, or that leave no trace on a chip in good order.
bool only_checks(const GFPDB_ACTION& action)
{
    const std::string name = name_of(action);
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
        const GFPDB_PART& part = part_called(name.toStdString());
        SESSION session(part, quad, quad ? PROTECTED : 0);

        QVERIFY2(session.run(GFPDB_OPERATION_INITIALIZATION), session.report().c_str());
        QVERIFY2(session.run(GFPDB_OPERATION_ERASE), session.report().c_str());
        QVERIFY2(session.chip.is_blank(), "not blank after the erase");
        QVERIFY2(session.run(GFPDB_OPERATION_VERIFY, FLOW_PURPOSE::BLANK_CHECK), session.report().c_str());
        QVERIFY2(session.run(GFPDB_OPERATION_PROGRAM), session.report().c_str());
        QVERIFY2(session.run(GFPDB_OPERATION_VERIFY), session.report().c_str());
        QVERIFY2(session.run(GFPDB_OPERATION_TERMINATION), session.report().c_str());

        QCOMPARE(session.report(), std::string());
        QVERIFY(session.chip.holds(session.image));
        QVERIFY(session.chip.is_at_rest());
        QVERIFY(session.chip.is_unprotected() || part.manufacturer == "Microchip (SST)");
    }

    // The ID check stands before anything that changes the chip.
    void another_chip_is_not_touched()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            CHIP_FACTS other = chip_facts(part);
            other.id[2] ^= 1;
            SPI_NOR_CHIP chip(other, PROTECTED);
            const FLOW_IMAGE image;
            FLOW_EXECUTOR executor(chip, device_of(part), image);

            QVERIFY2(!executor.run(*flow_of(part, true)[0]), part.name.c_str());

            QVERIFY(QByteArray::fromStdString(executor.failed_at()).endsWith(": Check Device ID"));
            QCOMPARE(chip.count_of(0x06), 0);
            QCOMPARE(chip.count_of(0x01), 0);
            QVERIFY(!chip.is_unprotected());
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
            const GFPDB_PART& part = part_called(name);
            CHIP_FACTS facts = chip_facts(part);
            facts.id[4] = static_cast<std::uint8_t>(fifth);
            facts.id[5] = static_cast<std::uint8_t>(sixth);
            SPI_NOR_CHIP chip(facts, 0);
            const FLOW_IMAGE image;
            FLOW_EXECUTOR executor(chip, device_of(part), image);

            QVERIFY2(executor.run(*flow_of(part, false)[0]) == passes, executor.failed_at().c_str());
        }
    }

    // What protects a chip was set by somebody, and the flow could not put it back.
    void a_protected_chip_stops_every_single_flow_unchanged()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            if (part.manufacturer == "Microchip (SST)")
                continue; // its protection is gone at the next power-up, and never in the first status register
            SESSION session(part, false, PROTECTED);
            session.chip.enable_quad();

            QVERIFY2(!session.run(GFPDB_OPERATION_INITIALIZATION), part.name.c_str());

            QVERIFY2(QByteArray::fromStdString(session.executor.failed_at()).endsWith(": Check Protection"),
                     (part.name + " " + session.report()).c_str());
            QVERIFY2(!session.chip.is_unprotected(), part.name.c_str());
            QVERIFY2(session.chip.is_quad_enabled(), part.name.c_str());
        }
    }

    void a_single_flow_keeps_the_quad_enable_bit()
    {
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            SESSION session(part, false, 0);
            session.chip.enable_quad();

            for (const int kind : {GFPDB_OPERATION_INITIALIZATION, GFPDB_OPERATION_TERMINATION})
                QVERIFY2(session.run(kind), (part.name + " " + session.report()).c_str());

            QCOMPARE(session.report(), std::string());
            QVERIFY2(session.chip.is_quad_enabled(), part.name.c_str());
            QCOMPARE(session.chip.count_of(0x01) + session.chip.count_of(0x31), 0);
        }
    }

    // The read-back after the status write turns a write-protected register into an error.
    void a_status_write_that_is_refused_stops_the_flow()
    {
        for (const char* name : {"MX25L12833F", "W25Q128JV-Q", "MX25L25645G", "W25Q256JV-Q", "MT25QL256ABA", "GD25Q64E",
                                 "W25M512JV", "IS25LP256D"}) {
            const GFPDB_PART& part = part_called(name);
            for (const bool quad : {false, true}) {
                const OPERATION original(gfpdb_build_operation(0, gfpdb_flow_traits(part, quad), quad));
                SPI_NOR_CHIP chip(chip_facts(part), PROTECTED);
                const FLOW_IMAGE image;
                FLOW_EXECUTOR executor(chip, device_of(part), image);
                // The register stays as it is when its writes are taken out.
                for (GFPDB_ACTION* action : *original->get_actions()) {
                    const std::string opcode = action->get_property_value(GFPDB_WR_COMMAND);
                    if (opcode == "0x01" || opcode == "0x31") {
                        action->set_property_value(GFPDB_WR_COMMAND, "0x04");
                        action->set_property_value(GFPDB_WR_DATA, "none");
                    }
                }

                QVERIFY2(!executor.run(*original), name);

                QVERIFY2(executor.failed_at().find("Check") != std::string::npos, executor.failed_at().c_str());
            }
        }
    }

    void a_blank_check_finds_what_is_not_blank()
    {
        SESSION session(part_called("MX25L12833F"), true, 0);
        QVERIFY(session.run(GFPDB_OPERATION_INITIALIZATION));
        QVERIFY(!session.run(GFPDB_OPERATION_VERIFY, FLOW_PURPOSE::BLANK_CHECK));
        QCOMPARE(session.report(), std::string("0: Read Data"));
    }

    void a_verify_finds_a_wrong_byte()
    {
        SESSION session(part_called("W25M512JV"), true, 0);
        for (const int kind : {GFPDB_OPERATION_INITIALIZATION, GFPDB_OPERATION_ERASE, GFPDB_OPERATION_PROGRAM})
            QVERIFY2(session.run(kind), session.report().c_str());
        session.image.add(device_of(session.part).bytes / 2 + 1000, {0x7E});

        QVERIFY(!session.run(GFPDB_OPERATION_VERIFY));
    }

    void an_examine_reads_whatever_is_there()
    {
        SESSION session(part_called("MT25QL256ABA"), false, 0);
        QVERIFY(session.run(GFPDB_OPERATION_INITIALIZATION));
        QVERIFY(session.run(GFPDB_OPERATION_VERIFY, FLOW_PURPOSE::EXAMINE));
        QCOMPARE(session.report(), std::string());
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
        QVERIFY(ALTERED_SESSION(part).passes());
        for (std::size_t kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
            const std::size_t count = ALTERED_SESSION(part).operations[kind]->get_actions()->size();
            for (std::size_t at = 0; at < count; ++at) {
                ALTERED_SESSION session(part);
                const GFPDB_ACTION& action = *(*session.operations[kind]->get_actions())[at];
                if (action.m_action_type == GFPDB_ACT_CUSTOM || only_checks(action))
                    continue;
                const std::string what = std::to_string(kind) + "/" + std::to_string(at) + " " + name_of(action);
                session.operations[kind] = without(*session.operations[kind], at);
                QVERIFY2(!session.passes(), what.c_str());
            }
        }
        const std::pair<int, const char*> alterations[] = {
            {GFPDB_WD_COMMAND, "0x03"},       {GFPDB_WD_PAGE_SIZE, "1024"}, {GFPDB_WD_BUS_WIDTH, "2-2-2"},
            {GFPDB_RD_COMMAND, "0x9F"},       {GFPDB_RD_DUMMY_CLOCK, "7"},  {GFPDB_RD_BUS_WIDTH, "1-2-2"},
            {GFPDB_RD_ADDRESS, "0x00000100"}, {GFPDB_ER_COMMAND, "0x02"},
        };
        for (const auto& [property, value] : alterations) {
            ALTERED_SESSION session(part);
            for (const OPERATION& operation : session.operations) {
                for (GFPDB_ACTION* action : *operation->get_actions())
                    action->set_property_value(static_cast<GFPDB_ACT_PROPERTY>(property), value);
            }
            QVERIFY2(!session.passes(), QByteArray::number(property).constData());
        }
    }

    // The templates of the five classes, executed for a device that its user has entered by hand.
    void a_template_serves_the_device_of_the_record()
    {
        const char* const names[] = {"MX25L12833F", "W25Q128JV-Q", "MX25L25645G", "W25Q256JV-Q", "MT25QL256ABA"};
        for (int index = 0; index < GFPDB_FLOW_TEMPLATE_COUNT; ++index) {
            for (const bool quad : {false, true}) {
                const GFPDB_PART& part = part_called(names[index]);
                SESSION session(part, quad, quad ? PROTECTED : 0);
                const auto& operations = *gfpdb_builtin_template_operations(index, quad);
                for (const std::size_t kind : {0, 2, 1, 3, 4})
                    QVERIFY2(session.executor.run(*operations[kind]), session.report().c_str());
                QCOMPARE(session.report(), std::string());
                QVERIFY(session.chip.holds(session.image));
                QVERIFY(session.chip.is_at_rest());
            }
        }
    }
};

QTEST_APPLESS_MAIN(TEST_FLOW_EXECUTION)

#include "test_flow_execution.moc"
