// SPDX-License-Identifier: MIT

// The database file.
//
// Input: the content of the file.
#include "fuzz_target.h"

#include "base/gfpdb_settings.h"
#include "manager/gfpdb_embedded_mgr.h"
#include "store/sqlite/gfpdb_sqlite_file.h"

#include <QDir>
#include <QFile>

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = 13;
constexpr const char* DEVICE = "Fuzzed Device";
constexpr const char* DEVICE_ID = "0xC2 0x20 0x19";
// So many records of a damaged file are looked at; more of them tell nothing new.
constexpr std::size_t LOOKED_AT = 20;

const std::string& directory()
{
    static const std::string path = fuzz_directory() + "database/";
    return path;
}

QString file_name(const char* suffix)
{
    return QFile::decodeName(QByteArray::fromStdString(directory() + GFPDB_SQLITE_FILE::NAME + suffix));
}

QByteArray file_content()
{
    QFile file(file_name(""));
    FUZZ_CHECK(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void look_at_records(GFPDB_EMBEDDED_MGR& manager)
{
    std::vector<std::string> names;
    manager.get_custom_flash_names(names, FAMILY, SCHEME, 0);
    std::vector<std::string> templates;
    manager.get_template_list(templates);
    names.insert(names.end(), templates.begin(), templates.end());
    if (names.size() > LOOKED_AT)
        names.resize(LOOKED_AT);
    for (const std::string& name : names) {
        manager.find_flash(name, true);
        manager.get_template_operations(name, true);
    }
    for (const GFPDB_HISTORY_ENTRY& entry : manager.store().get_history())
        manager.store().find_history(entry.id);
    manager.store().check_integrity();
}

// A save that reports success has stored the record.
void change_records(GFPDB_EMBEDDED_MGR& manager)
{
    GFPDB_FLASH* device = manager.create_flash(DEVICE);
    device->set_string_property(GFPDB_FLASH_DEVICE_ID, DEVICE_ID);
    if (manager.save_flash(device, directory())) {
        const GFPDB_FLASH* stored = manager.find_flash(DEVICE, true);
        FUZZ_CHECK(stored != nullptr && stored->get_string_property(GFPDB_FLASH_DEVICE_ID) == DEVICE_ID);
        if (manager.delete_flash(DEVICE, directory()))
            FUZZ_CHECK(manager.find_flash(DEVICE, true) == nullptr);
    } else {
        FUZZ_CHECK(!manager.get_last_error().empty());
    }
    manager.restore_flash(1, directory(), GFPDB_RESTORE_KEEP, std::string());
}

// Before the first input.
bool prepare()
{
    fuzz_write_file(fuzz_directory() + "settings.ini", "[database]\nbusy_timeout=0\n");
    FUZZ_CHECK(QDir().mkpath(QFile::decodeName(QByteArray::fromStdString(directory()))));
    GFPDB_MGR::set_db_custom_dir(directory());
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool is_prepared = prepare();
    FUZZ_CHECK(is_prepared);
    QFile::remove(file_name("-journal"));
    fuzz_write_file(directory() + GFPDB_SQLITE_FILE::NAME, FUZZ_INPUT(data, size).take_rest());
    GFPDB_EMBEDDED_MGR manager;
    manager.set_device_family(FAMILY);
    manager.set_config_scheme(SCHEME);
    const QByteArray content = file_content();
    const bool is_usable = manager.store().is_readable();
    look_at_records(manager);
    change_records(manager);
    // What cannot be used is left as it is.
    if (!is_usable)
        FUZZ_CHECK(file_content() == content);
    return 0;
}
