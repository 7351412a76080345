// SPDX-License-Identifier: MIT

// Reading whole files: which ones, how much of them, and what is said about the others.
#include "base/gfpdb_read_file.h"
#include "gfpdb_test.h"
#include "marking_translator.h"
#include "test_rows.h"

#include "whole_file/whole_file.h"

#include <array>

#include <fcntl.h>
#include <sched.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::size_t LIMIT = 2000;

// A pipe whose writing end is closed when all of `content` is in it.
class FULL_PIPE
{
public:
    explicit FULL_PIPE(const std::string& content)
    {
        if (::pipe2(m_ends.data(), O_CLOEXEC) != 0 ||
            ::write(m_ends[1], content.data(), content.size()) != static_cast<ssize_t>(content.size()))
            qFatal("no pipe");
        ::close(m_ends[1]);
    }
    ~FULL_PIPE() { ::close(m_ends[0]); }
    FULL_PIPE(const FULL_PIPE&) = delete;
    FULL_PIPE& operator=(const FULL_PIPE&) = delete;
    int reading_end() const { return m_ends[0]; }

private:
    std::array<int, 2> m_ends = {};
};

void make_socket(const std::string& path)
{
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    struct sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path)
        qFatal("%s is too long for a socket", path.c_str());
    path.copy(address.sun_path, path.size());
    if (::bind(descriptor, reinterpret_cast<const struct sockaddr*>(&address), sizeof address) != 0)
        qFatal("no socket");
    ::close(descriptor);
}

// True while the process waits for something.
bool is_asleep(pid_t process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no such process");
    const QByteArray state = file.readAll();
    return state.mid(state.lastIndexOf(')') + 2, 1) == "S";
}

} // namespace

class TEST_READ_FILE : public QObject
{
    Q_OBJECT

private slots:
    void a_file_is_read_to_its_end_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {0, 1, int(LIMIT), 65536, 65537, 200000})
            QTest::addRow("%d", size) << size;
    }

    void a_file_is_read_to_its_end()
    {
        const GFPDB_PLACE place;
        QFETCH(int, size);
        std::string content(static_cast<std::size_t>(size), 'x');
        for (std::size_t at = 0; at < content.size(); at += 7)
            content[at] = static_cast<char>(at);
        write_file(place.path("file"), content);
        std::string problem;

        QVERIFY(read_whole_file(place.path("file"), content.size(), problem) == content);
        QCOMPARE(problem, std::string());
    }

    void what_is_not_a_regular_file_is_not_read_data()
    {
        const QString not_regular = QStringLiteral("it is not a regular file");
        rows<QString, QString>({{"nothing", "nothing", "No such file or directory"},
                                {"directory", ".", not_regular},
                                {"pipe", "pipe", not_regular},
                                {"link to a pipe", "link", not_regular},
                                {"socket", "socket", "No such device or address"},
                                {"device", "/dev/zero", not_regular},
                                {"terminal", "/dev/ptmx", not_regular}});
    }

    void what_is_not_a_regular_file_is_not_read()
    {
        const GFPDB_PLACE place;
        const auto [name, problem] = row<QString, QString>();
        QCOMPARE(::mkfifo(place.path("pipe").c_str(), 0600), 0);
        QCOMPARE(::symlink("pipe", place.path("link").c_str()), 0);
        const QTemporaryDir short_name;
        const std::string socket = short_name.filePath(QStringLiteral("socket")).toStdString();
        make_socket(socket);
        std::string path = name.startsWith(QLatin1Char('/')) ? name.toStdString() : place.path(name.toStdString());
        if (name == QLatin1String("socket"))
            path = socket;
        std::string told;

        QVERIFY(!read_whole_file(path, LIMIT, told));
        QCOMPARE(told, problem.toStdString());

        // What the system says has its language already.
        const MARKING_TRANSLATOR translator("gfpdb");
        QVERIFY(!gfpdb_read_file(path, LIMIT, told));
        const bool is_ours = problem == QLatin1String(WHOLE_FILE_NOT_REGULAR);
        QCOMPARE(told, is_ours ? '[' + problem.toStdString() + ']' : problem.toStdString());
    }

    void a_pipe_is_read_to_its_end()
    {
        const std::string content(LIMIT, 'x');
        const FULL_PIPE pipe(content);
        std::string problem;
        QVERIFY(read_descriptor(pipe.reading_end(), LIMIT, problem) == content);
        QCOMPARE(problem, std::string());
        QVERIFY(!read_descriptor(-1, LIMIT, problem));
        QCOMPARE(problem, std::string("Bad file descriptor"));
    }

    void a_pipe_that_does_not_wait_is_waited_for()
    {
        std::array<int, 2> ends = {};
        QCOMPARE(::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK), 0);
        const pid_t writer = ::fork();
        if (writer == 0) {
            ::close(ends[0]);
            while (!is_asleep(::getppid()))
                ::sched_yield();
            ::_exit(::write(ends[1], "late", 4) == 4 ? 0 : 1);
        }
        ::close(ends[1]);
        std::string problem;
        QVERIFY(read_descriptor(ends[0], LIMIT, problem) == std::string("late"));
        ::close(ends[0]);
        int status = -1;
        QCOMPARE(::waitpid(writer, &status, 0), writer);
        QCOMPARE(status, 0);
    }

    void too_much_is_refused_data()
    {
        rows<qulonglong, QString>({{"0", 0ULL, "it is larger than 0 bytes"},
                                   {"1023", 1023ULL, "it is larger than 1023 bytes"},
                                   {"1024", 1024ULL, "it is larger than 1 KiB"},
                                   {"1025", 1025ULL, "it is larger than 1025 bytes"},
                                   {"1 MiB", (1ULL << 20), "it is larger than 1 MiB"}});
    }

    void too_much_is_refused()
    {
        const GFPDB_PLACE place;
        const auto [limit, problem] = row<qulonglong, QString>();
        write_file(place.path("file"), std::string(limit + 1, 'x'));
        std::string told;
        QVERIFY(!read_whole_file(place.path("file"), limit, told));
        QCOMPARE(told, problem.toStdString());

        // Without an end, and without a size that could be asked.
        const int endless = ::open("/dev/zero", O_RDONLY | O_CLOEXEC);
        told.clear();
        QVERIFY(!read_descriptor(endless, limit, told));
        QCOMPARE(told, problem.toStdString());

        const MARKING_TRANSLATOR translator("gfpdb");
        QVERIFY(!gfpdb_read_descriptor(endless, limit, told));
        QCOMPARE(told, '[' + problem.toStdString() + ']');
        ::close(endless);
    }
};

QTEST_GUILESS_MAIN(TEST_READ_FILE)

#include "test_read_file.moc"
