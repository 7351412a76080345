// SPDX-License-Identifier: MIT

// The record behind the user's choice.
#pragma once

#include "program/host_choice.h"

#include "gfpdb/gfpdb_record.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// The device of `choice` with its flows, built in or of the user's database directory; none when there is none, or when
// it cannot be read: `problem` says why. GUI thread only.
std::optional<GFPDB_RECORD> find_chosen_device(const HOST_CHOICE& choice, QString& problem);

// Which of a record's flows go with a configuration scheme.
bool flow_variant_of(int config_scheme);

// The devices with this ID, as gfpe_find_devices() finds them in the user's database directory.
std::vector<GFPDB_RECORD> find_devices_with_id(const std::vector<std::uint8_t>& id);

// "C2 20 19". A chip that begins its ID again when more bytes are read is shown once.
QString id_text(const std::vector<std::uint8_t>& id);
