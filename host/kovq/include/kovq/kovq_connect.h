// SPDX-License-Identifier: MIT

// Signal and slot connections that cannot fail unnoticed.
#pragma once

#include "kovq/kovq_export.h"

#include <QObject>

// Connects `signal` of `sender` to `method` of `receiver`, both given as SIGNAL() and SLOT() signatures. A connection
// that cannot be made (unknown signature, null object) is an internal error: it is reported with the signatures and
// `file` and `line` (the caller's place; may be "" and 0) through MSG_INTERNAL_ERROR::report, which does not return.
// Returns true.
KOVQ_EXPORT bool kovq_safe_connect(const QObject* sender, const char* signal, const QObject* receiver,
                                   const char* method, Qt::ConnectionType type = Qt::AutoConnection,
                                   const char* file = "", int line = 0);
