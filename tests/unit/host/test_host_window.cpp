// SPDX-License-Identifier: MIT

// The main window of the host.
#include "fake_module.h"
#include "gfpdb_double.h"
#include "host_database.h"
#include "host_window.h"
#include "modal_driver.h"
#include "module_loader.h"

#include "dstr/dstr.h"

#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextCodec>

#include <algorithm>

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
    void combos_list_what_is_offered();
    void combos_list_what_a_restriction_allows();
    void choice_that_is_not_offered_becomes_the_nearest();
    void combos_cannot_be_changed_where_the_dialog_s_cannot_data();
    void combos_cannot_be_changed_where_the_dialog_s_cannot();
    void chosen_family_brings_its_modes();
    void chosen_mode_stays_with_the_family();
    void choice_that_the_user_passes_is_not_lost();
    void opening_offers_modes_of_the_chosen_kind();
    void answer_of_the_dialog_is_shown_whatever_it_is();
    void texts_are_shown_as_they_stand();
    void rows_are_reached_by_access_keys_data();
    void rows_are_reached_by_access_keys();
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
    void database_gets_the_base_directory();
    void messages_about_the_database_have_its_reason_data();
    void messages_about_the_database_have_its_reason();
    void database_that_is_not_there_gives_no_reason();

private:
    static QString shown(const HOST_WINDOW& window, const char* name);
    static QComboBox& combo(const HOST_WINDOW& window, const char* name);
    static QStringList entries(const HOST_WINDOW& window, const char* name);

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
    const char* const property = qobject_cast<const QComboBox*>(widget) ? "currentText" : "text";
    return widget->property(property).toString();
}

QComboBox& TEST_HOST_WINDOW::combo(const HOST_WINDOW& window, const char* name)
{
    auto* found = window.findChild<QComboBox*>(QLatin1String(name));
    if (!found)
        qFatal("the window has no %s", name);
    return *found;
}

QStringList TEST_HOST_WINDOW::entries(const HOST_WINDOW& window, const char* name)
{
    const QComboBox& list = combo(window, name);
    QStringList texts;
    for (int entry = 0; entry < list.count(); ++entry)
        texts.append(list.itemText(entry));
    return texts;
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
    QCOMPARE(shown(window, "m_family_combo"), QStringLiteral("Poplar"));
    QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Serial x4"));
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

    gfpdb_mgr().schemes = {-1, 0, 25, 26};
    const auto mode_of = [&module](int scheme) {
        return shown(HOST_WINDOW(module, DIALOG_OPTIONS(), choice_of(1, scheme, "")), "m_mode_combo");
    };

    QCOMPARE(mode_of(-1), QStringLiteral("-1"));
    QCOMPARE(mode_of(26), QStringLiteral("26"));
    QCOMPARE(mode_of(0), QStringLiteral("1-bit Passive Serial"));
    QCOMPARE(mode_of(25), QStringLiteral("Illegal Configuration Scheme"));
}

void TEST_HOST_WINDOW::combos_list_what_is_offered()
{
    gfpdb_mgr().families = {9, 1, 3};
    gfpdb_mgr().schemes = {13, 8, 7};
    MODULE_LOADER module = fake_module();
    const HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(3, 13, ""));

    QCOMPARE(entries(window, "m_family_combo"),
             (QStringList{QStringLiteral("Heather"), QStringLiteral("Laurel"), QStringLiteral("Poplar")}));
    QCOMPARE(entries(window, "m_mode_combo"),
             (QStringList{QStringLiteral("Active Parallel"), QStringLiteral("Active Serial"),
                          QStringLiteral("Active Serial x4")}));
}

void TEST_HOST_WINDOW::combos_list_what_a_restriction_allows()
{
    DIALOG_OPTIONS options;
    options.family_schemes = {{3, {13}}, {9, {}}};
    MODULE_LOADER module = fake_module();
    const HOST_WINDOW window(module, options, choice_of(3, 13, ""));

    QCOMPARE(entries(window, "m_family_combo"), (QStringList{QStringLiteral("Heather"), QStringLiteral("Laurel")}));
    QCOMPARE(entries(window, "m_mode_combo"), QStringList(QStringLiteral("Active Serial x4")));
}

void TEST_HOST_WINDOW::choice_that_is_not_offered_becomes_the_nearest()
{
    gfpdb_mgr().schemes_of = {{3, {8, 7}}};
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(3, 13, "MX25"));
    QSignalSpy changed(&window, &HOST_WINDOW::choice_changed);

    QCOMPARE(window.choice().config_scheme, 8);
    QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Parallel"));
    QCOMPARE(entries(window, "m_mode_combo").size(), 2);
}

