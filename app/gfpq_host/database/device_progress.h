// SPDX-License-Identifier: MIT

// What is done with devices one after the other: of many the user sees how far it is, and can end it.
#pragma once

#include <QCoreApplication>
#include <QProgressDialog>

#include <memory>

class DEVICE_PROGRESS
{
    Q_DECLARE_TR_FUNCTIONS(DEVICE_PROGRESS)

public:
    // `text` says what is done, to `count` devices. Few devices are done before a window could be read, so none is
    // shown.
    DEVICE_PROGRESS(QWidget* parent, const QString& text, int count);

    // So many are done. False when the user has ended it.
    bool goes_on(int done);
    // Nothing more is done.
    void end() { m_dialog.reset(); }
    bool is_cancelled() const { return m_is_cancelled; }

private:
    std::unique_ptr<QProgressDialog> m_dialog;
    bool m_is_cancelled = false;
};
