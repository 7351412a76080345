// SPDX-License-Identifier: MIT

// Long lists in boxes and beside fields.
#pragma once

#include <QString>
#include <QStringList>

// The first ten, one a line, and "..." when there are more: a box with all of them might be higher than the screen.
inline QString few_lines(const QStringList& lines)
{
    constexpr int MOST = 10;
    const QString few = lines.mid(0, MOST).join(QLatin1Char('\n'));
    return lines.size() > MOST ? few + QStringLiteral("\n...") : few;
}
