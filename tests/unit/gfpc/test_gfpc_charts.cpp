// SPDX-License-Identifier: MIT

// Charts as SVG and PDF: what can be read of them.
#include "gfpc/gfpc_charts.h"
#include "gfpdb/gfpdb_database.h"
#include "gfpdb/gfpdb_enums.h"
#include "test_rows.h"

#include <QPainter>
#include <QProcess>
#include <QRegularExpression>

#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>

class TEST_GFPC_CHARTS : public QObject
{
    Q_OBJECT

private:
    static QString qs(const char* text) { return QString::fromUtf8(text); }

    GFPC_ORDER order(GFPC_FORMAT format, std::optional<int> operation = GFPDB_OPERATION_PROGRAM)
    {
        GFPDB_DATABASE database(m_scratch.path().toStdString() + '/');
        GFPDB_SELECTION selection;
        selection.name = "MX25L25645G";
        return {database.find_builtin(selection).at(0), true, operation, format, QPageSize::A4, QDate(2026, 11, 22)};
    }

    // A Program operation of so many writes, "Step 1" and so on.
    GFPC_ORDER long_order(int steps)
    {
        GFPC_ORDER made = order(GFPC_FORMAT::PDF);
        QStringList actions;
        for (int step = 1; step <= steps; ++step)
            actions += QStringLiteral(R"({"action":"write_register","name":"Step %1","command":"0x06","data":"none",)"
                                      R"("delay_us":"0","bus_width":"1-1"})")
                           .arg(step);
        made.record.row.quad_flows = QStringLiteral(R"([{"operation":"program","actions":[%1]}])")
                                         .arg(actions.join(QLatin1Char(',')))
                                         .toStdString();
        return made;
    }

    static QByteArray drawn(const GFPC_ORDER& order)
    {
        QString problem;
        const QByteArray content = gfpc_draw_charts(order, problem);
        if (!problem.isEmpty())
            qFatal("%s", qPrintable(problem));
        return content;
    }

    // The text elements of an SVG file, in their order.
    static QStringList texts_of_svg(const QByteArray& svg)
    {
        QStringList texts;
        QXmlStreamReader reader(svg);
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("text"))
                texts += reader.readElementText().trimmed();
        }
        return reader.hasError() ? QStringList{reader.errorString()} : texts;
    }

    // What poppler reads of a PDF file, page by page.
    QStringList pages_of_pdf(const QByteArray& pdf)
    {
        QProcess reader;
        reader.start(qs("pdftotext"), {qs("-layout"), qs("-"), qs("-")});
        reader.write(pdf);
        reader.closeWriteChannel();
        if (!reader.waitForFinished() || reader.exitCode() != 0)
            qFatal("%s", reader.readAllStandardError().constData());
        QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split(QLatin1Char('\f'));
        pages.removeLast();
        return pages;
    }

    // The numbers of the steps on a page, in the order of the text.
    static QList<int> steps_of(const QString& page)
    {
        QList<int> steps;
        QRegularExpressionMatchIterator found = QRegularExpression(qs("Name: Step (\\d+)")).globalMatch(page);
        while (found.hasNext())
            steps += found.next().captured(1).toInt();
        return steps;
    }

    QTemporaryDir m_scratch;

