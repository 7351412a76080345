// SPDX-License-Identifier: MIT
#include "dialog/gfpq_connection_cut.h"

#include "kovq/kovq_connect.h"

void GFPQ_CONNECTION::make() const
{
    kovq_safe_connect(sender, signal, receiver, slot, Qt::AutoConnection, "", 0);
}

bool GFPQ_CONNECTION::cut() const
{
    return QObject::disconnect(sender, signal, receiver, slot);
}

GFPQ_CONNECTION_CUT::GFPQ_CONNECTION_CUT(std::initializer_list<GFPQ_CONNECTION> connections)
{
    m_cut.reserve(connections.size());
    for (const GFPQ_CONNECTION& connection : connections) {
        if (connection.cut())
            m_cut.push_back(connection);
    }
}

GFPQ_CONNECTION_CUT::~GFPQ_CONNECTION_CUT()
{
    for (const GFPQ_CONNECTION& connection : m_cut)
        connection.make();
}
