// SPDX-License-Identifier: MIT

// The manager: names that are in use, by the device that the user is asked about, by others and by built-in parts; and
// names whose record no one has seen.
#include "gfpdb/gfpdb_database.h"
#include "gfpdb/gfpdb_helper.h"
#include "manager_test.h"
#include "marking_translator.h"
#include "message_recorder.h"
#include "test_rows.h"

#include <QRegularExpression>

#include <memory>

namespace {

const std::string NEW_DEVICE = "<<new device>>";
const std::string CASE_NOTE = " Upper and lower case count as the same.";

} // namespace

class TEST_MANAGER_NAMES : public MANAGER_TEST
{
    Q_OBJECT

private slots:
    void a_name_in_use_is_given_as_it_is_stored()
    {
        save("Device", "Template");
        const std::string here = " for this family and configuration mode: choose another name.";

        QCOMPARE(device_error("Device"), "There is a device called \"Device\"" + here);
        QCOMPARE(device_error("dEVICE"), "There is a device called \"Device\"" + here + CASE_NOTE);
        QCOMPARE(device_error("TEMPLATE"),
                 "There is a stored template called \"Template\": choose another name." + CASE_NOTE);
        QCOMPARE(template_error("TEMPLATE"), "There is a stored template called \"Template\": choose another name, or "
                                             "remove that template first." +
                                                 CASE_NOTE);
        QCOMPARE(template_error("DEVICE"), "There is a device called \"Device\": choose another name." + CASE_NOTE);
        QCOMPARE(device_error("mx25l25645g"),
                 "There is a built-in device called \"" + BUILTIN + "\": choose another name." + CASE_NOTE);
        QCOMPARE(save_error("template"), "A stored template called \"Template\" already exists." + CASE_NOTE);
        QCOMPARE(save_error("New", "device"), "A device called \"Device\" already exists." + CASE_NOTE);
        QCOMPARE(save_error("New", "template"), "A stored template called \"Template\" already exists." + CASE_NOTE);
    }

    void the_shown_device_may_change_the_case_of_its_name()
    {
        save("Device");
        save("Other");

        look_at("Other");
        QVERIFY(!device_error("DEVICE").empty());
        look_at(NEW_DEVICE);
        QVERIFY(!device_error("DEVICE").empty());
        look_at("Device");
        QVERIFY(!device_error("OTHER").empty());
        QCOMPARE(device_error("Device"),
                 std::string("There is a device called \"Device\": it is the one that is shown. "
                             "Enter another name to rename it."));
        QCOMPARE(device_error("DEVICE"), std::string());

        QVERIFY(remove("Device"));
        QCOMPARE(save_error("DEVICE"), std::string("was saved"));
        QCOMPARE(custom_names(*m_mgr), (NAMES{"DEVICE", "Other"}));
        QCOMPARE(history_size(), 1);
    }

    void looking_at_another_device_starts_afresh()
    {
        save("Device");
        look_at("Device");
        m_mgr->is_hidden_flash("Other", true);
        QCOMPARE(device_error("DEVICE"), std::string());

        look_at("Other");
        QCOMPARE(template_error("DEVICE"), "There is a device called \"Device\": choose another name." + CASE_NOTE);
    }

