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
    // Turns the wheel over `place`, towards the end or the beginning.
    bool turn_wheel(const QJsonObject& place, bool down);

    // Keyboard: to whatever has the focus. Key names as X knows them: "Return", "ctrl+c".
    bool press(const QString& key);
    bool type(const QString& text);

    // Clicks into the field, replaces its text by `text` and waits until it shows that.
    bool fill(const char* field, const QString& text);
    // Opens the combo box, clicks the entry and waits until it is the current one.
    bool choose(const char* combo, const QString& text);

private:
    bool mouse(const QStringList& arguments) const;
    bool click_with(const QJsonObject& place, const QStringList& arguments);

    const SCREEN& m_screen;
    HOST_SESSION& m_session;
};
