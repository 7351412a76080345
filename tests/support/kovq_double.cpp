// SPDX-License-Identifier: MIT
#include "kovq_double.h"

#include "kovq/kovq_connect.h"
#include "msg/msg.h"

#include <QAction>
#include <QDir>

namespace {

FILE_DLG_ANSWERS g_answers;
QList<MADE_CONNECTION> g_connections;

constexpr QLatin1String LABEL("file_dlg");

QString object_text(const QObject* object)
{
    const auto* const action = qobject_cast<const QAction*>(object);
    const QString name = action != nullptr ? action->text() : object->objectName();
    return name.isEmpty() ? QString::fromLatin1(object->metaObject()->className()) : name;
}

// A SIGNAL() or SLOT() text without the digit that it starts with.
QString signature(const char* text)
{
    return QString::fromLatin1(QMetaObject::normalizedSignature(text + 1));
}

} // namespace

bool kovq_safe_connect(const QObject* sender, const char* signal, const QObject* receiver, const char* method,
                       Qt::ConnectionType type, const char* file, int line)
{
    const QString text = object_text(sender) + QLatin1Char(' ') + signature(signal) + QStringLiteral(" -> ") +
                         object_text(receiver) + QLatin1Char(' ') + signature(method);
    g_connections.append({text, type, QByteArray(file), line});
    if (QObject::connect(sender, signal, receiver, method, type))
        return true;
    MSG_INTERNAL_ERROR::report(text.toUtf8().constData(), "KOVQ", file, line);
}

KOVQ_NATIVE_FILE_DLG::KOVQ_NATIVE_FILE_DLG(QWidget* parent)
{
    g_answers.parent = parent;
    CALL_LOG::instance().record(LABEL, QStringLiteral("created"),
                                {parent == nullptr ? QStringLiteral("null") : parent->objectName()});
}

KOVQ_NATIVE_FILE_DLG::~KOVQ_NATIVE_FILE_DLG() = default;

void KOVQ_NATIVE_FILE_DLG::set_file_mode(QFileDialog::FileMode mode)
{
    log_call(LABEL, "set_file_mode", mode);
}

void KOVQ_NATIVE_FILE_DLG::set_option(QFileDialog::Option option, bool on)
{
    log_call(LABEL, "set_option", option, on);
}

void KOVQ_NATIVE_FILE_DLG::set_directory(const QString& directory)
{
    log_call(LABEL, "set_directory", directory);
}

void KOVQ_NATIVE_FILE_DLG::set_accept_mode(QFileDialog::AcceptMode mode)
{
    log_call(LABEL, "set_accept_mode", mode);
}

void KOVQ_NATIVE_FILE_DLG::set_window_title(const QString& title)
{
    log_call(LABEL, "set_window_title", title);
}

int KOVQ_NATIVE_FILE_DLG::exec()
{
    g_answers.current_dir_at_exec = QDir::currentPath();
    log_call(LABEL, "exec");
    return g_answers.result;
}

QStringList KOVQ_NATIVE_FILE_DLG::selected_files() const
{
    log_call(LABEL, "selected_files");
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

QList<MADE_CONNECTION>& made_connections()
{
    return g_connections;
}
