// SPDX-License-Identifier: MIT

// The language of the host's texts.
#include "message_recorder.h"
#include "program/host_translation.h"
#include "test_rows.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString QT_DIRECTORY = QStringLiteral(TRANSLATIONS);
const QStringList DIRECTORIES = {QStringLiteral("/no/such/directory"), QStringLiteral(TRANSLATIONS)};

QString translated()
{
    return QCoreApplication::translate("probe", "Erase");
}

} // namespace

class TEST_HOST_TRANSLATION : public QObject
{
    Q_OBJECT

private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void texts_are_looked_for_beside_the_programs()
    {
        QCOMPARE(TEXT_CATALOGUE::installed_directories(QStringLiteral("/opt/programmer/bin")),
                 QStringList(QStringLiteral("/opt/programmer/share/gfpq/translations")));
    }

    void language_brings_in_its_texts_data() { rows<QString>({{"language", "de"}, {"language and country", "de_AT"}}); }

    void language_brings_in_its_texts()
    {
        const QString language = row<QString>();
        const HOST_TRANSLATION translation(language, DIRECTORIES, QT_DIRECTORY);

        QCOMPARE(translated(), QStringLiteral("L\u00f6schen"));
        QCOMPARE(QLocale().language(), QLocale::German);
    }

    void texts_of_qt_come_too()
    {
        const HOST_TRANSLATION translation(QStringLiteral("de"), DIRECTORIES, QT_DIRECTORY);

        QCOMPARE(QCoreApplication::translate("qt_probe", "Cancel"), QStringLiteral("Abbrechen"));
    }

    // Where the language has a catalogue for another country only.
    void texts_of_qt_are_found_as_ours_are_data()
    {
        rows<QString>({{"pt_BR", "pt_BR"}, {"pt_PT", "pt_BR"}, {"zh_SG", "zh_CN"}, {"zh_HK", "zh_TW"}});
    }

    void texts_of_qt_are_found_as_ours_are()
    {
        const QString installed = row<QString>();
        QTemporaryDir directory;
        for (const QString& name : {QStringLiteral("qtbase"), QStringLiteral("gfpq_host")})
            QVERIFY(QFile::copy(QStringLiteral(TRANSLATIONS "/%1_de.qm").arg(name),
                                directory.filePath(QStringLiteral("%1_%2.qm").arg(name, installed))));

        const HOST_TRANSLATION translation(QLatin1String(QTest::currentDataTag()), {directory.path()},
                                           directory.path());

        QCOMPARE(QCoreApplication::translate("qt_probe", "Cancel"), QStringLiteral("Abbrechen"));
        QCOMPARE(translated(), QStringLiteral("L\u00f6schen"));
    }

    void texts_of_qt_come_from_qt_s_place()
    {
        QCOMPARE(HOST_TRANSLATION::qt_directory(), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    }

    void first_directory_with_the_language_counts()
    {
        QTemporaryDir empty;
        const HOST_TRANSLATION translation(QStringLiteral("de"), {empty.path(), QStringLiteral(TRANSLATIONS)},
                                           QT_DIRECTORY);

        QCOMPARE(translated(), QStringLiteral("L\u00f6schen"));
    }

    void texts_leave_with_the_object()
    {
        {
            const HOST_TRANSLATION translation(QStringLiteral("de"), DIRECTORIES, QT_DIRECTORY);
        }

        QCOMPARE(translated(), QStringLiteral("Erase"));
    }

    void english_is_never_missing()
    {
        MESSAGE_RECORDER messages;
        const HOST_TRANSLATION translation(QStringLiteral("en"), {}, QT_DIRECTORY);

        QCOMPARE(messages.texts(), QStringList());
        QCOMPARE(translated(), QStringLiteral("Erase"));
    }

    void missing_language_is_logged()
    {
        MESSAGE_RECORDER messages;
        const HOST_TRANSLATION translation(QStringLiteral("fi"), DIRECTORIES, QT_DIRECTORY);

        QCOMPARE(messages.texts(), QStringList(QStringLiteral("host.app: There are no texts in the language \"fi\"")));
        QCOMPARE(translated(), QStringLiteral("Erase"));
    }

    void system_language_is_not_missed()
    {
        MESSAGE_RECORDER messages;
        const HOST_TRANSLATION translation(QString(), {}, QT_DIRECTORY);

        QCOMPARE(messages.texts(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TEST_HOST_TRANSLATION)

#include "test_host_translation.moc"
