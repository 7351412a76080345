// SPDX-License-Identifier: MIT

// A new device before it is stored, and on its way into the database; without a widget.
#include "gfpdb/gfpdb_database.h"
#include "gfpdb/gfpdb_enums.h"
#include "marking_translator.h"
#include "new_device/device_sources.h"
#include "new_device/device_storage.h"
#include "new_device/new_device_draft.h"
#include "new_device/read_out_file.h"
#include "test_rows.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int FAMILY = 1;
constexpr int OTHER_FAMILY = 2;
const std::vector<std::uint8_t> ID = {0xC2, 0x20, 0x1B};

QString qs(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace

class TEST_NEW_DEVICE_DRAFT : public QObject
{
    Q_OBJECT

private:
    static std::vector<std::uint8_t> read_out(const char* part)
    {
        QString problem;
        const auto bytes = READ_OUT_FILE::load(qs(SFDP_DIRECTORY "/%1.bin").arg(qs(part)), problem);
        return bytes.value_or(std::vector<std::uint8_t>());
    }

    static NEW_DEVICE_DRAFT draft(const std::vector<std::uint8_t>& id = ID)
    {
        return {id, read_out("MX66L1G45G"), FAMILY, PGMIO_ACTIVE_SERIAL};
    }

    static DRAFT_ROW row_of(const NEW_DEVICE_DRAFT& draft, const char* key)
    {
        for (const DRAFT_ROW& row : draft.rows()) {
            if (row.key == qs(key))
                return row;
        }
        return {};
    }

    static std::vector<GFPDB_RECORD> stored() { return GFPDB_DATABASE(GFPDB_MGR::get_db_custom_dir()).find_stored({}); }

    // A device "MINE" of FAMILY.
    static void store_mine()
    {
        NEW_DEVICE_DRAFT mine = draft();
        QString problem;
        mine.set_value(qs("name"), qs("MINE"));
        mine.set_value(qs("voltage"), qs("2.7-3.6V"));
        const auto device = mine.make(problem);
        QVERIFY2(device && store_new_device(*device, problem), qPrintable(problem));
    }

    std::unique_ptr<QTemporaryDir> m_scratch;

private slots:
    void init()
    {
        m_scratch = std::make_unique<QTemporaryDir>();
        GFPDB_MGR::set_db_custom_dir(m_scratch->path().toStdString() + "/");
    }

    void values_come_with_their_sources_and_choices()
    {
        const NEW_DEVICE_DRAFT shown = draft();

        QCOMPARE(shown.origin(), qs("ID C2 20 1B, SFDP 1.6"));
        QCOMPARE(row_of(shown, "density").text, qs("1024Mb"));
        QVERIFY(row_of(shown, "density").source.startsWith(qs("SFDP DW")));
        QVERIFY(row_of(shown, "density").choices.contains(qs("512Mb")));
        QCOMPARE(row_of(shown, "name").text, QString());
        QCOMPARE(shown.first_wrong_row(), 0);
        // Tables and ID disagree.
        QVERIFY(!draft({0xC2, 0x20, 0x19}).warnings().isEmpty());
    }

    // All but the names of double words and commands.
    void titles_and_sources_are_in_the_users_language()
    {
        const MARKING_TRANSLATOR library("gfpdb");
        NEW_DEVICE_DRAFT shown = draft();
        shown.set_value(qs("quad-dummy"), qs("8"));
        QSet<QString> sources;
        for (const DRAFT_ROW& row : shown.rows()) {
            QVERIFY2(row.title.startsWith(QLatin1Char('[')) && row.title.endsWith(QLatin1Char(']')),
                     qPrintable(row.title));
            sources.insert(row.source);
        }
        for (const char* each : {"[from the ID]", "[assumed]", "[entered]"})
            QVERIFY2(sources.contains(qs(each)), each);
        QCOMPARE(row_of(shown, "name").source, QString());
    }

    void what_is_refused_stays_with_its_problem()
    {
        NEW_DEVICE_DRAFT edited = draft();
        edited.set_value(qs("name"), qs("NEW"));
        edited.set_value(qs("voltage"), qs("2.7-3.6V"));
        QString problem;
        QVERIFY2(edited.make(problem), qPrintable(problem));
        QCOMPARE(edited.first_wrong_row(), -1);

        edited.set_value(qs("quad-dummy"), qs("many"));
        edited.set_value(qs("single-dummy"), qs("7"));

        const DRAFT_ROW wrong = row_of(edited, "quad-dummy");
        QCOMPARE(wrong.text, qs("many"));
        QVERIFY(!wrong.problem.isEmpty());
        QCOMPARE(row_of(edited, "single-dummy").source, qs("entered"));
        QVERIFY(!edited.make(problem));
        QCOMPARE(problem, wrong.title + qs(": ") + wrong.problem);
        QCOMPARE(edited.rows()[std::size_t(edited.first_wrong_row())].key, wrong.key);

        edited.set_value(qs("quad-dummy"), qs("8"));
        QVERIFY(row_of(edited, "quad-dummy").problem.isEmpty());
        QVERIFY(edited.make(problem));
    }

    void names_are_those_that_the_database_takes_data()
    {
        rows<QString, int, QString>(
            {{"free", "YOURS", FAMILY, ""},
             {"of another family", "MINE", OTHER_FAMILY, ""},
             {"in use", "MINE", FAMILY,
              "There is a device called \"MINE\" for this family and configuration mode: choose another name."},
             {"in use, in other letters", "mine", FAMILY,
              "There is a device called \"MINE\" for this family and configuration mode: choose another name."},
             {"built in", "MX25L25645G", FAMILY, "MX25L25645G"},
             {"space at its end", "NEW ", FAMILY, "space"}});
    }

    void names_are_those_that_the_database_takes()
    {
        const auto [name, family, problem] = row<QString, int, QString>();
        store_mine();
        NEW_DEVICE_DRAFT edited = draft();

        edited.set_value(qs("name"), name);
        edited.set_place(family, PGMIO_ACTIVE_SERIAL);

        const DRAFT_ROW shown = row_of(edited, "name");
        QCOMPARE(shown.text, name);
        QCOMPARE(shown.problem.isEmpty(), problem.isEmpty());
        QVERIFY2(shown.problem.contains(problem), qPrintable(shown.problem));
    }

    void a_device_is_stored_once_with_both_variants()
    {
        store_mine();
        const std::vector<GFPDB_RECORD> found = stored();
        QCOMPARE(found.size(), std::size_t{1});
        QCOMPARE(choice_of(found[0]).device_name, std::string("MINE"));
        QCOMPARE(found[0].row.family, FAMILY);
        QCOMPARE(found[0].row.scheme, int(PGMIO_ACTIVE_SERIAL));
        const auto whole = GFPDB_DATABASE(GFPDB_MGR::get_db_custom_dir()).load(found[0]);
        QVERIFY(whole && !whole->row.single_flows.empty() && !whole->row.quad_flows.empty());

        QString problem;
        QVERIFY(!store_new_device(*whole, problem));
        QVERIFY2(problem.startsWith(qs("There is a device called \"MINE\"")), qPrintable(problem));
    }

    void listed_parts_are_those_with_the_id()
    {
        NEW_DEVICE_DRAFT edited = draft({});
        QVERIFY(edited.listed_parts().empty());
        QCOMPARE(edited.origin(), qs("SFDP 1.6"));

        edited.set_value(qs("id"), qs("C2 20 1B"));

        QStringList names;
        for (const LISTED_PART& part : edited.listed_parts())
            names.append(part.name);
        QVERIFY(names.contains(qs("MX66L1G45G")));
    }

    void bytes_without_tables_are_told_of()
    {
        const NEW_DEVICE_DRAFT shown(ID, {1, 2, 3, 4, 5, 6, 7, 8}, FAMILY, PGMIO_ACTIVE_SERIAL);
        QVERIFY(!shown.sfdp_problem().isEmpty());
        QCOMPARE(shown.warnings().first(), shown.sfdp_problem());
        QCOMPARE(shown.origin(), qs("ID C2 20 1B"));
    }

    void a_copy_is_made_of_built_in_and_own_devices()
    {
        store_mine();
        const DEVICE_SOURCES sources;
        GFPDB_ROW place;
        place.name = "COPY";
        place.family = OTHER_FAMILY;
        place.scheme = PGMIO_ACTIVE_SERIAL_X4;
        HOST_CHOICE choice;
        for (const char* source : {"MX25L25645G", "MINE"}) {
            choice.family = FAMILY;
            choice.config_scheme = PGMIO_ACTIVE_SERIAL;
            choice.device_name = source;
            QStringList warnings;
            QString problem;
            const auto copied = sources.copy(sources.find(choice), place, warnings, problem);
            QVERIFY2(copied, qPrintable(problem));
            QCOMPARE(choice_of(*copied).device_name, place.name);
            QCOMPARE(copied->row.family, OTHER_FAMILY);
            QCOMPARE(copied->row.scheme, int(PGMIO_ACTIVE_SERIAL_X4));
            QVERIFY(!copied->row.single_flows.empty() && !copied->row.quad_flows.empty());
        }
        choice.family = OTHER_FAMILY;
        QCOMPARE(sources.find(choice), -1);
        QCOMPARE(stored().size(), std::size_t{1});
    }

    void read_outs_are_files_of_a_bounded_size_data()
    {
        rows<int, bool>({{"empty", 0, true}, {"longest", 65536, true}, {"longer", 65537, false}});
    }

    void read_outs_are_files_of_a_bounded_size()
    {
        const auto [size, is_read] = row<int, bool>();
        const QString file = m_scratch->filePath(qs("read-out.bin"));
        const std::vector<std::uint8_t> bytes(std::size_t(size), 0x53);
        QString problem;
        QVERIFY(READ_OUT_FILE::save(file, bytes, problem));
        const auto loaded = READ_OUT_FILE::load(file, problem);
        QCOMPARE(loaded.has_value(), is_read);
        QVERIFY(!is_read || *loaded == bytes);
        QCOMPARE(problem.isEmpty(), is_read);
        QVERIFY(!READ_OUT_FILE::load(m_scratch->path(), problem));
        QVERIFY(!READ_OUT_FILE::save(m_scratch->filePath(qs("no/file")), bytes, problem));
    }
};

QTEST_GUILESS_MAIN(TEST_NEW_DEVICE_DRAFT)

#include "test_new_device_draft.moc"
