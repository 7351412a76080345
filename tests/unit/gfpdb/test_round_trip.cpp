// SPDX-License-Identifier: MIT

// What is saved is what is read, byte for byte, for records and changes that no one thought of.
#include "base/gfpdb_text.h"
#include "gfpdb_test.h"
#include "rules/gfpdb_checks.h"

#include <rapidcheck.h>

#include <algorithm>
#include <map>

namespace {

constexpr char32_t FIRST_SURROGATE = 0xD800;
constexpr char32_t LAST_SURROGATE = 0xDFFF;
constexpr char32_t LAST_CHARACTER = 0x10FFFF;

// Characters of all kinds, those that databases and text formats trip over more often than others.
rc::Gen<char32_t> any_character()
{
    const auto is_character = [](char32_t c) { return c < FIRST_SURROGATE || c > LAST_SURROGATE; };
    return rc::gen::oneOf(
        rc::gen::inRange<char32_t>(0x20, 0x7F),
        rc::gen::elementOf(std::u32string(U"\0\n\r\t\"'\\%;<>&{}[]:,\uFEFF\uFFFE\uFFFF\u2028\U0001F4BE", 22)),
        rc::gen::suchThat(rc::gen::inRange<char32_t>(0, LAST_CHARACTER + 1), is_character));
}

std::string to_utf8(const std::u32string& text)
{
    return gfpdb_to_utf8(QString::fromUcs4(text.data(), int(text.size())));
}

rc::Gen<std::string> any_text()
{
    return rc::gen::map(rc::gen::container<std::u32string>(any_character()), [](std::u32string characters) {
        // No server has that character in a text.
        if (tests_are_on_server())
            characters.erase(std::remove(characters.begin(), characters.end(), U'\0'), characters.end());
        return to_utf8(characters);
    });
}

bool is_name(const std::string& text)
{
    std::string error;
    return gfpdb_check_name(text, "name", error);
}

// A name that is allowed; it opens with `mark`, so that names with other marks differ.
rc::Gen<std::string> any_name(const std::string& mark)
{
    const auto length = rc::gen::inRange<std::size_t>(0, 40);
    const auto text = rc::gen::mapcat(
        length, [](std::size_t characters) { return rc::gen::container<std::u32string>(characters, any_character()); });
    return rc::gen::map(text, [mark](std::u32string characters) {
        const auto is_refused = [](char32_t c) { return !is_name(to_utf8(U'x' + std::u32string(1, c) + U'x')); };
        characters.erase(std::remove_if(characters.begin(), characters.end(), is_refused), characters.end());
        return mark + to_utf8(characters) + '.';
    });
}

void add_any_actions(GFPDB_MGR& manager, GFPDB_OPERATION& operation)
{
    const int count = *rc::gen::inRange(0, 5);
    for (int i = 0; i < count; ++i) {
        const int type = *rc::gen::inRange<int>(0, GFPDB_ACT_TYPE_COUNT);
        GFPDB_ACTION* action = manager.create_action(static_cast<GFPDB_ACT_TYPE>(type));
        for (const GFPDB_ACT_PROPERTY property : action->get_property_enum_list())
            action->set_property_value(property, *any_text());
        operation.add_action(action);
    }
}

// Some of the five operations, in any order, in both variants; some are replaced.
void set_any_flows(GFPDB_MGR& manager, GFPDB_FLASH& record)
{
    for (const bool variant : {SINGLE_IO, QUAD_IO}) {
        const int count = *rc::gen::inRange(0, 7);
        for (int i = 0; i < count; ++i) {
            GFPDB_OPERATION* operation = manager.create_operation(*rc::gen::inRange(0, GFPDB_OPERATION_COUNT));
            add_any_actions(manager, *operation);
            record.set_operation(operation, variant);
        }
    }
}

GFPDB_FLASH* any_record(GFPDB_MGR& manager, const std::string& name)
{
    GFPDB_FLASH* record = manager.create_flash(name);
    record->set_user_defined(true);
    for (const GFPDB_FLASH_PROPERTY property :
         {GFPDB_FLASH_DEVICE_ID, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY, GFPDB_FLASH_FLOW_TEMPLATE})
        record->set_string_property(property, *any_text());
    for (const GFPDB_FLASH_PROPERTY property :
         {GFPDB_FLASH_TOTAL_DIE, GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK}) {
        if (*rc::gen::arbitrary<bool>())
            record->set_int_property(property, *rc::gen::arbitrary<int>());
    }
    set_any_flows(manager, *record);
    return record;
}

std::string text_of(const GFPDB_FLASH* record)
{
    return record == nullptr ? "no record" : text_of(*record);
}

// What a database should hold, kept beside it.
struct EXPECTED
{
    std::map<std::string, std::string> devices;
    std::map<std::string, std::string> templates;
    // The name, if the last change was the deletion of a device: a save then replaces no other device.
    std::string deleted;
    // What it took: a failed save puts it back.
    std::map<std::string, std::string> taken;
};

NAMES names_of(const std::map<std::string, std::string>& records)
{
    NAMES names;
    for (const auto& record : records)
        names.push_back(record.first);
    return names;
}

} // namespace

