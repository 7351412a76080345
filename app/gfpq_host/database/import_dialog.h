// SPDX-License-Identifier: MIT

// Record files on their way into the database: what they would change is shown first, then all of it is stored or none.
#pragma once

#include "database/import_model.h"
#include "database/import_preview.h"

#include <QDialog>
#include <QPointer>
#include <QTimer>

class PROBLEM_LINE;
class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QSortFilterProxyModel;
class QSplitter;
class QTableView;

class IMPORT_DIALOG : public QDialog
{
    Q_OBJECT

public:
    // Reads `files` (JSON, or CSV by their names) when it is shown. `database` must outlive the dialog. Accepted when
    // something was stored; until then it can be cancelled, also while it stores.
    IMPORT_DIALOG(GFPDB_DATABASE& database, const QStringList& files, QWidget* parent);

    void reject() override;

private:
    QWidget* create_wishes();
    QSplitter* create_preview();
    QWidget* create_buttons();
    QComboBox* create_place(std::vector<int> values, QString (*text_of)(int value), const char* object_name);

    IMPORT_WISH wish() const;
    void begin();
    void work();
    void show_preview();
    void show_busy(bool is_busy);
    // Null when there is none.
    const IMPORT_ROW* current_row() const;
    void show_details();
    void compare();
    void store();
    void show_failure(const QString& problem);
    void show_stored();
    QString summary() const;
    QString hindrance();

    GFPDB_DATABASE& m_database;
    IMPORT_PREVIEW m_preview;
    IMPORT_MODEL m_model;
    QTimer m_timer;
    bool m_is_storing = false;
    bool m_is_cancelled = false;
    bool m_is_stored = false;
    // Where the focus comes back to.
    QPointer<QWidget> m_focused;
    // Why the last attempt to store has failed.
    QString m_failure;

    QSortFilterProxyModel* m_sorted;
    QComboBox* m_family_combo = nullptr;
    QComboBox* m_mode_combo = nullptr;
    QCheckBox* m_replace_check = nullptr;
    QTableView* m_table = nullptr;
    QPlainTextEdit* m_details = nullptr;
    QLabel* m_summary = nullptr;
    PROBLEM_LINE* m_problem = nullptr;
    QProgressBar* m_progress = nullptr;
    QPushButton* m_compare_button = nullptr;
    QPushButton* m_import_button = nullptr;
    QPushButton* m_close_button = nullptr;
};
