// SPDX-License-Identifier: MIT

// A large history, a page at a time: what a window shows of it without reading all.
#include "gfpdb_test.h"
#include "store/gfpdb_store.h"
#include "test_rows.h"

namespace {

using IDS = QVector<qlonglong>;

} // namespace

class TEST_HISTORY_PAGES : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void pages_go_from_the_newest_state_to_the_oldest_data()
    {
        using PAGES = QVector<IDS>;
        rows<int, PAGES>({{"one at a time", 1, PAGES{{7}, {6}, {5}, {4}, {3}, {2}, {1}}},
                          {"a rest", 3, PAGES{{7, 6, 5}, {4, 3, 2}, {1}}},
                          {"all at once", 7, PAGES{{7, 6, 5, 4, 3, 2, 1}}},
                          {"more than there are", 8, PAGES{{7, 6, 5, 4, 3, 2, 1}}}});
    }

    void pages_go_from_the_newest_state_to_the_oldest()
    {
        const auto [count, expected] = row<int, QVector<IDS>>();
        make_history();

        QVector<IDS> pages;
        std::optional<std::int64_t> before;
        do {
            const GFPDB_HISTORY_PAGE page = m_store->get_history_page({}, before, count);
            pages.append(ids(page));
            before = page.next;
        } while (before);
        QCOMPARE(pages, expected);
        QCOMPARE(m_store->count_history(), 7);
    }

    void a_page_has_what_the_list_of_all_has()
    {
        make_history();

        const std::vector<GFPDB_HISTORY_ENTRY> all = m_store->get_history();
        const GFPDB_HISTORY_PAGE page = m_store->get_history_page({}, std::nullopt, 7);
        for (std::size_t i = 0; i < all.size(); ++i) {
            const GFPDB_HISTORY_ENTRY& entry = page.entries[all.size() - 1 - i];
            QCOMPARE(entry.id, all[i].id);
            QCOMPARE(entry.is_template, all[i].is_template);
            QCOMPARE(entry.reason, all[i].reason);
            QCOMPARE(entry.changed_at, all[i].changed_at);
            QCOMPARE(entry.changed_by, all[i].changed_by);
            QCOMPARE(entry.row.revision, all[i].row.revision);
            QCOMPARE(text_of(entry.row), text_of(all[i].row));
        }
    }

    // The states of make_history().
    void a_filter_picks_states_data()
    {
        rows<QString, QString, QString, int, IDS>({{"of one name", "b\u00c4R", "", "", BOTH, IDS{6, 3}},
                                                   {"of a name that is only a part", "Al", "", "", BOTH, IDS{}},
                                                   {"by a part of the name", "", "AL", "", BOTH, IDS{7, 5, 4, 1}},
                                                   {"by a sign that patterns have", "", "%", "", BOTH, IDS{7}},
                                                   {"by a part of the user", "", "", "aNN", BOTH, IDS{7, 4, 1}},
                                                   {"by the machine", "", "", "@lab2", BOTH, IDS{5, 2}},
                                                   {"devices", "", "", "", DEVICES, IDS{7, 6, 5, 3, 2, 1}},
                                                   {"templates", "", "", "", TEMPLATES, IDS{4}},
                                                   {"by all of it", "alpha", "ph", "anna", DEVICES, IDS{1}},
                                                   {"by what nothing has", "", "zzz", "", BOTH, IDS{}}});
    }

    void a_filter_picks_states()
    {
        const auto [name, name_part, user_part, kind, expected] = row<QString, QString, QString, int, IDS>();
        make_history();
        GFPDB_HISTORY_FILTER filter;
        filter.name = name.toStdString();
        filter.name_part = name_part.toStdString();
        filter.user_part = user_part.toStdString();
        if (kind != BOTH)
            filter.is_template = kind == TEMPLATES;

        const GFPDB_HISTORY_PAGE page = m_store->get_history_page(filter, std::nullopt, 10);
        QCOMPARE(ids(page), expected);
        QVERIFY(!page.next);
        if (expected.isEmpty())
            return;

        // Page by page the same.
        IDS found;
        for (GFPDB_HISTORY_PAGE part = m_store->get_history_page(filter, std::nullopt, 1);;
             part = m_store->get_history_page(filter, part.next, 1)) {
            found += ids(part);
            if (!part.next)
                break;
        }
        QCOMPARE(found, expected);
    }

    // Each call looks at so many states that a window does not wait.
    void a_search_goes_on_where_it_stopped()
    {
        make_history();
        const std::string columns = "is_template, reason, changed_at, changed_by, name_key, family, scheme, name, "
                                    "device_id, voltage, density, template_name, flow_template, revision, saved_at, "
                                    "single_flows, quad_flows";
        const std::string more_columns = tests_are_on_server() ? columns + ", change_id" : columns;
        QVERIFY(run_sql(m_place->db_file(), "INSERT INTO history (id, " + more_columns +
                                                ") WITH RECURSIVE numbers (n) AS (SELECT 8 UNION ALL SELECT n + 1 FROM "
                                                "numbers WHERE n < " +
                                                std::to_string(GFPDB_STATES_AT_ONCE + 4) + ") SELECT numbers.n, " +
                                                more_columns + " FROM numbers, history WHERE history.id = 2")
                    .isValid());
        GFPDB_HISTORY_FILTER filter;
        filter.name_part = "alph";

        const GFPDB_HISTORY_PAGE first = m_store->get_history_page(filter, std::nullopt, 10);
        QCOMPARE(ids(first), IDS{});
        QCOMPARE(first.next.value_or(0), std::int64_t(5));
        const GFPDB_HISTORY_PAGE second = m_store->get_history_page(filter, first.next, 10);
        QCOMPARE(ids(second), (IDS{4, 1}));
        QVERIFY(!second.next);
    }

    void nothing_is_stored_yet()
    {
        const GFPDB_HISTORY_PAGE page = m_store->get_history_page({}, std::nullopt, 10);
        QVERIFY(page.entries.empty());
        QVERIFY(!page.next);
        QCOMPARE(m_store->count_history(), 0);
        QCOMPARE(m_store->get_last_error(), std::string());
    }

    void a_page_that_cannot_be_read_says_why()
    {
        make_history();
        write_file(m_place->settings(), "[database]\nbusy_timeout=0\n");
        m_store = gfpdb_make_store(m_place->db_dir());
        const FOREIGN_LOCK lock(m_place->db_file());

        const GFPDB_HISTORY_PAGE page = m_store->get_history_page({}, std::nullopt, 10);
        QVERIFY(page.entries.empty());
        QVERIFY(!page.next);
        QVERIFY(!m_store->get_last_error().empty());
        QCOMPARE(m_store->count_history(), 0);
    }

