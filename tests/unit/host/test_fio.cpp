// SPDX-License-Identifier: MIT

// Paths and the process's current directory.
#include "fio/fio_file_system.h"
#include "fio/fio_path.h"
#include "fio/pgm_common.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <rapidcheck.h>

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

class TEST_FIO : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void folder_slashes_data();
    void folder_slashes();
    void folder_slashes_of_any_text();
    void path_is_held_with_clean_slashes();
    void empty_path_stays_empty();
    void directory_ends_in_one_slash_data();
    void directory_ends_in_one_slash();
    void absolute_against_a_base_data();
    void absolute_against_a_base();
    void absolute_against_the_current_directory();
    void relative_base_is_taken_from_the_current_directory();
    void removed_current_directory_counts_as_the_root();
    void absolute_of_any_path();
    void relative_to_a_base_data();
    void relative_to_a_base();
    void relative_paths_are_made_absolute_first();
    void relative_and_back_is_the_same_path();
    void current_directory_is_changed();
    void current_directory_on_a_difficult_path();
    void current_directory_stays_when_the_new_one_is_unusable_data();
    void current_directory_stays_when_the_new_one_is_unusable();

private:
    std::filesystem::path m_start;
    std::unique_ptr<QTemporaryDir> m_scratch;
};

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

void TEST_FIO::init()
{
    m_start = std::filesystem::current_path();
    m_scratch = std::make_unique<QTemporaryDir>();
    QVERIFY(m_scratch->isValid());
}

void TEST_FIO::cleanup()
{
    std::filesystem::current_path(m_start);
    m_scratch.reset();
}

void TEST_FIO::folder_slashes_data()
{
    QTest::addColumn<QByteArray>("folder");
    QTest::addColumn<QByteArray>("clean");

    QTest::newRow("empty") << QByteArray("") << QByteArray("");
    QTest::newRow("nothing to do") << QByteArray("/home/me/flash") << QByteArray("/home/me/flash");
    QTest::newRow("end stays") << QByteArray("/home/me/flash/") << QByteArray("/home/me/flash/");
    QTest::newRow("back slashes") << QByteArray("C:\\flash\\mine\\") << QByteArray("C:/flash/mine/");
    QTest::newRow("run of slashes") << QByteArray("///home//me///") << QByteArray("/home/me/");
    QTest::newRow("mixed run") << QByteArray("home/\\/\\me\\/") << QByteArray("home/me/");
    QTest::newRow("slashes only") << QByteArray("\\\\//") << QByteArray("/");
    QTest::newRow("dots stay") << QByteArray("./a/../b/.") << QByteArray("./a/../b/.");
    QTest::newRow("repeated letters stay") << QByteArray("aabb//cc") << QByteArray("aabb/cc");
    QTest::newRow("blanks and quotes stay") << QByteArray(" it's  here ") << QByteArray(" it's  here ");
}

void TEST_FIO::folder_slashes()
{
    QFETCH(QByteArray, folder);
    QFETCH(QByteArray, clean);

    QCOMPARE(bytes(PGM_COMMON::change_folder_slash(folder.toStdString())), clean);
}

void TEST_FIO::folder_slashes_of_any_text()
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

void TEST_FIO::path_is_held_with_clean_slashes()
{
    FIO_PATH path("a\\\\b//c");
    QCOMPARE(bytes(path.fullpath()), QByteArray("a/b/c"));

    path = std::string("\\x\\..\\y\\\\");
    QCOMPARE(bytes(path.fullpath()), QByteArray("/x/../y/"));
}

void TEST_FIO::empty_path_stays_empty()
{
    QCOMPARE(FIO_PATH().fullpath(), std::string());
    QCOMPARE(FIO_PATH(std::string()).fullpath(), std::string());
}

void TEST_FIO::directory_ends_in_one_slash_data()
{
    QTest::addColumn<QByteArray>("directory");
    QTest::addColumn<QByteArray>("path");

    QTest::newRow("none at the end") << QByteArray("/home/me") << QByteArray("/home/me/");
    QTest::newRow("one at the end") << QByteArray("/home/me/") << QByteArray("/home/me/");
    QTest::newRow("back slash at the end") << QByteArray("C:\\me\\") << QByteArray("C:/me/");
    QTest::newRow("root") << QByteArray("/") << QByteArray("/");
    QTest::newRow("empty") << QByteArray("") << QByteArray("");
}

