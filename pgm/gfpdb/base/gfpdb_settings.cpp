// SPDX-License-Identifier: MIT
#include "base/gfpdb_settings.h"

#include "base/gfpdb_create_dir.h"
#include "base/gfpdb_log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

const QString START_DIRECTORY = QDir::currentPath();
const QByteArray SECTION = QByteArrayLiteral("[database]");
constexpr qint64 LARGEST_FILE = 1 << 20;
// What some editors put before the first line.
const QByteArray BYTE_ORDER_MARK = QByteArrayLiteral("\xEF\xBB\xBF");

QString settings_path()
{
    const QByteArray named = qgetenv("GFPDB_SETTINGS");
    if (!named.isEmpty())
        return gfpdb_from_start(QFile::decodeName(named));
    return gfpdb_from_start(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                            QLatin1String("/gfpdb/gfpdb.ini"));
}

// Another directory than the user's may be used then: that is reported where warnings are not.
bool refuse(const QString& path, const QString& why)
{
    qCCritical(GFPDB_LOG, "The settings file %s %s", qUtf8Printable(path), qUtf8Printable(why));
    return false;
}

// The lines of the file; none when there is no file. False when there is one that cannot be read.
bool read_lines(const QString& path, QList<QByteArray>& lines)
{
    lines.clear();
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return true;
    QFile file(path);
    if (!info.isFile())
        return refuse(path, QStringLiteral("cannot be read: it is not a file"));
    if (!file.open(QIODevice::ReadOnly))
        return refuse(path, QStringLiteral("cannot be read: ") + file.errorString());
    if (file.size() > LARGEST_FILE)
        return refuse(path, QStringLiteral("is not a settings file: it is too large"));
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return refuse(path, QStringLiteral("cannot be read: ") + file.errorString());
    if (content.contains('\0'))
        return refuse(path, QStringLiteral("is not a settings file: it is not text"));
    while (content.startsWith(BYTE_ORDER_MARK))
        content.remove(0, BYTE_ORDER_MARK.size());
    lines = content.split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return true;
}

bool is_heading(const QByteArray& line)
{
    return line.trimmed().startsWith('[');
}

bool is_line_of(const QByteArray& line, const QByteArray& key)
{
    const int equals = line.indexOf('=');
    return equals >= 0 && line.left(equals).trimmed() == key;
}

// The place of the last line of `key` in the section, or -1; `section_end` is the place behind the section's last line.
int find_line(const QList<QByteArray>& lines, const QByteArray& key, int& section_end)
{
    bool in_section = false;
    int found = -1;
    section_end = -1;
    for (int i = 0; i < lines.size(); ++i) {
        if (is_heading(lines[i]))
            in_section = lines[i].trimmed() == SECTION;
        if (!in_section)
            continue;
        section_end = i + 1;
        if (is_line_of(lines[i], key))
            found = i;
    }
    return found;
}

bool write_lines(const QString& path, const QList<QByteArray>& lines)
{
    if (!gfpdb_create_dir(QFile::encodeName(QFileInfo(path).absolutePath()).toStdString()))
        return refuse(path, QStringLiteral("cannot be written: its directory cannot be created"));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return refuse(path, QStringLiteral("cannot be written: ") + file.errorString());
    // Who can write the settings decides which database is used.
    file.setPermissions(file.permissions() & ~QFileDevice::WriteOther);
    const QByteArray content = lines.join('\n') + '\n';
    // Otherwise a file that is not whole would be put in its place.
    if (file.write(content) != content.size() || !file.flush())
        file.cancelWriting();
    if (!file.commit())
        return refuse(path, QStringLiteral("cannot be written: ") + file.errorString());
    return true;
}

} // namespace

QString gfpdb_from_start(const QString& path)
{
    return QDir(START_DIRECTORY).absoluteFilePath(path);
}

std::string gfpdb_read_setting(const std::string& key)
{
    QList<QByteArray> lines;
    read_lines(settings_path(), lines);
    int section_end = -1;
    const int line = find_line(lines, QByteArray::fromStdString(key), section_end);
    if (line < 0)
        return std::string();
    return lines[line].mid(lines[line].indexOf('=') + 1).trimmed().toStdString();
}

bool gfpdb_write_setting(const std::string& key, const std::string& value)
{
    const QString path = settings_path();
    if (value.find_first_of(std::string("\n\r\0", 3)) != std::string::npos)
        return refuse(path, QStringLiteral("cannot hold a value with a line break"));
    QList<QByteArray> lines;
    if (!read_lines(path, lines))
        return false;
    const QByteArray new_line = QByteArray::fromStdString(key + '=' + value);
    int section_end = -1;
    const int line = find_line(lines, QByteArray::fromStdString(key), section_end);
    if (line >= 0)
        lines[line] = new_line;
    else if (section_end >= 0)
        lines.insert(section_end, new_line);
    else
        lines << SECTION << new_line;
    return write_lines(path, lines);
}
