// SPDX-License-Identifier: MIT

// The device that is made from each read-out programs an emulated chip, in both variants.
#include "new_device.h"
#include "sparse_image.h"
#include "test_rows.h"

#include "catalogue/gfpdb_builtin_records.h"
#include "chip/gfpe_chip_facts.h"
#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_flow_lint.h"
#include "gfpdb/gfpdb_text.h"
#include "gfpe/gfpe_chip.h"
#include "gfpe/gfpe_run.h"

#include <QTest>

namespace {

// Runs across pages and sectors, at both ends and behind what three address bytes reach.
void fill(SPARSE_IMAGE& image, std::int64_t device_bytes)
{
    for (const std::int64_t start : {std::int64_t(0), device_bytes / 2 - 300, device_bytes - 777}) {
        BYTES bytes;
        for (int at = 0; at < 777; ++at)
            bytes.push_back(static_cast<std::uint8_t>(at * 31 + start));
        image.add(start, bytes);
    }
}

// A chip of the record's density, with old data at its ends, and what a run with its flow came to.
struct SESSION
{
    SESSION(const GFPDB_RECORD& record, bool quad) : chip(GFPE_CHIP::make(record, problem))
    {
        if (!chip)
            throw std::runtime_error(problem);
        operations = *gfpdb_operations(record, quad);
        std::vector<GFPDB_OPERATION*> flow;
        for (const auto& operation : operations)
            flow.push_back(operation.get());
        const GFPE_DEVICE device = {record.name(), gfpdb_density_bytes(record.row.density), *record.row.total_die,
                                    gfpdb_device_id_bytes(record.row.device_id)};
        constexpr std::uint8_t OLD = 0x5A;
        chip->write_memory(0, &OLD, 1);
        chip->write_memory(device.bytes - 1, &OLD, 1);
        fill(image, device.bytes);
        GFPE_RUN run(std::make_shared<GFPE_PLAN>(device, flow), *chip);
        run.set_image(&image);
        result = run.run({true, true, true, true, false, {}});
    }

    std::string report() const
    {
        std::string text = result.failure ? result.failure->action_name + ": " + result.failure->text : "";
        for (const GFPE_PROBLEM& each : result.problems)
            text += each.to_text() + ' ';
        return text + "; " + gfpdb_joined(chip->get_notes());
    }

    std::string problem;
    std::unique_ptr<GFPE_CHIP> chip;
    std::vector<std::unique_ptr<GFPDB_OPERATION>> operations;
    SPARSE_IMAGE image;
    GFPE_RESULT result;
};

} // namespace

class TEST_NEW_DEVICE_RUNS : public QObject
{
    Q_OBJECT

private slots:
    void every_new_device_programs_its_chip_data()
    {
        QTest::addColumn<QString>("part");
        QTest::addColumn<bool>("quad");
        for (const SFDP_FACTS& facts : expected_values()) {
            for (const bool quad : {false, true})
                QTest::addRow("%s %s", qPrintable(facts["file"]), quad ? "quad" : "single") << facts["file"] << quad;
        }
    }

    void every_new_device_programs_its_chip()
    {
        QFETCH(QString, part);
        QFETCH(bool, quad);

        const GFPDB_RECORD record = record_of(new_device(part));
        const SESSION session(record, quad);

        QVERIFY2(session.result.verdict == GFPE_VERDICT::PASSED, session.report().c_str());
        QVERIFY2(session.chip->get_notes().empty(), session.report().c_str());
        QVERIFY(session.chip->is_at_rest());
        for (const GFPDB_LINT_FINDING& finding : gfpdb_lint_record(record))
            QFAIL((finding.rule + ' ' + finding.text).c_str());
    }

    // A chip whose part has no read-out says what the emulation knows of it, or nothing.
    void what_each_emulated_chip_says_makes_a_device_for_it_data()
    {
        QTest::addColumn<QString>("name");
        for (const GFPDB_PART& part : gfpdb_catalogue_parts())
            QTest::newRow(part.name.c_str()) << QString::fromStdString(part.name);
    }

    void what_each_emulated_chip_says_makes_a_device_for_it()
    {
        const GFPDB_PART& part = *gfpdb_builtin_part(QString(QTest::currentDataTag()).toStdString());
        GFPE_CHIP_FACTS facts;
        std::string problem;
        QVERIFY(gfpe_chip_facts(part, facts, problem));
        QCOMPARE(facts.sfdp.empty(), part.name.rfind("AT25SF", 0) == 0 && part.name != "AT25SF128A");
        const std::optional<GFPDB_SFDP> sfdp = gfpdb_read_sfdp(facts.sfdp, problem);
        for (const bool quad : {false, true}) {
            GFPDB_RECORD record = record_of(GFPDB_NEW_DEVICE(facts.id, sfdp ? &*sfdp : nullptr));
            record.row.name = part.name; // the chip is that of this part

            const SESSION session(record, quad);

            QVERIFY2(session.result.verdict == GFPE_VERDICT::PASSED, session.report().c_str());
            QVERIFY2(session.chip->get_notes().empty(), session.report().c_str());
            QVERIFY(session.chip->is_at_rest());
        }
    }
};

QTEST_APPLESS_MAIN(TEST_NEW_DEVICE_RUNS)

#include "test_new_device_runs.moc"