class TEST_ROUND_TRIP : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void a_saved_record_is_read_byte_for_byte()
    {
        const bool holds = rc::check("a saved record is read byte for byte", [this] {
            GFPDB_MGR* manager = fresh_manager();
            const std::string name = *any_name("D");
            const std::string template_name = *any_name("T");
            GFPDB_FLASH* record = any_record(*manager, name);
            record->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, template_name);
            RC_ASSERT(manager->save_flash(record, m_place->db_dir()));
            const std::string saved = text_of(*record);

            manager = fresh_manager();
            RC_ASSERT(text_of(manager->find_flash(name, true)) == saved);
            RC_ASSERT(text_of(manager->find_flash(template_name, true)) == saved);
            RC_ASSERT(custom_names(*manager) == NAMES{name});
            RC_ASSERT(user_templates(*manager) == NAMES{template_name});
            RC_ASSERT(manager->delete_flash(name, m_place->db_dir()));
            RC_ASSERT(manager->remove_template(template_name));
        });
        QVERIFY(holds);
    }

    void a_restored_record_is_the_deleted_one()
    {
        int history_id = 0;
        const bool holds = rc::check("a restored record is the deleted one", [&] {
            GFPDB_MGR* manager = fresh_manager();
            const std::string name = *any_name("D");
            GFPDB_FLASH* record = any_record(*manager, name);
            RC_ASSERT(manager->save_flash(record, m_place->db_dir()));
            const std::string saved = text_of(*record);
            RC_ASSERT(manager->delete_flash(name, m_place->db_dir()));
            ++history_id;

            RC_ASSERT(manager->restore_flash(history_id, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));
            RC_ASSERT(text_of(manager->find_flash(name, true)) == saved);
            RC_ASSERT(manager->delete_flash(name, m_place->db_dir()));
            ++history_id;
        });
        QVERIFY(holds);
    }

    void any_row_of_changes_leaves_what_it_should()
    {
        const bool holds = rc::check("any row of changes leaves what it should", [this] {
            EXPECTED expected;
            GFPDB_MGR* manager = fresh_manager();
            for (const char* name : {"a", "b", "c", "d"})
                RC_ASSERT(manager->delete_flash(name, m_place->db_dir()));
            for (const char* name : {"t", "u", "a"})
                RC_ASSERT(manager->remove_template(name));

            const int changes = *rc::gen::inRange(1, 12);
            for (int i = 0; i < changes; ++i)
                change_anything(*manager, expected);

            manager = fresh_manager();
            RC_ASSERT(custom_names(*manager) == names_of(expected.devices));
            RC_ASSERT(user_templates(*manager) == names_of(expected.templates));
            for (const auto& [name, text] : expected.devices)
                RC_ASSERT(text_of(manager->find_flash(name, true)) == text);
            for (const auto& [name, text] : expected.templates)
                RC_ASSERT(text_of(manager->find_flash(name, true)) == text);
        });
        QVERIFY(holds);
    }

private:
    GFPDB_PLACE::ON medium() const override { return GFPDB_PLACE::ON::MEMORY; }
    void change_anything(GFPDB_MGR& manager, EXPECTED& expected)
    {
        const int action = *rc::gen::inRange(0, 4);
        if (action <= 1) {
            save_anything(manager, expected);
        } else if (action == 2) {
            const std::string name = *rc::gen::element<std::string>("a", "b", "c", "d", "t");
            RC_ASSERT(manager.delete_flash(name, m_place->db_dir()));
            expected.deleted = name;
            expected.taken.clear();
            if (const auto taken = expected.devices.extract(name))
                expected.taken[name] = taken.mapped();
        } else {
            const std::string name = *rc::gen::element<std::string>("t", "u", "a");
            RC_ASSERT(manager.remove_template(name));
            expected.deleted.clear();
            expected.taken.clear();
            expected.templates.erase(name);
        }
    }

    void save_anything(GFPDB_MGR& manager, EXPECTED& expected)
    {
        const std::string name = *rc::gen::element<std::string>("a", "b", "c", "d");
        const std::string template_name = *rc::gen::element<std::string>("", "", "t", "u", "a");
        GFPDB_FLASH* record = any_record(manager, name);
        record->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, template_name);
        const std::string saved = text_of(*record);
        const auto is_foreign = [&](const std::string& text) {
            return text.compare(0, name.size() + 3, "0=" + name + '\n');
        };

        const auto stored = expected.templates.find(template_name);
        const bool is_seen = expected.deleted.empty() || expected.deleted == name || expected.devices.count(name) == 0;
        const bool is_free = is_seen && expected.templates.count(name) == 0 &&
                             expected.devices.count(template_name) == 0 && template_name != name &&
                             (stored == expected.templates.end() || !is_foreign(stored->second));
        RC_ASSERT(manager.save_flash(record, m_place->db_dir()) == is_free);
        if (!is_free)
            expected.devices.merge(expected.taken);
        expected.taken.clear();
        expected.deleted.clear();
        if (!is_free)
            return;
        expected.devices[name] = saved;
        if (!template_name.empty())
            expected.templates[template_name] = saved;
    }
};

EITHER_STORE_TEST_MAIN(TEST_ROUND_TRIP)

#include "test_round_trip.moc"
