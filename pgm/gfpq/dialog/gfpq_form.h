// SPDX-License-Identifier: MIT

// Building a dialog's Designer form.
#pragma once

#include <QDialog>
#include <QtGlobal>

// While it exists, drops the line that Qt's connection by object name prints for each slot without a matching signal.
// Every other line goes to the message handler that was installed before, lines of other threads included. GUI thread
// only.
class GFPQ_CONNECTION_LINES_CUT
{
public:
    GFPQ_CONNECTION_LINES_CUT();
    ~GFPQ_CONNECTION_LINES_CUT();
    GFPQ_CONNECTION_LINES_CUT(const GFPQ_CONNECTION_LINES_CUT&) = delete;
    GFPQ_CONNECTION_LINES_CUT& operator=(const GFPQ_CONNECTION_LINES_CUT&) = delete;
};

// Builds `form` on `dialog`. Building ends with the connection by object name, which recognises none of the module's
// slot names and would print a warning for each.
template <typename FORM>
void gfpq_build_form(FORM& form, QDialog* dialog)
{
    const GFPQ_CONNECTION_LINES_CUT cut;
    form.setupUi(dialog);
}
