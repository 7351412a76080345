// SPDX-License-Identifier: MIT

// What the members of a record are called in files: the keys of JSON, the columns of lists.
#pragma once

constexpr const char* RECORD_NAME = "name";
constexpr const char* RECORD_FAMILY = "family";
constexpr const char* RECORD_SCHEME = "scheme";
constexpr const char* RECORD_DEVICE_ID = "device_id";
constexpr const char* RECORD_VOLTAGE = "voltage";
constexpr const char* RECORD_DENSITY = "density";
constexpr const char* RECORD_TOTAL_DIE = "total_die";
constexpr const char* RECORD_SINGLE_DUMMY = "single_io_dummy_clock";
constexpr const char* RECORD_QUAD_DUMMY = "quad_io_dummy_clock";
constexpr const char* RECORD_TEMPLATE_NAME = "template_name";
constexpr const char* RECORD_FLOW_TEMPLATE = "flow_template";
constexpr const char* RECORD_SINGLE_FLOWS = "single_flows";
constexpr const char* RECORD_QUAD_FLOWS = "quad_flows";
