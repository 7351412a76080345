// SPDX-License-Identifier: MIT
#include "run/interrupt.h"

#include <atomic>
#include <csignal>
#include <cstring>

#include <unistd.h>

namespace {

constexpr int SIGNALS[] = {SIGINT, SIGTERM};
std::function<void()> g_first;
std::function<void()> g_second;
std::atomic<int> g_count{0};

void handle(int)
{
    const int count = ++g_count;
    if (count == 1) {
        g_first();
        return;
    }
    for (const int signal : SIGNALS)
        std::signal(signal, SIG_DFL);
    g_second();
}

} // namespace

INTERRUPT::INTERRUPT(std::function<void()> first, std::function<void()> second)
{
    g_first = std::move(first);
    g_second = std::move(second);
    g_count = 0;
    struct sigaction action = {};
    action.sa_handler = handle;
    action.sa_flags = SA_RESTART;
    for (const int signal : SIGNALS)
        ::sigaction(signal, &action, nullptr);
}

INTERRUPT::~INTERRUPT()
{
    for (const int signal : SIGNALS)
        std::signal(signal, SIG_DFL);
}

int INTERRUPT::count() const
{
    return g_count;
}

void interrupt_say(const char* text)
{
    // There is nobody left to tell when this fails.
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, text, std::strlen(text));
}
