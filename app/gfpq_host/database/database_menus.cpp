// SPDX-License-Identifier: MIT
#include "database/database_menus.h"

namespace {

// Adds an action whose keys work while `table` has the focus: elsewhere they are those of the fields.
QAction* add_for_table(QMenu* menu, QWidget* table, const QString& text, const char* object_name,
                       const QList<QKeySequence>& keys)
{
    QAction* action = menu->addAction(text);
    action->setObjectName(QLatin1String(object_name));
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    table->addAction(action);
    return action;
}

// A name or path in a menu: an ampersand is no access key, no tab comes before keys, and a long one is not wider than
// the screen. Both ends say more than one.
QString menu_text(QString name)
{
    constexpr int MOST = 60;
    if (name.size() > MOST)
        name = name.left(MOST / 2) + QStringLiteral("\u2026") + name.right(MOST / 2);
    name.replace(QLatin1Char('\t'), QLatin1Char(' '));
    return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

QAction* DATABASE_MENU::add(const QString& text, const char* object_name, const QKeySequence& keys,
                            void (DATABASE_MENU::*asked)())
{
    QAction* action = addAction(text, this, asked);
    action->setObjectName(QLatin1String(object_name));
    action->setShortcut(keys);
    return action;
}

DATABASE_MENU::DATABASE_MENU(QWidget* parent, bool allows_changes) : QMenu(parent)
{
    m_open = add(tr("&Open Directory..."), "m_directory_action", QKeySequence::Open, &DATABASE_MENU::directory_asked);
    m_recent = addMenu(tr("&Recent Directories"));
    m_recent->setObjectName(QStringLiteral("m_recent_menu"));
    m_open->setVisible(allows_changes);
    m_recent->menuAction()->setVisible(allows_changes);
    addSeparator();
    if (allows_changes)
        add(tr("&Import..."), "m_import_action", {}, &DATABASE_MENU::import_asked);
    add(tr("&Export..."), "m_export_action", {}, &DATABASE_MENU::export_asked);
    addSeparator();
    add(tr("Re&fresh"), "m_refresh_action", QKeySequence::Refresh, &DATABASE_MENU::refresh_asked);
    addSeparator();
    add(tr("&Close"), "m_close_action", QKeySequence::Close, &DATABASE_MENU::close_asked);
}

void DATABASE_MENU::set_recent(const QStringList& directories)
{
    m_recent->clear();
    for (const QString& directory : directories)
        m_recent->addAction(menu_text(directory), this, [this, directory] { emit recent_asked(directory); });
    m_recent->setEnabled(m_open->isEnabled() && !directories.isEmpty());
}

void DATABASE_MENU::show_busy(bool is_busy)
{
    m_open->setEnabled(!is_busy);
    m_recent->setEnabled(!is_busy && !m_recent->isEmpty());
}

DATABASE_EDIT_MENU::DATABASE_EDIT_MENU(QWidget* parent, QWidget* table, bool allows_changes) : QMenu(parent)
{
    m_undo = addAction(tr("&Undo"), this, &DATABASE_EDIT_MENU::undo_asked);
    m_undo->setObjectName(QStringLiteral("m_undo_action"));
    m_undo->setShortcut(QKeySequence::Undo);
    m_undo->setAutoRepeat(false);
    m_undo->setVisible(allows_changes);
    addSeparator();
    m_copy = add_for_table(this, table, tr("&Copy"), "m_copy_action", {QKeySequence::Copy});
    connect(m_copy, &QAction::triggered, this, &DATABASE_EDIT_MENU::copy_asked);
    QAction* all = add_for_table(this, table, tr("Select &All"), "m_select_all_action", {QKeySequence::SelectAll});
    connect(all, &QAction::triggered, this, &DATABASE_EDIT_MENU::select_all_asked);
    addSeparator();
    QAction* find = addAction(tr("&Find"), this, &DATABASE_EDIT_MENU::find_asked);
    find->setObjectName(QStringLiteral("m_find_action"));
    find->setShortcut(QKeySequence::Find);
    show_undo({});
    show_selected(false);
}

void DATABASE_EDIT_MENU::show_undo(const QStringList& deleted)
{
    m_undo->setEnabled(!deleted.isEmpty());
    const QString what = deleted.size() == 1 ? tr("Delete \"%1\"").arg(menu_text(deleted.first()))
                                             : tr("Delete, devices: %1").arg(deleted.size());
    m_undo->setText(deleted.isEmpty() ? tr("&Undo") : QStringLiteral("%1 (%2)").arg(tr("&Undo"), what));
}

void DATABASE_EDIT_MENU::show_selected(bool is_any_selected)
{
    m_copy->setEnabled(is_any_selected);
}

DATABASE_DEVICE_MENU::DATABASE_DEVICE_MENU(QWidget* parent, QWidget* table, bool allows_changes) : QMenu(parent)
{
    m_open = add_for_table(this, table, tr("&Open in the Configuration Device Dialog"), "m_open_action",
                           {Qt::Key_Return, Qt::Key_Enter});
    connect(m_open, &QAction::triggered, this, &DATABASE_DEVICE_MENU::open_asked);
    m_duplicate = add_for_table(this, table, tr("D&uplicate..."), "m_duplicate_action", {Qt::CTRL + Qt::Key_D});
    connect(m_duplicate, &QAction::triggered, this, &DATABASE_DEVICE_MENU::duplicate_asked);
    m_compare = add_for_table(this, table, tr("&Compare..."), "m_compare_action", {});
    connect(m_compare, &QAction::triggered, this, &DATABASE_DEVICE_MENU::compare_asked);
    m_charts = addAction(tr("Save Flow C&harts..."), this, &DATABASE_DEVICE_MENU::charts_asked);
    m_charts->setObjectName(QStringLiteral("m_charts_action"));
    m_delete = add_for_table(this, table, tr("&Delete"), "m_delete_action", {QKeySequence::Delete});
    connect(m_delete, &QAction::triggered, this, &DATABASE_DEVICE_MENU::delete_asked);
    // A key that is held a little too long would go on with the next devices.
    m_delete->setAutoRepeat(false);
    m_duplicate->setVisible(allows_changes);
    m_delete->setVisible(allows_changes);
    show_possible();
}

void DATABASE_DEVICE_MENU::show_selected(int count, bool is_builtin_selected)
{
    m_count = count;
    m_is_builtin_selected = is_builtin_selected;
    show_possible();
}

void DATABASE_DEVICE_MENU::show_busy(bool is_busy)
{
    m_is_busy = is_busy;
    show_possible();
}

// The dialog chooses the device of the next run, while one is under way.
void DATABASE_DEVICE_MENU::show_possible()
{
    m_open->setEnabled(m_count == 1 && !m_is_busy);
    m_duplicate->setEnabled(m_count == 1);
    m_compare->setEnabled(m_count == 2);
    m_charts->setEnabled(m_count == 1);
    m_delete->setEnabled(m_count > 0 && !m_is_builtin_selected);
}

bool DATABASE_DEVICE_MENU::can_open() const
{
    return m_open->isEnabled();
}
