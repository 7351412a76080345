// SPDX-License-Identifier: MIT

// One opening of the dialog.
#pragma once

#include "gfpq_dyn_dlg.h"
#include "program/host_arguments.h"
#include "program/host_choice.h"

class QWidget;

// Opens the dialog, modal to `parent` (may be null), with `choice` selected, and returns when the user has closed it:
// the new choice, or the one that came in.
HOST_CHOICE open_dialog(GFPQ_DYN_DLG entry_point, QWidget* parent, const HOST_CHOICE& choice,
                        const DIALOG_OPTIONS& options);
