// SPDX-License-Identifier: MIT
#include "dialog/path_trust.h"

#include <QFile>
#include <QStringList>

#include <climits>

#include <sys/stat.h>
#include <unistd.h>

namespace {

// As many as the system follows.
constexpr int MOST_LINKS = 40;

bool is_trusted_owner(uid_t owner)
{
    return owner == 0 || owner == ::geteuid();
}

QString joined(const QString& directory, const QString& name)
{
    return directory.endsWith(QLatin1Char('/')) ? directory + name : directory + QLatin1Char('/') + name;
}

QString parent_of(const QString& directory)
{
    const int slash = directory.lastIndexOf(QLatin1Char('/'));
    return slash <= 0 ? QStringLiteral("/") : directory.left(slash);
}

QStringList names_in(const QString& path)
{
    return path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

// Empty when it cannot be read.
QString target_of(const QString& link)
{
    QByteArray target(PATH_MAX, '\0');
    const ssize_t length =
        ::readlink(QFile::encodeName(link).constData(), target.data(), static_cast<std::size_t>(target.size()));
    target.resize(length < 0 ? 0 : static_cast<int>(length));
    return QFile::decodeName(target);
}

// Goes along a path and notes the first place that everyone may change.
class WALK
{
public:
    explicit WALK(const QString& path);

    // False at the end of the path, and when it leads nowhere.
    bool step();
    TRUSTED_PATH result() const { return m_leads_nowhere ? TRUSTED_PATH() : TRUSTED_PATH{m_here, m_open_place}; }

private:
    bool enter(const QString& name);
    bool follow_link(const QString& link);
    bool lead_nowhere();
    void note_if_open(const QString& place, bool is_open);

    // What is left of the path, and how far it was gone: a path without links.
    QStringList m_names;
    QString m_here = QStringLiteral("/");
    struct stat m_status = {};
    int m_links = 0;
    bool m_leads_nowhere = false;
    QString m_open_place;
};

WALK::WALK(const QString& path) : m_names(names_in(path))
{
    m_leads_nowhere = ::stat("/", &m_status) != 0;
}

bool WALK::lead_nowhere()
{
    m_leads_nowhere = true;
    return false;
}

void WALK::note_if_open(const QString& place, bool is_open)
{
    if (is_open && m_open_place.isEmpty())
        m_open_place = place;
}

bool WALK::step()
{
    if (m_names.isEmpty() || m_leads_nowhere)
        return false;
    const QString name = m_names.takeFirst();
    if (name == QLatin1String("."))
        return true;
    if (name != QLatin1String(".."))
        return enter(name);
    m_here = parent_of(m_here);
    return ::lstat(QFile::encodeName(m_here).constData(), &m_status) == 0 || lead_nowhere();
}

// In a directory with the sticky bit everyone may put something, but only its owner may take it away again.
bool WALK::enter(const QString& name)
{
    const bool is_shared = (m_status.st_mode & S_IWOTH) != 0;
    const bool is_sticky = (m_status.st_mode & S_ISVTX) != 0;
    note_if_open(m_here, is_shared && !is_sticky);

    const QString place = joined(m_here, name);
    struct stat status = {};
    if (::lstat(QFile::encodeName(place).constData(), &status) != 0)
        return lead_nowhere();
    note_if_open(place, is_shared && !is_trusted_owner(status.st_uid));
    if (S_ISLNK(status.st_mode))
        return follow_link(place);

    note_if_open(place, !S_ISDIR(status.st_mode) && (status.st_mode & S_IWOTH) != 0);
    m_here = place;
    m_status = status;
    return true;
}

bool WALK::follow_link(const QString& link)
{
    const QString target = target_of(link);
    if (target.isEmpty() || ++m_links > MOST_LINKS)
        return lead_nowhere();
    m_names = names_in(target) + m_names;
    if (!target.startsWith(QLatin1Char('/')))
        return true;
    m_here = QStringLiteral("/");
    return ::stat("/", &m_status) == 0 || lead_nowhere();
}

} // namespace

TRUSTED_PATH follow_path(const QString& file)
{
    WALK walk(file);
    bool goes_on = true;
    while (goes_on)
        goes_on = walk.step();
    return walk.result();
}
