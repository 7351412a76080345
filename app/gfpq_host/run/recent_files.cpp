// SPDX-License-Identifier: MIT
#include "run/recent_files.h"

#include <QSettings>

void RECENT_FILES::add(const QString& file)
{
    m_files.removeAll(file);
    m_files.prepend(file);
    m_files = m_files.mid(0, MOST);
}

void RECENT_FILES::load(const QSettings& settings)
{
    m_files = settings.value(m_key).toStringList().mid(0, MOST);
}

void RECENT_FILES::store(QSettings& settings) const
{
    settings.setValue(m_key, m_files);
}
