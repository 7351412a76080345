// SPDX-License-Identifier: MIT

// What the panels and windows of the host have in common.
#pragma once

#include <QString>

class QComboBox;
class QFormLayout;
class QSize;
class QWidget;

// A form without margins on `page`; a field that has no room beside its label goes below it.
QFormLayout* make_form(QWidget* page);

// Adds a row: `widget`, or `row` with the widget in it, gets the label with its access key, and the object name.
void add_row(QFormLayout* form, const QString& label, QWidget* widget, const char* object_name, QWidget* row = nullptr);

// `first` and `second` side by side; the first one takes the room.
QWidget* side_by_side(QWidget* first, QWidget* second);

// Gives `window` the size that is useful, or as much of it as the screen allows.
void set_first_size(QWidget* window, const QSize& useful);

// The wheel over a combo or spin box that is on `page` now scrolls the page, and changes nothing.
void keep_wheel_from_fields(QWidget* page);

// Lets `combo` get narrower than its texts where there is little room.
void allow_narrow(QComboBox* combo);

// A combo box in which the user also types; its texts do not widen the window.
QComboBox* make_editable_combo();
