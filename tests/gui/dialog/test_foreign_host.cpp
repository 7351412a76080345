// SPDX-License-Identifier: MIT

// The dialog in a program whose application is no host application.
#include "dialog_test.h"

class TEST_FOREIGN_HOST : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void browsing_is_an_internal_error()
    {
        unwind_through_qt();
        open();

        QVERIFY_EXCEPTION_THROWN(button("m_browse_button").click(), INTERNAL_ERROR_REPORTED);

        QCOMPARE(calls(),
                 list_of({R"(MSG_INTERNAL_ERROR.report("app != nullptr", "GFPQ", "pgm/gfpq/gfpq_dlg", 907))"}));
    }
};

GFPQ_TEST_MAIN_WITHOUT_HOST(TEST_FOREIGN_HOST)

#include "test_foreign_host.moc"