void TEST_HOST_WINDOW::combos_cannot_be_changed_where_the_dialog_s_cannot_data()
{
    QTest::addColumn<bool>("enable_family");
    QTest::addColumn<bool>("enable_mode");

    QTest::newRow("both") << true << true;
    QTest::newRow("no family") << false << true;
    QTest::newRow("no mode") << true << false;
}

void TEST_HOST_WINDOW::combos_cannot_be_changed_where_the_dialog_s_cannot()
{
    QFETCH(bool, enable_family);
    QFETCH(bool, enable_mode);
    DIALOG_OPTIONS options;
    options.enable_family = enable_family;
    options.enable_config_mode = enable_mode;
    MODULE_LOADER module = fake_module();
    const HOST_WINDOW window(module, options, choice_of(3, 13, ""));

    QCOMPARE(combo(window, "m_family_combo").isEnabled(), enable_family);
    QCOMPARE(combo(window, "m_mode_combo").isEnabled(), enable_mode);
}

void TEST_HOST_WINDOW::chosen_family_brings_its_modes()
{
    gfpdb_mgr().schemes_of = {{3, {7, 13}}, {9, {8, 13}}, {5, {8}}};
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(3, 13, ""));
    QSignalSpy changed(&window, &HOST_WINDOW::choice_changed);

    combo(window, "m_family_combo").setCurrentText(QStringLiteral("Laurel"));

    QCOMPARE(changed.count(), 1);
    QCOMPARE(window.choice().family, 9);
    QCOMPARE(window.choice().config_scheme, 13);
    QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Serial x4"));
    QCOMPARE(entries(window, "m_mode_combo").size(), 2);

    combo(window, "m_family_combo").setCurrentText(QStringLiteral("Mulberry"));

    QCOMPARE(changed.count(), 2);
    QCOMPARE(window.choice().family, 5);
    QCOMPARE(window.choice().config_scheme, 8);
    QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Parallel"));
}

void TEST_HOST_WINDOW::chosen_mode_stays_with_the_family()
{
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(3, 13, ""));
    QSignalSpy changed(&window, &HOST_WINDOW::choice_changed);

    combo(window, "m_mode_combo").setCurrentText(QStringLiteral("Active Serial"));

    QCOMPARE(changed.count(), 1);
    QCOMPARE(window.choice().family, 3);
    QCOMPARE(window.choice().config_scheme, 7);
    QCOMPARE(shown(window, "m_family_combo"), QStringLiteral("Heather"));
    QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Serial"));
}

// The arrow keys and the wheel go through every entry on the way.
void TEST_HOST_WINDOW::choice_that_the_user_passes_is_not_lost()
{
    gfpdb_mgr().schemes_of = {{3, {7, 13}}, {5, {7}}};
    gfpdb_mgr().add_custom("Mine");
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(3, 13, "Mine"));

    gfpdb_mgr().custom_names.clear();
    combo(window, "m_family_combo").setCurrentText(QStringLiteral("Mulberry"));
    QCOMPARE(window.choice().device_name, std::string());
    QCOMPARE(shown(window, "m_device_field"), QStringLiteral("none"));

    gfpdb_mgr().custom_names = {"Mine"};
    combo(window, "m_family_combo").setCurrentText(QStringLiteral("Heather"));
    QCOMPARE(window.choice().config_scheme, 13);
    QCOMPARE(window.choice().device_name, std::string("Mine"));
    QCOMPARE(shown(window, "m_device_field"), QStringLiteral("Mine"));
}

void TEST_HOST_WINDOW::opening_offers_modes_of_the_chosen_kind()
{
    gfpdb_mgr().families = {3, 9};
    gfpdb_mgr().schemes_of = {{3, {7, 8, 13}}, {9, {8}}};
    gfpdb_mgr().unused_properties_of[8] = {5, 6, 8};
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(3, 7, ""));

    window.open_dialog();
    QVERIFY2(shown(window, "m_device_field").contains(QLatin1String(" map=3:7,13,; ")),
             qPrintable(shown(window, "m_device_field")));

    combo(window, "m_family_combo").setCurrentText(QStringLiteral("Laurel"));
    window.open_dialog();
    QVERIFY2(shown(window, "m_device_field").contains(QLatin1String(" map=3:8,;9:8,; ")),
             qPrintable(shown(window, "m_device_field")));
}

