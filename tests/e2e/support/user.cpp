// SPDX-License-Identifier: MIT
#include "user.h"

#include "deadline.h"
#include "host_session.h"
#include "screen.h"

#include <QJsonDocument>
#include <QRect>
#include <QTest>

namespace {

const QString LEFT = QStringLiteral("1");
const QString RIGHT = QStringLiteral("3");
const QString WHEEL_UP = QStringLiteral("4");
const QString WHEEL_DOWN = QStringLiteral("5");
const QString CLICK = QStringLiteral("click");

// Further than any start distance of a drag.
constexpr int PULL = 24;

const QJsonObject POINTER = {{QStringLiteral("ask"), QStringLiteral("pointer")}};

QRect rect_of(const QJsonObject& place)
{
    const QJsonArray rect = place.value(QLatin1String("rect")).toArray();
    return QRect(rect.at(0).toInt(), rect.at(1).toInt(), rect.at(2).toInt(), rect.at(3).toInt());
}

QPoint point_of(const QJsonValue& value)
{
    return QPoint(value.toArray().at(0).toInt(), value.toArray().at(1).toInt());
}

bool can_be_used(const QJsonObject& place)
{
    return place.value(QLatin1String("found")).toBool() && place.value(QLatin1String("visible")).toBool(true) &&
           place.value(QLatin1String("enabled")).toBool(true) && !rect_of(place).isEmpty();
}

QStringList move_command(const QPoint& position)
{
    return {QStringLiteral("mousemove"), QString::number(position.x()), QString::number(position.y())};
}

bool complain(const char* what, const QJsonObject& place)
{
    qWarning("%s: %s", what, QJsonDocument(place).toJson(QJsonDocument::Compact).constData());
    return false;
}

QJsonObject question(const char* what, QJsonObject details)
{
    details.insert(QStringLiteral("ask"), QLatin1String(what));
    return details;
}

} // namespace

QJsonObject widget_called(const char* name)
{
    return question("widget", {{QStringLiteral("name"), QLatin1String(name)}});
}

QJsonObject item_in(const char* view, const QString& text, int column)
{
    return question("item", {{QStringLiteral("name"), QLatin1String(view)},
                             {QStringLiteral("text"), text},
                             {QStringLiteral("column"), column}});
}

QJsonObject cell_in(const char* view, int row, int column)
{
    return question("cell", {{QStringLiteral("name"), QLatin1String(view)},
                             {QStringLiteral("row"), row},
                             {QStringLiteral("column"), column}});
}

QJsonObject tab_called(const QString& text)
{
    return question(
        "tab", {{QStringLiteral("name"), QStringLiteral("m_prog_flows_tab_widget")}, {QStringLiteral("text"), text}});
}

QJsonObject menu_entry(const QString& text)
{
    return question("menu", {{QStringLiteral("text"), text}});
}

QJsonObject menubar_entry(const QString& text)
{
    return question("menubar", {{QStringLiteral("text"), text}});
}

QJsonObject block(const QString& first_line, int nth)
{
    return question("block", {{QStringLiteral("text"), first_line}, {QStringLiteral("nth"), nth}});
}

QJsonObject arrow(int index)
{
    return question("arrow", {{QStringLiteral("index"), index}});
}

QJsonObject palette_entry(const QString& text)
{
    return question("palette", {{QStringLiteral("text"), text}});
}

QJsonObject widget_with_focus()
{
    return widget_called("");
}

USER::USER(const SCREEN& screen, HOST_SESSION& session) : m_screen(screen), m_session(session) {}

bool USER::mouse(const QStringList& arguments) const
{
    return m_screen.run(QStringLiteral("xdotool"), arguments);
}

bool USER::move_to(const QJsonObject& place)
{
    QJsonObject found;
    QJsonObject pointer;
    // A window that was just opened is still being moved into its place, so the place is looked at again afterwards.
    const auto is_over_it = [&] {
        found = m_session.ask(place);
        if (!can_be_used(found) || !mouse(move_command(rect_of(found).center())))
            return false;
        pointer = m_session.ask(POINTER);
        return point_of(pointer.value(QLatin1String("at"))) == rect_of(found).center() &&
               pointer.value(QLatin1String("ids")).toArray().contains(found.value(QLatin1String("id"))) &&
               rect_of(m_session.ask(place)) == rect_of(found);
    };
    if (QTest::qWaitFor(is_over_it, DEADLINE_MS))
        return true;
    complain("looked for", place);
    complain("found", found);
    return complain("pointer", pointer);
}

bool USER::click_with(const QJsonObject& place, const QStringList& arguments)
{
    return move_to(place) && (mouse(arguments) || complain("cannot click", place));
}

bool USER::click(const QJsonObject& place)
{
    return click_with(place, {CLICK, LEFT});
}

