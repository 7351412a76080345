// SPDX-License-Identifier: MIT

// A host of the Configuration Device dialog: loads the module, opens the dialog on the program's own flash database,
// and prints what the user chose.
//
// usage: example_host [DEVICE]
#include "gfpq_dyn_dlg.h"
#include "kovq/zui_app.h"

#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"

#include <QLibrary>
#include <QLocale>
#include <QTextCodec>

#include <cstdio>
#include <string>
#include <vector>

namespace {

// The entry point, or null; a problem is printed. The module stays loaded until the program ends.
GFPQ_DYN_DLG load_module()
{
    QLibrary module(QStringLiteral(EXAMPLE_MODULE));
    module.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    const auto entry_point = reinterpret_cast<GFPQ_DYN_DLG>(module.resolve("gfpq_dyn_dlg"));
    if (entry_point == nullptr)
        std::fprintf(stderr, "%s\n", qPrintable(module.errorString()));
    return entry_point;
}

} // namespace

int main(int argc, char** argv)
{
    // The dialog browses for directories with the host's application object.
    ZUI_APP app(argc, argv);
    // The dialog speaks the language of the default locale.
    QLocale::setDefault(QLocale::system());
    // The texts of this database are UTF-8, and the dialog takes them as local 8-bit.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));

    const GFPQ_DYN_DLG open_dialog = load_module();
    if (open_dialog == nullptr)
        return 1;

    GFPQ_DYN_DLG_ARGS args;
    args.family = DEV_FAMILY_FIRST;
    args.config_scheme = PGMIO_ACTIVE_SERIAL;
    args.device_name = argc > 1 ? argv[1] : "";
    // Two families; for the second, one scheme only.
    args.family_schemes = {{1, {}}, {2, {PGMIO_ACTIVE_SERIAL_X4}}};
    open_dialog(nullptr, &args, true, true, true);

    std::printf("family %d, scheme %d, device \"%s\"\n", args.family, args.config_scheme, args.device_name.c_str());
    std::vector<std::string> names;
    GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(false);
    for (const std::string& name : manager->get_custom_flash_names(names, args.family, args.config_scheme, 0))
        std::printf("in the drawer: %s\n", name.c_str());
    return 0;
}
