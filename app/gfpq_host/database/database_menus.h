// SPDX-License-Identifier: MIT

// The menus of the window of the database. What is in them has signals; the window knows what is possible.
#pragma once

#include <QMenu>
#include <QStringList>

class QAction;

// The database as a whole.
class DATABASE_MENU : public QMenu
{
    Q_OBJECT

public:
    DATABASE_MENU(QWidget* parent, bool allows_changes);

    // The directories that were used last, the newest first.
    void set_recent(const QStringList& directories);
    // What would take the directory away under a run.
    void show_busy(bool is_busy);

signals:
    void directory_asked();
    void recent_asked(const QString& directory);
    void import_asked();
    void export_asked();
    void refresh_asked();
    void close_asked();

private:
    QAction* add(const QString& text, const char* object_name, const QKeySequence& keys,
                 void (DATABASE_MENU::*asked)());

    QAction* m_open = nullptr;
    QMenu* m_recent = nullptr;
};

// What was done, and what is chosen.
class DATABASE_EDIT_MENU : public QMenu
{
    Q_OBJECT

public:
    DATABASE_EDIT_MENU(QWidget* parent, QWidget* table, bool allows_changes);

    // The names of what an undo would bring back; none when there is nothing to undo.
    void show_undo(const QStringList& deleted);
    void show_selected(bool is_any_selected);

signals:
    void undo_asked();
    void copy_asked();
    void select_all_asked();
    void find_asked();

private:
    QAction* m_undo = nullptr;
    QAction* m_copy = nullptr;
};

// What is done with the selected devices; also the menu of the table.
class DATABASE_DEVICE_MENU : public QMenu
{
    Q_OBJECT

public:
    // The keys work in `table`.
    DATABASE_DEVICE_MENU(QWidget* parent, QWidget* table, bool allows_changes);

    void show_selected(int count, bool is_builtin_selected);
    void show_busy(bool is_busy);
    bool can_open() const;

signals:
    void open_asked();
    void duplicate_asked();
    void compare_asked();
    void charts_asked();
    void delete_asked();

private:
    void show_possible();

    QAction* m_open = nullptr;
    QAction* m_duplicate = nullptr;
    QAction* m_compare = nullptr;
    QAction* m_charts = nullptr;
    QAction* m_delete = nullptr;
    int m_count = 0;
    bool m_is_builtin_selected = false;
    bool m_is_busy = false;
};
