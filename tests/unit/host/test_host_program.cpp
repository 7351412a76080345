// SPDX-License-Identifier: MIT

// The host program as the shell sees it: what it prints and what it ends with.
#include "probe.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

class TEST_HOST_PROGRAM : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void help_needs_no_display();
    void version_is_told();
    void bad_command_line_ends_with_two();
    void missing_display_is_told_data();
    void missing_display_is_told();

    void dialog_s_record_is_printed();
    void dialog_begins_with_what_is_remembered();
    void command_line_overrules_what_is_remembered();
    void printing_the_record_remembers_nothing();
    void one_opening_offers_modes_of_one_kind();
    void restriction_goes_through_as_it_is();
    void families_file_that_cannot_be_used_ends_with_one();
    void base_directory_reaches_the_module();
    void relative_base_directory_stays_where_it_is();
    void language_is_set();
    void texts_are_utf8_in_any_locale();

    void unusable_module_ends_with_one_data();
    void unusable_module_ends_with_one();
    void module_is_found_beside_the_program_data();
    void module_is_found_beside_the_program();
    void module_in_the_current_directory_is_not_found();

    void pictures_need_no_display_and_show_no_window();

private:
    PROBE_RESULT run(const QStringList& options, QMap<QString, QString> environment = {},
                     const QString& program = QStringLiteral(HOST_PROGRAM)) const;
    PROBE_RESULT run_with_fake(QStringList options, const QMap<QString, QString>& environment = {}) const;
    // A copy of the program in bin of a directory of its own.
    QString install_program() const;
    // Puts the fake module to `place` of that directory.
    void install_module(const QString& place) const;
    void remember(const QByteArray& settings) const;
    QString settings_file() const { return m_scratch->filePath(QStringLiteral("config/gfpq/gfpq_host.conf")); }

    std::unique_ptr<QTemporaryDir> m_scratch;
};

namespace {

QJsonObject record_of(const PROBE_RESULT& result)
{
    return QJsonDocument::fromJson(result.output).object();
}

QString device_of(const PROBE_RESULT& result)
{
    return record_of(result).value(QStringLiteral("device_name")).toString();
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

void TEST_HOST_PROGRAM::init()
{
    m_scratch = std::make_unique<QTemporaryDir>();
}

PROBE_RESULT TEST_HOST_PROGRAM::run(const QStringList& options, QMap<QString, QString> environment,
                                    const QString& program) const
{
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_scratch->filePath(QStringLiteral("config")));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_scratch->path());
    return run_probe(options, environment, program);
}

PROBE_RESULT TEST_HOST_PROGRAM::run_with_fake(QStringList options, const QMap<QString, QString>& environment) const
{
    return run(options << QStringLiteral("--module=" FAKE_MODULE), environment);
}

QString TEST_HOST_PROGRAM::install_program() const
{
    const QString program = m_scratch->filePath(QStringLiteral("bin/gfpq_host"));
    QDir().mkpath(QFileInfo(program).path());
    if (!QFile::copy(QStringLiteral(HOST_PROGRAM), program))
        qFatal("cannot copy the program");
    return program;
}

void TEST_HOST_PROGRAM::install_module(const QString& place) const
{
    const QString module = m_scratch->filePath(place + QLatin1String("/libpgm_gfpq.so"));
    QDir().mkpath(QFileInfo(module).path());
    if (!QFile::copy(QStringLiteral(FAKE_MODULE), module))
        qFatal("cannot copy the module");
}

void TEST_HOST_PROGRAM::remember(const QByteArray& settings) const
{
    write_file(settings_file(), settings);
}

void TEST_HOST_PROGRAM::help_needs_no_display()
{
    const PROBE_RESULT result = run({QStringLiteral("--help")}, without_display());

    QCOMPARE(result.exit_code, 0);
    QVERIFY2(result.output.startsWith("Usage: "), result.output.constData());
    QCOMPARE(result.log, QByteArray());
}

void TEST_HOST_PROGRAM::version_is_told()
{
    const PROBE_RESULT result = run({QStringLiteral("--version")});

    QCOMPARE(result.exit_code, 0);
    QCOMPARE(result.output, QByteArray("Flash Programmer " HOST_VERSION "\n"));
}

