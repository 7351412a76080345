// SPDX-License-Identifier: MIT

// The platform's file dialog.
#pragma once

#include "kovq/kovq_export.h"

#include <QFileDialog>
#include <QString>
#include <QStringList>

#include <memory>

// A modal file or folder dialog: the platform's own where the platform theme has one, else Qt's. Set it up, run exec(),
// read selected_files().
class KOVQ_EXPORT KOVQ_NATIVE_FILE_DLG
{
public:
    // `parent` is the window that the dialog is modal to; not owned.
    explicit KOVQ_NATIVE_FILE_DLG(QWidget* parent);
    ~KOVQ_NATIVE_FILE_DLG();
    KOVQ_NATIVE_FILE_DLG(const KOVQ_NATIVE_FILE_DLG&) = delete;
    KOVQ_NATIVE_FILE_DLG& operator=(const KOVQ_NATIVE_FILE_DLG&) = delete;

    void set_file_mode(QFileDialog::FileMode mode);
    void set_option(QFileDialog::Option option, bool on);
    void set_directory(const QString& directory);
    void set_accept_mode(QFileDialog::AcceptMode mode);
    void set_window_title(const QString& title);

    // QDialog::Accepted (1) or QDialog::Rejected (0).
    int exec();
    // What the user chose, as absolute paths.
    QStringList selected_files() const;

private:
    std::unique_ptr<QFileDialog> m_dialog;
};
