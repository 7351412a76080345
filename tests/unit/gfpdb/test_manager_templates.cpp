// SPDX-License-Identifier: MIT

// The manager: stored templates, and bringing back what was replaced, deleted or removed.
#include "catalogue/gfpdb_flow_templates.h"
#include "manager_test.h"
#include "test_rows.h"

class TEST_MANAGER_TEMPLATES : public MANAGER_TEST
{
    Q_OBJECT

private slots:
    void a_device_with_a_template_name_is_stored_as_template_too()
    {
        const GFPDB_FLASH* saved = save("A", "My template");

        m_mgr = fresh_manager();
        const GFPDB_FLASH* device = m_mgr->find_flash("A", true);
        const GFPDB_FLASH* stored = m_mgr->find_flash("my TEMPLATE", true);
        QVERIFY(device != nullptr);
        QVERIFY(stored != nullptr);
        QCOMPARE(text_of(*device), text_of(*saved));
        QCOMPARE(text_of(*stored), text_of(*saved));
        QVERIFY(!device->is_template());
        QVERIFY(stored->is_template());
        QVERIFY(stored->is_user_defined());
        QCOMPARE(stored->get_name(), std::string("A"));
        QCOMPARE(stored->get_string_property(GFPDB_FLASH_TEMPLATE_NAME), std::string("My template"));
        QVERIFY(m_mgr->is_template("my TEMPLATE"));
        QVERIFY(!m_mgr->is_template("A"));
        QVERIFY(!m_mgr->is_custom_flash("My template"));
        QCOMPARE(user_templates(*m_mgr), NAMES{"My template"});
    }

    void a_template_outlives_its_device_and_does_not_follow_it()
    {
        const std::string before = text_of_flows(save("A", "T")->get_operations(QUAD_IO));
        GFPDB_FLASH* record = make_device(*m_mgr, "A");
        fill_flows(*m_mgr, *record, "other flows");
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        QVERIFY(m_mgr->save_flash(record, m_place->db_dir()));
        QCOMPARE(text_of_flows(m_mgr->get_template_operations("T", QUAD_IO)), before);

        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        m_mgr = fresh_manager();
        QCOMPARE(text_of_flows(m_mgr->get_template_operations("T", QUAD_IO)), before);
        QCOMPARE(user_templates(*m_mgr), NAMES{"T"});
    }

    void templates_serve_all_families_and_schemes()
    {
        save("A", "T");

        m_mgr = fresh_manager(OTHER_FAMILY, QUAD);
        QCOMPARE(user_templates(*m_mgr), NAMES{"T"});
        QVERIFY(m_mgr->find_flash("T", true) != nullptr);
        QVERIFY(m_mgr->get_template_operations("T", SINGLE_IO) != nullptr);
        QCOMPARE(m_mgr->find_flash("T", true)->get_device_family(), FAMILY);
    }

    void a_template_can_be_stored_again_by_its_own_device_only()
    {
        save("A", "T");
        GFPDB_FLASH* again = make_device(*m_mgr, "a");
        again->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, "t");
        QVERIFY(m_mgr->save_flash(again, m_place->db_dir()));

