// SPDX-License-Identifier: MIT

// The ways to a new device: from a chip, from a file, as a copy.
#pragma once

#include "dialog/host_offer.h"
#include "program/host_arguments.h"
#include "run/run_request.h"

#include <QObject>

class QWidget;

class NEW_DEVICE_DESK : public QObject
{
    Q_OBJECT

public:
    // The dialogs are modal to `window`, which owns this.
    NEW_DEVICE_DESK(QWidget* window, const DIALOG_OPTIONS& options);

    // Each begins with the family and mode of `choice`, shows a dialog, and returns when it was closed.
    void show_reading(const CHIP_READING& reading, const HOST_CHOICE& choice);
    void ask_for_file(const HOST_CHOICE& choice);
    void duplicate(const HOST_CHOICE& choice);

signals:
    // The user has stored a device.
    void stored(const HOST_CHOICE& device);

private:
    void show_draft(const std::vector<std::uint8_t>& id, const std::vector<std::uint8_t>& sfdp,
                    const HOST_CHOICE& choice, bool needs_sfdp);
    QWidget* window() const;

    const DIALOG_OPTIONS m_options;
    const HOST_OFFER m_offer;
};
