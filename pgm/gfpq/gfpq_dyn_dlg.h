// SPDX-License-Identifier: MIT

// The module's one entry point: the Configuration Device dialog.
//
// The module is loaded at run time and its function is looked up by name. Caller and module must be built with the same
// standard library, because the record holds strings and maps.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

class QWidget;

// In and out arguments. Owned by the caller.
struct GFPQ_DYN_DLG_ARGS
{
    // In: the device family (1 to 72) to preselect. Out: the family chosen with OK, else unchanged.
    std::int32_t family = 0;
    // In: the configuration scheme (0 to 25) to make active and preselect. Out: the scheme chosen with OK, else
    // unchanged.
    std::int32_t config_scheme = 0;
    // In: the device (local 8-bit) to select. Out: the device that was current when OK was accepted, empty when none
    // was; else unchanged.
    std::string device_name;
    // In only: the families to offer, and the schemes to offer for each. An empty vector means all schemes that the
    // database supports, an empty map no restriction.
    std::map<int, std::vector<int>> family_schemes;
};

// The type of the entry point, for the caller's look-up.
using GFPQ_DYN_DLG = void (*)(QWidget* parent, GFPQ_DYN_DLG_ARGS* args, bool enable_family, bool enable_config_mode,
                              bool enable_edit);

// Shows the dialog, modal to `parent` (may be null), and returns when it is closed. `parent` must outlive the call; if
// it or a window above it is deleted with deleteLater(), the dialog closes as by Cancel. `enable_family` and
// `enable_config_mode` enable the two combo boxes, `enable_edit` the device page and the database directory. A null
// `args` or a process without a QApplication is logged and nothing is shown. Throws nothing. GUI thread only.
extern "C" void gfpq_dyn_dlg(QWidget* parent, GFPQ_DYN_DLG_ARGS* args, bool enable_family, bool enable_config_mode,
                             bool enable_edit);