    // As every device, and the row of a new one, begins.
    void asking_for_the_densities_starts_afresh()
    {
        save("Device");
        look_at("Device");
        QCOMPARE(device_error("Entered"), std::string());
        NAMES densities;

        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_DENSITY, std::string("8Mb")), std::string());
        QCOMPARE(device_error("DEVICE"), std::string());
        m_mgr->get_density_list(densities);

        QCOMPARE(template_error("Device"), std::string("There is a device called \"Device\": choose another name."));
        QCOMPARE(device_error("DEVICE"), "There is a device called \"Device\" for this family and configuration mode: "
                                         "choose another name." +
                                             CASE_NOTE);
    }

    void no_name_is_free_while_the_database_cannot_be_read_data()
    {
        rows<int, QString>({{"a device's", int(GFPDB_FLASH_NAME), "DEVICE"},
                            {"a template's", int(GFPDB_FLASH_NAME), "Template"},
                            {"no one's", int(GFPDB_FLASH_NAME), "Free"},
                            {"a device's for a template", int(GFPDB_FLASH_TEMPLATE_NAME), "Device"},
                            {"a template's for a template", int(GFPDB_FLASH_TEMPLATE_NAME), "Template"}});
    }

    void no_name_is_free_while_the_database_cannot_be_read()
    {
        const auto [property, name] = row<int, QString>();
        write_file(m_place->settings(), "[database]\nbusy_timeout=0\n");
        m_mgr = fresh_manager();
        save("Device", "Template");
        look_at("Other");
        const FOREIGN_LOCK lock(m_place->db_file());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("is locked by another program")));

        const std::string error = checked(*m_mgr, GFPDB_FLASH_PROPERTY(property), name.toStdString());

        QVERIFY2(error.find("is locked by another program") != std::string::npos, error.c_str());
    }

    void a_template_name_that_differs_in_case_from_the_device_is_refused_data()
    {
        rows<QString, QString, QString>({{"a new device", QString::fromStdString(NEW_DEVICE), "New", "NEW"},
                                         {"a renamed device", "Device", "Name", "name"},
                                         {"an unchanged name", "Device", QString(), "dEVICE"}});
    }

    void a_template_name_that_differs_in_case_from_the_device_is_refused()
    {
        const auto [shown, entered, template_name] = row<QString, QString, QString>();
        save("Device");
        look_at(shown.toStdString());
        if (!entered.isEmpty())
            QCOMPARE(device_error(entered.toStdString()), std::string());

        QCOMPARE(template_error(template_name.toStdString()),
                 "The template name \"" + template_name.toStdString() + "\" differs from the device name \"" +
                     (entered.isEmpty() ? shown : entered).toStdString() + "\" in case only: choose another name.");
        QCOMPARE(template_error("Another"), std::string());
    }

    void a_template_name_equal_to_the_device_is_left_to_the_dialog()
    {
        save("Device");
        look_at("Device");
        QCOMPARE(template_error("Device"), std::string());
        QCOMPARE(device_error("Name"), std::string());
        QCOMPARE(template_error("Name"), std::string());
        QVERIFY(!template_error("Device").empty());
    }

    void the_name_last_checked_is_the_device()
    {
        save("Device");
        look_at("Device");
        QCOMPARE(device_error("First"), std::string());
        QCOMPARE(device_error("Second"), std::string());

        QCOMPARE(template_error("FIRST"), std::string());
        QVERIFY(!template_error("SECOND").empty());
        look_at("Device");
        QCOMPARE(template_error("SECOND"), std::string());
    }

    void a_device_with_the_name_of_a_builtin_part_can_be_changed_and_renamed()
    {
        save_with_builtin_name();
        const std::string lower = QString::fromStdString(BUILTIN).toLower().toStdString();
        look_at(BUILTIN);
        QVERIFY(remove(BUILTIN));
        QCOMPARE(save_error(BUILTIN), std::string("was saved"));
        QCOMPARE(save_error(BUILTIN), std::string("was saved"));
        QCOMPARE(custom_names(*m_mgr), NAMES{BUILTIN});
        QVERIFY(m_mgr->find_flash(BUILTIN, true)->is_user_defined());

        look_at(BUILTIN);
        QCOMPARE(device_error(lower), std::string());
        for (const std::string& name : {lower, std::string("Mine")}) {
            QVERIFY(remove(custom_names(*m_mgr).front()));
            QCOMPARE(save_error(name), std::string("was saved"));
            QCOMPARE(custom_names(*m_mgr), NAMES{name});
        }
    }

    void the_log_quotes_a_translated_problem_in_english()
    {
        const MARKING_TRANSLATOR translator("gfpdb");
        expect_message("There is no record to save.");
        QVERIFY(!m_mgr->save_flash(nullptr, m_place->db_dir()));
        QCOMPARE(m_mgr->get_last_error(), std::string("[There is no record to save.]"));
    }

    void a_device_with_the_name_of_a_builtin_part_comes_back()
    {
        save_with_builtin_name();
        QVERIFY(remove(BUILTIN));
        expect_message("There is no record to save.");
        QVERIFY(!m_mgr->save_flash(nullptr, m_place->db_dir()));
        QCOMPARE(custom_names(*m_mgr), NAMES{BUILTIN});

        QVERIFY(remove(BUILTIN));
        QVERIFY(m_mgr->restore_flash(2, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));
        QCOMPARE(custom_names(*m_mgr), NAMES{BUILTIN});
    }

    void only_a_new_device_cannot_have_the_name_of_a_builtin_part()
    {
        const std::string error = "There is a built-in device called \"" + BUILTIN + "\": choose another name.";
        save("Mine");
        look_at("Mine");
        QCOMPARE(device_error(BUILTIN), error);
        QVERIFY(remove("Mine"));
        QCOMPARE(save_error(BUILTIN), error);
        QCOMPARE(custom_names(*m_mgr), NAMES{"Mine"});

        save_with_builtin_name();
        QCOMPARE(device_error(BUILTIN), "There is a device called \"" + BUILTIN +
                                            "\" for this family and configuration mode: choose another name.");
        m_mgr->set_device_family(OTHER_FAMILY);
        QCOMPARE(device_error(BUILTIN), error);
        QCOMPARE(save_error(BUILTIN), error);
    }

    void builtin_names_leave_out_those_of_custom_devices()
    {
        const auto count_builtin = [this](int family, int scheme) {
            NAMES names;
            m_mgr->get_builtin_flash_names(names, family, scheme, 0);
            return std::make_pair(names.size(), std::count(names.begin(), names.end(), BUILTIN));
        };
        const std::size_t all = count_builtin(FAMILY, ACTIVE_SERIAL).first;
        save_with_builtin_name();

        QCOMPARE(count_builtin(FAMILY, ACTIVE_SERIAL), std::make_pair(all - 1, std::ptrdiff_t(0)));
        QCOMPARE(count_builtin(FAMILY, QUAD), std::make_pair(all, std::ptrdiff_t(1)));
        QCOMPARE(count_builtin(OTHER_FAMILY, ACTIVE_SERIAL), std::make_pair(all, std::ptrdiff_t(1)));
        QVERIFY(remove(BUILTIN));
        QCOMPARE(count_builtin(FAMILY, ACTIVE_SERIAL), std::make_pair(all, std::ptrdiff_t(1)));
    }

    void a_device_that_no_one_could_read_is_neither_deleted_nor_replaced()
    {
        save("A");
        break_flows();
        expect_message(flows_error());
        QVERIFY(m_mgr->find_flash("A", true) == nullptr);

        for (const char* name : {"A", "a"}) {
            expect_message(unread_error(name));
            QVERIFY(!remove(name));
            QCOMPARE(m_mgr->get_last_error(), unread_error(name));
        }
        expect_message(unread_error("A"));
        QCOMPARE(save_error("A"), unread_error("A"));
        QCOMPARE(run_sql(m_place->db_file(), "SELECT revision FROM device").toString(), QStringLiteral("broken"));

        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
        QCOMPARE(history_size(), 0);
        QVERIFY(remove("B"));
        m_mgr->set_device_family(OTHER_FAMILY);
        QVERIFY(remove("A"));
        m_mgr->set_device_family(FAMILY);
        make_dir(m_place->path("other/"));
        QVERIFY(m_mgr->delete_flash("A", m_place->path("other/")));
        m_mgr = fresh_manager();
        expect_message(unread_error("A"));
        QVERIFY(!remove("A"));
    }

    void what_is_stored_is_not_listed_without_the_devices()
    {
        write_file(m_place->settings(), "[database]\nbusy_timeout=0\n");
        make_database();
        GFPDB_DATABASE database(m_place->db_dir());
        QCOMPARE(database.find_stored({}).size(), std::size_t(3));

        // The lock goes as soon as it was met: the templates can be read again.
        s_lock = std::make_unique<FOREIGN_LOCK>(m_place->db_file());
        const QtMessageHandler handler =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { s_lock.reset(); });
        const std::size_t found = database.find_stored({}).size();
        qInstallMessageHandler(handler);

        QVERIFY(s_lock == nullptr);
        QCOMPARE(found, std::size_t(0));
        QVERIFY(!database.get_last_error().empty());
    }

    void a_device_is_deleted_once_it_was_read()
    {
        save("A");
        break_flows();
        expect_message(flows_error());
        QVERIFY(m_mgr->find_flash("A", true) == nullptr);
        run_sql(m_place->db_file(), "UPDATE device SET single_flows = '', revision = 'whole'");

        QVERIFY(m_mgr->find_flash("a", true) != nullptr);

        QVERIFY(remove("A"));
        QCOMPARE(custom_names(*m_mgr), NAMES());
    }

    void a_device_that_was_not_read_for_a_lock_is_not_deleted()
    {
        write_file(m_place->settings(), "[database]\nbusy_timeout=0\n");
        m_mgr = fresh_manager();
        save("A");
        {
            const FOREIGN_LOCK lock(m_place->db_file());
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("is locked by another program")));
            QVERIFY(m_mgr->find_flash("A", true) == nullptr);
        }
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(
                                               "\\AThe device \"A\" is neither deleted nor replaced.*is locked by")));
        QVERIFY(!remove("A"));

        QVERIFY(m_mgr->find_flash("A", true) != nullptr);
        QVERIFY(remove("A"));
    }

    void a_device_that_no_one_could_read_and_that_is_gone_is_forgotten()
    {
        write_file(m_place->settings(), "[database]\nbusy_timeout=0\n");
        m_mgr = fresh_manager();
        save("A");
        break_flows();
        expect_message(flows_error());
        QVERIFY(m_mgr->find_flash("A", true) == nullptr);
        run_sql(m_place->db_file(), "DELETE FROM device");

        {
            const FOREIGN_LOCK lock(m_place->db_file());
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("is locked by another program")));
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("\\AThe device \"A\" is neither")));
            QVERIFY(!remove("A"));
        }
        QCOMPARE(save_error("A"), std::string("was saved"));
        QVERIFY(remove("A"));
    }

