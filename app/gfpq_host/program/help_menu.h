// SPDX-License-Identifier: MIT

// The guides, and what this program is.
#pragma once

#include <QMenu>

// In the menu bar of each main window.
class HELP_MENU : public QMenu
{
    Q_OBJECT

public:
    // Where the guides are when they are installed, as seen from the directory of the program.
    static QString installed_guides(const QString& program_directory);

    // `guides` is the directory of the guides, there or not. The boxes are modal to `window`.
    HELP_MENU(QWidget* window, const QString& guides);

private:
    void add_guide(const QString& title, const char* file, const QKeySequence& keys = {});
    void open_guide(const QString& file);
    void show_about();

    QWidget* const m_window;
    const QString m_guides;
};
