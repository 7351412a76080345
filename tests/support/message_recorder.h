// SPDX-License-Identifier: MIT

// Every message that Qt's logging sees while one of these lives.
#pragma once

#include <QStringList>

// Takes the place of the message handler, one at a time; the messages go nowhere else.
class MESSAGE_RECORDER
{
public:
    MESSAGE_RECORDER();
    ~MESSAGE_RECORDER();
    MESSAGE_RECORDER(const MESSAGE_RECORDER&) = delete;
    MESSAGE_RECORDER& operator=(const MESSAGE_RECORDER&) = delete;

    // "category: text", in order.
    QStringList texts() const;

private:
    QtMessageHandler m_handler_before;
};
