// SPDX-License-Identifier: MIT

// Looks into a running program on behalf of a test: a plugin that Qt loads when QT_QPA_GENERIC_PLUGINS names it, so
// that the program itself holds no test code.
#pragma once

#include <QGenericPlugin>

class INSPECTOR_PLUGIN : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "inspector.json")

public:
    // `socket_path` is the path of the local socket on which the test listens. The caller owns the result.
    QObject* create(const QString& key, const QString& socket_path) override;
};
