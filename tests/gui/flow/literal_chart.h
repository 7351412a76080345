// SPDX-License-Identifier: MIT

// A second drawing of a flow chart, made from the plain steps with plain items, to compare the real one with.
#pragma once

#include <QGraphicsScene>
#include <QStringList>

#include <string>
#include <vector>

// One action of the chart to draw: its type, the lines of its text (label, value), and property 39.
struct LITERAL_ACTION
{
    int type = 0;
    std::vector<std::string> lines;
    std::string marker;
};

// Draws `actions` into the empty scene `scene`.
void draw_literal_chart(QGraphicsScene& scene, const std::vector<LITERAL_ACTION>& actions, bool editable);

// Everything about the items of a scene that can be seen or met with the mouse, one line an item, parents before their
// children; the scene rectangle comes first. Numbers have six decimals.
QStringList describe_items(const QGraphicsScene& scene);
