// SPDX-License-Identifier: MIT
#include "dialog/dialog_call.h"

HOST_CHOICE open_dialog(GFPQ_DYN_DLG entry_point, QWidget* parent, const HOST_CHOICE& choice,
                        const DIALOG_OPTIONS& options)
{
    GFPQ_DYN_DLG_ARGS record;
    record.family = choice.family;
    record.config_scheme = choice.config_scheme;
    record.device_name = choice.device_name;
    record.family_schemes = options.family_schemes;

    entry_point(parent, &record, options.enable_family, options.enable_config_mode, options.enable_edit);

    HOST_CHOICE result;
    result.family = record.family;
    result.config_scheme = record.config_scheme;
    result.device_name = record.device_name;
    return result;
}
