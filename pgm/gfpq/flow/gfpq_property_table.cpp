// SPDX-License-Identifier: MIT
#include "flow/gfpq_property_table.h"

#include "flow/gfpq_property_delegate.h"
#include "words/gfpq_accessible_name.h"
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"

#include "gfpdb/gfpdb_action.h"

#include <QChildEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace {

// The part of a long value that a tool tip shows: enough for 256 data bytes in every notation.
constexpr int TOOL_TIP_MAX_LENGTH = 4000;

// The smallest width of the Value column, in digits.
constexpr int MIN_VALUE_DIGITS = 12;
// Of row numbers in the vertical header.
constexpr int ROW_NUMBER_DIGITS = 2;

// Uses the action's own label for a property that the vocabulary does not know.
QString label_of(const GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property)
{
    const bool has_word = property >= 0 && property < GFPDB_ACT_PROPERTY_COUNT;
    return has_word ? gfpq_from_utf8(GFPQ_PROPERTY_LABELS[property])
                    : gfpq_from_local(action.get_property_label(property));
}

// A tool tip that shows `text` unchanged, never as markup, with its blanks, and in lines that fit the screen.
QString plain_tool_tip(const QString& text)
{
    return QStringLiteral("<p style=\"white-space: pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
}

// The width in which the table shows every label and the beginning of every value.
int usable_width(const QTableView& table)
{
    const QFontMetrics metrics = table.fontMetrics();
    int label = 0;
    for (const char* const text : GFPQ_PROPERTY_LABELS)
        label = std::max(label, metrics.horizontalAdvance(gfpq_from_utf8(text)));
    const int digits = (MIN_VALUE_DIGITS + ROW_NUMBER_DIGITS) * metrics.horizontalAdvance(QLatin1Char('0'));
    // Of the two columns and the vertical header, on either side.
    const int margins = 3 * 2 * table.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &table);
    return label + digits + margins + table.verticalScrollBar()->sizeHint().width() + 2 * table.frameWidth();
}

void append_row(QStandardItemModel& model, const GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property)
{
    auto* const label = new QStandardItem(label_of(action, property));
    label->setData(static_cast<int>(property), GFPQ_PROPERTY_DELEGATE::PROPERTY_ROLE);
    label->setEditable(false);
    auto* const value = new QStandardItem(gfpq_from_local(action.get_property_value(property)));
    value->setData(static_cast<int>(property), GFPQ_PROPERTY_DELEGATE::PROPERTY_ROLE);
    value->setEnabled(action.is_property_enabled(property));
    model.appendRow({label, value});
}

} // namespace

GFPQ_PROPERTY_TABLE::GFPQ_PROPERTY_TABLE(QWidget* parent, const QString& title) : QTableView(parent)
{
    setObjectName(QStringLiteral("m_property_table"));
    // A block with a long value makes the chart ask for all the room there is.
    setMinimumWidth(usable_width(*this));
    setTabKeyNavigation(false);
    setAccessibleName(QCoreApplication::translate("gfpq_dlg", "%1: properties of the selected action").arg(title));
}

void GFPQ_PROPERTY_TABLE::set_up(QStandardItemModel& model, QAbstractItemDelegate* delegate)
{
    setModel(&model);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setSortingEnabled(false);
    setShowGrid(true);
    setWordWrap(false);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setAlternatingRowColors(true);

    model.setColumnCount(1);
    model.setHorizontalHeaderItem(LABEL_COLUMN, new QStandardItem(QCoreApplication::translate("gfpq_dlg", "Property")));
    model.setHorizontalHeaderItem(VALUE_COLUMN, new QStandardItem(QCoreApplication::translate("gfpq_dlg", "Value")));

    resizeColumnToContents(LABEL_COLUMN);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setSelectionMode(QAbstractItemView::NoSelection);
    horizontalHeader()->setSectionsMovable(false);
    verticalHeader()->setDefaultSectionSize(verticalHeader()->minimumSectionSize());
    setItemDelegateForColumn(VALUE_COLUMN, delegate);
}

void GFPQ_PROPERTY_TABLE::append_rows(QStandardItemModel& model, const GFPDB_ACTION& action)
{
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
        // The user does not edit the loop marker.
        if (property != GFPDB_CUSTOM_LOOP_MARKER)
            append_row(model, action, property);
    }
    resizeColumnToContents(LABEL_COLUMN);
}

void GFPQ_PROPERTY_TABLE::commit_open_editor()
{
    for (int row = 0; model() != nullptr && row < model()->rowCount(); ++row) {
        QWidget* const editor = indexWidget(model()->index(row, VALUE_COLUMN));
        if (editor == nullptr)
            continue;
        QAbstractItemDelegate* const delegate = itemDelegateForColumn(VALUE_COLUMN);
        emit delegate->commitData(editor);
        emit delegate->closeEditor(editor);
        return;
    }
}

// There is nothing to edit in a label, on which the table begins: F2 there begins with the value beside it.
bool GFPQ_PROPERTY_TABLE::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    if (trigger != EditKeyPressed || !index.isValid() || index.column() != LABEL_COLUMN)
        return QTableView::edit(index, trigger, event);
    const QModelIndex value = index.siblingAtColumn(VALUE_COLUMN);
    setCurrentIndex(value);
    return QTableView::edit(value, trigger, event);
}

bool GFPQ_PROPERTY_TABLE::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ChildPolished)
        greet_editor(qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child()));
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    show_tool_tip(*static_cast<QHelpEvent*>(event));
    return true;
}

void GFPQ_PROPERTY_TABLE::greet_editor(QWidget* editor)
{
    if (qobject_cast<QLineEdit*>(editor) == nullptr && qobject_cast<QComboBox*>(editor) == nullptr)
        return;
    const QModelIndex label = currentIndex().siblingAtColumn(LABEL_COLUMN);
    editor->setAccessibleName(gfpq_accessible_name(label.data().toString()));
    editor->installEventFilter(this);
}

// A closing editor leaves the focus to the table. The base class sees to that, but not while a box about the value has
// the focus: the keys would then go on in the first field of the window.
bool GFPQ_PROPERTY_TABLE::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && isVisible() && window()->focusWidget() == watched)
        setFocus();
    return QTableView::eventFilter(watched, event);
}

// What the user stored last, or else the text if it is cut.
QString GFPQ_PROPERTY_TABLE::tool_tip_of(const QModelIndex& cell) const
{
    const QString stored = cell.data(Qt::ToolTipRole).toString();
    const bool is_elided = sizeHintForIndex(cell).width() > visualRect(cell).width();
    return stored.isEmpty() && is_elided ? cell.data().toString() : stored;
}

void GFPQ_PROPERTY_TABLE::show_tool_tip(const QHelpEvent& event)
{
    const QModelIndex index = indexAt(event.pos());
    const QString text = tool_tip_of(index).left(TOOL_TIP_MAX_LENGTH);
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(event.globalPos(), plain_tool_tip(text), viewport(), visualRect(index));
}
