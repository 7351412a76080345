// SPDX-License-Identifier: MIT
#include "results/trace_page.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr int ALL_PHASES = -1;
// The widths of the columns, in characters; the last one takes the rest.
constexpr int WIDTHS[TRACE_MODEL::COLUMNS] = {9, 12, 14, 22, 14, 18, 12, 28, 20};

} // namespace

TRACE_PAGE::TRACE_PAGE()
    : m_phase_combo(new QComboBox), m_count_label(new QLabel), m_table(new QTableView), m_command_label(new QLabel)
{
    m_phase_combo->setObjectName(QStringLiteral("m_phase_combo"));
    m_phase_combo->addItem(tr("All operations"), ALL_PHASES);
    for (int phase = 0; phase < int(RUN_PHASES); ++phase)
        m_phase_combo->addItem(QString::fromUtf8(gfpe_phase_name(static_cast<GFPE_PHASE>(phase))), phase);
    auto* title = new QLabel(tr("Commands of:"));
    title->setBuddy(m_phase_combo);

    m_table->setObjectName(QStringLiteral("m_trace_table"));
    m_table->setAccessibleName(tr("Commands of the last run"));
    m_table->setModel(&m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() * 3 / 2);
    m_table->horizontalHeader()->setStretchLastSection(true);
    for (int column = 0; column < TRACE_MODEL::COLUMNS; ++column)
        m_table->setColumnWidth(column, m_table->fontMetrics().averageCharWidth() * WIDTHS[column]);

    auto* top = new QHBoxLayout;
    top->addWidget(title);
    top->addWidget(m_phase_combo);
    top->addStretch();
    top->addWidget(m_count_label);
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(m_table);
    column->addWidget(m_command_label);
    m_command_label->setObjectName(QStringLiteral("m_command_label"));
    m_command_label->setTextFormat(Qt::PlainText);
    m_command_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_command_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this, &TRACE_PAGE::show_command);
    connect(m_phase_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &TRACE_PAGE::choose_phase);
    show_place();
}

void TRACE_PAGE::show_trace(const std::shared_ptr<const RUN_TRACE>& trace, const QString& failure)
{
    m_failure = failure;
    m_model.show_trace(trace);
    show_place();
}

void TRACE_PAGE::choose_phase()
{
    const int phase = m_phase_combo->currentData().toInt();
    m_model.show_phase(phase == ALL_PHASES ? std::nullopt : std::make_optional(static_cast<GFPE_PHASE>(phase)));
    show_place();
}

// The bytes of the current command, of which the table may show a part; of the failed one what was wrong with them.
void TRACE_PAGE::show_command()
{
    const QModelIndex current = m_table->currentIndex();
    if (current.isValid() && current.row() == m_model.failed_row() && !m_failure.isEmpty()) {
        m_command_label->setText(m_failure);
        return;
    }
    QStringList lines;
    for (const int column : {TRACE_MODEL::SENT, TRACE_MODEL::RECEIVED, TRACE_MODEL::EXPECTED}) {
        const QString text = current.sibling(current.row(), column).data().toString();
        if (!text.isEmpty())
            lines.append(QStringLiteral("%1: %2").arg(
                m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(), text));
    }
    m_command_label->setText(lines.isEmpty() ? QStringLiteral(" ") : lines.join(QStringLiteral("   ")));
}

// The failed command, if there is one.
void TRACE_PAGE::show_place()
{
    m_count_label->setText(tr("%1 commands").arg(m_model.rowCount()));
    const int failed = m_model.failed_row();
    show_command();
    if (failed < 0)
        return;
    m_table->setCurrentIndex(m_model.index(failed, TRACE_MODEL::NUMBER));
    m_table->clearSelection();
    m_table->scrollTo(m_model.index(failed, TRACE_MODEL::NUMBER), QAbstractItemView::PositionAtCenter);
}
