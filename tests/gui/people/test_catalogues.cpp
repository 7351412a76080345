// SPDX-License-Identifier: MIT

// The catalogues as translators keep them: complete, and true to what surrounds the words of a text.
#include "test_rows.h"
#include "words/gfpq_vocabulary.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>
#include <iterator>

namespace {

struct MESSAGE
{
    QString context;
    QString source;
    QString translation;
    QString type;
};

QList<MESSAGE> read_catalogue(const QString& name)
{
    QList<MESSAGE> messages;
    QFile file(QStringLiteral(GFPQ_CATALOGUES "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the catalogue %s cannot be read", qPrintable(name));
    QXmlStreamReader reader(&file);
    MESSAGE message;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::EndElement && reader.name() == QLatin1String("message"))
            messages.append(message);
        if (!reader.isStartElement())
            continue;
        if (reader.name() == QLatin1String("name"))
            message.context = reader.readElementText();
        else if (reader.name() == QLatin1String("source"))
            message.source = reader.readElementText();
        else if (reader.name() == QLatin1String("translation")) {
            message.type = reader.attributes().value(QLatin1String("type")).toString();
            message.translation = reader.readElementText();
        }
    }
    if (reader.hasError())
        qFatal("the catalogue %s cannot be read: %s", qPrintable(name), qPrintable(reader.errorString()));
    return messages;
}

QString language_of(const QString& catalogue)
{
    QFile file(QStringLiteral(GFPQ_CATALOGUES "/") + catalogue);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QRegularExpression(QStringLiteral("<TS [^>]*\\slanguage=\"([^\"]*)\""))
        .match(QString::fromUtf8(file.readAll()))
        .captured(1);
}

// What a text ends in: the blanks, and a colon or dots before them.
QString ending(const QString& text)
{
    return QRegularExpression(QStringLiteral("(\\.\\.\\.|[:\uFF1A])?\\s*$")).match(text).captured();
}

// An English ending as the language of a catalogue has it: Chinese has a colon of its own, which is as wide as a
// letter.
QString ending_in(const QString& catalogue, QString english)
{
    return catalogue.contains(QLatin1String("_zh_")) ? english.replace(QLatin1Char(':'), QChar(0xFF1A)) : english;
}

QStringList placeholders(const QString& text)
{
    QStringList found;
    auto matches = QRegularExpression(QStringLiteral("%\\d")).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    found.sort();
    return found;
}

// Where the access keys of a context must not clash: what is in a window may all be in sight at once, but the keys of a
// menu and of a dialog are their own. Two dialogs have the fields of a device's place, one window has the pages of a
// database, and both windows have the title of the same menu.
QStringList places_of(const QString& context, const QString& source)
{
    if (source == QLatin1String("&Help"))
        return {QString(), QStringLiteral("DATABASE_WINDOW")};
    if (context == QLatin1String("PLACE_FIELDS"))
        return {QStringLiteral("COPY_DIALOG"), QStringLiteral("NEW_DEVICE_DIALOG")};
    const QString database = QStringLiteral("DATABASE_WINDOW");
    if (QStringList({database, QStringLiteral("DEVICE_PAGE"), QStringLiteral("HISTORY_PAGE")}).contains(context))
        return {database};
    const bool is_apart = context.endsWith(QLatin1String("_MENU")) || context.endsWith(QLatin1String("_DIALOG"));
    return {is_apart ? context : QString()};
}

const QStringList LANGUAGES{QStringLiteral("de"),    QStringLiteral("es"), QStringLiteral("fr"),
                            QStringLiteral("it"),    QStringLiteral("ja"), QStringLiteral("ko"),
                            QStringLiteral("pt_BR"), QStringLiteral("ru"), QStringLiteral("zh_CN"),
                            QStringLiteral("zh_TW")};

// The dialog's, the programs' and the flash database's.
const QStringList KINDS{QStringLiteral("gfpq_%1.ts"), QStringLiteral("gfpq_host_%1.ts"), QStringLiteral("gfpdb_%1.ts")};

QStringList all_catalogues()
{
    QStringList names;
    for (const QString& kind : KINDS) {
        for (const QString& language : LANGUAGES)
            names.append(kind.arg(language));
    }
    names.sort();
    return names;
}

} // namespace

