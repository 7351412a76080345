// SPDX-License-Identifier: MIT
#include "results/run_log.h"

#include <QTime>

RUN_LOG::RUN_LOG()
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setMaximumBlockCount(MOST_LINES);
    setTabChangesFocus(true);
    // The keys move a cursor, so that lines can be read and copied without a mouse.
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void RUN_LOG::add(const QString& text)
{
    appendPlainText(QTime::currentTime().toString(QStringLiteral("HH:mm:ss  ")) + text);
}
