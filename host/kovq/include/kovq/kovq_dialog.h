// Base class of the host's dialogs.
#pragma once

#include <QDialog>

// A dialog in which Return and Enter click only the push button that has the focus: a line edit that acts on Return
// never presses a button at the same time, whatever the buttons' auto-default flags say. Escape rejects, as in QDialog.
class KOVQ_DIALOG : public QDialog
{
    Q_OBJECT

public:
    explicit KOVQ_DIALOG(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~KOVQ_DIALOG() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
