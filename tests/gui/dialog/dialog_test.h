// SPDX-License-Identifier: MIT

// Base of the tests of the Configuration Device dialog: a dialog on the recording flash database.
//
// open() makes the dialog and forgets the calls made so far; open_recorded() keeps them. The dialog is destroyed after
// each test function. Widgets are found by their object names; a name that does not exist ends the test program.
#pragma once

#include "dialog/gfpq_dlg.h"
#include "flow/gfpq_operation_tab_widget.h"
#include "gui_test.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsScene>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

constexpr int CEDAR = 5;
constexpr int ALDER = 3;
constexpr int SCHEME_X4 = 13;
constexpr int SCHEME_X1 = 7;
constexpr int READ_ONLY_ROLE = Qt::UserRole + 1;
constexpr int EDITABLE_ROLE = Qt::UserRole + 2;

// The properties that the form has a field for.
const std::set<int> ALL_FIELDS{GFPDB_FLASH_NAME,
                               GFPDB_FLASH_DEVICE_ID,
                               GFPDB_FLASH_VOLTAGE,
                               GFPDB_FLASH_DENSITY,
                               GFPDB_FLASH_TOTAL_DIE,
                               GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK,
                               GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK,
                               GFPDB_FLASH_FLOW_TEMPLATE};

using test_rows::TEXT;

// What the dialog is made with.
struct DIALOG_ARGS
{
    int family = CEDAR;
    int config_scheme = SCHEME_X4;
    std::string device_name = {};
    bool enable_family = true;
    bool enable_config_mode = true;
    bool enable_edit = true;
    std::map<int, std::vector<int>> family_schemes = {};
    QWidget* parent = nullptr;
};

// Fills the record's texts and its numbers.
void set_texts(FLASH_DOUBLE& flash, const std::string& id, const std::string& voltage, const std::string& density,
               const std::string& flow_template);
void set_numbers(FLASH_DOUBLE& flash, int total_die, int single_io_clocks, int quad_io_clocks);

// The usual arguments with this map of families and modes.
DIALOG_ARGS with_map(std::map<int, std::vector<int>> family_schemes);

class DIALOG_TEST : public GUI_TEST
{
    Q_OBJECT

protected:
    GFPQ_DLG& open(const DIALOG_ARGS& args = DIALOG_ARGS());
    GFPQ_DLG& open_recorded(const DIALOG_ARGS& args = DIALOG_ARGS());
    // As open(), with this device selected.
    GFPQ_DLG& open_with(const std::string& device_name);
    GFPQ_DLG& open_with(const QString& device_name) { return open_with(device_name.toStdString()); }
    GFPQ_DLG& open_with(const char* device_name) { return open_with(std::string(device_name)); }
    // Shows the dialog as the active window.
    void show_dialog();
    GFPQ_DLG& dlg() const { return *m_dlg; }
    void close_dialog() { m_dlg.reset(); }

    QLineEdit& edit(const char* name) const { return child<QLineEdit>(name); }
    QComboBox& combo(const char* name) const { return child<QComboBox>(name); }
    QPushButton& button(const char* name) const { return child<QPushButton>(name); }
    QLabel& label(const char* name) const { return child<QLabel>(name); }
    QCheckBox& check(const char* name) const { return child<QCheckBox>(name); }
    QWidget& widget(const char* name) const { return child<QWidget>(name); }
    QTableView& table() const { return child<QTableView>("m_device_table_view"); }
    QTabWidget& tabs() const { return child<QTabWidget>("m_prog_flows_tab_widget"); }
    QSortFilterProxyModel& proxy() const;
    QStandardItemModel& device_model() const;
    // The operation page of `operation`.
    GPFQ_OPERATION_TAB_WIDGET& page(int operation) const;

    // The texts of the rows that the table shows, of every row of the model, of the items of a combo box.
    QStringList shown_rows() const;
    QStringList all_rows() const;
    QStringList items(const char* combo_name) const;
    // The device of the table's current row; null text when there is none.
    QString current_row() const;
    // Selects the shown row of that text, as a user's click does.
    void pick(const TEXT& name);
    // Puts `text` into a line edit; enter() presses Return there, too.
    void type_in(const char* edit_name, const TEXT& text);
    void enter(const char* edit_name, const TEXT& text);
    // The text of a line edit, or the current one of a combo box; the data of a combo box's current item.
    QString text(const char* name) const;
    int data(const char* combo_name) const { return combo(combo_name).currentData().toInt(); }
    // Makes the item of that data, or of that text, current.
    void choose(const char* combo_name, int data);
    void choose_text(const char* combo_name, const TEXT& text);
    // Runs Apply; true when it succeeded.
    bool apply();
    // Puts another manager in the place of the active one.
    MGR_DOUBLE& switch_manager();
    // Runs a slot without arguments, as its signal would.
    void run(const char* slot);
    // The actions of an operation page, as type and first value: "0:write enable".
    QStringList page_flow(int operation) const;
    // Those of the five pages in one list, a page at a time.
    QStringList page_flows() const;
    // True when the blocks of an operation page can be selected.
    bool page_is_editable(int operation) const;
    // The five enabled states of the operation pages.
    QList<bool> pages_enabled() const;

    // Every call that matters for the course of things: without the questions that only read.
    QStringList calls() const;

    template <typename WIDGET>
    WIDGET& child(const char* name) const
    {
        auto* const found = m_dlg->findChild<WIDGET*>(QLatin1String(name));
        if (found == nullptr)
            qFatal("no widget %s", name);
        return *found;
    }

private:
    void set_up() final;
    void take_down() final;
    // What a derived test sets up in the world before each test function.
    virtual void fill_world() {}

    std::unique_ptr<GFPQ_DLG> m_dlg;
    QStringList m_forbidden_calls;
};

QStringList list_of(std::initializer_list<const char*> texts);
// What page_flows() gives for make_operations(name).
QStringList flows_named(const QString& name);
inline QStringList flows_named(const char* name)
{
    return flows_named(qs(name));
}
// Where two lists of calls part; empty when they are equal.
QString first_difference(const QStringList& actual, const QStringList& expected);

// As QCOMPARE for lists too long for it: says where they part.
#define COMPARE_CALLS(ACTUAL, EXPECTED)                                                                                \
    do {                                                                                                               \
        const QString difference = first_difference(ACTUAL, EXPECTED);                                                 \
        QVERIFY2(difference.isEmpty(), qPrintable(difference));                                                        \
    } while (false)
