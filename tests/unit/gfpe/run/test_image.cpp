// SPDX-License-Identifier: MIT

// Images that are files, and how fast a run goes.
#include "test_rows.h"

#include "gfpe/gfpe_image.h"
#include "gfpe/gfpe_rate.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using BYTES = std::vector<std::uint8_t>;

class TEST_IMAGE : public QObject
{
    Q_OBJECT

private slots:
    void a_file_is_read_from_its_position_on()
    {
        QByteArray content;
        while (content.size() < 200000)
            content += QByteArray::number(content.size());
        const std::string path = make("whole.bin", content);
        std::string problem;
        const auto image = gfpe_file_image(path, 1000, 1000 + content.size(), problem);
        QVERIFY2(image, problem.c_str());
        QCOMPARE(image->get_range().start, std::int64_t(1000));
        QCOMPARE(image->get_range().length, std::int64_t(content.size()));

        for (const auto& [offset, length] : {std::pair(0, 1), {65530, 70000}, {70000, 10}, {199990, 10}, {5, 200000}}) {
            BYTES bytes(static_cast<std::size_t>(std::min(length, content.size() - offset)));
            QVERIFY2(image->read(1000 + offset, bytes.data(), bytes.size(), problem), problem.c_str());
            QVERIFY(std::equal(bytes.begin(), bytes.end(), content.begin() + offset,
                               [](std::uint8_t byte, char character) { return byte == std::uint8_t(character); }));
        }
    }

    void a_file_that_is_no_image_is_refused_data()
    {
        rows<QByteArray, qint64, QByteArray>(
            {{"nothing", "empty.bin", qint64(0), "The file \"empty.bin\" is empty."},
             {"one byte too many", "100.bin", qint64(925),
              "The file \"100.bin\" has 100 bytes; the device has 99 from position 925 on."},
             {"a position past the end", "100.bin", qint64(2000),
              "The file \"100.bin\" has 100 bytes; the device has 0 from position 2000 on."},
             {"a position before the start", "100.bin", qint64(-1),
              "The file \"100.bin\" has 100 bytes; the device has 1025 from position -1 on."},
             {"no file", "none.bin", qint64(0), "The file \"none.bin\" cannot be read: No such file or directory."},
             {"a folder", ".", qint64(0), "The file \".\" is not a regular file."},
             {"a pipe", "pipe", qint64(0), "The file \"pipe\" is not a regular file."}});
    }

    void a_file_that_is_no_image_is_refused()
    {
        const auto [name, position, text] = row<QByteArray, qint64, QByteArray>();
        make("empty.bin", "");
        make("100.bin", QByteArray(100, 'x'));
        ::mkfifo("pipe", 0600);
        std::string problem;

        QVERIFY(!gfpe_file_image(name.toStdString(), position, 1024, problem));

        QCOMPARE(problem, text.toStdString());
        QCOMPARE(gfpe_file_image("100.bin", 924, 1024, problem) != nullptr, true);
    }

    void a_file_that_changes_meanwhile_is_an_error_data()
    {
        rows<int>({{"shorter", 99}, {"longer", 101}, {"other bytes", 100}, {"gone", 0}});
    }

    // Also where the bytes were read before.
    void a_file_that_changes_meanwhile_is_an_error()
    {
        const std::string path = make("changing.bin", QByteArray(100, 'a'));
        // The clock of the file system tells no moments apart.
        const timespec past[2] = {{1000, 0}, {1000, 0}};
        ::utimensat(AT_FDCWD, path.c_str(), past, 0);
        std::string problem;
        const auto image = gfpe_file_image(path, 0, 1024, problem);
        BYTES bytes(100);
        QVERIFY(image->read(0, bytes.data(), bytes.size(), problem));
        make("changing.bin", QByteArray(row<int>(), 'b'));

        QVERIFY(!image->read(50, bytes.data(), 50, problem));
        QCOMPARE(problem, std::string("The file \"changing.bin\" was changed while it was used."));
    }

    void a_file_that_becomes_shorter_than_what_is_held_is_an_error()
    {
        const std::string path = make("long.bin", QByteArray(200000, 'a'));
        std::string problem;
        const auto image = gfpe_file_image(path, 0, 1 << 20, problem);
        make("long.bin", "b");
        std::uint8_t byte = 0;

        QVERIFY(!image->read(150000, &byte, 1, problem));
        QCOMPARE(problem, std::string("The file \"long.bin\" was changed while it was used."));
    }

    // As on a share whose server has gone.
    void a_file_that_fails_while_it_is_read_is_an_error()
    {
        const int next = ::open(".", O_RDONLY);
        ::close(next);
        std::string problem;
        const auto image = gfpe_file_image(make("failing.bin", "x"), 0, 1024, problem);
        QVERIFY(image);
        ::close(next);
        std::uint8_t byte = 0;

        QVERIFY(!image->read(0, &byte, 1, problem));
        QCOMPARE(problem, std::string("The file \"failing.bin\" cannot be read: Bad file descriptor."));
    }

    void a_file_of_one_byte_is_an_image()
    {
        std::string problem;
        const auto image = gfpe_file_image(make("one.bin", "x"), 0, 1, problem);
        std::uint8_t byte = 0;

        QVERIFY(image && image->read(0, &byte, 1, problem));
        QCOMPARE(int(byte), int('x'));
    }

    void an_image_in_memory_has_its_bytes()
    {
        const auto image = gfpe_memory_image({1, 2, 3, 4}, 1000);
        BYTES bytes(2);
        std::string problem;

        QVERIFY(image->read(1001, bytes.data(), bytes.size(), problem));

        QCOMPARE(bytes, (BYTES{2, 3}));
        QCOMPARE(image->get_range().start, std::int64_t(1000));
        QCOMPARE(image->get_range().end(), std::int64_t(1004));
    }

    void a_rate_is_that_of_the_last_seconds()
    {
        GFPE_RATE rate;
        QVERIFY(!rate.get_rate() && !rate.get_seconds_left(100));
        rate.add(0, 0);
        rate.add(249, 1000);
        QVERIFY(!rate.get_rate());
        rate.add(250, 1000);
        QCOMPARE(*rate.get_rate(), 4000.0);
        QCOMPARE(*rate.get_seconds_left(9000), 2);
        QCOMPARE(*rate.get_seconds_left(9001), 3);
        // The start is forgotten.
        for (int second = 1; second <= 10; ++second)
            rate.add(second * 1000, 1000 + second * 100);
        QCOMPARE(*rate.get_rate(), 100.0);
        QCOMPARE(*rate.get_seconds_left(2100), 1);
        // A break counts: the last sample before the window is its start.
        rate.add(14000, 2100);
        QCOMPARE(*rate.get_rate(), 40.0);
    }

    void a_run_that_stands_still_has_no_time_left()
    {
        GFPE_RATE rate;
        rate.add(0, 10);
        rate.add(1000, 10);
        QCOMPARE(*rate.get_rate(), 0.0);
        QVERIFY(!rate.get_seconds_left(100));
        // What was before the last five seconds counts no more.
        rate.add(11000, 1010);
        QCOMPARE(*rate.get_rate(), 100.0);
    }

    void initTestCase() { QVERIFY(QDir::setCurrent(m_directory.path())); }

private:
    static std::string make(const char* name, const QByteArray& content)
    {
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("The test cannot write its files.");
        return name;
    }

    QTemporaryDir m_directory;
};

QTEST_APPLESS_MAIN(TEST_IMAGE)

#include "test_image.moc"
