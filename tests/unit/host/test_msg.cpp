// SPDX-License-Identifier: MIT

// Messages for the user and the report of a broken internal assumption.
#include "message_recorder.h"
#include "modal_driver.h"
#include "probe.h"

#include "msg/msg.h"

#include <QApplication>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QTextCodec>

class TEST_MSG : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void text_is_what_precedes_the_identifier_data();
    void text_is_what_precedes_the_identifier();
    void id_is_kept();
    void prompt_shows_number_and_text_in_a_warning_box();
    void prompt_shows_any_text_as_it_stands_data();
    void prompt_shows_any_text_as_it_stands();
    void prompt_waits_until_the_box_is_closed();
    void prompt_is_modal_to_the_active_window();
    void prompt_is_logged();
    void prompt_without_widgets_is_logged_only();
    void reason_stands_beside_the_message();
    void message_without_a_reason_has_none_data();
    void message_without_a_reason_has_none();
    void reason_is_shown_as_it_stands_data();
    void reason_is_shown_as_it_stands();
    void long_reason_fits_on_the_screen_data();
    void long_reason_fits_on_the_screen();
    void long_reason_is_cut_between_letters();
    void reason_is_logged_whole();
    void values_of_answers();

    void internal_error_ends_the_process_data();
    void internal_error_ends_the_process();
    void internal_error_says_what_is_broken();
    void internal_error_takes_null_texts();
    void internal_error_stores_nothing_half_built();

private:
    MODAL_DRIVER m_modals;
};

namespace {

constexpr int NUMBER = 20439;
const QString TITLE = QStringLiteral("Host under test");

// What the message library has logged, without what the platform has to say.
QStringList logged(const MESSAGE_RECORDER& messages)
{
    return messages.texts().filter(QRegularExpression(QStringLiteral("^host\\.msg")));
}

MSG_VALUE prompt(const std::string& args, int id)
{
    MSG_O message;
    message.fill_args(args);
    message.set_id(id);
    return message.prompt();
}

} // namespace

void TEST_MSG::initTestCase()
{
    QGuiApplication::setApplicationDisplayName(TITLE);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void TEST_MSG::init()
{
    MSG_O::set_reason_source(nullptr);
    m_modals.reset();
}

void TEST_MSG::cleanup()
{
    QCOMPARE(m_modals.problems(), QStringList());
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
}

void TEST_MSG::text_is_what_precedes_the_identifier_data()
{
    QTest::addColumn<QByteArray>("args");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("text and identifier") << QByteArray("It failed./OIT_FAILED") << QByteArray("It failed.");
    QTest::newRow("no identifier") << QByteArray("It failed.") << QByteArray("It failed.");
    QTest::newRow("mark in the text") << QByteArray("I/O failed./OIO_FAILED") << QByteArray("I/O failed.");
    QTest::newRow("small letter is no mark") << QByteArray("i/o failed") << QByteArray("i/o failed");
    QTest::newRow("no text") << QByteArray("/OID") << QByteArray("");
    QTest::newRow("empty") << QByteArray("") << QByteArray("");
}

void TEST_MSG::text_is_what_precedes_the_identifier()
{
    QFETCH(QByteArray, args);
    QFETCH(QByteArray, text);

    MSG_O message;
    message.fill_args(args.toStdString());

    QCOMPARE(QByteArray::fromStdString(message.text()), text);
}

void TEST_MSG::id_is_kept()
{
    MSG_O message;
    QCOMPARE(message.id(), 0);

    message.set_id(NUMBER);
    QCOMPARE(message.id(), NUMBER);
}

void TEST_MSG::prompt_shows_number_and_text_in_a_warning_box()
{
    m_modals.expect(MODAL_DRIVER::accept());
    QCOMPARE(prompt("Failed to save./OSAVE_FAILED", NUMBER), MSG_VALUE_OK);

    QCOMPARE(m_modals.met().size(), 1);
    QCOMPARE(m_modals.last().class_name, QStringLiteral("QMessageBox"));
    QCOMPARE(m_modals.last().text, QStringLiteral("Failed to save. (message 20439)"));
    QCOMPARE(m_modals.last().title, TITLE);
    QCOMPARE(m_modals.last().icon, QMessageBox::Warning);
    QCOMPARE(m_modals.last().text_format, Qt::PlainText);
    QCOMPARE(m_modals.last().buttons, QStringList(QStringLiteral("OK")));
    QVERIFY(m_modals.last().is_modal);
}

void TEST_MSG::prompt_shows_any_text_as_it_stands_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("markup") << QStringLiteral("<b>bold</b> &amp; more");
    QTest::newRow("place markers") << QStringLiteral("%1 %2 %3 %s %n");
    QTest::newRow("letters outside ASCII") << QStringLiteral("gr\u00fc\u00df \u4e2d\u6587");
    QTest::newRow("line breaks") << QStringLiteral("one\ntwo\r\nthree");
    QTest::newRow("long") << QString(10000, QLatin1Char('x'));
}