class TEST_CATALOGUES : public QObject
{
    Q_OBJECT

private:
    static void add_catalogues()
    {
        QTest::addColumn<QString>("catalogue");
        for (const QString& name : all_catalogues())
            QTest::newRow(qPrintable(name)) << name;
    }

private slots:
    void there_is_one_for_each_language()
    {
        QStringList found = QDir(QStringLiteral(GFPQ_CATALOGUES)).entryList({QStringLiteral("*.ts")});
        found.sort();

        QCOMPARE(found, all_catalogues());
        for (const QString& name : qAsConst(found))
            QVERIFY2(name.endsWith(QLatin1Char('_') + language_of(name) + QLatin1String(".ts")), qPrintable(name));
    }

    void texts_are_complete_data() { add_catalogues(); }

    void texts_are_complete()
    {
        QFETCH(QString, catalogue);
        const QList<MESSAGE> messages = read_catalogue(catalogue);

        QVERIFY(!messages.isEmpty());
        for (const MESSAGE& message : messages) {
            QVERIFY2(message.type.isEmpty(), qPrintable(message.source));
            QVERIFY2(!message.translation.trimmed().isEmpty(), qPrintable(message.source));
        }
    }

    void endings_are_kept_data() { add_catalogues(); }

    void endings_are_kept()
    {
        QFETCH(QString, catalogue);
        for (const MESSAGE& message : read_catalogue(catalogue)) {
            // A sentence goes on after its end in some languages.
            if (message.source != QLatin1String("Failed to set the custom database directory to "))
                QVERIFY2(ending(message.translation).endsWith(ending_in(catalogue, ending(message.source))),
                         qPrintable(message.translation));
            QCOMPARE(message.translation.endsWith(QLatin1Char(' ')), message.source.endsWith(QLatin1Char(' ')));
        }
    }

    // With each language what must not be in it: quotation marks of others, in Chinese narrow colons and question
    // marks, in French a mark that a line can begin with.
    void marks_are_those_of_the_language_data()
    {
        rows<QString>({{"de", "[\"«»‘「」]"},
                       {"es", "[\"„“”‘「」]"},
                       {"fr", "[\"„“”‘「」]|[^\u00A0][:;?!»](?!\\S)|«[^\u00A0]"},
                       {"it", "[\"„“”‘「」]"},
                       {"ja", "[\"„“”«»‘’]"},
                       {"ko", "[\"„“”«»「」]"},
                       {"pt_BR", "[\"„«»‘「」]"},
                       {"ru", "[\"„“”‘’「」]"},
                       {"zh_CN", "[:?\"„«»‘’「」]"},
                       {"zh_TW", "[:?\"„“”«»‘’]"}});
    }

    void marks_are_those_of_the_language()
    {
        const QRegularExpression foreign(row<QString>());
        for (const QString& kind : KINDS) {
            for (const MESSAGE& message : read_catalogue(kind.arg(QLatin1String(QTest::currentDataTag()))))
                QVERIFY2(!message.translation.contains(foreign), qPrintable(message.translation));
        }
    }

    void placeholders_and_line_breaks_are_kept_data() { add_catalogues(); }

    void placeholders_and_line_breaks_are_kept()
    {
        QFETCH(QString, catalogue);
        for (const MESSAGE& message : read_catalogue(catalogue)) {
            QCOMPARE(placeholders(message.translation), placeholders(message.source));
            QCOMPARE(message.translation.count(QLatin1Char('\n')), message.source.count(QLatin1Char('\n')));
        }
    }

    void access_keys_are_kept_and_clash_nowhere_data() { add_catalogues(); }

    void access_keys_are_kept_and_clash_nowhere()
    {
        QFETCH(QString, catalogue);
        QSet<QString> keys;
        const auto is_new = [&keys](const QString& place, const QString& text) {
            const QString key = place + text.mid(text.indexOf(QLatin1Char('&')), 2).toLower();
            const bool is_there = keys.contains(key);
            keys.insert(key);
            return !is_there;
        };
        for (const MESSAGE& message : read_catalogue(catalogue)) {
            QCOMPARE(message.translation.count(QLatin1Char('&')), message.source.count(QLatin1Char('&')));
            if (!message.source.contains(QLatin1Char('&')))
                continue;
            for (const QString& place : places_of(message.context, message.source)) {
                QVERIFY2(is_new(QStringLiteral("en ") + place, message.source), qPrintable(message.source));
                QVERIFY2(is_new(place, message.translation), qPrintable(message.translation));
            }
        }
    }

