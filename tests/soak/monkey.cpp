// SPDX-License-Identifier: MIT
#include "monkey.h"

#include "invariants.h"
#include "soak_stand.h"

#include "dialog/gfpq_dlg.h"
#include "flow/gfpq_flow_scene.h"
#include "flow/gfpq_operation_tab_widget.h"

#include "dstr/dstr.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QHelpEvent>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QToolTip>

#include <numeric>

namespace {

constexpr int USUAL_FAMILY = 3;
// So many names of devices and templates are in play, so that they meet again.
constexpr int NAMES = 12;
constexpr int LONG_TEXT = 10000;

const Qt::Key KEYS[] = {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,    Qt::Key_Space,
                        Qt::Key_Up,  Qt::Key_Down,    Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Home,
                        Qt::Key_End, Qt::Key_PageUp,  Qt::Key_Delete, Qt::Key_F2,       Qt::Key_F4,
                        Qt::Key_F5,  Qt::Key_A,       Qt::Key_C,      Qt::Key_V,        Qt::Key_X,
                        Qt::Key_Z,   Qt::Key_Insert,  Qt::Key_Escape, Qt::Key_Backspace};
const Qt::KeyboardModifiers MODIFIERS[] = {Qt::NoModifier,      Qt::NoModifier,    Qt::NoModifier,
                                           Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier};

// clang-format off
const char* const TEXTS[] = {
    "", " ", "0", "1", "7", "16", "31", "-1", "99999999999", "0x9F", "0xC2 0x20 0x19", "C2,20,19", "0x00 0x02",
    "none", "die", "id", "image", "device", "loop", "0x00010000", "4096", "256", "'; DROP TABLE device; --",
    "<b>bold</b><img src=x>", "%1 %n %s", "a\nb", "[", "(", "*", ".*", "MX25",
    "\xC3\xA4\xC3\xB6 \xE6\x93\xA6 \xF0\x9F\x92\xBE", "\xE2\x80\xAE right to left", "<<new device>>",
    "../../escaped", "MX25L25645G"};
// clang-format on

template <typename TYPE, std::size_t COUNT>
constexpr int count_of(const TYPE (&)[COUNT])
{
    return int(COUNT);
}

} // namespace

MONKEY::MONKEY(const SOAK_STAND& stand, std::uint32_t seed) : m_stand(stand), m_random(seed), m_modals(m_random)
{
    m_kinds = kinds();
    for (const KIND& kind : m_kinds)
        m_weights.push_back(kind.weight);
}

MONKEY::~MONKEY() = default;

std::vector<MONKEY::KIND> MONKEY::kinds()
{
    return {
        {10, "click anywhere", [this] { click_anywhere(); }},
        {12, "press a key", [this] { press_any_key(); }},
        {1, "resize", [this] { resize(); }},
        {9, "select a device", [this] { select_device(); }},
        {4, "type a filter", [this] { type_filter(); }},
        {7, "type into a field", [this] { type_into_field(); }},
        {4, "change a combo", [this] { change_combo(); }},
        {2, "toggle the template box", [this] { toggle_template(); }},
        {8, "enter a device", [this] { enter_device(); }},
        {4, "apply", [this] { click_button("m_apply_button"); }},
        {2, "delete", [this] { click_button("m_delete_button"); }},
        {2, "edit the templates", [this] { click_button("m_edit_template_button"); }},
        {1, "browse", [this] { click_button("m_browse_button"); }},
        {1, "ok", [this] { click_button("m_ok_button"); }},
        {1, "close", [this] { close(); }},
        {2, "choose a directory", [this] { choose_directory(); }},
        {8, "change the page", [this] { change_page(); }},
        {14, "click the chart", [this] { click_chart(); }},
        {8, "open the chart's menu", [this] { open_chart_menu(); }},
        {10, "press a key in the chart", [this] { press_chart_key(); }},
        {8, "drop on the chart", [this] { drop_on_chart(); }},
        {12, "edit a property", [this] { edit_property(); }},
        {2, "hover", [this] { hover(); }},
    };
}

const GFPQ_DLG* MONKEY::dialog() const
{
    return m_dialog && m_dialog->isVisible() ? m_dialog.get() : nullptr;
}

int MONKEY::any(int count)
{
    return int(m_random() % std::uint32_t(count));
}

