// SPDX-License-Identifier: MIT
#include "flow/gfpq_property_delegate.h"

#include "flow/gfpq_operation_tab_widget.h"
#include "words/gfpq_text.h"

#include "gfpdb/gfpdb_action.h"
#include "msg/msg.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QStandardItemModel>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

namespace {

constexpr int VALUE_COLUMN = 1;

// The source and line that the internal error of another kind of model names; both are fixed.
constexpr const char* ERROR_SOURCE = "pgm/gfpq/gfpq_operation_tab_widget";
constexpr int ERROR_LINE_NO_MODEL = 534;

GFPDB_ACT_PROPERTY property_of(const QModelIndex& index)
{
    const QVariant property = index.sibling(index.row(), VALUE_COLUMN).data(GFPQ_PROPERTY_DELEGATE::PROPERTY_ROLE);
    return static_cast<GFPDB_ACT_PROPERTY>(property.toInt());
}

bool has_choices(GFPDB_ACT_PROPERTY property)
{
    switch (property) {
    case GFPDB_WR_BUS_WIDTH:
    case GFPDB_RR_BUS_WIDTH:
    case GFPDB_WD_BUS_WIDTH:
    case GFPDB_RD_BUS_WIDTH:
    case GFPDB_ER_BUS_WIDTH:
        return true;
    default:
        return false;
    }
}

// Fills the combo box again, because the view calls this after every store.
void load_choices(QComboBox& combo, const std::vector<std::string>& choices, const QString& current)
{
    combo.clear();
    combo.setInsertPolicy(QComboBox::NoInsert);
    combo.setEditable(false);
    for (const std::string& choice : choices)
        combo.addItem(gfpq_from_local(choice));
    if (!current.isEmpty())
        combo.setCurrentIndex(std::max(0, combo.findText(current, Qt::MatchFixedString)));
}

} // namespace

GFPQ_PROPERTY_DELEGATE::GFPQ_PROPERTY_DELEGATE(GPFQ_OPERATION_TAB_WIDGET* tab, GFPDB_ACTION* value_checker)
    : QStyledItemDelegate(tab), m_value_checker(value_checker)
{}

GFPQ_PROPERTY_DELEGATE::~GFPQ_PROPERTY_DELEGATE() = default;

QWidget* GFPQ_PROPERTY_DELEGATE::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                              const QModelIndex& index) const
{
    Q_UNUSED(option)
    if (!index.isValid())
        return nullptr;
    if (has_choices(property_of(index)))
        return new QComboBox(parent);
    auto* const edit = new QLineEdit(parent);
    edit->setMaxLength(std::numeric_limits<int>::max());
    return edit;
}

void GFPQ_PROPERTY_DELEGATE::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (!index.isValid())
        return;
    const QString text = index.sibling(index.row(), VALUE_COLUMN).data(Qt::DisplayRole).toString();
    if (auto* const edit = qobject_cast<QLineEdit*>(editor)) {
        edit->setText(text);
    } else if (auto* const combo = qobject_cast<QComboBox*>(editor)) {
        const bool can_ask = m_value_checker != nullptr;
        load_choices(*combo,
                     can_ask ? m_value_checker->get_property_choices(property_of(index)) : std::vector<std::string>(),
                     text);
    }
}

void GFPQ_PROPERTY_DELEGATE::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    auto* const std_model = qobject_cast<QStandardItemModel*>(model);
    if (std_model == nullptr)
        MSG_INTERNAL_ERROR::report("std_model != nullptr", "GFPQ", ERROR_SOURCE, ERROR_LINE_NO_MODEL);

    auto* const tab = static_cast<GPFQ_OPERATION_TAB_WIDGET*>(parent());
    const GFPDB_ACT_PROPERTY property = property_of(index);
    const QPersistentModelIndex cell(index);
    QString text;
    if (const auto* const combo = qobject_cast<QComboBox*>(editor)) {
        text = combo->currentText();
    } else if (const auto* const edit = qobject_cast<QLineEdit*>(editor)) {
        text = edit->text();
        std::string error;
        if (m_value_checker != nullptr && !m_value_checker->check_property_value(property, gfpq_to_local(text), error))
            tab->warn_about_value(gfpq_from_local(error));
    }
    // If the table was filled again while the box was open, it shows another action now.
    if (!cell.isValid())
        return;
    std_model->setData(cell, text, Qt::EditRole);
    std_model->setData(cell, text, Qt::ToolTipRole);
    tab->store_property_value(property, text);
}
