// SPDX-License-Identifier: MIT

// All conversions between the library's byte strings and the texts of widgets.
#pragma once

#include <QString>
#include <QTextCodec>

#include <string>

// The text of a widget for the flash database: local 8-bit.
inline std::string gfpq_to_local(const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

// A text of the flash database: local 8-bit. A byte order mark at its start is part of the text, so that it is saved
// unchanged.
inline QString gfpq_from_local(const std::string& text)
{
    const int size = static_cast<int>(text.size());
    if (text.compare(0, 3, "\xEF\xBB\xBF") != 0)
        return QString::fromLocal8Bit(text.data(), size);
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForLocale()->toUnicode(text.data(), size, &state);
}

// A text of a constant table: UTF-8.
inline QString gfpq_from_utf8(const char* text)
{
    return QString::fromUtf8(text);
}

// The custom database directory, shown byte by byte.
inline QString gfpq_from_latin1(const std::string& text)
{
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}
