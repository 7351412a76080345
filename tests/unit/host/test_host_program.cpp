// SPDX-License-Identifier: MIT

// The host program as the shell sees it: what it prints and what it ends with.
#include "probe.h"
#include "test_rows.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

namespace {

QJsonObject record_of(const PROBE_RESULT& result)
{
    return QJsonDocument::fromJson(result.output).object();
}

QString device_of(const PROBE_RESULT& result)
{
    return record_of(result).value(QStringLiteral("device_name")).toString();
}

QStringList words(const QString& text)
{
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QMap<QString, QString> without_display()
{
    return {{QStringLiteral("DISPLAY"), QString()},
            {QStringLiteral("WAYLAND_DISPLAY"), QString()},
            {QStringLiteral("QT_QPA_PLATFORM"), QString()}};
}

void write_file(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

} // namespace

class TEST_HOST_PROGRAM : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_scratch = std::make_unique<QTemporaryDir>(); }

    void program_ends_with_a_code_data()
    {
        const QByteArray no_display("gfpq_host: There is no display here. \"--render DIR\" draws the dialog's pages "
                                    "into files instead.\n");
        const QByteArray bad_family("gfpq_host: --family takes a number from 1 to 72, not \"x\".\nTry --help.\n");
        rows<QString, int, QByteArray, QByteArray>(
            {{"help", "--help", 0, "Usage: ", ""},
             {"version", "--version", 0, "Flash Programmer " HOST_VERSION "\n", ""},
             {"bad command line", "--family=x", 2, "", bad_family},
             {"window", "", 1, "", no_display},
             {"dialog", "--dialog", 1, "", no_display}});
    }

    void program_ends_with_a_code()
    {
        const auto [options, exit_code, output, log] = row<QString, int, QByteArray, QByteArray>();

        const PROBE_RESULT result = run(words(options), without_display());

        QVERIFY(result.ended);
        QCOMPARE(result.exit_code, exit_code);
        QCOMPARE(result.log, log);
        QVERIFY2(result.output.startsWith(output), result.output.constData());
        QCOMPARE(result.output.isEmpty(), output.isEmpty());
    }

    void families_file_that_cannot_be_used_ends_with_one()
    {
        const PROBE_RESULT result = run_with_fake({QStringLiteral("--dialog")},
                                                  {{QStringLiteral("GFPQ_FAMILIES"), QStringLiteral("/dev/zero")}});

        QCOMPARE(result.exit_code, 1);
        QVERIFY2(result.log.endsWith("gfpq_host: GFPQ_FAMILIES: /dev/zero cannot be read: it is not a regular file.\n"),
                 result.log.constData());
        QCOMPARE(result.output, QByteArray());
    }

    void dialog_s_record_is_printed()
    {
        const PROBE_RESULT result = run_with_fake({QStringLiteral("--dialog"), QStringLiteral("--restrict=1:7")});

        QCOMPARE(result.exit_code, 0);
        QCOMPARE(result.output,
                 QByteArray("{\"family\":70,\"config_scheme\":13,\"device_name\":\"parent=none family=1 "
                            "scheme=7 device= flags=111 map=1:7,; base= locale=C platform=offscreen\"}\n"));
        QCOMPARE(result.log, QByteArray());
    }

    void dialog_gets_data()
    {
        const QByteArray kept("[choice]\nfamily=5\nconfig_scheme=8\ndevice_name=MX25\n");
        const QString over = QStringLiteral("--family=6 --scheme=9 --device= --no-edit --restrict=6:9");
        const QString base = QStringLiteral(" base=%1/mine ").arg(QDir::currentPath());
        rows<QByteArray, QString, QString>(
            {{"what is remembered", kept, "", "family=5 scheme=8 device=MX25 "},
             {"the command line before it", kept, over, "family=6 scheme=9 device= flags=110 map=6:9,; "},
             {"the restriction as it is", "", "--restrict=3:7,8,23;5:", " map=3:7,8,23,;5:; "},
             {"the base directory", "", "--base-dir=/projects/\u00e4", " base=/projects/\u00e4 "},
             {"a relative base directory", "", "--base-dir=./projects/../mine/", base},
             {"the language", "", "--lang=fi", " locale=fi_FI "},
             {"texts in UTF-8 in any locale", "", "--device=\u00e4\u4e2d", " device=\u00e4\u4e2d "}});
    }

    void dialog_gets()
    {
        const auto [remembered, options, expected] = row<QByteArray, QString, QString>();
        write_file(settings_file(), remembered);

        const QString device = device_of(run_with_fake(words(QStringLiteral("--dialog ") + options),
                                                       {{QStringLiteral("LC_ALL"), QStringLiteral("C")}}));

        QVERIFY2(device.contains(expected), qPrintable(device));
    }

    void printing_the_record_remembers_nothing()
    {
        run_with_fake({QStringLiteral("--dialog")});

        QVERIFY(!QFile::exists(settings_file()));
    }

    void one_opening_offers_modes_of_one_kind()
    {
        const QString families = m_scratch->filePath(QStringLiteral("families.csv"));
        write_file(families, "1,One,0 7 8 13 23\n2,Two,13 14\n3,Three,8 24\n");
        const auto map_of = [&](const char* scheme) {
            const QString device = device_of(run_with_fake({QStringLiteral("--dialog"), QLatin1String(scheme)},
                                                           {{QStringLiteral("GFPQ_FAMILIES"), families}}));
            return QRegularExpression(QStringLiteral("map=(\\S*)")).match(device).captured(1);
        };

        QCOMPARE(map_of("--scheme=7"), QStringLiteral("1:7,13,;2:13,;"));
        QCOMPARE(map_of("--scheme=8"), QStringLiteral("1:8,;3:8,;"));
        QCOMPARE(map_of("--scheme=24"), QStringLiteral("1:23,;3:24,;"));
        QCOMPARE(map_of("--scheme=0"), QStringLiteral("1:0,;2:14,;"));
    }

