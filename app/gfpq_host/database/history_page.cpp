// SPDX-License-Identifier: MIT
#include "database/history_page.h"

#include "database/bring_back_dialog.h"
#include "database/compare_dialog.h"
#include "database/record_states.h"
#include "new_device/problem_line.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The widths of the columns, in characters; the last one takes the rest.
constexpr int WIDTHS[HISTORY_MODEL::COLUMNS] = {7, 23, 22, 14, 14, 24, 20, 18};

// More than come between two looks.
constexpr int NEW_STATES = 250;

enum KIND
{
    BOTH,
    DEVICES,
    TEMPLATES,
};

QLineEdit* make_filter_edit(const char* object_name)
{
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(object_name));
    edit->setClearButtonEnabled(true);
    return edit;
}

} // namespace

HISTORY_PAGE::HISTORY_PAGE(GFPDB_DATABASE& database, QWidget* parent)
    : QWidget(parent), m_database(database), m_model(database), m_name_edit(make_filter_edit("m_history_name_edit")),
      m_user_edit(make_filter_edit("m_history_user_edit")), m_kind_combo(new QComboBox), m_count_label(new QLabel),
      m_table(new QTableView), m_problem(new PROBLEM_LINE(QStringLiteral("m_history_problem"))),
      m_compare_button(new QPushButton(tr("&Compare"))), m_bring_back_button(new QPushButton(tr("&Bring Back...")))
{
    create_filter();
    create_table();
    create_actions();
    lay_out();
    connect(&m_model, &HISTORY_MODEL::went_on, this, &HISTORY_PAGE::show_count);
    show_choice();
}

void HISTORY_PAGE::create_filter()
{
    m_kind_combo->setObjectName(QStringLiteral("m_history_kind_combo"));
    m_kind_combo->addItem(tr("Devices and templates"), BOTH);
    m_kind_combo->addItem(tr("Devices"), DEVICES);
    m_kind_combo->addItem(tr("Templates"), TEMPLATES);
    m_count_label->setObjectName(QStringLiteral("m_history_count_label"));
    connect(m_name_edit, &QLineEdit::textChanged, this, &HISTORY_PAGE::filter);
    connect(m_user_edit, &QLineEdit::textChanged, this, &HISTORY_PAGE::filter);
    connect(m_kind_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &HISTORY_PAGE::filter);
}

void HISTORY_PAGE::create_table()
{
    m_table->setObjectName(QStringLiteral("m_history_table"));
    m_table->setAccessibleName(tr("History"));
    m_table->setModel(&m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() * 3 / 2);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    for (int column = 0; column < HISTORY_MODEL::COLUMNS; ++column)
        m_table->setColumnWidth(column, m_table->fontMetrics().averageCharWidth() * WIDTHS[column]);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &HISTORY_PAGE::show_choice);
    connect(&m_model, &HISTORY_MODEL::modelReset, this, &HISTORY_PAGE::show_choice);
}

QAction* HISTORY_PAGE::add_action(const QString& text, const char* object_name, void (HISTORY_PAGE::*asked)())
{
    auto* action = new QAction(text, this);
    action->setObjectName(QLatin1String(object_name));
    connect(action, &QAction::triggered, this, asked);
    m_table->addAction(action);
    return action;
}

void HISTORY_PAGE::create_actions()
{
    QAction* after = add_action(QCoreApplication::translate("HISTORY_MENU", "Compare with the &Next State"),
                                "m_compare_after_action", &HISTORY_PAGE::compare_after);
    QAction* before = add_action(QCoreApplication::translate("HISTORY_MENU", "Compare with the &Previous State"),
                                 "m_compare_before_action", &HISTORY_PAGE::compare_before);
    QAction* current = add_action(QCoreApplication::translate("HISTORY_MENU", "Compare with the &Current State"),
                                  "m_compare_current_action", &HISTORY_PAGE::compare_current);
    m_compare_selected_action =
        add_action(QCoreApplication::translate("HISTORY_MENU", "Compare the Two &Selected States"),
                   "m_compare_selected_action", &HISTORY_PAGE::compare_selected);
    m_bring_back_action = add_action(tr("&Bring Back..."), "m_bring_back_action", &HISTORY_PAGE::bring_back);
    m_state_actions = {after, before, current, m_bring_back_action};
    auto* menu = new QMenu(this);
    menu->addActions({after, before, current, m_compare_selected_action});
    m_compare_button->setObjectName(QStringLiteral("m_compare_button"));
    m_compare_button->setMenu(menu);
    m_bring_back_button->setObjectName(QStringLiteral("m_bring_back_button"));
    connect(m_bring_back_button, &QPushButton::clicked, m_bring_back_action, &QAction::trigger);
    // What the change was.
    connect(m_table, &QTableView::activated, after, &QAction::trigger);
}

void HISTORY_PAGE::lay_out()
{
    auto* top = new QHBoxLayout;
    const auto add = [top](const QString& text, QWidget* field, int stretch) {
        auto* title = new QLabel(text);
        title->setBuddy(field);
        top->addWidget(title);
        top->addWidget(field, stretch);
    };
    add(tr("Na&me:"), m_name_edit, 1);
    add(tr("&User:"), m_user_edit, 1);
    add(tr("&Kind:"), m_kind_combo, 0);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_count_label);
    bottom->addStretch();
    bottom->addWidget(m_compare_button);
    bottom->addWidget(m_bring_back_button);
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(m_table, 1);
    column->addWidget(m_problem);
    column->addLayout(bottom);
}

void HISTORY_PAGE::allow_changes(bool is_allowed)
{
    m_bring_back_button->setVisible(is_allowed);
    m_bring_back_action->setVisible(is_allowed);
}

