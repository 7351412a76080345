// SPDX-License-Identifier: MIT

// Many programs at once on one server: engineers with the dialog and build machines with the tool, as programs of their
// own. Prints how long each kind of act takes, at the median and at 99 %.
//
//     load_server [--users 200] [--machines 40] [--seconds 60] [--think 1000] [--devices 10000] [--pooled]
//     load_server --sizes           a list and a search with 10,000 and with 1,000,000 devices
//
// The server is the program's own, in the temporary directory, with the settings of PostgreSQL's package but for the
// number of connections; what is stored is synced. `--think` is what a user waits between two acts, in milliseconds, 0
// to 2 times that. A refusal because somebody else has changed the device is counted, everything else is an error.
#include "pg_bouncer.h"
#include "postgres_server.h"

#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_server.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <vector>

namespace {

constexpr int SCHEME = PGMIO_ACTIVE_SERIAL;
constexpr int FAMILIES = 50;
constexpr int IMPORT_RECORDS = 20;
const QString SCHEMA = "gfpdb";

int random_below(int limit)
{
    return QRandomGenerator::global()->bounded(limit);
}

bool is_promised(const std::string& reason)
{
    return reason.find("since it was ") != std::string::npos;
}

void say(const QString& line)
{
    std::fputs((line + '\n').toUtf8().constData(), stdout);
    std::fflush(stdout);
}

// One program that uses the directory. Each act is one turn of the event loop, as a click is.
class PLAYER
{
public:
    PLAYER(const std::string& directory, int devices) : m_directory(directory), m_devices(devices) {}

    void act_as_engineer()
    {
        const int dice = random_below(100);
        if (dice < 10)
            timed("open", [this] { return open(); });
        else if (dice < 60)
            timed("select", [this] { return select(random_device()); });
        else if (dice < 75)
            timed("search", [this] { return search(); });
        else if (dice < 97)
            timed("Apply", [this] { return apply(random_device()); });
        else
            timed("import", [this] { return import(); });
    }

    void act_as_machine()
    {
        if (random_below(10) == 0)
            timed("check", [this] { return check(); });
        else
            timed("export", [this] { return export_one(); });
    }

    std::string open()
    {
        GFPDB_HELPER::set_active_flash_family(PGMIO_ACTIVE_SERIAL);
        m_manager = GFPDB_HELPER::get_active_flash_manager(true);
        m_family = random_below(FAMILIES);
        m_manager->set_device_family(m_family);
        std::vector<std::string> names;
        m_manager->get_custom_flash_names(names, m_family, SCHEME, 0);
        std::vector<std::string> templates;
        m_manager->get_template_list(templates);
        std::vector<std::string> densities;
        m_manager->get_density_list(densities);
        return names.empty() ? GFPDB_HELPER::get_database_problem() + " (no names)" : select(names.front());
    }

private:
    // A device of the family that was opened last.
    std::string random_device() const
    {
        return "Device " + std::to_string(random_below(m_devices / FAMILIES) * FAMILIES + m_family);
    }

    std::string select(const std::string& name) const
    {
        m_manager->is_hidden_flash(name, false);
        return m_manager->find_flash(name, true) == nullptr ? name + " is not found" : std::string();
    }

    std::string search() const
    {
        std::string error;
        const std::string name = "New " + std::to_string(random_below(1000000));
        return m_manager->check_string_property(GFPDB_FLASH_NAME, name, error) ? std::string() : error;
    }

    std::string apply(const std::string& name) const
    {
        const GFPDB_FLASH* former = m_manager->find_flash(name, true);
        if (former == nullptr)
            return name + " is not found";
        GFPDB_FLASH* record = m_manager->create_flash(name);
        record->set_user_defined(true);
        for (const GFPDB_FLASH_PROPERTY property : {GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_FLOW_TEMPLATE})
            record->set_string_property(property, former->get_string_property(property));
        record->set_density(former->get_density());
        record->set_int_property(GFPDB_FLASH_TOTAL_DIE, 1 + random_below(16));
        record->set_string_property(GFPDB_FLASH_DEVICE_ID,
                                    "0x" + QByteArray::number(random_below(256), 16).toStdString());
        if (!m_manager->delete_flash(name, std::string()) || !m_manager->save_flash(record, std::string()))
            return m_manager->get_last_error();
        return std::string();
    }

    std::string import() const
    {
        GFPDB_DATABASE database(m_directory);
        GFPDB_RECORD_FILE file;
        const std::string prefix = "Import " + std::to_string(QCoreApplication::applicationPid()) + ' ';
        for (int i = 0; i < IMPORT_RECORDS; ++i) {
            GFPDB_RECORD record;
            record.row.family = m_family;
            record.row.scheme = SCHEME;
            record.row.name = prefix + std::to_string(i);
            record.row.device_id = "0x" + QByteArray::number(random_below(256), 16).toStdString();
            file.records.push_back(record);
        }
        GFPDB_IMPORT_PLAN plan(database, GFPDB_EXISTING::REPLACED, GFPDB_RECORD_RULES::NAMES);
        plan.add(file);
        if (!file.problems.empty())
            return file.problems.front().text;
        return database.import(plan, [](int) { return true; }) ? std::string() : database.get_last_error();
    }