void TEST_HOST_PROGRAM::bad_command_line_ends_with_two()
{
    const PROBE_RESULT result = run({QStringLiteral("--family=x")}, without_display());

    QVERIFY(result.ended);
    QCOMPARE(result.exit_code, 2);
    QCOMPARE(result.log, QByteArray("gfpq_host: --family takes a number from 1 to 72, not \"x\".\nTry --help.\n"));
    QCOMPARE(result.output, QByteArray());
}

void TEST_HOST_PROGRAM::missing_display_is_told_data()
{
    QTest::addColumn<QStringList>("options");

    QTest::newRow("window") << QStringList();
    QTest::newRow("dialog") << QStringList(QStringLiteral("--dialog"));
}

void TEST_HOST_PROGRAM::missing_display_is_told()
{
    QFETCH(QStringList, options);

    const PROBE_RESULT result = run(options, without_display());

    QVERIFY(result.ended);
    QCOMPARE(result.exit_code, 1);
    QCOMPARE(result.log, QByteArray("gfpq_host: There is no display here. \"--render DIR\" draws the dialog's pages "
                                    "into files instead.\n"));
}

void TEST_HOST_PROGRAM::dialog_s_record_is_printed()
{
    const PROBE_RESULT result = run_with_fake({QStringLiteral("--dialog"), QStringLiteral("--restrict=1:7")});

    QCOMPARE(result.exit_code, 0);
    QCOMPARE(result.output, QByteArray("{\"family\":70,\"config_scheme\":13,\"device_name\":\"parent=none family=1 "
                                       "scheme=7 device= flags=111 map=1:7,; base= locale=C platform=offscreen\"}\n"));
    QCOMPARE(result.log, QByteArray());
}

void TEST_HOST_PROGRAM::dialog_begins_with_what_is_remembered()
{
    remember("[choice]\nfamily=5\nconfig_scheme=8\ndevice_name=MX25\n");

    const QString device = device_of(run_with_fake({QStringLiteral("--dialog")}));

    QVERIFY2(device.contains(QLatin1String("family=5 scheme=8 device=MX25 ")), qPrintable(device));
}

void TEST_HOST_PROGRAM::command_line_overrules_what_is_remembered()
{
    remember("[choice]\nfamily=5\nconfig_scheme=8\ndevice_name=MX25\n");

    const QString device = device_of(
        run_with_fake({QStringLiteral("--dialog"), QStringLiteral("--family=6"), QStringLiteral("--scheme=9"),
                       QStringLiteral("--device="), QStringLiteral("--no-edit"), QStringLiteral("--restrict=6:9")}));

    QVERIFY2(device.contains(QLatin1String("family=6 scheme=9 device= flags=110 map=6:9,; ")), qPrintable(device));
}

void TEST_HOST_PROGRAM::printing_the_record_remembers_nothing()
{
    run_with_fake({QStringLiteral("--dialog")});

    QVERIFY(!QFile::exists(settings_file()));
}

void TEST_HOST_PROGRAM::one_opening_offers_modes_of_one_kind()
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

void TEST_HOST_PROGRAM::restriction_goes_through_as_it_is()
{
    const QString device =
        device_of(run_with_fake({QStringLiteral("--dialog"), QStringLiteral("--restrict=3:7,8,23;5:")}));

    QVERIFY2(device.contains(QLatin1String(" map=3:7,8,23,;5:; ")), qPrintable(device));
}

void TEST_HOST_PROGRAM::families_file_that_cannot_be_used_ends_with_one()
{
    const PROBE_RESULT result =
        run_with_fake({QStringLiteral("--dialog")}, {{QStringLiteral("GFPQ_FAMILIES"), QStringLiteral("/dev/zero")}});

    QVERIFY(result.ended);
    QCOMPARE(result.exit_code, 1);
    QVERIFY2(result.log.endsWith("gfpq_host: GFPQ_FAMILIES: /dev/zero cannot be read: it is not a regular file.\n"),
             result.log.constData());
    QCOMPARE(result.output, QByteArray());
}

