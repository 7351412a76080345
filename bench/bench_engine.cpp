// SPDX-License-Identifier: MIT

// The flow engine: what a run costs besides its commands, and how much memory it takes.
//
// Floor of the run: a loop written by hand that makes the same calls to the same bus and the same image. The bus
// answers at once: it has the bytes of a device in memory, and its chip is never busy.
#include "bench_harness.h"

#include "gfpe/gfpe_run.h"

#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <malloc.h>

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <vector>

namespace {

constexpr double RUN_GOAL = 1.3;
constexpr std::int64_t MIB = 1024 * 1024;
constexpr std::size_t PAGE = 256;
constexpr std::size_t PIECE = 65536;

class READY_BUS : public GFPE_BUS
{
public:
    explicit READY_BUS(std::int64_t bytes) : m_memory(static_cast<std::size_t>(bytes), 0xFF) {}

    GFPE_ABILITIES get_abilities() const override { return {4, 0, 0, 0}; }
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override
    {
        const std::size_t place = command.address % m_memory.size();
        if (command.out_length > 0)
            std::memcpy(m_memory.data() + place, command.out, command.out_length);
        if (!reader)
            return true;
        if (command.in_length == 1)
            reader->take(&m_idle, 1);
        for (std::size_t done = 0; command.address_bytes > 0 && done < static_cast<std::size_t>(command.in_length);
             done += PIECE) {
            if (!reader->take(m_memory.data() + (place + done) % m_memory.size(), PIECE))
                break;
        }
        return true;
    }
    bool wait(std::int64_t) override { return true; }
    std::string get_last_error() const override { return {}; }

private:
    std::vector<std::uint8_t> m_memory;
    const std::uint8_t m_idle = 0x00;
};

// As large as any device: the same bytes again and again.
class REPEATED_IMAGE : public GFPE_IMAGE
{
public:
    REPEATED_IMAGE(std::int64_t bytes, std::int64_t period) : m_bytes(static_cast<std::size_t>(period)), m_end(bytes)
    {
        for (std::size_t place = 0; place < m_bytes.size(); ++place)
            m_bytes[place] = static_cast<std::uint8_t>(place * 2654435761U >> 13);
    }

    GFPE_RANGE get_range() const override { return {0, m_end}; }
    bool read(std::int64_t position, std::uint8_t* bytes, std::size_t length, std::string&) override
    {
        for (std::size_t done = 0; done < length;) {
            const std::size_t place = (static_cast<std::size_t>(position) + done) % m_bytes.size();
            const std::size_t part = std::min(length - done, m_bytes.size() - place);
            std::memcpy(bytes + done, m_bytes.data() + place, part);
            done += part;
        }
        return true;
    }

private:
    std::vector<std::uint8_t> m_bytes;
    const std::int64_t m_end;
};

// What is written by hand.
class HAND_LOOP : public GFPE_READER
{
public:
    HAND_LOOP(GFPE_BUS& bus, GFPE_IMAGE& image, bool quad) : m_bus(bus), m_image(image), m_lines(quad ? 4 : 1) {}

    bool program_and_verify(std::int64_t device_bytes)
    {
        std::vector<std::uint8_t> page(PAGE);
        const std::vector<std::uint8_t> blank(PAGE, 0xFF);
        for (std::int64_t position = 0; position < device_bytes; position += PAGE) {
            if (!m_image.read(position, page.data(), PAGE, m_problem))
                return false;
            if (page != blank && !program(position, page))
                return false;
        }
        GFPE_COMMAND read = command(m_lines == 4 ? 0xEB : 0x0B, 0);
        read.in_length = device_bytes;
        m_is_poll = false;
        m_position = 0;
        return m_bus.transfer(read, this) && m_is_right;
    }

    bool take(const std::uint8_t* bytes, std::size_t length) override
    {
        if (m_is_poll) {
            m_status = bytes[0];
            return true;
        }
        m_is_right = m_image.read(m_position, m_expected.data(), length, m_problem) &&
                     std::memcmp(bytes, m_expected.data(), length) == 0;
        m_position += static_cast<std::int64_t>(length);
        return m_is_right;
    }

private:
    GFPE_COMMAND command(std::uint8_t opcode, std::int64_t position) const
    {
        GFPE_COMMAND command;
        command.opcode = opcode;
        command.address_bytes = 3;
        command.address = static_cast<std::uint32_t>(position);
        command.address_lines = command.data_lines = m_lines;
        return command;
    }

    bool program(std::int64_t position, const std::vector<std::uint8_t>& page)
    {
        GFPE_COMMAND enable;
        enable.opcode = 0x06;
        GFPE_COMMAND write = command(m_lines == 4 ? 0x38 : 0x02, position);
        write.out = page.data();
        write.out_length = page.size();
        GFPE_COMMAND poll;
        poll.opcode = 0x05;
        poll.in_length = 1;
        if (!m_bus.transfer(enable, nullptr) || !m_bus.transfer(write, nullptr))
            return false;
        m_is_poll = true;
        do {
            if (!m_bus.transfer(poll, this))
                return false;
        } while ((m_status & 1) != 0);
        return true;
    }

