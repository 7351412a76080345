// SPDX-License-Identifier: MIT

// What is chosen in the host, and the way to the dialog.
#include "dialog/device_panel.h"
#include "dialog/module_loader.h"
#include "fake_module.h"
#include "gfpdb_double.h"
#include "modal_driver.h"
#include "program/host_database.h"
#include "test_rows.h"

#include "dstr/dstr.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextCodec>

#include <algorithm>

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

struct FAKE_LOADER
{
    MODULE_LOADER module{{QStringLiteral(FAKE_MODULE)}};
};

// A window with the fake module.
struct TEST_WINDOW : FAKE_LOADER, DEVICE_PANEL
{
    explicit TEST_WINDOW(const HOST_CHOICE& choice = {}, const DIALOG_OPTIONS& options = {})
        : DEVICE_PANEL(module, options, choice)
    {
        setWindowTitle(TITLE);
    }
};

} // namespace

class TEST_DEVICE_PANEL : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
        QCoreApplication::setApplicationName(TITLE);
    }

    void init()
    {
        m_modals.reset();
        GFPDB_WORLD::instance().reset();
        GFPDB_WORLD::instance().custom_dir = "/data/fl\xC3\xA4sh/";
    }

    void cleanup()
    {
        QCOMPARE(m_modals.problems(), QStringList());
        QCOMPARE(QApplication::topLevelWidgets().size(), 0);
    }

    void window_shows_the_choice_and_the_directory()
    {
        const TEST_WINDOW window(choice_of(1, 13, "MX25L25645G"));

        QCOMPARE(shown(window, "m_family_combo"), QStringLiteral("Poplar"));
        QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Serial x4"));
        QCOMPARE(shown(window, "m_device_field"), QStringLiteral("MX25L25645G"));
        QCOMPARE(shown(window, "m_directory_field"), QStringLiteral("/data/fl\u00e4sh/"));
        QCOMPARE(shown(TEST_WINDOW(), "m_device_field"), QStringLiteral("none"));
    }

    void scheme_without_a_name_is_shown_as_a_number()
    {

        gfpdb_mgr().schemes = {-1, 0, 25, 26};
        const auto mode_of = [](int scheme) { return shown(TEST_WINDOW(choice_of(1, scheme, "")), "m_mode_combo"); };

        QCOMPARE(mode_of(-1), QStringLiteral("-1"));
        QCOMPARE(mode_of(26), QStringLiteral("26"));
        QCOMPARE(mode_of(0), QStringLiteral("1-bit Passive Serial"));
        QCOMPARE(mode_of(25), QStringLiteral("Illegal Configuration Scheme"));
    }

    void combos_list_what_is_offered()
    {
        gfpdb_mgr().families = {9, 1, 3};
        gfpdb_mgr().schemes = {13, 8, 7};
        const TEST_WINDOW window(choice_of(3, 13, ""));

        QCOMPARE(entries(window, "m_family_combo"),
                 (QStringList{QStringLiteral("Heather"), QStringLiteral("Laurel"), QStringLiteral("Poplar")}));
        QCOMPARE(entries(window, "m_mode_combo"),
                 (QStringList{QStringLiteral("Active Parallel"), QStringLiteral("Active Serial"),
                              QStringLiteral("Active Serial x4")}));
    }

    void combos_list_what_a_restriction_allows()
    {
        DIALOG_OPTIONS options;
        options.family_schemes = {{3, {13}}, {9, {}}};
        const TEST_WINDOW window(choice_of(3, 13, ""), options);

        QCOMPARE(entries(window, "m_family_combo"), (QStringList{QStringLiteral("Heather"), QStringLiteral("Laurel")}));
        QCOMPARE(entries(window, "m_mode_combo"), QStringList(QStringLiteral("Active Serial x4")));
    }

    void choice_that_is_not_offered_becomes_the_nearest()
    {
        gfpdb_mgr().schemes_of = {{3, {8, 7}}};
        TEST_WINDOW window(choice_of(3, 13, "MX25"));
        QSignalSpy changed(&window, &DEVICE_PANEL::choice_changed);

        QCOMPARE(window.choice().config_scheme, 8);
        QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Parallel"));
        QCOMPARE(entries(window, "m_mode_combo").size(), 2);
    }

    void combos_cannot_be_changed_where_the_dialog_s_cannot_data()
    {
        rows<bool, bool>({{"both", true, true}, {"no family", false, true}, {"no mode", true, false}});
    }

    void combos_cannot_be_changed_where_the_dialog_s_cannot()
    {
        const auto [enable_family, enable_mode] = row<bool, bool>();
        DIALOG_OPTIONS options;
        options.enable_family = enable_family;
        options.enable_config_mode = enable_mode;
        const TEST_WINDOW window(choice_of(3, 13, ""), options);

        QCOMPARE(combo(window, "m_family_combo").isEnabled(), enable_family);
        QCOMPARE(combo(window, "m_mode_combo").isEnabled(), enable_mode);
    }

    void chosen_family_brings_its_modes()
    {
        gfpdb_mgr().schemes_of = {{3, {7, 13}}, {9, {8, 13}}, {5, {8}}};
        TEST_WINDOW window(choice_of(3, 13, ""));
        QSignalSpy changed(&window, &DEVICE_PANEL::choice_changed);
        const auto choose = [&](const char* name, const char* text) {
            changed.clear();
            combo(window, name).setCurrentText(QLatin1String(text));
            return QStringLiteral("%1: %2 %3, %4, %5")
                .arg(changed.count())
                .arg(window.choice().family)
                .arg(window.choice().config_scheme)
                .arg(shown(window, "m_family_combo"), entries(window, "m_mode_combo").join(QLatin1Char('+')));
        };

        QCOMPARE(choose("m_mode_combo", "Active Serial"),
                 QStringLiteral("1: 3 7, Heather, Active Serial+Active Serial x4"));
        QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Serial"));
        QCOMPARE(choose("m_mode_combo", "Active Serial x4"),
                 QStringLiteral("1: 3 13, Heather, Active Serial+Active Serial x4"));
        QCOMPARE(choose("m_family_combo", "Laurel"),
                 QStringLiteral("1: 9 13, Laurel, Active Parallel+Active Serial x4"));
        QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Serial x4"));
        QCOMPARE(choose("m_family_combo", "Mulberry"), QStringLiteral("1: 5 8, Mulberry, Active Parallel"));
    }

    // The arrow keys and the wheel go through every entry on the way.
    void choice_that_the_user_passes_is_not_lost()
    {
        gfpdb_mgr().schemes_of = {{3, {7, 13}}, {5, {7}}};
        gfpdb_mgr().add_custom("Mine");
        TEST_WINDOW window(choice_of(3, 13, "Mine"));

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

    void opening_offers_modes_of_the_chosen_kind()
    {
        gfpdb_mgr().families = {3, 9};
        gfpdb_mgr().schemes_of = {{3, {7, 8, 13}}, {9, {8}}};
        gfpdb_mgr().unused_properties_of[8] = {5, 6, 8};
        TEST_WINDOW window(choice_of(3, 7, ""));

        window.open_dialog();
        QVERIFY2(shown(window, "m_device_field").contains(QLatin1String(" map=3:7,13,; ")),
                 qPrintable(shown(window, "m_device_field")));

        combo(window, "m_family_combo").setCurrentText(QStringLiteral("Laurel"));
        window.open_dialog();
        QVERIFY2(shown(window, "m_device_field").contains(QLatin1String(" map=3:8,;9:8,; ")),
                 qPrintable(shown(window, "m_device_field")));
    }

    void state_is_shown_again_after_the_dialog()
    {
        gfpdb_mgr().families = {3};
        gfpdb_mgr().schemes = {8};
        TEST_WINDOW window(choice_of(3, 8, "MX25"));
        GFPDB_WORLD::instance().custom_dir = "/other/";
        GFPDB_WORLD::instance().database_problem = "Read only.";

        window.open_dialog();

        QCOMPARE(shown(window, "m_family_combo"), QString::fromStdString(dstr_get_user_string(FAKE_FAMILY)));
        QCOMPARE(shown(window, "m_mode_combo"), QStringLiteral("Active Serial x4"));
        QVERIFY(shown(window, "m_device_field").startsWith(QLatin1String("parent=")));
        QCOMPARE(shown(window, "m_directory_field"), QStringLiteral("/other/"));
        QCOMPARE(shown(window, "m_problem_label"), QStringLiteral("Read only."));
    }

    void texts_are_shown_as_they_stand()
    {
        GFPDB_WORLD::instance().database_problem = "<b>bad</b>";
        const TEST_WINDOW window(choice_of(1, 7, "<b>\xC3\xA4</b>"));

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

    void rows_are_reached_by_access_keys_data()
    {
        rows<QString, QString, QString>(
            {{"family", "m_family_combo", "Device &family:", "Device family:"},
             {"mode", "m_mode_combo", "Configuration &mode:", "Configuration mode:"},
             {"device", "m_device_field", "Configuration &device:", "Configuration device:"},
             {"directory", "m_directory_field", "Database di&rectory:", "Database directory:"}});
    }

    // A screen reader takes the label's text for the row's name.
    void rows_are_reached_by_access_keys()
    {
        const auto [field, text, name] = row<QString, QString, QString>();
        const TEST_WINDOW window;
        auto* widget = window.findChild<QWidget*>(field);
        const QList<QLabel*> labels = window.findChildren<QLabel*>();
        const auto is_of_row = [widget](const QLabel* label) { return label->buddy() == widget; };
        const auto label = std::find_if(labels.begin(), labels.end(), is_of_row);

        QVERIFY(label != labels.end());
        QCOMPARE((*label)->text(), text);
        const auto related = QAccessible::queryAccessibleInterface(widget)->relations(QAccessible::Label);
        QCOMPARE(related.size(), 1);
        QCOMPARE(related.first().first->text(QAccessible::Name), name);
    }

    void long_text_is_shown_from_its_beginning_in_a_window_of_usual_size()
    {
        const std::string long_name(10000, 'x');
        GFPDB_WORLD::instance().custom_dir = "/" + long_name + "/";
        TEST_WINDOW usual(choice_of(1, 7, "MX25"));
        GFPDB_WORLD::instance().database_problem = "The directory " + long_name + " is gone.";
        TEST_WINDOW window(choice_of(1, 7, long_name));

        QCOMPARE(window.sizeHint().width(), usual.sizeHint().width());
        QCOMPARE(window.findChild<QLineEdit*>(QStringLiteral("m_device_field"))->cursorPosition(), 0);
        QCOMPARE(window.findChild<QLineEdit*>(QStringLiteral("m_directory_field"))->cursorPosition(), 0);
    }

    void database_problem_is_shown_without_a_gap_when_there_is_none()
    {
        for (const char* problem : {"", "The directory is gone."}) {
            GFPDB_WORLD::instance().database_problem = problem;
            TEST_WINDOW window;
            window.show();

            QCOMPARE(window.findChild<QLabel*>(QStringLiteral("m_problem_label"))->isVisible(), *problem != '\0');
            QCOMPARE(shown(window, "m_problem_label"), QLatin1String(problem));
        }
    }

    void dialog_opens_with_choice_and_options()
    {
        DIALOG_OPTIONS options;
        options.enable_edit = false;
        options.family_schemes = {{3, {7}}};
        TEST_WINDOW window(choice_of(3, 7, "MX25"), options);
        QSignalSpy changed(&window, &DEVICE_PANEL::choice_changed);

        auto* button = window.findChild<QPushButton*>(QStringLiteral("m_dialog_button"));
        button->click();

        QCOMPARE(changed.count(), 1);
        QCOMPARE(window.choice().family, FAKE_FAMILY);
        QCOMPARE(window.choice().config_scheme, FAKE_SCHEME);
        QCOMPARE(window.choice().device_name,
                 std::string("parent=Host under test family=3 scheme=7 device=MX25 flags=110 map=3:7,; base= locale=C "
                             "platform=offscreen"));
        QCOMPARE(button->text(), QStringLiteral("&Configuration Device..."));
    }

    void missing_module_is_reported_in_a_box()
    {
        MODULE_LOADER module({QStringLiteral("/no/such/<b>module.so")});
        DEVICE_PANEL window(module, DIALOG_OPTIONS(), choice_of(1, 7, "MX25"));
        QSignalSpy changed(&window, &DEVICE_PANEL::choice_changed);

        m_modals.expect(MODAL_DRIVER::accept());
        window.open_dialog();

        QCOMPARE(m_modals.met().size(), 1);
        QCOMPARE(m_modals.last().title, TITLE);
        QCOMPARE(m_modals.last().icon, QMessageBox::Critical);
        QCOMPARE(m_modals.last().text_format, Qt::PlainText);
        QCOMPARE(m_modals.last().text, QStringLiteral("The dialog module was not found. Searched:\n"
                                                      "/no/such/<b>module.so"));
        QVERIFY(m_modals.last().has_parent);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(window.choice().device_name, std::string("MX25"));
    }

    void database_directory_is_made_absolute_data()
    {
        rows<QString, QString, QByteArray>({{"absolute", "/data/mine", QString(), "/data/mine/"},
                                            {"slash at the end", "/data/mine/", QString(), "/data/mine/"},
                                            {"dots", "/data/./x/../mine", QString(), "/data/mine/"},
                                            {"relative", "mine", QString(), "HERE/mine/"},
                                            {"relative to the base", "mine", "/base", "/base/mine/"},
                                            {"absolute in spite of the base", "/data/mine", "/base", "/data/mine/"},
                                            {"letters outside ASCII", "/\u00e4", QString(), "/\xC3\xA4/"},
                                            {"root", "/", QString(), "/"}});
    }

    void database_directory_is_made_absolute()
    {
        auto [directory, base, expected] = row<QString, QString, QByteArray>();

        use_database_directory(directory, base);

        QCOMPARE(QByteArray::fromStdString(GFPDB_WORLD::instance().custom_dir),
                 expected.replace("HERE", QFile::encodeName(QDir::currentPath())));
    }

    void database_gets_the_base_directory()
    {
        use_base_directory(QStringLiteral("/base/\u00e4"));

        QCOMPARE(GFPDB_WORLD::instance().base_dir, std::string("/base/\xC3\xA4"));
    }

    void messages_about_saving_and_deleting_have_the_database_s_reason()
    {
        gfpdb_mgr().last_error = "Read-only file system";

        for (const int message : {20438, 20439, 20440, 20441})
            QCOMPARE(reason_of_message(message),
                     std::string(message == 20439 || message == 20440 ? "Read-only file system" : ""));

        GFPDB_WORLD::instance().active = nullptr;
        QCOMPARE(reason_of_message(20439), std::string());
    }

private:
    static QString shown(const DEVICE_PANEL& window, const char* name)
    {
        const auto* widget = window.findChild<QWidget*>(QLatin1String(name));
        if (!widget)
            qFatal("the window has no %s", name);
        const char* const property = qobject_cast<const QComboBox*>(widget) ? "currentText" : "text";
        return widget->property(property).toString();
    }

    static QComboBox& combo(const DEVICE_PANEL& window, const char* name)
    {
        auto* found = window.findChild<QComboBox*>(QLatin1String(name));
        if (!found)
            qFatal("the window has no %s", name);
        return *found;
    }

    static QStringList entries(const DEVICE_PANEL& window, const char* name)
    {
        const QComboBox& list = combo(window, name);
        QStringList texts;
        for (int entry = 0; entry < list.count(); ++entry)
            texts.append(list.itemText(entry));
        return texts;
    }

    MODAL_DRIVER m_modals;
};

QTEST_MAIN(TEST_DEVICE_PANEL)

#include "test_device_panel.moc"
