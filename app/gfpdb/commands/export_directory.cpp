// SPDX-License-Identifier: MIT
#include "commands/export_directory.h"

#include "cli_new_device.h"
#include "record_writer.h"

#include "whole_file/whole_file.h"

#include "gfpdb/gfpdb_text.h"

#include <QDir>
#include <QFileInfo>

namespace {

// A file that is to be written.
struct FILE_TO_WRITE
{
    std::string path;
    std::string text;
    bool is_there;
};

QString path_of(const std::string& path)
{
    return QFile::decodeName(QByteArray::fromStdString(path));
}

bool has_content(const std::string& path, const std::string& text)
{
    std::string problem;
    // One byte more tells a longer file.
    const std::optional<std::string> content = read_whole_file(path, text.size() + 1, problem);
    return content && *content == text;
}

// The files that are not yet as they will be, and how many are. What cannot be exported is reported, and sets
// `exit_code`.
std::vector<FILE_TO_WRITE> plan(const CLI_CALL& call, const std::vector<CLI_EXPORTED>& records,
                                const std::string& directory, int& unchanged, int& exit_code)
{
    std::vector<FILE_TO_WRITE> files;
    for (const CLI_EXPORTED& each : records) {
        const std::string path = directory + each.file;
        std::vector<GFPDB_RECORD> unreadable;
        const std::string text = gfpdb_write_records({each.record}, unreadable);
        if (!unreadable.empty())
            exit_code = cli_report_unreadable(call, each.record);
        else if (has_content(path, text))
            ++unchanged;
        else
            files.push_back({path, text, QFileInfo::exists(path_of(path))});
    }
    return files;
}

// False when a file would be replaced that must not be; a message was printed for each.
bool may_write(const CLI_CALL& call, const std::vector<FILE_TO_WRITE>& files)
{
    bool may = true;
    for (const FILE_TO_WRITE& file : files) {
        if (!file.is_there || call.has(CLI_OPTION_REPLACE))
            continue;
        call.output.error(file.path + ": The file already exists with different content: --replace replaces it.");
        may = false;
    }
    if (!may)
        call.output.error("Nothing was exported.");
    return may;
}

} // namespace

int cli_report_unreadable(const CLI_CALL& call, const GFPDB_RECORD& record)
{
    return call.database_failed("The flows of the " + gfpdb_title(record) + " cannot be read: it is not exported.");
}

int cli_export_to_directory(const CLI_CALL& call, const std::vector<CLI_EXPORTED>& records,
                            const std::string& directory)
{
    const std::string slashed = directory.back() == '/' ? directory : directory + '/';
    const QFileInfo folder(path_of(directory));
    if (!folder.isDir() && !QDir().mkdir(folder.filePath())) {
        const std::string reason = gfpdb_to_utf8(qt_error_string());
        call.output.error(directory + ": The directory cannot be made: " + reason + '.');
        return CLI_EXIT_BAD_FILE;
    }
    int exit_code = CLI_EXIT_OK;
    int unchanged = 0;
    const std::vector<FILE_TO_WRITE> files = plan(call, records, slashed, unchanged, exit_code);
    if (!may_write(call, files))
        return CLI_EXIT_BAD_FILE;
    int created = 0;
    int done = 0;
    for (const FILE_TO_WRITE& file : files) {
        std::string problem;
        if (!write_record_file(file.path, file.text, problem)) {
            call.output.error(file.path + ": The file cannot be written: " + problem + '.');
            call.output.error(std::to_string(done) + " of " + std::to_string(files.size()) + " files were written.");
            return CLI_EXIT_BAD_FILE;
        }
        created += file.is_there ? 0 : 1;
        call.output.progress("Writing", ++done, static_cast<int>(files.size()));
    }
    call.output.finish_progress();
    call.output.print("Exported " + std::to_string(created) + " new, " + std::to_string(done - created) +
                      " replaced; " + std::to_string(unchanged) + " unchanged in " + slashed + '\n');
    return exit_code;
}
