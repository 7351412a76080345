// SPDX-License-Identifier: MIT

// The devices that match an ID, to choose one of.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <QDialog>

#include <vector>

class QListWidget;

class DETECTED_DIALOG : public QDialog
{
    Q_OBJECT

public:
    // `devices` are not empty; `current`, by its name, is selected if it is one of them, else the first one.
    DETECTED_DIALOG(QWidget* parent, const QString& id, const std::vector<GFPDB_RECORD>& devices,
                    const std::string& current);

    // The number of the selected device.
    int selected() const;

private:
    QListWidget* m_list;
};
