// SPDX-License-Identifier: MIT
#include "words/gfpq_message.h"

#include "msg/msg.h"

namespace {

const char* message_args(GFPQ_MESSAGE message)
{
    if (message == GFPQ_UPDATE_DB_FAILED)
        return "Failed to save flash into database./OGFPQ_UPDATE_DB_FAILED";
    return "Failed to delete flash from database./OGFPQ_DELETE_DB_FAILED";
}

} // namespace

void gfpq_raise_message(GFPQ_MESSAGE message)
{
    MSG_O box(nullptr);
    box.fill_args(message_args(message));
    box.set_id(message);
    box.prompt(nullptr);
}
