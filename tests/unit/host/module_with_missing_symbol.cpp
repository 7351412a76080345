// SPDX-License-Identifier: MIT

// A dialog module that needs a function which nobody has.
#include "gfpq_dyn_dlg.h"

void a_function_that_nobody_has();

void gfpq_dyn_dlg(QWidget*, GFPQ_DYN_DLG_ARGS*, bool, bool, bool)
{
    a_function_that_nobody_has();
}