private slots:
    void the_texts_of_a_picture_are_texts()
    {
        const QStringList texts = texts_of_svg(drawn(order(GFPC_FORMAT::SVG)));

        for (const char* text : {"MX25L25645G", "Quad-I/O flow", "2026-11-22", "Program", "Start", "End",
                                 "2 Write Register", "Name: Write Enable", "Command: 0x06", "Yes", "No"})
            QVERIFY2(texts.contains(qs(text)), qPrintable(texts.join(QLatin1Char('\n'))));
        QVERIFY(!texts.contains(qs("Erase")));
        // Where nobody drops anything there are no zones for it.
        QVERIFY(!drawn(order(GFPC_FORMAT::SVG)).contains("fill-opacity=\"0\""));
        // Each action has its number, in their order.
        int number = 0;
        for (const QString& text : texts.filter(QRegularExpression(qs("^\\d+ [A-Z][a-z]+"))))
            QCOMPARE(text.section(QLatin1Char(' '), 0, 0).toInt(), ++number);
        QVERIFY(number > 3);
    }

    void all_operations_are_in_one_picture()
    {
        const QStringList texts = texts_of_svg(drawn(order(GFPC_FORMAT::SVG, std::nullopt)));

        for (const char* title : {"Initialization", "Program", "Erase", "Verify/Blank-Check/Examine", "Termination"})
            QCOMPARE(texts.count(qs(title)), 1);
        QCOMPARE(texts.count(qs("Start")), 5);
        QCOMPARE(texts.count(qs("End")), 5);
    }

    // As the dialog draws it: blocks in the colours of their types, arrows in black.
    void a_picture_has_the_colours_of_the_chart()
    {
        QSvgRenderer svg(drawn(order(GFPC_FORMAT::SVG)));
        QImage image(svg.defaultSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        svg.render(&painter);
        painter.end();

        QSet<QRgb> colors;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                colors.insert(image.pixel(x, y));
        }
        for (const QColor& color : {QColor(255, 255, 127), QColor(170, 255, 127), QColor(255, 170, 0),
                                    QColor(51, 153, 255), QColor(217, 217, 217), QColor(Qt::black)})
            QVERIFY2(colors.contains(color.rgb()), qPrintable(color.name()));
        // Nothing is cut off: the margin is white.
        for (int y = 0; y < image.height(); ++y)
            QVERIFY(image.pixelColor(1, y) == Qt::white && image.pixelColor(image.width() - 2, y) == Qt::white);
    }

    // A record that was written past all checks.
    void odd_characters_leave_a_picture_readable()
    {
        GFPC_ORDER odd = long_order(1);
        odd.format = GFPC_FORMAT::SVG;
        odd.record.row.name = "<A & \x01 \"B\">\xEF\xBF\xBE\xEF\xBF\xBF";
        odd.record.row.quad_flows.replace(odd.record.row.quad_flows.find("Step 1"), 6, "St\\u001bep </text> & 1");

        const QStringList texts = texts_of_svg(drawn(odd));

        QVERIFY2(texts.contains(qs("<A &  \"B\">")), qPrintable(texts.join(QLatin1Char('\n'))));
        QVERIFY2(texts.contains(qs("Name: Step </text> & 1")), qPrintable(texts.join(QLatin1Char('\n'))));
    }

    void the_texts_of_pages_are_texts()
    {
        const QStringList pages = pages_of_pdf(drawn(order(GFPC_FORMAT::PDF)));

        QCOMPARE(pages.size(), 1);
        for (const char* text : {"MX25L25645G", "Quad-I/O flow", "2026-11-22", "Program", "Start", "End",
                                 "2 Write Register", "Name: Write Enable", "Command: 0x06", "Page 1 of 1"})
            QVERIFY2(pages[0].contains(qs(text)), qPrintable(pages[0]));
    }

    void all_operations_are_on_one_page()
    {
        for (const QPageSize::PageSizeId paper : {QPageSize::A4, QPageSize::Letter}) {
            GFPC_ORDER all = order(GFPC_FORMAT::PDF, std::nullopt);
            all.paper = paper;
            const QStringList pages = pages_of_pdf(drawn(all));

            QCOMPARE(pages.size(), 1);
            QCOMPARE(pages[0].count(QRegularExpression(qs("\\bStart\\b"))), 5);
            QCOMPARE(pages[0].count(QRegularExpression(qs("\\bEnd\\b(?! of data)"))), 5);
        }
    }

    void a_long_operation_takes_pages()
    {
        constexpr int STEPS = 60;
        const QStringList pages = pages_of_pdf(drawn(long_order(STEPS)));

        QList<int> all;
        for (int page = 0; page < pages.size(); ++page) {
            // The columns of a page come line by line.
            QList<int> steps = steps_of(pages[page]);
            std::sort(steps.begin(), steps.end());
            QVERIFY(steps.size() > 3);
            all += steps;
            // What stands at an arrow is where its block is.
            for (const int step : qAsConst(steps))
                QVERIFY2(pages[page].contains(qs("%1 Write Register").arg(step)), qPrintable(pages[page]));
            for (const QString& text :
                 {qs("MX25L25645G"), qs("2026-11-22"), qs("Page %1 of %2").arg(page + 1).arg(pages.size())})
                QVERIFY2(pages[page].contains(text), qPrintable(pages[page]));
        }
        QVERIFY(pages.size() > 2);
        // A part that is not the first says so.
        QVERIFY(pages[0].contains(QRegularExpression(qs("Program +Program \\(2\\)"))));
        QCOMPARE(all.size(), STEPS);
        for (int step = 0; step < STEPS; ++step)
            QCOMPARE(all[step], step + 1);
    }

    void the_paper_is_as_asked_for_data()
    {
        rows<QPageSize::PageSizeId, QByteArray>(
            {{"A4", QPageSize::A4, "/MediaBox [0 0 595.000000 842.000000]"},
             {"letter", QPageSize::Letter, "/MediaBox [0 0 612.000000 792.000000]"}});
    }

    void the_paper_is_as_asked_for()
    {
        const auto [paper, box] = row<QPageSize::PageSizeId, QByteArray>();
        GFPC_ORDER one = long_order(1);
        one.paper = paper;

        QByteArray pdf = drawn(one);

        QVERIFY2(pdf.contains(box), pdf.mid(pdf.indexOf("/MediaBox"), 60).constData());
    }

    void a_long_name_leaves_room_for_the_date()
    {
        GFPC_ORDER longest = long_order(1);
        longest.record.row.name = std::string(500, 'M');

        const QString page = pages_of_pdf(drawn(longest)).at(0);

        QVERIFY2(page.contains(QRegularExpression(qs("^M{20,}\u2026 +2026-11-22\n"))), qPrintable(page));
        longest.format = GFPC_FORMAT::SVG;
        QVERIFY(texts_of_svg(drawn(longest)).contains(QString(500, QLatin1Char('M'))));
    }

    void an_operation_without_actions_is_drawn()
    {
        GFPC_ORDER other = long_order(1);
        other.format = GFPC_FORMAT::SVG;
        other.operation = GFPDB_OPERATION_ERASE;

        const QStringList texts = texts_of_svg(drawn(other));

        QVERIFY(texts.contains(qs("Erase")) && texts.contains(qs("Start")) && texts.contains(qs("End")));
        QCOMPARE(texts.filter(qs("Step")), QStringList());
    }

    void what_cannot_be_drawn_is_said_data()
    {
        rows<bool, QString, QString>(
            {{"flows that cannot be read", true, "[{", "The flows of \"MX25L25645G\" cannot be read."},
             {"no quad flow", true, "", "\"MX25L25645G\" has no quad-I/O flow."},
             {"no single flow", false, "", "\"MX25L25645G\" has no single-I/O flow."}});
    }

    void what_cannot_be_drawn_is_said()
    {
        const auto [variant, flows, said] = row<bool, QString, QString>();
        GFPC_ORDER none = order(GFPC_FORMAT::PDF);
        none.flow_variant = variant;
        (variant ? none.record.row.quad_flows : none.record.row.single_flows) = flows.toStdString();

        QString problem;
        QCOMPARE(gfpc_draw_charts(none, problem), QByteArray());
        QCOMPARE(problem, said);
    }

    void the_format_follows_the_file_name()
    {
        QCOMPARE(gfpc_format_of(qs("a/b.SVG")), std::optional<GFPC_FORMAT>(GFPC_FORMAT::SVG));
        QCOMPARE(gfpc_format_of(qs("b.svg.Pdf")), std::optional<GFPC_FORMAT>(GFPC_FORMAT::PDF));
        for (const char* name : {"", "pdf", "a.png", "a.pdf/b"})
            QCOMPARE(gfpc_format_of(qs(name)), std::optional<GFPC_FORMAT>());
    }
};

QTEST_MAIN(TEST_GFPC_CHARTS)

#include "test_gfpc_charts.moc"
