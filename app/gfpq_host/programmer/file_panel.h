// SPDX-License-Identifier: MIT

// The file that is programmed and compared.
#pragma once

#include "run/file_summary.h"
#include "run/recent_files.h"

#include <QWidget>

#include <cstdint>
#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;
class QSettings;

class FILE_PANEL : public QWidget
{
    Q_OBJECT

public:
    FILE_PANEL();

    // The absolute path; empty when none is entered.
    QString file() const;
    // The position of its first byte; none when what is entered is not a number.
    std::optional<std::int64_t> position() const;

    // Takes a file as if the user had entered it; asks the user for one.
    void choose(const QString& file);
    void browse();
    // Shows size and check sum of the file as it is now: it may have been made again.
    void read_again();

    void load(const QSettings& settings);
    void store(QSettings& settings) const;

private:
    void take_entered();
    void show_facts(const FILE_FACTS& facts);
    void show_recent();

    QComboBox* m_file_combo;
    QLineEdit* m_position_edit;
    QLabel* m_facts_label;
    RECENT_FILES m_recent{QStringLiteral("programmer/recent_files")};
    FILE_SUMMARY m_summary;
    QString m_file;
};
