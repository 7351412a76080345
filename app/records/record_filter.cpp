// SPDX-License-Identifier: MIT
#include "record_filter.h"

#include "record_facts.h"

#include "gfpdb/gfpdb_part.h"
#include "gfpdb/gfpdb_text.h"

#include <algorithm>

namespace {

// By RECORD_KIND.
constexpr const char* KIND_NAMES[] = {"device", "template", "builtin"};

std::optional<RECORD_VOLTAGE> volts_of(const std::string& text)
{
    static const QRegularExpression VOLTAGE(
        QStringLiteral("\\A\\s*(\\d+(?:\\.\\d+)?)\\s*V?\\s*(?:-\\s*(\\d+(?:\\.\\d+)?)\\s*V?\\s*)?\\z"),
        QRegularExpression::CaseInsensitiveOption);
    // Many people write a comma.
    const QRegularExpressionMatch match =
        VOLTAGE.match(gfpdb_from_utf8(text).replace(QLatin1Char(','), QLatin1Char('.')));
    if (!match.hasMatch())
        return std::nullopt;
    const double lowest = match.captured(1).toDouble();
    const double highest = match.captured(2).isEmpty() ? lowest : match.captured(2).toDouble();
    return RECORD_VOLTAGE{std::min(lowest, highest), std::max(lowest, highest)};
}

} // namespace

RECORD_KIND record_kind(const GFPDB_RECORD& record, bool is_builtin)
{
    if (is_builtin)
        return RECORD_KIND::BUILTIN;
    return record.is_template ? RECORD_KIND::TEMPLATE : RECORD_KIND::DEVICE;
}

const char* record_kind_name(RECORD_KIND kind)
{
    return KIND_NAMES[static_cast<int>(kind)];
}

std::optional<RECORD_KIND> record_kind_of(const std::string& name)
{
    for (const RECORD_KIND kind : {RECORD_KIND::DEVICE, RECORD_KIND::TEMPLATE, RECORD_KIND::BUILTIN}) {
        if (name == record_kind_name(kind))
            return kind;
    }
    return std::nullopt;
}

// Qt's own wildcards are for paths: their star ends at a slash, which a name may have. Names of older programs may also
// have a line break.
QRegularExpression record_wildcard(const QString& pattern)
{
    QString expression = QRegularExpression::escape(pattern);
    expression.replace(QLatin1String("\\*"), QLatin1String(".*")).replace(QLatin1String("\\?"), QLatin1String("."));
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::DotMatchesEverythingOption);
}

bool has_wildcard(const std::string& text)
{
    return text.find_first_of("*?") != std::string::npos;
}

RECORD_KEYS::RECORD_KEYS(const GFPDB_RECORD& record, bool is_builtin)
    : kind(record_kind(record, is_builtin)), family(record.row.family), scheme(record.row.scheme),
      name(gfpdb_from_utf8(record.name())), id(record_id(record.row)),
      manufacturer(gfpdb_name_key(record_manufacturer(record.row))), density(gfpdb_name_key(record.row.density)),
      voltage(gfpdb_name_key(record.row.voltage)), density_bytes(gfpdb_density_bytes(record.row.density)),
      volts(volts_of(record.row.voltage))
{}

void RECORD_FILTER::set_name(const std::string& wildcard)
{
    m_name = wildcard.empty() ? QRegularExpression() : record_wildcard(gfpdb_from_utf8(wildcard));
}

bool RECORD_FILTER::set_id(const std::string& id)
{
    const std::string digits = record_id_digits(id);
    if (digits.empty() && !id.empty())
        return false;
    m_id = digits;
    return true;
}

void RECORD_FILTER::set_manufacturer(const std::string& part)
{
    m_manufacturer = gfpdb_name_key(part);
}

void RECORD_FILTER::set_density(const std::string& density)
{
    m_density = gfpdb_name_key(density);
    m_density_bytes = gfpdb_density_bytes(density);
}

void RECORD_FILTER::set_voltage(const std::string& voltage)
{
    m_voltage = gfpdb_name_key(voltage);
    m_volts = volts_of(voltage);
}

bool RECORD_FILTER::is_empty() const
{
    return m_name.pattern().isEmpty() && m_id.empty() && m_manufacturer.empty() && m_density.empty() &&
           m_voltage.empty() && !m_kind && !m_family && !m_scheme;
}

bool RECORD_FILTER::accepts(const RECORD_KEYS& keys) const
{
    return m_kind.value_or(keys.kind) == keys.kind && accepts_place(keys) &&
           keys.id.compare(0, m_id.size(), m_id) == 0 && keys.manufacturer.find(m_manufacturer) != std::string::npos &&
           accepts_density(keys) && accepts_voltage(keys) &&
           (m_name.pattern().isEmpty() || m_name.match(keys.name).hasMatch());
}

bool RECORD_FILTER::accepts_place(const RECORD_KEYS& keys) const
{
    return keys.kind != RECORD_KIND::DEVICE ||
           (m_family.value_or(keys.family) == keys.family && m_scheme.value_or(keys.scheme) == keys.scheme);
}

bool RECORD_FILTER::accepts_density(const RECORD_KEYS& keys) const
{
    if (m_density_bytes > 0 && keys.density_bytes > 0)
        return m_density_bytes == keys.density_bytes;
    return m_density.empty() || m_density == keys.density;
}

bool RECORD_FILTER::accepts_voltage(const RECORD_KEYS& keys) const
{
    if (m_volts && keys.volts)
        return keys.volts->lowest <= m_volts->lowest && m_volts->highest <= keys.volts->highest;
    return m_voltage.empty() || m_voltage == keys.voltage;
}
