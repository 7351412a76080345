// SPDX-License-Identifier: MIT
#include "database/compare_dialog.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The first size in characters and lines.
constexpr int CHARACTERS = 130;
constexpr int LINES = 34;

} // namespace

COMPARE_DIALOG::COMPARE_DIALOG(const COMPARED& left, const COMPARED& right, QWidget* parent)
    : QDialog(parent), m_left(left), m_right(right), m_model(left, right), m_table(new QTableView),
      m_place_label(new QLabel)
{
    setWindowTitle(tr("Compare"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint, true);
    create_table();

    const int count = m_model.difference_count();
    auto* count_label = new QLabel(count == 0 ? tr("There are no differences.") : tr("Differences: %1").arg(count));
    count_label->setObjectName(QStringLiteral("m_count_label"));
    auto* only_check = new QCheckBox(tr("&Only differences"));
    only_check->setObjectName(QStringLiteral("m_only_check"));
    connect(only_check, &QCheckBox::toggled, this, &COMPARE_DIALOG::show_only_differences);
    auto* top = new QHBoxLayout;
    top->addWidget(only_check);
    top->addStretch();
    top->addWidget(count_label);

    m_place_label->setObjectName(QStringLiteral("m_place_label"));
    m_place_label->setTextFormat(Qt::PlainText);
    m_place_label->setWordWrap(true);
    m_place_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_previous =
        add_step(tr("&Previous Difference"), Qt::Key_F7, "m_previous_button", &COMPARE_MODEL::previous_difference);
    m_next = add_step(tr("&Next Difference"), Qt::Key_F8, "m_next_button", &COMPARE_MODEL::next_difference);
    auto* copy = new QPushButton(tr("Copy as &Diff"));
    copy->setObjectName(QStringLiteral("m_copy_button"));
    copy->setAutoDefault(false);
    copy->setEnabled(!comparison_as_diff(m_left, m_right).isEmpty());
    connect(copy, &QPushButton::clicked, this, &COMPARE_DIALOG::copy_diff);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &COMPARE_DIALOG::reject);
    auto* bottom = new QHBoxLayout;
    for (QPushButton* button : {m_previous, m_next, copy})
        bottom->addWidget(button);
    bottom->addWidget(buttons);

    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(m_table, 1);
    column->addWidget(m_place_label);
    column->addLayout(bottom);
    resize(fontMetrics().averageCharWidth() * CHARACTERS, fontMetrics().lineSpacing() * LINES);
    go_to(std::max(0, m_model.next_difference(-1)));
    m_table->setFocus();
}

// Long lines are wrapped: all of both sides can be read at any width.
void COMPARE_DIALOG::create_table()
{
    m_table->setObjectName(QStringLiteral("m_compare_table"));
    m_table->setAccessibleName(tr("%1 and %2").arg(m_left.title, m_right.title));
    m_table->setModel(&m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(true);
    m_table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    QHeaderView* header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setMinimumSectionSize(header->fontMetrics().averageCharWidth() * 3);
    header->setSectionResizeMode(COMPARE_MODEL::MARK, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(COMPARE_MODEL::TITLE, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(COMPARE_MODEL::LEFT, QHeaderView::Stretch);
    header->setSectionResizeMode(COMPARE_MODEL::RIGHT, QHeaderView::Stretch);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this, &COMPARE_DIALOG::show_place);
}

QPushButton* COMPARE_DIALOG::add_step(const QString& text, int key, const char* object_name,
                                      int (COMPARE_MODEL::*step)(int) const)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(object_name));
    button->setAutoDefault(false);
    // Setting a text takes the shortcut of its letter: the key is another one.
    auto* action = new QAction(this);
    action->setShortcut(key);
    addAction(action);
    button->setToolTip(action->shortcut().toString(QKeySequence::NativeText));
    const auto take = [this, step] { go_to((m_model.*step)(m_table->currentIndex().row())); };
    connect(action, &QAction::triggered, this, take);
    connect(button, &QPushButton::clicked, this, take);
    return button;
}

void COMPARE_DIALOG::show_only_differences(bool is_only)
{
    const QModelIndex current = m_table->currentIndex();
    const COMPARED_ROW* row = current.isValid() ? &m_model.row(current.row()) : nullptr;
    m_model.show_only_differences(is_only);
    go_to(row != nullptr ? m_model.row_of(*row) : 0);
}

// Stays where it is when there is no such row.
void COMPARE_DIALOG::go_to(int row)
{
    if (row >= 0 && row < m_model.rowCount())
        m_table->setCurrentIndex(m_model.index(row, COMPARE_MODEL::LEFT));
    show_place();
}

// What is different in a long line is hard to see in it.
QString COMPARE_DIALOG::place_text(const COMPARED_ROW& row)
{
    if (row.sign == COMPARED_ROW::SIGN::CHANGED)
        return tr("%1: \"%2\" and \"%3\"").arg(row.title, row.different_left(), row.different_right());
    return row.differs() ? QStringLiteral("%1: %2").arg(row.title, COMPARE_MODEL::sign_words(row.sign))
                         : QStringLiteral(" ");
}

void COMPARE_DIALOG::show_place()
{
    const int current = m_table->currentIndex().row();
    m_place_label->setText(current < 0 ? QString() : place_text(m_model.row(current)));
    m_previous->setEnabled(m_model.previous_difference(current) >= 0);
    m_next->setEnabled(m_model.next_difference(current) >= 0);
}

void COMPARE_DIALOG::copy_diff()
{
    QApplication::clipboard()->setText(comparison_as_diff(m_left, m_right));
}
