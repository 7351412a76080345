// SPDX-License-Identifier: MIT

// The log category of the flash database library.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(GFPDB_LOG)
