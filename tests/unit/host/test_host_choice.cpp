// SPDX-License-Identifier: MIT

// The choice of device: printed and remembered.
#include "host_choice.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTest>
#include <QTextCodec>

class TEST_HOST_CHOICE : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void json_is_one_line();
    void json_holds_any_device_name_data();
    void json_holds_any_device_name();
    void choice_is_remembered();
    void nothing_remembered_gives_the_defaults();
    void nonsense_in_the_settings_gives_the_defaults_data();
    void nonsense_in_the_settings_gives_the_defaults();
    void ends_of_the_ranges_are_remembered_data();
    void ends_of_the_ranges_are_remembered();

private:
    QTemporaryDir m_scratch;
};

namespace {

HOST_CHOICE choice_of(int family, int scheme, const QString& device)
{
    HOST_CHOICE choice;
    choice.family = family;
    choice.config_scheme = scheme;
    choice.device_name = device.toUtf8().toStdString();
    return choice;
}

void add_device_names()
{
    QTest::addColumn<QString>("device");

    QTest::newRow("plain") << QStringLiteral("MX25L25645G");
    QTest::newRow("none") << QString();
    QTest::newRow("quotes and back slash") << QStringLiteral("\"a\\b\", 'c'");
    QTest::newRow("brackets") << QStringLiteral("[a]");
    QTest::newRow("control bytes") << QStringLiteral("a\nb\tc\u0001");
    QTest::newRow("letters outside ASCII") << QStringLiteral("gr\u00fc\u00df \u4e2d\u6587");
}

} // namespace

void TEST_HOST_CHOICE::initTestCase()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void TEST_HOST_CHOICE::json_is_one_line()
{
    QCOMPARE(choice_to_json(choice_of(3, 13, QStringLiteral("MX25L25645G"))),
             QByteArray("{\"family\":3,\"config_scheme\":13,\"device_name\":\"MX25L25645G\"}"));
}

void TEST_HOST_CHOICE::json_holds_any_device_name_data()
{
    add_device_names();
}

void TEST_HOST_CHOICE::json_holds_any_device_name()
{
    QFETCH(QString, device);

    const QByteArray json = choice_to_json(choice_of(1, 0, device));

    QVERIFY(!json.contains('\n'));
    QCOMPARE(QJsonDocument::fromJson(json).object().value(QStringLiteral("device_name")).toString(), device);
}

void TEST_HOST_CHOICE::choice_is_remembered()
{
    const QString file = m_scratch.filePath(QStringLiteral("remembered.ini"));
    const QString device = QStringLiteral("gr\u00fc\u00df, \"1\"");
    {
        QSettings settings(file, QSettings::IniFormat);
        store_choice(choice_of(5, 8, device), settings);
    }

    const HOST_CHOICE choice = load_choice(QSettings(file, QSettings::IniFormat));

    QCOMPARE(choice.family, 5);
    QCOMPARE(choice.config_scheme, 8);
    QCOMPARE(QString::fromUtf8(choice.device_name.c_str()), device);
}

void TEST_HOST_CHOICE::nothing_remembered_gives_the_defaults()
{
    const HOST_CHOICE choice =
        load_choice(QSettings(m_scratch.filePath(QStringLiteral("empty.ini")), QSettings::IniFormat));

    QCOMPARE(choice.family, 1);
    QCOMPARE(choice.config_scheme, 7);
    QCOMPARE(choice.device_name, std::string());
}

void TEST_HOST_CHOICE::nonsense_in_the_settings_gives_the_defaults_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("scheme");

    QTest::newRow("below") << QStringLiteral("0") << QStringLiteral("-1");
    QTest::newRow("above") << QStringLiteral("73") << QStringLiteral("26");
    QTest::newRow("text") << QStringLiteral("many") << QStringLiteral("13x");
}

void TEST_HOST_CHOICE::nonsense_in_the_settings_gives_the_defaults()
{
    QFETCH(QString, family);
    QFETCH(QString, scheme);
    QSettings settings(m_scratch.filePath(QStringLiteral("nonsense.ini")), QSettings::IniFormat);
    settings.setValue(QStringLiteral("choice/family"), family);
    settings.setValue(QStringLiteral("choice/config_scheme"), scheme);

    const HOST_CHOICE choice = load_choice(settings);

    QCOMPARE(choice.family, 1);
    QCOMPARE(choice.config_scheme, 7);
}

void TEST_HOST_CHOICE::ends_of_the_ranges_are_remembered_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("scheme");

    QTest::newRow("smallest") << 1 << 0;
    QTest::newRow("largest") << 72 << 25;
}

void TEST_HOST_CHOICE::ends_of_the_ranges_are_remembered()
{
    QFETCH(int, family);
    QFETCH(int, scheme);
    QSettings settings(m_scratch.filePath(QStringLiteral("ends.ini")), QSettings::IniFormat);
    store_choice(choice_of(family, scheme, QString()), settings);

    const HOST_CHOICE choice = load_choice(settings);

    QCOMPARE(choice.family, family);
    QCOMPARE(choice.config_scheme, scheme);
}

QTEST_GUILESS_MAIN(TEST_HOST_CHOICE)
#include "test_host_choice.moc"