bool USER::double_click(const QJsonObject& place)
{
    return click_with(place, {CLICK, QStringLiteral("--repeat"), QStringLiteral("2"), QStringLiteral("--delay"),
                              QStringLiteral("20"), LEFT});
}

bool USER::right_click(const QJsonObject& place)
{
    return click_with(place, {CLICK, RIGHT});
}

bool USER::control_click(const QJsonObject& place)
{
    return click_with(place, {QStringLiteral("keydown"), QStringLiteral("Control_L"), CLICK, LEFT,
                              QStringLiteral("keyup"), QStringLiteral("Control_L")});
}

bool USER::reveal(const QJsonObject& place)
{
    const QJsonObject view = question("view", {});
    QJsonObject found;
    // Each turn is waited for, so that no turn too many is on its way when the place appears.
    const auto is_visible = [&] {
        found = m_session.ask(place);
        if (found.value(QLatin1String("visible")).toBool())
            return true;
        const QRect rect = rect_of(found);
        const bool is_below = rect.center().y() > rect_of(m_session.ask(view)).center().y();
        return click_with(view, {CLICK, is_below ? WHEEL_DOWN : WHEEL_UP}) &&
               m_session.wait_for(place, [&](const QJsonObject& answer) { return rect_of(answer) != rect; }) && false;
    };
    return QTest::qWaitFor(is_visible, DEADLINE_MS) || complain("cannot be revealed", found);
}

bool USER::drag(const QJsonObject& from, const QJsonObject& to)
{
    if (!click_with(from, {QStringLiteral("mousedown"), LEFT}))
        return false;
    const QPoint start = rect_of(m_session.ask(from)).center();
    mouse(move_command(start + QPoint(PULL / 2, 0)));
    mouse(move_command(start + QPoint(PULL, 0)));
    const auto is_dragging = [](const QJsonObject& answer) { return answer.value(QLatin1String("dragging")).toBool(); };
    bool done = m_session.wait_for(POINTER, is_dragging);

    // The last step comes from one pixel beside, so that there is a move to be noticed over the place itself.
    const auto is_over_it = [&] {
        const QPoint centre = rect_of(m_session.ask(to)).center();
        mouse(move_command(centre + QPoint(1, 1)));
        mouse(move_command(centre));
        return point_of(m_session.ask(POINTER).value(QLatin1String("drag_at"))) == centre;
    };
    done = done && can_be_used(m_session.ask(to)) && QTest::qWaitFor(is_over_it, DEADLINE_MS);

    mouse({QStringLiteral("mouseup"), LEFT});
    const auto has_ended = [&](const QJsonObject& answer) { return !is_dragging(answer); };
    return (done && m_session.wait_for(POINTER, has_ended)) || complain("cannot drag to", to);
}

bool USER::press(const QString& key)
{
    return m_screen.run(QStringLiteral("xdotool"), {QStringLiteral("key"), key});
}

bool USER::type(const QString& text)
{
    return m_screen.run(QStringLiteral("xdotool"), {QStringLiteral("type"), QStringLiteral("--"), text});
}

bool USER::fill(const char* field, const QString& text)
{
    const QJsonObject place = widget_called(field);
    const auto has_focus = [](const QJsonObject& answer) { return answer.value(QLatin1String("focused")).toBool(); };
    const auto shows_text = [&text](const QJsonObject& answer) {
        return answer.value(QLatin1String("text")).toString() == text;
    };
    return click(place) && m_session.wait_for(place, has_focus) && press(QStringLiteral("ctrl+a")) && type(text) &&
           m_session.wait_for(place, shows_text);
}

bool USER::choose(const char* combo, const QString& text)
{
    const auto is_current = [&text](const QJsonObject& answer) {
        return answer.value(QLatin1String("currentText")).toString() == text;
    };
    // For a moment the list takes a click that is near the one that opened it for a part of that, until the pointer has
    // gone some way.
    const QStringList aside{QStringLiteral("mousemove_relative"), QStringLiteral("--sync"), QStringLiteral("30"),
                            QStringLiteral("0")};
    return click(widget_called(combo)) && move_to(item_in(combo, text)) && mouse(aside) &&
           click(item_in(combo, text)) && m_session.wait_for(widget_called(combo), is_current);
}

bool USER::open_property_editor(const QString& label, const char* editor_class)
{
    constexpr const char* TABLE = "m_property_table";
    const auto is_there = [](const QJsonObject& answer) { return answer.value(QLatin1String("found")).toBool(); };
    const auto is_editor = [editor_class](const QJsonObject& answer) {
        return answer.value(QLatin1String("class")) == QLatin1String(editor_class);
    };
    if (!m_session.wait_for(item_in(TABLE, label), is_there))
        return false;
    const int row = m_session.ask(item_in(TABLE, label)).value(QLatin1String("row")).toInt();
    return double_click(cell_in(TABLE, row, 1)) && m_session.wait_for(widget_with_focus(), is_editor);
}
