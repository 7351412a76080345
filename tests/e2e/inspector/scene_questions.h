// What a test can ask about the pictures of the flow editor.
#pragma once

#include <QJsonObject>

// "which" is "chart" or "palette" of the page that can be seen. "items" holds the top-level items and their children
// from top to bottom: "kind" (rectangle, ellipse, polygon, text), "text" (its own, or that of its first text child),
// "rect", "selected", "accepts_drops", "top_level", "visible" (its centre lies in the view). "view" is the place of the
// view.
QJsonObject scene_question(const QJsonObject& question);
