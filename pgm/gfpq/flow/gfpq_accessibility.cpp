// SPDX-License-Identifier: MIT
#include "flow/gfpq_accessibility.h"

#include "dialog/gfpq_dlg_internal.h"
#include "flow/gfpq_flow_view.h"
#include "flow/gfpq_flow_scene.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QCheckBox>
#include <QChildEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>

namespace {

constexpr int LABEL_COLUMN = 0;

QString text_of(const QWidget* widget)
{
    if (const auto* const label = qobject_cast<const QLabel*>(widget))
        return label->text();
    if (const auto* const check_box = qobject_cast<const QCheckBox*>(widget))
        return check_box->text();
    return QString();
}

// The text of a label as a name: without the colon at its end, whichever the language has, and the blanks around it.
QString name_of(const QString& label)
{
    QString name = label.trimmed();
    if (name.endsWith(QLatin1Char(':')) || name.endsWith(QChar(0xFF1A)))
        name.chop(1);
    return name.trimmed();
}

bool is_editor(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) != nullptr || qobject_cast<const QComboBox*>(widget) != nullptr;
}

// The editor that an item of a layout is, or holds as its first; null when there is none.
QWidget* editor_of(QLayoutItem* item)
{
    if (item == nullptr)
        return nullptr;
    if (is_editor(item->widget()))
        return item->widget();
    QLayout* const row = item->layout();
    for (int i = 0; row != nullptr && i < row->count(); ++i) {
        if (is_editor(row->itemAt(i)->widget()))
            return row->itemAt(i)->widget();
    }
    return nullptr;
}

void name_pair(QLayoutItem* label, QLayoutItem* field)
{
    QWidget* const editor = editor_of(field);
    const QString name = label != nullptr ? name_of(text_of(label->widget())) : QString();
    if (editor == nullptr || name.isEmpty())
        return;
    editor->setAccessibleName(name);
    // Where accessibility goes by relations, the name that a combo box gives is its current text.
    if (qobject_cast<QComboBox*>(editor) != nullptr)
        editor->setAccessibleDescription(name);
}

// Looks after the editors that open in the cells of a table: each gets the name of its row's label, and leaves the
// focus to the table when it closes.
class CELL_EDITOR_GUIDE : public QObject
{
public:
    explicit CELL_EDITOR_GUIDE(QAbstractItemView& table) : QObject(&table), m_table(table)
    {
        table.viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ChildPolished)
            greet(qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child()));
        else if (event->type() == QEvent::Hide && watched != m_table.viewport())
            see_off(*static_cast<QWidget*>(watched));
        return QObject::eventFilter(watched, event);
    }

private:
    void greet(QWidget* editor)
    {
        if (!is_editor(editor))
            return;
        editor->setAccessibleName(name_of(row_label()));
        editor->installEventFilter(this);
    }

    // The table does that itself, but not while a box about the value still has the focus: the keys would go on in the
    // first field of the window then.
    void see_off(const QWidget& editor)
    {
        if (m_table.isVisible() && m_table.window()->focusWidget() == &editor)
            m_table.setFocus();
    }

    QString row_label() const { return m_table.currentIndex().siblingAtColumn(LABEL_COLUMN).data().toString(); }

    QAbstractItemView& m_table;
};

// Names every editor after the label that stands beside it: in a form row, or before it in a row of widgets.
void name_editors(const QWidget& root)
{
    const QList<QFormLayout*> forms = root.findChildren<QFormLayout*>();
    for (const QFormLayout* const form : forms) {
        for (int row = 0; row < form->rowCount(); ++row)
            name_pair(form->itemAt(row, QFormLayout::LabelRole), form->itemAt(row, QFormLayout::FieldRole));
    }
    const QList<QHBoxLayout*> rows = root.findChildren<QHBoxLayout*>();
    for (const QHBoxLayout* const row : rows) {
        for (int i = 0; i + 1 < row->count(); ++i)
            name_pair(row->itemAt(i), row->itemAt(i + 1));
    }
}

void make_table_accessible(QAbstractItemView& table, const QString& name)
{
    table.setAccessibleName(name);
    table.setTabKeyNavigation(false);
}

void make_chart_accessible(QGraphicsView& view, const QString& page_title, const QLabel* description)
{
    view.setAccessibleName(QCoreApplication::translate("gfpq_dlg", "%1: flow chart").arg(page_title));
    if (description != nullptr)
        view.setAccessibleDescription(description->text());
    new GFPQ_FLOW_KEYBOARD(view);
}

// The arrow keys bring every title into sight. The buttons that do it for the mouse are no stops of their own.
void make_titles_accessible(const QTabWidget& pages)
{
    const QList<QToolButton*> buttons = pages.tabBar()->findChildren<QToolButton*>();
    for (QToolButton* const button : buttons)
        button->setFocusPolicy(Qt::NoFocus);
}

// The last widget of `page` that Tab comes to.
QWidget* last_stop(QWidget* page)
{
    QWidget* last = page;
    for (QWidget* widget = page->nextInFocusChain(); widget != page; widget = widget->nextInFocusChain()) {
        if (page->isAncestorOf(widget))
            last = widget;
    }
    return last;
}

// From left to right: palette, chart, table. Returns what Tab comes to last.
QWidget* put_behind(QWidget* previous, const QWidget& page)
{
    QList<QWidget*> parts;
    const QList<QGraphicsView*> views = page.findChildren<QGraphicsView*>();
    for (QGraphicsView* const view : views)
        parts.append(view);
    parts.append(page.findChild<QTableView*>());
    for (QWidget* const part : qAsConst(parts)) {
        QWidget::setTabOrder(previous, part);
        previous = part;
    }
    return previous;
}

void make_operation_page_accessible(const QWidget& page, const QString& title)
{
    const QList<QGraphicsView*> views = page.findChildren<QGraphicsView*>();
    for (QGraphicsView* const view : views) {
        if (qobject_cast<GFPQ_FLOW_SCENE*>(view->scene()) != nullptr)
            make_chart_accessible(*view, title, page.findChild<QLabel*>());
        else
            view->setAccessibleName(QCoreApplication::translate("gfpq_dlg", "%1: actions").arg(title));
    }
    if (auto* const table = page.findChild<QTableView*>()) {
        make_table_accessible(
            *table, QCoreApplication::translate("gfpq_dlg", "%1: properties of the selected action").arg(title));
        new CELL_EDITOR_GUIDE(*table);
    }
}

} // namespace

void gfpq_make_accessible(const QWidget& dialog, QAbstractItemView& devices, QTabWidget& pages)
{
    make_titles_accessible(pages);
    name_editors(dialog);
    make_table_accessible(devices, QCoreApplication::translate("gfpq_dlg", "Devices"));
    const QList<QScrollArea*> areas = dialog.findChildren<QScrollArea*>();
    for (QScrollArea* const area : areas)
        area->setAccessibleName(pages.tabText(GFPQ_FIRST_OPERATION_TAB - 1));
    QWidget* previous = last_stop(pages.widget(GFPQ_FIRST_OPERATION_TAB - 1));
    for (int i = GFPQ_FIRST_OPERATION_TAB; i < pages.count(); ++i) {
        make_operation_page_accessible(*pages.widget(i), pages.tabText(i));
        previous = put_behind(previous, *pages.widget(i));
    }
}

void gfpq_make_table_accessible(QAbstractItemView& table, const QLabel& label)
{
    make_table_accessible(table, name_of(label.text()));
}
