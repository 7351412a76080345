// SPDX-License-Identifier: MIT

// The command line of the host program.
#pragma once

#include "program/restriction.h"

#include <QString>
#include <QStringList>

#include <optional>

// What the dialog is opened with, beside the choice.
struct DIALOG_OPTIONS
{
    bool enable_family = true;
    bool enable_config_mode = true;
    bool enable_edit = true;
    RESTRICTION family_schemes;
};

// What the program is to do.
enum class HOST_TASK
{
    // Show the main window.
    WINDOW,
    // Open the dialog at once and print what it returns.
    DIALOG,
    // Draw the dialog's pages into files.
    RENDER,
};

// Texts are empty and numbers null where the user said nothing.
struct HOST_ARGUMENTS
{
    HOST_TASK task = HOST_TASK::WINDOW;
    std::optional<int> family;
    std::optional<int> config_scheme;
    std::optional<QString> device_name;
    DIALOG_OPTIONS dialog;
    // Directories and files as given.
    QString database_directory;
    QString base_directory;
    QString module_file;
    QString render_directory;
    QString language;
};

// Either the arguments, or a text that ends the program: help or the version (the user asked for it), or a problem.
struct PARSED_ARGUMENTS
{
    std::optional<HOST_ARGUMENTS> arguments;
    QString information;
    QString problem;
};

// Reads `command_line`, whose first entry is the program. Needs a QCoreApplication; reads nothing else.
PARSED_ARGUMENTS parse_arguments(const QStringList& command_line);
