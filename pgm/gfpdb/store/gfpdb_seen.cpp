// SPDX-License-Identifier: MIT
#include "store/gfpdb_seen.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "store/gfpdb_store.h"

#include <QDateTime>

namespace {

// "2024-05-17T09:30:00Z" for people.
std::string time_text(const std::string& time)
{
    const QDateTime utc = QDateTime::fromString(gfpdb_from_utf8(time), Qt::ISODate);
    if (time.empty())
        return GFPDB_WORDS::say("an unknown day");
    return utc.isValid() ? gfpdb_to_utf8(utc.toString(QStringLiteral("yyyy-MM-dd hh:mm"))) + " UTC" : time;
}

std::string user_text(const std::string& user)
{
    return user.empty() ? GFPDB_WORDS::say("an unknown user") : user;
}

std::string what_happened(bool is_template, const std::string& name, const std::string& seen, const GFPDB_FOUND& found)
{
    const std::initializer_list<std::string> values = {gfpdb_quoted(name), user_text(found.by), time_text(found.at)};
    if (!found.revision.empty() && seen.empty())
        return is_template
                   ? GFPDB_WORDS::say("The stored template %1 was stored by %2 on %3 since it was looked for here.",
                                      values)
                   : GFPDB_WORDS::say("The device %1 was stored by %2 on %3 since it was looked for here.", values);
    if (!found.revision.empty())
        return is_template
                   ? GFPDB_WORDS::say("The stored template %1 was changed by %2 on %3 since it was read here.", values)
                   : GFPDB_WORDS::say("The device %1 was changed by %2 on %3 since it was read here.", values);
    if (is_template)
        return GFPDB_WORDS::say("The stored template %1 was deleted by %2 on %3 since it was read here.", values);
    if (found.reason == GFPDB_REASON_REPLACED)
        return GFPDB_WORDS::say("The device %1 was renamed by %2 on %3 since it was read here.", values);
    return GFPDB_WORDS::say("The device %1 was deleted by %2 on %3 since it was read here.", values);
}

} // namespace

std::string gfpdb_changed_meanwhile(bool is_template, const std::string& name, const std::string& seen,
                                    const GFPDB_FOUND& found)
{
    const std::string advice =
        found.revision.empty()
            ? GFPDB_WORDS::say("Try again to store it as a new one.")
            : GFPDB_WORDS::say("Look at it again, or try again: then that state goes into the history.");
    return what_happened(is_template, name, seen, found) + ' ' + advice;
}
