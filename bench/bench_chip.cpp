// SPDX-License-Identifier: MIT

// The emulated chip: program and verify of 16 MiB, page by page and poll by poll.
//
// Floor: memcpy() and memcmp() of the same bytes.
#include "bench_harness.h"

#include "gfpe/gfpe_chip.h"

#include "gfpdb/gfpdb_catalogue.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstring>
#include <stdexcept>

namespace {

constexpr std::size_t BYTES = 16 << 20;
constexpr std::size_t PAGE = 256;
constexpr std::int64_t POLL_US = 100;
constexpr double GOAL_MB_A_SECOND = 200;

std::unique_ptr<GFPE_CHIP> make_chip()
{
    std::string problem;
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        if (part.name == "W25Q128JV-Q")
            return GFPE_CHIP::make(part, problem);
    }
    throw std::runtime_error("the catalogue has no W25Q128JV-Q");
}

class COMPARING : public GFPE_READER
{
public:
    explicit COMPARING(const std::uint8_t* wanted) : m_wanted(wanted) {}
    bool take(const std::uint8_t* bytes, std::size_t length) override
    {
        is_right = is_right && std::memcmp(bytes, m_wanted, length) == 0;
        m_wanted += length;
        return is_right;
    }
    bool is_right = true;

private:
    const std::uint8_t* m_wanted;
};

class STATUS : public GFPE_READER
{
public:
    bool take(const std::uint8_t* bytes, std::size_t) override
    {
        value = *bytes;
        return true;
    }
    int value = 0;
};

void send(GFPE_CHIP& chip, std::uint8_t opcode)
{
    GFPE_COMMAND command;
    command.opcode = opcode;
    chip.transfer(command, nullptr);
}

void wait_until_ready(GFPE_CHIP& chip)
{
    GFPE_COMMAND poll;
    poll.opcode = 0x05;
    poll.in_length = 1;
    STATUS status;
    while (chip.transfer(poll, &status) && (status.value & 1))
        chip.wait(POLL_US);
}

void program(GFPE_CHIP& chip, const std::vector<std::uint8_t>& image)
{
    for (std::size_t at = 0; at < image.size(); at += PAGE) {
        send(chip, 0x06);
        GFPE_COMMAND page;
        page.opcode = 0x02;
        page.address_bytes = 3;
        page.address = static_cast<std::uint32_t>(at);
        page.out = image.data() + at;
        page.out_length = PAGE;
        chip.transfer(page, nullptr);
        wait_until_ready(chip);
    }
}

bool verify(GFPE_CHIP& chip, const std::vector<std::uint8_t>& image)
{
    GFPE_COMMAND read;
    read.opcode = 0x0B;
    read.address_bytes = 3;
    read.dummy_clocks = 8;
    read.in_length = static_cast<std::int64_t>(image.size());
    COMPARING comparing(image.data());
    chip.transfer(read, &comparing);
    return comparing.is_right;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    BENCH_HARNESS bench;
    std::vector<std::uint8_t> image(BYTES);
    for (std::size_t at = 0; at < image.size(); ++at)
        image[at] = static_cast<std::uint8_t>(at * 31 + at / PAGE);
    std::vector<std::uint8_t> copy(BYTES, 0xFF);
    const auto floor = [&] {
        std::memcpy(copy.data(), image.data(), image.size());
        if (std::memcmp(copy.data(), image.data(), image.size()) != 0)
            throw std::runtime_error("memcpy");
    };
    const auto operation = [&image](GFPE_CHIP& chip) {
        program(chip, image);
        if (!verify(chip, image))
            throw std::runtime_error("the chip has other bytes");
    };

    const std::unique_ptr<GFPE_CHIP> chip = make_chip();
    const auto erase = [&chip] { chip->fill_memory(0xFF); };
    bench.compare(
        QStringLiteral("chip: program and verify 16 MiB, to memcpy"), 0, floor, [&] { operation(*chip); }, erase);
    const double milliseconds = bench.median_ms([&] { operation(*chip); }, erase);
    bench.figure(QStringLiteral("chip: program and verify, goal %1").arg(GOAL_MB_A_SECOND),
                 static_cast<double>(BYTES) / 1000 / milliseconds, QStringLiteral("MB/s"));

    const QTemporaryDir directory;
    std::string problem;
    const std::string file = directory.filePath(QStringLiteral("chip.bin")).toStdString();
    if (!chip->use_file(file, problem))
        throw std::runtime_error(problem);
    const double with_file = bench.median_ms(
        [&] {
            operation(*chip);
            chip->save(problem);
        },
        erase);
    bench.figure(QStringLiteral("chip: the same, kept in a file"), static_cast<double>(BYTES) / 1000 / with_file,
                 QStringLiteral("MB/s"));
    return bench.finish();
}
