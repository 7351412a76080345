// SPDX-License-Identifier: MIT

// A piece of work in a process of its own, forked from this one.
#pragma once

#include <functional>
#include <string>

#include <sys/types.h>

class CHILD_PROCESS
{
public:
    // Runs `work` with a child's end of the line: say() and wait() there answer hear() and go_on() here. The messages
    // of the child are not printed.
    explicit CHILD_PROCESS(const std::function<void(CHILD_PROCESS& self)>& work);
    // Waits for the child's end.
    ~CHILD_PROCESS();
    CHILD_PROCESS(const CHILD_PROCESS&) = delete;
    CHILD_PROCESS& operator=(const CHILD_PROCESS&) = delete;

    void say(const std::string& text);
    // What the other side says next; "the process has ended" when that has.
    std::string hear();

private:
    pid_t m_child = 0;
    int m_line = -1;
};

// What Qt and the library have logged in this child since the last call, one message a line.
std::string take_messages();

// What `work` gives back in a process of its own.
std::string in_child(const std::function<std::string()>& work);
