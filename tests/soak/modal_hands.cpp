// SPDX-License-Identifier: MIT
#include "modal_hands.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QTableView>
#include <QTest>
#include <QTimer>

MODAL_HANDS::MODAL_HANDS(std::mt19937& random) : m_random(random)
{
    qApp->installEventFilter(this);
}

MODAL_HANDS::~MODAL_HANDS()
{
    qApp->removeEventFilter(this);
}

QStringList MODAL_HANDS::take_problems()
{
    QStringList problems;
    problems.swap(m_problems);
    return problems;
}

int MODAL_HANDS::any(int count)
{
    return count > 0 ? int(m_random() % std::uint32_t(count)) : 0;
}

bool MODAL_HANDS::eventFilter(QObject* watched, QEvent* event)
{
    auto* const window = event->type() == QEvent::Show ? qobject_cast<QWidget*>(watched) : nullptr;
    if (window != nullptr && window->isWindow() && (window->isModal() || qobject_cast<QMenu*>(window) != nullptr)) {
        // The window's own event loop starts only after it was shown: act from in there.
        const QPointer<QWidget> shown(window);
        QTimer::singleShot(0, this, [this, shown] {
            if (!shown.isNull() && shown->isVisible())
                deal_with(shown.data());
        });
    }
    return QObject::eventFilter(watched, event);
}

void MODAL_HANDS::deal_with(QWidget* window)
{
    ++m_met;
    const QPointer<QWidget> guard(window);
    if (auto* const menu = qobject_cast<QMenu*>(window))
        deal_with_menu(*menu);
    else if (qobject_cast<QFileDialog*>(window) == nullptr)
        deal_with_dialog(*window);
    if (guard.isNull() || !guard->isVisible())
        return;
    if (auto* const dialog = qobject_cast<QDialog*>(window))
        dialog->reject();
    else
        window->close();
}

// Any entry, also one of a submenu, or none.
void MODAL_HANDS::deal_with_menu(QMenu& menu)
{
    QList<QAction*> entries = menu.actions();
    for (const QAction* entry : menu.actions()) {
        if (entry->menu() != nullptr)
            entries += entry->menu()->actions();
    }
    QAction* const entry = entries.isEmpty() ? nullptr : entries[any(entries.size())];
    const bool is_chosen = entry != nullptr && entry->isEnabled() && entry->menu() == nullptr && any(5) > 0;
    const QPointer<QAction> chosen(is_chosen ? entry : nullptr);
    menu.close();
    if (!chosen.isNull())
        chosen->trigger();
}

void MODAL_HANDS::deal_with_dialog(QWidget& dialog)
{
    if (const auto* const box = qobject_cast<QMessageBox*>(&dialog)) {
        if (box->textFormat() != Qt::PlainText)
            m_problems << QStringLiteral("a box renders markup: ") + box->text();
    }
    const QPointer<QWidget> guard(&dialog);
    for (int act = any(4); act >= 0 && !guard.isNull() && guard->isVisible(); --act) {
        if (auto* const table = dialog.findChild<QTableView*>())
            table->selectRow(any(table->model()->rowCount()));
        const QList<QAbstractButton*> buttons = dialog.findChildren<QAbstractButton*>();
        if (any(3) > 0 && !buttons.isEmpty())
            QTest::mouseClick(buttons[any(buttons.size())], Qt::LeftButton);
        else
            QTest::keyClick(&dialog, any(2) == 0 ? Qt::Key_Return : Qt::Key_Tab);
    }
}