void MONKEY::act()
{
    if (dialog() == nullptr)
        open();
    std::discrete_distribution<std::size_t> choice(m_weights.begin(), m_weights.end());
    do_one(m_kinds[choice(m_random)]);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void MONKEY::do_one(const KIND& kind)
{
    m_last_act = QLatin1String(kind.name);
    ++m_acts[m_last_act];
    leave_popups();
    kind.act();
}

// The list of a combo box, a line edit's own menu: a window that is no modal one, and gets the clicks of all others.
void MONKEY::leave_popups()
{
    while (QWidget* const popup = QApplication::activePopupWidget()) {
        QTest::keyClick(popup, one_in(2) ? Qt::Key_Return : Qt::Key_Escape);
        if (QApplication::activePopupWidget() == popup)
            popup->close();
        QCoreApplication::processEvents();
    }
}

// Mostly as a host opens it for a serial flash, now and then for anything.
void MONKEY::open()
{
    const bool is_usual = !one_in(4);
    const std::vector<int> families = dstr_get_families();
    const int family = is_usual ? USUAL_FAMILY : families[std::size_t(any(int(families.size())))];
    const int scheme =
        is_usual ? (one_in(2) ? PGMIO_ACTIVE_SERIAL : PGMIO_ACTIVE_SERIAL_X4) : any(PGMIO_CONFIG_SCHEME_COUNT);
    const std::map<int, std::vector<int>> everything;
    const std::map<int, std::vector<int>> little = {{USUAL_FAMILY, {PGMIO_ACTIVE_SERIAL, PGMIO_ACTIVE_SERIAL_X4}}};
    m_dialog.reset();
    m_dialog = std::make_unique<GFPQ_DLG>(nullptr, family, scheme, any_name().toStdString(), !one_in(10), !one_in(10),
                                          !one_in(15), one_in(4) ? little : everything);
    m_dialog->show();
    m_dialog->activateWindow();
    QCoreApplication::processEvents();
}

void MONKEY::click_anywhere()
{
    const QPoint pos(any(m_dialog->width()), any(m_dialog->height()));
    QWidget* const target = m_dialog->childAt(pos);
    if (target == nullptr)
        return;
    note(QLatin1String(target->metaObject()->className()) + QLatin1Char(' ') + target->objectName());
    const QPoint at = target->mapFrom(m_dialog.get(), pos);
    const Qt::KeyboardModifiers modifiers = MODIFIERS[any(count_of(MODIFIERS))];
    if (one_in(6))
        QTest::mouseDClick(target, Qt::LeftButton, modifiers, at);
    else
        QTest::mouseClick(target, one_in(6) ? Qt::RightButton : Qt::LeftButton, modifiers, at);
}

void MONKEY::press_any_key()
{
    QWidget* const focused = m_dialog->focusWidget();
    const Qt::Key key = KEYS[any(count_of(KEYS))];
    // Closing is a thing of its own; here it would end most rounds.
    if (key == Qt::Key_Escape && !one_in(10))
        return;
    note(QString::number(key));
    QTest::keyClick(focused != nullptr ? focused : m_dialog.get(), key, MODIFIERS[any(count_of(MODIFIERS))]);
}

void MONKEY::resize()
{
    m_dialog->resize(300 + any(900), 200 + any(800));
}

void MONKEY::select_device()
{
    auto* const table = m_dialog->findChild<QTableView*>(QStringLiteral("m_device_table_view"));
    const int rows = table->model()->rowCount();
    // The user's own devices stand at the top.
    if (rows > 0)
        select_row(one_in(2) ? any(NAMES) : any(rows));
}

void MONKEY::select_row(int row)
{
    auto* const table = m_dialog->findChild<QTableView*>(QStringLiteral("m_device_table_view"));
    const QModelIndex index = table->model()->index(row, 0);
    if (!index.isValid())
        return;
    note(index.data().toString());
    table->scrollTo(index);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, table->visualRect(index).center());
}

void MONKEY::type_filter()
{
    fill("m_filter_line_edit", one_in(2) ? QString() : any_text().left(50));
}

void MONKEY::type_into_field()
{
    static const char* const FIELDS[] = {"m_device_name_edit", "m_device_id_edit",      "m_total_die_edit",
                                         "m_clock_cycle_edit", "m_clock_cycle_edit_x4", "m_template_name_edit"};
    const char* const field = FIELDS[any(count_of(FIELDS))];
    const bool is_name = field == FIELDS[0] || field == FIELDS[5];
    fill(field, is_name && one_in(2) ? any_name() : any_text());
    if (one_in(2))
        QTest::keyClick(line_edit(field), one_in(2) ? Qt::Key_Return : Qt::Key_Tab);
}