private:
    enum KIND
    {
        BOTH,
        DEVICES,
        TEMPLATES,
    };

    void set_up() override { m_store = gfpdb_make_store(m_place->db_dir()); }
    void take_down() override { m_store.reset(); }

    void add_state(const std::string& name)
    {
        QVERIFY(m_store->save_device(make_row(name)));
        QVERIFY(m_store->remove_device(FAMILY, ACTIVE_SERIAL, name));
    }

    void make_history()
    {
        add_state("Alpha");
        add_state("Other");
        add_state("B\xC3\xA4r");
        GFPDB_ROW row = make_row("Other");
        row.template_name = "Alpha";
        QVERIFY(m_store->save_device(row));
        QVERIFY(m_store->remove_template("Alpha"));
        QVERIFY(m_store->save_device(make_row("Ball")));
        QVERIFY(m_store->remove_device(FAMILY, ACTIVE_SERIAL, "Ball"));
        add_state("B\xC3\xA4r");
        add_state("100% al");
        const char* const users[] = {"anna@lab1", "bert@lab2", "bert@lab1", "Anna@lab1",
                                     "bert@lab2", "carl@lab3", "ANNA@lab3"};
        for (int i = 0; i < 7; ++i)
            QVERIFY(run_sql(m_place->db_file(), std::string("UPDATE history SET changed_by = '") + users[i] +
                                                    "' WHERE id = " + std::to_string(i + 1))
                        .isValid());
    }

    static IDS ids(const GFPDB_HISTORY_PAGE& page)
    {
        IDS ids;
        for (const GFPDB_HISTORY_ENTRY& entry : page.entries)
            ids += entry.id;
        return ids;
    }

    std::unique_ptr<GFPDB_STORE> m_store;
};

EITHER_STORE_TEST_MAIN(TEST_HISTORY_PAGES)

#include "test_history_pages.moc"
