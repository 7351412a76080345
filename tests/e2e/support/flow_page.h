// SPDX-License-Identifier: MIT

// A page of the flow editor, as a user works with it.
#pragma once

#include "user.h"

#include <QJsonArray>
#include <QStringList>

class HOST_SESSION;

class FLOW_PAGE
{
public:
    FLOW_PAGE(HOST_SESSION& session, USER& user);

    // Goes to the page with the mouse and waits until its chart is there.
    bool open(const QString& title);

    // The texts of the chart's shapes between Start and End, from top to bottom.
    QStringList texts();
    // Waits until the picture shows `expected`.
    bool shows(const QStringList& expected);
    // Waits until the picture shows `expected`, then has it drawn again from the list of actions and looks again:
    // picture and list agree.
    bool agrees_on(const QStringList& expected);

    bool click(const QJsonObject& place);
    bool control_click(const QJsonObject& place);
    // Opens the context menu at `place` and waits until it is there.
    bool open_menu(const QJsonObject& place);
    // The entries of the menu that is open, "-" for a separator.
    QStringList menu_entries();
    // Drags the palette's entry `letters` onto arrow number `index`.
    bool drop(const QString& letters, int index);

    // Selects the block and waits until its properties are shown.
    bool select(const QJsonObject& block);
    bool wait_for_selection(const QJsonObject& block, bool selected);

private:
    HOST_SESSION& m_session;
    USER& m_user;
};
