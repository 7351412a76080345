// SPDX-License-Identifier: MIT

// What an examine read, and where it differs from the file.
#pragma once

#include "gfpe/gfpe_image.h"

#include <QString>
#include <QTemporaryFile>

#include <memory>
#include <vector>

// Kept in a temporary file, so that a device of any size takes no memory; where it differs, what was expected is kept
// in another one, whatever becomes of the file that it came from. Filled on the thread of the run, read afterwards.
class READ_OUT
{
public:
    // So many places with differences are kept; further ones are counted alone.
    static constexpr std::size_t MOST_DIFFERENCES = 100000;

    READ_OUT();
    READ_OUT(const READ_OUT&) = delete;
    READ_OUT& operator=(const READ_OUT&) = delete;

    // What is read is compared with `image`, which is asked until finish(); none for no comparison.
    void compare_with(GFPE_IMAGE* image);
    // Adds bytes behind those that are there; the first ones may begin anywhere. False: problem() says why.
    bool add(std::int64_t position, const std::uint8_t* bytes, std::size_t length);
    // Ends the filling.
    void finish();
    QString problem() const { return m_problem; }

    // The positions that were read.
    GFPE_RANGE range() const { return m_range; }
    bool is_compared() const { return m_is_compared; }
    // The number of bytes that differ, and where: sorted, without gaps that could be joined.
    std::int64_t different_bytes() const { return m_different_bytes; }
    const std::vector<GFPE_RANGE>& differences() const { return m_differences; }

    // Copies bytes of the range; fewer than asked for at its end.
    std::vector<std::uint8_t> read(std::int64_t position, std::size_t length);
    // The bytes that were expected at these positions, FF where the image has none. Nothing when is_compared() is
    // false.
    std::vector<std::uint8_t> read_expected(std::int64_t position, std::size_t length);
    // Copies everything into a file; false: problem() says why.
    bool save(const QString& file);

private:
    bool compare(std::int64_t position, const std::uint8_t* bytes, std::size_t length);
    void note_difference(std::int64_t position);
    bool keep_expected(std::int64_t position);

    QTemporaryFile m_file;
    // What was expected in m_expected_ranges, at the places that it has in m_file.
    QTemporaryFile m_expected;
    std::vector<GFPE_RANGE> m_expected_ranges;
    GFPE_IMAGE* m_image = nullptr;
    bool m_is_compared = false;
    GFPE_RANGE m_range;
    std::int64_t m_different_bytes = 0;
    std::vector<GFPE_RANGE> m_differences;
    std::vector<std::uint8_t> m_compared;
    QString m_problem;
};
