// SPDX-License-Identifier: MIT

// A run in the programmer's window, by keyboard, from the device to the verdict.
#include "e2e_test.h"

#include <QJsonArray>

namespace {

const QString TITLE = QStringLiteral("Flash Programmer");

} // namespace

class TEST_PROGRAMMER : public E2E_TEST
{
    Q_OBJECT

private slots:
    void a_file_is_programmed_by_keyboard()
    {
        const QString image = scratch() + QStringLiteral("/image.bin");
        QFile file(image);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(70000, 'x'));
        file.close();

        QVERIFY(start({QStringLiteral("--scheme=7")}));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(user().press(QStringLiteral("alt+c")));
        QVERIFY(wait_for_window(QStringLiteral("Configuration Device")));
        QVERIFY(user().click(item_in("m_device_table_view", QStringLiteral("MX25L1606E"))));
        QVERIFY(user().click(widget_called("m_ok_button")));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(wait_for_property("m_device_field", "text", QStringLiteral("MX25L1606E")));

        QVERIFY(user().press(QStringLiteral("alt+i")));
        QVERIFY(user().type(image));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(wait_for_property("m_facts_label", "text", QStringLiteral("70,000 bytes, CRC-32 C5614828")));
        // 70000 bytes end within a sector: the window asks.
        QVERIFY(user().press(QStringLiteral("alt+s")));
        QVERIFY(wait_for_box_that_opens_with(QStringLiteral("Whole sectors are erased.")));
        QVERIFY(user().press(QStringLiteral("Tab")));
        QVERIFY(user().press(QStringLiteral("space")));

        QVERIFY(wait_for_property("m_verdict_label", "text", QStringLiteral("Passed")));
        QVERIFY(user().press(QStringLiteral("ctrl+q")));
        QVERIFY(ended_well());
    }

    void a_chip_becomes_a_device_that_is_shown_and_runs()
    {
        const QString name = QStringLiteral("BENCH-8");
        QVERIFY(
            start({QStringLiteral("--family=1"), QStringLiteral("--scheme=7"), QStringLiteral("--device=MX25R8035F")}));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(user().press(QStringLiteral("ctrl+n")));
        QVERIFY(wait_for_window(QStringLiteral("New Device: ID C2 28 14, SFDP 1.6")));
        QVERIFY(wait_for_property("value_density", "currentText", QStringLiteral("8Mb")));
        QVERIFY(user().type(name));
        QVERIFY(user().press(QStringLiteral("Return")));

        QVERIFY(wait_for_window(QStringLiteral("Configuration Device")));
        QVERIFY(wait_for_property("m_device_name_edit", "text", name));
        QVERIFY(wait_for_property("m_device_id_edit", "text", QStringLiteral("0xC2 0x28 0x14")));
        QCOMPARE(read_database(1, 7, {}).value(QStringLiteral("devices")), QJsonValue(QJsonArray{name}));
        QVERIFY(user().press(QStringLiteral("Escape")));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(wait_for_property("m_device_field", "text", name));
        QVERIFY(user().press(QStringLiteral("F6")));
        QVERIFY(wait_for_property("m_verdict_label", "text", QStringLiteral("Passed")));
        QVERIFY(user().press(QStringLiteral("ctrl+q")));
        QVERIFY(ended_well());
    }

    void closing_while_a_run_is_under_way_asks()
    {
        QVERIFY(start({QStringLiteral("--scheme=7"), QStringLiteral("--device=MX66L2G45G")}));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(user().press(QStringLiteral("F6")));
        QVERIFY(wait_for_property("m_cancel_button", "enabled", true));

        QVERIFY(user().press(QStringLiteral("ctrl+q")));
        QVERIFY(wait_for_box(QStringLiteral("A run is under way. Cancel it and close the window?")));
        QVERIFY(user().press(QStringLiteral("Escape")));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(user().press(QStringLiteral("ctrl+q")));
        QVERIFY(wait_for_box(QStringLiteral("A run is under way. Cancel it and close the window?")));
        QVERIFY(user().press(QStringLiteral("Tab")));
        QVERIFY(user().press(QStringLiteral("space")));
        QVERIFY(ended_well());
    }
};

QTEST_GUILESS_MAIN(TEST_PROGRAMMER)

#include "test_programmer.moc"
