// SPDX-License-Identifier: MIT

// The files, or directories, that were used last.
#pragma once

#include <QStringList>

#include <utility>

class QSettings;

class RECENT_FILES
{
public:
    static constexpr int MOST = 10;

    // `key` is where the settings have them.
    explicit RECENT_FILES(QString key) : m_key(std::move(key)) {}

    // Absolute paths, the newest first.
    const QStringList& files() const { return m_files; }
    // Makes `file`, an absolute path, the newest one.
    void add(const QString& file);

    void load(const QSettings& settings);
    void store(QSettings& settings) const;

private:
    const QString m_key;
    QStringList m_files;
};
