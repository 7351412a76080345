// SPDX-License-Identifier: MIT
#include "base/gfpdb_text.h"

#include "base/gfpdb_log.h"
#include "base/gfpdb_words.h"

Q_LOGGING_CATEGORY(GFPDB_LOG, "pgm.gfpdb")

namespace {

const std::string BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr QChar BYTE_ORDER_MARK_CHARACTER = QChar(0xFEFF);
constexpr int QUOTED_LENGTH = 64;

} // namespace

// QString::fromUtf8 drops one byte order mark at the start of a text.
QString gfpdb_from_utf8(const std::string& text)
{
    const QString decoded = QString::fromUtf8(text.data(), static_cast<int>(text.size()));
    const bool lost_mark = text.compare(0, BYTE_ORDER_MARK.size(), BYTE_ORDER_MARK) == 0;
    return lost_mark ? BYTE_ORDER_MARK_CHARACTER + decoded : decoded;
}

std::string gfpdb_to_utf8(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

bool gfpdb_is_utf8(const std::string& text)
{
    return gfpdb_to_utf8(gfpdb_from_utf8(text)) == text;
}

// A name that is not UTF-8 is its own key, so that it equals no name of the database.
std::string gfpdb_name_key(const std::string& name)
{
    if (!gfpdb_is_utf8(name))
        return name;
    return gfpdb_to_utf8(gfpdb_from_utf8(name).normalized(QString::NormalizationForm_C).toCaseFolded());
}

std::string gfpdb_case_note(const std::string& stored, const std::string& asked)
{
    const auto form = [](const std::string& name) {
        return gfpdb_from_utf8(name).normalized(QString::NormalizationForm_C);
    };
    return form(stored) == form(asked) ? std::string()
                                       : ' ' + GFPDB_WORDS::say("Upper and lower case count as the same.");
}

std::string gfpdb_quoted(const std::string& text)
{
    QString shown = gfpdb_from_utf8(text);
    if (shown.size() > QUOTED_LENGTH)
        shown = shown.left(QUOTED_LENGTH) + QLatin1String("...");
    for (QChar& character : shown) {
        if (!character.isPrint() && !character.isSurrogate())
            character = QLatin1Char('?');
    }
    return '"' + gfpdb_to_utf8(shown) + '"';
}
