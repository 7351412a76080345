// SPDX-License-Identifier: MIT
#include "rules/gfpdb_options.h"

#include "gfpdb/gfpdb_catalogue.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr double LOW_VOLTAGE = 1.8;

// A new device begins with the first one that fits, so that the nominal voltages come first. The ranges are those of
// data sheets.
const std::vector<std::string> SERIAL_VOLTAGES = {"3.3V",      "3.0V",     "2.5V",      "1.8V",      "1.2V",
                                                  "2.5-3.6V",  "2.3-3.6V", "1.65-3.6V", "2.7-3.6V",  "3.0-3.6V",
                                                  "2.65-3.6V", "1.7-2.0V", "1.65-2.0V", "1.7-1.95V", "1.65-1.95V"};
const std::vector<std::string> PARALLEL_VOLTAGES = {"3.3V",     "3.0V",     "2.5V",     "1.8V",     "2.7-3.6V",
                                                    "3.0-3.6V", "2.3-3.6V", "1.7-2.0V", "1.7-1.95V"};
const std::vector<std::string> CARD_VOLTAGES = {"3.3V", "1.8V", "2.7-3.6V", "1.7-1.95V"};

const std::vector<std::string> SERIAL_DENSITIES = {"1Mb",   "2Mb",   "4Mb",   "8Mb",    "16Mb",   "32Mb",  "64Mb",
                                                   "128Mb", "256Mb", "512Mb", "1024Mb", "2048Mb", "4096Mb"};
const std::vector<std::string> PARALLEL_DENSITIES = {"8Mb",   "16Mb",  "32Mb",   "64Mb",  "128Mb",
                                                     "256Mb", "512Mb", "1024Mb", "2048Mb"};
const std::vector<std::string> CARD_DENSITIES = {"1GB", "2GB", "4GB", "8GB", "16GB", "32GB", "64GB", "128GB"};

std::vector<std::string> with_catalogue(std::vector<std::string> options, std::string GFPDB_PART::*value)
{
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        const std::string& text = part.*value;
        if (!text.empty() && std::find(options.begin(), options.end(), text) == options.end())
            options.push_back(text);
    }
    return options;
}

// The number, or the two numbers of a range.
QRegularExpressionMatch match_voltage(const std::string& text)
{
    static const QRegularExpression SHAPE(QStringLiteral("\\A([0-9]+(?:\\.[0-9]+)?)(?:-([0-9]+(?:\\.[0-9]+)?))?V\\z"));
    return SHAPE.match(QString::fromStdString(text));
}

} // namespace

std::vector<std::string> gfpdb_voltage_options(GFPDB_SCHEME_KIND kind)
{
    switch (kind) {
    case GFPDB_SCHEME_KIND::PARALLEL:
        return PARALLEL_VOLTAGES;
    case GFPDB_SCHEME_KIND::CARD:
        return CARD_VOLTAGES;
    default:
        return with_catalogue(SERIAL_VOLTAGES, &GFPDB_PART::voltage);
    }
}

std::vector<std::string> gfpdb_density_options(GFPDB_SCHEME_KIND kind)
{
    switch (kind) {
    case GFPDB_SCHEME_KIND::PARALLEL:
        return PARALLEL_DENSITIES;
    case GFPDB_SCHEME_KIND::CARD:
        return CARD_DENSITIES;
    default:
        return with_catalogue(SERIAL_DENSITIES, &GFPDB_PART::density);
    }
}

bool gfpdb_is_voltage(const std::string& text)
{
    return match_voltage(text).hasMatch();
}

bool gfpdb_voltage_fits(const std::string& voltage, int family, int scheme)
{
    const QRegularExpressionMatch match = match_voltage(voltage);
    if (!match.hasMatch())
        return false;
    const bool needs_low_voltage = family >= GFPDB_FIRST_LOW_VOLTAGE_FAMILY && family <= DEV_FAMILY_LAST &&
                                   gfpdb_scheme_kind(scheme) == GFPDB_SCHEME_KIND::SERIAL;
    const double lowest = match.captured(1).toDouble();
    const double highest = match.captured(2).isEmpty() ? lowest : match.captured(2).toDouble();
    return !needs_low_voltage || (lowest <= LOW_VOLTAGE && LOW_VOLTAGE <= highest);
}
