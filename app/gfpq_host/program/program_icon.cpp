// SPDX-License-Identifier: MIT
#include "program/program_icon.h"

#include <QPainter>
#include <QSvgRenderer>

namespace {

// What title bars, task bars and switchers show, at up to twice the usual scale.
constexpr int SIZES[] = {16, 22, 24, 32, 48, 64, 128, 256};

} // namespace

// In no namespace: else the resource of a static library is not found.
static void make_drawing_known()
{
    Q_INIT_RESOURCE(gfpq_host_pictures);
}

// Drawn here, because an icon of this kind depends on a plugin that may not be there.
QIcon program_icon()
{
    make_drawing_known();
    QSvgRenderer drawing(QStringLiteral(":/gfpq_host/gfpq_host.svg"));
    QIcon icon;
    for (const int size : SIZES) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}
