// SPDX-License-Identifier: MIT
#include "store/gfpdb_seen.h"

#include "base/gfpdb_text.h"
#include "store/gfpdb_store.h"

#include <QDateTime>

namespace {

// "2024-05-17T09:30:00Z" for people.
std::string time_text(const std::string& time)
{
    const QDateTime utc = QDateTime::fromString(gfpdb_from_utf8(time), Qt::ISODate);
    return utc.isValid() ? gfpdb_to_utf8(utc.toString(QStringLiteral("yyyy-MM-dd hh:mm"))) + " UTC" : time;
}

std::string what_happened(const std::string& seen, const GFPDB_FOUND& found)
{
    if (!found.revision.empty())
        return seen.empty() ? "stored" : "changed";
    return found.reason == GFPDB_REASON_REPLACED ? "renamed" : "deleted";
}

} // namespace

std::string gfpdb_changed_meanwhile(bool is_template, const std::string& name, const std::string& seen,
                                    const GFPDB_FOUND& found)
{
    std::string text = std::string("The ") + (is_template ? "stored template " : "device ") + gfpdb_quoted(name) +
                       " was " + what_happened(seen, found);
    if (!found.by.empty())
        text += " by " + found.by;
    if (!found.at.empty())
        text += " on " + time_text(found.at);
    text += std::string(" since it was ") + (seen.empty() ? "looked for" : "read") + " here. ";
    return text + (found.revision.empty() ? "Try again to store it as a new one."
                                          : "Look at it again, or try again: then that state goes into the history.");
}