void TEST_MSG::prompt_shows_any_text_as_it_stands()
{
    QFETCH(QString, text);

    m_modals.expect(MODAL_DRIVER::accept());
    prompt(text.toUtf8().toStdString(), 1);

    QCOMPARE(m_modals.last().text, text + QStringLiteral(" (message 1)"));
}

void TEST_MSG::prompt_waits_until_the_box_is_closed()
{
    bool was_open = false;
    m_modals.expect([&was_open](QWidget* window) {
        was_open = window->isVisible();
        MODAL_DRIVER::reject()(window);
    });
    prompt("wait", 1);

    QVERIFY(was_open);
    QCOMPARE(m_modals.met().size(), 1);
}

void TEST_MSG::prompt_is_modal_to_the_active_window()
{
    QWidget window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    QWidget* parent = nullptr;
    m_modals.expect([&parent](QWidget* box) {
        parent = box->parentWidget();
        MODAL_DRIVER::accept()(box);
    });
    prompt("over the window", 1);

    QCOMPARE(parent, &window);
}

void TEST_MSG::prompt_is_logged()
{
    MESSAGE_RECORDER messages;
    m_modals.expect(MODAL_DRIVER::accept());
    prompt("100 %s lost", NUMBER);

    QVERIFY2(messages.texts().contains(QStringLiteral("host.msg: 100 %s lost (message 20439)")),
             qPrintable(messages.texts().join(QLatin1Char('\n'))));
}

void TEST_MSG::prompt_without_widgets_is_logged_only()
{
    const PROBE_RESULT result = run_probe({QStringLiteral("prompt-without-widgets")});

    QCOMPARE(result.exit_code, 0);
    QVERIFY2(result.log.contains("nobody there (message 7)"), result.log.constData());
    QCOMPARE(result.output, QByteArray("0\n"));
}

void TEST_MSG::reason_stands_beside_the_message()
{
    QList<int> asked_for;
    MSG_O::set_reason_source([&asked_for](int id) {
        asked_for.append(id);
        return std::string("Schreibgesch\xC3\xBCtzt");
    });
    m_modals.expect(MODAL_DRIVER::accept());
    prompt("Failed to save./OSAVE_FAILED", NUMBER);

    QCOMPARE(asked_for, QList<int>{NUMBER});
    QCOMPARE(m_modals.last().text, QStringLiteral("Failed to save. (message 20439)"));
    QCOMPARE(m_modals.last().informative_text, QStringLiteral("Schreibgesch\u00fctzt"));
}

void TEST_MSG::message_without_a_reason_has_none_data()
{
    QTest::addColumn<bool>("has_source");

    QTest::newRow("nobody to ask") << false;
    QTest::newRow("nothing known") << true;
}

void TEST_MSG::message_without_a_reason_has_none()
{
    QFETCH(bool, has_source);
    MESSAGE_RECORDER messages;
    if (has_source)
        MSG_O::set_reason_source([](int) { return std::string(); });
    m_modals.expect(MODAL_DRIVER::accept());
    prompt("Failed.", NUMBER);

    QCOMPARE(m_modals.last().informative_text, QString());
    QCOMPARE(logged(messages), QStringList(QStringLiteral("host.msg: Failed. (message 20439)")));
}

void TEST_MSG::reason_is_shown_as_it_stands_data()
{
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("shown");

    const auto as_it_is = [](const char* name, const QString& text) { QTest::newRow(name) << text << text; };
    as_it_is("markup", QStringLiteral("<b>bold</b> &amp; more"));
    as_it_is("conversions", QStringLiteral("100 %s %1 %n"));
    QTest::newRow("lines") << QStringLiteral("one\n\n\n two\t three\n") << QStringLiteral("one two three");
    QTest::newRow("escape sequence") << QStringLiteral("\x1b[31mred\x9b") << QStringLiteral("\ufffd[31mred\ufffd");
}

