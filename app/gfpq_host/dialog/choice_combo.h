// SPDX-License-Identifier: MIT

// Families and configuration modes as users read and choose them.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <QComboBox>
#include <QString>

#include <vector>

QString family_text(int family);
QString scheme_text(int scheme);
// The name of a device, with the family and mode that a stored one has; a built-in one, of the scheme -1, has none.
QString device_title(const GFPDB_RECORD& device);

// A combo box whose entries do not widen its window: the names of families come from a file.
QComboBox* make_narrow_combo();

// Fills `combo` with `values`, sorted by their texts, and makes `current` the current one, which comes in when it is
// not among them. The value is the entry's data. No change is reported.
void show_values(QComboBox* combo, std::vector<int> values, int current, QString (*text_of)(int value));
