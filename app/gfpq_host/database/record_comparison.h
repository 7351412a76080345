// SPDX-License-Identifier: MIT

// Two records, or states of records, side by side. Knows no widget.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <QCoreApplication>
#include <QString>

#include <vector>

// A record with its flows, and what it is called in a comparison.
struct COMPARED
{
    QString title;
    GFPDB_RECORD record;
};

// A value of both records, or a line of their flows.
struct COMPARED_ROW
{
    enum class SIGN
    {
        SAME,
        CHANGED,
        LEFT_ONLY,
        RIGHT_ONLY,
    };

    // What it is a value of, or the operation that has the line.
    QString title;
    QString left;
    QString right;
    SIGN sign = SIGN::SAME;
    // A title over the rows that follow.
    bool is_heading = false;
    // True for a line of a flow.
    bool is_line = false;

    bool differs() const { return sign != SIGN::SAME; }
    // Of a changed line, what of it is different: its parts between bars; else both sides whole.
    QString different_left() const { return different(left, right); }
    QString different_right() const { return different(right, left); }

private:
    QString different(const QString& own, const QString& other) const;
};

class RECORD_COMPARISON
{
    Q_DECLARE_TR_FUNCTIONS(RECORD_COMPARISON)

public:
    // A heading before the fields and before each flow, with the operations' lines aligned.
    static std::vector<COMPARED_ROW> rows(const GFPDB_RECORD& left, const GFPDB_RECORD& right);

private:
    static std::vector<COMPARED_ROW> fields(const GFPDB_RECORD& record);
    static void add_fields(std::vector<COMPARED_ROW>& rows, const GFPDB_RECORD& left, const GFPDB_RECORD& right);
    static void add_flows(std::vector<COMPARED_ROW>& rows, const GFPDB_RECORD& left, const GFPDB_RECORD& right,
                          bool flow_variant);
};

// The differences in the form that patch tools know; empty when there are none, or when flows cannot be read.
QString comparison_as_diff(const COMPARED& left, const COMPARED& right);
