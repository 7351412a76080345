// SPDX-License-Identifier: MIT

// In-place editing of property values in the property table of an operation page.
#pragma once

#include <QStyledItemDelegate>

class GFPDB_ACTION;
class GPFQ_OPERATION_TAB_WIDGET;

// The delegate of the table's Value column. What the user typed is checked, and stored whether it is valid or not: the
// warning rejects nothing, values are checked again before they are saved. GUI thread only.
class GFPQ_PROPERTY_DELEGATE : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // The role under which both cells of a row hold the row's property (GFPDB_ACT_PROPERTY as an int).
    static constexpr int PROPERTY_ROLE = Qt::UserRole + 1;

    // `value_checker` offers the choices of a property and checks typed values; not owned, may be null (no choices,
    // everything is valid).
    GFPQ_PROPERTY_DELEGATE(GPFQ_OPERATION_TAB_WIDGET* tab, GFPDB_ACTION* value_checker);
    ~GFPQ_PROPERTY_DELEGATE() override;

    // A combo box for a bus width, a line edit for everything else; null for an invalid index.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

private:
    GFPDB_ACTION* m_value_checker;
};
