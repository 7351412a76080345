// SPDX-License-Identifier: MIT

// Base of the tests of what a user could lose: the real dialog on the real flash database.
//
//     class TEST_FILTER : public LOST_WORK_TEST { Q_OBJECT private slots: void ...(); };
//     LOST_WORK_TEST_MAIN(TEST_FILTER)
//     #include "test_filter.moc"
//
//     store("Mine");
//     open("Mine");
//     type("m_device_id_edit", "0xC2 0x20 0x18");
//     click("m_apply_button");
//     QCOMPARE(stored_id("Mine"), qs("0xC2 0x20 0x18"));
//
// Each test function has settings and a database directory of its own, and no dialog. It fails when a modal window came
// that was not expected, or did not come that was, and when Qt printed a warning; what our own code logs does not
// count. A lock of another program is not waited for.
//
// Where the tests run on a server, the database directory names a schema of its own there.
#pragma once

#include "dialog/gfpq_dlg.h"
#include "flow/gfpq_flow_scene.h"
#include "flow/gfpq_operation_tab_widget.h"
#include "modal_driver.h"
#include "server_database.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_flash.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/zui_app.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlDatabase>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>
#include <string>

constexpr int LOST_WORK_FAMILY = 3;

// Shorter texts in expectations: UTF-8.
inline QString qs(const char* text)
{
    return QString::fromUtf8(text);
}

class LOST_WORK_TEST : public QObject
{
    Q_OBJECT

public:
    LOST_WORK_TEST();
    ~LOST_WORK_TEST() override;

protected:
    // The dialog with `device` selected, shown and active. `parent` may be null.
    GFPQ_DLG& open(const std::string& device = std::string(), int scheme = PGMIO_ACTIVE_SERIAL_X4,
                   QWidget* parent = nullptr);
    void close_dialog() { m_dlg.reset(); }
    GFPQ_DLG& dlg() const { return *m_dlg; }

    template <typename WIDGET = QWidget>
    WIDGET& part(const char* name) const
    {
        auto* const found = m_dlg->findChild<WIDGET*>(QLatin1String(name));
        if (found == nullptr)
            qFatal("no widget %s", name);
        return *found;
    }
    QTableView& table() const { return part<QTableView>("m_device_table_view"); }
    QString text(const char* edit_name) const { return part<QLineEdit>(edit_name).text(); }
    GPFQ_OPERATION_TAB_WIDGET& page(int operation) const;
    GFPQ_FLOW_SCENE& scene(int operation) const;

    // As a user does: text in place of what a line edit has, a click on a button, on the device table's row of that
    // name, a line of a combo box.
    void type(const char* edit_name, const QString& text);
    void click(const char* button_name);
    void click_row(const QString& name);
    void choose(const char* combo_name, const QString& text);
    // The device of the table's current row, of its selected row; null texts when there is none. The rows shown.
    QString current_row() const;
    QString selected_row() const;
    QStringList shown_rows() const;

    // The library, with the family and scheme of the dialog that was opened last, or of the start.
    GFPDB_MGR& manager() const;
    // The directory's database on a server, where it has one; else null.
    SERVER_DATABASE* server() const { return m_server.get(); }
    // The database directory, ending in "/"; another one that exists and is empty.
    std::string directory() const;
    std::string other_directory() const;
    // Stores a device as any program could; its flows are those of the first template.
    void store(const std::string& name, const std::string& id = "0xC2 0x20 0x19");
    // What the file has: the names of the devices in alphabetical order, one text column of a device (null when there
    // is no such device), the history as "replaced Mine", oldest first.
    QStringList stored_names() const;
    QString stored(const QString& name, const char* column = "device_id") const;
    QStringList history() const;
    // The first column of what a query of the file finds.
    QStringList read_column(const QString& statement, const QVariantList& values = {}) const;
    // Runs one statement on the database file, as a foreign program.
    void run_foreign(const QString& statement) const;
    // Another program holds the database until unlock(): "IMMEDIATE" keeps others from writing, "EXCLUSIVE" from
    // reading too.
    void lock(const QString& how = qs("IMMEDIATE"));
    void unlock();

    // Plays what a user does and sees, for tables of cases: steps with "; " between them. The first one that fails ends
    // it, and is named.
    //
    //     store NAME, ID       open NAME            row NAME (a click)        select NAME (selected, not current)
    //     FIELD = TEXT         save_as NAME         apply, ok, delete         return (in the name)
    //     lock HOW             unlock               sql STATEMENT             focus (the table)
    //     apply says A, B      (and the others: one box comes, its text has both, and it is accepted)
    //     FIELD is TEXT        COLUMN of NAME is TEXT (in the file)           devices is NAMES, history is ENTRIES
    //     current is NAME      selected is NAME     rows is NAMES             rows of NAME is COUNT
    //     dialog is closed     result is NAME       Delete is disabled
    //
    // A field is one of name, id, dies, template, filter. Lists have ", " between their parts.
    void play(const QString& steps);

    MODAL_DRIVER m_modals;

private slots:
    void init();
    void cleanup();

private:
    static void handle_message(QtMsgType type, const QMessageLogContext& context, const QString& text);

    // What a derived test sets up and takes down around each test function, inside the base's own.
    virtual void set_up() {}
    virtual void take_down() {}

    void play_step(const QString& step);
    // False when there is no such verb.
    bool act(const QString& verb, const QString& rest);
    void do_and_read(const QString& rest, const std::function<void()>& deed);
    QString seen_of(const QString& subject) const;
    void select_only(const QString& name);

    // True when the database of each test function is on a server.
    virtual bool is_on_server() const { return tests_are_on_server(); }

    std::unique_ptr<QTemporaryDir> m_scratch;
    std::unique_ptr<SERVER_DATABASE> m_server;
    std::unique_ptr<GFPQ_DLG> m_dlg;
    QStringList m_warnings;
};

#define LOST_WORK_TEST_MAIN(TEST_CLASS)                                                                                \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        ZUI_APP app(argc, argv);                                                                                       \
        TEST_CLASS test;                                                                                               \
        return QTest::qExec(&test, arguments_for_store(test, app.arguments()));                                        \
    }
