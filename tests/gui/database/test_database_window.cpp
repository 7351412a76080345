// SPDX-License-Identifier: MIT

// The window of the database, from the programmer's menu to the clipboard. What could be lost there is tested in
// tests/lost_work.
#include "cut_labels.h"
#include "database/database_menus.h"
#include "database/database_window.h"
#include "program/help_menu.h"
#include "program/program_icon.h"
#include "programmer_test.h"
#include "text_catalogue.h"

#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_database.h"
#include "new_device/device_storage.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QMenu>
#include <QStatusBar>
#include <QUrl>

namespace {

constexpr int OWN_FAMILY = 3;
constexpr int OWN_SCHEME = PGMIO_ACTIVE_SERIAL_X4;
constexpr int CHANGED_BY_COLUMN = 11;

} // namespace

// Hears which file is to be opened.
class GUIDE_READER : public QObject
{
    Q_OBJECT

public:
    GUIDE_READER() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "read"); }
    ~GUIDE_READER() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    GUIDE_READER(const GUIDE_READER&) = delete;
    GUIDE_READER& operator=(const GUIDE_READER&) = delete;

    QStringList m_files;

public slots:
    void read(const QUrl& url) { m_files.append(url.toLocalFile()); }
};

class TEST_DATABASE_WINDOW : public PROGRAMMER_TEST
{
    Q_OBJECT

private:
    // Stores a device as another program could.
    static void store(const char* name)
    {
        GFPDB_RECORD device;
        device.row.name = name;
        device.row.family = OWN_FAMILY;
        device.row.scheme = OWN_SCHEME;
        device.row.device_id = "0xC2 0x20 0x19";
        device.row.voltage = "3.3V";
        device.row.density = "256Mb";
        device.row.total_die = 1;
        device.row.single_io_dummy_clock = 8;
        device.row.quad_io_dummy_clock = 6;
        QString problem;
        QVERIFY2(store_new_device(device, problem), qPrintable(problem));
    }

    // The same with the flows of a built-in one.
    static void store_copy(const char* name)
    {
        GFPDB_DATABASE database{std::string()};
        GFPDB_SELECTION selection;
        selection.name = LARGE_DEVICE;
        GFPDB_RECORD device = database.find_builtin(selection).at(0);
        device.row.name = name;
        device.row.family = OWN_FAMILY;
        device.row.scheme = OWN_SCHEME;
        device.row.voltage = "3.3V";
        QString problem;
        QVERIFY2(store_new_device(device, problem), qPrintable(problem));
    }

    // The window, opened from the programmer's menu and active.
    DATABASE_WINDOW& open_database(const DIALOG_OPTIONS& options = DIALOG_OPTIONS(), int scheme = PGMIO_ACTIVE_SERIAL)
    {
        open(SMALL_DEVICE, scheme, options);
        return show_database();
    }
    DATABASE_WINDOW& show_database()
    {
        child<QAction>("m_database_action").trigger();
        DATABASE_WINDOW* found = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* database = qobject_cast<DATABASE_WINDOW*>(widget))
                found = database;
        }
        if (!found || !QTest::qWaitForWindowActive(found))
            qFatal("no active database window");
        m_database = found;
        return *found;
    }

    template <typename WIDGET>
    WIDGET& part(const char* name) const
    {
        auto* found = m_database->findChild<WIDGET*>(qs(name));
        if (!found)
            qFatal("the window has no %s", name);
        return *found;
    }
    QTableView& table() const { return part<QTableView>("m_devices_table"); }
    void trigger(const char* action) const { part<QAction>(action).trigger(); }
    void find(const QString& text) const { part<QLineEdit>("m_find_edit").setText(text); }
    QString message() const { return m_database->statusBar()->currentMessage(); }
    QString cell(int row, int column = 0) const { return table().model()->index(row, column).data().toString(); }
    QString count() const { return part<QLabel>("m_count_label").text(); }
    // Finds the device by its name, and makes it the current one.
    void choose(const char* name) const
    {
        find(qs(name));
        table().setFocus();
        table().selectRow(0);
        QCOMPARE(cell(0), qs(name));
    }
    int builtin_count() const { return static_cast<int>(gfpdb_catalogue_parts().size()); }

    DATABASE_WINDOW* m_database = nullptr;

