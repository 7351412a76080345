// SPDX-License-Identifier: MIT

// The built programs: where they take code from, and what they leave behind.
#include "test_rows.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

const QString HOST = QStringLiteral(HOST_PROGRAM);
const QString MODULE = QStringLiteral(DIALOG_MODULE);
const QString FAKE = QStringLiteral(FAKE_MODULE);

struct RESULT
{
    int exit_code;
    QString output;
    QString errors;
};

mode_t mode_of(const QString& path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode : 0;
}

QStringList run_paths(const QString& binary)
{
    QProcess readelf;
    readelf.start(QStringLiteral("readelf"), {QStringLiteral("-d"), binary});
    readelf.waitForFinished();
    const QString text = QString::fromLocal8Bit(readelf.readAllStandardOutput());
    QStringList paths;
    QRegularExpressionMatchIterator matches =
        QRegularExpression(QStringLiteral("R(?:UN)?PATH\\).*\\[(.*)\\]")).globalMatch(text);
    while (matches.hasNext())
        paths += matches.next().captured(1).split(QLatin1Char(':'));
    return paths;
}

} // namespace

class TEST_PROGRAMS : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_scratch = std::make_unique<QTemporaryDir>();
        for (const char* name : {"home", "config", "here", "here/lib", "here/lib/gfpq", "here/platforms"})
            QVERIFY(QDir().mkpath(path(QLatin1String(name))));
    }

    void cleanup() { m_scratch.reset(); }

    // The dialog makes the database directory the current one, so who writes there must not be who is run.
    void the_module_is_not_taken_from_the_current_directory()
    {
        const QString name = QFileInfo(MODULE).fileName();
        for (const char* place : {"here/", "here/lib/", "here/lib/gfpq/"})
            QVERIFY(QFile::copy(FAKE, path(QLatin1String(place)) + name));
        const RESULT with_fake =
            run(render() + QStringList{QStringLiteral("--module"), path(QStringLiteral("here/")) + name},
                path(QStringLiteral("here")));
        QVERIFY(with_fake.errors.contains(QLatin1String("The module opened no dialog.")));

        const RESULT result = run(render(), path(QStringLiteral("here")));
        QVERIFY2(result.exit_code == 0, qPrintable(result.errors));
        QVERIFY2(result.output.contains(QLatin1String(".png")), qPrintable(result.output));
    }

    void a_module_with_a_relative_name_is_refused()
    {
        const RESULT result = run(
            render() + QStringList{QStringLiteral("--module"), QStringLiteral("./libpgm_gfpq.so")}, path(QString()));
        QCOMPARE(result.exit_code, 2);
        QVERIFY2(result.errors.contains(QLatin1String("--module takes an absolute path, not \"./libpgm_gfpq.so\".")),
                 qPrintable(result.errors));
    }

    void libraries_come_from_places_that_others_cannot_write_data()
    {
        rows<QString>({{"host", HOST},
                       {"module", MODULE},
                       {"database tool", QStringLiteral(DATABASE_TOOL)},
                       {"flash database", QStringLiteral(DATABASE_LIBRARY)}});
    }

    void libraries_come_from_places_that_others_cannot_write()
    {
        const QString binary = row<QString>();
        QVERIFY2(QFile::exists(binary), qPrintable(binary));
        for (const QString& place : run_paths(binary)) {
            QVERIFY2(place.startsWith(QLatin1Char('/')) || place.startsWith(QLatin1String("$ORIGIN")),
                     qPrintable(place));
            QVERIFY2((mode_of(place) & S_IWOTH) == 0, qPrintable(place));
        }
    }

    void nothing_that_the_host_makes_can_be_written_by_everyone()
    {
        const QString careless = QStringLiteral("umask 0; exec \"$@\"");
        const RESULT result =
            run(QStringList{QStringLiteral("/bin/sh"), QStringLiteral("-c"), careless, QStringLiteral("sh")} + render(),
                path(QString()));
        QVERIFY2(result.exit_code == 0, qPrintable(result.errors));

        int made = 0;
        for (QDirIterator entries(path(QStringLiteral("pages")), QDir::AllEntries | QDir::NoDotAndDotDot,
                                  QDirIterator::Subdirectories);
             entries.hasNext(); ++made) {
            const QString name = entries.next();
            QVERIFY2((mode_of(name) & S_IWOTH) == 0, qPrintable(name));
        }
        // The directory and a picture of each of the six pages at least.
        QVERIFY(made >= 7);
        QCOMPARE(mode_of(path(QStringLiteral("data/gfpdb"))) & S_IWOTH, mode_t(0));
    }

    void nothing_that_the_tool_makes_can_be_written_by_everyone()
    {
        const QString directory = path(QStringLiteral("database"));
        const QString file = path(QStringLiteral("exported.json"));
        QVERIFY(QDir().mkdir(directory));
        const RESULT result =
            run({QStringLiteral("/bin/sh"), QStringLiteral("-c"),
                 QStringLiteral("umask 0; \"$1\" export -d \"$2\" -o \"$3\" && \"$1\" import -d \"$2\" \"$3\""),
                 QStringLiteral("sh"), QStringLiteral(DATABASE_TOOL), directory, file},
                path(QString()));
        QVERIFY2(result.exit_code == 0, qPrintable(result.errors));

        QVERIFY(QFile::exists(file));
        QCOMPARE(mode_of(file) & S_IWOTH, mode_t(0));
    }

private:
    RESULT run(const QStringList& command, const QString& directory) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), path(QStringLiteral("home")));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("config")));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), path(QStringLiteral("data")));
        environment.insert(QStringLiteral("GFPDB_SETTINGS"), path(QStringLiteral("settings.ini")));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(directory);
        process.start(command.first(), command.mid(1));
        process.waitForFinished(-1);
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromLocal8Bit(process.readAllStandardOutput()),
                QString::fromLocal8Bit(process.readAllStandardError())};
    }

    QString path(const QString& name) const { return m_scratch->filePath(name); }

    // Draws the dialog's pages: the host loads the module and opens the dialog without a display.
    QStringList render() const { return {HOST, QStringLiteral("--render"), path(QStringLiteral("pages/new"))}; }

    std::unique_ptr<QTemporaryDir> m_scratch;
};

QTEST_GUILESS_MAIN(TEST_PROGRAMS)

#include "test_programs.moc"
