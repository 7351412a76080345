// SPDX-License-Identifier: MIT
#include "kovq_double.h"

#include <QDir>

namespace {

FILE_DLG_ANSWERS g_answers;

void record(const char* function, const QStringList& arguments = {})
{
    CALL_LOG::instance().record(QStringLiteral("file_dlg"), QLatin1String(function), arguments);
}

QString quoted(const QString& text)
{
    return log_text(text.toStdString());
}

} // namespace

KOVQ_NATIVE_FILE_DLG::KOVQ_NATIVE_FILE_DLG(QWidget* parent)
{
    g_answers.parent = parent;
    record("created", {parent == nullptr ? QStringLiteral("null") : parent->objectName()});
}

KOVQ_NATIVE_FILE_DLG::~KOVQ_NATIVE_FILE_DLG() = default;

void KOVQ_NATIVE_FILE_DLG::set_file_mode(QFileDialog::FileMode mode)
{
    record("set_file_mode", {log_int(mode)});
}

void KOVQ_NATIVE_FILE_DLG::set_option(QFileDialog::Option option, bool on)
{
    record("set_option", {log_int(option), log_bool(on)});
}

void KOVQ_NATIVE_FILE_DLG::set_directory(const QString& directory)
{
    record("set_directory", {quoted(directory)});
}

void KOVQ_NATIVE_FILE_DLG::set_accept_mode(QFileDialog::AcceptMode mode)
{
    record("set_accept_mode", {log_int(mode)});
}

void KOVQ_NATIVE_FILE_DLG::set_window_title(const QString& title)
{
    record("set_window_title", {quoted(title)});
}

int KOVQ_NATIVE_FILE_DLG::exec()
{
    g_answers.current_dir_at_exec = QDir::currentPath();
    record("exec");
    return g_answers.result;
}

QStringList KOVQ_NATIVE_FILE_DLG::selected_files() const
{
    record("selected_files");
    return g_answers.selected;
}

FILE_DLG_ANSWERS& file_dlg_answers()
{
    return g_answers;
}

void reset_file_dlg()
{
    g_answers = FILE_DLG_ANSWERS();
}
