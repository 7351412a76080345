// SPDX-License-Identifier: MIT

// The dialog module, loaded at run time.
#pragma once

#include "gfpq_dyn_dlg.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// Loads the module from a fixed place and finds its entry point. A module stays loaded until the process ends. GUI
// thread only.
class MODULE_LOADER
{
    Q_DECLARE_TR_FUNCTIONS(MODULE_LOADER)

public:
    // Looks for the first of `files` that exists. They must be absolute paths.
    explicit MODULE_LOADER(QStringList files);

    // Where the module is when the program says nothing else: in lib/gfpq or lib beside the directory of the programs,
    // as seen from `program_directory`. Neither the current directory nor a search path of the system counts.
    static QStringList installed_files(const QString& program_directory);

    // The entry point, or null when the module cannot be used; problem() then says why. Loads at the first call and, as
    // long as that fails, again at each further one.
    GFPQ_DYN_DLG entry_point();
    // A sentence for the user; empty after entry_point() gave one.
    const QString& problem() const { return m_problem; }

private:
    GFPQ_DYN_DLG load();
    GFPQ_DYN_DLG fail(const QString& problem);

    QStringList m_files;
    GFPQ_DYN_DLG m_entry_point = nullptr;
    QString m_problem;
};
