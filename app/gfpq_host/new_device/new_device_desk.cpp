// SPDX-License-Identifier: MIT
#include "new_device/new_device_desk.h"

#include "new_device/copy_dialog.h"
#include "new_device/device_storage.h"
#include "new_device/new_device_dialog.h"
#include "new_device/read_out_file.h"

#include <QFileDialog>
#include <QMessageBox>

NEW_DEVICE_DESK::NEW_DEVICE_DESK(QWidget* window, const DIALOG_OPTIONS& options)
    : QObject(window), m_options(options), m_offer(options.family_schemes)
{}

QWidget* NEW_DEVICE_DESK::window() const
{
    return qobject_cast<QWidget*>(parent());
}

void NEW_DEVICE_DESK::show_draft(const std::vector<std::uint8_t>& id, const std::vector<std::uint8_t>& sfdp,
                                 const HOST_CHOICE& choice, bool needs_sfdp)
{
    const HOST_CHOICE first = m_offer.nearest(choice);
    NEW_DEVICE_DRAFT draft(id, sfdp, first.family, first.config_scheme);
    if (needs_sfdp && !draft.sfdp_problem().isEmpty()) {
        QMessageBox::warning(window(), tr("New Device"), draft.sfdp_problem());
        return;
    }
    NEW_DEVICE_DIALOG dialog(window(), draft, m_offer, m_options);
    if (dialog.exec() == QDialog::Accepted)
        emit stored(choice_of(dialog.device()));
}

void NEW_DEVICE_DESK::show_reading(const CHIP_READING& reading, const HOST_CHOICE& choice)
{
    show_draft(reading.id, reading.sfdp, choice, false);
}

void NEW_DEVICE_DESK::ask_for_file(const HOST_CHOICE& choice)
{
    const QString file = QFileDialog::getOpenFileName(window(), tr("SFDP Read-Out of a Chip"));
    if (file.isEmpty())
        return;
    QString problem;
    if (const std::optional<std::vector<std::uint8_t>> bytes = READ_OUT_FILE::load(file, problem))
        show_draft({}, *bytes, choice, true);
    else
        QMessageBox::warning(window(), tr("New Device"), problem);
}

void NEW_DEVICE_DESK::duplicate(const HOST_CHOICE& choice)
{
    COPY_DIALOG dialog(window(), m_offer, m_options, choice);
    if (dialog.exec() == QDialog::Accepted)
        emit stored(choice_of(dialog.device()));
}
