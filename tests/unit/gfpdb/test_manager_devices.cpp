// SPDX-License-Identifier: MIT

// The manager: what becomes of the devices that are saved, replaced and deleted.
#include "catalogue/gfpdb_flow_templates.h"
#include "gfpdb/gfpdb_helper.h"
#include "manager_test.h"
#include "test_rows.h"

#include <malloc.h>

#include <functional>

class TEST_MANAGER_DEVICES : public MANAGER_TEST
{
    Q_OBJECT

private slots:
    void a_saved_device_is_found_again()
    {
        const GFPDB_FLASH* saved = save("My flash");

        m_mgr = fresh_manager();
        const GFPDB_FLASH* found = m_mgr->find_flash("My flash", true);
        QVERIFY(found != nullptr);
        QVERIFY(found != saved);
        QCOMPARE(text_of(*found), text_of(*saved));
        QVERIFY(found->is_user_defined());
        QVERIFY(!found->is_template());
        QCOMPARE(found->get_db_dir(), m_place->db_dir());
        QCOMPARE(found->get_device_family(), FAMILY);
        QCOMPARE(found->get_config_scheme(), ACTIVE_SERIAL);
        QCOMPARE(found->get_revision(), saved->get_revision());
        QVERIFY(!found->get_revision().empty());
        QCOMPARE(saved->get_device_family(), FAMILY);
        QCOMPARE(saved->get_config_scheme(), ACTIVE_SERIAL);
        QCOMPARE(saved->get_db_dir(), m_place->db_dir());
        QCOMPARE(m_mgr->find_flash("my FLASH", true), found);
        QVERIFY(m_mgr->is_custom_flash("my FLASH"));
        QVERIFY(m_mgr->is_flow_editable(found));
        QVERIFY(m_mgr->find_flash("My flas", true) == nullptr);
        QCOMPARE(m_mgr->get_last_error(), std::string());
    }

    void a_created_device_is_known_to_no_one()
    {
        QVERIFY(m_mgr->create_flash("") == nullptr);
        const GFPDB_FLASH* record = m_mgr->create_flash("A");

        QVERIFY(record != nullptr);
        QCOMPARE(record->get_name(), std::string("A"));
        QCOMPARE(record->get_device_family(), 0);
        QCOMPARE(record->get_config_scheme(), -1);
        QCOMPARE(record->get_revision(), std::string());
        QVERIFY(!record->is_user_defined());
        QVERIFY(m_mgr->create_flash("A") != record);
        QVERIFY(m_mgr->find_flash("A", true) == nullptr);
        QCOMPARE(custom_names(*m_mgr), NAMES());
        QVERIFY(!QFile::exists(QString::fromStdString(m_place->db_file())));
    }

