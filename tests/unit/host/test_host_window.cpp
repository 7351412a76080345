// The main window of the host.
#include "fake_module.h"
#include "gfpdb_double.h"
#include "host_database.h"
#include "host_window.h"
#include "modal_driver.h"
#include "module_loader.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextCodec>

class TEST_HOST_WINDOW : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void window_shows_the_choice_and_the_directory();
    void window_without_a_device_says_so();
    void scheme_without_a_name_is_shown_as_a_number();
    void texts_are_shown_as_they_stand();
    void long_text_is_shown_from_its_beginning_in_a_window_of_usual_size();
    void database_problem_is_shown();
    void no_database_problem_leaves_no_gap();
    void dialog_opens_with_choice_and_options_data();
    void dialog_opens_with_choice_and_options();
    void state_is_shown_anew_after_the_dialog();
    void missing_module_is_told_in_a_box();
    void quit_closes_the_window();
    void database_directory_is_made_absolute_data();
    void database_directory_is_made_absolute();
    void messages_about_the_database_have_its_reason_data();
    void messages_about_the_database_have_its_reason();
    void database_that_is_not_there_gives_no_reason();

private:
    static QString shown(const HOST_WINDOW& window, const char* name);

    MODAL_DRIVER m_modals;
};

namespace {

const QString TITLE = QStringLiteral("Host under test");

HOST_CHOICE choice_of(int family, int scheme, const std::string& device)
{
    HOST_CHOICE choice;
    choice.family = family;
    choice.config_scheme = scheme;
    choice.device_name = device;
    return choice;
}

MODULE_LOADER fake_module()
{
    return MODULE_LOADER({QStringLiteral(FAKE_MODULE)});
}

} // namespace

QString TEST_HOST_WINDOW::shown(const HOST_WINDOW& window, const char* name)
{
    const auto* widget = window.findChild<QWidget*>(QLatin1String(name));
    if (!widget)
        qFatal("the window has no %s", name);
    return widget->property("text").toString();
}

void TEST_HOST_WINDOW::initTestCase()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication::setApplicationName(TITLE);
}

void TEST_HOST_WINDOW::init()
{
    m_modals.reset();
    GFPDB_WORLD::instance().reset();
    GFPDB_WORLD::instance().custom_dir = "/data/fl\xC3\xA4sh/";
}

void TEST_HOST_WINDOW::cleanup()
{
    QCOMPARE(m_modals.problems(), QStringList());
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
}

void TEST_HOST_WINDOW::window_shows_the_choice_and_the_directory()
{
    MODULE_LOADER module = fake_module();
    const HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(1, 13, "MX25L25645G"));

    QCOMPARE(window.windowTitle(), TITLE);
    QCOMPARE(shown(window, "m_family_field"), QStringLiteral("Poplar"));
    QCOMPARE(shown(window, "m_mode_field"), QStringLiteral("Active Serial x4"));
    QCOMPARE(shown(window, "m_device_field"), QStringLiteral("MX25L25645G"));
    QCOMPARE(shown(window, "m_directory_field"), QStringLiteral("/data/fl\u00e4sh/"));
}

void TEST_HOST_WINDOW::window_without_a_device_says_so()
{
    MODULE_LOADER module = fake_module();
    const HOST_WINDOW window(module, DIALOG_OPTIONS(), HOST_CHOICE());

    QCOMPARE(shown(window, "m_device_field"), QStringLiteral("none"));
}

void TEST_HOST_WINDOW::scheme_without_a_name_is_shown_as_a_number()
{
    MODULE_LOADER module = fake_module();

    QCOMPARE(shown(HOST_WINDOW(module, DIALOG_OPTIONS(), choice_of(1, -1, "")), "m_mode_field"), QStringLiteral("-1"));
    QCOMPARE(shown(HOST_WINDOW(module, DIALOG_OPTIONS(), choice_of(1, 26, "")), "m_mode_field"), QStringLiteral("26"));
    QCOMPARE(shown(HOST_WINDOW(module, DIALOG_OPTIONS(), choice_of(1, 0, "")), "m_mode_field"),
             QStringLiteral("1-bit Passive Serial"));
    QCOMPARE(shown(HOST_WINDOW(module, DIALOG_OPTIONS(), choice_of(1, 25, "")), "m_mode_field"),
             QStringLiteral("Illegal Configuration Scheme"));
}

