// SPDX-License-Identifier: MIT

// The window's menu.
#pragma once

#include <QMenu>

class QAction;

class PROGRAMMER_MENU : public QMenu
{
    Q_OBJECT

public:
    PROGRAMMER_MENU(QWidget* parent, bool allows_new_devices);

    // What is possible while something is under way, and while nothing is.
    void show_busy(bool is_busy);

signals:
    void dialog_asked();
    void database_asked();
    void new_from_chip_asked();
    void new_from_file_asked();
    void duplicate_asked();
    void charts_asked();
    void detect_asked();
    void file_asked();
    void trial_asked();
    void start_asked();
    void cancel_asked();
    void quit_asked();

private:
    QAction* add(const QString& text, const char* object_name, const QKeySequence& keys,
                 void (PROGRAMMER_MENU::*asked)());

    void add_new_devices();

    // Possible while nothing is under way.
    QList<QAction*> m_idle_actions;
    QAction* m_cancel = nullptr;
};
