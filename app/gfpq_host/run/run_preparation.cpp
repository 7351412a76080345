// SPDX-License-Identifier: MIT
#include "run/run_preparation.h"

#include "run/chosen_device.h"
#include "run/number_text.h"

#include <QFileInfo>

#include <algorithm>

namespace {

bool needs_image(const GFPE_ORDER& order)
{
    return order.program || order.verify;
}

bool is_empty(const GFPE_ORDER& order)
{
    return !order.erase && !order.blank_check && !order.program && !order.verify && !order.examine;
}

// The parts of `ranges` that are not in `kept`.
std::vector<GFPE_RANGE> without(const std::vector<GFPE_RANGE>& ranges, const GFPE_RANGE& kept)
{
    std::vector<GFPE_RANGE> rest;
    const auto add = [&rest](std::int64_t start, std::int64_t end) {
        if (start < end)
            rest.push_back({start, end - start});
    };
    for (const GFPE_RANGE& range : ranges) {
        add(range.start, std::min(range.end(), kept.start));
        add(std::max(range.start, kept.end()), range.end());
    }
    return rest;
}

// What is erased beside the range of `order`: the sectors at both of its ends tell, however long it is.
std::vector<GFPE_RANGE> erased_beside(const GFPE_PLAN& plan, GFPE_ORDER order)
{
    if (!order.range || order.range->length == 0)
        return {};
    const GFPE_RANGE range = *order.range;
    std::vector<GFPE_RANGE> beside;
    std::int64_t known = 0;
    for (const std::int64_t end : {range.start, range.end() - 1}) {
        order.range = GFPE_RANGE{end, 1};
        for (const GFPE_RANGE& part : without(plan.get_erased(order), range)) {
            if (part.end() <= known)
                continue;
            beside.push_back(part);
            known = part.end();
        }
    }
    return beside;
}

} // namespace

QString RUN_PREPARATION::check_operations(const RUN_WISH& wish, RUN_LACK& lack)
{
    if (is_empty(wish.order)) {
        lack = RUN_LACK::NO_OPERATION;
        return tr("No operation is checked.");
    }
    if (needs_image(wish.order) && wish.file.isEmpty()) {
        lack = RUN_LACK::NO_FILE;
        return tr("No file is chosen.");
    }
    return QString();
}

std::optional<GFPDB_RECORD> RUN_PREPARATION::find_device(const HOST_CHOICE& choice, QString& problem)
{
    if (choice.device_name.empty()) {
        problem = tr("No device is chosen.");
        return std::nullopt;
    }
    std::optional<GFPDB_RECORD> record = find_chosen_device(choice, problem);
    if (!record && problem.isEmpty())
        problem = tr("The device \"%1\" does not exist.").arg(QString::fromLocal8Bit(choice.device_name.c_str()));
    return record;
}

// A range that is not in the device is refused by the plan, in its own words.
QString RUN_PREPARATION::fill_range(const RUN_WISH& wish, RUN_REQUEST& request)
{
    switch (wish.extent) {
    case RUN_EXTENT::WHOLE_DEVICE:
        break;
    case RUN_EXTENT::RANGE:
        request.order.range = wish.range;
        break;
    case RUN_EXTENT::WHOLE_FILE:
        if (wish.file.isEmpty())
            break;
        const QFileInfo file(wish.file);
        if (!file.isFile())
            return tr("The file %1 cannot be read.").arg(wish.file);
        const std::int64_t device_bytes = request.plan->get_device().bytes;
        if (file.size() == 0)
            return tr("The file %1 is empty.").arg(wish.file);
        if (wish.file_position > device_bytes - file.size())
            return tr("The file needs %1 bytes from %2 on, and the device has %3 bytes.")
                .arg(QString::number(file.size()), position_text(wish.file_position), QString::number(device_bytes));
        request.order.range = GFPE_RANGE{wish.file_position, file.size()};
        break;
    }
    return QString();
}

PREPARED_RUN RUN_PREPARATION::prepare_on(const RUN_WISH& wish, bool is_trial)
{
    PREPARED_RUN prepared;
    const std::optional<GFPDB_RECORD> record = find_device(wish.choice, prepared.problem);
    if (!record) {
        prepared.lack = RUN_LACK::NO_DEVICE;
        return prepared;
    }
    RUN_REQUEST request;
    request.plan = std::make_shared<GFPE_PLAN>(*record, flow_variant_of(wish.choice.config_scheme));
    request.order = wish.order;
    request.file = wish.file;
    request.file_position = wish.file_position;
    request.has_pattern = is_trial && wish.file.isEmpty();
    prepared.problem = fill_range(wish, request);
    if (!prepared.problem.isEmpty()) {
        prepared.lack = RUN_LACK::NO_FILE;
        return prepared;
    }
    if (is_trial)
        request.target = EMULATED_CHIP::trial_target(*record, prepared.problem);
    else if (wish.connection.kind == GFPE_CONNECTION::EMULATED)
        request.target = m_chip.target(*record, wish.connection, prepared.problem);
    else
        request.target.connection = wish.connection;
    if (!prepared.problem.isEmpty())
        return prepared;
    // Nobody minds what a trial erases.
    if (!is_trial)
        prepared.erased_beside = erased_beside(*request.plan, request.order);
    prepared.request = std::move(request);
    return prepared;
}

PREPARED_RUN RUN_PREPARATION::prepare(const RUN_WISH& wish)
{
    PREPARED_RUN lacking;
    lacking.problem = check_operations(wish, lacking.lack);
    return lacking.problem.isEmpty() ? prepare_on(wish, false) : lacking;
}

PREPARED_RUN RUN_PREPARATION::prepare_trial(RUN_WISH wish)
{
    wish.order = GFPE_ORDER();
    wish.order.erase = true;
    wish.order.blank_check = true;
    wish.order.program = true;
    wish.order.verify = true;
    return prepare_on(wish, true);
}

std::optional<RUN_TARGET> RUN_PREPARATION::prepare_detection(const HOST_CHOICE& choice,
                                                             const GFPE_CONNECTION& connection, QString& problem)
{
    RUN_TARGET target;
    target.connection = connection;
    if (connection.kind != GFPE_CONNECTION::EMULATED)
        return target;
    const std::optional<GFPDB_RECORD> record = find_device(choice, problem);
    if (record)
        target = m_chip.target(*record, connection, problem);
    if (!problem.isEmpty())
        return std::nullopt;
    return target;
}
