// SPDX-License-Identifier: MIT
#include "inspector_plugin.h"

#include "inspector.h"

QObject* INSPECTOR_PLUGIN::create(const QString& key, const QString& socket_path)
{
    return key == QLatin1String("gfpq_inspector") ? new INSPECTOR(socket_path) : nullptr;
}
