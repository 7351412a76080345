// What the module shows to whoever loads it: its one function, and nothing else.
#include <QLibrary>
#include <QProcess>
#include <QTest>

class TEST_EXPORTED_SYMBOLS : public QObject
{
    Q_OBJECT

private slots:
    void the_module_exports_its_entry_point_and_nothing_else();
    void the_entry_point_can_be_loaded();
};

void TEST_EXPORTED_SYMBOLS::the_module_exports_its_entry_point_and_nothing_else()
{
    QProcess nm;
    nm.start(QStringLiteral("nm"), {QStringLiteral("--dynamic"), QStringLiteral("--defined-only"),
                                    QStringLiteral("--format=posix"), QStringLiteral(GFPQ_MODULE)});
    QVERIFY2(nm.waitForFinished(), "nm cannot be run");
    QCOMPARE(nm.exitCode(), 0);

    const QString table = QString::fromLatin1(nm.readAllStandardOutput());
    QStringList functions;
    for (const QString& line : table.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QStringList columns = line.split(QLatin1Char(' '));
        functions.append(columns.value(0) + QLatin1Char(' ') + columns.value(1));
    }

    QCOMPARE(functions, QStringList{QStringLiteral("gfpq_dyn_dlg T")});
}

void TEST_EXPORTED_SYMBOLS::the_entry_point_can_be_loaded()
{
    QLibrary module(QStringLiteral(GFPQ_MODULE));

    QVERIFY2(module.load(), qPrintable(module.errorString()));
    QVERIFY(module.resolve("gfpq_dyn_dlg") != nullptr);
    QVERIFY(QFileInfo(module.fileName()).fileName() == QLatin1String("libpgm_gfpq.so"));
}

QTEST_GUILESS_MAIN(TEST_EXPORTED_SYMBOLS)

#include "test_exported_symbols.moc"
