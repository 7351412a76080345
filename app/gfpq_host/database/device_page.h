// SPDX-License-Identifier: MIT

// All devices of the database directory and of the catalogue, to look through, to find and to choose.
#pragma once

#include "database/device_model.h"

#include <QWidget>

#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

class GFPDB_DATABASE;
class QLabel;
class QLineEdit;
class QSettings;
class QTableView;

class DEVICE_PAGE : public QWidget
{
    Q_OBJECT

public:
    // `database` is not owned and must outlive the page. Nothing is read before the first refresh().
    explicit DEVICE_PAGE(GFPDB_DATABASE& database);

    // Reads the devices again; what was selected stays so, as far as it is there and the filter shows it. Where the
    // current device is gone, the next one is current; it is not selected, because the user did not choose it.
    void refresh();
    // Selects the current device when nothing is selected.
    void select_current();
    // The selected devices in the order of their rows, without flows; and the one that has the focus.
    std::vector<GFPDB_RECORD> selected() const;
    int selected_count() const;
    bool is_builtin_selected() const;
    std::optional<GFPDB_RECORD> current() const;
    // Makes the device the current one; a filter that hides it is cleared.
    void choose(const GFPDB_RECORD& device);
    // The selected rows with all columns, as lines with tabs; tabs and line breaks in a value become blanks.
    QString selected_text() const;
    void select_all();
    void find();

    QTableView& table() { return *m_table; }

    // The columns as the user has them.
    void load(const QSettings& settings);
    void store(QSettings& settings) const;

signals:
    // What is selected, or what is there, has changed.
    void changed();
    // The user wants to open the current device.
    void opened();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void create_table();
    void filter();
    void remember_selection();
    void restore_selection();
    void show_count();
    std::vector<int> selected_rows() const;
    bool choose_shown(const GFPDB_RECORD& device);

    GFPDB_DATABASE& m_database;
    DEVICE_MODEL m_model;
    QLineEdit* m_filter_edit;
    QLabel* m_count_label;
    QTableView* m_table;
    // While the model is reset: which devices are selected, and which one is current; empty for none.
    std::unordered_set<std::string> m_kept;
    std::string m_kept_current;
};
