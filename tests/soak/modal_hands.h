// SPDX-License-Identifier: MIT

// Deals with whatever opens over the dialog: message boxes, menus, the template editor, the folder dialog.
#pragma once

#include <QObject>
#include <QStringList>

#include <random>

class QMenu;
class QWidget;

// As long as it lives, every modal window and every menu is met with a random act once its event loop runs, and is
// closed afterwards if that did not close it.
class MODAL_HANDS : public QObject
{
    Q_OBJECT

public:
    explicit MODAL_HANDS(std::mt19937& random);
    ~MODAL_HANDS() override;

    int met() const { return m_met; }
    // What was met that should not be: a box that would render markup.
    QStringList take_problems();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void deal_with(QWidget* window);
    void deal_with_menu(QMenu& menu);
    void deal_with_dialog(QWidget& dialog);
    int any(int count);

    std::mt19937& m_random;
    int m_met = 0;
    QStringList m_problems;
};