private:
    static inline std::unique_ptr<FOREIGN_LOCK> s_lock;

    void look_at(const std::string& name) { QVERIFY(!m_mgr->is_hidden_flash(name, false)); }
    std::string device_error(const std::string& name) const { return checked(*m_mgr, GFPDB_FLASH_NAME, name); }
    std::string template_error(const std::string& name) const
    {
        return checked(*m_mgr, GFPDB_FLASH_TEMPLATE_NAME, name);
    }
    bool remove(const std::string& name) { return m_mgr->delete_flash(name, m_place->db_dir()); }
    // A custom device of a name that the catalogue had not yet when it was saved.
    void save_with_builtin_name()
    {
        save("Before");
        run_sql(m_place->db_file(), "UPDATE device SET name = '" + BUILTIN + "', name_key = lower('" + BUILTIN +
                                        "') WHERE name = 'Before'");
    }

    void break_flows() const
    {
        run_sql(m_place->db_file(), "UPDATE device SET single_flows = '{', revision = 'broken'");
    }

    std::string flows_error() const { return "The flows of \"A\" in " + m_place->db_dir() + " cannot be read."; }

    std::string unread_error(const std::string& name) const
    {
        return "The device \"" + name +
               "\" is neither deleted nor replaced, because it could not be read when it was last " +
               "looked for: " + flows_error();
    }
};

EITHER_STORE_TEST_MAIN(TEST_MANAGER_NAMES)

#include "test_manager_names.moc"
