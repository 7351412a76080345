// Loading the dialog module.
#include "dialog_call.h"
#include "fake_module.h"
#include "module_loader.h"

#include <QTest>

class TEST_MODULE_LOADER : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void module_is_looked_for_beside_the_programs_only();
    void module_is_loaded_and_called();
    void first_file_that_exists_counts();
    void missing_module_is_told_with_its_places();
    void directory_is_no_module();
    void file_that_is_no_library_is_told();
    void missing_function_is_told();
    void missing_symbol_is_told_at_once();
    void module_that_everyone_may_change_is_not_loaded();
    void module_in_a_place_that_everyone_may_change_is_not_loaded();
    void loading_is_tried_again_after_a_failure();

private:
    QString place(const QString& name) const { return m_scratch->filePath(name); }
    QString copy_of_module(const QString& name);

    std::unique_ptr<QTemporaryDir> m_scratch;
};

void TEST_MODULE_LOADER::init()
{
    m_scratch = std::make_unique<QTemporaryDir>();
}

QString TEST_MODULE_LOADER::copy_of_module(const QString& name)
{
    const QString copy = place(name);
    if (!QFile::copy(QStringLiteral(FAKE_MODULE), copy))
        qFatal("cannot copy the module");
    return copy;
}

void TEST_MODULE_LOADER::module_is_looked_for_beside_the_programs_only()
{
    QCOMPARE(MODULE_LOADER::installed_files(QStringLiteral("/opt/programmer/bin")),
             (QStringList{QStringLiteral("/opt/programmer/lib/gfpq/libpgm_gfpq.so"),
                          QStringLiteral("/opt/programmer/lib/libpgm_gfpq.so")}));
}

void TEST_MODULE_LOADER::module_is_loaded_and_called()
{
    MODULE_LOADER loader({QStringLiteral(FAKE_MODULE)});
    const GFPQ_DYN_DLG entry_point = loader.entry_point();
    QVERIFY2(entry_point, qPrintable(loader.problem()));
    QCOMPARE(loader.problem(), QString());
    QVERIFY(loader.entry_point() == entry_point);

    HOST_CHOICE choice;
    choice.family = 3;
    choice.config_scheme = 8;
    choice.device_name = "MX25";
    DIALOG_OPTIONS options;
    options.enable_config_mode = false;
    options.family_schemes = {{3, {7, 8}}, {5, {}}};
    QWidget parent;
    parent.setWindowTitle(QStringLiteral("window"));
    const HOST_CHOICE result = open_dialog(entry_point, &parent, choice, options);

    QCOMPARE(result.family, FAKE_FAMILY);
    QCOMPARE(result.config_scheme, FAKE_SCHEME);
    QCOMPARE(result.device_name,
             std::string("parent=window family=3 scheme=8 device=MX25 flags=101 map=3:7,8,;5:; base= locale=C "
                         "platform=offscreen"));

    options.enable_family = false;
    options.enable_config_mode = true;
    options.enable_edit = false;
    options.family_schemes.clear();
    QCOMPARE(open_dialog(entry_point, nullptr, choice, options).device_name,
             std::string("parent=none family=3 scheme=8 device=MX25 flags=010 map= base= locale=C "
                         "platform=offscreen"));
}

void TEST_MODULE_LOADER::first_file_that_exists_counts()
{
    MODULE_LOADER loader({place(QStringLiteral("missing.so")), copy_of_module(QStringLiteral("first.so")),
                          QStringLiteral(MODULE_WITHOUT_ENTRY_POINT)});

    QVERIFY2(loader.entry_point(), qPrintable(loader.problem()));
}

void TEST_MODULE_LOADER::missing_module_is_told_with_its_places()
{
    MODULE_LOADER loader({QStringLiteral("/no/such/one.so"), QStringLiteral("/no/such/other.so")});

    QVERIFY(!loader.entry_point());

    QCOMPARE(loader.problem(), QStringLiteral("The dialog module is missing; it was looked for here:\n"
                                              "/no/such/one.so\n/no/such/other.so"));
}

void TEST_MODULE_LOADER::directory_is_no_module()
{
    MODULE_LOADER loader({m_scratch->path()});

    QVERIFY(!loader.entry_point());

    QVERIFY2(loader.problem().startsWith(QLatin1String("The dialog module is missing")), qPrintable(loader.problem()));
}

void TEST_MODULE_LOADER::file_that_is_no_library_is_told()
{
    const QString path = place(QStringLiteral("text.so"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no library");
    file.close();
    MODULE_LOADER loader({path});

    QVERIFY(!loader.entry_point());

    const QString opening = QStringLiteral("The dialog module %1 cannot be loaded:\n").arg(path);
    QVERIFY2(loader.problem().startsWith(opening), qPrintable(loader.problem()));
    QVERIFY(loader.problem().size() > opening.size());
}

void TEST_MODULE_LOADER::missing_function_is_told()
{
    MODULE_LOADER loader({QStringLiteral(MODULE_WITHOUT_ENTRY_POINT)});

    QVERIFY(!loader.entry_point());

    QCOMPARE(loader.problem(),
             QStringLiteral("The dialog module " MODULE_WITHOUT_ENTRY_POINT " has no function \"gfpq_dyn_dlg\"."));
}

void TEST_MODULE_LOADER::missing_symbol_is_told_at_once()
{
    MODULE_LOADER loader({QStringLiteral(MODULE_WITH_MISSING_SYMBOL)});

    QVERIFY(!loader.entry_point());

    QVERIFY2(loader.problem().contains(QLatin1String("a_function_that_nobody_has")), qPrintable(loader.problem()));
}

void TEST_MODULE_LOADER::module_that_everyone_may_change_is_not_loaded()
{
    const QString path = copy_of_module(QStringLiteral("open.so"));
    QVERIFY(QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteOther));
    MODULE_LOADER loader({path});

    QVERIFY(!loader.entry_point());

    QCOMPARE(loader.problem(), QStringLiteral("The dialog module %1 is not loaded: everyone may change it.").arg(path));
}

void TEST_MODULE_LOADER::module_in_a_place_that_everyone_may_change_is_not_loaded()
{
    const QString path = copy_of_module(QStringLiteral("closed.so"));
    QVERIFY(QFile::setPermissions(m_scratch->path(), QFile::permissions(m_scratch->path()) | QFile::WriteOther));
    MODULE_LOADER loader({path});

    QVERIFY(!loader.entry_point());

    QCOMPARE(loader.problem(), QStringLiteral("The dialog module %1 is not loaded: everyone may change it.").arg(path));
}

void TEST_MODULE_LOADER::loading_is_tried_again_after_a_failure()
{
    MODULE_LOADER loader({place(QStringLiteral("later.so"))});
    QVERIFY(!loader.entry_point());

    copy_of_module(QStringLiteral("later.so"));

    QVERIFY(loader.entry_point());
    QCOMPARE(loader.problem(), QString());
}

QTEST_MAIN(TEST_MODULE_LOADER)
#include "test_module_loader.moc"
