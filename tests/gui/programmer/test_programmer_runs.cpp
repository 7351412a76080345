// SPDX-License-Identifier: MIT

// Runs of the programmer's window on emulated chips, from the entries to verdict, log, trace and data.
#include "programmer_test.h"

#include "results/hex_view.h"
#include "results/trace_model.h"

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QSpinBox>
#include <QTcpServer>

class TEST_PROGRAMMER_RUNS : public PROGRAMMER_TEST
{
    Q_OBJECT

private:
    // What keeps another program from using the file of a chip.
    std::string problem_of_using(const QString& file)
    {
        std::string problem;
        GFPDB_RECORD device;
        device.row.name = SMALL_DEVICE;
        GFPE_CHIP::make(device, problem)->use_file(scratch(qPrintable(file)).toStdString(), problem);
        return problem;
    }

    // Saves what was read into `file`; what a box says of it.
    QString save_read_out(const QString& file)
    {
        m_modals.expect([file](QWidget* window) {
            auto* dialog = qobject_cast<QFileDialog*>(window);
            dialog->setOption(QFileDialog::DontConfirmOverwrite);
            dialog->selectFile(file);
            static_cast<QDialog*>(dialog)->accept();
        });
        m_modals.expect(MODAL_DRIVER::accept());
        click("m_save_button");
        return m_modals.last().text;
    }

private slots:
    void a_flow_is_tried_without_hardware_data()
    {
        rows<QString, int>(
            {{"single", SMALL_DEVICE, PGMIO_ACTIVE_SERIAL}, {"quad", SMALL_DEVICE, PGMIO_ACTIVE_SERIAL_X4}});
    }

    void a_flow_is_tried_without_hardware()
    {
        const auto [device, scheme] = row<QString, int>();
        open(qPrintable(device), scheme);

        click("m_trial_button");
        QVERIFY(!child<QAbstractButton>("m_trial_button").isEnabled());
        QVERIFY(child<QAbstractButton>("m_cancel_button").isEnabled());

        QCOMPARE(wait_for_verdict(), qs("Passed"));
        for (const char* text : {"a test pattern", "Erase", "Blank-Check", "Program", "Verify", "Termination"})
            QVERIFY2(log().contains(qs(text)), text);
        QVERIFY(!child<QAbstractButton>("m_cancel_button").isEnabled());
        QVERIFY(child<QTableView>("m_trace_table").model()->rowCount() > 100);
    }

    void a_run_ends_with_a_verdict_data()
    {
        const QString failed = qs("Failed at Verify, action 1 \"Read Data\"");
        rows<QString, int, QString, int, QString>(
            {{"program and verify", "epv", 0x10000, "0", 0, "Passed"},
             {"another place", "epv", 0x10000, "0x20000", 0, "Passed"},
             {"whole device", "ebpvx", 1000, "0", 1, "Passed"},
             {"blank check", "b", 0, "0", 0, "Passed"},
             {"not what the file has", "v", 0x10000, "0", 0, failed},
             {"nothing checked", "", 10, "0", 0, "Not started: No operation is checked."},
             {"no file", "p", 0, "0", 0, "Not started: No file is chosen."},
             {"file too large", "v", 0x10000, "0xF0001", 0,
              "Not started: The file needs 65536 bytes from 0x000F0001 on, and the device has 1048576 bytes."},
             {"place past all numbers", "v", 10, "0x7FFFFFFFFFFFFFFF", 0,
              "Not started: The file needs 10 bytes from 0x7FFFFFFFFFFFFFFF on, and the device has 1048576 bytes."},
             {"no place", "v", 10, "here", 0, "Not started: The place where the file begins is not a number."},
             {"no range", "v", 10, "0", 2, "Not started: Address or length is not a number."}});
    }

    void a_run_ends_with_a_verdict()
    {
        const auto [operations, size, position, extent, expected] = row<QString, int, QString, int, QString>();
        open();
        if (size > 0)
            enter_file(make_file("image.bin", content(size)));
        check(operations);
        enter("m_position_edit", position);
        child<QComboBox>("m_extent_combo").setCurrentIndex(extent);
        enter("m_length_edit", qs("much"));

        const QString verdict = run();

        // The names of actions are the flow's.
        QCOMPARE(verdict.left(expected.indexOf(QLatin1String(", action"))),
                 expected.left(expected.indexOf(QLatin1String(", action"))));
        QVERIFY(log().contains(verdict));
    }

    void a_trial_needs_no_connection()
    {
        open();
        child<QComboBox>("m_connection_combo").setCurrentIndex(1);
        enter("m_host_edit", QString());
        click("m_trial_button");
        QCOMPARE(wait_for_verdict(), qs("Passed"));
    }

