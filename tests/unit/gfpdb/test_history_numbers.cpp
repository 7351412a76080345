// SPDX-License-Identifier: MIT

// The numbers by which users name states of the history: none stands for another state later.
#include "gfpdb_test.h"
#include "store/gfpdb_store.h"
#include "test_rows.h"

#include <limits>

namespace {

using IDS = QVector<qlonglong>;

} // namespace

class TEST_HISTORY_NUMBERS : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void a_new_history_begins_with_one()
    {
        add_state();
        add_state();
        add_template_state();

        QCOMPARE(ids(), (IDS{1, 2, 3}));
    }

    void a_pruned_number_is_not_given_again_data()
    {
        rows<int, int, IDS>(
            {{"the newest", 3, 3, IDS{1, 2, 4, 5}}, {"the oldest", 1, 1, IDS{2, 3, 4, 5}}, {"all", 1, 3, IDS{4, 5}}});
    }

    void a_pruned_number_is_not_given_again()
    {
        const auto [from, to, left] = row<int, int, IDS>();
        for (int i = 0; i < 3; ++i)
            add_state();

        prune(from, to);
        // Another program goes on.
        m_store = gfpdb_make_store(m_place->db_dir());
        add_state();
        add_template_state();
        QCOMPARE(ids(), left);

        // What was removed before is not forgotten when lower numbers, or none, are removed.
        prune(4, 5);
        const IDS lower = ids();
        if (!lower.isEmpty())
            prune(lower.first(), lower.first());
        add_state();
        QCOMPARE(ids().last(), 6);
    }

    // As when a dialog saves a device that was not changed: a list of the history that was made before shows the
    // number.
    void a_taken_record_that_came_back_unchanged_leaves_its_number_unused()
    {
        const GFPDB_ROW row = make_row("A");
        add_state("B");
        QVERIFY(m_store->save_device(row));
        std::optional<GFPDB_TAKEN> taken;
        QVERIFY(m_store->remove_device(FAMILY, ACTIVE_SERIAL, "A", &taken));
        QCOMPARE(ids(), (IDS{1, 2}));

        QVERIFY(m_store->save_device(row, &*taken));
        QCOMPARE(ids(), IDS{1});
        add_state("B");

        QCOMPARE(ids(), (IDS{1, 3}));
        QVERIFY(!m_store->find_history(2));
    }

    void nothing_is_noted_before_a_state_is_removed()
    {
        add_state();
        add_state();

        QCOMPARE(noted(), QStringLiteral("none"));

        prune(1, 1);
        QCOMPARE(noted(), QStringLiteral("2"));
    }

    void a_number_in_meta_that_is_none_counts_as_nothing_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("next");
        for (const char* value : {"", "many", "-7", "0", "1"})
            QTest::newRow(value) << QString::fromLatin1(value) << 2;
        QTest::newRow("9") << QStringLiteral("9") << 10;
    }

    void a_number_in_meta_that_is_none_counts_as_nothing()
    {
        QFETCH(QString, value);
        QFETCH(int, next);
        add_state();
        run_sql(m_place->db_file(),
                "INSERT INTO meta (name, value) VALUES ('last_state', '" + value.toStdString() + "')");

        add_state();

        QCOMPARE(ids(), (IDS{1, next}));
    }

    void after_the_highest_of_all_numbers_any_free_one_is_given()
    {
        constexpr qlonglong HIGHEST = std::numeric_limits<qlonglong>::max();
        add_state();
        run_sql(m_place->db_file(), "UPDATE history SET id = " + std::to_string(HIGHEST));

        add_state();
        QCOMPARE(ids().size(), 2);
        QCOMPARE(ids().last(), HIGHEST);

        prune(HIGHEST, HIGHEST);
        add_state();
        QCOMPARE(ids().size(), 2);
        QCOMPARE(noted(), QString::number(HIGHEST));
    }

private:
    void set_up() override { m_store = gfpdb_make_store(m_place->db_dir()); }
    void take_down() override { m_store.reset(); }

    // Adds a state of the device `name` to the history.
    void add_state(const std::string& name = "A")
    {
        QVERIFY(m_store->save_device(make_row(name)));
        QVERIFY(m_store->remove_device(FAMILY, ACTIVE_SERIAL, name));
    }

    void add_template_state()
    {
        GFPDB_ROW row = make_row("B");
        row.template_name = "T";
        QVERIFY(m_store->save_device(row));
        QVERIFY(m_store->remove_template("T"));
    }

    void prune(qlonglong from, qlonglong to)
    {
        GFPDB_PRUNING pruning;
        pruning.is_selected = [=](const GFPDB_HISTORY_ENTRY& entry) { return entry.id >= from && entry.id <= to; };
        pruning.last_of_deleted = true;
        QCOMPARE(m_store->prune_history(pruning).value_or(-1), int(to - from + 1));
    }

    IDS ids()
    {
        IDS ids;
        for (const GFPDB_HISTORY_ENTRY& entry : m_store->get_history())
            ids += entry.id;
        return ids;
    }

    QString noted() { return run_sql(m_place->db_file(), NOTED).toString(); }

    static constexpr char NOTED[] = "SELECT coalesce((SELECT value FROM meta WHERE name = 'last_state'), 'none')";

    std::unique_ptr<GFPDB_STORE> m_store;
};

EITHER_STORE_TEST_MAIN(TEST_HISTORY_NUMBERS)

#include "test_history_numbers.moc"
