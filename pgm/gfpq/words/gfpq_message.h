// SPDX-License-Identifier: MIT

// The host messages that the module raises.
#pragma once

// The numbers under which the host knows them.
enum GFPQ_MESSAGE : int
{
    GFPQ_UPDATE_DB_FAILED = 20439,
    GFPQ_DELETE_DB_FAILED = 20440,
};

// Shows the message and waits until the user has answered it; the answer does not matter.
void gfpq_raise_message(GFPQ_MESSAGE message);
