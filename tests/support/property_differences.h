// SPDX-License-Identifier: MIT

// In which properties two objects of one class differ.
#pragma once

#include <QDebug>
#include <QMetaProperty>
#include <QStringList>

// "object property" for each property of `object` that has another value in `other`, without those of `left_out`. The
// object is called by its name, or else by its class.
inline QStringList property_differences(const QObject& object, const QObject& other, const QStringList& left_out)
{
    const auto as_text = [](const QVariant& value) {
        QString text;
        QDebug(&text).nospace() << value;
        return text;
    };
    const QMetaObject& kind = *object.metaObject();
    const QString name = object.objectName().isEmpty() ? QLatin1String(kind.className()) : object.objectName();
    QStringList differences;
    for (int index = 0; index < kind.propertyCount(); ++index) {
        const char* const property = kind.property(index).name();
        if (!left_out.contains(QLatin1String(property)) &&
            as_text(object.property(property)) != as_text(other.property(property)))
            differences.append(name + QLatin1Char(' ') + QLatin1String(property));
    }
    return differences;
}
