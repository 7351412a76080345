// The main window: what is chosen, which database it comes from, and the way to the dialog.
#pragma once

#include "host_arguments.h"
#include "host_choice.h"

#include <QMainWindow>

class MODULE_LOADER;
class QFormLayout;
class QLabel;
class QLineEdit;

class HOST_WINDOW : public QMainWindow
{
    Q_OBJECT

public:
    // Opens the dialog of `module` (not owned, must outlive the window) with `options`, first with `choice`.
    HOST_WINDOW(MODULE_LOADER& module, const DIALOG_OPTIONS& options, const HOST_CHOICE& choice);
    ~HOST_WINDOW() override;

    const HOST_CHOICE& choice() const { return m_choice; }

public slots:
    // Opens the dialog and returns when it was closed. A module that cannot be used is told in a box.
    void open_dialog();

signals:
    // The dialog was closed; `choice()` is what it returned.
    void choice_changed();

private:
    QLineEdit* add_row(QFormLayout* rows, const QString& title, const QString& object_name);
    QWidget* create_problem_row();
    void create_contents();
    void create_menus();
    void show_state();

    MODULE_LOADER& m_module;
    const DIALOG_OPTIONS m_options;
    HOST_CHOICE m_choice;
    QLineEdit* m_family_field = nullptr;
    QLineEdit* m_mode_field = nullptr;
    QLineEdit* m_device_field = nullptr;
    QLineEdit* m_directory_field = nullptr;
    QWidget* m_problem_row = nullptr;
    QLabel* m_problem_label = nullptr;
};
