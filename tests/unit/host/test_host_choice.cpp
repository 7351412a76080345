// SPDX-License-Identifier: MIT

// The choice of device: printed and remembered.
#include "program/host_choice.h"
#include "test_rows.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTest>
#include <QTextCodec>

namespace {

HOST_CHOICE choice_of(int family, int scheme, const QString& device)
{
    HOST_CHOICE choice;
    choice.family = family;
    choice.config_scheme = scheme;
    choice.device_name = device.toUtf8().toStdString();
    return choice;
}

} // namespace

class TEST_HOST_CHOICE : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); }

    void json_is_one_line()
    {
        QCOMPARE(choice_to_json(choice_of(3, 13, QStringLiteral("MX25L25645G"))),
                 QByteArray("{\"family\":3,\"config_scheme\":13,\"device_name\":\"MX25L25645G\"}"));
    }

    void json_holds_any_device_name_data()
    {
        rows_named<QString>({"MX25L25645G", "", "\"a\\b\", 'c'", "[a]", "a\nb\tc\u0001", "gr\u00fc\u00df \u4e2d"});
    }

    void json_holds_any_device_name()
    {
        const QString device = row<QString>();

        const QByteArray json = choice_to_json(choice_of(1, 0, device));

        QVERIFY(!json.contains('\n'));
        QCOMPARE(QJsonDocument::fromJson(json).object().value(QStringLiteral("device_name")).toString(), device);
    }

    void choice_is_remembered()
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

    void numbers_in_the_settings_data()
    {
        rows<QVariant, QVariant, int, int>({{"nothing", QVariant(), QVariant(), 1, 7},
                                            {"below", 0, -1, 1, 7},
                                            {"above", 73, 26, 1, 7},
                                            {"text", QByteArray("many"), QByteArray("13x"), 1, 7},
                                            {"smallest", 1, 0, 1, 0},
                                            {"largest", 72, 25, 72, 25}});
    }

    void numbers_in_the_settings()
    {
        const auto [stored_family, stored_scheme, family, scheme] = row<QVariant, QVariant, int, int>();
        QSettings settings(m_scratch.filePath(QStringLiteral("numbers.ini")), QSettings::IniFormat);
        settings.clear();
        if (stored_family.isValid()) {
            settings.setValue(QStringLiteral("choice/family"), stored_family);
            settings.setValue(QStringLiteral("choice/config_scheme"), stored_scheme);
        }

        const HOST_CHOICE choice = load_choice(settings);

        QCOMPARE(choice.family, family);
        QCOMPARE(choice.config_scheme, scheme);
        QCOMPARE(choice.device_name, std::string());
    }

private:
    QTemporaryDir m_scratch;
};

QTEST_GUILESS_MAIN(TEST_HOST_CHOICE)

#include "test_host_choice.moc"
