// SPDX-License-Identifier: MIT
#include "pg_bouncer.h"

#include <QFile>

#include <csignal>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// Roles that are made later are found too: it asks the server for those that it does not know.
const QString SETTINGS = QStringLiteral(R"([databases]
* = host=%1 port=%2 auth_user=%3
[pgbouncer]
listen_addr = 127.0.0.1
listen_port = %4
unix_socket_dir =
auth_type = trust
auth_file = %5
auth_query = SELECT usename, '' FROM pg_shadow WHERE usename = $1
pool_mode = transaction
default_pool_size = %6
max_client_conn = 1000
)");

bool takes_connections(const QString& port)
{
    const int line = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<quint16>(port.toInt()));
    const bool is_taken = ::connect(line, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(line);
    return is_taken;
}

} // namespace

PG_BOUNCER::PG_BOUNCER(const POSTGRES_SERVER& server, int pool_size)
{
    const QString users = QStringLiteral("users.txt");
    m_directory.write(users, QByteArray("\"") + POSTGRES_SERVER::ADMIN + "\" \"\"\n");
    for (int attempt = 0; attempt < 5; ++attempt) {
        m_port = free_tcp_port();
        const QString settings = SETTINGS.arg(server.socket_directory())
                                     .arg(server.port())
                                     .arg(QLatin1String(POSTGRES_SERVER::ADMIN))
                                     .arg(m_port)
                                     .arg(m_directory.path(users))
                                     .arg(pool_size);
        m_directory.write(QStringLiteral("pgbouncer.ini"), settings.toUtf8());
        m_process = std::make_unique<SERVER_PROCESS>(
            QStringList{QStringLiteral("/usr/sbin/pgbouncer"), m_directory.path(QStringLiteral("pgbouncer.ini"))},
            m_directory.path(QStringLiteral("pgbouncer.log")), SIGTERM);
        if (wait_until_ready(*m_process, &takes_connections, QString::number(m_port)))
            return;
    }
    qFatal("PgBouncer does not start: %s", qPrintable(log()));
}

QString PG_BOUNCER::log() const
{
    QFile file(m_directory.path(QStringLiteral("pgbouncer.log")));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
