// SPDX-License-Identifier: MIT

// A user chooses family, mode and device, and the program that opened the dialog gets them.
#include "e2e_test.h"
#include "test_rows.h"

namespace {

const QString TITLE = QStringLiteral("Configuration Device");
const QString DEVICE = QStringLiteral("MX25L25645G");

QJsonObject record(int family, int scheme, const QString& device)
{
    return {{QStringLiteral("family"), family},
            {QStringLiteral("config_scheme"), scheme},
            {QStringLiteral("device_name"), device}};
}

QJsonValue text(const char* value)
{
    return QString::fromUtf8(value);
}

} // namespace

class TEST_CHOOSE_DEVICE : public E2E_TEST
{
    Q_OBJECT

private slots:
    void chosen_device_comes_back_with_ok()
    {
        QVERIFY(open({}));
        QVERIFY(wait_for_property("m_family_cbox", "currentText", text("Poplar")));
        QVERIFY(wait_for_property("m_config_mode_cbox", "currentText", text("Active Serial")));
        const QStringList all = column_of("m_device_table_view");
        QVERIFY(all.contains(DEVICE));
        QVERIFY(all.contains(QStringLiteral("<<new device>>")));

        QVERIFY(user().fill("m_filter_line_edit", QStringLiteral("l25645g")));
        QVERIFY(wait_for_column("m_device_table_view", all.filter(QStringLiteral("L25645G"))));
        QVERIFY(user().click(item_in("m_device_table_view", DEVICE)));
        QVERIFY(wait_for_property("m_device_name_edit", "text", DEVICE));
        QVERIFY(wait_for_property("m_device_id_edit", "text", text("0xC2 0x20 0x19")));

        QVERIFY(user().choose("m_family_cbox", QStringLiteral("Heather")));
        QVERIFY(wait_for_property("m_config_mode_cbox", "currentText", text("Active Serial")));
        QVERIFY(user().choose("m_config_mode_cbox", QStringLiteral("Active Serial x4")));
        QVERIFY(wait_for_property("m_family_cbox", "currentText", text("Heather")));
        QVERIFY(wait_for_property("m_device_name_edit", "text", DEVICE));

        QVERIFY(user().click(widget_called("m_ok_button")));
        QVERIFY(ended_well());
        QCOMPARE(session().record(), record(3, 13, DEVICE));
    }

    void cancel_gives_the_record_back_as_it_came()
    {
        QVERIFY(open({QStringLiteral("--device=as it came")}));
        QVERIFY(change_everything());

        QVERIFY(user().click(widget_called("m_cancel_button")));
        QVERIFY(ended_well());
        QCOMPARE(session().record(), record(1, 7, QStringLiteral("as it came")));
    }

    void closing_the_window_gives_the_record_back_as_it_came()
    {
        QVERIFY(open({QStringLiteral("--device=MX25L1606E")}));
        QVERIFY(change_everything());

        // The window manager's own way to close a window.
        QVERIFY(user().press(QStringLiteral("alt+F4")));
        QVERIFY(ended_well());
        QCOMPARE(session().record(), record(1, 7, QStringLiteral("MX25L1606E")));
    }

    void escape_gives_the_record_back_as_it_came()
    {
        QVERIFY(open({QStringLiteral("--device=MX25L1606E")}));
        QVERIFY(change_everything());

        QVERIFY(user().press(QStringLiteral("Escape")));
        QVERIFY(ended_well());
        QCOMPARE(session().record(), record(1, 7, QStringLiteral("MX25L1606E")));
    }

    void restriction_limits_what_is_offered()
    {
        QVERIFY(open({QStringLiteral("--restrict=1:13,7;4:")}));

        QVERIFY(wait_for_column("m_family_cbox", {QStringLiteral("Larch"), QStringLiteral("Poplar")}));
        QVERIFY(wait_for_column("m_config_mode_cbox",
                                {QStringLiteral("Active Serial"), QStringLiteral("Active Serial x4")}));
        QVERIFY(user().choose("m_family_cbox", QStringLiteral("Larch")));
        QVERIFY(wait_for_column("m_config_mode_cbox",
                                {QStringLiteral("1-bit Passive Serial"), QStringLiteral("Active Serial"),
                                 QStringLiteral("Active Serial x4"), QStringLiteral("Passive Parallel Asynchronous"),
                                 QStringLiteral("Passive Parallel Synchronous")}));
    }

