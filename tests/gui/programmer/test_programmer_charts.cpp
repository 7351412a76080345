// SPDX-License-Identifier: MIT

// The programmer's window: flow charts of the chosen device as files.
#include "programmer_test.h"

#include <QAction>
#include <QFile>
#include <QFileDialog>

class TEST_PROGRAMMER_CHARTS : public PROGRAMMER_TEST
{
    Q_OBJECT

private:
    // The file dialog chooses the kind of file that `filter` names, and `file`; what it proposed is kept.
    void expect_file(const QString& filter, const QString& file)
    {
        m_modals.expect([this, filter, file](QWidget* window) {
            auto* dialog = qobject_cast<QFileDialog*>(window);
            m_proposed = dialog->selectedFiles().value(0);
            dialog->selectNameFilter(filter);
            emit dialog->filterSelected(dialog->selectedNameFilter());
            dialog->selectFile(file);
            static_cast<QDialog*>(dialog)->accept();
        });
    }

    QByteArray content_of(const char* file)
    {
        QFile read(scratch(file));
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray("missing");
    }

    void trigger() { child<QAction>("m_charts_action").trigger(); }

    QString m_proposed;

private slots:
    // A name without an ending gets that of the kind of file.
    void charts_are_saved_data()
    {
        rows<QString, QString, QString, QByteArray>(
            {{"pages", "PDF document (*.pdf)", "charts", "charts.pdf", "%PDF-"},
             {"a picture", "SVG picture (*.svg)", "charts", "charts.svg", "<?xml"},
             {"the ending decides", "PDF document (*.pdf)", "charts.svg", "charts.svg", "<?xml"},
             {"another ending", "PDF document (*.pdf)", "charts.old", "charts.old", "%PDF-"}});
    }

    void charts_are_saved()
    {
        const auto [filter, entered, file, begin] = row<QString, QString, QString, QByteArray>();
        open();
        expect_file(filter, scratch(qPrintable(entered)));

        trigger();

        QVERIFY(content_of(qPrintable(file)).startsWith(begin));
        QVERIFY2(m_proposed.endsWith(qs("/MX25R8035F-builtin.pdf")), qPrintable(m_proposed));
        QVERIFY2(log().contains(qs("The flow charts are in %1.").arg(scratch(qPrintable(file)))), qPrintable(log()));
    }

    void the_flow_is_that_of_the_mode_data()
    {
        rows<int, QByteArray>({{"one line", PGMIO_ACTIVE_SERIAL, ">Single-I/O flow</text>"},
                               {"four lines", PGMIO_ACTIVE_SERIAL_X4, ">Quad-I/O flow</text>"}});
    }

    void the_flow_is_that_of_the_mode()
    {
        const auto [scheme, flow] = row<int, QByteArray>();
        open(SMALL_DEVICE, scheme);
        expect_file(qs("SVG picture (*.svg)"), scratch("charts.svg"));

        trigger();

        const QByteArray svg = content_of("charts.svg");
        QVERIFY(svg.contains(flow) && svg.contains(">MX25R8035F</text>"));
        for (const char* title : {">Initialization<", ">Program<", ">Erase<", ">Verify/Blank-Check/Examine<"})
            QVERIFY2(svg.contains(title), title);
    }

    void who_cancels_gets_no_file()
    {
        open();
        m_modals.expect(MODAL_DRIVER::reject());

        trigger();

        QCOMPARE(m_modals.met().size(), 1);
        QCOMPARE(log(), QString());
    }

    void a_file_that_cannot_be_written_is_told()
    {
        open();
        expect_file(qs("PDF document (*.pdf)"), qs("/proc/charts.pdf"));
        m_modals.expect(MODAL_DRIVER::accept());

        trigger();

        QCOMPARE(m_modals.last().class_name, qs("QMessageBox"));
        QVERIFY2(m_modals.last().text.startsWith(qs("The file /proc/charts.pdf cannot be written: ")),
                 qPrintable(m_modals.last().text));
        QCOMPARE(log(), QString());
    }

    void without_a_device_there_is_nothing_to_save()
    {
        open("");

        trigger();

        QCOMPARE(m_modals.met().size(), 0);
        QCOMPARE(verdict(), qs("The flow charts cannot be saved: No device is chosen."));
    }
};

QTEST_MAIN(TEST_PROGRAMMER_CHARTS)

#include "test_programmer_charts.moc"
