// SPDX-License-Identifier: MIT

// Uses the dialog at random, as hands at mouse and keyboard would.
#pragma once

#include "modal_hands.h"

#include <QMap>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <random>
#include <vector>

class GFPQ_DLG;
class GPFQ_OPERATION_TAB_WIDGET;
class QComboBox;
class QGraphicsView;
class QLineEdit;
class SOAK_STAND;

// Owns the dialog, and opens another one when it was closed. The same seed does the same things to the same world.
class MONKEY
{
public:
    MONKEY(const SOAK_STAND& stand, std::uint32_t seed);
    ~MONKEY();
    MONKEY(const MONKEY&) = delete;
    MONKEY& operator=(const MONKEY&) = delete;

    // Does one random thing and lets the dialog react; last_act() says what it was.
    void act();
    const QString& last_act() const { return m_last_act; }
    // How often each kind of thing was done.
    const QMap<QString, int>& acts() const { return m_acts; }

    // The open dialog; null right after it was closed.
    const GFPQ_DLG* dialog() const;
    MODAL_HANDS& modals() { return m_modals; }

private:
    struct KIND
    {
        int weight;
        const char* name;
        std::function<void()> act;
    };

    void open();
    std::vector<KIND> kinds();
    void do_one(const KIND& kind);
    void leave_popups();

    // Anywhere in the dialog.
    void click_anywhere();
    void press_any_key();
    void resize();
    // The device page.
    void select_device();
    void select_row(int row);
    void type_filter();
    void type_into_field();
    void change_combo();
    void toggle_template();
    void enter_device();
    void click_button(const char* name);
    void choose_directory();
    void close();
    // An operation page.
    void change_page();
    void show_page(int index);
    void click_chart();
    void open_chart_menu();
    void press_chart_key();
    void drop_on_chart();
    void edit_property();
    void hover();

    int any(int count);
    bool one_in(int count) { return any(count) == 0; }
    QString any_text();
    QString any_name();
    QLineEdit* line_edit(const char* name) const;
    void fill(const char* name, const QString& text);
    void type(QWidget* widget, const QString& text);
    GPFQ_OPERATION_TAB_WIDGET* page() const;
    QGraphicsView* chart() const;
    QPoint chart_point();
    void note(const QString& what) { m_last_act += QLatin1String(": ") + what; }

    const SOAK_STAND& m_stand;
    std::mt19937 m_random;
    MODAL_HANDS m_modals;
    std::vector<KIND> m_kinds;
    std::vector<int> m_weights;
    QMap<QString, int> m_acts;
    QString m_last_act;
    std::unique_ptr<GFPQ_DLG> m_dialog;
};
