// SPDX-License-Identifier: MIT

// The host messages that the module raises.
#pragma once

// Their numbers in the host.
enum GFPQ_MESSAGE : int
{
    GFPQ_UPDATE_DB_FAILED = 20439,
    GFPQ_DELETE_DB_FAILED = 20440,
};

// Shows the message and waits for the user's answer, which is not used.
void gfpq_raise_message(GFPQ_MESSAGE message);