void TEST_HOST_PROGRAM::base_directory_reaches_the_module()
{
    const QString device =
        device_of(run_with_fake({QStringLiteral("--dialog"), QStringLiteral("--base-dir=/projects/\u00e4")}));

    QVERIFY2(device.contains(QStringLiteral(" base=/projects/\u00e4 ")), qPrintable(device));
}

void TEST_HOST_PROGRAM::relative_base_directory_stays_where_it_is()
{
    const QString device =
        device_of(run_with_fake({QStringLiteral("--dialog"), QStringLiteral("--base-dir=./projects/../mine/")}));

    QVERIFY2(device.contains(QStringLiteral(" base=%1/mine ").arg(QDir::currentPath())), qPrintable(device));
}

void TEST_HOST_PROGRAM::language_is_set()
{
    const PROBE_RESULT result = run_with_fake({QStringLiteral("--dialog"), QStringLiteral("--lang=fi")});

    QVERIFY2(device_of(result).contains(QLatin1String(" locale=fi_FI ")), result.output.constData());
}

void TEST_HOST_PROGRAM::texts_are_utf8_in_any_locale()
{
    const PROBE_RESULT result = run_with_fake({QStringLiteral("--dialog"), QStringLiteral("--device=\u00e4\u4e2d")},
                                              {{QStringLiteral("LC_ALL"), QStringLiteral("C")}});

    QVERIFY2(device_of(result).contains(QStringLiteral(" device=\u00e4\u4e2d ")), result.output.constData());
}

void TEST_HOST_PROGRAM::unusable_module_ends_with_one_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QByteArray>("problem");

    QTest::newRow("missing") << QStringLiteral("/no/such/module.so")
                             << QByteArray("gfpq_host: The dialog module is missing; it was looked for here:\n"
                                           "/no/such/module.so\n");
    QTest::newRow("no function") << QStringLiteral(MODULE_WITHOUT_ENTRY_POINT)
                                 << QByteArray("gfpq_host: The dialog module " MODULE_WITHOUT_ENTRY_POINT
                                               " has no function \"gfpq_dyn_dlg\".\n");
}

void TEST_HOST_PROGRAM::unusable_module_ends_with_one()
{
    QFETCH(QString, module);
    QFETCH(QByteArray, problem);
    const QString pictures = QStringLiteral("--render=") + m_scratch->filePath(QStringLiteral("pictures"));

    for (const QString& task : {QStringLiteral("--dialog"), pictures}) {
        const PROBE_RESULT result = run({task, QStringLiteral("--module=") + module});
        QVERIFY(result.ended);
        QCOMPARE(result.exit_code, 1);
        QCOMPARE(result.output, QByteArray());
        QCOMPARE(result.log, problem);
    }
}

void TEST_HOST_PROGRAM::module_is_found_beside_the_program_data()
{
    QTest::addColumn<QString>("place");

    QTest::newRow("own directory") << QStringLiteral("lib/gfpq");
    QTest::newRow("common directory") << QStringLiteral("lib");
}

void TEST_HOST_PROGRAM::module_is_found_beside_the_program()
{
    QFETCH(QString, place);
    const QString program = install_program();
    install_module(place);

    const PROBE_RESULT result = run({QStringLiteral("--dialog")}, {}, program);

    QCOMPARE(result.exit_code, 0);
    QCOMPARE(record_of(result).value(QStringLiteral("family")).toInt(), 70);
}

void TEST_HOST_PROGRAM::module_in_the_current_directory_is_not_found()
{
    const QString program = install_program();
    install_module(QStringLiteral("here"));
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
    QCOMPARE(result.log, "gfpq_host: The dialog module is missing; it was looked for here:\n" + root +
                             "/lib/gfpq/libpgm_gfpq.so\n" + root + "/lib/libpgm_gfpq.so\n");
}

void TEST_HOST_PROGRAM::pictures_need_no_display_and_show_no_window()
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

QTEST_GUILESS_MAIN(TEST_HOST_PROGRAM)
#include "test_host_program.moc"
