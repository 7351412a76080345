// SPDX-License-Identifier: MIT

// A test program in which every function ends with something that the base class must notice: no function may pass.
#include "gui_test.h"

class TEST_SUPPORT_FLAWED : public GUI_TEST
{
    Q_OBJECT

private slots:
    void leaves_a_window() { m_left = new QWidget; }
    void takes_the_window_away_but_warns()
    {
        delete m_left;
        qWarning("not announced");
    }
    void announces_a_warning_that_never_comes() { expect_warning(QStringLiteral("never")); }
    void meets_a_box_that_nobody_expected() { QMessageBox().exec(); }
    void expects_a_box_that_never_comes() { m_modals.expect(MODAL_DRIVER::accept()); }
    void leaks_an_action() { m_action = make_action(0); }
    void leaks_an_operation()
    {
        delete m_action;
        m_operation = new OPERATION_DOUBLE(0);
    }

private:
    QWidget* m_left = nullptr;
    GFPDB_ACTION* m_action = nullptr;
    GFPDB_OPERATION* m_operation = nullptr;
};

GFPQ_TEST_MAIN(TEST_SUPPORT_FLAWED)

#include "test_support_flawed.moc"
