// SPDX-License-Identifier: MIT

// The table of a record's fields: whatever is in it is stored, compared and reached by its property.
#include "gfpdb_test.h"
#include "model/gfpdb_embedded_flash.h"
#include "model/gfpdb_field.h"
#include "store/gfpdb_store.h"

namespace {

struct NEXT_VALUE
{
    void operator()(int& value) const { value += 1; }
    void operator()(std::optional<int>& value) const { value = value.value_or(0) + 1; }
    void operator()(std::string& value) const { value += "x"; }
};

// Another value in each field.
GFPDB_ROW full_row()
{
    GFPDB_ROW row;
    int number = 0;
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        for (int times = 0; times <= number; ++times)
            field.in(row, NEXT_VALUE());
        ++number;
    }
    row.revision = "r";
    row.single_flows = "[]";
    row.quad_flows.clear();
    return row;
}

} // namespace

class TEST_FIELDS : public QObject
{
    Q_OBJECT

private slots:
    void each_field_is_stored()
    {
        const QTemporaryDir directory;
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(directory.path().toStdString() + '/');
        const GFPDB_ROW row = full_row();

        QVERIFY(store->save_all({row}, {}, [](int) { return true; }));
        const std::optional<GFPDB_ROW> found = store->find_device(row.family, row.scheme, row.name);

        QVERIFY(found);
        for (const GFPDB_FIELD& field : gfpdb_fields())
            QVERIFY2(field.is_same(*found, row), field.key);
        QCOMPARE(found->revision, row.revision);
    }

    void each_field_makes_a_difference()
    {
        for (const GFPDB_FIELD& field : gfpdb_fields()) {
            GFPDB_ROW other = full_row();
            QVERIFY(gfpdb_is_same_content(other, full_row()));
            field.in(other, NEXT_VALUE());
            QVERIFY2(!gfpdb_is_same_content(other, full_row()), field.key);
            QVERIFY2(!gfpdb_is_same_state(full_row(), other), field.key);
        }
    }

    void each_property_is_read_from_its_field()
    {
        const auto record = GFPDB_EMBEDDED_FLASH::from_row(full_row(), "/", false);
        QVERIFY(record);
        int properties = 0;
        for (const GFPDB_FIELD& field : gfpdb_fields()) {
            if (field.property == GFPDB_NO_PROPERTY)
                continue;
            QCOMPARE(record->get_string_property(GFPDB_FLASH_PROPERTY(field.property)), field.text(full_row()));
            ++properties;
        }
        QCOMPARE(properties, 9);
        QCOMPARE(record->get_string_property(GFPDB_FLASH_PROPERTY(GFPDB_NO_PROPERTY)), std::string());
    }
};

QTEST_GUILESS_MAIN(TEST_FIELDS)
#include "test_fields.moc"
