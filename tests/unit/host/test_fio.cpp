// SPDX-License-Identifier: MIT

// Paths and the process's current directory.
#include "fio/fio_file_system.h"
#include "fio/fio_path.h"
#include "fio/pgm_common.h"
#include "test_rows.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <rapidcheck.h>

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Folder texts as users and programs write them: few letters, many separators.
rc::Gen<std::string> folder_text()
{
    return rc::gen::container<std::string>(rc::gen::element('/', '\\', '/', '.', 'a', 'B', ' ', '\xC3', '\''));
}

rc::Gen<std::string> absolute_text()
{
    return rc::gen::map(folder_text(), [](const std::string& text) { return "/" + text; });
}

std::string absolute(const std::string& path, const std::string& base)
{
    FIO_PATH result(path);
    result.become_absolute(base);
    return result.fullpath();
}

QByteArray bytes(const std::string& text)
{
    return QByteArray::fromStdString(text);
}

} // namespace

class TEST_FIO : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_start = std::filesystem::current_path();
        m_scratch = std::make_unique<QTemporaryDir>();
        QVERIFY(m_scratch->isValid());
    }

    void cleanup()
    {
        std::filesystem::current_path(m_start);
        m_scratch.reset();
    }

    void folder_slashes_data()
    {
        rows<QByteArray, QByteArray>({{"empty", "", ""},
                                      {"nothing to do", "/home/me/flash", "/home/me/flash"},
                                      {"end stays", "/home/me/flash/", "/home/me/flash/"},
                                      {"back slashes", "C:\\flash\\mine\\", "C:/flash/mine/"},
                                      {"run of slashes", "///home//me///", "/home/me/"},
                                      {"mixed run", "home/\\/\\me\\/", "home/me/"},
                                      {"slashes only", "\\\\//", "/"},
                                      {"dots stay", "./a/../b/.", "./a/../b/."},
                                      {"repeated letters stay", "aabb//cc", "aabb/cc"},
                                      {"blanks and quotes stay", " it's  here ", " it's  here "}});
    }

    void folder_slashes()
    {
        const auto [folder, clean] = row<QByteArray, QByteArray>();

        QCOMPARE(bytes(PGM_COMMON::change_folder_slash(folder.toStdString())), clean);
    }

    void folder_slashes_of_any_text()
    {
        const auto is_separator = [](char c) { return c == '/' || c == '\\'; };
        const auto keeps_the_rest = [&](const std::string& folder, const std::string& clean) {
            std::string rest_before = folder;
            std::string rest_after = clean;
            rest_before.erase(std::remove_if(rest_before.begin(), rest_before.end(), is_separator), rest_before.end());
            rest_after.erase(std::remove_if(rest_after.begin(), rest_after.end(), is_separator), rest_after.end());
            return rest_before == rest_after;
        };

        QVERIFY(rc::check("clean, once and for all", [&] {
            const std::string folder = *folder_text();
            const std::string clean = PGM_COMMON::change_folder_slash(folder);

            RC_ASSERT(clean.find('\\') == std::string::npos);
            RC_ASSERT(clean.find("//") == std::string::npos);
            RC_ASSERT(PGM_COMMON::change_folder_slash(clean) == clean);
            RC_ASSERT(keeps_the_rest(folder, clean));
            RC_ASSERT(folder.empty() == clean.empty());
            RC_ASSERT((folder.empty() || is_separator(folder.front()) == (clean.front() == '/')));
            RC_ASSERT((folder.empty() || is_separator(folder.back()) == (clean.back() == '/')));
        }));
    }

    void path_is_held_with_clean_slashes()
    {
        FIO_PATH path("a\\\\b//c");
        QCOMPARE(bytes(path.fullpath()), QByteArray("a/b/c"));

        path = std::string("\\x\\..\\y\\\\");
        QCOMPARE(bytes(path.fullpath()), QByteArray("/x/../y/"));
        QCOMPARE(FIO_PATH().fullpath(), std::string());
        QCOMPARE(FIO_PATH(std::string()).fullpath(), std::string());
    }

    void directory_ends_in_one_slash_data()
    {
        rows<QByteArray, QByteArray>({{"none at the end", "/home/me", "/home/me/"},
                                      {"one at the end", "/home/me/", "/home/me/"},
                                      {"back slash at the end", "C:\\me\\", "C:/me/"},
                                      {"root", "/", "/"},
                                      {"empty", "", ""}});
    }

    void directory_ends_in_one_slash()
    {
        const auto [directory, path] = row<QByteArray, QByteArray>();

        FIO_PATH result("/before");
        result.directory(directory.toStdString());

        QCOMPARE(bytes(result.fullpath()), path);
    }

    void absolute_against_a_base_data()
    {
        rows<QByteArray, QByteArray, QByteArray>({{"relative", "a/b", "/base", "/base/a/b"},
                                                  {"relative, base is a directory", "a/b", "/base/", "/base/a/b"},
                                                  {"directory", "a/b/", "/base", "/base/a/b/"},
                                                  {"absolute stays", "/a/b", "/base", "/a/b"},
                                                  {"this directory", "./", "/base", "/base/"},
                                                  {"dot", ".", "/base", "/base"},
                                                  {"dots inside", "a/./b/../c", "/base", "/base/a/c"},
                                                  {"up", "../other/", "/base/in", "/base/other/"},
                                                  {"up in an absolute path", "/a/b/../c", "/base", "/a/c"},
                                                  {"above the root", "../../../a", "/base", "/a"},
                                                  {"up to the root", "..", "/base", "/"},
                                                  {"names that open with dots", "..a/...", "/base", "/base/..a/..."},
                                                  {"empty is the base", "", "/base/x", "/base/x"},
                                                  {"empty is the base as a directory", "", "/base/", "/base/"},
                                                  {"base with back slashes", "a", "\\base\\\\x", "/base/x/a"},
                                                  {"base with dots", "a", "/base/x/..", "/base/a"},
                                                  {"root", "/", "/base", "/"}});
    }

    void absolute_against_a_base()
    {
        const auto [path, base, absolute_path] = row<QByteArray, QByteArray, QByteArray>();

        QCOMPARE(bytes(absolute(path.toStdString(), base.toStdString())), absolute_path);
    }

    void paths_are_taken_from_the_current_directory()
    {
        const std::string here = std::filesystem::canonical(m_scratch->path().toStdString()).string();
        std::filesystem::current_path(here);

        QCOMPARE(absolute("a/../b/", ""), here + "/b/");
        QCOMPARE(absolute("", ""), here);
        QCOMPARE(absolute("a", "base"), here + "/base/a");
        QCOMPARE(FIO_PATH("a/b/").get_relative_to(here), std::string("a/b/"));
        QCOMPARE(FIO_PATH(here + "/a/").get_relative_to("b"), std::string("../a/"));
    }

    void removed_current_directory_counts_as_the_root()
    {
        const std::string removed = m_scratch->filePath(QStringLiteral("removed")).toStdString();
        std::filesystem::create_directory(removed);
        std::filesystem::current_path(removed);
        std::filesystem::remove(removed);

        QCOMPARE(absolute("a/", ""), std::string("/a/"));
    }

    void absolute_of_any_path()
    {
        QVERIFY(rc::check("absolute, free of dots, once and for all", [] {
            const std::string path = *folder_text();
            const std::string base = *absolute_text();
            const std::string result = absolute(path, base);

            RC_ASSERT(result.front() == '/');
            RC_ASSERT(result.find("//") == std::string::npos);
            RC_ASSERT((result + "/").find("/./") == std::string::npos);
            RC_ASSERT((result + "/").find("/../") == std::string::npos);
            RC_ASSERT(absolute(result, "/elsewhere") == result);
            const std::string text = path.empty() ? base : path;
            const bool was_directory = text.back() == '/' || text.back() == '\\';
            RC_ASSERT((result == "/" || was_directory == (result.back() == '/')));
        }));
    }

    void relative_to_a_base_data()
    {
        rows<QByteArray, QByteArray, QByteArray>({{"same directory", "/a/b/", "/a/b", "./"},
                                                  {"same directory, base with slash", "/a/b/", "/a/b/", "./"},
                                                  {"same path, no directory", "/a/b", "/a/b/", "."},
                                                  {"inside", "/a/b/c/d/", "/a/b", "c/d/"},
                                                  {"file inside", "/a/b/c", "/a/b", "c"},
                                                  {"above", "/a/", "/a/b/c", "../../"},
                                                  {"beside", "/a/x/", "/a/b", "../x/"},
                                                  {"name that goes on", "/a/bc/", "/a/b", "../bc/"},
                                                  {"nothing in common", "/x/y", "/a/b", "../../x/y"},
                                                  {"root", "/", "/a/b", "../../"},
                                                  {"from the root", "/a/b/", "/", "a/b/"},
                                                  {"dots in both", "/a/./b/../c/", "/a/x/..", "c/"},
                                                  {"case counts", "/A/b/", "/a", "../A/b/"}});
    }

    void relative_to_a_base()
    {
        const auto [path, base, relative_path] = row<QByteArray, QByteArray, QByteArray>();

        QCOMPARE(bytes(FIO_PATH(path.toStdString()).get_relative_to(base.toStdString())), relative_path);
    }

    void relative_and_back_is_the_same_path()
    {
        QVERIFY(rc::check("made absolute against its base, a relative path is the path it was made from", [] {
            const std::string path = absolute(*absolute_text(), "");
            const std::string base = *absolute_text();
            const std::string relative_path = FIO_PATH(path).get_relative_to(base);

            RC_ASSERT(relative_path.front() != '/');
            RC_ASSERT(absolute(relative_path, base) == path);
        }));
    }

    void current_directory_is_changed_data() { rows_named<QString>({".", "it's <b>my %s \u00e4\u4e2d"}); }

    void current_directory_is_changed()
    {
        const QString directory = m_scratch->filePath(row<QString>());
        QVERIFY(QDir().mkpath(directory));

        QVERIFY(FIO_FILE_SYSTEM::set_current_directory(QFile::encodeName(directory).toStdString()));

        QCOMPARE(QDir::current().canonicalPath(), QDir(directory).canonicalPath());
    }

    void current_directory_stays_when_the_new_one_is_unusable_data()
    {
        rows<QByteArray>({{"missing", "/no/such/directory"},
                          {"a file", "/proc/self/exe"},
                          {"empty", ""},
                          {"zero byte inside", QByteArray("/\0x", 3)},
                          {"too long", QByteArray("/" + QByteArray(10000, 'a'))}});
    }

    void current_directory_stays_when_the_new_one_is_unusable()
    {
        const QByteArray directory = row<QByteArray>();
        const QString before = QDir::currentPath();

        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^Cannot make \".*\" the current directory: .+")));
        QVERIFY(!FIO_FILE_SYSTEM::set_current_directory(directory.toStdString()));

        QCOMPARE(QDir::currentPath(), before);
    }

private:
    std::filesystem::path m_start;
    std::unique_ptr<QTemporaryDir> m_scratch;
};

QTEST_GUILESS_MAIN(TEST_FIO)

#include "test_fio.moc"
