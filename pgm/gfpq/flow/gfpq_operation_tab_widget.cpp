// SPDX-License-Identifier: MIT
#include "flow/gfpq_operation_tab_widget.h"

#include "flow/gfpq_flow_items.h"
#include "flow/gfpq_flow_scene.h"
#include "flow/gfpq_property_delegate.h"
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"
#include "words/gfpq_warning.h"

#include "gfpdb/gfpdb_action.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/kovq_connect.h"

#include <QGraphicsView>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QScrollBar>
#include <QStyle>
#include <QTableView>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int PALETTE_MAX_WIDTH = 100;
constexpr double PALETTE_X = 20.0;
constexpr double PALETTE_TITLE_Y = 10.0;
constexpr double READ_REGISTER_Y = 50.0;
constexpr double WRITE_REGISTER_Y = 130.0;
constexpr double OWN_ACTION_Y = 210.0;

constexpr int PROPERTY_COLUMN = 0;
constexpr int VALUE_COLUMN = 1;

// The part of a long value that a tool tip shows: all of 256 data bytes, however they are written.
constexpr int TOOL_TIP_MAX_LENGTH = 4000;

// What fits into the Value column, in digits, when the chart takes all the room there is.
constexpr int MIN_VALUE_DIGITS = 12;
// Of row numbers in the vertical header.
constexpr int ROW_NUMBER_DIGITS = 2;

// The action's own label is shown where the words have none: the library may know more properties than they do.
QString label_of(const GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property)
{
    const bool has_word = property >= 0 && property < GFPDB_ACT_PROPERTY_COUNT;
    return has_word ? gfpq_from_utf8(GFPQ_PROPERTY_LABELS[property])
                    : gfpq_from_local(action.get_property_label(property));
}

// A tool tip that shows `text` as it stands, never as markup, with its blanks, and in lines that fit on the screen.
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

// The colours of charts and palettes are fixed, so is what they are drawn on.
constexpr Qt::GlobalColor PAPER_COLOR = Qt::white;

QGraphicsView* create_view(QGraphicsScene* scene, Qt::Alignment alignment)
{
    auto* const view = new QGraphicsView(scene);
    view->setBackgroundBrush(PAPER_COLOR);
    view->setAlignment(alignment);
    return view;
}

} // namespace

GPFQ_OPERATION_TAB_WIDGET::GPFQ_OPERATION_TAB_WIDGET(QWidget* parent, int operation) : QWidget(parent)
{
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(create_description(operation), 0);
    layout->addLayout(create_editor(operation), 0);

    kovq_safe_connect(m_flow_scene, SIGNAL(emit_action_selection_changed(GFPDB_ACTION*)), this,
                      SLOT(update_property_table(GFPDB_ACTION*)));
    kovq_safe_connect(m_flow_scene, SIGNAL(emit_clear_table()), this, SLOT(clear_property_table()));
    kovq_safe_connect(this, SIGNAL(emit_update_flow_scene()), m_flow_scene, SLOT(refresh_flow_chain()));
}

GPFQ_OPERATION_TAB_WIDGET::~GPFQ_OPERATION_TAB_WIDGET()
{
    delete m_value_checker;
}

QBoxLayout* GPFQ_OPERATION_TAB_WIDGET::create_description(int operation)
{
    auto* const layout = new QVBoxLayout;
    layout->setObjectName(QStringLiteral("label_vlayout"));

    m_description_label = new QLabel(gfpq_from_utf8(GFPQ_OPERATION_DESCRIPTIONS[operation]), this);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHorizontalStretch(0);
    policy.setVerticalStretch(0);
    policy.setHeightForWidth(m_description_label->sizePolicy().hasHeightForWidth());
    m_description_label->setSizePolicy(policy);
    m_description_label->setWordWrap(true);
    layout->addWidget(m_description_label);

    auto* const line = new QFrame(this);
    line->setObjectName(QStringLiteral("hor_line"));
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    layout->addWidget(line);
    return layout;
}

