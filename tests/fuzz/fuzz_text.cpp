// SPDX-License-Identifier: MIT

// What reads a single text: device IDs, numbers, addresses, densities, names, directories.
//
// Input: the text.
#include "fuzz_target.h"

#include "base/gfpdb_text.h"
#include "fio/fio_path.h"
#include "fio/pgm_common.h"
#include "gen/gen_text.h"
#include "gfpdb/gfpdb_action_value.h"
#include "gfpdb/gfpdb_part.h"
#include "manager/gfpdb_custom_dir.h"
#include "rules/gfpdb_checks.h"

#include <algorithm>

namespace {

constexpr std::size_t LONGEST_ERROR = 1000;

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

// A value has one way to be written; hexadecimal digits may be small ones.
void check_values(const std::string& text)
{
    if (const auto byte = gfpdb_parse_byte(text))
        FUZZ_CHECK(gen_stricmp(gfpdb_byte_text(*byte), text) == 0 && *byte >= 0 && *byte <= 0xFF);
    if (const auto bytes = gfpdb_parse_bytes(text))
        FUZZ_CHECK(gen_stricmp(gfpdb_bytes_text(*bytes), text) == 0 && !bytes->empty());
    if (const auto address = gfpdb_parse_address(text))
        FUZZ_CHECK(gen_stricmp(gfpdb_address_text(*address), text) == 0);
    if (const auto number = gfpdb_parse_decimal(text))
        FUZZ_CHECK(gfpdb_decimal_text(*number) == text && *number >= 0);
    if (const auto width = gfpdb_parse_bus_width(text))
        FUZZ_CHECK(!width->empty() && text.size() == 2 * width->size() - 1);
    const std::int64_t density = gfpdb_density_bytes(text);
    FUZZ_CHECK(density >= 0 && (density == 0 || gfpdb_is_utf8(text)));
}

void check_numbers(const std::string& text)
{
    const int number = gen_atoi(text);
    FUZZ_CHECK(gen_atoi(gen_itoa(number)) == number);
    FUZZ_CHECK(gen_strcmp(text, text) == 0 && gen_stricmp(text, text) == 0);
}

void check_answer(bool is_valid, const std::string& error)
{
    FUZZ_CHECK(is_valid == error.empty());
    FUZZ_CHECK(gfpdb_is_utf8(error) && error.size() <= LONGEST_ERROR);
    FUZZ_CHECK(std::none_of(error.begin(), error.end(), [](char c) { return c >= 0 && c < ' '; }));
}

void check_device_texts(const std::string& text)
{
    std::string error;
    check_answer(gfpdb_check_device_id(text, error), error);
    error.clear();
    const bool is_name = gfpdb_check_name(text, "device name", error);
    check_answer(is_name, error);
    if (is_name) {
        FUZZ_CHECK(gfpdb_is_utf8(text) && text.size() <= std::size_t(4 * GFPDB_NAME_LENGTH_MAX));
        FUZZ_CHECK(text.find_first_of(std::string("\0\n\r\x1B", 4)) == std::string::npos);
        FUZZ_CHECK(gfpdb_is_utf8(gfpdb_name_key(text)) && !gfpdb_name_key(text).empty());
    }
    error.clear();
    check_answer(gfpdb_check_choice(text, {"1.8V", "3.3V"}, "I/O voltage", error), error);
}

void check_texts(const std::string& text)
{
    const std::string quoted = gfpdb_quoted(text);
    FUZZ_CHECK(gfpdb_is_utf8(quoted) && quoted.size() >= 2 && quoted.front() == '"' && quoted.back() == '"');
    FUZZ_CHECK(!gfpdb_is_utf8(text) || gfpdb_to_utf8(gfpdb_from_utf8(text)) == text);
}

// No directory leads out of itself, and the form that is kept is not changed again.
void check_directory(const std::string& text)
{
    const std::string directory = gfpdb_normalised_dir(text);
    FUZZ_CHECK(directory.front() == '/' && directory.back() == '/');
    FUZZ_CHECK(!contains(directory, "//") && !contains(directory, "/./") && !contains(directory, "/../"));
    FUZZ_CHECK(gfpdb_normalised_dir(directory) == directory);
    const std::string folder = PGM_COMMON::change_folder_slash(text);
    FUZZ_CHECK(PGM_COMMON::change_folder_slash(folder) == folder && folder.size() <= text.size());
    FIO_PATH(text).get_relative_to(folder);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text = FUZZ_INPUT(data, size).take_rest();
    check_values(text);
    check_numbers(text);
    check_device_texts(text);
    check_texts(text);
    check_directory(text);
    return 0;
}
