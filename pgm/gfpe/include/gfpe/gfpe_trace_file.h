// SPDX-License-Identifier: MIT

// Traces as files, written while the run goes on: docs/programming.md describes both formats.
#pragma once

#include "gfpe/gfpe_trace.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

// Needs as much memory for a long run as for a short one. Thread and errors as GFPE_TRACE; what cannot be written is
// said at the end, a trace does not stop a run.
class GFPE_EXPORT GFPE_TRACE_FILE : public GFPE_TRACE
{
public:
    ~GFPE_TRACE_FILE() override;

    // Writes to the file `path` (local 8-bit), in place of what is in it; "-" is standard output. False:
    // get_problem() says why. Once, before anything else.
    bool open(const std::string& path);
    // Writes what is left. False: not all of the trace could be written, get_problem() says why.
    bool finish();
    // A sentence in UTF-8; empty when nothing went wrong.
    const std::string& get_problem() const { return m_problem; }

protected:
    GFPE_TRACE_FILE() = default;
    void write(const char* text, std::size_t length);
    void write(const std::string& text) { write(text.data(), text.size()); }
    // What comes before the first command, and after the last one.
    virtual void begin() = 0;
    virtual void end() = 0;

private:
    void note_error();

    std::string m_path;
    std::string m_problem;
    std::FILE* m_file = nullptr;
};

// Comma-separated values: a line for each command.
class GFPE_EXPORT GFPE_CSV_TRACE final : public GFPE_TRACE_FILE
{
public:
    ~GFPE_CSV_TRACE() override;
    void command_started(const GFPE_TRACE_PLACE& place, const GFPE_COMMAND& command, std::int64_t time) override;
    void received(const std::uint8_t* bytes, std::size_t length) override;
    void command_ended(std::int64_t time) override;
    void failed(const std::vector<std::uint8_t>& expected, const std::vector<std::uint8_t>& mask) override;

private:
    void begin() override;
    void end() override { end_line(); }
    // A line ends when the next one begins: until then its command may turn out to have failed.
    void end_line();
    void write_bytes(const std::uint8_t* bytes, std::size_t length);

    std::int64_t m_number = 0;
    std::int64_t m_first_time = 0;
    std::int64_t m_received = 0;
    bool m_line_is_open = false;
    bool m_has_failed = false;
};

// The levels of the wires, as a value change dump, which logic analyser programs open.
class GFPE_EXPORT GFPE_VCD_TRACE final : public GFPE_TRACE_FILE
{
public:
    // `clock` in hertz, as of GFPE_ABILITIES. When it is 0, unknown, a trace has GFPE_VCD_CLOCK.
    explicit GFPE_VCD_TRACE(std::int64_t clock);
    ~GFPE_VCD_TRACE() override;
    void command_started(const GFPE_TRACE_PLACE& place, const GFPE_COMMAND& command, std::int64_t time) override;
    void received(const std::uint8_t* bytes, std::size_t length) override;
    void command_ended(std::int64_t time) override;
    void failed(const std::vector<std::uint8_t>&, const std::vector<std::uint8_t>&) override {}

private:
    enum SIGNAL
    {
        SELECT,
        CLOCK,
        IO0,
        IO1,
        IO2,
        IO3,
        SIGNALS,
    };

    static constexpr int LINES = 4;
    // Of IO0 to IO3: '0', '1', or 'z' when nobody is known to drive the line.
    using LEVELS = std::array<char, LINES>;

    void begin() override;
    void end() override;
    void set(int signal, char level);
    void set_lines(const LEVELS& levels);
    void run_clock(const LEVELS& levels);
    void send(std::uint64_t value, int bits, int lines);
    void send_dummies(const GFPE_COMMAND& command);

    const std::int64_t m_half_clock;
    // Of the times in the dump, in nanoseconds.
    std::int64_t m_unit = 1;
    std::int64_t m_first_time = -1;
    // In nanoseconds; and the one that was written last.
    std::int64_t m_now = 0;
    std::int64_t m_written = -1;
    int m_data_lines = 1;
    char m_levels[SIGNALS] = {};
};
constexpr std::int64_t GFPE_VCD_CLOCK = 10'000'000;

// The trace file that the end of `path` names, ".csv" or ".vcd" in either case, not yet open; null for any other.
GFPE_EXPORT std::unique_ptr<GFPE_TRACE_FILE> gfpe_make_trace_file(const std::string& path, std::int64_t clock);
