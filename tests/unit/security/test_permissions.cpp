// SPDX-License-Identifier: MIT

// Who may write what the library makes: never everyone, whatever the user's mask.
#include "base/gfpdb_create_dir.h"
#include "base/gfpdb_settings.h"
#include "gfpdb_test.h"
#include "test_rows.h"

#include <QDirIterator>

#include <algorithm>
#include <optional>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace {

// Sets the process's mask for as long as it lives.
class MASK
{
public:
    explicit MASK(mode_t mask) : m_former(::umask(mask)) {}
    ~MASK() { ::umask(m_former); }

private:
    mode_t m_former;
};

int mode_of(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? int(status.st_mode & 07777) : -1;
}

QStringList writable_by_everyone(const std::string& directory)
{
    QStringList names;
    for (QDirIterator entries(QString::fromStdString(directory), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                              QDirIterator::Subdirectories);
         entries.hasNext();) {
        const QString name = entries.next();
        if ((mode_of(name.toStdString()) & S_IWOTH) != 0)
            names << name;
    }
    return names;
}

// A group besides his first one that the user may give what is his to: any for root, for others one that they are in as
// well. None for a user of a single group.
std::optional<gid_t> other_group()
{
    if (::geteuid() == 0)
        return ::getegid() + 1;
    std::vector<gid_t> groups(std::size_t(std::max(0, ::getgroups(0, nullptr))));
    groups.resize(std::size_t(std::max(0, ::getgroups(int(groups.size()), groups.data()))));
    const auto other = std::find_if(groups.begin(), groups.end(), [](gid_t group) { return group != ::getegid(); });
    return other == groups.end() ? std::nullopt : std::optional<gid_t>(*other);
}

} // namespace

class TEST_PERMISSIONS : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void nothing_that_is_made_can_be_written_by_everyone()
    {
        const MASK mask(0);
        qputenv("GFPDB_SETTINGS", QByteArray::fromStdString(m_place->path("new/config/settings.ini")));
        const std::string directory = m_place->path("new/deep/database/");
        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(directory, true));
        GFPDB_MGR::set_db_custom_dir(directory);
        save_device();
        GFPDB_MGR::set_db_custom_dir(std::string());
        save_device();

        QVERIFY(mode_of(m_place->path("new/config/settings.ini")) > 0);
        QVERIFY(mode_of(directory + "gfpdb.sqlite-journal") > 0);
        QVERIFY(mode_of(m_place->path("data/gfpdb/gfpdb.sqlite")) > 0);
        QCOMPARE(writable_by_everyone(m_place->path("")), QStringList());
        QCOMPARE(mode_of(m_place->path("new/deep")), 0775);
        QCOMPARE(mode_of(m_place->path("data/gfpdb")), 0775);
    }

    void the_users_mask_holds_for_a_database_of_his_own()
    {
        QCOMPARE(::chmod(m_place->db_dir().c_str(), 0755), 0);
        const MASK mask(077);
        save_device();
        QVERIFY(gfpdb_create_dir(m_place->path("own/")));

        QCOMPARE(mode_of(m_place->db_file()), 0600);
        QCOMPARE(mode_of(m_place->db_file() + "-journal"), 0600);
        QCOMPARE(mode_of(m_place->path("own")), 0700);
    }

    void the_database_of_a_group_directory_is_the_groups_data()
    {
        rows<int, int, int>({{"the usual mask", 02775, 022, 0664},
                             {"a strict mask", 02770, 077, 0660},
                             {"no mask", 02777, 0, 0664},
                             {"not the group's", 02755, 022, 0644},
                             {"not the group's, no mask", 02755, 0, 0644}});
    }

    void the_database_of_a_group_directory_is_the_groups()
    {
        const auto [directory_mode, mask, file_mode] = row<int, int, int>();
        QCOMPARE(::chmod(m_place->db_dir().c_str(), mode_t(directory_mode)), 0);
        const MASK own_mask{mode_t(mask)};
        save_device();

        QCOMPARE(mode_of(m_place->db_file()), file_mode);
        QCOMPARE(mode_of(m_place->db_file() + "-journal"), file_mode);
    }

    // Without the directory's mark for it, a new file belongs to its maker's first group, which may be everyone's. Who
    // can give the directory to no other group has nothing to see here but that it stays his own group's.
    void a_file_of_another_group_stays_the_users()
    {
        const std::optional<gid_t> group = other_group();
        if (group)
            QCOMPARE(::chown(m_place->db_dir().c_str(), uid_t(-1), *group), 0);
        QCOMPARE(::chmod(m_place->db_dir().c_str(), 0775), 0);
        const MASK mask(022);
        save_device();

        QCOMPARE(mode_of(m_place->db_file()), group ? 0644 : 0664);
    }

    // The mark makes a new file the directory's group's, whatever the groups of its maker.
    void a_file_that_the_directory_gives_its_group_is_the_groups()
    {
        const gid_t group = other_group().value_or(::getegid());
        QCOMPARE(::chown(m_place->db_dir().c_str(), uid_t(-1), group), 0);
        QCOMPARE(::chmod(m_place->db_dir().c_str(), 02775), 0);
        const MASK mask(022);
        save_device();

        struct stat status = {};
        QCOMPARE(::stat(m_place->db_file().c_str(), &status), 0);
        QCOMPARE(status.st_gid, group);
        QCOMPARE(mode_of(m_place->db_file()), 0664);
    }

    void settings_that_everyone_could_write_are_corrected()
    {
        write_file(m_place->settings(), "[database]\ncustom_dir=/a/\n");
        QCOMPARE(::chmod(m_place->settings().c_str(), 0666), 0);
        QVERIFY(gfpdb_write_setting(GFPDB_SETTING_CUSTOM_DIR, "/b/"));

        QCOMPARE(mode_of(m_place->settings()), 0664);
        QCOMPARE(gfpdb_read_setting(GFPDB_SETTING_CUSTOM_DIR), std::string("/b/"));
    }

private:
    void save_device()
    {
        GFPDB_MGR* manager = fresh_manager();
        QVERIFY(manager->save_flash(make_device(*manager, "A"), std::string()));
    }
};

QTEST_GUILESS_MAIN(TEST_PERMISSIONS)

#include "test_permissions.moc"
