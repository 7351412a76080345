// SPDX-License-Identifier: MIT

// Connections that are cut while the program changes what the user usually changes.
#pragma once

#include <initializer_list>
#include <vector>

class QObject;

// One connection by its SIGNAL() and SLOT() signatures. Both objects must outlive it.
struct GFPQ_CONNECTION
{
    const QObject* sender;
    const char* signal;
    const QObject* receiver;
    const char* slot;

    // Makes the connection through the framework.
    void make() const;
    // Breaks it; false if there was none.
    bool cut() const;
};

// Cuts connections while it exists and then makes them again, both in the order given. A connection that was not there,
// because it was never made or is cut already, is left out.
class GFPQ_CONNECTION_CUT
{
public:
    GFPQ_CONNECTION_CUT(std::initializer_list<GFPQ_CONNECTION> connections);
    ~GFPQ_CONNECTION_CUT();
    GFPQ_CONNECTION_CUT(const GFPQ_CONNECTION_CUT&) = delete;
    GFPQ_CONNECTION_CUT& operator=(const GFPQ_CONNECTION_CUT&) = delete;

private:
    std::vector<GFPQ_CONNECTION> m_cut;
};