void TEST_HOST_WINDOW::texts_are_shown_as_they_stand()
{
    GFPDB_WORLD::instance().database_problem = "<b>bad</b>";
    MODULE_LOADER module = fake_module();
    const HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(1, 7, "<b>\xC3\xA4</b>"));

    QCOMPARE(shown(window, "m_device_field"), QStringLiteral("<b>\u00e4</b>"));
    QCOMPARE(shown(window, "m_problem_label"), QStringLiteral("<b>bad</b>"));
    const auto* problem = window.findChild<QLabel*>(QStringLiteral("m_problem_label"));
    QCOMPARE(problem->textFormat(), Qt::PlainText);
    QVERIFY(problem->textInteractionFlags() & Qt::TextSelectableByMouse);
    const QList<QLineEdit*> fields = window.findChildren<QLineEdit*>();
    QCOMPARE(fields.size(), 4);
    for (const QLineEdit* field : fields)
        QVERIFY2(field->isReadOnly(), qPrintable(field->objectName()));
}

void TEST_HOST_WINDOW::long_text_is_shown_from_its_beginning_in_a_window_of_usual_size()
{
    const std::string long_name(10000, 'x');
    GFPDB_WORLD::instance().custom_dir = "/" + long_name + "/";
    MODULE_LOADER module = fake_module();
    HOST_WINDOW usual(module, DIALOG_OPTIONS(), choice_of(1, 7, "MX25"));
    GFPDB_WORLD::instance().database_problem = "The directory " + long_name + " is gone.";
    HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(1, 7, long_name));

    QCOMPARE(window.sizeHint().width(), usual.sizeHint().width());
    QCOMPARE(window.findChild<QLineEdit*>(QStringLiteral("m_device_field"))->cursorPosition(), 0);
    QCOMPARE(window.findChild<QLineEdit*>(QStringLiteral("m_directory_field"))->cursorPosition(), 0);
}

void TEST_HOST_WINDOW::database_problem_is_shown()
{
    GFPDB_WORLD::instance().database_problem = "The directory is gone.";
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, DIALOG_OPTIONS(), HOST_CHOICE());
    window.show();

    QVERIFY(window.findChild<QLabel*>(QStringLiteral("m_problem_label"))->isVisible());
    QCOMPARE(shown(window, "m_problem_label"), QStringLiteral("The directory is gone."));
}

void TEST_HOST_WINDOW::no_database_problem_leaves_no_gap()
{
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, DIALOG_OPTIONS(), HOST_CHOICE());
    window.show();

    QVERIFY(!window.findChild<QLabel*>(QStringLiteral("m_problem_label"))->isVisible());
}

void TEST_HOST_WINDOW::dialog_opens_with_choice_and_options_data()
{
    QTest::addColumn<bool>("by_menu");

    QTest::newRow("button") << false;
    QTest::newRow("menu") << true;
}

void TEST_HOST_WINDOW::dialog_opens_with_choice_and_options()
{
    QFETCH(bool, by_menu);
    DIALOG_OPTIONS options;
    options.enable_edit = false;
    options.family_schemes = {{4, {7}}};
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, options, choice_of(4, 7, "MX25"));
    QSignalSpy changed(&window, &HOST_WINDOW::choice_changed);

    auto* button = window.findChild<QPushButton*>(QStringLiteral("m_dialog_button"));
    auto* action = window.findChild<QAction*>(QStringLiteral("m_dialog_action"));
    if (by_menu)
        action->trigger();
    else
        button->click();

    QCOMPARE(changed.count(), 1);
    QCOMPARE(window.choice().family, FAKE_FAMILY);
    QCOMPARE(window.choice().config_scheme, FAKE_SCHEME);
    QCOMPARE(window.choice().device_name,
             std::string("parent=Host under test family=4 scheme=7 device=MX25 flags=110 map=4:7,; base= locale=C "
                         "platform=offscreen"));
    QCOMPARE(button->text(), QStringLiteral("Configuration Device..."));
}

