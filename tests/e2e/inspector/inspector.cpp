// SPDX-License-Identifier: MIT
#include "inspector.h"

#include "questions.h"

#include <QApplication>
#include <QDragMoveEvent>
#include <QJsonDocument>
#include <QTimer>
#include <QWidget>

INSPECTOR::INSPECTOR(const QString& socket_path) : m_socket_path(socket_path)
{
    connect(&m_socket, &QLocalSocket::readyRead, this, &INSPECTOR::answer_lines);
    QTimer::singleShot(0, this, &INSPECTOR::connect_to_test);
}

// Qt makes its plugins while the application object is still being made.
void INSPECTOR::connect_to_test()
{
    qApp->installEventFilter(this);
    m_socket.connectToServer(m_socket_path);
}

bool INSPECTOR::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = event->type() == QEvent::DragMove ? qobject_cast<QWidget*>(watched) : nullptr;
    if (widget)
        m_drag_position = widget->mapToGlobal(static_cast<QDragMoveEvent*>(event)->pos());
    return QObject::eventFilter(watched, event);
}

void INSPECTOR::answer_lines()
{
    while (m_socket.canReadLine()) {
        const QJsonObject question = QJsonDocument::fromJson(m_socket.readLine()).object();
        m_socket.write(QJsonDocument(answer(question)).toJson(QJsonDocument::Compact) + '\n');
    }
}

QJsonObject INSPECTOR::answer(const QJsonObject& question) const
{
    QJsonObject result = answer_question(question);
    if (question.value(QStringLiteral("ask")) == QLatin1String("pointer"))
        result.insert(QStringLiteral("drag_at"), point_to_json(m_drag_position));
    return result;
}
