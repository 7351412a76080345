// SPDX-License-Identifier: MIT

// The host application object.
#pragma once

#include "kovq/kovq_export.h"

#include <QApplication>

#include <string>

// What the host tells its modules about the place it works in.
class KOVQ_EXPORT ZUI_UI_MGR
{
public:
    // The directory (local 8-bit) that the host shows paths relative to; empty when paths are shown absolute.
    std::string get_base_dir() const { return m_base_dir; }
    void set_base_dir(const std::string& directory) { m_base_dir = directory; }

private:
    std::string m_base_dir;
};

// The application of a host program. Owns its UI manager.
class KOVQ_EXPORT ZUI_APP : public QApplication
{
    Q_OBJECT

public:
    // As QApplication: `argc` and `argv` must outlive the application.
    ZUI_APP(int& argc, char** argv);
    ~ZUI_APP() override;

    // Never null in this host; a host without a user interface manager returns null.
    virtual ZUI_UI_MGR* get_ui_mgr();

private:
    ZUI_UI_MGR m_ui_mgr;
};

// The application object of the process, or null when there is none.
KOVQ_EXPORT QCoreApplication* kovq_get_app();
