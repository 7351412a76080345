// SPDX-License-Identifier: MIT

// An import with the command line tool, with system calls that fail in it.
#include "cli_program.h"
#include "cli_test.h"
#include "commands/gfpdb_commands.h"
#include "fault_stand.h"
#include "test_rows.h"

#include <cstdio>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace {

QString import_file(const GFPDB_PLACE& place)
{
    return q(place.path("import.json"));
}

// What the tool prints as errors; nothing when it ends well. It runs in this process, which prints nothing after that.
std::string complaint_of(const QStringList& arguments)
{
    const std::unique_ptr<std::FILE, decltype(&std::fclose)> errors(std::tmpfile(), &std::fclose);
    ::dup2(::fileno(errors.get()), STDERR_FILENO);
    ::dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), STDOUT_FILENO);
    const int exit_code =
        cli_run({"gfpdb", "", {CLI_IMPORT_COMMAND}}, QStringList(QStringLiteral("gfpdb")) + arguments);
    std::rewind(errors.get());
    std::string text;
    for (int byte = std::fgetc(errors.get()); byte != EOF; byte = std::fgetc(errors.get()))
        text += char(byte);
    if (exit_code == 0)
        return std::string();
    return text.empty() ? FAULT_TOLD_NOTHING : text;
}

void change_stored_part(const std::string& name)
{
    GFPDB_MGR* manager = fresh_manager();
    GFPDB_FLASH* record = manager->find_flash(name, true);
    record->set_density("128Mb");
    if (!manager->save_flash(record, std::string()))
        qFatal("%s", manager->get_last_error().c_str());
}

// The file has a device that is in the database with another content, and one that is not there.
void prepare(const GFPDB_PLACE& place, bool has_database)
{
    write_file(place.settings(), SETTINGS_FOR_FAULTS);
    save_part("Kept");
    save_part("Replaced");
    const std::string before = read_file(place.db_file());
    change_stored_part("Replaced");
    save_part("New");
    if (run_tool({"export", "--dir", q(place.db_dir()), "--output", import_file(place)}).exit_code != 0)
        qFatal("nothing to import");
    if (has_database)
        write_file(place.db_file(), before);
    else
        QFile::remove(q(place.db_file()));
    QFile::remove(q(place.db_file() + "-journal"));
}

} // namespace

class TEST_IMPORT_FAULTS : public QObject
{
    Q_OBJECT

private slots:
    void an_import_happens_whole_or_not_at_all_data()
    {
        rows<bool>({{"into a database", true}, {"into an empty directory", false}});
    }

    void an_import_happens_whole_or_not_at_all()
    {
        const bool has_database = row<bool>();
        FAULT_SCENE scene;
        scene.prepare = [&](const GFPDB_PLACE& place) { prepare(place, has_database); };
        scene.begin = [](const GFPDB_PLACE&) {};
        scene.change = [](const GFPDB_PLACE& place) {
            return complaint_of({"import", "--replace", "--dir", q(place.db_dir()), import_file(place)});
        };
        scene.state = &all_records;

        FAULT_STAND(scene).verify({FAULT_CALL::WRITE, FAULT_CALL::SYNC, FAULT_CALL::LOCK});
    }
};

QTEST_GUILESS_MAIN(TEST_IMPORT_FAULTS)

#include "test_import_faults.moc"