void TEST_FIO::directory_ends_in_one_slash()
{
    QFETCH(QByteArray, directory);
    QFETCH(QByteArray, path);

    FIO_PATH result("/before");
    result.directory(directory.toStdString());

    QCOMPARE(bytes(result.fullpath()), path);
}

void TEST_FIO::absolute_against_a_base_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("absolute_path");

    QTest::newRow("relative") << QByteArray("a/b") << QByteArray("/base") << QByteArray("/base/a/b");
    QTest::newRow("relative, base is a directory")
        << QByteArray("a/b") << QByteArray("/base/") << QByteArray("/base/a/b");
    QTest::newRow("directory") << QByteArray("a/b/") << QByteArray("/base") << QByteArray("/base/a/b/");
    QTest::newRow("absolute stays") << QByteArray("/a/b") << QByteArray("/base") << QByteArray("/a/b");
    QTest::newRow("this directory") << QByteArray("./") << QByteArray("/base") << QByteArray("/base/");
    QTest::newRow("dot") << QByteArray(".") << QByteArray("/base") << QByteArray("/base");
    QTest::newRow("dots inside") << QByteArray("a/./b/../c") << QByteArray("/base") << QByteArray("/base/a/c");
    QTest::newRow("up") << QByteArray("../other/") << QByteArray("/base/in") << QByteArray("/base/other/");
    QTest::newRow("up in an absolute path") << QByteArray("/a/b/../c") << QByteArray("/base") << QByteArray("/a/c");
    QTest::newRow("above the root") << QByteArray("../../../a") << QByteArray("/base") << QByteArray("/a");
    QTest::newRow("up to the root") << QByteArray("..") << QByteArray("/base") << QByteArray("/");
    QTest::newRow("names that open with dots")
        << QByteArray("..a/...") << QByteArray("/base") << QByteArray("/base/..a/...");
    QTest::newRow("empty is the base") << QByteArray("") << QByteArray("/base/x") << QByteArray("/base/x");
    QTest::newRow("empty is the base as a directory") << QByteArray("") << QByteArray("/base/") << QByteArray("/base/");
    QTest::newRow("base with back slashes") << QByteArray("a") << QByteArray("\\base\\\\x") << QByteArray("/base/x/a");
    QTest::newRow("base with dots") << QByteArray("a") << QByteArray("/base/x/..") << QByteArray("/base/a");
    QTest::newRow("root") << QByteArray("/") << QByteArray("/base") << QByteArray("/");
}

void TEST_FIO::absolute_against_a_base()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, absolute_path);

    QCOMPARE(bytes(absolute(path.toStdString(), base.toStdString())), absolute_path);
}

void TEST_FIO::absolute_against_the_current_directory()
{
    const std::string here = std::filesystem::canonical(m_scratch->path().toStdString()).string();
    std::filesystem::current_path(here);

    QCOMPARE(absolute("a/../b/", ""), here + "/b/");
    QCOMPARE(absolute("", ""), here);
}

void TEST_FIO::relative_base_is_taken_from_the_current_directory()
{
    const std::string here = std::filesystem::canonical(m_scratch->path().toStdString()).string();
    std::filesystem::current_path(here);

    QCOMPARE(absolute("a", "base"), here + "/base/a");
}

void TEST_FIO::removed_current_directory_counts_as_the_root()
{
    const std::string removed = m_scratch->filePath(QStringLiteral("removed")).toStdString();
    std::filesystem::create_directory(removed);
    std::filesystem::current_path(removed);
    std::filesystem::remove(removed);

    QCOMPARE(absolute("a/", ""), std::string("/a/"));
}

void TEST_FIO::absolute_of_any_path()
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