    GFPE_BUS& m_bus;
    GFPE_IMAGE& m_image;
    const int m_lines;
    std::vector<std::uint8_t> m_expected = std::vector<std::uint8_t>(PIECE);
    std::string m_problem;
    std::int64_t m_position = 0;
    bool m_is_poll = false;
    bool m_is_right = true;
    std::uint8_t m_status = 0;
};

using VALUES = std::initializer_list<std::pair<GFPDB_ACT_PROPERTY, const char*>>;

GFPDB_ACTION* action(GFPDB_ACT_TYPE type, VALUES values)
{
    GFPDB_ACTION* const made = GFPDB_HELPER::get_active_flash_manager(false)->create_action(type);
    for (const auto& [property, value] : values)
        made->set_property_value(property, value);
    return made;
}

std::shared_ptr<const GFPE_PLAN> make_plan(std::int64_t device_bytes, bool quad)
{
    std::vector<std::unique_ptr<GFPDB_OPERATION>> operations;
    std::vector<GFPDB_OPERATION*> pointers;
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
        operations.emplace_back(GFPDB_HELPER::get_active_flash_manager(false)->create_operation(kind));
        pointers.push_back(operations.back().get());
    }
    const char* const mode = device_bytes > 16 * MIB ? "4" : "3";
    const char* const width = quad ? "1-4-4" : "1-1-1";
    GFPDB_OPERATION& program = *operations[GFPDB_OPERATION_PROGRAM];
    program.add_action(action(GFPDB_ACT_CUSTOM, {}));
    program.add_action(action(GFPDB_ACT_WRITE_REGISTER, {}));
    program.add_action(action(
        GFPDB_ACT_WRITE_DATA,
        {{GFPDB_WD_BUS_WIDTH, width}, {GFPDB_WD_COMMAND, quad ? "0x38" : "0x02"}, {GFPDB_WD_ADDRESSING_MODE, mode}}));
    program.add_action(action(GFPDB_ACT_READ_REGISTER, {{GFPDB_RR_ATTEMPT_COUNT, "200"}, {GFPDB_RR_DELAY, "100"}}));
    program.add_action(action(GFPDB_ACT_CUSTOM, {{GFPDB_CUSTOM_LOOP_MARKER, "end"}}));
    operations[GFPDB_OPERATION_VERIFY]->add_action(action(
        GFPDB_ACT_READ_DATA,
        {{GFPDB_RD_BUS_WIDTH, width}, {GFPDB_RD_COMMAND, quad ? "0xEB" : "0x0B"}, {GFPDB_RD_ADDRESSING_MODE, mode}}));
    return std::make_shared<GFPE_PLAN>(GFPE_DEVICE{"bench", device_bytes, 1, {}}, pointers);
}

// Notes how much memory is in use while a run goes on.
class MEMORY_METER : public GFPE_LISTENER
{
public:
    void progressed(const GFPE_PROGRESS&) override
    {
        constexpr int EVERY = 1000;
        if (m_calls++ % EVERY == 0)
            m_most = std::max(m_most, static_cast<double>(mallinfo2().uordblks));
    }
    double m_most = 0;

private:
    int m_calls = 0;
};

bool run(const std::shared_ptr<const GFPE_PLAN>& plan, GFPE_BUS& bus, GFPE_IMAGE& image, GFPE_LISTENER* listener)
{
    GFPE_ORDER order;
    order.program = order.verify = true;
    GFPE_RUN run(plan, bus);
    run.set_image(&image);
    run.set_listener(listener);
    return run.run(order).verdict == GFPE_VERDICT::PASSED;
}

void bench_run(BENCH_HARNESS& bench, READY_BUS& bus, REPEATED_IMAGE& image, bool quad)
{
    const std::int64_t bytes = image.get_range().length;
    const auto plan = make_plan(bytes, quad);
    HAND_LOOP hand(bus, image, quad);
    const auto must_pass = [](bool has_passed) {
        if (!has_passed)
            qFatal("The run does not pass.");
    };
    bench.compare(
        QStringLiteral("run: program and verify 16 MiB, %1")
            .arg(quad ? QStringLiteral("quad") : QStringLiteral("single")),
        RUN_GOAL, [&] { must_pass(hand.program_and_verify(bytes)); },
        [&] { must_pass(run(plan, bus, image, nullptr)); });
}

// The memory that a run takes for itself, in KiB.
void bench_memory(BENCH_HARNESS& bench, std::int64_t bytes)
{
    READY_BUS bus(MIB);
    REPEATED_IMAGE image(bytes, MIB);
    const double before = static_cast<double>(mallinfo2().uordblks);
    MEMORY_METER meter;
    if (!run(make_plan(bytes, false), bus, image, &meter))
        qFatal("The run does not pass.");
    bench.figure(QStringLiteral("run: memory for a device of %1 MiB").arg(bytes / MIB), (meter.m_most - before) / 1024,
                 QStringLiteral("KiB"));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    BENCH_HARNESS bench;
    const QTemporaryDir directory;
    GFPDB_MGR::set_db_custom_dir(directory.path().toStdString() + "/");
    GFPDB_HELPER::set_active_flash_family(PGMIO_ACTIVE_SERIAL);
    if (GFPDB_HELPER::get_active_flash_manager(true) == nullptr)
        return 1;

    READY_BUS bus(16 * MIB);
    REPEATED_IMAGE image(16 * MIB, 16 * MIB);
    bench_run(bench, bus, image, false);
    bench_run(bench, bus, image, true);
    bench_memory(bench, 16 * MIB);
    bench_memory(bench, 1024 * MIB);
    return bench.finish();
}
