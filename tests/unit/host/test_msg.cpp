// SPDX-License-Identifier: MIT

// Messages for the user and the report of a broken internal assumption.
#include "message_recorder.h"
#include "modal_driver.h"
#include "probe.h"
#include "test_rows.h"

#include "msg/msg.h"

#include <QApplication>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QTextCodec>

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

class TEST_MSG : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QGuiApplication::setApplicationDisplayName(TITLE);
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    }

    void init()
    {
        MSG_O::set_reason_source(nullptr);
        m_modals.reset();
    }

    void cleanup()
    {
        QCOMPARE(m_modals.problems(), QStringList());
        QCOMPARE(QApplication::topLevelWidgets().size(), 0);
    }

    void text_is_what_precedes_the_identifier_data()
    {
        rows<QByteArray, QByteArray>({{"text and identifier", "It failed./OIT_FAILED", "It failed."},
                                      {"no identifier", "It failed.", "It failed."},
                                      {"mark in the text", "I/O failed./OIO_FAILED", "I/O failed."},
                                      {"small letter is no mark", "i/o failed", "i/o failed"},
                                      {"no text", "/OID", ""},
                                      {"empty", "", ""}});
    }

    void text_is_what_precedes_the_identifier()
    {
        const auto [args, text] = row<QByteArray, QByteArray>();

        MSG_O message;
        QCOMPARE(message.id(), 0);
        message.fill_args(args.toStdString());
        message.set_id(NUMBER);

        QCOMPARE(QByteArray::fromStdString(message.text()), text);
        QCOMPARE(message.id(), NUMBER);
    }

    void prompt_shows_number_and_text_in_a_warning_box()
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

    void prompt_shows_any_text_as_it_is_data()
    {
        rows<QString>({{"markup", "<b>bold</b> &amp; more"},
                       {"place markers", "%1 %2 %3 %s %n"},
                       {"letters outside ASCII", "gr\u00fc\u00df \u4e2d\u6587"},
                       {"line breaks", "one\ntwo\r\nthree"},
                       {"long", QString(10000, QLatin1Char('x'))}});
    }

    void prompt_shows_any_text_as_it_is()
    {
        const QString text = row<QString>();

        m_modals.expect(MODAL_DRIVER::accept());
        prompt(text.toUtf8().toStdString(), 1);

        QCOMPARE(m_modals.last().text, text + QStringLiteral(" (message 1)"));
    }

    void prompt_waits_for_a_box_over_the_active_window()
    {
        QWidget window;
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        QWidget* parent = nullptr;
        bool was_open = false;
        m_modals.expect([&](QWidget* box) {
            parent = box->parentWidget();
            was_open = box->isVisible();
            MODAL_DRIVER::reject()(box);
        });
        prompt("over the window", 1);

        QVERIFY(was_open);
        QCOMPARE(parent, &window);
    }

    void prompt_without_widgets_is_logged_only()
    {
        const PROBE_RESULT result = run_probe({QStringLiteral("prompt-without-widgets")});

        QCOMPARE(result.exit_code, 0);
        QVERIFY2(result.log.contains("nobody there (message 7)"), result.log.constData());
        QCOMPARE(result.output, QByteArray("0\n"));
    }

    void reason_is_beside_the_message()
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

    void message_without_a_reason_has_none()
    {
        for (const bool has_source : {false, true}) {
            MESSAGE_RECORDER messages;
            if (has_source)
                MSG_O::set_reason_source([](int) { return std::string(); });
            m_modals.expect(MODAL_DRIVER::accept());
            prompt("100 %s lost", NUMBER);

            QCOMPARE(m_modals.last().informative_text, QString());
            QCOMPARE(logged(messages), QStringList(QStringLiteral("host.msg: 100 %s lost (message 20439)")));
        }
    }

    void reason_is_shown_as_it_is_data()
    {
        rows<QString, QString>({{"markup", "<b>bold</b> &amp; more", "<b>bold</b> &amp; more"},
                                {"conversions", "100 %s %1 %n", "100 %s %1 %n"},
                                {"lines", "one\n\n\n two\t three\n", "one two three"},
                                {"escape sequence", "\x1b[31mred\x9b", "\ufffd[31mred\ufffd"}});
    }

    void reason_is_shown_as_it_is()
    {
        const auto [reason, shown] = row<QString, QString>();
        const std::string told = reason.toStdString();
        MESSAGE_RECORDER messages;
        MSG_O::set_reason_source([&told](int) { return told; });
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

    void long_reason_fits_on_the_screen_data()
    {
        rows<QString>({{"one word", QString(10000, QLatin1Char('W'))},
                       {"path", QStringLiteral("/%1").arg(QString(200, QLatin1Char('W'))).repeated(20)},
                       {"words", QStringLiteral("word ").repeated(2000)},
                       {"lines", QStringLiteral("line\n").repeated(2000)}});
    }

    void long_reason_fits_on_the_screen()
    {
        const QString reason = row<QString>();
        MSG_O::set_reason_source([&reason](int) { return reason.toStdString(); });
        MESSAGE_RECORDER messages;
        QSize size;
        m_modals.expect([&size](QWidget* box) {
            size = box->frameGeometry().size();
            MODAL_DRIVER::accept()(box);
        });
        prompt("Failed.", NUMBER);

        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        QVERIFY2(size.width() > 0 && size.width() <= screen.width(), qPrintable(QString::number(size.width())));
        QVERIFY2(size.height() <= screen.height(), qPrintable(QString::number(size.height())));
        QCOMPARE(logged(messages),
                 QStringList(QStringLiteral("host.msg: Failed. (message 20439): ") + reason.simplified()));
    }

    // A letter of two units at the place of the cut.
    void long_reason_is_cut_between_letters()
    {
        const QString reason =
            QStringLiteral("%1 \U0001F600 end").arg(QStringLiteral("word ").repeated(99) + QLatin1String("abc"));
        MSG_O::set_reason_source([&reason](int) { return reason.toStdString(); });
        m_modals.expect(MODAL_DRIVER::accept());
        prompt("Failed.", NUMBER);

        QCOMPARE(reason.indexOf(QChar(0xD83D)), 499);
        QCOMPARE(m_modals.last().informative_text, reason.left(499) + QChar(0x2026));
    }

    void values_of_answers() { QCOMPARE(int(MSG_VALUE_OK), 0); }

    void internal_error_ends_the_process_data()
    {
        const QByteArray text("Internal error: 100 %1 != nullptr does not hold (PROBE, tests/%2/host_probe, line 94)");
        rows<QString, QByteArray>({{"no application", "internal-error", text},
                                   {"application without a display", "internal-error-in-application", text},
                                   {"from another thread", "internal-error-in-thread", text},
                                   {"null texts", "internal-error-without-texts", "Internal error:"}});
    }

    // What was written before is flushed; no destructor and no exit handler speaks.
    void internal_error_ends_the_process()
    {
        const auto [command, text] = row<QString, QByteArray>();

        const PROBE_RESULT result = run_probe({command});

        QVERIFY(result.ended);
        QCOMPARE(result.exit_code, 70);
        QVERIFY2(result.log.contains(text), result.log.constData());
        QCOMPARE(result.output, QByteArray(command == QLatin1String("internal-error") ? "before" : ""));
    }

private:
    MODAL_DRIVER m_modals;
};

QTEST_MAIN(TEST_MSG)

#include "test_msg.moc"
