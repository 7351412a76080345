// SPDX-License-Identifier: MIT

// One ordered record of what the code under test asked of its surroundings.
//
// All doubles (flash database, messages, file dialog) write into the same log, so a test sees the order across them. A
// call is one line: object.function(arguments), texts in double quotes. GUI thread only.
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

class CALL_LOG
{
public:
    using HOOK = std::function<void(const QString& call)>;

    static CALL_LOG& instance();

    // Appends `object.function(arguments)` and runs the hooks of `function`. Empty arguments are left out.
    void record(const QString& object, const QString& function, QStringList arguments);

    // Every call since the last clear().
    QStringList calls() const { return m_calls; }
    // Only the calls of these functions, in order: "find_flash".
    QStringList calls_of(const QStringList& functions) const;
    // Every call but those of these functions, in order.
    QStringList calls_without(const QStringList& functions) const;
    // How often `function` was called.
    int count(const QString& function) const;

    // Runs `hook` at every later call of `function`, after it was recorded and before it answers: a test looks there at
    // the state of the widgets, changes an answer, or throws.
    void on_call(const QString& function, HOOK hook);

    // Forgets the calls; the hooks stay.
    void clear();
    // Forgets calls and hooks.
    void reset();

private:
    QStringList m_calls;
    // The function of each call.
    QStringList m_functions;
    std::map<QString, std::vector<HOOK>> m_hooks;
};

// An argument as it is in a line of the log; texts (UTF-8) in double quotes.
QString logged(const std::string& text);
QString logged(const QString& text);
QString logged(bool value);
QString logged(int value);
QString logged(std::int64_t value);

// Records `object.function(arguments)`.
template <typename... ARGUMENTS>
void log_call(const QString& object, const char* function, const ARGUMENTS&... arguments)
{
    CALL_LOG::instance().record(object, QLatin1String(function), {logged(arguments)...});
}
