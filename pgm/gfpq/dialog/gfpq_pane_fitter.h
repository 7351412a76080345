// SPDX-License-Identifier: MIT

// Room for the texts in languages where they are long.
#pragma once

#include <QObject>

class QScrollArea;
class QSplitter;
class QTabWidget;

// Widens the last pane of `splitter`, which holds `area`, if the contents of the area would be cut off at the side, up
// to three quarters of the splitter. Contents that fit leave the pane as it is. Once the user has moved the handle, it
// stays where the user puts it. Owned by `splitter`.
class GFPQ_PANE_FITTER : public QObject
{
    Q_OBJECT

public:
    // `area` must have its widget.
    GFPQ_PANE_FITTER(QSplitter& splitter, const QScrollArea& area);

    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void fit();
    void leave_to_user();

private:
    // The width of the pane that cuts nothing off, for panes that share the width `whole`.
    int needed_width(int whole) const;

    QSplitter& m_splitter;
    const QScrollArea& m_area;
    // Of the area. Only compared: it still sends events while the area is being destroyed.
    const QObject* const m_contents;
    // The share of the splitter that the pane had before it was widened; 0 if it is not widened.
    double m_own_share = 0.0;
    bool m_is_users = false;
};

// Makes `dialog` wide enough for all titles of `pages`. The user can make it narrower again: the titles then scroll.
void gfpq_fit_titles(QWidget& dialog, QTabWidget& pages);
