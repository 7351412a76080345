// SPDX-License-Identifier: MIT
#include "model/gfpdb_row.h"

#include "base/gfpdb_text.h"
#include "model/gfpdb_field.h"

#include <QUuid>

#include <algorithm>

bool gfpdb_is_same_content(const GFPDB_ROW& left, const GFPDB_ROW& right)
{
    const std::vector<GFPDB_FIELD>& fields = gfpdb_fields();
    return std::all_of(fields.begin(), fields.end(),
                       [&](const GFPDB_FIELD& field) { return field.is_same(left, right); });
}

// A device is stored as a template on demand: without a template name, nothing is said about the former one.
bool gfpdb_is_same_state(const GFPDB_ROW& former, const GFPDB_ROW& next)
{
    const std::vector<GFPDB_FIELD>& fields = gfpdb_fields();
    return std::all_of(fields.begin(), fields.end(), [&](const GFPDB_FIELD& field) {
        const bool is_unsaid = field.property == GFPDB_FLASH_TEMPLATE_NAME && next.template_name.empty();
        return is_unsaid || field.is_same(former, next);
    });
}

std::string gfpdb_new_revision()
{
    return gfpdb_to_utf8(QUuid::createUuid().toString(QUuid::WithoutBraces));
}
