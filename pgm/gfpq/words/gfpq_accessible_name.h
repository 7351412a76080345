// SPDX-License-Identifier: MIT

// The names of widgets for assistive technology.
#pragma once

#include <QComboBox>
#include <QString>

// The text of a label as a name: without blanks around it and without a colon, also a full-width one, at its end.
inline QString gfpq_accessible_name(const QString& label)
{
    QString name = label.trimmed();
    if (name.endsWith(QLatin1Char(':')) || name.endsWith(QChar(0xFF1A)))
        name.chop(1);
    return name.trimmed();
}

// Names `widget` after its label.
inline void gfpq_name_after(QWidget& widget, const QString& label)
{
    const QString name = gfpq_accessible_name(label);
    widget.setAccessibleName(name);
    // For some assistive technology the name of a combo box is its current text.
    if (qobject_cast<QComboBox*>(&widget) != nullptr)
        widget.setAccessibleDescription(name);
}