    std::string export_one() const
    {
        GFPDB_DATABASE database(m_directory);
        GFPDB_SELECTION selection;
        selection.name = random_device();
        for (const GFPDB_RECORD& record : database.find_stored(selection)) {
            if (!database.load(record))
                return record.name() + " cannot be read";
            return std::string();
        }
        return selection.name + " is not found";
    }

    std::string check() const
    {
        GFPDB_DATABASE database(m_directory);
        GFPDB_SELECTION selection;
        selection.family = m_family;
        for (const GFPDB_RECORD& record : database.find_stored(selection)) {
            if (record.is_template || random_below(10) > 0)
                continue;
            if (!database.load(record))
                return record.name() + " cannot be read";
        }
        return std::string();
    }

    template <typename ACT>
    void timed(const char* name, const ACT& act)
    {
        QElapsedTimer timer;
        timer.start();
        const std::string reason = act();
        const double ms = double(timer.nsecsElapsed()) / 1e6;
        if (reason.empty())
            say(QString("%1 %2").arg(QLatin1String(name)).arg(ms));
        else
            say((is_promised(reason) ? "refused " : "error ") + QString(QLatin1String(name)) + ": " +
                QString::fromStdString(reason));
    }

    std::string m_directory;
    int m_devices;
    GFPDB_MGR* m_manager = nullptr;
    int m_family = 0;
};

int play(const QCommandLineParser& options)
{
    const std::string directory = options.value("play").toStdString();
    GFPDB_MGR::set_db_custom_dir(directory);
    PLAYER player(directory, options.value("devices").toInt());
    const bool is_machine = options.value("role") == "machine";
    const int think = options.value("think").toInt();
    QElapsedTimer time;
    time.start();
    bool is_open = false;
    QTimer turn;
    turn.setSingleShot(true);
    QObject::connect(&turn, &QTimer::timeout, [&] {
        if (time.elapsed() > options.value("seconds").toInt() * 1000LL) {
            QCoreApplication::quit();
            return;
        }
        if (!is_open)
            player.open();
        else if (is_machine)
            player.act_as_machine();
        else
            player.act_as_engineer();
        is_open = true;
        turn.start(random_below(2 * think + 1));
    });
    turn.start(random_below(2 * think + 1));
    return QCoreApplication::exec();
}

// Devices with the numbers from `from` on, evenly in so many families from `first_family` on.
void fill(const POSTGRES_SERVER& server, int from, int count, int first_family = 0)
{
    server.run(QString("INSERT INTO gfpdb.device (name_key, family, scheme, name, device_id, voltage, density, "
                       "total_die, template_name, flow_template, revision, saved_at, single_flows, quad_flows) "
                       "SELECT 'device ' || n, %5 + n % %1, %2, 'Device ' || n, '0xC2', '3.3V', '128Mb', 1, '', '', "
                       "'r' || n, '2024-05-17T09:30:00Z', '', '' FROM generate_series(%3, %4) AS n")
                   .arg(FAMILIES)
                   .arg(SCHEME)
                   .arg(from)
                   .arg(from + count - 1)
                   .arg(first_family));
    server.run("ANALYZE");
}

// The server with its schema, and a directory that names it, or the pooler in front of it.
struct STAGE
{
    explicit STAGE(bool is_pooled)
        : server({"fsync=on", "full_page_writes=on", "shared_buffers=128MB", "max_connections=400"})
    {
        server.run(QString::fromStdString(gfpdb_server_sql(SCHEMA.toStdString())));
        server.run("CREATE ROLE engineer LOGIN IN ROLE gfpdb_editor");
        if (is_pooled)
            pooler = std::make_unique<PG_BOUNCER>(server, 20);
        GFPDB_SERVER named;
        named.hosts = {is_pooled ? "127.0.0.1" : server.socket_directory().toStdString()};
        named.ports = {is_pooled ? pooler->port() : server.port()};
        named.database = POSTGRES_SERVER::DATABASE;
        named.user = "engineer";
        std::string error;
        if (!gfpdb_write_server(path(), named, error))
            qFatal("%s", error.c_str());
    }
    std::string path() const { return QFile::encodeName(directory.path() + '/').toStdString(); }

