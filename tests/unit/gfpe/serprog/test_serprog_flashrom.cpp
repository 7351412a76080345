// SPDX-License-Identifier: MIT

// flashrom, a client that others wrote, works on emulated chips of seven makers behind our server.
#include "gfpe/gfpe_chip.h"
#include "serprog_stand.h"
#include "serprog_thread.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_catalogue.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int TIME_LIMIT_MS = 120000;

std::unique_ptr<GFPE_CHIP> chip_called(const std::string& name)
{
    std::string problem = "no part is called " + name;
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        if (part.name != name)
            continue;
        if (std::unique_ptr<GFPE_CHIP> chip = GFPE_CHIP::make(part, problem))
            return chip;
    }
    throw std::runtime_error(problem);
}

QByteArray contents_of(const GFPE_CHIP& chip)
{
    QByteArray contents(static_cast<int>(chip.get_size()), '\0');
    chip.read_memory(0, reinterpret_cast<std::uint8_t*>(contents.data()), static_cast<std::size_t>(contents.size()));
    return contents;
}

// Blank but for bytes at its start, across a block's end, and at its end: each page that is programmed takes time.
QByteArray image_for(const GFPE_CHIP& chip)
{
    QByteArray image(static_cast<int>(chip.get_size()), '\xFF');
    for (const int start : {0, 0x1FF80, image.size() - 4096}) {
        for (int i = 0; i < 4096; ++i)
            image[start + i] = static_cast<char>((start + i) * 31 % 251);
    }
    return image;
}

class FLASHROM
{
public:
    FLASHROM(int port, QString chip) : m_port(port), m_chip(std::move(chip)) {}

    // What it says when it is done; "failed: ..." when it is not.
    QByteArray run(const QStringList& arguments) const
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(FLASHROM_PROGRAM),
                      QStringList{QStringLiteral("-p"), QStringLiteral("serprog:ip=127.0.0.1:%1").arg(m_port),
                                  QStringLiteral("-c"), m_chip} +
                          arguments);
        const bool is_over = process.waitForFinished(TIME_LIMIT_MS);
        const bool has_worked = is_over && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
        return (has_worked ? QByteArray() : QByteArray("failed: ")) + process.readAll();
    }

private:
    const int m_port;
    const QString m_chip;
};

} // namespace

class TEST_SERPROG_FLASHROM : public QObject
{
    Q_OBJECT

private slots:
    void flashrom_works_on_an_emulated_chip_data()
    {
        rows<QString, QString>({{"Macronix", "MX25L1606E", "MX25L1605A/MX25L1606E/MX25L1608E"},
                                {"Winbond", "W25Q80DV", "W25Q80.V"},
                                {"GigaDevice", "GD25Q16E", "GD25Q16(B)"},
                                {"ISSI", "IS25WP032D", "IS25WP032"},
                                {"XMC", "XM25QH64C", "XM25QH64C"},
                                {"Adesto", "AT25SF081", "AT25SF081"},
                                {"SST", "SST26VF016B", "SST26VF016B(A)"}});
    }
    void flashrom_works_on_an_emulated_chip()
    {
        const auto [part, name] = row<QString, QString>();
        const std::unique_ptr<GFPE_CHIP> chip = chip_called(part.toStdString());
        const QByteArray image = image_for(*chip);
        const QTemporaryDir directory;
        const QString wanted = directory.filePath(QStringLiteral("wanted"));
        const QString found = directory.filePath(QStringLiteral("found"));
        QFile file(wanted);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(image) == image.size());
        file.close();
        {
            const SERVING_THREAD server(*chip);
            const FLASHROM flashrom(server.port(), name);

            // Writing reads, erases what differs, programs and verifies.
            const QByteArray written = flashrom.run({QStringLiteral("-w"), wanted});
            QVERIFY2(written.contains("VERIFIED"), written.constData());
            const QByteArray read = flashrom.run({QStringLiteral("-r"), found});
            QVERIFY2(read.contains("Reading flash... done"), read.constData());
        }
        QFile copy(found);
        QVERIFY(copy.open(QIODevice::ReadOnly));
        QVERIFY(copy.readAll() == image);
        QVERIFY(contents_of(*chip) == image);
        {
            const SERVING_THREAD server(*chip);
            const QByteArray erased = FLASHROM(server.port(), name).run({QStringLiteral("-E")});
            QVERIFY2(!erased.startsWith("failed"), erased.constData());
        }
        QVERIFY(contents_of(*chip) == QByteArray(image.size(), '\xFF'));
        const std::vector<std::string> notes = chip->get_notes();
        QVERIFY2(notes.empty(), notes.empty() ? "" : notes.front().c_str());
    }
};

QTEST_GUILESS_MAIN(TEST_SERPROG_FLASHROM)
#include "test_serprog_flashrom.moc"
