// SPDX-License-Identifier: MIT
#include "model/gfpdb_row.h"

#include "base/gfpdb_text.h"

#include <QUuid>

#include <tuple>

namespace {

auto state_of(const GFPDB_ROW& row)
{
    return std::tie(row.family, row.scheme, row.name, row.device_id, row.voltage, row.density, row.total_die,
                    row.single_io_dummy_clock, row.quad_io_dummy_clock, row.flow_template, row.single_flows,
                    row.quad_flows);
}

} // namespace

// A device is stored as a template on demand: without a template name, nothing is said about the former one.
bool gfpdb_is_same_state(const GFPDB_ROW& former, const GFPDB_ROW& next)
{
    return state_of(former) == state_of(next) &&
           (next.template_name.empty() || next.template_name == former.template_name);
}

std::string gfpdb_new_revision()
{
    return gfpdb_to_utf8(QUuid::createUuid().toString(QUuid::WithoutBraces));
}
