// SPDX-License-Identifier: MIT

// Side-by-side measurements: an operation of ours and its floor, run alternately in one process.
//
// Figures are ratios, because the machines differ and are noisy: each round runs the floor and the operation one after
// the other (in turns: who comes first changes every round), and the row's ratio is the median of the rounds' ratios.
// GUI thread only.
#pragma once

#include <QJsonArray>
#include <QString>

#include <functional>
#include <vector>

class BENCH_HARNESS
{
public:
    // Reads --json FILE and --rounds N from the command line; ends the process with a usage text on anything else.
    // Needs a QCoreApplication.
    BENCH_HARNESS();

    // The number of rounds that a row should take unless it says otherwise.
    int rounds() const { return m_rounds; }

    // Measures one row. `goal` is the ratio to stay below, 0 for a row without one. `prepare` runs untimed before each
    // timed run and may be empty.
    void compare(const QString& row, double goal, const std::function<void()>& floor,
                 const std::function<void()>& operation, const std::function<void()>& prepare = {});

    // Adds a row with one figure and its unit, for what has no floor.
    void figure(const QString& row, double value, const QString& unit);
    // The median time of `operation` in milliseconds; untimed `prepare` as above.
    double median_ms(const std::function<void()>& operation, const std::function<void()>& prepare = {}) const;

    // Prints the table to standard output and writes the JSON file when one was asked for. Returns the process's exit
    // code: 0 also when goals are missed (the table says so), 1 when the file could not be written.
    int finish() const;

private:
    int m_rounds = 15;
    QString m_json_file;
    QJsonArray m_rows;
};