    void catalogues_of_a_kind_have_the_same_texts()
    {
        for (const QString& kind : KINDS) {
            QStringList first;
            for (const QString& language : LANGUAGES) {
                QStringList texts;
                for (const MESSAGE& message : read_catalogue(kind.arg(language)))
                    texts.append(message.context + QLatin1String(": ") + message.source);
                if (first.isEmpty())
                    first = texts;
                QCOMPARE(texts, first);
            }
        }
    }

    // Also where Qt's own catalogues are missing, and with the words of the dialog.
    void buttons_of_qt_speak_the_language()
    {
        for (const QString& language : LANGUAGES) {
            QMap<QString, QString> of_dialog;
            for (const MESSAGE& message : read_catalogue(KINDS[0].arg(language)))
                of_dialog.insert(message.source, message.translation);
            QStringList buttons;
            for (const MESSAGE& message : read_catalogue(KINDS[1].arg(language))) {
                if (message.context != QLatin1String("QPlatformTheme"))
                    continue;
                buttons.append(message.source);
                QCOMPARE(message.translation, of_dialog.value(message.source, message.translation));
            }
            buttons.sort();
            QCOMPARE(buttons, QStringList({QStringLiteral("Cancel"), QStringLiteral("Close"), QStringLiteral("OK"),
                                           QStringLiteral("Save")}));
        }
    }

    // Where a sentence of the flash database names a field, it is the label that the user sees.
    void the_database_calls_the_fields_as_the_dialog_does()
    {
        const QMap<QString, QString> label_of{
            {QStringLiteral("device name"), QStringLiteral("Device name: ")},
            {QStringLiteral("device ID"), QStringLiteral("Device ID: ")},
            {QStringLiteral("I/O voltage"), QStringLiteral("Device I/O voltage: ")},
            {QStringLiteral("density"), QStringLiteral("Device density: ")},
            {QStringLiteral("total die count"), QStringLiteral("Total device die:")},
            {QStringLiteral("number of single-I/O dummy clocks"), QStringLiteral("Single I/O mode dummy clock: ")},
            {QStringLiteral("number of quad-I/O dummy clocks"), QStringLiteral("Quad I/O mode dummy clock:")},
            {QStringLiteral("flow template"), QStringLiteral("Programming flow template: ")}};
        for (const QString& language : LANGUAGES) {
            QMap<QString, QString> label;
            for (const MESSAGE& message : read_catalogue(KINDS[0].arg(language)))
                label.insert(message.source, message.translation);
            for (const MESSAGE& message : read_catalogue(KINDS[2].arg(language))) {
                if (label_of.contains(message.source))
                    QCOMPARE(message.translation,
                             QString(label.value(label_of.value(message.source)))
                                 .remove(QRegularExpression(QStringLiteral("\u00A0?[:\uFF1A]\\s*$"))));
            }
        }
    }

    void the_vocabulary_is_not_translated()
    {
        QStringList words;
        const auto take = [&words](const char* word) { words.append(QString::fromUtf8(word)); };
        std::for_each(std::begin(GFPQ_OPERATION_NAMES), std::end(GFPQ_OPERATION_NAMES), take);
        std::for_each(std::begin(GFPQ_OPERATION_DESCRIPTIONS), std::end(GFPQ_OPERATION_DESCRIPTIONS), take);
        std::for_each(std::begin(GFPQ_ACTION_TYPE_NAMES), std::end(GFPQ_ACTION_TYPE_NAMES), take);
        std::for_each(std::begin(GFPQ_PROPERTY_LABELS), std::end(GFPQ_PROPERTY_LABELS), take);
        std::for_each(std::begin(PGMIO_CONFIG_SCHEME_NAMES), std::end(PGMIO_CONFIG_SCHEME_NAMES), take);
        words.append(QStringLiteral("<<new device>>"));

        for (const QString& catalogue : all_catalogues()) {
            for (const MESSAGE& message : read_catalogue(catalogue))
                QVERIFY2(!words.contains(message.source), qPrintable(message.source));
        }
    }
};

QTEST_GUILESS_MAIN(TEST_CATALOGUES)

#include "test_catalogues.moc"
