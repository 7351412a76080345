// SPDX-License-Identifier: MIT

// Stands in for the dialog module: tells in the device name what it was called with, and answers with FAKE_FAMILY and
// FAKE_SCHEME. Opens nothing.
#include "fake_module.h"
#include "gfpq_dyn_dlg.h"

#include "kovq/zui_app.h"

#include <QLocale>
#include <QWidget>

namespace {

std::string text_of(const std::map<int, std::vector<int>>& family_schemes)
{
    std::string text;
    for (const auto& [family, schemes] : family_schemes) {
        text += std::to_string(family) + ":";
        for (const int scheme : schemes)
            text += std::to_string(scheme) + ",";
        text += ";";
    }
    return text;
}

std::string base_directory()
{
    auto* app = qobject_cast<ZUI_APP*>(kovq_get_app());
    return app ? app->get_ui_mgr()->get_base_dir() : std::string();
}

} // namespace

void gfpq_dyn_dlg(QWidget* parent, GFPQ_DYN_DLG_ARGS* args, bool enable_family, bool enable_config_mode,
                  bool enable_edit)
{
    args->device_name = "parent=" + (parent ? parent->windowTitle().toStdString() : std::string("none")) +
                        " family=" + std::to_string(args->family) + " scheme=" + std::to_string(args->config_scheme) +
                        " device=" + args->device_name + " flags=" + std::to_string(enable_family) +
                        std::to_string(enable_config_mode) + std::to_string(enable_edit) +
                        " map=" + text_of(args->family_schemes) + " base=" + base_directory() +
                        " locale=" + QLocale().name().toStdString() +
                        " platform=" + QGuiApplication::platformName().toStdString();
    args->family = FAKE_FAMILY;
    args->config_scheme = FAKE_SCHEME;
}
