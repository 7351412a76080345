// SPDX-License-Identifier: MIT

// The values of a new device: for each one its title, its editor, where it comes from, and what is wrong with it.
#pragma once

#include "new_device/new_device_draft.h"

#include <QWidget>

#include <vector>

class PROBLEM_LINE;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;

class VALUE_FIELDS : public QWidget
{
    Q_OBJECT

public:
    // `draft` must outlive this.
    explicit VALUE_FIELDS(NEW_DEVICE_DRAFT& draft);

    // Shows the draft as it is now.
    void show_values();
    // Takes what is in an editor that nobody has left yet.
    void take_entered();
    // Moves the focus to the row's editor.
    void go_to(int row);

signals:
    // A value of the draft was changed by the user.
    void changed();

private:
    // One of both editors.
    struct FIELD
    {
        QString key;
        QLineEdit* edit = nullptr;
        QComboBox* combo = nullptr;
        QLabel* source = nullptr;
        PROBLEM_LINE* problem = nullptr;
    };

    void create_fields();
    void create_field(const DRAFT_ROW& row, QGridLayout* grid);
    QWidget* create_editor(const DRAFT_ROW& row, FIELD& field);
    void take_when_left(const QString& key, QLineEdit* edit);
    void show_row(const DRAFT_ROW& row, const FIELD& field);
    void take(const QString& key, const QString& text);
    const DRAFT_ROW* row_of(const QString& key) const;

    NEW_DEVICE_DRAFT& m_draft;
    std::vector<FIELD> m_fields;
};
