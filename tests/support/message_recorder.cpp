// SPDX-License-Identifier: MIT
#include "message_recorder.h"

namespace {

QStringList g_texts;

void record(QtMsgType /*type*/, const QMessageLogContext& context, const QString& text)
{
    g_texts.append(QLatin1String(context.category) + QLatin1String(": ") + text);
}

} // namespace

MESSAGE_RECORDER::MESSAGE_RECORDER()
{
    g_texts.clear();
    m_handler_before = qInstallMessageHandler(record);
}

MESSAGE_RECORDER::~MESSAGE_RECORDER()
{
    qInstallMessageHandler(m_handler_before);
}

QStringList MESSAGE_RECORDER::texts() const
{
    return g_texts;
}
