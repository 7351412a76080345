// SPDX-License-Identifier: MIT

// What the lint of flows finds: for each rule a flow that it finds, at the action, and the nearest one that is right.
//
// Where an emulated chip can tell, both are run on it: the first fails, or the chip has something to say.
#include "flow_notation.h"
#include "flow_run.h"
#include "test_rows.h"

#include "catalogue/gfpdb_builtin_records.h"
#include "catalogue/gfpdb_flow_templates.h"
#include "gfpdb/gfpdb_text.h"
#include "gfpe/gfpe_chip.h"
#include "model/gfpdb_row.h"

#include <QFile>
#include <QTest>

namespace {

constexpr const char* W25Q128 = "@part=W25Q128JV-Q ";
constexpr const char* MX25L256 = "@part=MX25L25645G ";

// What is wrong with a session of what the flow is for, on an emulated chip; empty when it passes, and the chip had
// nothing to note.
std::string fault_of(const NOTED_FLOW& noted)
{
    std::string problem;
    const std::unique_ptr<GFPE_CHIP> chip = GFPE_CHIP::make(*noted.part, problem);
    constexpr std::int64_t RANGE = 65536;
    const GFPE_DEVICE device = {noted.part->name, chip->get_size(), 1, noted.device.id};
    SPARSE_IMAGE image;
    image.add(device.bytes - RANGE, BYTES(700, 0xA5));
    std::string order;
    for (const auto& [kind, letter] : {std::pair(2, 'E'), std::pair(1, 'P'), std::pair(3, 'B')}) {
        if (noted.flow[static_cast<std::size_t>(kind)]->get_action_count() > 0)
            order += letter;
    }
    const GFPE_RESULT result =
        run_flow(device, noted.flow, *chip, order_of(order, GFPE_RANGE{device.bytes - RANGE, RANGE}), &image);
    return report_of(result) + gfpdb_joined(chip->get_notes()) + (chip->is_at_rest() ? "" : "not at rest");
}

// The findings in one line.
QString finding_of(const std::vector<GFPDB_LINT_FINDING>& findings)
{
    QString text;
    for (const GFPDB_LINT_FINDING& finding : findings)
        text += QString("%1 %2/%3 %4 %5; ")
                    .arg(finding.flow_variant ? "quad" : "single")
                    .arg(finding.operation)
                    .arg(finding.action)
                    .arg(finding.rule.c_str(), finding.text.c_str());
    return text;
}

QString lines_of(const char* name)
{
    QFile file(QStringLiteral(FLOW_TEST_DIRECTORY "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString("no such file");
}

} // namespace

class TEST_FLOW_LINT : public QObject
{
    Q_OBJECT

private slots:
    void a_rule_finds_what_it_is_for_and_no_more_data()
    {
        const QString w25 = W25Q128;
        const QString mx25 = MX25L256;
        const QString quad_page = "page( WR:06 WD:32,w=1-1-4 BUSY )";
        // Name, where it is found, the flow, the nearest that is right.
        rows<QString, QString, QString>({
            {"L01 program", "P1 L01", w25 + "P page( WD:02 BUSY )", w25 + "P page( WR:06 WD:02 BUSY )"},
            {"L01 second step of a loop", "P2 L01", w25 + "P WR:06 page( WD:02 BUSY )", "P page( WR:06 WD:02 BUSY )"},
            {"L01 disabled again", "P1 L13 P3 L01", w25 + "P page( WR:06 WR:04 WD:02 BUSY )",
             "P page( WR:04 WR:06 WD:02 BUSY )"},
            {"L01 erase", "E0 L01", w25 + "E ER:C7,a=0,at=none BUSY", w25 + "E WR:06 ER:C7,a=0,at=none BUSY"},
            {"L01 one erase of a loop", "E1 L01", "E sector( ER:D8 BUSY WR:06 ER:20,s=4096 BUSY )",
             "E sector( WR:06 ER:D8 BUSY WR:06 ER:20,s=4096 BUSY )"},
            {"L01 erases in a row", "E2 L01 E3 L01", "E WR:06 sector( ER:D8 ER:20,s=4096 BUSY )",
             "E sector( WR:06 ER:D8 ER:20,s=4096 BUSY )"},
            {"L01 status", "I1 L01", w25 + "I ID WR:01,d=0x00_0x02 BUSY", w25 + "I ID WR:06 WR:01,d=0x00_0x02 BUSY"},
            {"L01 volatile status", "I2 L01", "I ID WR:50 WR:01,d=0x00 RR:70,d=0x80,m=0x80,n=9",
             "I ID WR:50 WR:01,d=0x00"},
            {"L01 used by another write", "I2 L02 I3 L01", "I ID WR:06 WR:31,d=0x02 WR:01,d=0x00 BUSY",
             "I ID WR:06 WR:31,d=0x02 BUSY WR:06 WR:01,d=0x00 BUSY"},
            {"L01 the register is volatile once", "I3 L01 I3 L02", "I ID WR:50 WR:01,d=0x00 WR:01,d=0x00",
             "I ID WR:50 WR:01,d=0x00 WR:50 WR:01,d=0x00"},
            {"L01 third status", "I1 L01", "I ID WR:11,d=0x00 BUSY", "I ID WR:11 WR:04"},
            {"L01 second step of a loop in a loop", "P4 L01", "P die( WR:C2,d=die WR:06 page( WD:02,at=die BUSY ) )",
             "P die( WR:C2,d=die page( WR:06 WD:02,at=die BUSY ) )"},
            {"L01 another die", "P3 L01", "P die( WR:04 WR:C2,d=die WD:02,at=die BUSY )",
             "P die( WR:06 WR:C2,d=die WD:02,at=die BUSY )"},
            {"L01 after a command that nobody knows", "P2 L01", "P page( WD:81 WD:02 BUSY )",
             "P page( WR:06 WD:81 WD:02 BUSY )"},
            {"L02 reset", "P2 L02", w25 + "P page( WR:06 WD:02 WR:66 WR:99,t=1000 )",
             w25 + "P page( WR:06 WD:02 BUSY WR:66 WR:99,t=1000 )"},
            {"L02 program", "P2 L02", w25 + "P page( WR:06 WD:02 )", w25 + "P page( WR:06 WD:02 BUSY )"},
            {"L02 asked once", "P2 L02", w25 + "P page( WR:06 WD:02 RR:05 )", "P page( WR:06 WD:02 RR:05 BUSY )"},
            {"L02 erase", "E1 L02", w25 + "E WR:06 ER:C7,a=0,at=none", w25 + "E WR:06 ER:C7,a=0,at=none BUSY"},
            {"L02 status", "I2 L02", w25 + "I ID WR:06 WR:01,d=0x00 WR:04", "I ID WR:06 WR:01,d=0x00 BUSY WR:04"},
            {"L02 each die", "P2 L02", "P page( WR:06 WD:02 WR:C2,d=0x01 )", "P page( WR:06 WD:02 WR:C2,d=0x01 BUSY )"},
            {"L02 waits until busy", "P2 L02", w25 + "P page( WR:06 WD:02 RR:05,d=0x01,m=0x01,n=9 )",
             "P page( WR:06 WD:02 RR:05,d=0x00,m=0x03,n=9 )"},
            {"L02 waits for the enable", "P2 L02", w25 + "P page( WR:06 WD:02 RR:05,d=0x02,m=0x02,n=9 )",
             "P page( WR:06 WD:02 RR:05,d=0x00,m=0x02,n=9 )"},
            {"L02 another bit", "P2 L02", w25 + "P page( WR:06 WD:02 RR:05,d=0x40,m=0x40,n=9 )",
             "P page( WR:06 WD:02 RR:05,d=0x40,m=0x41,n=9 )"},
            {"L02 the ID", "P2 L02", "P page( WR:06 WD:02 RR:9F,d=0xEF,m=0xFF,n=9 )",
             "P page( WR:06 WD:02 RR:70,d=0x80,m=0x80,n=9 )"},
            {"L03 program", "P2 L03", "P page( WR:06 WD:02,t=5000 )", "P page( WR:06 WD:02,t=5000 BUSY )"},
            {"L03 erase", "E1 L03", "E WR:06 ER:C7,a=0,at=none,t=90000 RR:05",
             "E WR:06 ER:C7,a=0,at=none,t=90000 RR:05,n=2"},
            {"L03 status", "I2 L03", "I ID WR:06 WR:01,d=0x00,t=15000 WR:04",
             "I ID WR:66 WR:99,t=15000 WR:06 WR:01,d=0x00 BUSY WR:04"},
            {"L04 program", "P2 L04", "quad " + w25 + "P " + quad_page,
             "quad " + w25 + "I ID WR:06 WR:01,d=0x00_0x02 BUSY P " + quad_page},
            {"L04 read", "V0 L04", "quad " + w25 + "V RD:EB,w=1-4-4,c=6", "quad @noqe V RD:EB,w=1-4-4,c=6"},
            {"L04 another bit", "V0 L04", "quad " + w25 + "I ID WR:06 WR:01,d=0x00_0x01 BUSY V RD:6B,w=1-1-4",
             "quad I ID WR:06 WR:01,d=0x40 BUSY V RD:6B,w=1-1-4"},
            {"L04 own command", "V0 L04", "quad I ID WR:06 WR:31,d=0x01 BUSY V RD:6B,w=1-1-4",
             "quad I ID WR:06 WR:31,d=0x02 BUSY V RD:6B,w=1-1-4"},
            {"L04 bit 7", "V0 L04", "quad I ID WR:06 WR:3E,d=0x40 BUSY V RD:6B,w=1-1-4",
             "quad I ID WR:06 WR:3E,d=0x80 BUSY V RD:6B,w=1-1-4"},
            {"L04 checked", "V0 L04", "quad I ID RR:35,d=0x00,m=0x02 V RD:6B,w=1-1-4",
             "quad I ID RR:35,d=0x02,m=0x02 V RD:6B,w=1-1-4"},
            {"L04 checked in the first register", "V0 L04", "quad I ID RR:05,d=0x00,m=0x40 V RD:6B,w=1-1-4",
             "quad I ID RR:05,d=0x40,m=0x40 V RD:6B,w=1-1-4"},
            {"L04 checked in bit 7", "V0 L04", "quad I ID RR:3F,d=0x00,m=0x80 V RD:6B,w=1-1-4",
             "quad I ID RR:3F,d=0x80,m=0x80 V RD:6B,w=1-1-4"},
            {"L04 after a reset", "V0 L04", "quad I ID WR:66 WR:99 V RD:6B,w=1-1-4",
             "quad I ID WR:06 WR:01,d=0x40 BUSY WR:66 WR:99 V RD:6B,w=1-1-4"},
            {"L04 cleared again", "P2 L04",
             "quad " + w25 + "@sr2 I ID WR:06 WR:01,d=0x00_0x02 BUSY WR:06 WR:01,d=0x00 BUSY P " + quad_page,
             "quad " + w25 + "@sr2 I ID WR:06 WR:01,d=0x00 BUSY WR:06 WR:31,d=0x02 BUSY P " + quad_page},
            {"L04 cleared by a second byte", "P2 L04",
             "quad " + w25 + "@sr2 I ID WR:06 WR:31,d=0x02 BUSY WR:06 WR:01,d=0x00_0x00 BUSY P " + quad_page,
             "quad " + w25 + "@sr2 I ID WR:06 WR:31,d=0x02 BUSY WR:06 WR:01,d=0x00_0x02 BUSY P " + quad_page},
            {"L04 cleared by its own command", "V0 L04",
             "quad " + w25 + "@sr2 I ID WR:06 WR:01,d=0x00_0x02 BUSY WR:06 WR:31,d=0x00 BUSY V RD:6B,w=1-1-4",
             "quad @sr2 I ID WR:06 WR:01,d=0x00 BUSY RR:35,d=0x02,m=0x02 V RD:6B,w=1-1-4"},
            {"L04 cleared where that is known", "V0 L04",
             "quad @sr2 I ID WR:06 WR:31,d=0x02 BUSY WR:06 WR:01,d=0x40 BUSY V RD:6B,w=1-1-4",
             "quad I ID WR:06 WR:31,d=0x02 BUSY WR:06 WR:01,d=0x00 BUSY V RD:6B,w=1-1-4"},
            {"L04 flag status", "V0 L04", "quad I ID BUSY V RD:6B,w=1-1-4",
             "quad I ID RR:70,d=0x80,m=0x80 V RD:6B,w=1-1-4"},
            {"L05", "V0 L05", w25 + "V RD:6B,w=1-1-4", w25 + "V RD:3B,w=1-1-2"},
            {"L06 loop", "P2 L06", mx25 + "P page( WR:06 WD:02 BUSY )", w25 + "P page( WR:06 WD:02 BUSY )"},
            {"L06 die", "E3 L06", "@bytes=67108864 @dies=2 E die( sector( WR:06 ER:D8,at=die BUSY ) )",
             "@bytes=33554432 @dies=2 E die( sector( WR:06 ER:D8,at=die BUSY ) )"},
            {"L06 read", "V0 L06", mx25 + "V RD:0B", "@bytes=33554432 V RD:0B,l=16777216"},
            {"L06 read from an address", "V0 L06", "V RD:0B,at=0x00000001,l=16777216,d=none",
             "V RD:0B,at=0x00000001,l=16777215,d=none"},
            {"L07 mode not entered", "V0 L07", mx25 + "V RD:0B,a=4", mx25 + "I ID WR:B7 V RD:0B,a=4 T WR:E9"},
            {"L07 mode left", "V1 L07", mx25 + "I ID WR:B7 V WR:E9 RD:0B,a=4 T WR:E9",
             mx25 + "I ID WR:B7 V RD:0B,a=4 WR:E9 T WR:E9"},
            {"L07 mode by the bank register", "V0 L07", "I ID WR:17,d=0x00 V RD:0B,a=4",
             "I ID WR:17,d=0x80 V RD:0B,a=4 T WR:17,d=0x00"},
            {"L07 mode checked", "V0 L07", "I ID RR:16,d=0x00,m=0x80 V RD:0B,a=4",
             "I ID RR:16,d=0x80,m=0x80 V RD:0B,a=4"},
            {"L07 mode checked by another register", "V0 L07", "I ID RR:15,d=0x00,m=0x20 V RD:0B,a=4",
             "I ID RR:15,d=0x20,m=0x20 V RD:0B,a=4"},
            {"L07 mode checked by another bit", "V0 L07", "I ID RR:15,d=0x02,m=0x02 V RD:0B,a=4",
             "I ID RR:15,d=0x01,m=0x01 V RD:0B,a=4"},
            {"L07 mode checked by the flags", "V0 L07", "I ID RR:70,d=0x02,m=0x02 V RD:0B,a=4",
             "I ID RR:70,d=0x01,m=0x01 V RD:0B,a=4"},
            {"L07 after a reset", "V2 L07", mx25 + "I ID WR:B7 V WR:66 WR:99,t=1000 RD:0B,a=4 T WR:E9",
             mx25 + "I ID WR:66 WR:99,t=1000 WR:B7 V RD:0B,a=4 T WR:E9"},
            {"L07 three in the mode", "V0 L07", mx25 + "I ID WR:B7 V RD:0B,l=256 T WR:E9", "V RD:0B,l=256"},
            {"L07 own command", "V0 L07", mx25 + "V RD:0C,l=256", mx25 + "V RD:0C,a=4"},
            {"L07 on four lines", "P2 L07", "quad @noqe P page( WR:06 WD:12,w=1-1-1 BUSY )",
             "quad @noqe P page( WR:06 WD:12,w=1-4-4 BUSY )"},
            {"L07 whole chip", "E1 L07", w25 + "E WR:06 ER:C7,at=0x00000000,s=16777216 BUSY",
             w25 + "E WR:06 ER:C7,a=0,at=none,s=16777216 BUSY"},
            {"L07 a sector", "E1 L07", w25 + "E WR:06 ER:D8,a=0,at=none,s=65536 BUSY",
             w25 + "E WR:06 ER:D8,at=0x00FF0000 BUSY"},
            {"L08", "I1 L08", mx25 + "I ID WR:B7 V RD:0B,a=4", mx25 + "I ID WR:B7 V RD:0B,a=4 T WR:E9"},
            {"L08 bank register", "I1 L08", "I ID WR:17,d=0x80 T WR:17,d=0x81", "I ID WR:17,d=0x80 T WR:17,d=0x01"},
            {"L08 entered again", "I3 L08", "I ID WR:B7 WR:E9 WR:B7", "I ID WR:B7 WR:E9 WR:B7 T WR:E9"},
            {"L08 other way out", "I1 L08", "I ID WR:B7 T WR:04", "I ID WR:B7 T WR:29"},
            {"L08 reset", "I1 L08", mx25 + "I ID WR:B7 T WR:66", "I ID WR:B7 T WR:66 WR:99,t=1000"},
            {"L09 larger", "P2 L09", w25 + "P page( WR:06 WD:02,p=512 BUSY )", w25 + "P page( WR:06 WD:02 BUSY )"},
            {"L09 smaller", "P2 L09", "@page=512 P page( WR:06 WD:02 BUSY )",
             "@page=512 P page( WR:06 WD:02,p=512 BUSY )"},
            {"L09 own data", "P2 L09", "@page=256 P page( WR:06 WD:02,p=128 BUSY )",
             "@page=256 P page( WR:06 WD:02,p=128,d=0x00 BUSY )"},
            {"L10 register", "I1 L10", w25 + "I ID RR:05,d=0x40,m=0x3C", w25 + "I ID RR:05,d=0x00,m=0x3C"},
            {"L10 second byte", "I1 L10", "I ID RR:05,l=2,d=0x00_0x02,m=0xFF_0x01",
             "I ID RR:05,l=2,d=0x00_0x01,m=0xFF_0x01"},
            {"L10 always", "I1 L10", "I ID RR:05,d=0x00,m=0x00", "I ID RR:05,d=none,m=0x00"},
            {"L10 ID", "I0 L10", w25 + "I RR:9F,d=id,l=3,m=0xFF_0x0F_0xFF", w25 + "I RR:9F,d=id,l=3,m=0xFF_0xF0_0xFF"},
            {"L10 data", "V0 L10", "V RD:0B,d=0xFF,m=0x0F", "V RD:0B,d=0x0F,m=0x0F"},
            {"L10 any data", "V0 L10", "V RD:0B,d=0x00,m=0x00", "V RD:0B,d=none,m=0x00"},
            {"L10 image", "V0 L10", w25 + "V RD:0B,m=0x0F", w25 + "V RD:0B,m=0xFF"},
            {"L11 page", "P0 L11", "P page( WR:06 WD:02,at=0x00000000 BUSY )", "P page( WR:06 WD:02 BUSY )"},
            {"L11 sector", "E0 L11", "E sector( WR:06 ER:C7,a=0,at=none BUSY )",
             "E sector( WR:06 ER:C7,a=0,at=none,s=16777216 ER:D8 BUSY )"},
            {"L11 no address", "E0 L11", "E sector( WR:06 ER:C7,a=0,at=loop BUSY )", "E WR:06 ER:C7,a=0,at=none BUSY"},
            {"L11 die", "T0 L11", "@dies=2 T die( WR:C2,d=0x01 WR:04 )", "@dies=2 T die( WR:C2,d=die WR:04 )"},
            {"L11 one die", "T0 L11", "@dies=1 T die( WR:C2,d=die WR:04 )", "T die( WR:C2,d=die WR:04 )"},
            {"L12 reset", "T2 L12", "T WR:66 WR:99,t=1000 WR:04", "T WR:04 WR:66 WR:99,t=1000 RR:05,m=0x03"},
            {"L12 reset of another kind", "T1 L12", "T WR:F0 WR:04", "T WR:04 WR:F0"},
            {"L12 power-down after the reset", "T2 L12", "T WR:66 WR:99 WR:17,d=0x00", "T WR:66 WR:99 WR:B9"},
            {"L12 power-down", "T1 L12", "T WR:B9 RR:05", "T RR:05 WR:B9"},
            {"L12 woken up", "I2 L12", "I ID WR:B9 WR:04", "I ID WR:B9 WR:AB WR:04"},
            {"L12 bank register", "I2 L12", "I ID WR:B9 WR:17,d=0x00", "I ID WR:06 WR:B9 WR:01,d=0x00 BUSY"},
            {"L13 read", "V0 L13", w25 + "V WR:06 RD:0B", w25 + "V RD:0B"},
            {"L13 twice", "P1 L13", "P page( WR:06 WR:06 WD:02 BUSY )", "P page( WR:06 WD:02 BUSY )"},
            {"L13 at the end", "T0 L13", "T WR:06", "T WR:06 WR:C5,d=0x00"},
            {"L13 for one erase", "E1 L13", "E sector( WR:06 WR:06 ER:D8 BUSY ER:20,s=4096 BUSY )",
             "E sector( WR:06 ER:D8 BUSY WR:06 ER:20,s=4096 BUSY )"},
            {"L14 Initialization", "I2 L14", "I ID WR:06 ER:C7,a=0,at=none BUSY", "E WR:06 ER:C7,a=0,at=none BUSY"},
            {"L14 verify", "V1 L14", "V WR:06 WD:02,at=0x00000000 BUSY", "P WR:06 WD:02,at=0x00000000 BUSY"},
            {"L14 Termination", "T1 L14", "T WR:06 WD:02,at=0x00000000 BUSY", "E WR:06 WD:02,at=0x00000000 BUSY"},
            {"L15 program", "P2 L15", w25 + "P page( WR:06 WD:03 BUSY )", w25 + "P page( WR:06 WD:02 BUSY )"},
            {"L15 read", "V0 L15", "V RD:D8", "V RD:5A"},
            {"L15 erase", "E2 L15", "E sector( WR:06 ER:02 BUSY )", "E sector( WR:06 ER:81 BUSY )"},
            {"L15 lines", "V0 L15", "quad @noqe V RD:EB,w=1-1-4,c=6", "quad @noqe V RD:EB,w=4-4-4,c=6"},
            {"L15 one line", "V0 L15", w25 + "V RD:6B", w25 + "V RD:0B"},
            {"L15 dummy clocks", "V0 L15", w25 + "V RD:03", w25 + "V RD:03,c=0"},
            {"L15 dummy clocks of four address bytes", "V0 L15", "V RD:13,a=4,c=1", "V RD:13,a=4,c=0"},
            {"L15 mode clocks of four address bytes", "V0 L15", "quad @noqe V RD:EC,w=1-4-4,a=4,c=1",
             "quad @noqe V RD:EC,w=1-4-4,a=4,c=2"},
            {"L15 mode clocks", "V0 L15", "quad @noqe V RD:EB,w=1-4-4,c=1", "quad @noqe V RD:EB,w=1-4-4,c=2"},
            {"L16 none", "I0 L16", "I P page( WR:06 WD:02 BUSY )", "I V RD:0B"},
            {"L16 expects nothing", "I1 L16", "I RR:9F,d=none P page( WR:06 WD:02 BUSY )",
             "I RR:9F,d=0xEF,m=0xFF P page( WR:06 WD:02 BUSY )"},
            {"L16 another command for IDs", "I1 L16", "I RR:90 P page( WR:06 WD:02 BUSY )",
             "I RR:9E P page( WR:06 WD:02 BUSY )"},
            {"L16 on four lines", "I1 L16", "I RR:AE P page( WR:06 WD:02 BUSY )", "I RR:AF P page( WR:06 WD:02 BUSY )"},
            {"L16 die before", "I0 L16", "I WR:C1,d=0x00 ID", "I WR:C2,d=0x00 ID"},
            {"L16 status before", "I1 L16", "I WR:06 WR:01,d=0x00 BUSY ID P page( WR:06 WD:02 BUSY )",
             "I ID WR:06 WR:01,d=0x00 BUSY P page( WR:06 WD:02 BUSY )"},
            {"L16 mode before", "I0 L16", "I WR:B7 ID T WR:E9", "I WR:66 WR:99,t=1000 ID WR:B7 T WR:E9"},
        });
    }

    void a_rule_finds_what_it_is_for_and_no_more()
    {
        const auto [place, wrong, right] = row<QString, QString, QString>();
        const NOTED_FLOW found = flow_from(wrong);
        const NOTED_FLOW passed = flow_from(right);

        QCOMPARE(findings_in(found).join(' '), place);
        QCOMPARE(findings_in(passed).join(' '), QString());

        QVERIFY(!found.part || !fault_of(found).empty());
        QCOMPARE(passed.part ? fault_of(passed) : std::string(), std::string());
    }

    void the_commands_of_all_makers_are_known_data()
    {
        rows<QString, QString, bool>({
            {"03", "V RD:03,c=0", "1-1-1", false},
            {"13", "V RD:13,c=0", "1-1-1", true},
            {"0B", "V RD:0B", "1-1-1", false},
            {"0C", "V RD:0C", "1-1-1", true},
            {"3B", "V RD:3B", "1-1-2", false},
            {"3C", "V RD:3C", "1-1-2", true},
            {"BB", "V RD:BB", "1-2-2", false},
            {"BC", "V RD:BC", "1-2-2", true},
            {"6B", "V RD:6B", "1-1-4", false},
            {"6C", "V RD:6C", "1-1-4", true},
            {"EB", "V RD:EB", "1-4-4", false},
            {"EC", "V RD:EC", "1-4-4", true},
            {"02", "P WR:06 WD:02", "1-1-1", false},
            {"12", "P WR:06 WD:12", "1-1-1", true},
            {"12 of four lines", "P WR:06 WD:12", "1-4-4", false},
            {"A2", "P WR:06 WD:A2", "1-1-2", false},
            {"D2", "P WR:06 WD:D2", "1-2-2", false},
            {"32", "P WR:06 WD:32", "1-1-4", false},
            {"32 address", "P WR:06 WD:32", "1-4-4", false},
            {"34", "P WR:06 WD:34", "1-1-4", true},
            {"34 address", "P WR:06 WD:34", "1-4-4", true},
            {"38", "P WR:06 WD:38", "1-1-4", false},
            {"38 address", "P WR:06 WD:38", "1-4-4", false},
            {"3E", "P WR:06 WD:3E", "1-1-4", true},
            {"3E address", "P WR:06 WD:3E", "1-4-4", true},
            {"20", "E WR:06 ER:20", "1-1", false},
            {"21", "E WR:06 ER:21", "1-1", true},
            {"52", "E WR:06 ER:52", "1-1", false},
            {"5C", "E WR:06 ER:5C", "1-1", true},
            {"D8", "E WR:06 ER:D8", "1-1", false},
            {"DC", "E WR:06 ER:DC", "1-1", true},
            {"D7", "E WR:06 ER:D7", "1-1", false},
            {"C4", "E WR:06 ER:C4", "1-1", false},
        });
    }

    void the_commands_of_all_makers_are_known()
    {
        const auto [action, width, takes_four] = row<QString, QString, bool>();
        const auto rules = [&, &action = action](const QString& flow, int bytes, const QString& lines) {
            const QString at = QString(",a=%1,at=0x00000000,w=%2").arg(bytes).arg(lines);
            const QString poll = action.startsWith('V') ? QString() : QString(" BUSY");
            QString found;
            for (const QString& finding : findings_in(flow_from("quad @noqe " + flow.arg(action + at + poll))))
                found += finding.section(' ', 1);
            return found;
        };

        QCOMPARE(rules("%1", 3, width), QString(takes_four ? "L07" : ""));
        QCOMPARE(rules("I ID WR:B7 %1 T WR:E9", 4, width), QString());
        QCOMPARE(rules("I ID WR:B7 %1 T WR:E9", 3, width), QString("L07"));
        QVERIFY(rules("I ID WR:B7 %1 T WR:E9", 4, action.startsWith('E') ? "1-4" : "1-2-4").contains("L15"));
    }

    void it_says_what_is_wrong_data()
    {
        rows<QString, QString>({
            {"L01", "E ER:D8,at=0x00000000 BUSY", "There is no write enable before it: the chip ignores the command."},
            {"L02", "E WR:06 ER:D8,at=0x00000000",
             "Nothing waits until the chip is ready: it ignores the commands that follow."},
            {"L03", "E WR:06 ER:D8,at=0x00000000,t=7",
             "7 us are waited for instead of asking whether the chip is ready."},
            {"L04", "quad V RD:6B,w=1-1-4",
             "The command is on four lines, and nothing before it sets or checks the quad-enable bit."},
            {"L04 cleared", "quad @sr2 I ID WR:06 WR:01,d=0x00 BUSY WR:66 WR:99 V RD:6B,w=1-1-4",
             "The command is on four lines, and a write of the status registers before it clears the quad-enable bit."},
            {"L05", "V RD:6B,w=1-1-4", "The command is on four lines, but the single-I/O flow has one."},
            {"L06", "V RD:0B,l=20000000",
             "Three address bytes reach 16777216 bytes, but the action works on 20000000."},
            {"L07 not entered", "V RD:0B,a=4",
             "The action sends four address bytes, but nothing before it enters 4-byte addressing."},
            {"L07 entered", "I ID WR:B7 V RD:0B T WR:E9",
             "The action sends three address bytes, but 4-byte addressing was entered before."},
            {"L07 always four", "V RD:0C", "The command always has four address bytes, but the action sends three."},
            {"L07 too many", "E WR:06 ER:C7,at=0x00000000 BUSY",
             "The command has no address, but the action sends one."},
            {"L07 none", "E WR:06 ER:D8,a=0,at=none BUSY", "The command has an address, but the action sends none."},
            {"L08", "I ID WR:B7", "4-byte addressing is entered here, and Termination does not leave it."},
            {"L09 larger", "@page=256 P page( WR:06 WD:02,p=512 BUSY )",
             "The page size is 512, but the part has pages of 256 bytes: what is beyond the end of a page overwrites "
             "its "
             "start."},
            {"L09 smaller", "@page=512 P page( WR:06 WD:02 BUSY )",
             "The page size is 256, but the part has pages of 512 bytes: programming takes longer than necessary."},
            {"L10 never", "I ID RR:05,d=0x02", "The expected data have bits that the mask clears: they never match."},
            {"L10 always", "I ID RR:05,m=0x00", "The mask has no bit: whatever is read matches."},
            {"L10 image", "V RD:0B,m=0xFE",
             "The image is compared with a mask: its bytes with bits that the mask clears never match."},
            {"L11 step", "T die( WR:04 )", "Nothing in the loop depends on its step: every step does the same."},
            {"L11 die", "@dies=1 T die( WR:C2,d=die )", "The device has one die: the loop has one step."},
            {"L12 reset", "T WR:99 WR:04", "The command follows the reset that brings the chip to its end."},
            {"L12 power-down", "T WR:B9 WR:04", "The chip is in deep power-down and ignores the command."},
            {"L13", "T WR:06", "No command uses this write enable."},
            {"L14", "V WR:06 ER:D8,at=0x00000000 BUSY",
             "Data are changed in an operation that is also executed when the user asked for neither Program nor "
             "Erase."},
            {"L15 program", "V RD:02", "This is a command that programs."},
            {"L15 read", "P WD:0B,at=0x00000000", "This is a command that reads data."},
            {"L15 erase", "V RD:D8", "This is a command that erases."},
            {"L15 width", "V RD:0B,w=1-1-2", "The command does not have the bus width 1-1-2. Allowed: 1-1-1."},
            {"L15 dummy clocks", "V RD:03", "The command has no dummy clocks."},
            {"L15 mode clocks", "quad @noqe V RD:EB,w=1-4-4,c=0",
             "The command has two dummy clocks at least, its mode clocks."},
            {"L16 none", "I E ER:81,at=0x00000000",
             "There is no ID check: the flow changes whatever chip is connected."},
            {"L16 late", "I WR:98 ID", "The chip is changed before its ID is checked."},
        });
    }

    void it_says_what_is_wrong()
    {
        const auto [flow, text] = row<QString, QString>();
        const NOTED_FLOW noted = flow_from(flow);

        const std::vector<GFPDB_LINT_FINDING> found =
            gfpdb_lint_flow(pointers(noted.flow), noted.is_quad, noted.device);

        QCOMPARE(found.size(), std::size_t(1));
        QCOMPARE(QString::fromStdString(found[0].text), text);
        QCOMPARE(QString::fromStdString(found[0].rule), QString(QTest::currentDataTag()).left(3));
        QCOMPARE(found[0].flow_variant, noted.is_quad);
    }

    // What is known of a device comes from its record and from the listed parts with its ID.
    void a_device_is_what_its_record_and_its_id_say_data()
    {
        rows<QString, int, bool, bool>({{"one part", "0xEF 0x40 0x18", 256, true, true},
                                        {"parts with other pages", "0x01 0x02 0x19", 0, true, true},
                                        {"bit in the first register", "0xC2 0x20 0x19", 256, true, false},
                                        {"command of its own", "0xC8 0x40 0x18", 256, true, false},
                                        {"no quad-enable bit", "0x20 0xBA 0x19", 256, false, false},
                                        {"another part of that maker", "0x20 0xBA 0x55", 0, false, false},
                                        {"another part of another maker", "0xEF 0x40 0x55", 0, true, false},
                                        {"nobody's", "0xEE 0x40 0x18", 0, true, false},
                                        {"none", "", 0, true, false}});
    }

    void a_device_is_what_its_record_and_its_id_say()
    {
        const auto [id, page_size, has_quad_enable, clears] = row<QString, int, bool, bool>();
        GFPDB_RECORD record;
        record.row.device_id = id.toStdString();
        record.row.density = "64Mb";
        record.row.total_die = 2;

        const GFPDB_LINT_DEVICE device = gfpdb_lint_device(record);
        QCOMPARE(device.bytes, std::int64_t(8388608));
        QCOMPARE(device.dies, 2);
        QCOMPARE(device.id, gfpdb_device_id_bytes(record.row.device_id));
        QCOMPARE(device.page_size, page_size);
        QCOMPARE(device.has_quad_enable, has_quad_enable);
        QCOMPARE(device.clears_second_status, clears);

        record.is_template = true;
        QCOMPARE(gfpdb_lint_device(record).bytes, std::int64_t(0));
        QVERIFY(gfpdb_lint_device(record).id.empty());
    }

    // A loop without end, an end without start, and more loops in loops than anyone could write out.
    void a_flow_that_is_wrong_is_looked_at_too()
    {
        QCOMPARE(findings_in(flow_from("P page( WR:06 WD:02")), QStringList{"P2 L02"});
        NOTED_FLOW noted = flow_from("P WD:02,at=0x00000000");
        noted.flow[1]->add_action(end("page"));
        QCOMPARE(findings_in(noted), (QStringList{"P0 L01", "P0 L02"}));
        noted = flow_from(QString("P ") + QString("page( ").repeated(100000) + "WR:06 WD:XY BUSY");
        QCOMPARE(findings_in(noted), QStringList());
        QVERIFY(gfpdb_lint_flow({nullptr}, false, {}).empty());
    }

    // What stays would be listed here, with the reason.
    void the_catalogue_is_free_of_findings()
    {
        for (const std::string& name : gfpdb_builtin_names()) {
            const GFPDB_RECORD record = {false, *gfpdb_builtin_record(name)->to_row(1, 7), 0};
            const QString first = finding_of(gfpdb_lint_record(record));
            QVERIFY2(first.isEmpty(), (name + ": ").append(first.toStdString()).c_str());
        }
    }

    void the_templates_are_free_of_findings()
    {
        for (int index = 0; index < GFPDB_FLOW_TEMPLATE_COUNT; ++index) {
            for (const bool quad : {false, true})
                QCOMPARE(finding_of(gfpdb_lint_flow(*gfpdb_builtin_template_operations(index, quad), quad, {})),
                         QString());
        }
    }

    void every_rule_has_a_number_of_its_own_and_a_page()
    {
        const QString page = lines_of("../../../docs/flows.md");
        int number = 0;
        for (const GFPDB_LINT_RULE& rule : gfpdb_lint_rules()) {
            QCOMPARE(QString(rule.number), QString("L%1").arg(++number, 2, 10, QChar('0')));
            const QString title = QString("\n#### %1: %2\n").arg(rule.number, rule.name);
            QVERIFY2(page.contains(title), qPrintable(title));
            QVERIFY2(QString(rule.finds).endsWith('.') && QString(rule.reason).endsWith('.'), rule.number);
        }
        QCOMPARE(page.count("\n#### L"), number);
    }
};

QTEST_APPLESS_MAIN(TEST_FLOW_LINT)

#include "test_flow_lint.moc"