QBoxLayout* GPFQ_OPERATION_TAB_WIDGET::create_editor(int operation)
{
    auto* const layout = new QHBoxLayout;
    layout->setObjectName(QStringLiteral("hlayout"));

    QGraphicsView* const palette_view = create_view(create_palette_scene(operation), Qt::AlignTop);
    palette_view->setMaximumWidth(PALETTE_MAX_WIDTH);
    // Nor does the chart take the entries' room.
    palette_view->setMinimumWidth(std::min(palette_view->sizeHint().width(), PALETTE_MAX_WIDTH));
    layout->addWidget(palette_view, 0);

    m_flow_scene = new GFPQ_FLOW_SCENE(this, operation);
    m_flow_view = create_view(m_flow_scene, Qt::AlignCenter);
    layout->addWidget(m_flow_view, 0);

    m_property_table = new QTableView(this);
    m_property_table->setObjectName(QStringLiteral("m_property_table"));
    // A block with a long value makes the chart ask for as much room as there is.
    m_property_table->setMinimumWidth(usable_width(*m_property_table));
    m_property_table->viewport()->installEventFilter(this);
    layout->addWidget(m_property_table, 0);
    return layout;
}

// Read Register stands above Write Register on purpose.
QGraphicsScene* GPFQ_OPERATION_TAB_WIDGET::create_palette_scene(int operation)
{
    auto* const scene = new QGraphicsScene(this);
    auto* const title = new QGraphicsTextItem(QStringLiteral("Actions:"));
    title->setDefaultTextColor(Qt::black);
    title->setPos(PALETTE_X, PALETTE_TITLE_Y);
    scene->addItem(title);

    m_read_register_item = add_palette_entry(*scene, GFPDB_ACT_READ_REGISTER, READ_REGISTER_Y);
    m_write_register_item = add_palette_entry(*scene, GFPDB_ACT_WRITE_REGISTER, WRITE_REGISTER_Y);
    if (operation == GFPDB_OPERATION_PROGRAM)
        m_write_data_item = add_palette_entry(*scene, GFPDB_ACT_WRITE_DATA, OWN_ACTION_Y);
    else if (operation == GFPDB_OPERATION_ERASE)
        m_erase_item = add_palette_entry(*scene, GFPDB_ACT_ERASE, OWN_ACTION_Y);
    else if (operation == GFPDB_OPERATION_VERIFY)
        m_read_data_item = add_palette_entry(*scene, GFPDB_ACT_READ_DATA, OWN_ACTION_Y);
    return scene;
}

GFPQ_ACTION_MENU_ITEM* GPFQ_OPERATION_TAB_WIDGET::add_palette_entry(QGraphicsScene& scene, GFPDB_ACT_TYPE type,
                                                                    double y)
{
    auto* const entry = new GFPQ_ACTION_MENU_ITEM(type);
    entry->setPos(PALETTE_X, y);
    scene.addItem(entry);
    return entry;
}

void GPFQ_OPERATION_TAB_WIDGET::load_flow(const std::vector<GFPDB_ACTION*>* actions, bool editable)
{
    m_flow_scene->clear_actions(true);
    m_flow_scene->set_editable(editable);
    if (actions != nullptr)
        m_flow_scene->append_copies(*actions);
    m_flow_scene->create_flow_chain();
    // Not by the scroll bars: a view that is hidden goes to its centre point when it is shown.
    m_flow_view->centerOn(m_flow_scene->sceneRect().center().x(), 0.0);
}

QList<GFPDB_ACTION*> GPFQ_OPERATION_TAB_WIDGET::get_flow() const
{
    return m_flow_scene->get_actions();
}

// Drawn anew at once: the items of the old picture point at actions that are no longer ours.
void GPFQ_OPERATION_TAB_WIDGET::release_flow(bool delete_actions)
{
    m_flow_scene->clear_actions(delete_actions);
    m_flow_scene->create_flow_chain();
}

void GPFQ_OPERATION_TAB_WIDGET::activate()
{
    if (!m_table_ready) {
        set_up_property_table();
        m_table_ready = true;
        m_current_action = nullptr;
    }
    m_flow_scene->create_flow_chain();
    center_chart();
}

void GPFQ_OPERATION_TAB_WIDGET::set_up_property_table()
{
    QTableView& table = *m_property_table;
    table.setModel(&m_property_model);
    table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    table.setSortingEnabled(false);
    table.setShowGrid(true);
    table.setWordWrap(false);
    table.setSelectionBehavior(QAbstractItemView::SelectItems);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setAlternatingRowColors(true);

    m_property_model.setColumnCount(1);
    m_property_model.setHorizontalHeaderItem(PROPERTY_COLUMN, new QStandardItem(QStringLiteral("Property")));
    m_property_model.setHorizontalHeaderItem(VALUE_COLUMN, new QStandardItem(QStringLiteral("Value")));

    table.resizeColumnToContents(PROPERTY_COLUMN);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setSelectionMode(QAbstractItemView::NoSelection);
    table.horizontalHeader()->setSectionsMovable(false);
    table.verticalHeader()->setDefaultSectionSize(table.verticalHeader()->minimumSectionSize());

    GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(false);
    m_value_checker = manager != nullptr ? manager->create_action(GFPDB_ACT_CUSTOM) : nullptr;
    table.setItemDelegateForColumn(VALUE_COLUMN, new GFPQ_PROPERTY_DELEGATE(this, m_value_checker));
}

