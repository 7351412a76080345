// SPDX-License-Identifier: MIT

// Calls the entry point in a process without a QApplication: "none" without any application, "core" with one that has
// no widgets. Exit code 0 when the call came back, asked nobody anything and left the record as it was.
#include "call_log.h"
#include "gfpdb_double.h"
#include "gfpq_dyn_dlg.h"

#include <QCoreApplication>

#include <cstring>
#include <memory>

int main(int argc, char** argv)
{
    std::unique_ptr<QCoreApplication> app;
    if (argc > 1 && std::strcmp(argv[1], "core") == 0)
        app = std::make_unique<QCoreApplication>(argc, argv);
    GFPDB_WORLD::instance().reset();
    GFPQ_DYN_DLG_ARGS args;
    args.family = 5;
    args.config_scheme = 13;
    args.device_name = "A";

    gfpq_dyn_dlg(nullptr, &args, true, true, true);

    const bool untouched = args.family == 5 && args.config_scheme == 13 && args.device_name == "A";
    return untouched && CALL_LOG::instance().calls().isEmpty() ? 0 : 1;
}
