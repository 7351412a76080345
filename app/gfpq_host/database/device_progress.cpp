// SPDX-License-Identifier: MIT
#include "database/device_progress.h"

namespace {

// A disk needs a few milliseconds for each.
constexpr int FEW_DEVICES = 50;

} // namespace

DEVICE_PROGRESS::DEVICE_PROGRESS(QWidget* parent, const QString& text, int count)
{
    if (count <= FEW_DEVICES)
        return;
    m_dialog = std::make_unique<QProgressDialog>(text, tr("Cancel"), 0, count, parent);
    m_dialog->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_dialog->setWindowTitle(parent->windowTitle());
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setMinimumDuration(0);
}

// The dialog delivers events while it shows a number.
bool DEVICE_PROGRESS::goes_on(int done)
{
    if (!m_dialog)
        return true;
    m_dialog->setValue(done);
    m_is_cancelled = m_dialog->wasCanceled();
    return !m_is_cancelled;
}
