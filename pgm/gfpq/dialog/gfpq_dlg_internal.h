// SPDX-License-Identifier: MIT

// Shared by the sources of GFPQ_DLG only.
#pragma once

#include <qnamespace.h>

#include <string>

// Category and source under which the dialog reports a broken assumption.
constexpr const char* GFPQ_ERROR_CATEGORY = "GFPQ";
constexpr const char* GFPQ_DLG_SOURCE = "pgm/gfpq/gfpq_dlg";

// The line numbers of the dialog's internal errors, as the host's support knows them. They are fixed, and not the line
// numbers of these sources.
enum GFPQ_DLG_ERROR_LINE : int
{
    GFPQ_LINE_CONSTRUCTION = 94,
    GFPQ_LINE_HOST_APPLICATION = 907,
    GFPQ_LINE_UI_MANAGER = 909,
    GFPQ_LINE_FOLDER_SELECTION = 929,
    GFPQ_LINE_CONFIG_MODE = 1494,
};

// Tab 0 is the device page, tab index + 1 is the page of an operation.
constexpr int GFPQ_DEVICE_TAB = 0;
constexpr int GFPQ_FIRST_OPERATION_TAB = 1;

// The text of the row for a device that is not stored yet.
constexpr const char* GFPQ_NEW_DEVICE = "<<new device>>";

// The template combo box lists the built-in templates first. An entry from here on is a stored template.
constexpr int GFPQ_BUILTIN_TEMPLATE_COUNT = 5;

// Marks of the rows of the device model.
constexpr int GFPQ_READ_ONLY_ROLE = Qt::UserRole + 1;
constexpr int GFPQ_EDITABLE_ROLE = Qt::UserRole + 2;

// True for the name of the new-device row.
bool gfpq_is_new_device(const std::string& name);