    POSTGRES_SERVER server;
    std::unique_ptr<PG_BOUNCER> pooler;
    QTemporaryDir directory;
};

// Of sorted values.
double at(const std::vector<double>& values, double part)
{
    return values[static_cast<std::size_t>(part * double(values.size() - 1))];
}

int report(const QList<QByteArray>& lines, int seconds)
{
    std::map<QByteArray, std::vector<double>> times;
    int refused = 0;
    int errors = 0;
    int acts = 0;
    for (const QByteArray& line : lines) {
        const QList<QByteArray> words = line.split(' ');
        if (words.first() == "refused")
            ++refused;
        else if (words.first() == "error" && ++errors <= 10)
            std::printf("%s\n", line.constData());
        else if (words.size() == 2)
            times[words.first()].push_back(words.last().toDouble());
    }
    std::printf("%-8s %8s %12s %12s %12s\n", "act", "times", "median, ms", "99 %, ms", "longest, ms");
    for (auto& [name, values] : times) {
        acts += int(values.size());
        std::sort(values.begin(), values.end());
        std::printf("%-8s %8d %12.1f %12.1f %12.1f\n", name.constData(), int(values.size()), at(values, 0.5),
                    at(values, 0.99), values.back());
    }
    std::printf("%d acts, %.0f a second; %d refused because somebody was faster, %d errors\n", acts,
                double(acts) / seconds, refused, errors);
    return errors == 0 ? 0 : 1;
}

int play_all(const QCommandLineParser& options)
{
    const STAGE stage(options.isSet("pooled"));
    fill(stage.server, 0, options.value("devices").toInt());
    std::vector<std::unique_ptr<QProcess>> players;
    const int users = options.value("users").toInt();
    for (int i = 0; i < users; ++i) {
        players.push_back(std::make_unique<QProcess>());
        players.back()->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        players.back()->start(QCoreApplication::applicationFilePath(),
                              {"--play", QString::fromStdString(stage.path()), "--role",
                               i < options.value("machines").toInt() ? "machine" : "engineer", "--devices",
                               options.value("devices"), "--seconds", options.value("seconds"), "--think",
                               options.value("think")});
    }
    QList<QByteArray> lines;
    for (const auto& player : players) {
        player->waitForFinished(-1);
        if (player->exitStatus() != QProcess::NormalExit || player->exitCode() != 0)
            lines += "error a program has ended";
        lines += player->readAllStandardOutput().split('\n');
    }
    return report(lines, options.value("seconds").toInt());
}

// The median of many; the same questions with few and with many devices beside them.
int compare_sizes()
{
    const STAGE stage(false);
    GFPDB_MGR::set_db_custom_dir(stage.path());
    const auto median_us = [](const std::function<void()>& act) {
        std::vector<double> times;
        for (int i = 0; i < 301; ++i) {
            QElapsedTimer timer;
            timer.start();
            act();
            times.push_back(double(timer.nsecsElapsed()) / 1e3);
        }
        std::sort(times.begin(), times.end());
        return at(times, 0.5);
    };
    // The family that is listed has as many devices each time.
    constexpr int FEW = 10000;
    constexpr int MANY = 1000000;
    double first_list = 0;
    double first_search = 0;
    for (const int devices : {FEW, MANY}) {
        fill(stage.server, devices == FEW ? 0 : FEW, devices == FEW ? FEW : MANY - FEW, devices == FEW ? 0 : FAMILIES);
        GFPDB_HELPER::set_active_flash_family(PGMIO_ACTIVE_SERIAL);
        GFPDB_MGR& manager = *GFPDB_HELPER::get_active_flash_manager(true);
        manager.set_device_family(0);
        std::vector<std::string> names;
        const double list = median_us([&] { manager.get_custom_flash_names(names, 0, SCHEME, 0); });
        std::string error;
        const double search = median_us([&] { manager.check_string_property(GFPDB_FLASH_NAME, "Device 4711", error); });
        first_list = devices == FEW ? list : first_list;
        first_search = devices == FEW ? search : first_search;
        std::printf("%8d devices: list of %d names %.0f us (%.2f), search for a name %.0f us (%.2f)\n", devices,
                    int(names.size()), list, list / first_list, search, search / first_search);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCommandLineParser options;
    options.addOptions({{"users", "programs at once", "N", "200"},
                        {"machines", "build machines among them", "N", "40"},
                        {"seconds", "how long", "N", "60"},
                        {"think", "between two acts, in ms", "N", "1000"},
                        {"devices", "stored devices", "N", "10000"},
                        {"pooled", "through PgBouncer"},
                        {"sizes", "compare 10,000 and 1,000,000 devices"},
                        {"play", "be one of them", "DIRECTORY"},
                        {"role", "engineer or machine", "ROLE"}});
    options.addHelpOption();
    options.process(application);
    if (options.isSet("play"))
        return play(options);
    return options.isSet("sizes") ? compare_sizes() : play_all(options);
}
