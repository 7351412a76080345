// SPDX-License-Identifier: MIT
#include "dialog/gfpq_pane_fitter.h"

#include "kovq/kovq_connect.h"

#include <QEvent>
#include <QScrollArea>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <numeric>

namespace {

constexpr int LARGEST_SHARE_PERCENT = 75;
constexpr int PERCENT = 100;

// More than the room to the left and right of the page titles.
constexpr int AROUND_TITLES = 80;

} // namespace

GFPQ_PANE_FITTER::GFPQ_PANE_FITTER(QSplitter& splitter, const QScrollArea& area)
    : QObject(&splitter), m_splitter(splitter), m_area(area), m_contents(area.widget())
{
    splitter.installEventFilter(this);
    area.viewport()->installEventFilter(this);
    area.widget()->installEventFilter(this);
    kovq_safe_connect(&splitter, SIGNAL(splitterMoved(int, int)), this, SLOT(leave_to_user()));
}

// Queued, so that everything is laid out first. Only a visible widget knows the size that it needs: a combo box, for
// example, finds out when it is shown, and then has its parent laid out again.
bool GFPQ_PANE_FITTER::eventFilter(QObject* watched, QEvent* event)
{
    const bool of_contents = watched == m_contents;
    if ((of_contents && event->type() == QEvent::LayoutRequest) ||
        (!of_contents && (event->type() == QEvent::Show || event->type() == QEvent::Resize)))
        QMetaObject::invokeMethod(this, &GFPQ_PANE_FITTER::fit, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void GFPQ_PANE_FITTER::leave_to_user()
{
    m_is_users = true;
}

// By the size hint, because the minimum size leaves out the texts of combo boxes.
int GFPQ_PANE_FITTER::needed_width(int whole) const
{
    // Frames, and the scroll bar where there is one.
    const int around = m_splitter.sizes().constLast() - m_area.viewport()->width();
    return std::min(m_area.widget()->sizeHint().width() + around, whole * LARGEST_SHARE_PERCENT / PERCENT);
}

void GFPQ_PANE_FITTER::fit()
{
    if (m_is_users)
        return;
    QList<int> sizes = m_splitter.sizes();
    const int whole = std::accumulate(sizes.cbegin(), sizes.cend(), 0);
    const int present = sizes.last();
    const int own = m_own_share > 0.0 ? qRound(whole * m_own_share) : present;
    const int needed = needed_width(whole);
    if (needed <= own)
        m_own_share = 0.0;
    else if (m_own_share <= 0.0)
        m_own_share = static_cast<double>(own) / whole;

    const int wanted = std::max(own, needed);
    if (wanted == present)
        return;
    sizes.last() = wanted;
    sizes.first() += present - wanted;
    m_splitter.setSizes(sizes);
}

// With all titles visible, they determine the minimum width of the dialog.
void gfpq_fit_titles(QWidget& dialog, QTabWidget& pages)
{
    // They usually fit, and the minimum width of the whole dialog takes time to compute.
    if (pages.tabBar()->sizeHint().width() + AROUND_TITLES <= dialog.width())
        return;
    // While the pages are hidden, a new size hint has to be announced.
    const auto set_scrolls = [&pages](bool scrolls) {
        pages.setUsesScrollButtons(scrolls);
        pages.updateGeometry();
    };
    const bool scrolls = pages.usesScrollButtons();
    set_scrolls(false);
    const int width = dialog.minimumSizeHint().width();
    set_scrolls(scrolls);
    dialog.resize(std::max(dialog.width(), width), dialog.height());
}
