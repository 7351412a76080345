// SPDX-License-Identifier: MIT

// Shows where the keys go in an area that has no cursor to show it: a chart, or a table, whose selection looks the same
// without the focus.
#pragma once

#include <QWidget>

class QAbstractScrollArea;

// A frame in the colour of the selection, along the edge of `area`, while that has the focus. It takes neither mouse
// nor keys. Owned by `area`.
class GFPQ_FOCUS_RING : public QWidget
{
    Q_OBJECT

public:
    explicit GFPQ_FOCUS_RING(QAbstractScrollArea& area);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