void TEST_FIO::relative_to_a_base_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("relative_path");

    QTest::newRow("same directory") << QByteArray("/a/b/") << QByteArray("/a/b") << QByteArray("./");
    QTest::newRow("same directory, base with slash") << QByteArray("/a/b/") << QByteArray("/a/b/") << QByteArray("./");
    QTest::newRow("same path, no directory") << QByteArray("/a/b") << QByteArray("/a/b/") << QByteArray(".");
    QTest::newRow("inside") << QByteArray("/a/b/c/d/") << QByteArray("/a/b") << QByteArray("c/d/");
    QTest::newRow("file inside") << QByteArray("/a/b/c") << QByteArray("/a/b") << QByteArray("c");
    QTest::newRow("above") << QByteArray("/a/") << QByteArray("/a/b/c") << QByteArray("../../");
    QTest::newRow("beside") << QByteArray("/a/x/") << QByteArray("/a/b") << QByteArray("../x/");
    QTest::newRow("name that goes on") << QByteArray("/a/bc/") << QByteArray("/a/b") << QByteArray("../bc/");
    QTest::newRow("nothing in common") << QByteArray("/x/y") << QByteArray("/a/b") << QByteArray("../../x/y");
    QTest::newRow("root") << QByteArray("/") << QByteArray("/a/b") << QByteArray("../../");
    QTest::newRow("from the root") << QByteArray("/a/b/") << QByteArray("/") << QByteArray("a/b/");
    QTest::newRow("dots in both") << QByteArray("/a/./b/../c/") << QByteArray("/a/x/..") << QByteArray("c/");
    QTest::newRow("case counts") << QByteArray("/A/b/") << QByteArray("/a") << QByteArray("../A/b/");
}

void TEST_FIO::relative_to_a_base()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, relative_path);

    QCOMPARE(bytes(FIO_PATH(path.toStdString()).get_relative_to(base.toStdString())), relative_path);
}

void TEST_FIO::relative_paths_are_made_absolute_first()
{
    const std::string here = std::filesystem::canonical(m_scratch->path().toStdString()).string();
    std::filesystem::current_path(here);

    QCOMPARE(FIO_PATH("a/b/").get_relative_to(here), std::string("a/b/"));
    QCOMPARE(FIO_PATH(here + "/a/").get_relative_to("b"), std::string("../a/"));
}

void TEST_FIO::relative_and_back_is_the_same_path()
{
    QVERIFY(rc::check("made absolute against its base, a relative path is the path it was made from", [] {
        const std::string path = absolute(*absolute_text(), "");
        const std::string base = *absolute_text();
        const std::string relative_path = FIO_PATH(path).get_relative_to(base);

        RC_ASSERT(relative_path.front() != '/');
        RC_ASSERT(absolute(relative_path, base) == path);
    }));
}

void TEST_FIO::current_directory_is_changed()
{
    QVERIFY(FIO_FILE_SYSTEM::set_current_directory(m_scratch->path().toStdString()));

    QCOMPARE(QDir::current().canonicalPath(), QDir(m_scratch->path()).canonicalPath());
}

void TEST_FIO::current_directory_on_a_difficult_path()
{
    const QString directory = m_scratch->filePath(QStringLiteral("it's <b>my %s \u00e4\u4e2d"));
    QVERIFY(QDir().mkdir(directory));

    QVERIFY(FIO_FILE_SYSTEM::set_current_directory(QFile::encodeName(directory).toStdString()));

    QCOMPARE(QDir::current().canonicalPath(), QDir(directory).canonicalPath());
}

void TEST_FIO::current_directory_stays_when_the_new_one_is_unusable_data()
{
    QTest::addColumn<QByteArray>("directory");

    QTest::newRow("missing") << QByteArray("/no/such/directory");
    QTest::newRow("a file") << QByteArray("/proc/self/exe");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("zero byte inside") << QByteArray("/\0x", 3);
    QTest::newRow("too long") << QByteArray("/" + QByteArray(10000, 'a'));
}

void TEST_FIO::current_directory_stays_when_the_new_one_is_unusable()
{
    QFETCH(QByteArray, directory);
    const QString before = QDir::currentPath();

    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^Cannot make \".*\" the current directory: .+")));
    QVERIFY(!FIO_FILE_SYSTEM::set_current_directory(directory.toStdString()));

    QCOMPARE(QDir::currentPath(), before);
}

QTEST_GUILESS_MAIN(TEST_FIO)
#include "test_fio.moc"
