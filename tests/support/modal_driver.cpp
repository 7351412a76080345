// SPDX-License-Identifier: MIT
#include "modal_driver.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

namespace {

bool runs_an_event_loop(const QWidget* window)
{
    return window->isWindow() && (window->isModal() || qobject_cast<const QMenu*>(window) != nullptr);
}

QStringList entries_of(const QMenu& menu)
{
    QStringList entries;
    for (const QAction* action : menu.actions())
        entries.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    return entries;
}

MET_MODAL look_at(const QWidget* window)
{
    MET_MODAL met;
    met.class_name = QLatin1String(window->metaObject()->className());
    met.title = window->windowTitle();
    met.is_modal = window->isModal();
    met.has_parent = window->parentWidget() != nullptr;
    if (const auto* menu = qobject_cast<const QMenu*>(window))
        met.menu_entries = entries_of(*menu);
    const auto* box = qobject_cast<const QMessageBox*>(window);
    if (box == nullptr)
        return met;
    met.text = box->text();
    met.informative_text = box->informativeText();
    met.detailed_text = box->detailedText();
    met.icon = box->icon();
    met.text_format = box->textFormat();
    for (const QAbstractButton* button : box->buttons())
        met.buttons.append(button->text().remove(QLatin1Char('&')));
    return met;
}

} // namespace

MODAL_DRIVER::MODAL_DRIVER()
{
    qApp->installEventFilter(this);
}

MODAL_DRIVER::~MODAL_DRIVER()
{
    if (qApp != nullptr)
        qApp->removeEventFilter(this);
}

void MODAL_DRIVER::expect(ACTION action)
{
    m_expected.push_back(std::move(action));
}

QStringList MODAL_DRIVER::problems() const
{
    QStringList all = m_problems;
    for (std::size_t missing = 0; missing < m_expected.size(); ++missing)
        all.append(QStringLiteral("an expected modal window never came"));
    return all;
}

void MODAL_DRIVER::reset()
{
    m_expected.clear();
    m_met.clear();
    m_problems.clear();
}

bool MODAL_DRIVER::eventFilter(QObject* watched, QEvent* event)
{
    auto* const window = event->type() == QEvent::Show ? qobject_cast<QWidget*>(watched) : nullptr;
    if (window != nullptr && runs_an_event_loop(window)) {
        // The window's own event loop starts only after it was shown: act from in there.
        const QPointer<QWidget> shown(window);
        QTimer::singleShot(0, this, [this, shown] {
            if (!shown.isNull())
                meet(shown.data());
        });
    }
    return QObject::eventFilter(watched, event);
}

void MODAL_DRIVER::meet(QWidget* window)
{
    const MET_MODAL met = look_at(window);
    m_met.append(met);
    const QString what =
        met.class_name + QLatin1String(" \"") + met.title + QLatin1String("\" \"") + met.text + QLatin1Char('"');
    if (m_expected.empty()) {
        close_left_open(window, QStringLiteral("unexpected modal window: ") + what);
        return;
    }
    const ACTION action = m_expected.front();
    m_expected.pop_front();
    const QPointer<QWidget> guard(window);
    action(window);
    if (!guard.isNull() && guard->isVisible())
        close_left_open(window, QStringLiteral("modal window still open after its action: ") + what);
}

void MODAL_DRIVER::close_left_open(QWidget* window, const QString& why)
{
    m_problems.append(why);
    if (auto* const dialog = qobject_cast<QDialog*>(window))
        dialog->done(QDialog::Rejected);
    else
        window->close();
}

MODAL_DRIVER::ACTION MODAL_DRIVER::accept()
{
    return [](QWidget* window) {
        auto* const box = qobject_cast<QMessageBox*>(window);
        QAbstractButton* const ok = box == nullptr ? nullptr : box->button(QMessageBox::Ok);
        if (ok != nullptr)
            ok->click();
        else if (auto* const dialog = qobject_cast<QDialog*>(window))
            dialog->accept();
    };
}

MODAL_DRIVER::ACTION MODAL_DRIVER::reject()
{
    return [](QWidget* window) {
        if (auto* const dialog = qobject_cast<QDialog*>(window))
            dialog->reject();
        else
            window->close();
    };
}

MODAL_DRIVER::ACTION MODAL_DRIVER::click(const QString& button_text)
{
    return [button_text](QWidget* window) {
        for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
            if (button->text().remove(QLatin1Char('&')) == button_text) {
                button->click();
                return;
            }
        }
    };
}

MODAL_DRIVER::ACTION MODAL_DRIVER::trigger(const QString& entry_text)
{
    return [entry_text](QWidget* window) {
        auto* const menu = qobject_cast<QMenu*>(window);
        if (menu == nullptr)
            return;
        for (QAction* action : menu->actions()) {
            if (action->text() == entry_text) {
                menu->setActiveAction(action);
                QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
                QApplication::sendEvent(menu, &press);
                return;
            }
        }
    };
}
