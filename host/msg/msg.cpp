#include "msg/msg.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QMessageBox>

namespace {

Q_LOGGING_CATEGORY(MSG_LOG, "host.msg")

constexpr const char* ID_MARK = "/O";

void show_box(const QString& text)
{
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.exec();
}

} // namespace

MSG_BASE::~MSG_BASE() = default;

void MSG_BASE::fill_args(const std::string& args)
{
    m_args = args;
}

void MSG_BASE::set_id(int id)
{
    m_id = id;
}

std::string MSG_BASE::text() const
{
    return m_args.substr(0, m_args.rfind(ID_MARK));
}

MSG_O::MSG_O(MSG_REPORT* /*report*/) {}

MSG_VALUE MSG_O::prompt(MSG_REPORT* /*report*/)
{
    const QString shown = QStringLiteral("%1 (message %2)")
                              .arg(QString::fromLocal8Bit(QByteArray::fromStdString(text())), QString::number(id()));
    qCWarning(MSG_LOG, "%s", qUtf8Printable(shown));
    if (qobject_cast<QApplication*>(QCoreApplication::instance()))
        show_box(shown);
    return MSG_VALUE_OK;
}
