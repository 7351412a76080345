// SPDX-License-Identifier: MIT

// A flow chart without a mouse.
//
// Down and Up select the next and the previous block, Home and End the first and the last; with Shift the blocks that
// were selected stay so. Up from the first block selects none. The menu key opens the chart's menu at the arrow below
// the last selected block, or at the first arrow when none is selected: from there actions are inserted and pasted.
// A chart without blocks that can be selected leaves these keys to the view, which scrolls.
#pragma once

#include <QList>
#include <QObject>

class QContextMenuEvent;
class QGraphicsItem;
class QGraphicsView;
class QKeyEvent;

class GFPQ_FLOW_KEYBOARD : public QObject
{
    Q_OBJECT

public:
    // Serves `view`, which owns it and shows a GFPQ_FLOW_SCENE.
    explicit GFPQ_FLOW_KEYBOARD(QGraphicsView& view);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The blocks that can be selected, in chain order.
    QList<QGraphicsItem*> blocks() const;
    bool move(const QKeyEvent& event);
    void follow_selection(const QList<QGraphicsItem*>& chain);
    // Where `key` leads in a chain whose last block is number `last`; -1 stands for none.
    int place_after(int key, int last) const;
    bool open_menu(const QContextMenuEvent& event);

    QGraphicsView& m_view;
    // The block that the keys went to last; kept when the chart is drawn anew, so that they go on from there.
    int m_place = -1;
};