    void a_device_is_needed()
    {
        open("");
        click("m_trial_button");
        QCOMPARE(verdict(), qs("Not started: No device is chosen."));
    }

    void the_chip_keeps_its_contents_data()
    {
        rows<QString, bool>({{"in the window", "", false}, {"in a file", "chip.bin", true}});
    }

    void the_chip_keeps_its_contents()
    {
        const auto [file, is_for_ever] = row<QString, bool>();
        open();
        if (!file.isEmpty())
            enter("m_contents_edit", scratch(qPrintable(file)));
        enter_file(make_file("image.bin", content(0x10000)));
        check(qs("epv"));
        QCOMPARE(run(), qs("Passed"));
        check(qs("v"));
        QCOMPARE(run(), qs("Passed"));
        if (is_for_ever)
            QCOMPARE(problem_of_using(file), std::string());

        window().close();
        open();
        const QString verdict = run();
        QVERIFY2(verdict == qs("Passed") || !is_for_ever, qPrintable(verdict));
        QVERIFY2(verdict.startsWith(qs("Failed at Verify")) || is_for_ever, qPrintable(verdict));
    }

    void bytes_beside_the_range_are_asked_for_data()
    {
        rows<QString, bool>({{"erased", "Erase", true}, {"kept", "Cancel", false}});
    }

    void bytes_beside_the_range_are_asked_for()
    {
        const auto [answer, is_run] = row<QString, bool>();
        open();
        enter_file(make_file("image.bin", content(100)));
        enter("m_position_edit", qs("0x10010"));

        m_modals.expect(MODAL_DRIVER::click(answer));
        const QString verdict = run();

        QCOMPARE(m_modals.last().text,
                 qs("Whole sectors are erased. These bytes beside the range are erased, too:\n\n0x00010000 - "
                    "0x0001000F\n0x00010074 - 0x0001FFFF\n\nErase them?"));
        QCOMPARE(verdict, is_run ? qs("Passed") : QString());
    }

    void the_failed_command_is_marked_with_what_was_expected()
    {
        open();
        enter_file(make_file("image.bin", QByteArray("\x12\x34\x56\x78", 4)));
        check(qs("v"));
        run();
        auto& table = child<QTableView>("m_trace_table");
        const QAbstractItemModel& model = *table.model();
        const QModelIndex failed = table.currentIndex();

        QVERIFY(failed.isValid());
        QCOMPARE(failed.sibling(failed.row(), TRACE_MODEL::OPERATION).data().toString(), qs("Verify"));
        QCOMPARE(failed.sibling(failed.row(), TRACE_MODEL::EXPECTED).data().toString().left(2), qs("12"));
        QVERIFY(failed.data(Qt::BackgroundRole).isValid());
        const QString bytes = child<QLabel>("m_command_label").text();
        QVERIFY2(bytes.contains(qs("xpected 12")) && bytes.contains(qs("received FF")), qPrintable(bytes));
        const QString detail = child<QLabel>("m_verdict_label").toolTip();
        QVERIFY2(detail.contains(qs("12")) && detail.contains(qs("FF")), qPrintable(detail));
        QVERIFY(!model.index(0, 0).data(Qt::BackgroundRole).isValid());

        child<QComboBox>("m_phase_combo").setCurrentText(qs("Initialization"));
        QVERIFY(model.rowCount() > 0);
        for (int row = 0; row < model.rowCount(); ++row)
            QCOMPARE(model.index(row, TRACE_MODEL::OPERATION).data().toString(), qs("Initialization"));
    }

    void what_was_read_is_shown_with_its_differences()
    {
        open();
        const QByteArray image = content(0x10000);
        enter_file(make_file("image.bin", image));
        run();
        QByteArray changed = image;
        changed[0x100] = static_cast<char>(changed[0x100] ^ 1);
        changed[0x8000] = static_cast<char>(changed[0x8000] ^ 1);
        make_file("image.bin", changed);
        check(qs("x"));
        QCOMPARE(run(), qs("Passed"));
        auto& view = child<HEX_VIEW>("m_hex_view");

        QCOMPARE(child<QLabel>("m_data_label").text(),
                 qs("0x00000000 - 0x0000FFFF was read. Bytes that differ from the file: 2"));
        const std::int64_t places[] = {0x100, 0x8000, 0x100};
        for (const std::int64_t place : places) {
            click("m_next_button");
            QCOMPARE(view.position(), place);
        }
        click("m_previous_button");
        QCOMPARE(view.position(), std::int64_t{0x8000});
        QCOMPARE(child<QLabel>("m_place_label").text(), qs("0x00008000: 80, expected 81"));
        // What was expected does not depend on what becomes of the file.
        make_file("image.bin", QByteArray(0x10000, 'x'));
        view.go_to(0x100);
        QCOMPARE(child<QLabel>("m_place_label").text(), qs("0x00000100: 01, expected 00"));
        view.go_to(0x8000);
        QTest::keyClick(&view, Qt::Key_Down);
        QTest::keyClick(&view, Qt::Key_Right);
        QCOMPARE(view.position(), std::int64_t{0x8011});
        enter("m_address_edit", qs("0xFFFFF"));
        QTest::keyClick(&child<QLineEdit>("m_address_edit"), Qt::Key_Return);
        QCOMPARE(view.position(), std::int64_t{0xFFFF});
        QVERIFY(!view.grab().isNull());
    }