void GPFQ_OPERATION_TAB_WIDGET::update_property_table(GFPDB_ACTION* action)
{
    clear_property_table();
    if (action == nullptr || action->get_action_type() == GFPDB_ACT_CUSTOM)
        return;
    m_current_action = action;
    for (const GFPDB_ACT_PROPERTY property : action->get_property_enum_list()) {
        // The loop marker is no property that a user edits.
        if (property != GFPDB_CUSTOM_LOOP_MARKER)
            append_property_row(*action, property);
    }
    m_property_table->resizeColumnToContents(PROPERTY_COLUMN);
}

void GPFQ_OPERATION_TAB_WIDGET::append_property_row(const GFPDB_ACTION& action, GFPDB_ACT_PROPERTY property)
{
    auto* const label = new QStandardItem(label_of(action, property));
    label->setData(static_cast<int>(property), GFPQ_PROPERTY_DELEGATE::PROPERTY_ROLE);
    label->setEditable(false);
    auto* const value = new QStandardItem(gfpq_from_local(action.get_property_value(property)));
    value->setData(static_cast<int>(property), GFPQ_PROPERTY_DELEGATE::PROPERTY_ROLE);
    value->setEnabled(action.is_property_enabled(property));
    m_property_model.appendRow({label, value});
}

void GPFQ_OPERATION_TAB_WIDGET::clear_property_table()
{
    m_property_model.removeRows(0, m_property_model.rowCount());
    m_current_action = nullptr;
}

void GPFQ_OPERATION_TAB_WIDGET::commit_open_editor()
{
    for (int row = 0; row < m_property_model.rowCount(); ++row) {
        QWidget* const editor = m_property_table->indexWidget(m_property_model.index(row, VALUE_COLUMN));
        if (editor == nullptr)
            continue;
        QAbstractItemDelegate* const delegate = m_property_table->itemDelegateForColumn(VALUE_COLUMN);
        emit delegate->commitData(editor);
        emit delegate->closeEditor(editor);
        return;
    }
}

void GPFQ_OPERATION_TAB_WIDGET::store_property_value(GFPDB_ACT_PROPERTY property, const QString& value)
{
    if (m_current_action == nullptr)
        return;
    m_current_action->set_property_value(property, gfpq_to_local(value));
    emit emit_update_flow_scene();
}

// Closing the box can give the chart the focus. A rebuild that waits for that would clear the table while one of its
// cells is being stored.
void GPFQ_OPERATION_TAB_WIDGET::warn_about_value(const QString& text)
{
    const bool pending = m_flow_scene->take_pending_refresh();
    gfpq_show_warning(text);
    if (pending)
        m_flow_scene->refresh_flow_chain();
}

// A chart that is wider than the view shows its middle, where the chain runs. Done when the page comes to the front,
// too: a flow is mostly loaded while the view is hidden and has not got its size.
void GPFQ_OPERATION_TAB_WIDGET::center_chart()
{
    QScrollBar& bar = *m_flow_view->horizontalScrollBar();
    bar.setValue((bar.minimum() + bar.maximum()) / 2);
}

// What the user stored last, or else the text, if not all of it is in sight.
QString GPFQ_OPERATION_TAB_WIDGET::tool_tip_of(const QModelIndex& cell) const
{
    const QString stored = cell.data(Qt::ToolTipRole).toString();
    const bool is_elided =
        m_property_table->sizeHintForIndex(cell).width() > m_property_table->visualRect(cell).width();
    return stored.isEmpty() && is_elided ? cell.data().toString() : stored;
}

bool GPFQ_OPERATION_TAB_WIDGET::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_property_table->viewport() || event->type() != QEvent::ToolTip)
        return QWidget::eventFilter(watched, event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QModelIndex index = m_property_table->indexAt(help.pos());
    const QString text = tool_tip_of(index).left(TOOL_TIP_MAX_LENGTH);
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help.globalPos(), plain_tool_tip(text), m_property_table->viewport(),
                           m_property_table->visualRect(index));
    return true;
}
