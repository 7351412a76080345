// SPDX-License-Identifier: MIT

// The host's folder dialog as tests see it: every call is recorded, the user's answer is set beforehand.
//
// In the log it is "file_dlg". The rest of the dialog framework is the real one.
#pragma once

#include "call_log.h"
#include "kovq/kovq_native_file_dlg.h"

struct FILE_DLG_ANSWERS
{
    int result = 0;
    QStringList selected;
    // Out: the parent that the last dialog was made with, and the process's current directory when it was run.
    QWidget* parent = nullptr;
    QString current_dir_at_exec;
};

FILE_DLG_ANSWERS& file_dlg_answers();
void reset_file_dlg();
