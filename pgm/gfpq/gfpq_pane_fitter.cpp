#include "gfpq_pane_fitter.h"

#include "kovq/kovq_connect.h"

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>

#include <algorithm>

namespace {

constexpr int LARGEST_SHARE_PERCENT = 66;
constexpr int PERCENT = 100;

} // namespace

GFPQ_PANE_FITTER::GFPQ_PANE_FITTER(QSplitter& splitter, const QScrollArea& area)
    : QObject(&splitter), m_splitter(splitter), m_area(area)
{
    splitter.installEventFilter(this);
    kovq_safe_connect(&splitter, SIGNAL(splitterMoved(int, int)), this, SLOT(leave_to_user()));
}

// The splitter divides itself anew first; and only what is shown knows what it needs.
bool GFPQ_PANE_FITTER::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Resize)
        QMetaObject::invokeMethod(this, &GFPQ_PANE_FITTER::fit, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void GFPQ_PANE_FITTER::leave_to_user()
{
    m_splitter.removeEventFilter(this);
}

int GFPQ_PANE_FITTER::width_around(int contents) const
{
    return contents + 2 * m_area.frameWidth() + m_area.verticalScrollBar()->sizeHint().width();
}

void GFPQ_PANE_FITTER::fit()
{
    QWidget* const pane = m_splitter.widget(m_splitter.count() - 1);
    pane->setMinimumWidth(width_around(m_area.widget()->minimumSizeHint().width()));

    QList<int> sizes = m_splitter.sizes();
    const int share = m_splitter.width() * LARGEST_SHARE_PERCENT / PERCENT;
    const int missing = std::min(width_around(m_area.widget()->sizeHint().width()), share) - sizes.last();
    if (missing <= 0)
        return;
    sizes.last() += missing;
    sizes.first() -= missing;
    m_splitter.setSizes(sizes);
}
