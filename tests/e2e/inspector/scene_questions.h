// SPDX-License-Identifier: MIT

// What a test can ask about the pictures of the flow editor.
#pragma once

#include <QJsonObject>

// "texts": the shapes of the chart from top to bottom, each with the text in it; arrows and labels beside are left out.
QJsonObject chart_question(const QJsonObject& question);

// The shape of the chart whose text is "text" or opens with it and a line break; of several the one number "nth" from
// the top.
QJsonObject block_question(const QJsonObject& question);

// The arrow of the chart that takes drops and is number "index" from the top.
QJsonObject arrow_question(const QJsonObject& question);

// The entry "text" of the action palette.
QJsonObject palette_question(const QJsonObject& question);

// The part of the chart that can be seen.
QJsonObject view_question(const QJsonObject& question);