void MONKEY::change_combo()
{
    const QList<QComboBox*> combos = m_dialog->findChildren<QComboBox*>();
    QComboBox* const combo = combos[any(combos.size())];
    note(combo->objectName());
    if (!combo->isEnabled() || !combo->isVisible())
        return;
    combo->setFocus();
    for (int step = any(4); step >= 0; --step)
        QTest::keyClick(combo, one_in(2) ? Qt::Key_Down : Qt::Key_Up);
}

void MONKEY::toggle_template()
{
    auto* const box = m_dialog->findChild<QCheckBox*>(QStringLiteral("m_save_template_check"));
    if (box->isEnabled() && box->isVisible())
        box->click();
}

// A device that can be saved, so that Apply has something to do.
void MONKEY::enter_device()
{
    show_page(0);
    fill("m_filter_line_edit", QString());
    select_row(one_in(2) ? 0 : any(NAMES));
    fill("m_device_name_edit", any_name());
    fill("m_device_id_edit", QStringLiteral("0xC2 0x20 0x%1").arg(any(256), 2, 16, QLatin1Char('0')));
    fill("m_total_die_edit", QString::number(1 + any(16)));
    fill("m_clock_cycle_edit", QString::number(any(16)));
    fill("m_clock_cycle_edit_x4", QString::number(any(32)));
    fill("m_template_name_edit", any_name());
    if (!one_in(4))
        click_button("m_apply_button");
}

void MONKEY::click_button(const char* name)
{
    auto* const button = m_dialog->findChild<QPushButton*>(QLatin1String(name));
    note(button->text());
    if (button->isEnabled() && button->isVisible())
        QTest::mouseClick(button, Qt::LeftButton);
}

void MONKEY::close()
{
    if (one_in(2))
        click_button("m_cancel_button");
    else
        m_dialog->close();
}

void MONKEY::choose_directory()
{
    QStringList directories = m_stand.database_directories();
    directories << any_text() << QStringLiteral("/nowhere/") << m_stand.path(QStringLiteral("one/gfpdb.sqlite"));
    fill("m_directory_edit", directories[any(directories.size())]);
    if (line_edit("m_directory_edit")->isEnabled())
        QTest::keyClick(line_edit("m_directory_edit"), one_in(2) ? Qt::Key_Return : Qt::Key_Tab);
}

void MONKEY::change_page()
{
    show_page(any(1 + GFPDB_OPERATION_COUNT));
}

void MONKEY::show_page(int index)
{
    auto* const pages = m_dialog->findChild<QTabWidget*>(QStringLiteral("m_prog_flows_tab_widget"));
    note(QLatin1String("page ") + QString::number(index));
    if (pages->isTabEnabled(index))
        QTest::mouseClick(pages->tabBar(), Qt::LeftButton, Qt::NoModifier, pages->tabBar()->tabRect(index).center());
}

GPFQ_OPERATION_TAB_WIDGET* MONKEY::page() const
{
    const auto* const pages = m_dialog->findChild<QTabWidget*>(QStringLiteral("m_prog_flows_tab_widget"));
    return qobject_cast<GPFQ_OPERATION_TAB_WIDGET*>(pages->currentWidget());
}

// Null when the device page is shown.
QGraphicsView* MONKEY::chart() const
{
    return page() == nullptr ? nullptr : page()->findChild<GFPQ_FLOW_SCENE*>()->views().value(0);
}

// Mostly on a shape or an arrow.
QPoint MONKEY::chart_point()
{
    QGraphicsView* const view = chart();
    const QList<QGraphicsItem*> items = view->scene()->items();
    if (one_in(5) || items.isEmpty())
        return {any(view->viewport()->width()), any(view->viewport()->height())};
    const QGraphicsItem* const item = items[any(items.size())];
    const QPointF center = item->sceneBoundingRect().center();
    view->centerOn(center);
    return view->mapFromScene(center);
}

void MONKEY::click_chart()
{
    if (chart() == nullptr)
        return change_page();
    const QPoint pos = chart_point();
    QTest::mouseClick(chart()->viewport(), one_in(8) ? Qt::RightButton : Qt::LeftButton,
                      one_in(3) ? Qt::ControlModifier : Qt::NoModifier, pos);
}

