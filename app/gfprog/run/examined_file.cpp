// SPDX-License-Identifier: MIT
#include "run/examined_file.h"

#include "gfpdb/gfpdb_text.h"

#include <QFileInfo>

EXAMINED_FILE::EXAMINED_FILE(const std::string& path, std::int64_t start)
    : m_file(QFile::decodeName(path.c_str())), m_path(path), m_start(start)
{}

bool EXAMINED_FILE::open(bool may_replace)
{
    const QFileInfo existing(m_file.fileName());
    if (existing.exists() && !existing.isFile())
        return fail(QStringLiteral("It is not a regular file"));
    if (existing.exists() && !may_replace)
        return fail(QStringLiteral("It already exists; --force replaces it"));
    if (!m_file.open(QIODevice::WriteOnly))
        return fail(m_file.errorString());
    // Not even a careless mask, or the former file's rights, let everyone write what is made.
    m_file.setPermissions(m_file.permissions() & ~QFileDevice::WriteOther);
    return true;
}

bool EXAMINED_FILE::write(std::int64_t position, const std::uint8_t* bytes, std::size_t length)
{
    const auto count = static_cast<qint64>(length);
    if (m_file.seek(position - m_start) && m_file.write(reinterpret_cast<const char*>(bytes), count) == count)
        return true;
    return fail(m_file.errorString());
}

bool EXAMINED_FILE::commit()
{
    return m_file.commit() || fail(m_file.errorString());
}

bool EXAMINED_FILE::fail(const QString& text)
{
    m_problem = m_path + ": The file cannot be written: " + gfpdb_to_utf8(text) + ".";
    return false;
}
