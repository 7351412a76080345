// SPDX-License-Identifier: MIT

// The interface as a module that was built earlier uses it: each operation by its place in the table of its class, each
// enumerator by its number.
#include "gfpdb/gfpdb_action.h"
#include "gfpdb/gfpdb_flash.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "gfpdb/gfpdb_operation.h"

#include <QTest>

#include <cstring>
#include <type_traits>
#include <vector>

namespace {

// The places of a table that its destructor takes; slot 0 is the last of them.
constexpr int DESTRUCTOR_PLACES = 2;
constexpr int NO_SLOT = -1;

// How the C++ ABI of our platforms keeps a pointer to a member function: for a virtual one the first word is the byte
// offset in the table, and the lowest bit of one of the words says that it is virtual.
struct MEMBER_WORDS
{
    std::uintptr_t function;
    std::uintptr_t adjustment;
};

template <typename MEMBER>
int slot_of(MEMBER member)
{
    static_assert(sizeof(MEMBER) == sizeof(MEMBER_WORDS), "another C++ ABI");
    MEMBER_WORDS words = {};
    std::memcpy(&words, &member, sizeof words);
    if (((words.function | words.adjustment) & 1U) == 0)
        return NO_SLOT;
    return static_cast<int>((words.function & ~std::uintptr_t(1)) / sizeof(void*)) - DESTRUCTOR_PLACES + 1;
}

// Each number is its place in the list, which begins with `first`.
void compare_with_places(const std::vector<int>& numbers, int first = 0)
{
    for (const int number : numbers)
        QCOMPARE(number, first++);
}

} // namespace

class TEST_INTERFACE : public QObject
{
    Q_OBJECT

private slots:
    void each_operation_has_its_slot_data()
    {
        QTest::addColumn<int>("slot");
        QTest::addColumn<int>("expected");

#define ADD_SLOT(NUMBER, OPERATION) QTest::newRow(#OPERATION) << slot_of(&OPERATION) << NUMBER
        ADD_SLOT(1, GFPDB_MGR::get_flow_variant);
        ADD_SLOT(3, GFPDB_MGR::set_device_family);
        ADD_SLOT(5, GFPDB_MGR::set_config_scheme);
        ADD_SLOT(6, GFPDB_MGR::find_flash);
        ADD_SLOT(10, GFPDB_MGR::is_hidden_flash);
        ADD_SLOT(11, GFPDB_MGR::can_add_flash);
        ADD_SLOT(12, GFPDB_MGR::can_edit_flow);
        ADD_SLOT(14, GFPDB_MGR::check_int_property);
        ADD_SLOT(15, GFPDB_MGR::check_string_property);
        ADD_SLOT(16, GFPDB_MGR::is_property_used);
        ADD_SLOT(17, GFPDB_MGR::verify_string_property);
        ADD_SLOT(18, GFPDB_MGR::save_flash);
        ADD_SLOT(19, GFPDB_MGR::delete_flash);
        ADD_SLOT(21, GFPDB_MGR::get_family_list);
        ADD_SLOT(22, GFPDB_MGR::get_config_scheme_list);
        ADD_SLOT(23, GFPDB_MGR::get_custom_flash_names);
        ADD_SLOT(24, GFPDB_MGR::get_builtin_flash_names);
        ADD_SLOT(25, GFPDB_MGR::get_voltage_list);
        ADD_SLOT(26, GFPDB_MGR::get_density_list);
        ADD_SLOT(27, GFPDB_MGR::get_template_list);
        ADD_SLOT(28, GFPDB_MGR::get_user_template_list);
        ADD_SLOT(30, GFPDB_MGR::create_flash);
        ADD_SLOT(31, GFPDB_MGR::create_action);
        ADD_SLOT(32, GFPDB_MGR::create_operation);
        ADD_SLOT(33, GFPDB_MGR::get_builtin_template_operations);
        ADD_SLOT(34, GFPDB_MGR::get_template_operations);
        ADD_SLOT(35, GFPDB_MGR::is_flow_editable);
        ADD_SLOT(37, GFPDB_MGR::remove_template);

        ADD_SLOT(1, GFPDB_FLASH::get_name);
        ADD_SLOT(3, GFPDB_FLASH::get_density);
        ADD_SLOT(4, GFPDB_FLASH::set_density);
        ADD_SLOT(7, GFPDB_FLASH::get_db_dir);
        ADD_SLOT(8, GFPDB_FLASH::set_db_dir);
        ADD_SLOT(9, GFPDB_FLASH::is_user_defined);
        ADD_SLOT(10, GFPDB_FLASH::set_user_defined);
        ADD_SLOT(13, GFPDB_FLASH::get_operations);
        ADD_SLOT(14, GFPDB_FLASH::set_operation);
        ADD_SLOT(16, GFPDB_FLASH::clear_operations);
        ADD_SLOT(17, GFPDB_FLASH::get_string_property);
        ADD_SLOT(18, GFPDB_FLASH::get_int_property);
        ADD_SLOT(19, GFPDB_FLASH::set_int_property);
        ADD_SLOT(20, GFPDB_FLASH::set_string_property);

        ADD_SLOT(1, GFPDB_OPERATION::get_actions);
        ADD_SLOT(3, GFPDB_OPERATION::add_action);

        ADD_SLOT(1, GFPDB_ACTION::get_property_label);
        ADD_SLOT(2, GFPDB_ACTION::get_property_value);
        ADD_SLOT(5, GFPDB_ACTION::get_property_choices);
        ADD_SLOT(6, GFPDB_ACTION::set_property_value);
        ADD_SLOT(7, GFPDB_ACTION::check_property_value);
        ADD_SLOT(8, GFPDB_ACTION::is_property_enabled);
#undef ADD_SLOT
    }

