// SPDX-License-Identifier: MIT

// Which records a user is looking for. Texts are UTF-8. GUI thread only (the catalogue).
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <QRegularExpression>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>

enum class RECORD_KIND
{
    DEVICE,
    TEMPLATE,
    BUILTIN,
};
RECORD_KIND record_kind(const GFPDB_RECORD& record, bool is_builtin);
// "device", "template", "builtin", and back; none for any other text.
const char* record_kind_name(RECORD_KIND kind);
std::optional<RECORD_KIND> record_kind_of(const std::string& name);

// A name in which a star stands for any characters and a question mark for one. Case does not matter.
QRegularExpression record_wildcard(const QString& pattern);
bool has_wildcard(const std::string& text);

// The voltages that a text stands for, in volts: "3.3V" one, "2.7-3.6V" all between the two.
struct RECORD_VOLTAGE
{
    double lowest = 0;
    double highest = 0;
};

// What a filter compares of a record: made once of it, so that a table of many can be filtered while the user types.
struct RECORD_KEYS
{
    RECORD_KEYS(const GFPDB_RECORD& record, bool is_builtin);

    RECORD_KIND kind;
    int family;
    int scheme;
    QString name;
    // Digits (record_id()).
    std::string id;
    // Compared as names are (gfpdb_name_key()).
    std::string manufacturer;
    std::string density;
    std::string voltage;
    // 0, and none, for texts that are not a density or a voltage.
    std::int64_t density_bytes;
    std::optional<RECORD_VOLTAGE> volts;
};

// Rules, of which a record has to meet all that are set. An empty text takes a rule away.
class RECORD_FILTER
{
public:
    // A wildcard for the whole name.
    void set_name(const std::string& wildcard);
    // The ID or its beginning, in any spelling. False, and the filter is as it was, for what is not an ID.
    bool set_id(const std::string& id);
    // A part of the name of the maker.
    void set_manufacturer(const std::string& part);
    // A size, however it is written ("256Mb", "32MB"); any other text as the records have it.
    void set_density(const std::string& density);
    // A voltage, or a range of them, that is within the range of the record ("3.3", "2.7-3.6V"); any other text as the
    // records have it.
    void set_voltage(const std::string& voltage);
    void set_kind(std::optional<RECORD_KIND> kind) { m_kind = kind; }
    // Templates and built-in devices serve every family and scheme.
    void set_family(std::optional<int> family) { m_family = family; }
    void set_scheme(std::optional<int> scheme) { m_scheme = scheme; }

    // True when no rule is set.
    bool is_empty() const;
    bool accepts(const RECORD_KEYS& keys) const;

private:
    bool accepts_place(const RECORD_KEYS& keys) const;
    bool accepts_density(const RECORD_KEYS& keys) const;
    bool accepts_voltage(const RECORD_KEYS& keys) const;

    QRegularExpression m_name;
    std::string m_id;
    std::string m_manufacturer;
    std::string m_density;
    std::int64_t m_density_bytes = 0;
    std::string m_voltage;
    std::optional<RECORD_VOLTAGE> m_volts;
    std::optional<RECORD_KIND> m_kind;
    std::optional<int> m_family;
    std::optional<int> m_scheme;
};
