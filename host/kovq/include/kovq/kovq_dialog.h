// SPDX-License-Identifier: MIT

// Base class of the host's dialogs.
#pragma once

#include "kovq/kovq_export.h"

#include <QDialog>

class QSettings;

// A dialog in which Return and Enter click only the push button that has the focus: a line edit that acts on Return
// never presses a button at the same time, whatever the buttons' auto-default flags say. Escape rejects, as in QDialog.
//
// It is shown no larger than its screen has room for, and as large as the user made it last time. Smaller than
// its contents allow it cannot be.
//
// What the user made of its size is kept in the settings under its object name, and not at all when it has none or the
// user left the size alone: then it opens again as its form says. A larger size is kept for the day when the screen is
// larger again. Settings that hold something else than a size are ignored.
class KOVQ_EXPORT KOVQ_DIALOG : public QDialog
{
    Q_OBJECT

public:
    explicit KOVQ_DIALOG(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~KOVQ_DIALOG() override;

    // Where all dialogs of the process keep their sizes from now on: not owned, null for nowhere, as at the start. Set
    // it back to null before the settings go.
    static void set_settings(QSettings* settings);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QSize m_size_when_shown;
};
