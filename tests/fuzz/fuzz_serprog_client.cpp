// SPDX-License-Identifier: MIT

// The client of serprog against a programmer that answers anything.
//
// Input: what comes back after each time that the client sends, a length in two bytes and that many bytes; at the end
// the line is lost.
#include "fuzz_target.h"

#include "serprog/gfpe_serprog_client.h"

#include <algorithm>

namespace {

constexpr std::int64_t READ_BYTES = 40;

class FUZZ_LINE : public GFPE_LINE
{
public:
    FUZZ_LINE(const std::uint8_t* data, std::size_t size) : m_input(data, size) {}

    GFPE_LINE_STATE write(const std::uint8_t*, std::size_t most, std::size_t& sent, int) override
    {
        if (m_input.at_end())
            return GFPE_LINE_STATE::LOST;
        sent = most;
        m_come += m_input.take_text();
        return GFPE_LINE_STATE::DONE;
    }

    GFPE_LINE_STATE read(std::uint8_t* bytes, std::size_t most, std::size_t& length, int) override
    {
        length = std::min(most, m_come.size());
        std::copy_n(m_come.begin(), length, bytes);
        m_come.erase(0, length);
        return length > 0 ? GFPE_LINE_STATE::DONE : GFPE_LINE_STATE::TIMED_OUT;
    }

    std::string get_problem() const override { return "it was cut"; }

private:
    FUZZ_INPUT m_input;
    std::string m_come;
};

class COUNTING : public GFPE_READER
{
public:
    bool take(const std::uint8_t*, std::size_t length) override
    {
        count += static_cast<std::int64_t>(length);
        return true;
    }
    std::int64_t count = 0;
};

// A page and its poll, then a read with dummy clocks that are no whole byte; until the line is lost.
bool work(GFPE_BUS& bus)
{
    static const std::uint8_t PAGE[256] = {};
    GFPE_COMMAND write;
    write.opcode = 0x02;
    write.address_bytes = 3;
    write.out = PAGE;
    write.out_length = sizeof PAGE;
    GFPE_COMMAND read;
    read.opcode = 0x0B;
    read.address_bytes = 4;
    read.dummy_clocks = 10;
    read.in_length = READ_BYTES;
    COUNTING counting;
    const bool worked = bus.transfer(write, nullptr) && bus.wait(1) && bus.transfer(read, &counting) && bus.settle();
    FUZZ_CHECK(counting.count <= READ_BYTES && (!worked || counting.count == READ_BYTES));
    return worked;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    GFPE_SERPROG_CLIENT client(std::make_unique<FUZZ_LINE>(data, size), GFPE_SERPROG_LIMITS());
    const bool has_started = client.start(size % 2 == 0 ? 0 : 1000000);
    FUZZ_CHECK(has_started == client.get_last_error().empty());
    if (has_started) {
        const GFPE_ABILITIES abilities = client.get_abilities();
        FUZZ_CHECK(abilities.lines == 1 && abilities.clock >= 0);
        FUZZ_CHECK(abilities.longest_write > 0 && abilities.longest_read > 0);
        while (work(client))
            FUZZ_CHECK(client.get_last_error().empty());
    }
    FUZZ_CHECK(!client.get_last_error().empty() && !client.settle());
    return 0;
}
