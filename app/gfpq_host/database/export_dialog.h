// SPDX-License-Identifier: MIT

// Which records are exported, into which files.
#pragma once

#include "database/record_export.h"

#include <QDialog>

class PROBLEM_LINE;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

class EXPORT_DIALOG : public QDialog
{
    Q_OBJECT

public:
    // `chosen` are what is selected in the window, with or without their flows; none when nothing is. `database` must
    // outlive the dialog. Accepted when files were written.
    EXPORT_DIALOG(GFPDB_DATABASE& database, const std::vector<GFPDB_RECORD>& chosen, QWidget* parent);

    void reject() override;

private:
    QWidget* create_form();
    QWidget* create_buttons();
    EXPORT_WISH wish() const;
    void browse();
    void show_format();
    void write();
    bool confirm(const QStringList& existing);
    QString left_out_text() const;
    void show_written(const QString& path);
    void show_percent(int percent);

    RECORD_EXPORT m_export;
    bool m_is_written = false;

    QComboBox* m_source_combo = nullptr;
    QComboBox* m_format_combo = nullptr;
    QCheckBox* m_spreadsheet_check = nullptr;
    QLineEdit* m_path_edit = nullptr;
    QPushButton* m_browse_button = nullptr;
    QLabel* m_summary = nullptr;
    PROBLEM_LINE* m_problem = nullptr;
    QProgressBar* m_progress = nullptr;
    QPushButton* m_export_button = nullptr;
    QPushButton* m_close_button = nullptr;
};
