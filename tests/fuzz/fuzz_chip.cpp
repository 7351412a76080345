// SPDX-License-Identifier: MIT

// Emulated chips and whatever a host sends to them.
//
// Input: a byte for the part; then, again and again, a byte for what happens: a command in phases, a command as plain
// bytes, a wait, a loss of power or a fault, with the bytes that it needs.
#include "fuzz_target.h"

#include "gfpdb/gfpdb_catalogue.h"
#include "gfpe/gfpe_chip.h"

#include <memory>

namespace {

constexpr std::size_t LONGEST_NOTE = 200;
constexpr std::int64_t LONGEST_ANSWER = 5000;

// Stops after a number of bytes.
class COUNTING : public GFPE_READER
{
public:
    explicit COUNTING(std::int64_t most) : m_most(most) {}
    bool take(const std::uint8_t* bytes, std::size_t length) override
    {
        FUZZ_CHECK(length > 0 && received < m_most);
        for (std::size_t at = 0; at < length; ++at)
            sum += bytes[at];
        received += static_cast<std::int64_t>(length);
        return received < m_most;
    }
    std::int64_t received = 0;
    // So that every byte is read.
    int sum = 0;

private:
    std::int64_t m_most;
};

std::uint32_t take_number(FUZZ_INPUT& input, int bytes)
{
    std::uint32_t number = 0;
    for (int count = 0; count < bytes; ++count)
        number = number << 8 | static_cast<std::uint32_t>(input.take_byte());
    return number;
}

void send(GFPE_CHIP& chip, FUZZ_INPUT& input, bool in_phases)
{
    GFPE_COMMAND command;
    command.opcode = static_cast<std::uint8_t>(input.take_byte());
    if (in_phases) {
        const int lines = input.take_byte();
        command.opcode_lines = lines & 7;
        command.address_lines = lines >> 3 & 7;
        command.data_lines = lines & 0x40 ? 4 : 1;
        const int bytes = input.take_byte();
        command.address_bytes = (bytes & 7) - 1;
        command.address = take_number(input, 4);
        command.dummy_clocks = input.take_byte() - 1;
        command.driven_dummy_clocks = input.take_byte() - 1;
    }
    const std::string out = input.take_text();
    command.out = reinterpret_cast<const std::uint8_t*>(out.data());
    command.out_length = out.size();
    command.in_length = static_cast<std::int64_t>(take_number(input, 2)) - 1;
    COUNTING reader(LONGEST_ANSWER);
    const std::int64_t before = chip.get_time();
    FUZZ_CHECK(chip.transfer(command, command.in_length % 2 ? &reader : nullptr));
    FUZZ_CHECK(chip.get_time() >= before);
    // Every byte that was asked for comes, unless the reader has enough.
    FUZZ_CHECK(!(command.in_length % 2) || reader.received >= LONGEST_ANSWER ||
               reader.received == std::max<std::int64_t>(command.in_length, 0));
}

void set_faults(GFPE_CHIP& chip, FUZZ_INPUT& input)
{
    GFPE_CHIP_FAULTS faults;
    const int which = input.take_byte();
    const GFPE_CHIP_FAULTS::BIT bit = {take_number(input, 3), input.take_byte()};
    faults.stays_busy = which & 1;
    faults.is_missing = (which & 6) == 6;
    if (which & 8)
        faults.does_not_program = bit;
    if (which & 16)
        faults.does_not_erase = bit;
    if (which & 32)
        faults.power_lost_at = input.take_byte();
    chip.set_faults(faults);
}

void check(const GFPE_CHIP& chip)
{
    const std::vector<std::string> notes = chip.get_notes();
    FUZZ_CHECK(notes.size() <= GFPE_CHIP_NOTES);
    for (const std::string& note : notes)
        FUZZ_CHECK(note.size() <= LONGEST_NOTE);
    FUZZ_CHECK(chip.get_last_error().empty());
    chip.is_at_rest();
    std::uint8_t last = 0;
    chip.read_memory(chip.get_size() - 1, &last, 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FUZZ_INPUT input(data, size);
    const std::vector<GFPDB_PART>& parts = gfpdb_catalogue_parts();
    std::string problem;
    const std::unique_ptr<GFPE_CHIP> chip =
        GFPE_CHIP::make(parts[static_cast<std::size_t>(input.take_byte()) % parts.size()], problem);
    FUZZ_CHECK(chip && problem.empty());
    while (!input.at_end()) {
        switch (input.take_byte() % 8) {
        case 0:
            chip->wait(static_cast<std::int64_t>(take_number(input, 3)) * 1000);
            break;
        case 1:
            chip->cycle_power();
            break;
        case 2:
            set_faults(*chip, input);
            break;
        case 3:
        case 4:
            send(*chip, input, true);
            break;
        default:
            send(*chip, input, false);
            break;
        }
    }
    check(*chip);
    return 0;
}
