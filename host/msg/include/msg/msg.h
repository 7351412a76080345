// SPDX-License-Identifier: MIT

// Messages of the host: numbered messages for the user, and the report of a broken internal assumption.
//
// GUI thread only. Texts are in the local 8-bit encoding.
#pragma once

#include "msg/msg_export.h"

#include <functional>
#include <string>

// What the user answered to a message.
enum MSG_VALUE : int
{
    MSG_VALUE_OK = 0,
};

// Where a host collects its messages; this host has none, a null pointer is passed.
class MSG_REPORT;

// What every message has: a number and the text of its arguments.
class MSG_EXPORT MSG_BASE
{
public:
    virtual ~MSG_BASE();

    // Hands over the message's argument text: the user's text, then "/O" and the identifier of the message. Only what
    // comes before the last "/O" is shown.
    void fill_args(const std::string& args);
    void set_id(int id);

    int id() const { return m_id; }
    // The text that the user sees.
    std::string text() const;

protected:
    MSG_BASE() = default;

private:
    std::string m_args;
    int m_id = 0;
};

// A message that is shown to the user as a modal box and waits for the answer.
class MSG_EXPORT MSG_O : public MSG_BASE
{
public:
    // Says why the message with the number `id` is being raised (local 8-bit); empty when it does not know.
    using REASON_SOURCE = std::function<std::string(int id)>;

    // Who is asked for the reason of every message from now on; null for nobody, as at the start of the process.
    static void set_reason_source(REASON_SOURCE source);

    // `report` may be null; it is not owned.
    explicit MSG_O(MSG_REPORT* report = nullptr);

    // Logs the message, shows it as "<text> (message <number>)" in a modal warning box over the active window, titled
    // with the application's display name, and waits until that is closed. Without a QApplication it is only logged.
    // The text is shown as plain text, never as markup. The reason, if there is one, is logged too, and shown below the
    // text: in one paragraph of at most 500 characters, which may be broken anywhere in a long word.
    MSG_VALUE prompt(MSG_REPORT* report = nullptr);
};

// The end of the line: an assumption of the program's own does not hold.
class MSG_EXPORT MSG_INTERNAL_ERROR
{
public:
    MSG_INTERNAL_ERROR() = delete;

    // The exit code of a process that was ended by report().
    static constexpr int EXIT_CODE = 70;

    // Logs the broken `condition` with the `category` of the module, the `source` path and `line`, shows it in a box
    // where there is a display and an application, then ends the process with EXIT_CODE without running destructors
    // that could store half-built data. The texts may be null. A report while another one is being shown ends the
    // process at once; so does, without a box, a report from a thread other than the GUI thread.
    [[noreturn]] static void report(const char* condition, const char* category, const char* source, int line);
};
