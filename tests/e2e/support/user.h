// SPDX-License-Identifier: MIT

// The user: a mouse and a keyboard on the screen, aimed at what the inspector sees.
//
// A place is a question to the inspector that is answered with a rectangle; the helpers below make them. Nothing is
// pressed before the pointer is over the place, the place has stopped moving and it can be used. Every function is
// false, with the reason printed, when that does not come about.
#pragma once

#include <QJsonObject>
#include <QPoint>
#include <QString>

class HOST_SESSION;
class SCREEN;

// Places.
QJsonObject widget_called(const char* name);
QJsonObject item_in(const char* view, const QString& text, int column = 0);
QJsonObject cell_in(const char* view, int row, int column);
QJsonObject tab_called(const QString& text);
QJsonObject menu_entry(const QString& text);
QJsonObject menubar_entry(const QString& text);
// The shape of the flow chart with that first line; of several the one number `nth` from the top.
QJsonObject block(const QString& first_line, int nth = 0);
// The arrow number `index` of the flow chart from the top: what is inserted there becomes action number `index`.
QJsonObject arrow(int index);
QJsonObject palette_entry(const QString& text);
// The editor that is open in a table.
QJsonObject widget_with_focus();

class USER
{
public:
    USER(const SCREEN& screen, HOST_SESSION& session);

    // Mouse.
    bool move_to(const QJsonObject& place);
    bool click(const QJsonObject& place);
    bool double_click(const QJsonObject& place);
    bool right_click(const QJsonObject& place);
    // With Control held.
    bool control_click(const QJsonObject& place);
    // Presses at `from`, pulls until a drag is on its way, and lets go over `to`.
    bool drag(const QJsonObject& from, const QJsonObject& to);
    // Turns the wheel over the flow chart until `place` of it can be seen.
    bool reveal(const QJsonObject& place);

    // Keyboard: to whatever has the focus. Key names as X knows them: "Return", "ctrl+c".
    bool press(const QString& key);
    bool type(const QString& text);

    // Clicks into the field, replaces its text by `text` and waits until it shows that.
    bool fill(const char* field, const QString& text);
    // Opens the combo box (that with the focus for an empty name), clicks the entry and waits until it is the current
    // one.
    bool choose(const char* combo, const QString& text);
    // Double-clicks the value beside `label` in the property table of the page, and waits until its editor is there.
    bool open_property_editor(const QString& label, const char* editor_class);

private:
    bool mouse(const QStringList& arguments) const;
    bool click_with(const QJsonObject& place, const QStringList& arguments);

    const SCREEN& m_screen;
    HOST_SESSION& m_session;
};
