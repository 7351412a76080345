// SPDX-License-Identifier: MIT

// Tool tips with texts of others.
#pragma once

#include <QString>

// A tool tip that shows `text` as it is, also when it looks like markup; long ones are wrapped. Empty for an empty
// text.
inline QString plain_tool_tip(const QString& text)
{
    return text.isEmpty() ? QString() : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}