    void each_operation_has_its_slot()
    {
        QFETCH(const int, slot);
        QFETCH(const int, expected);

        QCOMPARE(slot, expected);
    }

    void what_is_not_virtual_takes_no_slot()
    {
        QCOMPARE(slot_of(&GFPDB_ACTION::get_action_type), NO_SLOT);
        QCOMPARE(slot_of(&GFPDB_ACTION::get_property_enum_list), NO_SLOT);
        QVERIFY(std::has_virtual_destructor_v<GFPDB_MGR>);
        QVERIFY(std::has_virtual_destructor_v<GFPDB_FLASH>);
        QVERIFY(std::has_virtual_destructor_v<GFPDB_OPERATION>);
        QVERIFY(std::has_virtual_destructor_v<GFPDB_ACTION>);
    }

    // A module asks for the functions by linker names that have the argument types in them; it reads the numbers
    // directly, without a call.
    void functions_and_numbers_have_their_types()
    {
        static_assert(std::is_same_v<decltype(&GFPDB_MGR::get_db_custom_dir), std::string (*)()>);
        static_assert(std::is_same_v<decltype(&GFPDB_MGR::set_db_custom_dir), void (*)(std::string)>);
        static_assert(std::is_same_v<decltype(&GFPDB_MGR::save_custom_dir_to_ini), bool (*)(std::string, bool)>);
        static_assert(std::is_same_v<decltype(&GFPDB_HELPER::set_active_flash_family), bool (*)(PGMIO_CONFIG_SCHEME)>);
        static_assert(std::is_same_v<decltype(&GFPDB_HELPER::get_active_flash_manager), GFPDB_MGR* (*)(bool)>);
        static_assert(std::is_same_v<decltype(&GFPDB_OPERATION::m_kind), int GFPDB_OPERATION::*>);
        static_assert(std::is_same_v<decltype(&GFPDB_ACTION::m_action_type), int GFPDB_ACTION::*>);
    }

