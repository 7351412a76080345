// SPDX-License-Identifier: MIT

// The values of a new device: what is proposed for each, from where, and what the user has entered instead.
//
// A value is proposed from the tables, else from what listed parts with the ID or of the maker have, else a usual one
// is assumed. Values are proposed in the order of their keys, each from those before it. GUI thread only.
#pragma once

#include "catalogue/gfpdb_flow_traits.h"
#include "gfpdb/gfpdb_new_device.h"

#include <QtGlobal>

#include <array>
#include <string>
#include <vector>

enum class GFPDB_VALUE_OF
{
    NAME,
    ID,
    MAKER,
    VOLTAGE,
    DENSITY,
    DIES,
    DIE_SELECTION,
    PAGE_SIZE,
    ADDRESS_BYTES,
    ENTER_FOUR_BYTE,
    LEAVE_FOUR_BYTE,
    CHECK_FOUR_BYTE,
    QUAD_ENABLE,
    UNLOCK,
    RESET,
    BUSY_POLL,
    SINGLE_DUMMY,
    QUAD_READ,
    QUAD_DUMMY,
    QUAD_PROGRAM,
    ERASE,
    PROGRAM_WAIT,
    ERASE_WAIT,
};
constexpr std::size_t GFPDB_VALUES_OF_DEVICE = 23;

// What values are called that have no bytes of their own.
namespace gfpdb_proposed {

constexpr const char* NONE = "none";
constexpr const char* OTHER_MAKER = "other";
constexpr const char* FOR_STATUS = "for the status";
constexpr const char* FOR_ALL = "for everything";
constexpr const char* OWN_COMMANDS = "own commands";
constexpr const char* ALWAYS = "always";
constexpr const char* BY_RESET = "reset";
constexpr const char* WHOLE_CHIP = "chip";

// The sources are in the catalogues for programs that show them.
constexpr const char* FROM_ID = QT_TRANSLATE_NOOP("gfpdb", "from the ID");
constexpr const char* FROM_DENSITY = QT_TRANSLATE_NOOP("gfpdb", "from the density");
constexpr const char* ASSUMED = QT_TRANSLATE_NOOP("gfpdb", "assumed");
constexpr const char* ENTERED = QT_TRANSLATE_NOOP("gfpdb", "entered");

} // namespace gfpdb_proposed

class GFPDB_PROPOSAL
{
public:
    GFPDB_PROPOSAL(const std::vector<std::uint8_t>& id, const GFPDB_SFDP* sfdp);

    // In the order of their keys.
    std::vector<GFPDB_PROPOSED_VALUE> get_values() const;
    bool set_value(const std::string& key, const std::string& text, std::string& problem);
    std::vector<std::string> get_warnings() const;
    std::optional<GFPDB_RECORD> make_record(int family, int scheme, std::string& problem) const;

private:
    // What is proposed for a value, and what it can be chosen from.
    struct PROPOSED
    {
        std::string text;
        std::string source;
        std::vector<std::string> choices = {};
    };
    using PROPOSE = PROPOSED (GFPDB_PROPOSAL::*)() const;
    using VALUE_OF = GFPDB_VALUE_OF;

    const std::string& text(VALUE_OF value) const { return m_values[static_cast<std::size_t>(value)].text; }
    const std::string& source(VALUE_OF value) const { return m_values[static_cast<std::size_t>(value)].source; }
    // For users.
    std::string said_source(VALUE_OF value) const;
    std::int64_t number(VALUE_OF value) const;
    std::int64_t density_bits() const;
    std::vector<std::uint8_t> id_bytes() const;
    bool has_sfdp() const { return m_sfdp.has_value(); }
    // True where sectors of `bytes` make up the whole device, or its density is not known.
    bool divides_density(std::int64_t bytes) const { return density_bits() / 8 % bytes == 0; }
    // The tables say a density that no device can have.
    bool is_too_large() const;
    // False without tables, and where they end before they describe reads.
    bool tells_quad_reads() const;
    // DW16 of a part that has three address bytes says nothing with all bits set.
    bool says_nothing_of_mode() const;

    // Proposes all values that are not entered, and what they go by.
    void propose();
    // What listed parts have in common.
    void find_habit();
    PROPOSED from_habit(const std::string& text) const;
    std::string derived_source(VALUE_OF value) const;
    // The value that all listed parts with the ID have; else an empty text.
    template <typename VALUE>
    std::optional<VALUE> common_value(VALUE GFPDB_PART::*member) const;

    PROPOSED propose_name() const;
    PROPOSED propose_id() const;
    PROPOSED propose_maker() const;
    PROPOSED propose_voltage() const;
    PROPOSED propose_density() const;
    PROPOSED propose_dies() const;
    PROPOSED propose_die_selection() const;
    PROPOSED propose_page_size() const;
    PROPOSED propose_address_bytes() const;
    PROPOSED propose_enter_four_byte() const;
    PROPOSED propose_leave_four_byte() const;
    PROPOSED propose_check_four_byte() const;
    PROPOSED propose_quad_enable() const;
    PROPOSED propose_unlock() const;
    PROPOSED propose_reset() const;
    PROPOSED propose_busy_poll() const;
    PROPOSED propose_single_dummy() const;
    PROPOSED propose_quad_read() const;
    PROPOSED propose_quad_dummy() const;
    PROPOSED propose_quad_program() const;
    PROPOSED propose_erase() const;
    PROPOSED propose_program_wait() const;
    PROPOSED propose_erase_wait() const;

    // The ways into 4-byte addressing that DW16 and the table of 4-byte instructions list, and out of it.
    std::vector<std::string> listed_entries() const;
    std::vector<std::string> listed_exits() const;
    bool has_own_commands() const;
    bool uses_own_commands() const { return text(VALUE_OF::ENTER_FOUR_BYTE) == gfpdb_proposed::OWN_COMMANDS; }
    // The reads on four lines that the tables list, the widest first.
    struct QUAD_READ
    {
        std::string text;
        int dummy_clocks;
    };
    std::vector<QUAD_READ> listed_reads() const;
    // The erase types that erase the same wherever they are sent, with the commands that go with the addressing.
    std::vector<GFPDB_SFDP_ERASE> uniform_types() const;
    bool is_listed_in_part(int opcode) const;
    const GFPDB_SFDP_ERASE* chosen_type(const std::vector<GFPDB_SFDP_ERASE>& types) const;

    void warn_of_id(std::vector<std::string>& warnings) const;
    void warn_of_mode(std::vector<std::string>& warnings) const;
    void warn_of_addresses(std::vector<std::string>& warnings) const;
    void warn_of_registers(std::vector<std::string>& warnings) const;
    void warn_of_commands(std::vector<std::string>& warnings) const;

    // Why `text` cannot be the value; empty when it can.
    std::string problem_of(VALUE_OF value, const std::string& text) const;
    // The traits that follow from the values, of the variant.
    GFPDB_FLOW_TRAITS traits(bool quad) const;
    std::optional<GFPDB_ERASE_COMMAND> sector_erase() const;

    std::vector<std::uint8_t> m_id;
    std::optional<GFPDB_SFDP> m_sfdp;
    std::vector<const GFPDB_PART*> m_listed;
    // A part as listed ones are: the one with the ID that is most like the tables, or one of the maker.
    GFPDB_PART m_model;
    bool m_has_model = false;
    std::array<GFPDB_PROPOSED_VALUE, GFPDB_VALUES_OF_DEVICE> m_values;
    std::array<bool, GFPDB_VALUES_OF_DEVICE> m_is_entered = {};
};
