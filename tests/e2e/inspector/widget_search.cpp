// SPDX-License-Identifier: MIT
#include "widget_search.h"

#include <QApplication>
#include <QJsonArray>
#include <QWidget>

#include <algorithm>

namespace {

// The better, the higher.
int worth(const QWidget& widget)
{
    const QWidget* modal = QApplication::activeModalWidget();
    return (widget.isVisible() ? 2 : 0) + (modal && modal->isAncestorOf(&widget) ? 1 : 0);
}

} // namespace

QWidget* find_widget(const QString& name)
{
    QWidget* best = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        QList<QWidget*> candidates = window->findChildren<QWidget*>(name);
        if (window->objectName() == name)
            candidates.append(window);
        for (QWidget* candidate : candidates) {
            if (!best || worth(*candidate) > worth(*best))
                best = candidate;
        }
    }
    return best;
}

QString widget_id(const QWidget& widget)
{
    return QString::number(reinterpret_cast<quintptr>(&widget), 16);
}

QJsonObject place_to_json(const QWidget& widget, const QRect& rect)
{
    const QPoint corner = widget.mapToGlobal(rect.topLeft());
    return {{QStringLiteral("found"), true},
            {QStringLiteral("id"), widget_id(widget)},
            {QStringLiteral("rect"), QJsonArray{corner.x(), corner.y(), rect.width(), rect.height()}}};
}
