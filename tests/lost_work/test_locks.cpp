// SPDX-License-Identifier: MIT

// A lock that another program holds keeps the window waiting once for each thing that the user does, however many calls
// that makes.
#include "lost_work_test.h"

#include "gfpdb/gfpdb_helper.h"
#include "slept.h"

#include <QFile>

namespace {
constexpr int BUSY_TIMEOUT_MS = 300;
constexpr long ONE_WAIT_US = BUSY_TIMEOUT_MS * 1000L;
} // namespace

class TEST_LOCKS : public LOST_WORK_TEST
{
    Q_OBJECT

private:
    enum ACT
    {
        OPEN,
        ROW,
        APPLY,
        RENAME,
        DELETE,
        OK,
        FAMILY,
    };
    // Two devices, and a short time to wait for locks.
    void prepare()
    {
        QFile settings(QFile::decodeName(qgetenv("GFPDB_SETTINGS")));
        QVERIFY(settings.open(QIODevice::WriteOnly));
        settings.write("[database]\nbusy_timeout=" + QByteArray::number(BUSY_TIMEOUT_MS) + '\n');
        settings.close();
        store("Mine");
        store("Other");
    }

    // Whatever the form says to it.
    void act(int what)
    {
        switch (what) {
        case OPEN:
            open("Other");
            break;
        case ROW:
            click_row(qs("Other"));
            break;
        case APPLY:
        case RENAME:
            type(what == APPLY ? "m_device_id_edit" : "m_device_name_edit", qs("0x01"));
            click("m_apply_button");
            break;
        case DELETE:
            m_modals.expect(MODAL_DRIVER::click(qs("Yes")));
            click("m_delete_button");
            break;
        case OK:
            type("m_device_id_edit", qs("0x01"));
            click("m_ok_button");
            break;
        case FAMILY:
            part<QComboBox>("m_family_cbox").setCurrentIndex(1);
            break;
        }
        m_modals.reset();
    }

private slots:
    void a_click_waits_once_data()
    {
        QTest::addColumn<int>("what");
        QTest::addColumn<QString>("how");
        QTest::addColumn<int>("waits");
        const std::pair<const char*, ACT> acts[] = {{"open", OPEN},     {"row", ROW},       {"Apply", APPLY},
                                                    {"rename", RENAME}, {"Delete", DELETE}, {"OK", OK},
                                                    {"family", FAMILY}};
        for (const auto& [name, what] : acts) {
            const bool is_change = what >= APPLY && what <= OK;
            QTest::addRow("%s, nobody else reads", name) << int(what) << qs("EXCLUSIVE") << 1;
            QTest::addRow("%s, nobody else writes", name) << int(what) << qs("IMMEDIATE") << int(is_change);
        }
    }

    void a_click_waits_once()
    {
        QFETCH(int, what);
        QFETCH(QString, how);
        QFETCH(int, waits);
        prepare();
        open("Mine");
        lock(how);
        take_slept_us();

        act(what);

        unlock();
        QCOMPARE(take_slept_us(), waits * ONE_WAIT_US);
    }

    void a_call_waits_once()
    {
        prepare();
        lock(qs("EXCLUSIVE"));
        take_slept_us();

        GFPDB_HELPER::get_active_flash_manager(true);
        QVERIFY(manager().find_flash("Mine", true) == nullptr);
        QVERIFY(!manager().delete_flash("Other", directory()));
        QVERIFY(!GFPDB_MGR::save_custom_dir_to_ini(directory(), false));

        QCOMPARE(take_slept_us(), ONE_WAIT_US);
    }

    void a_lock_is_waited_for_again_after_a_pause()
    {
        prepare();
        lock();
        QVERIFY(!manager().delete_flash("Mine", directory()));
        take_slept_us();

        QVERIFY(!manager().delete_flash("Mine", directory()));
        QCOMPARE(take_slept_us(), 0L);
        long slept_us = 0;
        QTRY_COMPARE((manager().delete_flash("Mine", directory()), slept_us += take_slept_us()), ONE_WAIT_US);
    }

    void a_lock_that_was_waited_for_hinders_no_more_when_it_is_gone()
    {
        prepare();
        lock(qs("EXCLUSIVE"));
        GFPDB_HELPER::get_active_flash_manager(true);
        QVERIFY(manager().find_flash("Mine", true) == nullptr);
        unlock();

        QVERIFY(manager().find_flash("Mine", true) != nullptr);
        QVERIFY2(manager().delete_flash("Mine", directory()), manager().get_last_error().c_str());
    }
};

LOST_WORK_TEST_MAIN(TEST_LOCKS)

#include "test_locks.moc"
