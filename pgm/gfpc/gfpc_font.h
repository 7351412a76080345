// SPDX-License-Identifier: MIT

// The font of what is written beside the charts.
#pragma once

#include <QApplication>
#include <QFont>
#include <QFontInfo>

// The application's font, `size` times as large: the charts have it, too. Measured in units of the charts, whatever the
// resolution of the paper is.
inline QFont gfpc_font(double size, QFont::Weight weight = QFont::Normal)
{
    QFont font = QApplication::font();
    font.setPixelSize(qRound(QFontInfo(font).pixelSize() * size));
    font.setWeight(weight);
    // Letters that are joined into one sign are not found by who searches for them.
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}