    void what_was_read_is_not_saved_where_it_cannot_be_data()
    {
        rows<QString, QString>(
            {{"over the chip", "chip.bin", " keeps the contents of the emulated chip. Choose another one."},
             {"no directory", "nowhere/file.bin", " cannot be written: "}});
    }

    void what_was_read_is_not_saved_where_it_cannot_be()
    {
        const auto [name, problem] = row<QString, QString>();
        open();
        enter("m_contents_edit", scratch("chip.bin"));
        check(qs("x"));
        QCOMPARE(run(), qs("Passed"));
        const QString text = save_read_out(scratch(qPrintable(name)));
        QVERIFY2(text.contains(problem), qPrintable(text));
        QVERIFY(log().contains(problem));
    }

    void a_run_is_cancelled()
    {
        open(LARGE_DEVICE);
        click("m_trial_button");
        child<QAction>("m_cancel_action").trigger();
        QCOMPARE(wait_for_verdict(), qs("Cancelled"));
        QVERIFY(log().contains(qs("Cancelled (")));
    }

    void closing_asks_while_a_run_is_under_way()
    {
        open(LARGE_DEVICE);
        click("m_trial_button");
        m_modals.expect(MODAL_DRIVER::click(qs("Keep running")));
        window().close();
        QVERIFY(window().isVisible());
        QCOMPARE(m_modals.last().text, qs("A run is under way. Cancel it and close the window?"));
        m_modals.expect(MODAL_DRIVER::click(qs("Cancel the run")));
        window().close();
        QTRY_VERIFY(!window().isVisible());
    }

    void a_window_that_was_kept_stays_after_the_end_of_the_run()
    {
        open();
        click("m_trial_button");
        m_modals.expect([this](QWidget* box) {
            QCOMPARE(wait_for_verdict(), qs("Passed"));
            MODAL_DRIVER::click(qs("Keep running"))(box);
        });
        window().close();
        QVERIFY(window().isVisible());
    }

    void what_waits_for_a_silent_programmer_is_cancelled_data()
    {
        rows<QString>({{"detect", "m_detect_button"}, {"run", "m_start_button"}});
    }

    void what_waits_for_a_silent_programmer_is_cancelled()
    {
        const auto button = row<QString>();
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        open();
        child<QComboBox>("m_connection_combo").setCurrentIndex(1);
        enter("m_host_edit", qs("127.0.0.1"));
        child<QSpinBox>("m_port_spin").setValue(silent.serverPort());
        check(qs("b"));
        click(qPrintable(button));
        QTRY_VERIFY(silent.hasPendingConnections());
        click("m_cancel_button");
        QCOMPARE(wait_for_verdict(), qs("Cancelled"));
    }

    void a_programmer_that_goes_is_told_of()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        connect(&server, &QTcpServer::newConnection, &server, [&server] { delete server.nextPendingConnection(); });
        open();
        child<QComboBox>("m_connection_combo").setCurrentIndex(1);
        enter("m_host_edit", qs("127.0.0.1"));
        child<QSpinBox>("m_port_spin").setValue(server.serverPort());
        click("m_detect_button");
        const QString verdict = wait_for_verdict();
        QVERIFY2(verdict.startsWith(qs("Nothing was detected: The connection to the programmer is lost:")),
                 qPrintable(verdict));
    }

    void detection_lists_the_devices_with_the_id()
    {
        open(LARGE_DEVICE);
        m_modals.expect([](QWidget* box) {
            QTest::keyClick(box->findChild<QWidget*>(qs("m_detected_list")), Qt::Key_Down);
            qobject_cast<QDialog*>(box)->accept();
        });
        click("m_detect_button");
        QTRY_COMPARE(m_modals.met().size(), 1);
        QTRY_VERIFY(log().contains(qs("The chip has the ID C2 20 19.")));
        QVERIFY(!window().choice().device_name.empty());
    }
};

QTEST_MAIN(TEST_PROGRAMMER_RUNS)

#include "test_programmer_runs.moc"