        QCOMPARE(user_templates(*m_mgr), NAMES{"t"});
        QCOMPARE(run_sql(m_place->db_file(), "SELECT count(*) FROM history WHERE is_template = 1").toInt(), 1);
        QCOMPARE(run_sql(m_place->db_file(), "SELECT count(*) FROM history WHERE is_template = 0").toInt(), 1);
        QCOMPARE(save_error("B", "T"),
                 std::string("A stored template called \"t\" already exists. Upper and lower case count as the same."));
    }

    void a_removed_template_is_in_the_history_and_can_be_restored()
    {
        const std::string before = text_of(*save("A", "T"));
        QVERIFY(m_mgr->remove_template("t"));
        QCOMPARE(user_templates(*m_mgr), NAMES());
        QVERIFY(m_mgr->find_flash("T", true) == nullptr);
        QVERIFY(m_mgr->find_flash("A", true) != nullptr);

        QVERIFY(m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));
        QCOMPARE(user_templates(*m_mgr), NAMES{"T"});
        QCOMPARE(text_of(*m_mgr->find_flash("T", true)), before);
        QVERIFY(m_mgr->find_flash("T", true)->is_template());
    }

    void builtin_templates_cannot_be_removed()
    {
        const std::string name = gfpdb_builtin_template_names()[0];

        QVERIFY(!m_mgr->remove_template(name));
        QCOMPARE(m_mgr->get_last_error(), "The template \"" + name + "\" is built in: it cannot be removed.");
        QVERIFY(m_mgr->is_template(name));
    }

    void a_device_and_its_template_have_different_names()
    {
        QCOMPARE(save_error("A", "a"),
                 std::string("The device and its template need different names: both are called \"A\"."));
        QCOMPARE(custom_names(*m_mgr), NAMES());
        QCOMPARE(user_templates(*m_mgr), NAMES());
    }

    void template_lists_begin_with_the_five_builtin_ones()
    {
        NAMES all = {"was here before"};
        NAMES expected = gfpdb_builtin_template_names();
        QCOMPARE(expected.size(), std::size_t(5));
        QCOMPARE(&m_mgr->get_template_list(all), &all);
        QCOMPARE(all, expected);
        QCOMPARE(user_templates(*m_mgr), NAMES());

        save("X", "b");
        save("Y", "C");
        save("Z", "a1");
        QCOMPARE(user_templates(*m_mgr), (NAMES{"a1", "b", "C"}));
        for (const char* name : {"a1", "b", "C"})
            expected.push_back(name);
        QCOMPARE(m_mgr->get_template_list(all), expected);
    }

    void template_operations_by_name_and_by_index()
    {
        const GFPDB_FLASH* saved = save("A", "T");

        for (const bool variant : {SINGLE_IO, QUAD_IO}) {
            for (int index = 0; index < 5; ++index) {
                const auto* operations = m_mgr->get_builtin_template_operations(index, variant);
                QVERIFY(operations != nullptr);
                QCOMPARE(operations, gfpdb_builtin_template_operations(index, variant));
                QCOMPARE(m_mgr->get_template_operations(gfpdb_builtin_template_names()[std::size_t(index)], variant),
                         operations);
            }
            QVERIFY(m_mgr->get_builtin_template_operations(-1, variant) == nullptr);
            QVERIFY(m_mgr->get_builtin_template_operations(5, variant) == nullptr);
            QCOMPARE(text_of_flows(m_mgr->get_template_operations("T", variant)),
                     text_of_flows(saved->get_operations(variant)));
            QVERIFY(m_mgr->get_template_operations("A", variant) == nullptr);
            QVERIFY(m_mgr->get_template_operations("", variant) == nullptr);
        }
    }

    void restoring_brings_back_everything()
    {
        const GFPDB_FLASH* saved = save("A", "T");
        const std::string before = text_of(*saved);
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        m_mgr->set_device_family(OTHER_FAMILY);
        QVERIFY(m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));

        QVERIFY(m_mgr->find_flash("A", true) == nullptr);
        m_mgr->set_device_family(FAMILY);
        const GFPDB_FLASH* restored = m_mgr->find_flash("A", true);
        QVERIFY(restored != nullptr);
        QCOMPARE(text_of(*restored), before);
        QVERIFY(restored->get_revision() != saved->get_revision());
        QVERIFY(!restored->get_revision().empty());
        QCOMPARE(history_size(), 1);
        QCOMPARE(m_mgr->get_last_error(), std::string());
    }

    void restoring_is_refused_while_the_name_is_taken_data()
    {
        const QString a_device =
            QStringLiteral("A device called \"%1\" already exists. Upper and lower case count as the same.");
        const QString a_template =
            QStringLiteral("A stored template called \"%1\" already exists. Upper and lower case count as the same.");
        rows<bool, QString, QString, QString>(
            {{"device by device", false, "a", QString(), a_device.arg(QLatin1String("a"))},
             {"device by template", false, "X", "a", a_template.arg(QLatin1String("a"))},
             {"template by device", true, "t", QString(), a_device.arg(QLatin1String("t"))},
             {"template by template", true, "X", "t", a_template.arg(QLatin1String("t"))}});
    }

    void restoring_is_refused_while_the_name_is_taken()
    {
        const auto [is_template, device, template_name, error] = row<bool, QString, QString, QString>();
        save("A", "T");
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        QVERIFY(m_mgr->remove_template("T"));
        save(device.toStdString(), template_name.toStdString());

        QVERIFY(!m_mgr->restore_flash(is_template ? 2 : 1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));
        QCOMPARE(m_mgr->get_last_error(), error.toStdString());
        QCOMPARE(custom_names(*m_mgr), NAMES{device.toStdString()});
    }

    void restoring_what_is_not_in_the_history_fails()
    {
        QVERIFY(!m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));
        QCOMPARE(m_mgr->get_last_error(), std::string("There is no state 1 in the history."));
        save("A");
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        QVERIFY(!m_mgr->restore_flash(2, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));
        QVERIFY(!m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_REPLACE, BUILTIN));
        QCOMPARE(m_mgr->get_last_error(),
                 "There is a built-in device called \"" + BUILTIN + "\": choose another name.");
        QCOMPARE(custom_names(*m_mgr), NAMES());
    }
};

EITHER_STORE_TEST_MAIN(TEST_MANAGER_TEMPLATES)

#include "test_manager_templates.moc"
