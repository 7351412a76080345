// SPDX-License-Identifier: MIT

// What the fuzz targets share: taking an input apart, and saying what must hold.
//
// A fuzz target is one source file with LLVMFuzzerTestOneInput(). Built for fuzzing it is a libFuzzer program;
// otherwise it gets the main() of replay_main.cpp, which runs the inputs of the corpus through it once.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

// Ends the process with the condition's text when it does not hold; libFuzzer then keeps the input.
#define FUZZ_CHECK(condition) ((condition) ? void() : fuzz_broken(#condition, __FILE__, __LINE__))
[[noreturn]] void fuzz_broken(const char* condition, const char* file, int line);

// Before the first input of every target: makes the application object that Qt SQL needs, keeps the code's warnings
// quiet, and gives the process a directory and settings of its own, in memory where there is such a place.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
// The process's own directory, ending in "/"; it is empty at the start and removed at the end.
const std::string& fuzz_directory();

void fuzz_write_file(const std::string& path, const std::string& content);
// The bytes of the database file that `fill` makes in `directory`, which ends in "/" and is made before.
std::string fuzz_database_file(const std::string& directory, const std::function<void()>& fill);

// The bytes of one input, taken from its start.
class FUZZ_INPUT
{
public:
    FUZZ_INPUT(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}

    bool at_end() const { return m_at == m_size; }
    // 0 at the end.
    int take_byte() { return at_end() ? 0 : m_data[m_at++]; }
    // A length in two bytes, the higher one first, then that many bytes, or what is left.
    std::string take_text()
    {
        const int high = take_byte();
        return take(static_cast<std::size_t>(high << 8 | take_byte()));
    }
    std::string take_rest() { return take(m_size - m_at); }

private:
    std::string take(std::size_t length);

    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_at = 0;
};
