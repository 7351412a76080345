// SPDX-License-Identifier: MIT
#include "msg_double.h"

namespace {

std::vector<PROMPTED_MESSAGE> g_prompted;
std::vector<INTERNAL_ERROR_REPORTED> g_reported;

void record(const char* function, const QStringList& arguments = {})
{
    CALL_LOG::instance().record(QStringLiteral("MSG_O"), QLatin1String(function), arguments);
}

QString null_or_not(const MSG_REPORT* report)
{
    return report == nullptr ? QStringLiteral("null") : QStringLiteral("report");
}

} // namespace

MSG_BASE::~MSG_BASE()
{
    record("destroyed");
}

void MSG_BASE::fill_args(const std::string& args)
{
    record("fill_args", {log_text(args)});
    m_args = args;
}

void MSG_BASE::set_id(int id)
{
    record("set_id", {log_int(id)});
    m_id = id;
}

// The whole argument text: a test wants to see what was handed over.
std::string MSG_BASE::text() const
{
    return m_args;
}

MSG_O::MSG_O(MSG_REPORT* report)
{
    record("created", {null_or_not(report)});
}

MSG_VALUE MSG_O::prompt(MSG_REPORT* report)
{
    record("prompt", {null_or_not(report)});
    g_prompted.push_back({id(), text()});
    return MSG_VALUE_OK;
}

void MSG_INTERNAL_ERROR::report(const char* condition, const char* category, const char* source, int line)
{
    CALL_LOG::instance().record(QStringLiteral("MSG_INTERNAL_ERROR"), QStringLiteral("report"),
                                {log_text(condition), log_text(category), log_text(source), log_int(line)});
    const INTERNAL_ERROR_REPORTED error{condition, category, source, line};
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
