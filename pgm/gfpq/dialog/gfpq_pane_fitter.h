// SPDX-License-Identifier: MIT

// Room for texts, however long they are in the user's language.
#pragma once

#include <QObject>

class QScrollArea;
class QSplitter;
class QTabWidget;

// Widens the pane of `splitter` that holds `area`, its last, as long as the contents of the area would be cut sideways
// otherwise, up to three quarters of the splitter. What fits is left as the splitter divides it. From the moment on
// that the user moves the handle, it stays where the user puts it. Owned by `splitter`.
class GFPQ_PANE_FITTER : public QObject
{
    Q_OBJECT

public:
    // The area must have its contents.
    GFPQ_PANE_FITTER(QSplitter& splitter, const QScrollArea& area);

    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void fit();
    void leave_to_user();

private:
    // The width of the pane in which nothing is cut, for a splitter whose panes share `whole`.
    int needed_width(int whole) const;

    QSplitter& m_splitter;
    const QScrollArea& m_area;
    // Of the area; only compared, because it sends events still when the area is being destroyed.
    const QObject* const m_contents;
    // The part of the splitter that the pane had before it was widened; 0 while it is not widened.
    double m_own_share = 0.0;
    bool m_is_users = false;
};

// Makes `dialog` as wide as all the titles of `pages` take, if it is narrower. The user can still make it narrower: the
// titles are scrolled then.
void gfpq_fit_titles(QWidget& dialog, QTabWidget& pages);
