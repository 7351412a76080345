// SPDX-License-Identifier: MIT

// What the tests of both ends of serprog stand on: a bus that records, and a line to a programmer that goes wrong when
// it is told to.
#pragma once

#include "serprog/gfpe_line.h"
#include "serprog/gfpe_serprog_talk.h"

#include <QByteArray>
#include <QList>

#include <deque>
#include <map>
#include <vector>

using BYTES = std::vector<std::uint8_t>;

// "9F 00": bytes as they are read best.
inline BYTES bytes_of(const QByteArray& hex)
{
    const QByteArray bytes = QByteArray::fromHex(hex);
    return BYTES(bytes.begin(), bytes.end());
}

inline QByteArray hex_of(const BYTES& bytes)
{
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size())).toHex(' ').toUpper();
}

// Keeps what is read.
class BYTES_READER : public GFPE_READER
{
public:
    explicit BYTES_READER(std::size_t enough = SIZE_MAX) : m_enough(enough) {}
    bool take(const std::uint8_t* bytes, std::size_t length) override
    {
        read.insert(read.end(), bytes, bytes + length);
        return read.size() < m_enough;
    }

    BYTES read;

private:
    const std::size_t m_enough;
};

// Answers 10 11 12 ... to every command, and notes commands as "03 000000 +4" and waits as "wait 7".
class NOTING_BUS : public GFPE_BUS
{
public:
    GFPE_ABILITIES get_abilities() const override { return abilities; }
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override
    {
        BYTES sent = {command.opcode};
        if (command.out)
            sent.insert(sent.end(), command.out, command.out + command.out_length);
        log.append(hex_of(sent) + " +" + QByteArray::number(qlonglong(command.in_length)));
        BYTES answer(static_cast<std::size_t>(command.in_length));
        for (std::size_t i = 0; i < answer.size(); ++i)
            answer[i] = static_cast<std::uint8_t>(0x10 + i);
        if (reader && !answer.empty())
            reader->take(answer.data(), answer.size());
        return works;
    }
    bool wait(std::int64_t microseconds) override
    {
        log.append("wait " + QByteArray::number(qlonglong(microseconds)));
        return works;
    }
    std::int64_t get_time() const override { return time += step; }
    std::string get_last_error() const override { return works ? "" : "It is broken."; }

    QList<QByteArray> log;
    GFPE_ABILITIES abilities;
    bool works = true;
    // The clock, and how far it goes from one look at it to the next: too far to be waited for.
    mutable std::int64_t time = 0;
    std::int64_t step = 3600000000;
};

// A line with a programmer at its other end. No time passes on it: where a real line would be waited for in vain, it
// says so at once.
class FAULTY_LINE : public GFPE_LINE
{
public:
    struct FAULTS
    {
        // The number of the byte of all answers at which it happens.
        int lost_at = -1;
        int silent_at = -1;
        // What comes in place of that byte.
        std::map<int, std::uint8_t> altered;
        // The answers to commands, other than a programmer gives.
        std::map<int, BYTES> answers;
        // What stood in the line before.
        BYTES before;
        // Comes behind the answers, over and over.
        bool endless = false;
    };

    FAULTY_LINE(GFPE_BUS& bus, FAULTS faults) : m_talk(bus), m_faults(std::move(faults))
    {
        m_in.assign(m_faults.before.begin(), m_faults.before.end());
    }

    GFPE_LINE_STATE write(const std::uint8_t* bytes, std::size_t most, std::size_t& sent, int) override
    {
        sent = 0;
        if (is_lost())
            return GFPE_LINE_STATE::LOST;
        sent = most;
        writes.append(hex_of(BYTES(bytes, bytes + most)));
        for (std::size_t at = 0; at < most;) {
            if (m_is_start)
                m_command = bytes[at];
            at += m_talk.take(bytes + at, most - at);
            m_is_start = !m_talk.get_answer().empty();
            if (m_is_start)
                answer();
        }
        return GFPE_LINE_STATE::DONE;
    }

    GFPE_LINE_STATE read(std::uint8_t* bytes, std::size_t most, std::size_t& length, int milliseconds) override
    {
        length = 0;
        if (is_lost())
            return GFPE_LINE_STATE::LOST;
        while (length < most && !m_in.empty() && !is_lost() && position != m_faults.silent_at) {
            const auto altered = m_faults.altered.find(position++);
            bytes[length++] = altered == m_faults.altered.end() ? m_in.front() : altered->second;
            m_in.pop_front();
        }
        if (length == 0 && m_faults.endless)
            bytes[length++] = 0x55;
        waited_in_vain += length == 0 && milliseconds > 0 ? 1 : 0;
        return length > 0 ? GFPE_LINE_STATE::DONE : GFPE_LINE_STATE::TIMED_OUT;
    }

    std::string get_problem() const override { return "it was cut"; }
    void add(const BYTES& unasked) { m_in.insert(m_in.end(), unasked.begin(), unasked.end()); }
    void set_faults(const FAULTS& faults) { m_faults = faults; }

    // What was sent at a time, in their order; and the number of the next byte of the answers.
    QList<QByteArray> writes;
    int position = 0;
    // How often nothing came until the end of the time.
    int waited_in_vain = 0;

private:
    bool is_lost() const { return m_faults.lost_at >= 0 && position >= m_faults.lost_at; }
    void answer()
    {
        const auto own = m_faults.answers.find(m_command);
        add(own == m_faults.answers.end() ? m_talk.get_answer() : own->second);
    }

    GFPE_SERPROG_TALK m_talk;
    FAULTS m_faults;
    std::deque<std::uint8_t> m_in;
    bool m_is_start = true;
    int m_command = 0;
};