void TEST_HOST_WINDOW::state_is_shown_anew_after_the_dialog()
{
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(1, 7, "MX25"));
    GFPDB_WORLD::instance().custom_dir = "/other/";
    GFPDB_WORLD::instance().database_problem = "Read only.";

    window.open_dialog();

    QCOMPARE(shown(window, "m_mode_field"), QStringLiteral("Active Serial x4"));
    QVERIFY(shown(window, "m_device_field").startsWith(QLatin1String("parent=")));
    QCOMPARE(shown(window, "m_directory_field"), QStringLiteral("/other/"));
    QCOMPARE(shown(window, "m_problem_label"), QStringLiteral("Read only."));
}

void TEST_HOST_WINDOW::missing_module_is_told_in_a_box()
{
    MODULE_LOADER module({QStringLiteral("/no/such/<b>module.so")});
    HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(1, 7, "MX25"));
    QSignalSpy changed(&window, &HOST_WINDOW::choice_changed);

    m_modals.expect(MODAL_DRIVER::accept());
    window.open_dialog();

    QCOMPARE(m_modals.met().size(), 1);
    QCOMPARE(m_modals.last().title, TITLE);
    QCOMPARE(m_modals.last().icon, QMessageBox::Critical);
    QCOMPARE(m_modals.last().text_format, Qt::PlainText);
    QCOMPARE(m_modals.last().text, QStringLiteral("The dialog module is missing; it was looked for here:\n"
                                                  "/no/such/<b>module.so"));
    QVERIFY(m_modals.last().has_parent);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(window.choice().device_name, std::string("MX25"));
}

void TEST_HOST_WINDOW::quit_closes_the_window()
{
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, DIALOG_OPTIONS(), HOST_CHOICE());
    window.show();
    auto* quit = window.findChild<QAction*>(QStringLiteral("m_quit_action"));

    quit->trigger();

    QVERIFY(!window.isVisible());
    QCOMPARE(quit->shortcut(), QKeySequence(QKeySequence::Quit));
}

void TEST_HOST_WINDOW::database_directory_is_made_absolute_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("absolute") << QStringLiteral("/data/mine") << QByteArray("/data/mine/");
    QTest::newRow("slash at the end") << QStringLiteral("/data/mine/") << QByteArray("/data/mine/");
    QTest::newRow("dots") << QStringLiteral("/data/./x/../mine") << QByteArray("/data/mine/");
    QTest::newRow("relative") << QStringLiteral("mine") << QByteArray("HERE/mine/");
    QTest::newRow("letters outside ASCII") << QStringLiteral("/\u00e4") << QByteArray("/\xC3\xA4/");
    QTest::newRow("root") << QStringLiteral("/") << QByteArray("/");
}

void TEST_HOST_WINDOW::database_directory_is_made_absolute()
{
    QFETCH(QString, directory);
    QFETCH(QByteArray, expected);

    use_database_directory(directory);

    QCOMPARE(QByteArray::fromStdString(GFPDB_WORLD::instance().custom_dir),
             expected.replace("HERE", QFile::encodeName(QDir::currentPath())));
}

void TEST_HOST_WINDOW::messages_about_the_database_have_its_reason_data()
{
    QTest::addColumn<int>("message");
    QTest::addColumn<QByteArray>("reason");

    QTest::newRow("save") << 20439 << QByteArray("Read-only file system");
    QTest::newRow("delete") << 20440 << QByteArray("Read-only file system");
    QTest::newRow("number before") << 20438 << QByteArray();
    QTest::newRow("number behind") << 20441 << QByteArray();
}

void TEST_HOST_WINDOW::messages_about_the_database_have_its_reason()
{
    QFETCH(int, message);
    QFETCH(QByteArray, reason);
    gfpdb_mgr().last_error = "Read-only file system";

    QCOMPARE(QByteArray::fromStdString(reason_of_message(message)), reason);
}

void TEST_HOST_WINDOW::database_that_is_not_there_gives_no_reason()
{
    GFPDB_WORLD::instance().active = nullptr;

    QCOMPARE(reason_of_message(20439), std::string());
}

QTEST_MAIN(TEST_HOST_WINDOW)
#include "test_host_window.moc"
