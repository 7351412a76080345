// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_connection.h"

#include <QFile>
#include <QSerialPortInfo>

std::vector<GFPE_PORT> gfpe_serial_ports()
{
    std::vector<GFPE_PORT> ports;
    const QList<QSerialPortInfo> found = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo& info : found)
        ports.push_back({QFile::encodeName(info.systemLocation()).toStdString(), info.description().toStdString()});
    return ports;
}
