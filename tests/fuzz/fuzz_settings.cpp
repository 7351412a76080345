// SPDX-License-Identifier: MIT

// The settings file.
//
// Input: the content of the file.
#include "fuzz_target.h"

#include "base/gfpdb_settings.h"
#include "manager/gfpdb_custom_dir.h"

#include <QFile>

namespace {

// As long as a value has no line break it is written and read as it stands, without the blanks at its ends.
constexpr const char* VALUE = "/some where/\xC3\xA4/=[x]";

std::string content_of(const std::string& path)
{
    QFile file(QFile::decodeName(QByteArray::fromStdString(path)));
    FUZZ_CHECK(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string path = fuzz_directory() + "settings.ini";
    const std::string content = FUZZ_INPUT(data, size).take_rest();
    fuzz_write_file(path, content);

    const std::string timeout = gfpdb_read_setting(GFPDB_SETTING_BUSY_TIMEOUT);
    const std::string directory = gfpdb_normalised_dir(gfpdb_read_setting(GFPDB_SETTING_CUSTOM_DIR));
    FUZZ_CHECK(directory.front() == '/' && directory.back() == '/');

    if (!gfpdb_write_setting(GFPDB_SETTING_CUSTOM_DIR, VALUE)) {
        FUZZ_CHECK(content_of(path) == content);
        return 0;
    }
    FUZZ_CHECK(gfpdb_read_setting(GFPDB_SETTING_CUSTOM_DIR) == VALUE);
    FUZZ_CHECK(gfpdb_read_setting(GFPDB_SETTING_BUSY_TIMEOUT) == timeout);
    const std::string written = content_of(path);
    FUZZ_CHECK(gfpdb_write_setting(GFPDB_SETTING_CUSTOM_DIR, VALUE) && content_of(path) == written);
    return 0;
}
