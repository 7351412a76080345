// SPDX-License-Identifier: MIT
#include "kovq/kovq_dialog.h"

#include <QGuiApplication>
#include <QHideEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QShowEvent>

namespace {

// What a window manager usually puts around a window: as much as QDialog allows for when it places one.
constexpr QSize USUAL_FRAME(10, 40);

QSettings* g_settings = nullptr;

QString size_key(const QWidget& dialog)
{
    return QLatin1String("dialog_size/") + dialog.objectName();
}

bool has_memory(const QWidget& dialog)
{
    return g_settings && !dialog.objectName().isEmpty();
}

// The size that the user gave `dialog` last time; an invalid one when there is none.
QSize remembered_size(const QWidget& dialog)
{
    if (!has_memory(dialog))
        return QSize();
    const QSize size = g_settings->value(size_key(dialog)).toSize();
    return size.isEmpty() ? QSize() : size;
}

// Where QDialog is going to put it. Null when there is no screen at all.
QScreen* screen_of(const QWidget& dialog)
{
    if (const QWidget* parent = dialog.parentWidget())
        return parent->screen();
    QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
    return screen ? screen : QGuiApplication::primaryScreen();
}

// The frame is not there before the window is shown; the parent has one of the same kind.
QSize frame_of(const QWidget& dialog)
{
    const QWidget* parent = dialog.parentWidget();
    const QWidget* window = parent ? parent->window() : &dialog;
    return (window->frameGeometry().size() - window->size()).expandedTo(USUAL_FRAME);
}

QSize fitting_size(const QWidget& dialog, QSize size)
{
    const QScreen* screen = screen_of(dialog);
    return screen ? size.boundedTo(screen->availableSize() - frame_of(dialog)) : size;
}

// The size that the window has when it is not maximized.
QSize own_size(const QWidget& window)
{
    const bool is_maximized = window.isMaximized() || window.isFullScreen();
    return is_maximized ? window.normalGeometry().size() : window.size();
}

bool is_return(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

// With Shift, Control, Alt or Meta the keys mean something else.
bool is_plain(const QKeyEvent& event)
{
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace

KOVQ_DIALOG::KOVQ_DIALOG(QWidget* parent, Qt::WindowFlags flags) : QDialog(parent, flags) {}

KOVQ_DIALOG::~KOVQ_DIALOG() = default;

void KOVQ_DIALOG::set_settings(QSettings* settings)
{
    g_settings = settings;
}

// Before QDialog places the window by its size.
void KOVQ_DIALOG::showEvent(QShowEvent* event)
{
    if (!event->spontaneous() && isWindow()) {
        const QSize remembered = remembered_size(*this);
        resize(fitting_size(*this, remembered.isValid() ? remembered : size()));
        m_size_when_shown = size();
    }
    QDialog::showEvent(event);
}

void KOVQ_DIALOG::hideEvent(QHideEvent* event)
{
    const QSize size = own_size(*this);
    const bool is_the_users = isWindow() && size != m_size_when_shown && !size.isEmpty();
    if (!event->spontaneous() && is_the_users && has_memory(*this))
        g_settings->setValue(size_key(*this), size);
    QDialog::hideEvent(event);
}

// QDialog sees no Return and no Enter: it takes Enter of the keypad, whatever the modifiers, for the default button.
void KOVQ_DIALOG::keyPressEvent(QKeyEvent* event)
{
    if (!is_return(*event)) {
        QDialog::keyPressEvent(event);
        return;
    }
    if (!is_plain(*event)) {
        event->ignore();
        return;
    }
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()))
        button->click();
    event->accept();
}