void MONKEY::open_chart_menu()
{
    if (chart() == nullptr)
        return change_page();
    const QPoint pos = chart_point();
    QContextMenuEvent event(one_in(5) ? QContextMenuEvent::Keyboard : QContextMenuEvent::Mouse, pos,
                            chart()->viewport()->mapToGlobal(pos));
    QApplication::sendEvent(chart()->viewport(), &event);
}

void MONKEY::press_chart_key()
{
    if (chart() == nullptr)
        return change_page();
    chart()->setFocus();
    switch (any(6)) {
    case 0:
        return QTest::keyClick(chart(), Qt::Key_Delete);
    case 1:
        return QTest::keyClick(chart(), Qt::Key_F5);
    case 2:
    case 3:
        return QTest::keyClick(chart(), Qt::Key_C, Qt::ControlModifier);
    default:
        return QTest::keyClick(chart(), Qt::Key_V, Qt::ControlModifier);
    }
}

void MONKEY::drop_on_chart()
{
    if (chart() == nullptr)
        return change_page();
    static const char* const DROPPED[] = {"Write Register", "Read Register", "Write Data",    "Read Data",
                                          "Erase",          "Custom",        "a foreign text"};
    const QPoint pos = chart_point();
    QWidget* const viewport = chart()->viewport();
    QMimeData data;
    data.setText(QLatin1String(DROPPED[any(count_of(DROPPED))]));
    note(data.text());
    QDragEnterEvent enter(pos, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &enter);
    QDragMoveEvent move(pos, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &move);
    if (move.isAccepted() && !one_in(8)) {
        QDropEvent drop(pos, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &drop);
    } else {
        QDragLeaveEvent leave;
        QApplication::sendEvent(viewport, &leave);
    }
}

void MONKEY::edit_property()
{
    if (page() == nullptr)
        return change_page();
    auto* const table = page()->findChild<QTableView*>(QStringLiteral("m_property_table"));
    if (table->model() == nullptr || table->model()->rowCount() == 0)
        return click_chart();
    const QModelIndex index = table->model()->index(any(table->model()->rowCount()), one_in(6) ? 0 : 1);
    table->scrollTo(index);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, table->visualRect(index).center());
    QWidget* const editor = table->indexWidget(index);
    if (editor == nullptr)
        return;
    const QPointer<QWidget> guard(editor);
    if (qobject_cast<QLineEdit*>(editor) != nullptr)
        type(editor, one_in(4) ? any_text() : QLatin1String(TEXTS[any(count_of(TEXTS))]));
    else
        QTest::keyClick(editor, Qt::Key_Down);
    static const Qt::Key ENDINGS[] = {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape};
    // Or leave it open, for whatever comes next.
    if (!guard.isNull() && !one_in(4))
        QTest::keyClick(editor, ENDINGS[any(count_of(ENDINGS))]);
}

void MONKEY::hover()
{
    const QPoint pos(any(m_dialog->width()), any(m_dialog->height()));
    QWidget* const target = m_dialog->childAt(pos);
    if (target == nullptr)
        return;
    const QPoint at = target->mapFrom(m_dialog.get(), pos);
    QTest::mouseMove(target, at);
    QHelpEvent help(QEvent::ToolTip, at, target->mapToGlobal(at));
    QApplication::sendEvent(target, &help);
    QToolTip::hideText();
}

QString MONKEY::any_text()
{
    if (one_in(20))
        return QString(LONG_TEXT, QLatin1Char('x'));
    return QString::fromUtf8(TEXTS[any(count_of(TEXTS))]);
}

QString MONKEY::any_name()
{
    return (one_in(4) ? QStringLiteral("Template %1") : QStringLiteral("Device %1")).arg(any(NAMES));
}

QLineEdit* MONKEY::line_edit(const char* name) const
{
    return m_dialog->findChild<QLineEdit*>(QLatin1String(name));
}

void MONKEY::fill(const char* name, const QString& text)
{
    QLineEdit* const edit = line_edit(name);
    note(QLatin1String(name) + QLatin1Char(' ') + text.left(40));
    if (!edit->isEnabled() || !edit->isVisible())
        return;
    edit->setFocus();
    edit->selectAll();
    type(edit, text);
}

// As the keyboard does it, or all at once as from the clipboard.
void MONKEY::type(QWidget* widget, const QString& text)
{
    auto* const edit = qobject_cast<QLineEdit*>(widget);
    if (text.isEmpty())
        edit->del();
    else
        edit->insert(text);
}
