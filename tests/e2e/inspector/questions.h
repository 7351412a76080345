// SPDX-License-Identifier: MIT

// What a test can ask. A question names itself in "ask"; positions and rectangles are global, in pixels of the screen.
//
//   widget   name                    the widget of that object name; of several the one that can be seen. An empty name
//                                    stands for the widget with the keyboard focus, here and below
//   item     name text [column]      the row of an item view or of a combo box's open list whose text that is
//   cell     name row column         that cell of an item view
//   rows     name                    every row of an item view or of a combo box: "rows", texts by column
//   tab      name text               that tab of a tab widget; "current" says whether it is the current one
//   menu     text                    that entry of the menu that is open last; without text all "entries"
//   menubar  text                    that entry of the active window's menu bar
//   chart                            the flow chart that can be seen: "texts"
//   block    text [nth]              a shape of it
//   arrow    index                   an arrow of it
//   palette  text                    an entry of the action palette beside it
//   view                             the part of the chart that can be seen
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
