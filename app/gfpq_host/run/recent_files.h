// SPDX-License-Identifier: MIT

// The files that were used last.
#pragma once

#include <QStringList>

class QSettings;

class RECENT_FILES
{
public:
    static constexpr int MOST = 10;

    // Absolute paths, the newest first.
    const QStringList& files() const { return m_files; }
    // Makes `file`, an absolute path, the newest one.
    void add(const QString& file);

    void load(const QSettings& settings);
    void store(QSettings& settings) const;

private:
    QStringList m_files;
};
