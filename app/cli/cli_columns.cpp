// SPDX-License-Identifier: MIT
#include "cli_columns.h"

#include <QVector>

#include <algorithm>
#include <iterator>

namespace {

struct RANGE
{
    uint first;
    uint last;
};

// The blocks of Unicode whose characters are wide, in ascending order.
constexpr RANGE WIDE[] = {
    {0x1100, 0x115F},   {0x231A, 0x231B},   {0x2329, 0x232A},   {0x23E9, 0x23EC},   {0x2E80, 0x303E},
    {0x3041, 0x4DBF},   {0x4E00, 0xA4CF},   {0xA960, 0xA97F},   {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F},   {0xFF01, 0xFF60},   {0xFFE0, 0xFFE6},   {0x16FE0, 0x18CFF}, {0x1B000, 0x1B2FF},
    {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD},
};

// The vowels and final consonants of Korean syllables that are written letter by letter.
constexpr RANGE WITHIN_SYLLABLES = {0x1160, 0x11FF};

bool is_in(const RANGE& range, uint character)
{
    return range.first <= character && character <= range.last;
}

int width_of(uint character)
{
    const QChar::Category category = QChar::category(character);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing || category == QChar::Other_Format ||
        is_in(WITHIN_SYLLABLES, character))
        return 0;
    return std::any_of(std::begin(WIDE), std::end(WIDE), [=](const RANGE& range) { return is_in(range, character); })
               ? 2
               : 1;
}

} // namespace

int cli_width(const QString& text)
{
    int width = 0;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters)
        width += width_of(character);
    return width;
}

QString cli_padded(const QString& text, int width)
{
    return text + QString(std::max(0, width - cli_width(text)), QLatin1Char(' '));
}
