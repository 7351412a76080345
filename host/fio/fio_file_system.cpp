// SPDX-License-Identifier: MIT
#include "fio/fio_file_system.h"

#include <QFile>
#include <QLoggingCategory>

#include <filesystem>
#include <system_error>

namespace {

Q_LOGGING_CATEGORY(FIO_LOG, "host.fio")

// What is wrong with `directory`, empty when it is the current directory now.
std::error_code enter(const std::string& directory)
{
    // The system would see the text up to the zero byte only: another directory.
    if (directory.find('\0') != std::string::npos)
        return std::make_error_code(std::errc::invalid_argument);
    std::error_code error;
    std::filesystem::current_path(directory, error);
    return error;
}

} // namespace

bool FIO_FILE_SYSTEM::set_current_directory(const std::string& directory)
{
    const std::error_code error = enter(directory);
    if (!error)
        return true;
    qCWarning(FIO_LOG, "Cannot make \"%s\" the current directory: %s",
              qUtf8Printable(QFile::decodeName(QByteArray::fromStdString(directory))), error.message().c_str());
    return false;
}
