// SPDX-License-Identifier: MIT

// Answers a test's questions about the windows of the program that it lives in.
#pragma once

#include <QJsonObject>
#include <QLocalSocket>
#include <QObject>
#include <QPoint>

// The test listens, the inspector connects as soon as the program's event loop runs. A question is one line of JSON,
// the answer is one line of JSON (questions.h says what there is). Questions are answered in the GUI thread, in every
// event loop of the program: also while a modal dialog, a menu or a drag runs one.
class INSPECTOR : public QObject
{
    Q_OBJECT

public:
    explicit INSPECTOR(const QString& socket_path);

protected:
    // Notes where a drag was last seen.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connect_to_test();
    void answer_lines();
    QJsonObject answer(const QJsonObject& question) const;

    const QString m_socket_path;
    QLocalSocket m_socket;
    QPoint m_drag_position;
};
