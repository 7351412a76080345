// SPDX-License-Identifier: MIT

// In-place editing of property values in the property table of an operation page.
#pragma once

#include <QStyledItemDelegate>

class GFPDB_ACTION;
class GPFQ_OPERATION_TAB_WIDGET;

// The delegate of the Value column. A typed value is checked and stored even if it is not valid: the warning does not
// reject it, and values are checked again before they are saved. GUI thread only.
class GFPQ_PROPERTY_DELEGATE : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // Both cells of a row hold its property (GFPDB_ACT_PROPERTY as an int) under this role.
    static constexpr int PROPERTY_ROLE = Qt::UserRole + 1;

    // `value_checker` offers the choices of a property and checks typed values. Not owned; with null there are no
    // choices and every value is valid.
    GFPQ_PROPERTY_DELEGATE(GPFQ_OPERATION_TAB_WIDGET* tab, GFPDB_ACTION* value_checker);
    ~GFPQ_PROPERTY_DELEGATE() override;

    // A combo box for a bus width, else a line edit; null for an invalid index.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

private:
    GFPDB_ACTION* m_value_checker;
};