    void a_device_belongs_to_the_family_and_scheme_it_was_saved_for()
    {
        save("A");
        m_mgr->set_config_scheme(QUAD);
        QVERIFY(m_mgr->find_flash("A", true) == nullptr);
        QVERIFY(!m_mgr->is_custom_flash("A"));
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "A"), std::string());
        save("A");
        save("B");
        m_mgr->set_device_family(OTHER_FAMILY);
        save("C");
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));

        QCOMPARE(custom_names(*m_mgr, FAMILY, ACTIVE_SERIAL), NAMES{"A"});
        QCOMPARE(custom_names(*m_mgr, FAMILY, QUAD), (NAMES{"A", "B"}));
        QCOMPARE(custom_names(*m_mgr, OTHER_FAMILY, QUAD), NAMES{"C"});
        QCOMPARE(custom_names(*m_mgr, OTHER_FAMILY, ACTIVE_SERIAL), NAMES());
        QCOMPARE(m_mgr->find_flash("C", true)->get_device_family(), OTHER_FAMILY);
        QCOMPARE(m_mgr->find_flash("C", true)->get_config_scheme(), QUAD);
    }

    void custom_names_come_in_the_order_of_the_alphabet()
    {
        for (const char* name : {"b", "C", "a", "B2", "A1", "_"})
            save(name);

        QCOMPARE(custom_names(*m_mgr), (NAMES{"_", "a", "A1", "b", "B2", "C"}));
    }

    void saving_with_other_case_replaces()
    {
        save("Abc");
        save("ABC");

        QCOMPARE(custom_names(*m_mgr), NAMES{"ABC"});
        QCOMPARE(run_sql(m_place->db_file(), "SELECT name FROM history").toString(), QStringLiteral("Abc"));
        QCOMPARE(run_sql(m_place->db_file(), "SELECT reason FROM history").toString(), QStringLiteral("replaced"));
    }

    void deleting_what_is_not_there_succeeds_and_makes_no_file()
    {
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        QVERIFY(m_mgr->delete_flash("<<new device>>", m_place->db_dir()));
        QVERIFY(m_mgr->remove_template("A"));
        QVERIFY(!QFile::exists(QString::fromStdString(m_place->db_file())));
        save("B");
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        QVERIFY(m_mgr->remove_template("A"));
        QCOMPARE(m_mgr->get_last_error(), std::string());
        QCOMPARE(history_size(), 0);
    }

    void deleting_keeps_the_former_state()
    {
        const std::string before = text_of(*save("A"));
        save("B");

        QVERIFY(m_mgr->delete_flash("a", m_place->db_dir()));
        QCOMPARE(custom_names(*m_mgr), NAMES{"B"});
        QVERIFY(m_mgr->find_flash("A", true) == nullptr);
        QCOMPARE(run_sql(m_place->db_file(), "SELECT reason FROM history").toString(), QStringLiteral("deleted"));

        m_mgr = fresh_manager();
        QVERIFY(m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));
        QCOMPARE(text_of(*m_mgr->find_flash("A", true)), before);
    }

    void a_device_can_be_saved_in_another_directory()
    {
        make_dir(m_place->path("other/"));
        GFPDB_FLASH* record = make_device(*m_mgr, "A");
        QVERIFY(m_mgr->save_flash(record, m_place->path("other//")));
        QCOMPARE(record->get_db_dir(), m_place->path("other/"));
        QCOMPARE(custom_names(*m_mgr), NAMES());

        GFPDB_MGR::set_db_custom_dir(m_place->path("other"));
        GFPDB_HELPER::get_active_flash_manager(false);
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
        QVERIFY(m_mgr->delete_flash("A", std::string()));
        QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "B"), std::string()));
        QCOMPARE(custom_names(*m_mgr), NAMES{"B"});
        QVERIFY(!QFile::exists(QString::fromStdString(m_place->db_file())));
        make_dir(m_place->path("third/"));
        QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir()));
        QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "D"), m_place->path("third/")));
        QCOMPARE(run_sql(m_place->db_file(), "SELECT group_concat(name) FROM device").toString(), QStringLiteral("C"));
        QCOMPARE(run_sql(m_place->path("third/gfpdb.sqlite"), "SELECT group_concat(name) FROM device").toString(),
                 QStringLiteral("D"));
    }

    void a_record_that_is_not_stored_cannot_be_saved_without_a_flash()
    {
        QVERIFY(!m_mgr->save_flash(nullptr, m_place->db_dir()));
        QCOMPARE(m_mgr->get_last_error(), std::string("There is no record to save."));
        m_mgr->set_config_scheme(PGMIO_INTERNAL_CONFIGURATION);
        QCOMPARE(save_error("A"), std::string("The configuration mode has no flash devices."));
        m_mgr->set_config_scheme(PGMIO_SDMMC_X8);
        QCOMPARE(save_error("A"), std::string("was saved"));
        QCOMPARE(m_mgr->get_last_error(), std::string());
    }

    void a_success_clears_the_last_error()
    {
        save("A", "T");
        const std::vector<std::function<bool()>> calls = {
            [&] { return m_mgr->find_flash("A", true) != nullptr; },
            [&] { return m_mgr->find_flash("nowhere", true) == nullptr; },
            [&] { return m_mgr->get_template_operations("T", SINGLE_IO) != nullptr; },
            [&] { return m_mgr->remove_template("T"); },
            [&] { return m_mgr->delete_flash("A", m_place->db_dir()); },
            [&] { return m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()); },
        };
        for (const auto& call : calls) {
            QVERIFY(!m_mgr->save_flash(nullptr, m_place->db_dir()));
            QVERIFY(!m_mgr->get_last_error().empty());
            QVERIFY(call());
            QCOMPARE(m_mgr->get_last_error(), std::string());
        }
    }

    void saving_refuses_names_that_are_taken_data()
    {
        const QString flow = QString::fromStdString(gfpdb_builtin_template_names()[4]);
        const QString first_flow = QString::fromStdString(gfpdb_builtin_template_names()[0]);
        const QString no_flow = QStringLiteral("There is a built-in template called \"%1\": choose another name.");
        const QString case_note = QStringLiteral(" Upper and lower case count as the same.");
        const QString no_part =
            QStringLiteral("There is a built-in device called \"MX25L25645G\": choose another name.") + case_note;
        const QString taken = QStringLiteral("A %1 called \"%2\" already exists.") + case_note;
        const QString template_taken = taken.arg(QStringLiteral("stored template"), QStringLiteral("Template"));
        const QString device_taken = taken.arg(QStringLiteral("device"), QStringLiteral("Device"));
        const QString blank = QStringLiteral("The %1 name \" \" begins or ends with a space: remove it.");
        rows<QString, QString, QString>(
            {{"a built-in device's", "mx25l25645g", "", no_part},
             {"a built-in template's", flow, "", no_flow.arg(flow)},
             {"the first built-in template's", first_flow, "", no_flow.arg(first_flow)},
             {"a stored template's", "TEMPLATE", "", template_taken},
             {"a blank", " ", "", blank.arg(QStringLiteral("device"))},
             {"the new device's", "<<New device>>", "",
              "The device name \"<<New device>>\" is reserved for a new device: choose another."},
             {"template: a built-in device's", "fine", "mx25l25645g", no_part},
             {"template: a built-in template's", "fine", flow, no_flow.arg(flow)},
             {"template: a device's", "fine", "dEVICE", device_taken},
             {"template: another device's template", "fine", "TEMPLATE", template_taken},
             {"template: a blank", "fine", " ", blank.arg(QStringLiteral("template"))}});
    }

    void saving_refuses_names_that_are_taken()
    {
        const auto [name, template_name, error] = row<QString, QString, QString>();
        save("Device");
        save("Source", "Template");
        m_mgr->set_device_family(OTHER_FAMILY);

        QCOMPARE(save_error(name.toStdString(), template_name.toStdString()), error.toStdString());
        QCOMPARE(custom_names(*m_mgr, OTHER_FAMILY), NAMES());
        QCOMPARE(user_templates(*m_mgr), NAMES{"Template"});
        QCOMPARE(history_size(), 0);
    }

    void saving_refuses_text_that_is_not_utf8()
    {
        const std::string latin1 = "\xFC";
        GFPDB_FLASH* record = make_device(*m_mgr, "A");
        for (const GFPDB_FLASH_PROPERTY property :
             {GFPDB_FLASH_DEVICE_ID, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY, GFPDB_FLASH_FLOW_TEMPLATE}) {
            const std::string value = record->get_string_property(property);
            record->set_string_property(property, latin1);
            QVERIFY(!m_mgr->save_flash(record, m_place->db_dir()));
            QCOMPARE(m_mgr->get_last_error(), std::string("The device \"A\" contains text that is not valid UTF-8."));
            record->set_string_property(property, value);
        }
        for (const bool variant : {SINGLE_IO, QUAD_IO}) {
            GFPDB_ACTION* action = record->find_operation(GFPDB_OPERATION_ERASE, variant)->get_actions()->front();
            action->set_property_value(GFPDB_WR_DATA, latin1);
            QVERIFY(!m_mgr->save_flash(record, m_place->db_dir()));
            action->set_property_value(GFPDB_WR_DATA, "none");
        }
        QCOMPARE(custom_names(*m_mgr), NAMES());
        QVERIFY(m_mgr->save_flash(record, m_place->db_dir()));
    }

    void flows_that_cannot_be_read_give_no_record()
    {
        const char* const broken[] = {"{",
                                      "{}",
                                      R"({"operations":[]})",
                                      "[1]",
                                      R"([{"operation":"fly","actions":[]}])",
                                      R"([{"operation":"erase"}])",
                                      R"([{"operation":"erase","actions":{}}])",
                                      R"([{"operation":"erase","actions":[{}]}])",
                                      R"([{"operation":"erase","actions":[{"action":"custom"}]}])",
                                      R"([{"operation":"erase","actions":[]},{"operation":"erase","actions":[]}])"};
        const std::string error = "The flows of \"A\" in " + m_place->db_dir() + " cannot be read.";
        save("A");
        for (const std::string flows : broken) {
            for (const char* column : {"single_flows", "quad_flows"}) {
                run_sql(m_place->db_file(), "UPDATE device SET single_flows = '', quad_flows = ''");
                run_sql(m_place->db_file(),
                        "UPDATE device SET revision = 'x', " + std::string(column) + " = '" + flows + "'");
                QTest::ignoreMessage(QtWarningMsg, error.c_str());
                QVERIFY(m_mgr->find_flash("A", true) == nullptr);
                QCOMPARE(m_mgr->get_last_error(), error);
            }
        }
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
    }

    void a_record_is_the_same_object_until_it_is_saved_again()
    {
        save("A", "T");
        const GFPDB_FLASH* first = m_mgr->find_flash("A", true);
        const GFPDB_FLASH* first_template = m_mgr->find_flash("T", true);
        QCOMPARE(m_mgr->find_flash("A", true), first);
        QCOMPARE(m_mgr->find_flash("T", true), first_template);
        QVERIFY(first != first_template);
        const std::string before = text_of(*first);

        m_mgr->find_flash("A", true);
        GFPDB_FLASH* record = make_device(*m_mgr, "A");
        record->set_density("8Mb");
        QVERIFY(m_mgr->save_flash(record, m_place->db_dir()));
        QVERIFY(m_mgr->find_flash("A", true) != first);
        QVERIFY(m_mgr->find_flash("A", true)->get_revision() != first->get_revision());
        QCOMPARE(m_mgr->find_flash("T", true), first_template);
        QCOMPARE(text_of(*first), before);
    }

    // AddressSanitizer counts nothing in mallinfo2(), but looks at what is used after it was freed.
    void repeated_saves_keep_a_limited_number_of_records_data()
    {
        rows<bool>({{"saved, and read again", true}, {"made, and never saved", false}});
    }

    void repeated_saves_keep_a_limited_number_of_records()
    {
        constexpr int FORMER = 256;
        constexpr int MORE = 100;
        const bool is_saved = row<bool>();
        const GFPDB_FLASH* read = nullptr;
        int count = 0;
        // Flows that take more than the bytes that are allowed for each record; no two records are the same.
        const auto next = [this, is_saved, &read, &count] {
            GFPDB_FLASH* record = make_device(*m_mgr, "A");
            record->set_string_property(GFPDB_FLASH_FLOW_TEMPLATE, std::to_string(++count));
            GFPDB_OPERATION* program = m_mgr->create_operation(GFPDB_OPERATION_PROGRAM);
            for (int i = 0; i < 40; ++i)
                program->add_action(m_mgr->create_action(GFPDB_ACT_WRITE_REGISTER));
            record->set_operation(program, SINGLE_IO);
            const bool done = !is_saved || m_mgr->save_flash(record, m_place->db_dir());
            read = is_saved ? m_mgr->find_flash("A", true) : record;
            return done && read != nullptr ? record : nullptr;
        };
        for (int i = 0; i < FORMER; ++i)
            QVERIFY(next() != nullptr);
        const std::size_t before = ::mallinfo2().uordblks;

        for (int i = 0; i < MORE; ++i)
            QVERIFY(next() != nullptr);

        const std::size_t after = ::mallinfo2().uordblks;
        QVERIFY2(after < before + MORE * 1000, std::to_string((after - before) / MORE).c_str());

        const GFPDB_FLASH* kept = next();
        const GFPDB_FLASH* kept_read = read;
        const std::string text = text_of(*kept);
        for (int i = 1; i < (is_saved ? FORMER / 2 : FORMER); ++i)
            QVERIFY(next() != nullptr);
        QCOMPARE(text_of(*kept), text);
        QCOMPARE(text_of(*kept_read), text);
    }

    void a_record_that_was_changed_in_memory_is_read_again()
    {
        save("A");
        const std::string stored = text_of(*m_mgr->find_flash("A", true));
        const std::vector<std::function<void(GFPDB_FLASH&)>> changes = {
            [](GFPDB_FLASH& record) { record.set_string_property(GFPDB_FLASH_VOLTAGE, "3.3V"); },
            [](GFPDB_FLASH& record) { record.set_int_property(GFPDB_FLASH_TOTAL_DIE, 9); },
            [](GFPDB_FLASH& record) { record.set_name("B"); },
            [](GFPDB_FLASH& record) { record.set_density("1Mb"); },
            [](GFPDB_FLASH& record) { record.set_db_dir("/"); },
            [](GFPDB_FLASH& record) { record.set_user_defined(false); },
            [this](GFPDB_FLASH& record) {
                record.set_operation(m_mgr->create_operation(GFPDB_OPERATION_ERASE), SINGLE_IO);
            },
            [](GFPDB_FLASH& record) { record.clear_operations(); },
        };
        for (const auto& change : changes) {
            change(*m_mgr->find_flash("A", true));

            QCOMPARE(text_of(*m_mgr->find_flash("A", true)), stored);
            QVERIFY(m_mgr->find_flash("A", true)->is_user_defined());
            QCOMPARE(m_mgr->find_flash("A", true)->get_db_dir(), m_place->db_dir());
        }
    }

    void records_outlive_a_reload()
    {
        save("A");
        GFPDB_FLASH* created = make_device(*m_mgr, "B");
        GFPDB_FLASH* found = m_mgr->find_flash("A", true);
        const GFPDB_FLASH* builtin = m_mgr->find_flash(BUILTIN, true);
        const std::string texts[] = {text_of(*created), text_of(*found), text_of(*builtin)};

        m_mgr = fresh_manager();
        QCOMPARE(m_mgr->find_flash("A", true), found);
        make_dir(m_place->path("other/"));
        GFPDB_MGR::set_db_custom_dir(m_place->path("other/"));
        m_mgr = fresh_manager(OTHER_FAMILY, QUAD);

        QCOMPARE(text_of(*created), texts[0]);
        QCOMPARE(text_of(*found), texts[1]);
        QCOMPARE(text_of(*builtin), texts[2]);
        QVERIFY(m_mgr->find_flash("A", true) == nullptr);
        QCOMPARE(m_mgr->find_flash(BUILTIN, true), builtin);
        QVERIFY(m_mgr->save_flash(created, m_place->path("other/")));
    }
};

EITHER_STORE_TEST_MAIN(TEST_MANAGER_DEVICES)

#include "test_manager_devices.moc"
