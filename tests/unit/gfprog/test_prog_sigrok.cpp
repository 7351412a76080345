// SPDX-License-Identifier: MIT

// A dump of the wires, as a logic analyser's program understands it.
#include "prog_test.h"

namespace {

// How sigrok's decoder of flash chips calls a command of a trace.
QString decoded(const QList<QByteArray>& cells)
{
    const QByteArray opcode = cells[5];
    const QString address = QString(cells[9]).toLower();
    const bool sends = opcode == "0x02";
    QString bytes = QString(sends ? cells[12] : cells[13]).toLower().remove("0x");
    const int count = bytes.isEmpty() ? 0 : bytes.count(' ') + 1;
    const QString data = QString(" (addr %1, %2 bytes): %3").arg(address).arg(count).arg(bytes);
    if (opcode == "0x9F")
        return "Read identification (RDID)";
    if (opcode == "0x05")
        return "Command: Read status register (RDSR)";
    if (opcode == "0x06")
        return "Command: Write enable (WREN)";
    if (opcode == "0x04")
        return "Command: Write disable (WRDI)";
    if (opcode == "0x20")
        return "Erase sector";
    if (opcode == "0x0B")
        return "Fast read data" + data;
    return opcode == "0x02" ? "Page program" + data : "unknown " + opcode;
}

} // namespace

class TEST_PROG_SIGROK : public PROG_TEST
{
    Q_OBJECT

private slots:
    // Sectors of 4 KiB, as the decoder does not know the command for larger ones.
    void sigrok_names_the_commands_of_the_flow()
    {
        store_changed_part("A", {{"\"0xD8\"", "\"0x20\""}, {"\"erase_size\": \"65536\"", "\"erase_size\": \"4096\""}});
        const QStringList arguments = {
            "program", image("file", 600), "--blank-check", "--offset", "0x12300", "--device", "A"};
        QCOMPARE(prog(arguments + QStringList{"--trace", at("t.vcd")}).exit_code, 0);
        QCOMPARE(prog(arguments + QStringList{"--trace", at("t.csv")}).exit_code, 0);
        QStringList expected;
        for (const QByteArray& line : text_of_file(at("t.csv")).trimmed().split('\n').mid(1))
            expected += decoded(line.split(','));

        const TOOL_RUN run =
            run_program("sigrok-cli", {"-i", at("t.vcd"), "-I", "vcd", "-P",
                                       "spi:clk=CLK:mosi=IO0:miso=IO1:cs=CS,spiflash:chip=macronix_mx25l1605d", "-A",
                                       "spiflash=commands"});
        QVERIFY2(run.exit_code == 0, run.err.constData());
        QStringList named;
        for (const QString& line : QString(run.out).trimmed().split('\n'))
            named += line.mid(QString("spiflash-1: ").size());
        QCOMPARE(named.mid(0, 1), QStringList{"Read identification (RDID): Device = Macronix MX25L3205D"});
        named[0].truncate(expected[0].size());
        for (int at = 0; at < qMin(named.size(), expected.size()); ++at)
            QVERIFY2(named[at].startsWith(expected[at]), qPrintable(named[at] + " / " + expected[at]));
        QCOMPARE(named.size(), expected.size());
    }
};

QTEST_GUILESS_MAIN(TEST_PROG_SIGROK)

#include "test_prog_sigrok.moc"
