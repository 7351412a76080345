// SPDX-License-Identifier: MIT
#include "new_device/place_fields.h"

#include "dialog/choice_combo.h"
#include "programmer/panel_form.h"

#include <QFormLayout>

#include <algorithm>

namespace {

// `wanted` if it is one of `values`, else the first one; `wanted` when there is none.
int nearest(const std::vector<int>& values, int wanted)
{
    const bool is_there = std::find(values.begin(), values.end(), wanted) != values.end();
    return is_there || values.empty() ? wanted : values.front();
}

} // namespace

PLACE_FIELDS::PLACE_FIELDS(const HOST_OFFER& offer, const DIALOG_OPTIONS& options, QFormLayout* form, int family,
                           int scheme)
    : QObject(form->parentWidget()), m_offer(offer), m_family_combo(make_narrow_combo()),
      m_mode_combo(make_narrow_combo())
{
    add_row(form, tr("Device &family:"), m_family_combo, "m_new_family_combo");
    add_row(form, tr("Configuration &mode:"), m_mode_combo, "m_new_mode_combo");
    m_family_combo->setEnabled(options.enable_family);
    m_mode_combo->setEnabled(options.enable_config_mode);
    const std::vector<int> families = offer.families_with_flows();
    show_values(m_family_combo, families, nearest(families, family), family_text);
    show_schemes(scheme);
    connect(m_family_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        show_schemes(this->scheme());
        emit changed();
    });
    connect(m_mode_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PLACE_FIELDS::changed);
}

void PLACE_FIELDS::show_schemes(int wanted)
{
    const std::vector<int> schemes = m_offer.schemes_with_flows(family());
    show_values(m_mode_combo, schemes, nearest(schemes, wanted), scheme_text);
}

int PLACE_FIELDS::family() const
{
    return m_family_combo->currentData().toInt();
}

int PLACE_FIELDS::scheme() const
{
    return m_mode_combo->currentData().toInt();
}
