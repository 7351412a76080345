#include "gfpdb_row.h"

#include "gfpdb_text.h"

#include <QUuid>

#include <tuple>

namespace {

auto state_of(const GFPDB_ROW& row)
{
    return std::tie(row.family, row.scheme, row.name, row.device_id, row.voltage, row.density, row.total_die,
                    row.single_io_dummy_clock, row.quad_io_dummy_clock, row.template_name, row.flow_template,
                    row.single_flows, row.quad_flows);
}

} // namespace

bool gfpdb_is_same_state(const GFPDB_ROW& row, const GFPDB_ROW& other)
{
    return state_of(row) == state_of(other);
}

std::string gfpdb_new_revision()
{
    return gfpdb_to_utf8(QUuid::createUuid().toString(QUuid::WithoutBraces));
}
