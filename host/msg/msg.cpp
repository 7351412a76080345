// SPDX-License-Identifier: MIT
#include "msg/msg.h"

#include <QApplication>
#include <QLabel>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QTextBoundaryFinder>

#include <utility>

namespace {

Q_LOGGING_CATEGORY(MSG_LOG, "host.msg")

constexpr const char* ID_MARK = "/O";
// In UTF-16 units: a few lines of a box.
constexpr int LONGEST_REASON = 500;
// In letters: what fits into the narrowest box.
constexpr int LONGEST_WORD = 20;
constexpr QChar ZERO_WIDTH_SPACE = 0x200B;
constexpr QChar ELLIPSIS = 0x2026;

MSG_O::REASON_SOURCE& reason_source()
{
    static MSG_O::REASON_SOURCE source;
    return source;
}

QString local_text(const std::string& text)
{
    return QString::fromLocal8Bit(QByteArray::fromStdString(text));
}

// The reason of the message in one line, without what a terminal or a text could take for a command.
QString reason_of(int id)
{
    QString reason = reason_source() ? local_text(reason_source()(id)).simplified() : QString();
    for (QChar& character : reason) {
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    }
    return reason;
}

// A path may be a word of a thousand letters, and a box is as wide as its longest word.
QString with_places_to_break(const QString& text)
{
    QString result;
    int letters = 0;
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, text);
    for (int from = 0, to = boundaries.toNextBoundary(); to != -1; from = to, to = boundaries.toNextBoundary()) {
        letters = text[from].isSpace() ? 0 : letters + 1;
        result += text.midRef(from, to - from);
        if (letters % LONGEST_WORD == 0 && letters > 0)
            result += ZERO_WIDTH_SPACE;
    }
    return result;
}

QString shortened(const QString& text)
{
    if (text.size() <= LONGEST_REASON)
        return text;
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, text);
    boundaries.setPosition(LONGEST_REASON);
    const int end = boundaries.isAtBoundary() ? LONGEST_REASON : boundaries.toPreviousBoundary();
    return text.left(end) + ELLIPSIS;
}

void show_box(const QString& text, const QString& reason)
{
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    box.setText(text);
    box.setInformativeText(with_places_to_break(shortened(reason)));
    // The box's own format is that of its text alone.
    box.setTextFormat(Qt::PlainText);
    const QList<QLabel*> labels = box.findChildren<QLabel*>();
    for (QLabel* label : labels)
        label->setTextFormat(Qt::PlainText);
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

void MSG_O::set_reason_source(REASON_SOURCE source)
{
    reason_source() = std::move(source);
}

MSG_VALUE MSG_O::prompt(MSG_REPORT* /*report*/)
{
    const QString shown = QStringLiteral("%1 (message %2)").arg(local_text(text()), QString::number(id()));
    const QString reason = reason_of(id());
    qCWarning(MSG_LOG, "%s", qUtf8Printable(reason.isEmpty() ? shown : shown + QLatin1String(": ") + reason));
    if (qobject_cast<QApplication*>(QCoreApplication::instance()))
        show_box(shown, reason);
    return MSG_VALUE_OK;
}
