// What a test can ask. A question names itself in "ask"; positions and rectangles are global, in pixels of the screen.
//
//   widget   name [window]           the widget of that object name; of several the one that can be seen
//   focus                            the widget with the keyboard focus
//   item     name text [column]      the row of an item view or of a combo box's open list whose text that is
//   cell     name row column         that cell of an item view
//   rows     name                    every row of an item view or of a combo box: "rows", texts by column
//   tab      name text               that tab of a tab widget; "current" says whether it is the current one
//   menu     text                    that entry of the menu that is open last; without text all "entries"
//   menubar  text                    that entry of the active window's menu bar
//   scene    which                   "chart" or "palette", as far as it can be seen: its "items"
//   windows                          the windows that can be seen: "windows"; and "active", the title of the active one
//   pointer                          where the mouse pointer is, and the "ids" of the widgets under it; the same for a
//   drag
//
// A thing that is there has "found": true; a place has "rect" and the "id" of the widget that must be under the pointer
// for a click to reach it.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QPoint>

QJsonObject answer_question(const QJsonObject& question);

QJsonArray point_to_json(const QPoint& point);
