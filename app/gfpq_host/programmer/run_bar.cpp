// SPDX-License-Identifier: MIT
#include "programmer/run_bar.h"

#include "program/plain_tool_tip.h"
#include "run/number_text.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

// More steps than a progress bar has pixels, and fewer than an int has.
constexpr int STEPS = 10000;

QStyle::StandardPixmap icon_of(RUN_BAR::MOOD mood)
{
    switch (mood) {
    case RUN_BAR::GOOD:
        return QStyle::SP_DialogApplyButton;
    case RUN_BAR::DOUBTFUL:
        return QStyle::SP_MessageBoxWarning;
    case RUN_BAR::BAD:
        break;
    }
    return QStyle::SP_MessageBoxCritical;
}

int step_of(std::int64_t done, std::int64_t total)
{
    return total > 0
               ? static_cast<int>(static_cast<double>(STEPS) * static_cast<double>(done) / static_cast<double>(total))
               : 0;
}

} // namespace

RUN_BAR::RUN_BAR() : m_progress_bar(new QProgressBar), m_progress_label(new QLabel)
{
    m_progress_bar->setObjectName(QStringLiteral("m_progress_bar"));
    m_progress_bar->setAccessibleName(tr("Progress of the run"));
    m_progress_bar->setRange(0, STEPS);
    m_progress_bar->setValue(0);
    m_progress_label->setObjectName(QStringLiteral("m_progress_label"));
    m_progress_label->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* progress = new QHBoxLayout;
    progress->addWidget(m_progress_bar, 1);
    progress->addWidget(m_progress_label, 1);
    column->addLayout(progress);
    auto* row = new QHBoxLayout;
    row->addWidget(create_verdict(), 1);
    row->addWidget(create_buttons());
    column->addLayout(row);
    show_idle();
    clear_verdict();
}

QWidget* RUN_BAR::create_verdict()
{
    m_verdict_row = new QWidget;
    m_verdict_icon = new QLabel;
    m_verdict_label = new QLabel;
    m_verdict_label->setObjectName(QStringLiteral("m_verdict_label"));
    m_verdict_label->setTextFormat(Qt::PlainText);
    m_verdict_label->setWordWrap(true);
    m_verdict_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont bold = m_verdict_label->font();
    bold.setBold(true);
    m_verdict_label->setFont(bold);
    auto* row = new QHBoxLayout(m_verdict_row);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_verdict_icon, 0, Qt::AlignVCenter);
    row->addWidget(m_verdict_label, 1);
    return m_verdict_row;
}

QPushButton* RUN_BAR::make_button(const QString& text, const char* object_name)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(object_name));
    return button;
}

QWidget* RUN_BAR::create_buttons()
{
    m_trial_button = make_button(tr("Tr&y the Flow"), "m_trial_button");
    m_trial_button->setToolTip(tr("Erases, programs and verifies an emulated chip. No hardware is needed or used."));
    m_start_button = make_button(tr("&Start"), "m_start_button");
    m_cancel_button = make_button(tr("Cance&l"), "m_cancel_button");
    connect(m_trial_button, &QPushButton::clicked, this, &RUN_BAR::trial_asked);
    connect(m_start_button, &QPushButton::clicked, this, &RUN_BAR::start_asked);
    connect(m_cancel_button, &QPushButton::clicked, this, &RUN_BAR::cancel_asked);

    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* button : {m_trial_button, m_start_button, m_cancel_button})
        row->addWidget(button);
    return buttons;
}

void RUN_BAR::show_idle()
{
    const bool had_focus = m_cancel_button->hasFocus();
    m_trial_button->setEnabled(true);
    m_start_button->setEnabled(true);
    m_cancel_button->setEnabled(false);
    show_state(QString());
    if (had_focus)
        m_start_button->setFocus();
}

// Whoever pressed Start by keyboard is at Cancel then, and back at Start afterwards.
void RUN_BAR::show_busy()
{
    const bool had_focus = m_start_button->hasFocus() || m_trial_button->hasFocus();
    m_cancel_button->setEnabled(true);
    m_trial_button->setEnabled(false);
    m_start_button->setEnabled(false);
    m_progress_bar->setValue(0);
    if (had_focus)
        m_cancel_button->setFocus();
}

// Without a text the bar has the whole width.
void RUN_BAR::show_state(const QString& text)
{
    m_progress_label->setText(text);
    m_progress_label->setVisible(!text.isEmpty());
}

void RUN_BAR::show_ending()
{
    show_state(tr("The run is being cancelled."));
}

void RUN_BAR::show_phase(GFPE_PHASE phase)
{
    show_state(QString::fromUtf8(gfpe_phase_name(phase)));
}

void RUN_BAR::show_progress(const GFPE_PROGRESS& progress, double rate, int seconds_left)
{
    m_progress_bar->setValue(step_of(progress.all_done, progress.all_total));
    const QString phase = QString::fromUtf8(gfpe_phase_name(progress.phase));
    if (progress.total <= 0) {
        show_state(phase);
        return;
    }
    QString text = tr("%1: %2 of %3").arg(phase, size_text(progress.done), size_text(progress.total));
    if (rate >= 0)
        text += QLatin1String(", ") + QStringLiteral("%1/s").arg(size_text(static_cast<std::int64_t>(rate)));
    if (seconds_left >= 0)
        text += QLatin1String(", ") + tr("%1 left").arg(time_text(seconds_left));
    show_state(text);
}

// A screen reader says the verdict although the focus is elsewhere.
void RUN_BAR::show_verdict(const QString& text, MOOD mood, const QString& detail)
{
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_verdict_icon->setPixmap(style()->standardIcon(icon_of(mood)).pixmap(size));
    m_verdict_icon->show();
    m_verdict_label->setText(text);
    m_verdict_label->setToolTip(plain_tool_tip(detail));
    QAccessibleEvent alert(m_verdict_label, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void RUN_BAR::clear_verdict()
{
    m_verdict_icon->hide();
    m_verdict_label->clear();
}
