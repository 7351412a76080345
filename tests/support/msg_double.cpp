// SPDX-License-Identifier: MIT
#include "msg_double.h"

namespace {

std::vector<PROMPTED_MESSAGE> g_prompted;
std::vector<INTERNAL_ERROR_REPORTED> g_reported;

constexpr QLatin1String LABEL("MSG_O");

} // namespace

QString logged(const MSG_REPORT* report)
{
    return report == nullptr ? QStringLiteral("null") : QStringLiteral("report");
}

MSG_BASE::~MSG_BASE()
{
    log_call(LABEL, "destroyed");
}

void MSG_BASE::fill_args(const std::string& args)
{
    log_call(LABEL, "fill_args", args);
    m_args = args;
}

void MSG_BASE::set_id(int id)
{
    log_call(LABEL, "set_id", id);
    m_id = id;
}

// The whole argument text: a test wants to see what was handed over.
std::string MSG_BASE::text() const
{
    return m_args;
}

MSG_O::MSG_O(MSG_REPORT* report)
{
    log_call(LABEL, "created", report);
}

MSG_VALUE MSG_O::prompt(MSG_REPORT* report)
{
    log_call(LABEL, "prompt", report);
    g_prompted.push_back({id(), text()});
    return MSG_VALUE_OK;
}

void MSG_INTERNAL_ERROR::report(const char* condition, const char* category, const char* source, int line)
{
    const INTERNAL_ERROR_REPORTED error{condition, category, source, line};
    log_call(QStringLiteral("MSG_INTERNAL_ERROR"), "report", error.condition, error.category, error.source, error.line);
    g_reported.push_back(error);
    throw error;
}

const std::vector<PROMPTED_MESSAGE>& prompted_messages()
{
    return g_prompted;
}

const std::vector<INTERNAL_ERROR_REPORTED>& reported_internal_errors()
{
    return g_reported;
}

void reset_messages()
{
    g_prompted.clear();
    g_reported.clear();
}
