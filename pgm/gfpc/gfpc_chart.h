// SPDX-License-Identifier: MIT

// One chart on paper: the picture that the dialog draws, with the number and the type of each action beside its arrow.
#pragma once

#include "flow/gfpq_flow_scene.h"
#include "gfpc_layout.h"

#include <QRectF>
#include <QString>

#include <vector>

class QPainter;

class GFPC_CHART
{
public:
    // The chart of `actions` (not owned, copied). `operation` is a GFPDB_OPERATION_KIND.
    GFPC_CHART(int operation, const std::vector<GFPDB_ACTION*>& actions);

    // Its size with its name above it, and where it may be cut.
    const GFPC_COLUMN& column() const { return m_column; }
    // Draws a piece with the name above it, its top left corner at the painter's origin.
    void draw(QPainter& painter, const GFPC_PIECE& piece);

private:
    // The words at an arrow's head.
    struct MARK
    {
        QRectF place;
        QString text;
    };

    QString name_of(int piece) const;
    void measure();
    void add_mark(const QRectF& shape, const GFPDB_ACTION& action);

    GFPQ_FLOW_SCENE m_scene;
    const QString m_name;
    GFPC_COLUMN m_column;
    std::vector<MARK> m_marks;
    // All that is drawn, in units of the scene.
    QRectF m_extent;
};
