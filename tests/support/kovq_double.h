// SPDX-License-Identifier: MIT

// The host's folder dialog and its connect function as tests see them.
//
// Every call of the folder dialog is recorded ("file_dlg" in the log), the user's answer is set beforehand. Connections
// are really made, and listed. The rest of the dialog framework is the real one.
#pragma once

#include "call_log.h"
#include "kovq/kovq_native_file_dlg.h"

#include <QByteArray>
#include <QList>

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

// A connection as it was asked for.
struct MADE_CONNECTION
{
    // "sender signal() -> receiver slot()", objects by name, actions by text, others by class.
    QString text;
    Qt::ConnectionType type;
    QByteArray file;
    int line;
};

// All connections since the test function began or the list was emptied.
QList<MADE_CONNECTION>& made_connections();
