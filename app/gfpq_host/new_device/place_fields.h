// SPDX-License-Identifier: MIT

// The family and the mode that a new device is for.
#pragma once

#include "dialog/host_offer.h"
#include "program/host_arguments.h"

#include <QObject>

class QComboBox;
class QFormLayout;

// Two rows of a form. Only places whose devices have flows are offered.
class PLACE_FIELDS : public QObject
{
    Q_OBJECT

public:
    // Adds the rows to `form`, whose page owns them; `offer` must outlive this. `options` say what can be chosen.
    PLACE_FIELDS(const HOST_OFFER& offer, const DIALOG_OPTIONS& options, QFormLayout* form, int family, int scheme);

    int family() const;
    int scheme() const;

signals:
    void changed();

private:
    void show_schemes(int wanted);

    const HOST_OFFER& m_offer;
    QComboBox* m_family_combo;
    QComboBox* m_mode_combo;
};
