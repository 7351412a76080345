// SPDX-License-Identifier: MIT
#include "record_writer.h"

#include "gfpdb/gfpdb_text.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QSaveFile>

namespace {

// File names have 255 bytes at most; so many of the name leave room for the rest.
constexpr int NAME_BYTES_MAX = 160;
constexpr int HASH_DIGITS = 12;

// False, with the reason in the device's error.
bool write_all(QFileDevice& file, const std::string& text)
{
    const auto length = static_cast<qint64>(text.size());
    return file.write(text.data(), length) == length && file.flush();
}

bool replace_file(QSaveFile& file, const std::string& text)
{
    return file.open(QIODevice::WriteOnly) && file.setPermissions(file.permissions() & ~QFileDevice::WriteOther) &&
           write_all(file, text) && file.commit();
}

// A file name that begins with a period is hidden, one that begins with a dash reads as an option.
bool is_safe(const QString& name, int at)
{
    const QChar character = name[at];
    const bool is_at_end = at == 0 || at + 1 == name.size();
    return character.isSurrogate() || character.isLetterOrNumber() || character.isMark() ||
           character == QLatin1Char('_') || character == QLatin1Char('+') ||
           (!is_at_end && QStringLiteral(" -.,()=&@#").contains(character));
}

// Every character that is not safe as "%" and the two digits of each of its bytes.
QByteArray encoded(const QString& name)
{
    QByteArray text;
    int safe_from = 0;
    for (int at = 0; at <= name.size(); ++at) {
        if (at < name.size() && is_safe(name, at))
            continue;
        text += name.mid(safe_from, at - safe_from).toUtf8();
        if (at < name.size())
            text += name.mid(at, 1).toUtf8().toPercentEncoding(QByteArray(), QByteArray(1, name[at].toLatin1()));
        safe_from = at + 1;
    }
    return text;
}

// As much of the text, encoded, as a file name has room for.
QByteArray encoded_beginning(QString name)
{
    while (encoded(name).size() > NAME_BYTES_MAX)
        name.chop(name.size() > 1 && name.at(name.size() - 2).isHighSurrogate() ? 2 : 1);
    return encoded(name);
}

// A long name is cut, and gets digits that tell it from others with the same beginning. One that is not UTF-8 has its
// bytes: as a text it would be the same as others.
std::string stem_of(const std::string& name)
{
    const QString text = gfpdb_from_utf8(name);
    const bool is_text = gfpdb_to_utf8(text) == name;
    const QString normal = text.normalized(QString::NormalizationForm_C);
    const QByteArray stem =
        is_text ? encoded(normal) : QByteArray::fromStdString(name).toPercentEncoding(QByteArray(), "-.~");
    if (stem.size() <= NAME_BYTES_MAX)
        return stem.toStdString();
    const QByteArray key = QByteArray::fromStdString(gfpdb_name_key(name));
    const QByteArray hash = QCryptographicHash::hash(key, QCryptographicHash::Sha256).toHex().left(HASH_DIGITS);
    return ((is_text ? encoded_beginning(normal) : stem.left(NAME_BYTES_MAX)) + '%' + hash).toStdString();
}

} // namespace

bool write_record_file(const std::string& path, const std::string& text, std::string& problem)
{
    const QString name = QFile::decodeName(QByteArray::fromStdString(path));
    const QFileInfo existing(name);
    QString error;
    if (existing.exists() && !existing.isFile()) {
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !write_all(file, text))
            error = file.errorString();
    } else {
        QSaveFile file(name);
        if (!replace_file(file, text))
            error = file.errorString();
    }
    problem = gfpdb_to_utf8(error);
    return error.isEmpty();
}

std::string record_file_name(const GFPDB_RECORD& record, const std::string& ending)
{
    const GFPDB_ROW& row = record.row;
    const std::string kind = record.is_template ? "template"
                             : row.family == 0  ? "builtin"
                                                : std::to_string(row.family) + '-' + std::to_string(row.scheme);
    return stem_of(record.name()) + '-' + kind + ending;
}
