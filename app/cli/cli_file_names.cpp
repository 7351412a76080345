// SPDX-License-Identifier: MIT
#include "cli_file_names.h"

#include "gfpdb/gfpdb_text.h"

#include <QTextCodec>

namespace {

// A byte that is not UTF-8 is one of 128 low surrogates, which no text has alone.
constexpr ushort FIRST_BYTE = 0xDC00;
constexpr ushort FIRST_ODD_BYTE = FIRST_BYTE + 0x80;
constexpr ushort LAST_ODD_BYTE = FIRST_BYTE + 0xFF;

// How many bytes the character has that begins with `lead`.
std::size_t length_of(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    return byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
}

bool is_utf8(const std::string& bytes)
{
    return gfpdb_to_utf8(gfpdb_from_utf8(bytes)) == bytes;
}

class FILE_NAME_CODEC : public QTextCodec
{
public:
    QByteArray name() const override { return QByteArrayLiteral("UTF-8 and other bytes"); }
    // Of no registered character set.
    int mibEnum() const override { return -1; }

protected:
    QString convertToUnicode(const char* bytes, int length, ConverterState*) const override
    {
        const std::string all(bytes, static_cast<std::size_t>(length));
        if (is_utf8(all))
            return gfpdb_from_utf8(all);
        QString text;
        for (std::size_t at = 0; at < all.size();) {
            const std::string character = all.substr(at, length_of(all[at]));
            const bool is_character = is_utf8(character);
            text += is_character ? gfpdb_from_utf8(character)
                                 : QString(QChar(FIRST_BYTE + static_cast<unsigned char>(all[at])));
            at += is_character ? character.size() : 1;
        }
        return text;
    }

    QByteArray convertFromUnicode(const QChar* characters, int length, ConverterState*) const override
    {
        QByteArray bytes;
        int done = 0;
        for (int at = 0; at < length; ++at) {
            const ushort character = characters[at].unicode();
            if (character < FIRST_ODD_BYTE || character > LAST_ODD_BYTE ||
                (at > 0 && characters[at - 1].isHighSurrogate()))
                continue;
            bytes += QString(characters + done, at - done).toUtf8() + static_cast<char>(character - FIRST_BYTE);
            done = at + 1;
        }
        return bytes + QString(characters + done, length - done).toUtf8();
    }
};

} // namespace

// Qt deletes the codec.
void cli_use_file_names()
{
    QTextCodec::setCodecForLocale(new FILE_NAME_CODEC);
}
