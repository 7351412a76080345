// SPDX-License-Identifier: MIT
#include "msg/msg.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QThread>

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace {

Q_LOGGING_CATEGORY(INTERNAL_ERROR_LOG, "host.msg.internal")

QString local_text(const char* text)
{
    return QString::fromLocal8Bit(text ? text : "");
}

QString describe(const char* condition, const char* category, const char* source, int line)
{
    return QStringLiteral("Internal error: %1 does not hold (%2, %3, line %4)")
        .arg(local_text(condition), local_text(category), local_text(source), QString::number(line));
}

// The platforms without a display have nobody who could close a box.
bool can_show_box()
{
    const QCoreApplication* app = QCoreApplication::instance();
    if (!qobject_cast<const QApplication*>(app) || app->thread() != QThread::currentThread())
        return false;
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

void show_box(const QString& text)
{
    QMessageBox box;
    box.setIcon(QMessageBox::Critical);
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.exec();
}

} // namespace

void MSG_INTERNAL_ERROR::report(const char* condition, const char* category, const char* source, int line)
{
    // The box runs an event loop, in which the broken state can be met again.
    static std::atomic<bool> is_reporting{false};

    const QString text = describe(condition, category, source, line);
    qCCritical(INTERNAL_ERROR_LOG, "%s", qUtf8Printable(text));
    if (!is_reporting.exchange(true) && can_show_box())
        show_box(text);

    std::fflush(nullptr);
    std::_Exit(EXIT_CODE);
}
