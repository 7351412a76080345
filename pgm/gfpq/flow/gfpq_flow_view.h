// SPDX-License-Identifier: MIT

// The view of a flow chart, which is also used without a mouse.
//
// Down and Up select the next and the previous block, Home and End the first and the last. With Shift, the selected
// blocks stay selected. Up from the first block selects none. The menu key opens the chart's menu at the arrow below
// the last selected block, or at the first arrow when none is selected: actions are inserted and pasted there. A chart
// without blocks that can be selected leaves these keys to the base class, which scrolls.
#pragma once

#include <QGraphicsView>
#include <QList>

class QGraphicsItem;

// GUI thread only.
class GFPQ_FLOW_VIEW : public QGraphicsView
{
    Q_OBJECT

public:
    // Shows `scene`, a GFPQ_FLOW_SCENE, which must outlive the view. Assistive technology reads `title` and
    // `description`.
    GFPQ_FLOW_VIEW(QGraphicsScene& scene, QWidget* parent, const QString& title, const QString& description);

    // Scrolls to the top of the chart.
    void show_top();
    // Of a chart that is wider than the view, scrolls to the middle, where the chain is.
    void center_horizontally();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    // The blocks that can be selected, in chain order.
    QList<QGraphicsItem*> blocks() const;
    bool move(const QKeyEvent& event);
    void follow_selection(const QList<QGraphicsItem*>& chain);
    // Where `key` leads in a chain whose last block is number `last`; -1 stands for none.
    int place_after(int key, int last) const;
    bool open_menu(const QContextMenuEvent& event);

    // The block that the keys went to last. Kept when the chart is drawn again, so that they go on from there.
    int m_place = -1;
};
