// SPDX-License-Identifier: MIT

// PgBouncer in front of a test's server, in transaction mode: what follows the end of a transaction may be on another
// connection. It has two connections to the server for each role, and listens on 127.0.0.1.
#pragma once

#include "postgres_server.h"

class PG_BOUNCER
{
public:
    explicit PG_BOUNCER(const POSTGRES_SERVER& server, int pool_size = 2);

    int port() const { return m_port; }
    QString log() const;

private:
    SERVER_DIRECTORY m_directory;
    int m_port = 0;
    std::unique_ptr<SERVER_PROCESS> m_process;
};
