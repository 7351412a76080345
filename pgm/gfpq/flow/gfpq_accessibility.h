// SPDX-License-Identifier: MIT

// What the dialogs need so that they can be used without a mouse, and with a screen reader.
//
// Names follow the texts of the labels as they are at the time of the call.
#pragma once

class QAbstractItemView;
class QLabel;
class QTabWidget;
class QWidget;

// The main dialog: names for its editors, its list of devices and its operation pages, of which `pages` shows the first
// behind the device page. Tab goes from the titles of the pages through the page in front to the buttons below, and
// leaves every table; the charts can be worked on with the keyboard (gfpq_flow_view.h), and no title of a page is
// cut: the dialog takes the width that it needs.
void gfpq_make_accessible(const QWidget& dialog, QAbstractItemView& devices, QTabWidget& pages);

// A table that is called what `label` says; Tab leaves it for the next widget, the arrow keys move within it.
void gfpq_make_table_accessible(QAbstractItemView& table, const QLabel& label);