    void enumerators_have_their_numbers()
    {
        compare_with_places({GFPDB_FLASH_NAME, GFPDB_FLASH_DEVICE_ID, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY,
                             GFPDB_FLASH_TOTAL_DIE, GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK,
                             GFPDB_FLASH_TEMPLATE_NAME, GFPDB_FLASH_FLOW_TEMPLATE});
        compare_with_places({GFPDB_OPERATION_INITIALIZATION, GFPDB_OPERATION_PROGRAM, GFPDB_OPERATION_ERASE,
                             GFPDB_OPERATION_VERIFY, GFPDB_OPERATION_TERMINATION});
        compare_with_places({GFPDB_ACT_WRITE_REGISTER, GFPDB_ACT_READ_REGISTER, GFPDB_ACT_WRITE_DATA,
                             GFPDB_ACT_READ_DATA, GFPDB_ACT_ERASE, GFPDB_ACT_CUSTOM});
        compare_with_places({GFPDB_WR_NAME, GFPDB_WR_COMMAND, GFPDB_WR_DATA, GFPDB_WR_DELAY, GFPDB_WR_BUS_WIDTH});
        compare_with_places({GFPDB_RR_NAME, GFPDB_RR_COMMAND, GFPDB_RR_DATA_LENGTH, GFPDB_RR_EXPECTED_DATA,
                             GFPDB_RR_EXPECTED_DATA_MASK, GFPDB_RR_ATTEMPT_COUNT, GFPDB_RR_DELAY, GFPDB_RR_BUS_WIDTH},
                            5);
        compare_with_places({GFPDB_WD_NAME, GFPDB_WD_COMMAND, GFPDB_WD_ADDRESS, GFPDB_WD_DATA, GFPDB_WD_PAGE_SIZE,
                             GFPDB_WD_ADDRESSING_MODE, GFPDB_WD_DELAY, GFPDB_WD_BUS_WIDTH},
                            13);
        compare_with_places({GFPDB_RD_NAME, GFPDB_RD_COMMAND, GFPDB_RD_ADDRESS, GFPDB_RD_DATA_LENGTH,
                             GFPDB_RD_EXPECTED_DATA, GFPDB_RD_EXPECTED_DATA_MASK, GFPDB_RD_ADDRESSING_MODE,
                             GFPDB_RD_DUMMY_CLOCK, GFPDB_RD_DELAY, GFPDB_RD_BUS_WIDTH},
                            21);
        compare_with_places({GFPDB_ER_NAME, GFPDB_ER_COMMAND, GFPDB_ER_ADDRESS, GFPDB_ER_ERASE_SIZE,
                             GFPDB_ER_ADDRESSING_MODE, GFPDB_ER_DELAY, GFPDB_ER_BUS_WIDTH, GFPDB_CUSTOM_LOOP_UNIT,
                             GFPDB_CUSTOM_LOOP_MARKER},
                            31);
        compare_with_places({PGMIO_PASSIVE_SERIAL_X1, PGMIO_PASSIVE_SERIAL_X2, PGMIO_PASSIVE_SERIAL_X4,
                             PGMIO_PASSIVE_SERIAL_X8, PGMIO_PASSIVE_PARALLEL_ASYNCHRONOUS,
                             PGMIO_PASSIVE_PARALLEL_SYNCHRONOUS, PGMIO_FAST_PASSIVE_PARALLEL, PGMIO_ACTIVE_SERIAL,
                             PGMIO_ACTIVE_PARALLEL, PGMIO_ACTIVE_PARALLEL_CASCADE});
        compare_with_places({PGMIO_PASSIVE_PARALLEL_X8, PGMIO_PASSIVE_PARALLEL_X16, PGMIO_PASSIVE_PARALLEL_X32,
                             PGMIO_ACTIVE_SERIAL_X4, PGMIO_INTERNAL_CONFIGURATION, PGMIO_SINGLE_INTERNAL_IMAGE,
                             PGMIO_SINGLE_INTERNAL_IMAGE_ERAM, PGMIO_SINGLE_INTERNAL_COMPRESSED_IMAGE,
                             PGMIO_SINGLE_INTERNAL_COMPRESSED_IMAGE_ERAM, PGMIO_DUAL_COMPRESSED_INTERNAL_IMAGES},
                            10);
        compare_with_places(
            {PGMIO_AVST_X8, PGMIO_AVST_X16, PGMIO_AVST_X32, PGMIO_SDMMC_X4, PGMIO_SDMMC_X8, PGMIO_ILLEGAL_SCHEME}, 20);
    }
};

QTEST_APPLESS_MAIN(TEST_INTERFACE)

#include "test_interface.moc"