private slots:
    void the_devices_of_the_directory_are_beside_those_of_the_catalogue()
    {
        store("Mine");
        open_database();
        QCOMPARE(table().model()->rowCount(), builtin_count() + 1);
        find(qs("mine"));
        QCOMPARE(count(), qs("1 of %1 devices").arg(builtin_count() + 1));
        QStringList cells;
        for (int column = 1; column < 10; ++column)
            cells.append(cell(0, column));
        QCOMPARE(cells.mid(0, 4), (QStringList{qs("Macronix"), qs("0xC2 0x20 0x19"), qs("256Mb"), qs("3.3V")}));
        QCOMPARE(cells.mid(7), (QStringList{qs("Active Serial x4"), qs("Own")}));
        QVERIFY(!cell(0, CHANGED_BY_COLUMN).isEmpty());
        find(qs(LARGE_DEVICE));
        QCOMPARE(cell(0, 9), qs("Built in"));
        QCOMPARE(cell(0, 5), qs("4"));
    }

    void there_is_one_window_and_it_goes_with_the_programmer()
    {
        DATABASE_WINDOW& first = open_database();
        store("Mine");
        QCOMPARE(&show_database(), &first);
        first.close();
        store("Yours");
        QCOMPARE(&show_database(), &first);
        QCOMPARE(table().model()->rowCount(), builtin_count() + 2);
        window().close();
        QVERIFY(!first.isVisible());
    }

    void the_window_is_remembered()
    {
        open_database().resize(801, 503);
        table().setColumnWidth(0, 333);
        table().sortByColumn(3, Qt::DescendingOrder);
        m_database->close();
        close_window();
        open_database();
        QCOMPARE(m_database->size(), QSize(801, 503));
        QCOMPARE(table().columnWidth(0), 333);
        QCOMPARE(table().horizontalHeader()->sortIndicatorSection(), 3);
        QCOMPARE(cell(0, 3), qs("2048Mb"));
    }

    void keys_go_from_the_line_into_the_table_and_back()
    {
        open_database();
        auto& line = part<QLineEdit>("m_find_edit");
        QTRY_VERIFY(line.hasFocus());
        QTest::keyClicks(&line, qs("c2 20 19"));
        QVERIFY(table().model()->rowCount() > 0 && table().model()->rowCount() < builtin_count());
        QTest::keyClick(&line, Qt::Key_Return);
        QVERIFY(table().hasFocus());
        QCOMPARE(table().currentIndex().row(), 0);
        QTest::keyClick(&table(), Qt::Key_Tab);
        QVERIFY(!table().hasFocus());
        trigger("m_find_action");
        QVERIFY(line.hasFocus());
        QCOMPARE(line.selectedText(), qs("c2 20 19"));
        QTest::keyClick(&line, Qt::Key_Escape);
        QCOMPARE(table().model()->rowCount(), builtin_count());
    }

    void what_is_selected_stays_so_data()
    {
        rows_named<QString>({"when it is filtered", "when it is sorted", "when it is read again"});
    }

    void what_is_selected_stays_so()
    {
        const auto how = row<QString>();
        store("Mine");
        open_database();
        table().selectRow(5);
        table().selectionModel()->select(table().model()->index(9, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
        trigger("m_copy_action");
        QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
        const QString current = table().currentIndex().data().toString();
        if (how.contains(qs("filtered")))
            find(qs("m"));
        else if (how.contains(qs("sorted")))
            table().sortByColumn(0, Qt::DescendingOrder);
        else
            trigger("m_refresh_action");
        trigger("m_copy_action");
        QStringList lines_after = QApplication::clipboard()->text().split(QLatin1Char('\n'));
        lines.sort();
        lines_after.sort();
        QCOMPARE(lines_after, lines);
        QCOMPARE(table().currentIndex().data().toString(), current);
    }

    void two_devices_are_compared()
    {
        store("Mine");
        open_database();
        choose("Mine");
        QVERIFY(!part<QAction>("m_compare_action").isEnabled());
        find(QString());
        table().selectionModel()->select(table().model()->index(0, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QStringList titles;
        m_modals.expect([&titles](QWidget* dialog) {
            const QAbstractItemModel& model = *dialog->findChild<QTableView*>(qs("m_compare_table"))->model();
            for (int side = 2; side < model.columnCount(); ++side)
                titles.append(model.headerData(side, Qt::Horizontal).toString());
            dialog->close();
        });
        trigger("m_compare_action");
        QCOMPARE(titles.size(), 2);
        QVERIFY(titles.contains(qs("Mine (Heather, Active Serial x4)")));
        QVERIFY(titles.contains(cell(0)));
    }

    void a_device_that_is_brought_back_is_in_the_table()
    {
        store("Mine");
        open_database();
        choose("Mine");
        trigger("m_delete_action");
        QCOMPARE(table().model()->rowCount(), 0);
        part<QTabWidget>("m_database_pages").setCurrentIndex(1);
        part<QTableView>("m_history_table").selectRow(0);
        m_modals.expect([](QWidget* dialog) { qobject_cast<QDialog*>(dialog)->accept(); });
        part<QAbstractButton>("m_bring_back_button").click();
        QCOMPARE(cell(0), qs("Mine"));
        trigger("m_find_action");
        QCOMPARE(m_database->focusWidget(), &part<QWidget>("m_history_name_edit"));
    }

    void selected_rows_are_copied_as_lines_with_tabs()
    {
        store("Mine");
        store("Yours");
        open_database();
        find(qs("Mine"));
        table().selectAll();
        trigger("m_copy_action");
        const QStringList cells = QApplication::clipboard()->text().split(QLatin1Char('\t'));
        QCOMPARE(cells.mid(0, 5),
                 (QStringList{qs("Mine"), qs("Macronix"), qs("0xC2 0x20 0x19"), qs("256Mb"), qs("3.3V")}));
        QCOMPARE(cells.size(), 12);
        QVERIFY(cells.last().endsWith(QLatin1Char('\n')));
    }

    void a_device_is_opened_in_the_dialog_data()
    {
        rows<QString, bool, int, int, int>({
            {"an own one by Return", "Mine", true, PGMIO_ACTIVE_SERIAL, OWN_FAMILY, OWN_SCHEME},
            {"a built-in one by a double click", LARGE_DEVICE, false, PGMIO_ACTIVE_SERIAL, DEV_FAMILY_FIRST,
             PGMIO_ACTIVE_SERIAL},
            {"a built-in one from a mode without flows", LARGE_DEVICE, true, PGMIO_PASSIVE_SERIAL_X1, DEV_FAMILY_FIRST,
             PGMIO_ACTIVE_SERIAL},
        });
    }

    // The module is not there in these tests: the window says so when it opens the dialog.
    void a_device_is_opened_in_the_dialog()
    {
        const auto [name, by_key, scheme, family, opened] = row<QString, bool, int, int, int>();
        store("Mine");
        open_database(DIALOG_OPTIONS(), scheme);
        choose(qPrintable(name));
        QWidget* parent = nullptr;
        m_modals.expect([&parent](QWidget* box) {
            parent = box->parentWidget();
            box->close();
        });
        const QPoint place = table().visualRect(table().model()->index(0, 1)).center();
        if (by_key) {
            QTest::keyClick(&table(), Qt::Key_Return);
        } else {
            QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, place);
            QTest::mouseDClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, place);
        }
        QCOMPARE(parent, static_cast<QWidget*>(m_database));
        QCOMPARE(QString::fromStdString(window().choice().device_name), name);
        QCOMPARE(window().choice().family, family);
        QCOMPARE(window().choice().config_scheme, opened);
    }

    void a_device_that_is_not_offered_is_not_opened()
    {
        store("Mine");
        DIALOG_OPTIONS options;
        options.family_schemes = {{1, {PGMIO_ACTIVE_SERIAL}}};
        open_database(options);
        choose("Mine");
        QTest::keyClick(&table(), Qt::Key_Return);
        QCOMPARE(message(), qs("The device \"Mine\" is not there, or of a family or mode that is not offered here."));
    }

    void a_copy_is_selected()
    {
        open_database();
        choose(LARGE_DEVICE);
        m_modals.expect([](QWidget* dialog) {
            QCOMPARE(dialog->findChild<QComboBox*>(qs("m_source_combo"))->currentText(), qs(LARGE_DEVICE));
            dialog->findChild<QLineEdit*>(qs("m_new_name_edit"))->setText(qs("Copy"));
            static_cast<QDialog*>(dialog)->accept();
        });
        trigger("m_duplicate_action");
        QCOMPARE(message(), qs("The device \"Copy\" is stored."));
        QCOMPARE(table().currentIndex().data().toString(), qs("Copy"));
        QCOMPARE(part<QLineEdit>("m_find_edit").text(), QString());
    }

    void flow_charts_are_saved_data()
    {
        rows<QString, int, QByteArray>({{"of an own device", "Mine", PGMIO_ACTIVE_SERIAL, ">Quad-I/O flow<"},
                                        {"built in", LARGE_DEVICE, PGMIO_ACTIVE_SERIAL, ">Single-I/O flow<"},
                                        {"built in, for four lines", LARGE_DEVICE, OWN_SCHEME, ">Quad-I/O flow<"}});
    }

    void flow_charts_are_saved()
    {
        const auto [device, scheme, flow] = row<QString, int, QByteArray>();
        store_copy("Mine");
        open_database(DIALOG_OPTIONS(), scheme);
        choose(qPrintable(device));
        const QString file = scratch("charts.svg");
        m_modals.expect([file](QWidget* window) {
            qobject_cast<QFileDialog*>(window)->selectFile(file);
            qobject_cast<QDialog*>(window)->accept();
        });

        trigger("m_charts_action");

        QCOMPARE(message(), qs("The flow charts are in %1.").arg(file));
        QFile svg(file);
        QVERIFY(svg.open(QIODevice::ReadOnly));
        const QByteArray content = svg.readAll();
        QVERIFY(content.contains(">" + device.toUtf8() + "<") && content.contains(flow));
        find(QString());
        table().selectAll();
        QVERIFY(!part<QAction>("m_charts_action").isEnabled());
    }

    void what_another_program_stores_is_shown()
    {
        store("Mine");
        open_database();
        const int before = table().model()->rowCount();
        store("Yours");
        QTRY_COMPARE(table().model()->rowCount(), before + 1);
    }

    void directories_are_changed_and_remembered()
    {
        store("Mine");
        const QString first = QString::fromStdString(GFPDB_MGR::get_db_custom_dir());
        QDir().mkpath(scratch("other"));
        qputenv("GFPDB_SETTINGS", scratch("gfpdb.ini").toLocal8Bit());
        open_database();
        m_modals.expect([this](QWidget* dialog) {
            static_cast<QFileDialog*>(dialog)->selectFile(scratch("other"));
            static_cast<QDialog*>(dialog)->accept();
        });
        trigger("m_directory_action");
        const QString second = scratch("other/");
        QCOMPARE(QString::fromStdString(GFPDB_MGR::get_db_custom_dir()), second);
        QCOMPARE(m_database->windowTitle(), qs("Device Database - ") + second);
        QCOMPARE(child<QLineEdit>("m_directory_field").text(), second);
        QCOMPARE(table().model()->rowCount(), builtin_count());

        const QList<QAction*> recent = part<QMenu>("m_recent_menu").actions();
        QCOMPARE(recent.size(), 2);
        QCOMPARE(recent.last()->text(), first);
        recent.last()->trigger();
        QCOMPARE(table().model()->rowCount(), builtin_count() + 1);
        QCOMPARE(child<QLineEdit>("m_directory_field").text(), first);
        m_database->close();
        close_window();
        open_database();
        QCOMPARE(part<QMenu>("m_recent_menu").actions().size(), 2);
        qunsetenv("GFPDB_SETTINGS");
    }

    void a_directory_that_cannot_be_used_leaves_all_as_it_was()
    {
        store("Mine");
        open_database();
        const std::string before = GFPDB_MGR::get_db_custom_dir();
        const QString broken = scratch("broken");
        QDir().mkpath(broken);
        make_file("broken/gfpdb.sqlite", "This is not a database, but a text that is long enough to look like one.");
        m_database->close();
        close_window();
        settings().setValue(qs("database/recent_directories"), QStringList{broken});
        open_database();
        m_modals.expect(MODAL_DRIVER::accept());
        part<QMenu>("m_recent_menu").actions().last()->trigger();
        QVERIFY(m_modals.last().text.contains(broken));
        QCOMPARE(GFPDB_MGR::get_db_custom_dir(), before);
        QCOMPARE(table().model()->rowCount(), builtin_count() + 1);
    }

    void a_directory_that_cannot_be_read_is_said()
    {
        make_file("gfpdb.sqlite", "This is not a database, but a text that is long enough to look like one.");
        open_database();
        QVERIFY(part<QLabel>("m_database_problem").isVisible());
        QVERIFY(part<QLabel>("m_database_problem").text().contains(scratch("gfpdb.sqlite")));
        QCOMPARE(table().model()->rowCount(), builtin_count());
    }

    void nothing_is_changed_where_nothing_may_be_edited()
    {
        DIALOG_OPTIONS options;
        options.enable_edit = false;
        store("Mine");
        open_database(options);
        choose("Mine");
        for (const char* name :
             {"m_delete_action", "m_duplicate_action", "m_undo_action", "m_directory_action", "m_bring_back_action"})
            QVERIFY2(!part<QAction>(name).isVisible(), name);
        QVERIFY(!part<QMenu>("m_recent_menu").menuAction()->isVisible());
        QTest::keyClick(&table(), Qt::Key_Delete);
        QCOMPARE(GFPDB_DATABASE(GFPDB_MGR::get_db_custom_dir()).find_stored({}).size(), std::size_t{1});
        QVERIFY(part<QAction>("m_open_action").isEnabled());
    }

    // A menu is no wider than the screen, and what follows a tab in it would be its keys.
    void menus_show_the_ends_of_long_names()
    {
        QWidget window;
        const QString name = qs("a\t&b") + QString(250, QLatin1Char('x')) + qs("z");
        DATABASE_EDIT_MENU edit(&window, &window, true);
        edit.show_undo({name});
        DATABASE_MENU menu(&window, true);
        menu.set_recent({name});
        for (const QString& text :
             {edit.actions().first()->text(), menu.findChild<QMenu*>(qs("m_recent_menu"))->actions().first()->text()}) {
            QVERIFY2(text.contains(qs("a &&bx")) && text.contains(qs("xz")), qPrintable(text));
            QVERIFY2(text.size() < 90, qPrintable(text));
        }
    }

    void the_menu_of_the_table_is_that_of_the_devices()
    {
        open_database();
        choose(LARGE_DEVICE);
        m_modals.expect(MODAL_DRIVER::trigger(qs("&Open in the Configuration Device Dialog")));
        m_modals.expect(MODAL_DRIVER::accept());
        emit table().customContextMenuRequested(QPoint(5, 5));
        QTRY_COMPARE(m_modals.met().size(), 2);
    }

    void guides_are_opened_or_said_to_be_missing()
    {
        open();
        GUIDE_READER reader;
        HELP_MENU menu(&window(), scratch("guides"));
        QAction* guide = menu.findChild<QAction*>(qs("user-guide.md"));
        m_modals.expect(MODAL_DRIVER::accept());
        guide->trigger();
        QCOMPARE(m_modals.last().text,
                 qs("The guide is not installed. It would be here:\n") + scratch("guides/user-guide.md"));
        QCOMPARE(reader.m_files, QStringList());

        QDir().mkpath(scratch("guides"));
        const QString file = make_file("guides/user-guide.md", "# Guide");
        guide->trigger();
        QCOMPARE(reader.m_files, QStringList{file});
        QCOMPARE(HELP_MENU::installed_guides(qs("/usr/bin")), qs("/usr/share/doc/gfpq/docs"));
        for (const QAction* action : menu.actions()) {
            if (action->objectName().endsWith(qs(".md")))
                QVERIFY2(QFile::exists(qs(GUIDES "/") + action->objectName()), qPrintable(action->objectName()));
        }
    }

    void the_program_says_what_it_is()
    {
        open_database();
        for (QWidget* main_window : {static_cast<QWidget*>(&window()), static_cast<QWidget*>(m_database)}) {
            m_modals.expect(MODAL_DRIVER::accept());
            main_window->findChild<QAction*>(qs("m_about_action"))->trigger();
            QVERIFY(m_modals.last().text.contains(qs(qVersion())));
            QVERIFY(m_modals.last().text.contains(qs("MIT")));
        }
        QVERIFY(program_icon().availableSizes().contains(QSize(256, 256)));
        const QImage drawing = program_icon().pixmap(256).toImage();
        QCOMPARE(drawing.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(drawing.pixelColor(56, 80), QColor(qs("#2f3a46")));
    }

    // Whatever takes the focus says what it is.
    void every_control_has_a_name()
    {
        open_database();
        int named = 0;
        for (QWidget* widget : m_database->findChildren<QWidget*>()) {
            const bool is_own = !widget->objectName().isEmpty() && !widget->objectName().startsWith(qs("qt_"));
            if (!is_own || !(widget->focusPolicy() & Qt::TabFocus) || qobject_cast<QTabWidget*>(widget))
                continue;
            QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
            const bool has_label = !interface->relations(QAccessible::Label).isEmpty();
            QVERIFY2(has_label || !interface->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
            ++named;
        }
        QVERIFY(named >= 2);
    }

    void long_texts_are_not_cut()
    {
        qputenv("GFPQ_TRANSLATIONS", GFPQ_PSEUDO_CATALOGUES);
        QLocale::setDefault(QLocale(QLocale::English));
        {
            const TEXT_CATALOGUE texts(qs("gfpq_host"), QStringList());
            QVERIFY(texts.is_installed());
            // All columns are in sight.
            open_database().resize(4000, 700);
            QCOMPARE(cut_labels(*m_database).join(QLatin1Char('\n')), QString());
            close_window();
        }
        qunsetenv("GFPQ_TRANSLATIONS");
        QLocale::setDefault(QLocale::c());
    }
};

QTEST_MAIN(TEST_DATABASE_WINDOW)
#include "test_database_window.moc"
