// SPDX-License-Identifier: MIT
#include "run/recent_files.h"

#include <QSettings>

namespace {

const QString KEY = QStringLiteral("programmer/recent_files");

} // namespace

void RECENT_FILES::add(const QString& file)
{
    m_files.removeAll(file);
    m_files.prepend(file);
    m_files = m_files.mid(0, MOST);
}

void RECENT_FILES::load(const QSettings& settings)
{
    m_files = settings.value(KEY).toStringList().mid(0, MOST);
}

void RECENT_FILES::store(QSettings& settings) const
{
    settings.setValue(KEY, m_files);
}
