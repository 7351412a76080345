// SPDX-License-Identifier: MIT
#include "rules/gfpdb_checks.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
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

bool gfpdb_check_name(const std::string& name, const char* what, std::string& error)
{
    const QString text = gfpdb_from_utf8(name);
    const std::string called = GFPDB_WORDS::say(what);
    const std::string longest = std::to_string(GFPDB_NAME_LENGTH_MAX);
    if (text.isEmpty())
        return refuse(error, GFPDB_WORDS::say("The %1 is empty: 1 to %2 characters are allowed.", {called, longest}));
    if (!gfpdb_is_utf8(name))
        return refuse(error, GFPDB_WORDS::say("The %1 has characters that cannot be stored.", {called}));
    const int length = text.toUcs4().size();
    if (length > GFPDB_NAME_LENGTH_MAX)
        return refuse(error, GFPDB_WORDS::say("The %1 has %2 characters: 1 to %3 characters are allowed.",
                                              {called, std::to_string(length), longest}));
    if (std::any_of(text.begin(), text.end(), is_control))
        return refuse(error, GFPDB_WORDS::say("The %1 has a line break or another control character: use letters, "
                                              "digits, punctuation and spaces.",
                                              {called}));
    if (text.front().isSpace() || text.back().isSpace())
        return refuse(
            error, GFPDB_WORDS::say("The %1 %2 begins or ends with a space: remove it.", {called, gfpdb_quoted(name)}));
    if (gfpdb_name_key(name) == NEW_DEVICE)
        return refuse(error, GFPDB_WORDS::say("The %1 %2 is reserved for a new device: choose another.",
                                              {called, gfpdb_quoted(name)}));
    return true;
}

bool gfpdb_check_device_id(const std::string& id, std::string& error)
{
    static const QRegularExpression BYTE(QStringLiteral("\\A(?:0[xX])?[0-9A-Fa-f]{1,2}\\z"));
    const auto refuse_id = [&error](const std::string& problem) {
        return refuse(error,
                      GFPDB_WORDS::say("%1 Enter 1 to %2 bytes in hexadecimal, separated by spaces or commas, for "
                                       "example 0xC2 0x20 0x19.",
                                       {problem, std::to_string(GFPDB_ID_BYTES_MAX)}));
    };
    const QStringList bytes = id_texts(id);
    if (bytes == QStringList(QString()))
        return refuse_id(GFPDB_WORDS::say("The device ID is empty."));
    for (const QString& byte : bytes) {
        if (!BYTE.match(byte).hasMatch())
            return refuse_id(GFPDB_WORDS::say("%1 is not a byte of a device ID.", {gfpdb_quoted(gfpdb_to_utf8(byte))}));
    }
    if (bytes.size() > GFPDB_ID_BYTES_MAX)
        return refuse_id(GFPDB_WORDS::say("The device ID has %1 bytes.", {std::to_string(bytes.size())}));
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

bool gfpdb_check_range(int value, int lowest, int highest, const char* what, std::string& error)
{
    if (value >= lowest && value <= highest)
        return true;
    return refuse(error, GFPDB_WORDS::say("The %1 %2 is out of range: %3 to %4 are allowed.",
                                          {GFPDB_WORDS::say(what), std::to_string(value), std::to_string(lowest),
                                           std::to_string(highest)}));
}

bool gfpdb_check_choice(const std::string& value, const std::vector<std::string>& allowed, const char* what,
                        std::string& error)
{
    if (std::find(allowed.begin(), allowed.end(), value) != allowed.end())
        return true;
    return refuse(error, GFPDB_WORDS::say("The %1 %2 is not known: choose one of %3.",
                                          {GFPDB_WORDS::say(what), gfpdb_quoted(value), gfpdb_joined(allowed)}));
}
