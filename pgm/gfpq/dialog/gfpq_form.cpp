// SPDX-License-Identifier: MIT
#include "dialog/gfpq_form.h"

#include <QString>

namespace {

const QLatin1String HELD_BACK("QMetaObject::connectSlotsByName: No matching signal for ");

// The handler that was installed before. Stays set: another thread may be printing a line through it.
QtMessageHandler g_next_handler = nullptr;

void pass_on(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type != QtWarningMsg || !text.startsWith(HELD_BACK))
        g_next_handler(type, context, text);
}

} // namespace

GFPQ_CONNECTION_LINES_CUT::GFPQ_CONNECTION_LINES_CUT()
{
    // Set before a line can be printed.
    g_next_handler = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(&pass_on);
}

// A handler that was installed since then stays.
GFPQ_CONNECTION_LINES_CUT::~GFPQ_CONNECTION_LINES_CUT()
{
    const QtMessageHandler installed = qInstallMessageHandler(g_next_handler);
    if (installed != &pass_on)
        qInstallMessageHandler(installed);
}
