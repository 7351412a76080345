// SPDX-License-Identifier: MIT

// Saving many records at once, as an import does.
#include "store/gfpdb_store.h"
#include "test_rows.h"

// The constants of the tests have names that enumerators of the library have as well.
#include "cli_test.h"

namespace {

GFPDB_ROW device(const std::string& name, int family = FAMILY)
{
    GFPDB_ROW row = make_row(name);
    row.family = family;
    return row;
}

GFPDB_ROW copy_as_template(const std::string& template_name)
{
    GFPDB_ROW row = make_row("origin");
    row.template_name = template_name;
    return row;
}

NAMES names_of(const std::vector<GFPDB_ROW>& rows)
{
    NAMES names;
    for (const GFPDB_ROW& row : rows)
        names.push_back(row.name);
    return names;
}

bool no_progress(int)
{
    return true;
}

} // namespace

class TEST_CLI_BULK : public QObject
{
    Q_OBJECT

private slots:
    void all_records_are_stored_as_they_are()
    {
        const GFPDB_PLACE place;
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        GFPDB_ROW with_template_name = device("A");
        with_template_name.template_name = "no such template";

        QVERIFY(store->save_all({with_template_name, device("B")}, {copy_as_template("T")}, no_progress));

        QCOMPARE(text_of(store->find_device(FAMILY, ACTIVE_SERIAL, "A").value()), text_of(with_template_name));
        QCOMPARE(text_of(store->find_template("T").value()), text_of(copy_as_template("T")));
        QCOMPARE(store->get_template_names(), NAMES{"T"});
        QVERIFY(store->get_history().empty());
    }

    void what_has_the_name_is_replaced()
    {
        const GFPDB_PLACE place;
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        QVERIFY(store->save_all({device("A")}, {copy_as_template("T")}, no_progress));
        GFPDB_ROW other = device("a");
        other.density = "8Mb";
        GFPDB_ROW other_template = copy_as_template("t");
        other_template.density = "8Mb";

        QVERIFY(store->save_all({other}, {other_template}, no_progress));

        QCOMPARE(store->find_device(FAMILY, ACTIVE_SERIAL, "A")->density, std::string("8Mb"));
        QCOMPARE(store->find_template("T")->density, std::string("8Mb"));
        const std::vector<GFPDB_HISTORY_ENTRY> history = store->get_history();
        QCOMPARE(history.size(), std::size_t(2));
        QCOMPARE(history[0].reason, std::string("replaced"));
        QCOMPARE(history[0].row.density, std::string("256Mb"));
        QVERIFY(history[1].is_template);
    }

    void one_record_that_is_refused_leaves_all_out_data()
    {
        rows<QByteArray, QByteArray, QByteArray>(
            {{"device like a stored template", "OLD template", "New template",
              QByteArray("A stored template called \"Old template\" already exists. Upper and lower case count as "
                         "the same.")},
             {"template like a stored device", "New", "OLD device",
              "A device called \"Old device\" already exists. Upper and lower case count as the same."},
             {"device and template alike", "New", "nEW",
              "A device called \"New\" already exists. Upper and lower case count as the same."}});
    }

    void one_record_that_is_refused_leaves_all_out()
    {
        const GFPDB_PLACE place;
        const auto [device_name, template_name, error] = row<QByteArray, QByteArray, QByteArray>();
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        QVERIFY(store->save_all({device("Old device")}, {copy_as_template("Old template")}, no_progress));

        QVERIFY(!store->save_all({device("First"), device("Old device"), device(device_name.toStdString())},
                                 {copy_as_template(template_name.toStdString())}, no_progress));

        QCOMPARE(QByteArray::fromStdString(store->get_last_error()), error);
        QCOMPARE(names_of(store->get_devices()), NAMES{"Old device"});
        QCOMPARE(store->get_template_names(), NAMES{"Old template"});
        QVERIFY(store->get_history().empty());
    }

    void rows_of_all_places_are_listed_in_order()
    {
        const GFPDB_PLACE place;
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        GFPDB_ROW quad = device("a");
        quad.scheme = QUAD;
        QVERIFY(store->save_all({device("c", OTHER_FAMILY), quad, device("B"), device("a")},
                                {copy_as_template("z"), copy_as_template("Y")}, no_progress));

        const std::vector<GFPDB_ROW> devices = store->get_devices();
        const std::vector<GFPDB_ROW> templates = store->get_templates();

        QCOMPARE(names_of(devices), (NAMES{"a", "B", "a", "c"}));
        QCOMPARE(devices[2].scheme, QUAD);
        QCOMPARE(devices[3].family, OTHER_FAMILY);
        QCOMPARE(devices[0].device_id, std::string("0xC2 0x20 0x19"));
        QCOMPARE(templates[0].template_name, std::string("Y"));
        QCOMPARE(templates[1].template_name, std::string("z"));
        QVERIFY(devices[0].single_flows.empty() && templates[0].quad_flows.empty());
    }

    void nothing_is_listed_of_a_database_that_is_not_there()
    {
        const GFPDB_PLACE place;
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        QVERIFY(store->get_devices().empty());
        QVERIFY(store->get_templates().empty());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("does not exist"));
        const std::unique_ptr<GFPDB_STORE> missing = gfpdb_make_store(place.path("missing/"));
        QVERIFY(missing->get_devices().empty());
        QVERIFY(!missing->save_all({device("A")}, {}, no_progress));
        QVERIFY(!missing->get_last_error().empty());
    }

    void the_progress_counts_every_record()
    {
        const GFPDB_PLACE place;
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        std::vector<int> heard;
        QVERIFY(store->save_all({device("A"), device("B")}, {copy_as_template("T")}, [&heard](int done) {
            heard.push_back(done);
            return true;
        }));
        QCOMPARE(heard, (std::vector<int>{1, 2, 3}));
    }

    void nothing_is_stored_of_what_is_cancelled_data() { rows<int>({{"in the devices", 2}, {"in the templates", 3}}); }

    void nothing_is_stored_of_what_is_cancelled()
    {
        const auto last = row<int>();
        const GFPDB_PLACE place;
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        QVERIFY(store->save_all({device("A", OTHER_FAMILY)}, {}, no_progress));
        QVERIFY(!store->save_all({device("A", OTHER_FAMILY), device("B")}, {copy_as_template("T")},
                                 [last](int done) { return done < last; }));
        QCOMPARE(store->get_last_error(), std::string("The import was cancelled."));
        QCOMPARE(names_of(store->get_devices()), NAMES{"A"});
        QVERIFY(store->get_history().empty());
        QVERIFY(store->save_all({device("B")}, {}, no_progress));
    }

    // As a window does that shows something else in the middle of an import.
    void nothing_is_stored_of_what_is_cancelled_after_a_look()
    {
        const GFPDB_PLACE place;
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(place.db_dir());
        QVERIFY(store->save_all({device("A", OTHER_FAMILY)}, {}, no_progress));
        QVERIFY(!store->save_all({device("B"), device("C"), device("D")}, {}, [&store](int done) {
            if (done == 1) {
                store->reload();
                store->is_read_only();
                store->get_devices();
            }
            return done < 3;
        }));
        QCOMPARE(names_of(store->get_devices()), NAMES{"A"});
        QVERIFY(store->save_all({device("B")}, {}, no_progress));
    }
};

EITHER_STORE_TEST_MAIN(TEST_CLI_BULK)

#include "test_cli_bulk.moc"