void TEST_MSG::reason_is_shown_as_it_stands()
{
    QFETCH(QString, reason);
    QFETCH(QString, shown);
    MESSAGE_RECORDER messages;
    MSG_O::set_reason_source([&reason](int) { return reason.toStdString(); });
    Qt::TextFormat format = Qt::AutoText;
    m_modals.expect([&format](QWidget* box) {
        format = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))->textFormat();
        MODAL_DRIVER::accept()(box);
    });
    prompt("Failed.", NUMBER);

    QCOMPARE(m_modals.last().informative_text, shown);
    QCOMPARE(format, Qt::PlainText);
    QCOMPARE(logged(messages), QStringList(QStringLiteral("host.msg: Failed. (message 20439): ") + shown));
}

void TEST_MSG::long_reason_fits_on_the_screen_data()
{
    QTest::addColumn<QString>("reason");

    QTest::newRow("one word") << QString(10000, QLatin1Char('W'));
    QTest::newRow("path") << QStringLiteral("/%1").arg(QString(200, QLatin1Char('W'))).repeated(20);
    QTest::newRow("words") << QStringLiteral("word ").repeated(2000);
    QTest::newRow("lines") << QStringLiteral("line\n").repeated(2000);
}

void TEST_MSG::long_reason_fits_on_the_screen()
{
    QFETCH(QString, reason);
    MSG_O::set_reason_source([&reason](int) { return reason.toStdString(); });
    QSize size;
    m_modals.expect([&size](QWidget* box) {
        size = box->frameGeometry().size();
        MODAL_DRIVER::accept()(box);
    });
    prompt("Failed.", NUMBER);

    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    QVERIFY2(size.width() > 0 && size.width() <= screen.width(), qPrintable(QString::number(size.width())));
    QVERIFY2(size.height() <= screen.height(), qPrintable(QString::number(size.height())));
}

// A letter of two units at the place of the cut.
void TEST_MSG::long_reason_is_cut_between_letters()
{
    const QString reason =
        QStringLiteral("%1 \U0001F600 end").arg(QStringLiteral("word ").repeated(99) + QLatin1String("abc"));
    MSG_O::set_reason_source([&reason](int) { return reason.toStdString(); });
    m_modals.expect(MODAL_DRIVER::accept());
    prompt("Failed.", NUMBER);

    QCOMPARE(reason.indexOf(QChar(0xD83D)), 499);
    QCOMPARE(m_modals.last().informative_text, reason.left(499) + QChar(0x2026));
}

void TEST_MSG::reason_is_logged_whole()
{
    const QString reason = QString(10000, QLatin1Char('W'));
    MESSAGE_RECORDER messages;
    MSG_O::set_reason_source([&reason](int) { return reason.toStdString(); });
    m_modals.expect(MODAL_DRIVER::accept());
    prompt("Failed.", NUMBER);

    QCOMPARE(logged(messages), QStringList(QStringLiteral("host.msg: Failed. (message 20439): ") + reason));
}

void TEST_MSG::values_of_answers()
{
    QCOMPARE(int(MSG_VALUE_OK), 0);
}

void TEST_MSG::internal_error_ends_the_process_data()
{
    QTest::addColumn<QString>("command");

    QTest::newRow("no application") << QStringLiteral("internal-error");
    QTest::newRow("application without a display") << QStringLiteral("internal-error-in-application");
    QTest::newRow("from another thread") << QStringLiteral("internal-error-in-thread");
}

void TEST_MSG::internal_error_ends_the_process()
{
    QFETCH(QString, command);

    const PROBE_RESULT result = run_probe({command});

    QVERIFY(result.ended);
    QCOMPARE(result.exit_code, 70);
    QCOMPARE(result.exit_code, MSG_INTERNAL_ERROR::EXIT_CODE);
}

void TEST_MSG::internal_error_says_what_is_broken()
{
    const PROBE_RESULT result = run_probe({QStringLiteral("internal-error")});

    QVERIFY2(
        result.log.contains("Internal error: 100 %1 != nullptr does not hold (PROBE, tests/%2/host_probe, line 94)"),
        result.log.constData());
}

void TEST_MSG::internal_error_takes_null_texts()
{
    const PROBE_RESULT result = run_probe({QStringLiteral("internal-error-without-texts")});

    QCOMPARE(result.exit_code, 70);
    QVERIFY2(result.log.contains("Internal error:"), result.log.constData());
}

void TEST_MSG::internal_error_stores_nothing_half_built()
{
    const PROBE_RESULT result = run_probe({QStringLiteral("internal-error")});

    // What was written before is flushed; no destructor and no exit handler speaks.
    QCOMPARE(result.output, QByteArray("before"));
}

QTEST_MAIN(TEST_MSG)
#include "test_msg.moc"