    void unusable_module_ends_with_one_data()
    {
        rows<QString, QByteArray>({{"missing", "/no/such/module.so",
                                    QByteArray("gfpq_host: The dialog module was not found. Searched:\n"
                                               "/no/such/module.so\n")},
                                   {"no function", QStringLiteral(MODULE_WITHOUT_ENTRY_POINT),
                                    QByteArray("gfpq_host: The dialog module " MODULE_WITHOUT_ENTRY_POINT
                                               " has no function \"gfpq_dyn_dlg\".\n")}});
    }

    void unusable_module_ends_with_one()
    {
        const auto [module, problem] = row<QString, QByteArray>();
        const QString pictures = QStringLiteral("--render=") + m_scratch->filePath(QStringLiteral("pictures"));

        for (const QString& task : {QStringLiteral("--dialog"), pictures}) {
            const PROBE_RESULT result = run({task, QStringLiteral("--module=") + module});
            QVERIFY(result.ended);
            QCOMPARE(result.exit_code, 1);
            QCOMPARE(result.output, QByteArray());
            QCOMPARE(result.log, problem);
        }
    }

    void module_is_found_beside_the_program_data() { rows_named<QString>({"lib/gfpq", "lib"}); }

    void module_is_found_beside_the_program()
    {
        const QString program = install(HOST_PROGRAM, QStringLiteral("bin/gfpq_host"));
        install(FAKE_MODULE, row<QString>() + QLatin1String("/libpgm_gfpq.so"));

        const PROBE_RESULT result = run({QStringLiteral("--dialog")}, {}, program);

        QCOMPARE(result.exit_code, 0);
        QCOMPARE(record_of(result).value(QStringLiteral("family")).toInt(), 70);
    }

    void module_in_the_current_directory_is_not_found()
    {
        const QString program = install(HOST_PROGRAM, QStringLiteral("bin/gfpq_host"));
        install(FAKE_MODULE, QStringLiteral("here/libpgm_gfpq.so"));
        const QString here = m_scratch->filePath(QStringLiteral("here"));
        const QString before = QDir::currentPath();
        QDir::setCurrent(here);

        // The copy of the program needs the path of the tests to its libraries.
        const QString library_path = here + QLatin1Char(':') + qEnvironmentVariable("LD_LIBRARY_PATH");
        const PROBE_RESULT result =
            run({QStringLiteral("--dialog")}, {{QStringLiteral("LD_LIBRARY_PATH"), library_path}}, program);

        QDir::setCurrent(before);
        QCOMPARE(result.exit_code, 1);
        const QByteArray root = QFile::encodeName(m_scratch->path());
        QCOMPARE(result.log, "gfpq_host: The dialog module was not found. Searched:\n" + root +
                                 "/lib/gfpq/libpgm_gfpq.so\n" + root + "/lib/libpgm_gfpq.so\n");
    }

    void pictures_need_no_display_and_show_no_window()
    {
        QMap<QString, QString> environment = without_display();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("no_such_platform"));

        const PROBE_RESULT result =
            run_with_fake({QStringLiteral("--render=") + m_scratch->filePath(QStringLiteral("pictures"))}, environment);

        // The fake module opens nothing that could be drawn.
        QCOMPARE(result.exit_code, 1);
        QCOMPARE(result.log, QByteArray("gfpq_host: The module opened no dialog.\n"));
        QVERIFY(QFileInfo(m_scratch->filePath(QStringLiteral("pictures"))).isDir());
    }

    void pictures_of_a_device_that_does_not_exist_are_not_drawn()
    {
        const QString pictures = m_scratch->filePath(QStringLiteral("pictures"));

        const PROBE_RESULT result =
            run_with_fake({QStringLiteral("--render=") + pictures, QStringLiteral("--device=Nobody")});

        QCOMPARE(result.exit_code, 1);
        QCOMPARE(result.log, QByteArray("gfpq_host: The device \"Nobody\" does not exist.\n"));
        QVERIFY(!QFileInfo::exists(pictures));
    }

private:
    PROBE_RESULT run(const QStringList& options, QMap<QString, QString> environment = {},
                     const QString& program = QStringLiteral(HOST_PROGRAM)) const
    {
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_scratch->filePath(QStringLiteral("config")));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_scratch->path());
        return run_probe(options, environment, program);
    }

    PROBE_RESULT run_with_fake(QStringList options, const QMap<QString, QString>& environment = {}) const
    {
        return run(options << QStringLiteral("--module=" FAKE_MODULE), environment);
    }
    // A copy of `file` at `place` of the scratch directory.
    QString install(const char* file, const QString& place) const
    {
        const QString copy = m_scratch->filePath(place);
        QDir().mkpath(QFileInfo(copy).path());
        if (!QFile::copy(QLatin1String(file), copy))
            qFatal("cannot copy %s", file);
        return copy;
    }

    QString settings_file() const { return m_scratch->filePath(QStringLiteral("config/gfpq/gfpq_host.conf")); }

    std::unique_ptr<QTemporaryDir> m_scratch;
};

QTEST_GUILESS_MAIN(TEST_HOST_PROGRAM)

#include "test_host_program.moc"
