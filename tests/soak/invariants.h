// SPDX-License-Identifier: MIT

// What holds of the dialog whatever a user does. Each function returns what is wrong, an empty text when nothing is.
#pragma once

#include <QString>

class GFPQ_DLG;
class GFPQ_FLOW_SCENE;
class GPFQ_OPERATION_TAB_WIDGET;
class QStandardItemModel;

// The model behind the device table, without its filter.
QStandardItemModel* device_model(const GFPQ_DLG& dialog);
// The name in the current row of the device table; empty when there is none.
QString current_device(const GFPQ_DLG& dialog);

// The picture shows the list of actions: every action in one block, from the top in the list's order, between Start and
// End, with an arrow between any two shapes; only such blocks are selected.
QString chart_problem(const GFPQ_FLOW_SCENE& scene);
// The property table is empty or shows the properties of one of the page's actions with their values.
QString property_table_problem(const GPFQ_OPERATION_TAB_WIDGET& page);
// The device table lists what the flash database has for the family and scheme that are chosen; what the buttons and
// pages offer fits the current row.
QString device_list_problem(const GFPQ_DLG& dialog);

// The first problem of all of these.
QString dialog_problem(const GFPQ_DLG& dialog);
