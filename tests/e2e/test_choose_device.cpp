// A user chooses family, mode and device, and the program that opened the dialog gets them.
#include "e2e_test.h"

class TEST_CHOOSE_DEVICE : public E2E_TEST
{
    Q_OBJECT

private slots:
    void chosen_device_comes_back_with_ok();
};

void TEST_CHOOSE_DEVICE::chosen_device_comes_back_with_ok()
{
    QVERIFY(start({QStringLiteral("--dialog"), QStringLiteral("--family=1"), QStringLiteral("--scheme=7")}));
    QVERIFY(wait_for_window(QStringLiteral("Configuration Device")));
}

QTEST_GUILESS_MAIN(TEST_CHOOSE_DEVICE)
#include "test_choose_device.moc"
