// SPDX-License-Identifier: MIT

// Base of the tests of languages, screens and accessibility: the dialogs on a recording flash database with one device
// of each sort.
#pragma once

#include "dialog/gfpq_dlg.h"
#include "gui_test.h"

#include <QGraphicsView>
#include <QTabWidget>
#include <QTableView>

#include <memory>

class PEOPLE_TEST : public GUI_TEST
{
    Q_OBJECT

protected:
    // A family and a scheme that the database offers.
    static constexpr int FAMILY = 5;
    static constexpr int SCHEME = 13;

    // Shows the dialog with the custom device selected, as the active window; it is destroyed after the test function.
    GFPQ_DLG& open_dialog();
    void close_dialog() { m_dialog.reset(); }

    QTabWidget& tabs() const;
    // Brings an operation's page to the front.
    void show_operation_page(int operation) const;
    // Of the operation page in front.
    QGraphicsView& chart() const;
    QTableView& property_table() const;
    // The names of the actions of the page in front, in chain order.
    QStringList chain() const;

    template <typename WIDGET>
    WIDGET& child(const char* name) const
    {
        auto* const found = m_dialog->findChild<WIDGET*>(QLatin1String(name));
        if (found == nullptr)
            qFatal("no widget %s", name);
        return *found;
    }

    void take_down() override;

private:
    void set_up() override;

    std::unique_ptr<GFPQ_DLG> m_dialog;
};
