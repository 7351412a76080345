#include "kovq/kovq_dialog.h"

#include <QKeyEvent>
#include <QPushButton>

namespace {

// With Shift, Control or Alt the keys mean something else.
bool is_plain_return(const QKeyEvent& event)
{
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace

KOVQ_DIALOG::KOVQ_DIALOG(QWidget* parent, Qt::WindowFlags flags) : QDialog(parent, flags) {}

KOVQ_DIALOG::~KOVQ_DIALOG() = default;

void KOVQ_DIALOG::keyPressEvent(QKeyEvent* event)
{
    if (!is_plain_return(*event)) {
        QDialog::keyPressEvent(event);
        return;
    }
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()))
        button->click();
    event->accept();
}
