// SPDX-License-Identifier: MIT

// What the tests of the flash database share.
#pragma once

#include "gfpdb/gfpdb_mgr.h"
#include "model/gfpdb_row.h"
#include "server_database.h"

#include <QTemporaryDir>
#include <QTest>
#include <QVariant>

#include <memory>
#include <string>
#include <vector>

// A family and the schemes of it that the tests use.
constexpr int FAMILY = 3;
constexpr int OTHER_FAMILY = 5;
constexpr int ACTIVE_SERIAL = PGMIO_ACTIVE_SERIAL;
constexpr int QUAD = PGMIO_ACTIVE_SERIAL_X4;
constexpr bool SINGLE_IO = false;
constexpr bool QUAD_IO = true;

// A scratch directory, ending in "/", and the environment that makes the library use it and nothing of the user's: the
// settings file is settings.ini in it, the data directory data/, the custom database directory db/. Where the tests run
// on a server, that directory names a schema of its own there.
class GFPDB_PLACE
{
public:
    enum class ON
    {
        DISK,   // in the current directory
        MEMORY, // where syncing costs nothing, if the system has such a place
    };
    explicit GFPDB_PLACE(ON medium = ON::DISK);
    ~GFPDB_PLACE();

    std::string path(const std::string& name) const;
    // The custom database directory, and the database in it.
    std::string db_dir() const { return path("db/"); }
    std::string db_file() const { return path("db/gfpdb.sqlite"); }
    std::string settings() const { return path("settings.ini"); }

private:
    QTemporaryDir m_dir;
    std::unique_ptr<SERVER_DATABASE> m_server;
};

// A manager for (FAMILY, ACTIVE_SERIAL) that has just opened the place's custom directory.
GFPDB_MGR* fresh_manager(int family = FAMILY, int scheme = ACTIVE_SERIAL);

// A record that was not saved, with a value for every property but the template name, and with flows in both variants:
// each operation has an action for each type, whose name says where it belongs.
GFPDB_FLASH* make_device(GFPDB_MGR& manager, const std::string& name);
// Puts the flows of make_device() into `record`; `mark` is a part of every action's name.
void fill_flows(GFPDB_MGR& manager, GFPDB_FLASH& record, const std::string& mark);

// Everything that can be read of a record, as one text to compare.
std::string text_of(const GFPDB_FLASH& record);
std::string text_of_flows(const std::vector<GFPDB_OPERATION*>* operations);

// A row with a value in each column.
GFPDB_ROW make_row(const std::string& name);
// Everything of a row but its revision.
std::string text_of(const GFPDB_ROW& row);

std::string read_file(const std::string& path);
void write_file(const std::string& path, const std::string& content);
void make_dir(const std::string& path);
// What this process has open in the directory, or had before it was removed.
QStringList open_files(const std::string& directory);
// The first value of `statement`, run on the database in `path` past the library; invalid when it fails. Where the
// directory of `path` names a server, it runs there.
QVariant run_sql(const std::string& path, const std::string& statement);

// Another program that has the database in `file` locked, until the object goes; likewise.
class FOREIGN_LOCK
{
public:
    explicit FOREIGN_LOCK(const std::string& file);
    ~FOREIGN_LOCK();
    FOREIGN_LOCK(const FOREIGN_LOCK&) = delete;
    FOREIGN_LOCK& operator=(const FOREIGN_LOCK&) = delete;

private:
    SERVER_DATABASE* m_server = nullptr;
};

// The library will print a warning that has `part` in it, or a message of just that text.
void expect_warning(const std::string& part);
void expect_message(const std::string& text, QtMsgType type = QtWarningMsg);

// Base of the tests of the flash database: a place for each test function, and what it adds to that before and after.
class DATABASE_TEST : public QObject
{
    Q_OBJECT

protected:
    // Saves the device of make_device() into the place, as a template too if that has a name.
    GFPDB_FLASH* save(const std::string& name, const std::string& template_name = std::string());
    // Opens the place with a fresh manager, and saves the devices "A", with the template "T", and "B".
    void make_database();

    std::unique_ptr<GFPDB_PLACE> m_place;
    GFPDB_MGR* m_mgr = nullptr;

private slots:
    void init();
    void cleanup();

private:
    virtual GFPDB_PLACE::ON medium() const { return GFPDB_PLACE::ON::DISK; }
    virtual void set_up() {}
    virtual void take_down() {}
};

// The one text that a check gives back; empty when it passed.
std::string checked(const GFPDB_MGR& manager, GFPDB_FLASH_PROPERTY property, const std::string& value);
std::string checked(const GFPDB_MGR& manager, GFPDB_FLASH_PROPERTY property, int value);

std::vector<std::string> custom_names(const GFPDB_MGR& manager, int family = FAMILY, int scheme = ACTIVE_SERIAL);
std::vector<std::string> user_templates(const GFPDB_MGR& manager);

using NAMES = std::vector<std::string>;

namespace QTest {
template <>
char* toString(const std::string& text);
template <>
char* toString(const std::vector<std::string>& texts);
} // namespace QTest
