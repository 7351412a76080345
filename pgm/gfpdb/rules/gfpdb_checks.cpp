// SPDX-License-Identifier: MIT
#include "rules/gfpdb_checks.h"

#include "base/gfpdb_text.h"
#include "gfpdb/gfpdb_part.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

const std::string NEW_DEVICE = "<<new device>>";
constexpr QChar BYTE_ORDER_MARK = QChar(0xFEFF);

bool is_control(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph || character == BYTE_ORDER_MARK;
}

bool refuse(std::string& error, const std::string& text)
{
    error = text;
    return false;
}

// The bytes of a device ID as they are written; one empty text when there are none.
QStringList id_texts(const std::string& id)
{
    static const QRegularExpression OUTER_BLANKS(QStringLiteral("\\A[ \\t]+|[ \\t]+\\z"));
    static const QRegularExpression SEPARATORS(QStringLiteral("[ \\t]*,[ \\t]*|[ \\t]+"));
    return gfpdb_from_utf8(id).remove(OUTER_BLANKS).split(SEPARATORS);
}

} // namespace

bool gfpdb_check_name(const std::string& name, const std::string& what, std::string& error)
{
    const QString text = gfpdb_from_utf8(name);
    const std::string allowed = "1 to " + std::to_string(GFPDB_NAME_LENGTH_MAX) + " characters are allowed.";
    if (text.isEmpty())
        return refuse(error, "The " + what + " is empty: " + allowed);
    if (!gfpdb_is_utf8(name))
        return refuse(error, "The " + what + " has characters that cannot be stored.");
    const int length = text.toUcs4().size();
    if (length > GFPDB_NAME_LENGTH_MAX)
        return refuse(error, "The " + what + " has " + std::to_string(length) + " characters: " + allowed);
    if (std::any_of(text.begin(), text.end(), is_control))
        return refuse(error, "The " + what + " has a line break or another control character: use letters, digits, " +
                                 "marks and blanks.");
    if (text.front().isSpace() || text.back().isSpace())
        return refuse(error, "The " + what + " " + gfpdb_quoted(name) + " begins or ends with a blank: remove it.");
    if (gfpdb_name_key(name) == NEW_DEVICE)
        return refuse(error,
                      "The " + what + " " + gfpdb_quoted(name) + " is reserved for a new device: choose another.");
    return true;
}

bool gfpdb_check_device_id(const std::string& id, std::string& error)
{
    static const QRegularExpression BYTE(QStringLiteral("\\A(?:0[xX])?[0-9A-Fa-f]{1,2}\\z"));
    const std::string allowed = "Enter 1 to " + std::to_string(GFPDB_ID_BYTES_MAX) +
                                " bytes in hexadecimal, separated by blanks or commas, i.e. 0xC2 0x20 0x19.";
    const QStringList bytes = id_texts(id);
    if (bytes == QStringList(QString()))
        return refuse(error, "The device ID is empty. " + allowed);
    for (const QString& byte : bytes) {
        if (!BYTE.match(byte).hasMatch())
            return refuse(error, gfpdb_quoted(gfpdb_to_utf8(byte)) + " is not a byte of a device ID. " + allowed);
    }
    if (bytes.size() > GFPDB_ID_BYTES_MAX)
        return refuse(error, "The device ID has " + std::to_string(bytes.size()) + " bytes. " + allowed);
    return true;
}

std::vector<std::uint8_t> gfpdb_device_id_bytes(const std::string& id)
{
    std::string error;
    std::vector<std::uint8_t> bytes;
    if (!gfpdb_check_device_id(id, error))
        return bytes;
    const QStringList texts = id_texts(id);
    for (const QString& byte : texts)
        bytes.push_back(static_cast<std::uint8_t>(byte.toUInt(nullptr, 16)));
    return bytes;
}

bool gfpdb_check_range(int value, int lowest, int highest, const std::string& what, std::string& error)
{
    if (value >= lowest && value <= highest)
        return true;
    return refuse(error, "The " + what + " " + std::to_string(value) + " is out of range: " + std::to_string(lowest) +
                             " to " + std::to_string(highest) + " are allowed.");
}

bool gfpdb_check_choice(const std::string& value, const std::vector<std::string>& allowed, const std::string& what,
                        std::string& error)
{
    if (std::find(allowed.begin(), allowed.end(), value) != allowed.end())
        return true;
    return refuse(error, "The " + what + " " + gfpdb_quoted(value) + " is not known: choose one of " +
                             gfpdb_joined(allowed) + ".");
}