void HISTORY_PAGE::find()
{
    m_name_edit->setFocus();
    m_name_edit->selectAll();
}

void HISTORY_PAGE::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_was_read)
        refresh();
}

void HISTORY_PAGE::refresh()
{
    m_was_read = isVisible();
    if (!m_was_read)
        return;
    const PLACE former = place();
    m_total = m_database.count_history();
    m_model.reload(former.rows);
    return_to(former);
}

HISTORY_PAGE::PLACE HISTORY_PAGE::place() const
{
    PLACE place;
    const auto id_of = [this](int row) { return row < 0 ? 0 : m_model.entry(row).id; };
    const std::vector<int> rows = selected_rows();
    for (const int row : rows)
        place.selected.push_back(id_of(row));
    place.current = id_of(m_table->currentIndex().row());
    // Who looks at the newest ones wants to see those that come.
    const int top = m_table->rowAt(0);
    place.top = top > 0 ? id_of(top) : 0;
    const int bottom = m_table->rowAt(m_table->viewport()->height() - 1);
    place.rows = std::max({top, bottom, rows.empty() ? 0 : rows.back(), m_table->currentIndex().row()}) + NEW_STATES;
    return place;
}

void HISTORY_PAGE::return_to(const PLACE& place)
{
    const auto index_of = [this](std::int64_t id) { return m_model.index(m_model.row_of(id), 0); };
    QItemSelectionModel& selection = *m_table->selectionModel();
    selection.setCurrentIndex(index_of(place.current), QItemSelectionModel::NoUpdate);
    QItemSelection selected;
    for (const std::int64_t id : place.selected) {
        if (m_model.row_of(id) >= 0)
            selected.select(index_of(id), index_of(id));
    }
    selection.select(selected, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    if (index_of(place.top).isValid())
        m_table->scrollTo(index_of(place.top), QAbstractItemView::PositionAtTop);
}

void HISTORY_PAGE::filter()
{
    GFPDB_HISTORY_FILTER filter;
    filter.name_part = m_name_edit->text().toStdString();
    filter.user_part = m_user_edit->text().toStdString();
    if (m_kind_combo->currentData().toInt() != BOTH)
        filter.is_template = m_kind_combo->currentData().toInt() == TEMPLATES;
    m_model.set_filter(filter);
}

// The number of all states is known; of those that a filter picks it is known when all were looked at.
void HISTORY_PAGE::show_count()
{
    const bool is_filtered =
        !m_name_edit->text().isEmpty() || !m_user_edit->text().isEmpty() || m_kind_combo->currentData().toInt() != BOTH;
    const QString found = QLocale().toString(m_model.rowCount());
    if (m_model.is_searching())
        m_count_label->setText(tr("States: %1, searching...").arg(found));
    else if (is_filtered && !m_model.is_complete())
        m_count_label->setText(tr("States: more than %1").arg(found));
    else
        m_count_label->setText(tr("States: %1").arg(is_filtered ? found : QLocale().toString(qlonglong(m_total))));
    m_problem->show_problem(m_model.problem());
}

std::vector<int> HISTORY_PAGE::selected_rows() const
{
    std::vector<int> rows;
    const QModelIndexList indexes = m_table->selectionModel()->selectedRows();
    for (const QModelIndex& index : indexes)
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void HISTORY_PAGE::show_choice()
{
    const std::size_t count = selected_rows().size();
    for (QAction* action : qAsConst(m_state_actions))
        action->setEnabled(count == 1);
    m_compare_selected_action->setEnabled(count == 2);
    m_compare_button->setEnabled(count == 1 || count == 2);
    m_bring_back_button->setEnabled(count == 1);
    m_problem->show_problem(m_model.problem());
}

// `missing` is what is said when there is no such state.
void HISTORY_PAGE::compare(const std::optional<COMPARED>& left, const std::optional<COMPARED>& right,
                           const QString& missing)
{
    if (left && right) {
        m_problem->show_problem(QString());
        COMPARE_DIALOG(*left, *right, this).exec();
        return;
    }
    const QString problem = QString::fromStdString(m_database.get_last_error());
    m_problem->show_problem(problem.isEmpty() ? missing : problem);
}

void HISTORY_PAGE::compare_before()
{
    const RECORD_STATES states(m_database, selected());
    const std::optional<COMPARED> right = states.itself();
    compare(states.before(), right, tr("There is no state before this one."));
}

void HISTORY_PAGE::compare_after()
{
    const RECORD_STATES states(m_database, selected());
    const std::optional<COMPARED> left = states.itself();
    compare(left, states.after(), tr("There is no state after this one: it was deleted or renamed."));
}

void HISTORY_PAGE::compare_current()
{
    const RECORD_STATES states(m_database, selected());
    const std::optional<COMPARED> left = states.itself();
    compare(left, states.current(), tr("There is no current state: it was deleted or renamed."));
}

void HISTORY_PAGE::compare_selected()
{
    const std::vector<int> rows = selected_rows();
    const std::optional<COMPARED> newer = RECORD_STATES(m_database, m_model.entry(rows.front())).itself();
    compare(RECORD_STATES(m_database, m_model.entry(rows.back())).itself(), newer,
            tr("A state was removed from the history."));
}

void HISTORY_PAGE::bring_back()
{
    const std::string problem = m_database.get_write_problem();
    if (!problem.empty()) {
        m_problem->show_problem(QString::fromStdString(problem));
        return;
    }
    if (BRING_BACK_DIALOG(m_database, selected(), this).exec() != QDialog::Accepted)
        return;
    refresh();
    emit restored();
}
