// SPDX-License-Identifier: MIT

// The end of the line, where there is somebody to see it.
#include "e2e_test.h"

class TEST_INTERNAL_ERROR : public E2E_TEST
{
    Q_OBJECT

private slots:
    void internal_error_is_shown_before_the_process_ends()
    {
        const QString text =
            QStringLiteral("Internal error: 100 %1 != nullptr does not hold (PROBE, tests/%2/host_probe, line 94)");
        QVERIFY(start_probe({QStringLiteral("internal-error-in-application")}));

        QVERIFY(wait_for_box(text));
        QVERIFY(wait_for_window(QStringLiteral("Probe")));
        QVERIFY(user().press(QStringLiteral("Return")));

        QVERIFY(session().wait_for_end());
        QCOMPARE(session().exit_code(), 70);
        QVERIFY2(session().log().contains(text.toUtf8()), session().log().constData());
    }

    void second_internal_error_ends_the_process_at_once()
    {
        QVERIFY(start_probe({QStringLiteral("internal-error-twice")}));

        QVERIFY(session().wait_for_end());
        QCOMPARE(session().exit_code(), 70);
        QCOMPARE(session().log().count("Internal error:"), 2);
    }
};

QTEST_GUILESS_MAIN(TEST_INTERNAL_ERROR)

#include "test_internal_error.moc"
