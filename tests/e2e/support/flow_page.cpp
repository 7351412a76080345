// SPDX-License-Identifier: MIT
#include "flow_page.h"

#include "host_session.h"

#include <algorithm>

namespace {

const QJsonObject CHART = {{QStringLiteral("ask"), QStringLiteral("chart")}};
const QJsonObject MENU = {{QStringLiteral("ask"), QStringLiteral("menu")}};
const QString FIRST_SHAPE = QStringLiteral("Start");
const QString LAST_SHAPE = QStringLiteral("End");

bool is_found(const QJsonObject& answer)
{
    return answer.value(QLatin1String("found")).toBool();
}

// Without Start and End, which must be there.
QStringList texts_between(const QJsonObject& answer)
{
    QStringList texts;
    for (const QJsonValue& text : answer.value(QLatin1String("texts")).toArray())
        texts.append(text.toString());
    if (texts.size() < 2 || texts.first() != FIRST_SHAPE || texts.last() != LAST_SHAPE)
        return {QStringLiteral("no whole chart: ") + texts.join(QStringLiteral(" | "))};
    return texts.mid(1, texts.size() - 2);
}

} // namespace

FLOW_PAGE::FLOW_PAGE(HOST_SESSION& session, USER& user) : m_session(session), m_user(user) {}

bool FLOW_PAGE::open(const QString& title)
{
    const auto is_current = [](const QJsonObject& answer) { return answer.value(QLatin1String("current")).toBool(); };
    return m_user.click(tab_called(title)) && m_session.wait_for(tab_called(title), is_current) &&
           m_session.wait_for(CHART, is_found);
}

QStringList FLOW_PAGE::texts()
{
    return texts_between(m_session.ask(CHART));
}

bool FLOW_PAGE::shows(const QStringList& expected)
{
    if (m_session.wait_for(CHART, [&](const QJsonObject& answer) { return texts_between(answer) == expected; }))
        return true;
    qWarning("expected: %s", qUtf8Printable(expected.join(QStringLiteral(" | "))));
    return false;
}

// A block loses its selection when the chart is drawn again: that is how the end of the refresh is noticed.
bool FLOW_PAGE::agrees_on(const QStringList& expected)
{
    const auto is_action = [](const QString& text) { return text.startsWith(QLatin1String("Name:")); };
    const auto action = std::find_if(expected.begin(), expected.end(), is_action);
    if (!shows(expected) || action == expected.end())
        return false;
    const QJsonObject any_block = block(*action);
    return select(any_block) && m_user.press(QStringLiteral("F5")) && wait_for_selection(any_block, false) &&
           shows(expected);
}

bool FLOW_PAGE::click(const QJsonObject& place)
{
    return m_user.reveal(place) && m_user.click(place);
}

bool FLOW_PAGE::control_click(const QJsonObject& place)
{
    return m_user.reveal(place) && m_user.control_click(place);
}

bool FLOW_PAGE::open_menu(const QJsonObject& place)
{
    return m_user.reveal(place) && m_user.right_click(place) && m_session.wait_for(MENU, is_found);
}

QStringList FLOW_PAGE::menu_entries()
{
    QStringList texts;
    for (const QJsonValue& entry : m_session.ask(MENU).value(QLatin1String("entries")).toArray())
        texts.append(entry.toObject().value(QLatin1String("text")).toString());
    return texts;
}

bool FLOW_PAGE::drop(const QString& letters, int index)
{
    return m_user.reveal(arrow(index)) && m_user.drag(palette_entry(letters), arrow(index));
}

bool FLOW_PAGE::select(const QJsonObject& block)
{
    return click(block) && wait_for_selection(block, true);
}

bool FLOW_PAGE::wait_for_selection(const QJsonObject& block, bool selected)
{
    return m_session.wait_for(block, [selected](const QJsonObject& answer) {
        return is_found(answer) && answer.value(QLatin1String("selected")).toBool() == selected;
    });
}
