// SPDX-License-Identifier: MIT

// The host's main window: the way to the dialog, and what it remembers.
#include "e2e_test.h"
#include "test_rows.h"

namespace {

const QString TITLE = QStringLiteral("Flash Programmer");
const QString DIALOG_TITLE = QStringLiteral("Configuration Device");
const QString DEVICE = QStringLiteral("MX25L25645G");

QJsonValue text(const char* value)
{
    return QString::fromUtf8(value);
}

} // namespace

class TEST_MAIN_WINDOW : public E2E_TEST
{
    Q_OBJECT

private slots:
    void choice_is_shown_and_remembered()
    {
        QVERIFY(start({}));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(wait_for_property("m_family_combo", "currentText", text("Poplar")));
        QVERIFY(wait_for_property("m_mode_combo", "currentText", text("Active Serial")));
        QVERIFY(wait_for_property("m_device_field", "text", text("none")));
        QVERIFY(
            wait_for_property("m_directory_field", "text", QString(session().database_directory() + QLatin1Char('/'))));
        QVERIFY(wait_for_property("m_problem_label", "visible", false));

        QVERIFY(user().click(widget_called("m_dialog_button")));
        QVERIFY(wait_for_window(DIALOG_TITLE));
        QVERIFY(user().choose("m_family_cbox", QStringLiteral("Heather")));
        QVERIFY(user().choose("m_config_mode_cbox", QStringLiteral("Active Serial x4")));
        QVERIFY(user().fill("m_filter_line_edit", DEVICE));
        QVERIFY(user().click(item_in("m_device_table_view", DEVICE)));
        QVERIFY(user().click(widget_called("m_ok_button")));

        QVERIFY(wait_for_window(TITLE));
        QVERIFY(wait_for_property("m_family_combo", "currentText", text("Heather")));
        QVERIFY(wait_for_property("m_mode_combo", "currentText", text("Active Serial x4")));
        QVERIFY(wait_for_property("m_device_field", "text", DEVICE));
        QVERIFY(quit());
        QVERIFY(ended_well());

        QVERIFY(start({}));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(wait_for_property("m_family_combo", "currentText", text("Heather")));
        QVERIFY(wait_for_property("m_mode_combo", "currentText", text("Active Serial x4")));
        QVERIFY(wait_for_property("m_device_field", "text", DEVICE));
        QVERIFY(user().click(widget_called("m_dialog_button")));
        QVERIFY(wait_for_window(DIALOG_TITLE));
        QVERIFY(wait_for_property("m_device_name_edit", "text", DEVICE));
    }

    void choice_of_the_window_decides_what_the_dialog_offers()
    {
        QVERIFY(start({}));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(user().choose("m_family_combo", QStringLiteral("Myrtle")));
        QVERIFY(wait_for_property("m_mode_combo", "currentText", text("Active Serial")));
        QVERIFY(user().choose("m_mode_combo", QStringLiteral("SDMMC x8")));

        QVERIFY(user().click(widget_called("m_dialog_button")));
        QVERIFY(wait_for_window(DIALOG_TITLE));
        QVERIFY(wait_for_property("m_family_cbox", "currentText", text("Myrtle")));
        QVERIFY(wait_for_property("m_config_mode_cbox", "currentText", text("SDMMC x8")));
        QCOMPARE(column_of("m_config_mode_cbox"),
                 (QStringList{QStringLiteral("SDMMC x4"), QStringLiteral("SDMMC x8")}));
        QVERIFY(user().press(QStringLiteral("Escape")));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(quit());
        QVERIFY(ended_well());

        QVERIFY(start({}));
        QVERIFY(wait_for_property("m_family_combo", "currentText", text("Myrtle")));
        QVERIFY(wait_for_property("m_mode_combo", "currentText", text("SDMMC x8")));
    }

    void menu_opens_the_dialog_too()
    {
        QVERIFY(start({}));
        QVERIFY(wait_for_window(TITLE));

        QVERIFY(user().click(menubar_entry(QStringLiteral("Programmer"))));
        QVERIFY(user().click(menu_entry(QStringLiteral("Configuration Device..."))));
        QVERIFY(wait_for_window(DIALOG_TITLE));
        QVERIFY(user().press(QStringLiteral("Escape")));
        QVERIFY(wait_for_window(TITLE));

        QVERIFY(user().click(menubar_entry(QStringLiteral("Programmer"))));
        QVERIFY(user().click(menu_entry(QStringLiteral("Quit"))));
        QVERIFY(ended_well());
    }

    void dialog_is_modal_to_the_window()
    {
        QVERIFY(start({}));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(user().click(widget_called("m_dialog_button")));
        QVERIFY(wait_for_window(DIALOG_TITLE));

        QVERIFY(user().press(QStringLiteral("ctrl+q")));
        QVERIFY(user().fill("m_filter_line_edit", QStringLiteral("still here")));
        QVERIFY(wait_for_window(DIALOG_TITLE));
    }

    void unusable_database_is_reported_data()
    {
        rows<bool, QByteArray>({{"directory is missing", false, QByteArray()},
                                {"file is no database", true, "this is no database, whatever its name says"}});
    }

    void unusable_database_is_reported()
    {
        const auto [is_directory_there, content] = row<bool, QByteArray>();
        const QString directory = scratch() + QStringLiteral("/unusable");
        if (is_directory_there) {
            QVERIFY(QDir().mkdir(directory));
            QFile file(directory + QStringLiteral("/gfpdb.sqlite"));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }

        QVERIFY(start_with_database(directory, {QStringLiteral("--device=MX25L25645G")}));
        QVERIFY(wait_for_window(TITLE));

        QVERIFY(wait_for_property("m_problem_label", "visible", true));
        const QString problem = look(widget_called("m_problem_label")).value(QLatin1String("text")).toString();
        QVERIFY2(problem.contains(directory), qPrintable(problem));

        // The built-in devices are there all the same.
        QVERIFY(user().click(widget_called("m_dialog_button")));
        QVERIFY(wait_for_window(DIALOG_TITLE));
        QVERIFY(wait_for_property("m_device_name_edit", "text", DEVICE));
    }

private:
    bool quit() { return user().press(QStringLiteral("ctrl+q")) && session().wait_for_end(); }
};

QTEST_GUILESS_MAIN(TEST_MAIN_WINDOW)

#include "test_main_window.moc"