void TEST_HOST_WINDOW::answer_of_the_dialog_is_shown_whatever_it_is()
{
    gfpdb_mgr().families = {3};
    gfpdb_mgr().schemes = {8};
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(3, 8, ""));

    window.open_dialog();

    QCOMPARE(shown(window, "m_family_combo"), QString::fromStdString(dstr_get_user_string(FAKE_FAMILY)));
    QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Serial x4"));
    QVERIFY(shown(window, "m_device_field").startsWith(QLatin1String("parent=")));
}

void TEST_HOST_WINDOW::rows_are_reached_by_access_keys_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");

    QTest::newRow("family") << QStringLiteral("m_family_combo") << QStringLiteral("Device &family:")
                            << QStringLiteral("Device family:");
    QTest::newRow("mode") << QStringLiteral("m_mode_combo") << QStringLiteral("Configuration &mode:")
                          << QStringLiteral("Configuration mode:");
    QTest::newRow("device") << QStringLiteral("m_device_field") << QStringLiteral("Configuration &device:")
                            << QStringLiteral("Configuration device:");
    QTest::newRow("directory") << QStringLiteral("m_directory_field") << QStringLiteral("Database di&rectory:")
                               << QStringLiteral("Database directory:");
}

// A screen reader takes the label's text for the row's name.
void TEST_HOST_WINDOW::rows_are_reached_by_access_keys()
{
    QFETCH(QString, row);
    QFETCH(QString, text);
    QFETCH(QString, name);
    MODULE_LOADER module = fake_module();
    const HOST_WINDOW window(module, DIALOG_OPTIONS(), HOST_CHOICE());
    auto* widget = window.findChild<QWidget*>(row);
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    const auto is_of_row = [widget](const QLabel* label) { return label->buddy() == widget; };
    const auto label = std::find_if(labels.begin(), labels.end(), is_of_row);

    QVERIFY(label != labels.end());
    QCOMPARE((*label)->text(), text);
    const auto related = QAccessible::queryAccessibleInterface(widget)->relations(QAccessible::Label);
    QCOMPARE(related.size(), 1);
    QCOMPARE(related.first().first->text(QAccessible::Name), name);
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
    QCOMPARE(fields.size(), 2);
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
    options.family_schemes = {{3, {7}}};
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, options, choice_of(3, 7, "MX25"));
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
             std::string("parent=Host under test family=3 scheme=7 device=MX25 flags=110 map=3:7,; base= locale=C "
                         "platform=offscreen"));
    QCOMPARE(button->text(), QStringLiteral("&Configuration Device..."));
}

void TEST_HOST_WINDOW::state_is_shown_anew_after_the_dialog()
{
    MODULE_LOADER module = fake_module();
    HOST_WINDOW window(module, DIALOG_OPTIONS(), choice_of(1, 7, "MX25"));
    GFPDB_WORLD::instance().custom_dir = "/other/";
    GFPDB_WORLD::instance().database_problem = "Read only.";

    window.open_dialog();

    QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Serial x4"));
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
    QTest::addColumn<QString>("base");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("absolute") << QStringLiteral("/data/mine") << QString() << QByteArray("/data/mine/");
    QTest::newRow("slash at the end") << QStringLiteral("/data/mine/") << QString() << QByteArray("/data/mine/");
    QTest::newRow("dots") << QStringLiteral("/data/./x/../mine") << QString() << QByteArray("/data/mine/");
    QTest::newRow("relative") << QStringLiteral("mine") << QString() << QByteArray("HERE/mine/");
    QTest::newRow("relative to the base")
        << QStringLiteral("mine") << QStringLiteral("/base") << QByteArray("/base/mine/");
    QTest::newRow("absolute in spite of the base")
        << QStringLiteral("/data/mine") << QStringLiteral("/base") << QByteArray("/data/mine/");
    QTest::newRow("letters outside ASCII") << QStringLiteral("/\u00e4") << QString() << QByteArray("/\xC3\xA4/");
    QTest::newRow("root") << QStringLiteral("/") << QString() << QByteArray("/");
}

void TEST_HOST_WINDOW::database_directory_is_made_absolute()
{
    QFETCH(QString, directory);
    QFETCH(QString, base);
    QFETCH(QByteArray, expected);

    use_database_directory(directory, base);

    QCOMPARE(QByteArray::fromStdString(GFPDB_WORLD::instance().custom_dir),
             expected.replace("HERE", QFile::encodeName(QDir::currentPath())));
}

void TEST_HOST_WINDOW::database_gets_the_base_directory()
{
    use_base_directory(QStringLiteral("/base/\u00e4"));

    QCOMPARE(GFPDB_WORLD::instance().base_dir, std::string("/base/\xC3\xA4"));
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
