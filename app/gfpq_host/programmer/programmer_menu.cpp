// SPDX-License-Identifier: MIT
#include "programmer/programmer_menu.h"

QAction* PROGRAMMER_MENU::add(const QString& text, const char* object_name, const QKeySequence& keys,
                              void (PROGRAMMER_MENU::*asked)())
{
    QAction* action = addAction(text, this, asked);
    action->setObjectName(QLatin1String(object_name));
    action->setShortcut(keys);
    return action;
}

PROGRAMMER_MENU::PROGRAMMER_MENU(QWidget* parent, bool allows_new_devices) : QMenu(parent)
{
    m_idle_actions += add(tr("&Configuration Device..."), "m_dialog_action", {}, &PROGRAMMER_MENU::dialog_asked);
    add(tr("Device Data&base..."), "m_database_action", Qt::CTRL + Qt::Key_B, &PROGRAMMER_MENU::database_asked);
    if (allows_new_devices)
        add_new_devices();
    m_idle_actions += add(tr("Save Flow C&harts..."), "m_charts_action", {}, &PROGRAMMER_MENU::charts_asked);
    addSeparator();
    m_idle_actions += add(tr("&Detect"), "m_detect_action", Qt::Key_F4, &PROGRAMMER_MENU::detect_asked);
    add(tr("&Open File..."), "m_open_action", QKeySequence::Open, &PROGRAMMER_MENU::file_asked);
    addSeparator();
    m_idle_actions += add(tr("&Try the Flow"), "m_trial_action", Qt::Key_F6, &PROGRAMMER_MENU::trial_asked);
    m_idle_actions += add(tr("&Start"), "m_start_action", Qt::Key_F5, &PROGRAMMER_MENU::start_asked);
    m_cancel = add(tr("C&ancel"), "m_cancel_action", Qt::Key_Escape, &PROGRAMMER_MENU::cancel_asked);
    addSeparator();
    add(tr("&Quit"), "m_quit_action", QKeySequence::Quit, &PROGRAMMER_MENU::quit_asked);
    show_busy(false);
}

void PROGRAMMER_MENU::add_new_devices()
{
    m_idle_actions += add(tr("&New Device from Chip..."), "m_new_from_chip_action", QKeySequence::New,
                          &PROGRAMMER_MENU::new_from_chip_asked);
    m_idle_actions += add(tr("New Device from S&FDP File..."), "m_new_from_file_action",
                          Qt::CTRL + Qt::SHIFT + Qt::Key_N, &PROGRAMMER_MENU::new_from_file_asked);
    m_idle_actions +=
        add(tr("D&uplicate..."), "m_duplicate_action", Qt::CTRL + Qt::Key_D, &PROGRAMMER_MENU::duplicate_asked);
}

void PROGRAMMER_MENU::show_busy(bool is_busy)
{
    for (QAction* action : qAsConst(m_idle_actions))
        action->setEnabled(!is_busy);
    m_cancel->setEnabled(is_busy);
}
