// SPDX-License-Identifier: MIT
#include "run/number_text.h"

#include <QLocale>

namespace {

constexpr int POSITION_DIGITS = 8;
constexpr int SECONDS_A_MINUTE = 60;
constexpr int SECONDS_AN_HOUR = 3600;
constexpr int HEXADECIMAL = 16;
constexpr int DECIMAL = 10;

} // namespace

std::optional<std::int64_t> parse_number(const QString& text)
{
    const QString trimmed = text.trimmed();
    const bool is_hexadecimal = trimmed.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    bool is_number = false;
    const qlonglong number = is_hexadecimal ? trimmed.midRef(2).toLongLong(&is_number, HEXADECIMAL)
                                            : trimmed.toLongLong(&is_number, DECIMAL);
    if (!is_number || number < 0 || trimmed.contains(QLatin1Char('-')))
        return std::nullopt;
    return number;
}

QString position_text(std::int64_t position)
{
    const QString digits = QString::number(position, HEXADECIMAL).toUpper();
    return QLatin1String("0x") + digits.rightJustified(POSITION_DIGITS, QLatin1Char('0'));
}

QString range_text(const GFPE_RANGE& range)
{
    return position_text(range.start) + QLatin1String(" - ") + position_text(range.end() - 1);
}

QString size_text(std::int64_t bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeIecFormat);
}

QString time_text(int seconds)
{
    const int hours = seconds / SECONDS_AN_HOUR;
    const int minutes = seconds / SECONDS_A_MINUTE - hours * SECONDS_A_MINUTE;
    const auto two_digits = [](int number) { return QStringLiteral("%1").arg(number, 2, DECIMAL, QLatin1Char('0')); };
    const QString rest = two_digits(seconds % SECONDS_A_MINUTE);
    if (hours > 0)
        return QStringLiteral("%1:%2:%3").arg(QString::number(hours), two_digits(minutes), rest);
    return QStringLiteral("%1:%2").arg(QString::number(minutes), rest);
}
