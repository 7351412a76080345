// SPDX-License-Identifier: MIT
#include "kovq/zui_app.h"

ZUI_APP::ZUI_APP(int& argc, char** argv) : QApplication(argc, argv) {}

ZUI_APP::~ZUI_APP() = default;

ZUI_UI_MGR* ZUI_APP::get_ui_mgr()
{
    return &m_ui_mgr;
}

QCoreApplication* kovq_get_app()
{
    return QCoreApplication::instance();
}