    void switches_disable_their_controls_data()
    {
        rows<QString, bool, bool, bool>({{"family", "--no-family", false, true, true},
                                         {"mode", "--no-mode", true, false, true},
                                         {"edit", "--no-edit", true, true, false}});
    }

    void switches_disable_their_controls()
    {
        const auto [option, family, mode, edit] = row<QString, bool, bool, bool>();
        QVERIFY(open({option}));

        QVERIFY(wait_for_property("m_family_cbox", "enabled", family));
        QVERIFY(wait_for_property("m_config_mode_cbox", "enabled", mode));
        QVERIFY(wait_for_property("m_directory_edit", "enabled", edit));
        QVERIFY(wait_for_property("m_browse_button", "enabled", edit));
        QVERIFY(wait_for_property("m_config_device_tab", "enabled", edit));
        QVERIFY(user().click(tab_called(QStringLiteral("Program"))));
        QVERIFY(wait_for_property("m_property_table", "visible", true));
    }

    void return_in_the_filter_presses_no_button()
    {
        QVERIFY(open({}));
        QVERIFY(user().click(item_in("m_device_table_view", QStringLiteral("<<new device>>"))));
        QVERIFY(wait_for_property("m_edit_template_button", "enabled", true));

        QVERIFY(user().fill("m_filter_line_edit", QStringLiteral("new")));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(user().press(QStringLiteral("BackSpace")));

        // The next key still reaches the filter: neither the dialog nor a template editor took over.
        QVERIFY(wait_for_property("m_filter_line_edit", "text", text("ne")));
        QVERIFY(wait_for_window(TITLE));
    }

    void directory_is_changed_by_typing()
    {
        const QString directory = scratch() + QStringLiteral("/it's another one");
        QVERIFY(QDir().mkpath(directory));
        QVERIFY(open({}));

        QVERIFY(user().fill("m_directory_edit", directory));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(wait_for_property("m_directory_edit", "text", QString(directory + QLatin1Char('/'))));

        QVERIFY(user().click(widget_called("m_cancel_button")));
        QVERIFY(ended_well());
        QFile settings(scratch() + QStringLiteral("/config/gfpdb.ini"));
        QVERIFY(settings.open(QIODevice::ReadOnly));
        QVERIFY(settings.readAll().contains("it's another one"));
    }

    void directory_is_chosen_in_the_folder_dialog()
    {
        QVERIFY(open({}));
        QVERIFY(QDir(session().database_directory()).mkdir(QStringLiteral("inner")));

        QVERIFY(user().click(widget_called("m_browse_button")));
        QVERIFY(wait_for_window(QStringLiteral("Browse")));
        QVERIFY(user().fill("fileNameEdit", QStringLiteral("inner")));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(wait_for_window(TITLE));

        QVERIFY(wait_for_property("m_directory_edit", "text",
                                  QString(session().database_directory() + QLatin1String("/inner/"))));
    }

    void unusable_directory_is_reported_and_nothing_changes()
    {
        QVERIFY(open({}));
        const QStringList devices = column_of("m_device_table_view");

        QVERIFY(user().fill("m_directory_edit", QStringLiteral("/no/such/directory")));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(wait_for_box(QStringLiteral("Failed to set the custom database directory to /no/such/directory\n")));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(wait_for_window(TITLE));

        QVERIFY(
            wait_for_property("m_directory_edit", "text", QString(session().database_directory() + QLatin1Char('/'))));
        QCOMPARE(column_of("m_device_table_view"), devices);
    }

private:
    bool open(const QStringList& options)
    {
        return start(
                   QStringList{QStringLiteral("--dialog"), QStringLiteral("--family=1"), QStringLiteral("--scheme=7")} +
                   options) &&
               wait_for_window(TITLE);
    }

    // Changes family, mode and device by mouse and keyboard.
    bool change_everything()
    {
        return user().fill("m_filter_line_edit", QStringLiteral("L25645")) &&
               user().click(item_in("m_device_table_view", DEVICE)) &&
               wait_for_property("m_device_name_edit", "text", DEVICE) &&
               user().choose("m_family_cbox", QStringLiteral("Heather")) &&
               user().choose("m_config_mode_cbox", QStringLiteral("Active Serial x4"));
    }
};

QTEST_GUILESS_MAIN(TEST_CHOOSE_DEVICE)

#include "test_choose_device.moc"
