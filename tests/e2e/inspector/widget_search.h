// SPDX-License-Identifier: MIT

// Finding widgets, and saying where something is.
#pragma once

#include <QJsonObject>
#include <QRect>
#include <QString>

class QWidget;

// The widget called `name`; of several one that can be seen, of those one in the active modal window. Null when there
// is none.
QWidget* find_widget(const QString& name);

// Tells one widget from every other one as long as both live.
QString widget_id(const QWidget& widget);

// {"found", "id", "rect"} of the part `rect` of `widget`.
QJsonObject place_to_json(const QWidget& widget, const QRect& rect);
