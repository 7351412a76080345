// SPDX-License-Identifier: MIT
#include "kovq/kovq_native_file_dlg.h"

KOVQ_NATIVE_FILE_DLG::KOVQ_NATIVE_FILE_DLG(QWidget* parent) : m_dialog(std::make_unique<QFileDialog>(parent)) {}

KOVQ_NATIVE_FILE_DLG::~KOVQ_NATIVE_FILE_DLG() = default;

void KOVQ_NATIVE_FILE_DLG::set_file_mode(QFileDialog::FileMode mode)
{
    m_dialog->setFileMode(mode);
}

void KOVQ_NATIVE_FILE_DLG::set_option(QFileDialog::Option option, bool on)
{
    m_dialog->setOption(option, on);
}

void KOVQ_NATIVE_FILE_DLG::set_directory(const QString& directory)
{
    m_dialog->setDirectory(directory);
}

void KOVQ_NATIVE_FILE_DLG::set_accept_mode(QFileDialog::AcceptMode mode)
{
    m_dialog->setAcceptMode(mode);
}

void KOVQ_NATIVE_FILE_DLG::set_window_title(const QString& title)
{
    m_dialog->setWindowTitle(title);
}

int KOVQ_NATIVE_FILE_DLG::exec()
{
    return m_dialog->exec();
}

QStringList KOVQ_NATIVE_FILE_DLG::selected_files() const
{
    return m_dialog->selectedFiles();
}
