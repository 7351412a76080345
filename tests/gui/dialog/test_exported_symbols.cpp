// SPDX-License-Identifier: MIT

// What the module and the libraries show to whoever loads them: one function, their interface, and nothing else. And
// what the module needs: the libraries of the host and of Qt.
#include "test_rows.h"

#include <QFileInfo>
#include <QLibrary>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

namespace {

// What `program` says about `library`, line by line; empty when it cannot be run.
QStringList lines_of(const QString& program, QStringList arguments,
                     const QString& library = QStringLiteral(GFPQ_MODULE))
{
    QProcess process;
    process.start(program, arguments << library);
    if (!process.waitForFinished() || process.exitCode() != 0)
        return {};
    return QString::fromLatin1(process.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

// The libraries that the module names, as "libQt5Core.so.5".
QStringList needed_libraries()
{
    static const QRegularExpression NEEDED(QStringLiteral("\\(NEEDED\\).*\\[(.+)\\]"));
    QStringList names;
    for (const QString& line : lines_of(QStringLiteral("readelf"), {QStringLiteral("--dynamic")})) {
        const QRegularExpressionMatch match = NEEDED.match(line);
        if (match.hasMatch())
            names.append(match.captured(1));
    }
    names.sort();
    return names;
}

// What the module takes from other libraries, as it stands in C++.
QStringList needed_symbols()
{
    return lines_of(QStringLiteral("nm"),
                    {QStringLiteral("--dynamic"), QStringLiteral("--undefined-only"), QStringLiteral("--demangle")});
}

} // namespace

class TEST_EXPORTED_SYMBOLS : public QObject
{
    Q_OBJECT

private slots:
    void the_module_exports_its_entry_point_and_nothing_else()
    {
        QStringList functions;
        for (const QString& line :
             lines_of(QStringLiteral("nm"), {QStringLiteral("--dynamic"), QStringLiteral("--defined-only"),
                                             QStringLiteral("--format=posix")})) {
            const QStringList columns = line.split(QLatin1Char(' '));
            functions.append(columns.value(0) + QLatin1Char(' ') + columns.value(1));
        }

        QCOMPARE(functions, QStringList{QStringLiteral("gfpq_dyn_dlg T")});
    }

    void the_libraries_export_their_interface_and_nothing_else_data()
    {
        rows<QString, QString>(
            {{"gen", GEN_LIBRARY, "gen_atoi gen_itoa gen_strcmp gen_stricmp"},
             {"fio", FIO_LIBRARY,
              "FIO_FILE_SYSTEM::set_current_directory FIO_PATH::FIO_PATH FIO_PATH::become_absolute "
              "FIO_PATH::directory FIO_PATH::fullpath FIO_PATH::get_relative_to FIO_PATH::operator= "
              "PGM_COMMON::change_folder_slash"},
             {"dstr", DSTR_LIBRARY, "dstr_get_config_schemes dstr_get_families dstr_get_problem dstr_get_user_string"},
             {"msg", MSG_LIBRARY,
              "MSG_BASE::fill_args MSG_BASE::set_id MSG_BASE::text MSG_BASE::~MSG_BASE "
              "MSG_INTERNAL_ERROR::report MSG_O::MSG_O MSG_O::prompt MSG_O::set_reason_source"},
             {"kovq", KOVQ_LIBRARY,
              "KOVQ_DIALOG::KOVQ_DIALOG KOVQ_DIALOG::hideEvent KOVQ_DIALOG::keyPressEvent "
              "KOVQ_DIALOG::metaObject KOVQ_DIALOG::qt_metacall KOVQ_DIALOG::qt_metacast "
              "KOVQ_DIALOG::set_settings KOVQ_DIALOG::showEvent KOVQ_DIALOG::staticMetaObject "
              "KOVQ_DIALOG::~KOVQ_DIALOG KOVQ_NATIVE_FILE_DLG::KOVQ_NATIVE_FILE_DLG KOVQ_NATIVE_FILE_DLG::exec "
              "KOVQ_NATIVE_FILE_DLG::selected_files KOVQ_NATIVE_FILE_DLG::set_accept_mode "
              "KOVQ_NATIVE_FILE_DLG::set_directory KOVQ_NATIVE_FILE_DLG::set_file_mode "
              "KOVQ_NATIVE_FILE_DLG::set_option KOVQ_NATIVE_FILE_DLG::set_window_title "
              "KOVQ_NATIVE_FILE_DLG::~KOVQ_NATIVE_FILE_DLG ZUI_APP::ZUI_APP ZUI_APP::get_ui_mgr "
              "ZUI_APP::metaObject ZUI_APP::qt_metacall ZUI_APP::qt_metacast ZUI_APP::staticMetaObject "
              "ZUI_APP::~ZUI_APP kovq_get_app kovq_safe_connect"},
             {"gfpdb", GFPDB_LIBRARY,
              "GFPDB_ACTION::GFPDB_ACTION GFPDB_ACTION::get_action_type GFPDB_ACTION::get_property_enum_list "
              "GFPDB_DATABASE::GFPDB_DATABASE GFPDB_DATABASE::check_integrity GFPDB_DATABASE::count_history "
              "GFPDB_DATABASE::find_builtin GFPDB_DATABASE::find_history GFPDB_DATABASE::find_history_page "
              "GFPDB_DATABASE::find_misplaced GFPDB_DATABASE::find_stored GFPDB_DATABASE::get_catalogue_problem "
              "GFPDB_DATABASE::get_directory GFPDB_DATABASE::get_last_error GFPDB_DATABASE::get_read_problem "
              "GFPDB_DATABASE::get_write_problem GFPDB_DATABASE::import GFPDB_DATABASE::is_name_of_other_kind "
              "GFPDB_DATABASE::load GFPDB_DATABASE::load_state GFPDB_DATABASE::only_look GFPDB_DATABASE::prune_history "
              "GFPDB_DATABASE::rebuild_keys GFPDB_DATABASE::remove GFPDB_DATABASE::restore_state "
              "GFPDB_DATABASE::set_upgrade_progress GFPDB_FILE_READER::GFPDB_FILE_READER GFPDB_FILE_READER::done "
              "GFPDB_FILE_READER::file GFPDB_FILE_READER::load GFPDB_FILE_READER::read_next GFPDB_FILE_READER::total "
              "GFPDB_FILE_READER::~GFPDB_FILE_READER GFPDB_HELPER::get_active_flash_manager "
              "GFPDB_HELPER::get_database_problem GFPDB_HELPER::set_active_flash_family "
              "GFPDB_HELPER::set_base_dir GFPDB_IMPORT_PLAN::add GFPDB_MGR::get_db_custom_dir "
              "GFPDB_MGR::save_custom_dir_to_ini GFPDB_MGR::set_db_custom_dir GFPDB_NEW_DEVICE::GFPDB_NEW_DEVICE "
              "GFPDB_NEW_DEVICE::get_values GFPDB_NEW_DEVICE::get_warnings GFPDB_NEW_DEVICE::make_record "
              "GFPDB_NEW_DEVICE::operator= GFPDB_NEW_DEVICE::set_value GFPDB_NEW_DEVICE::~GFPDB_NEW_DEVICE "
              "gfpdb_address_text gfpdb_byte_text gfpdb_bytes_text gfpdb_catalogue_parts gfpdb_catalogue_problem "
              "gfpdb_check_flow gfpdb_check_record gfpdb_check_server gfpdb_compare_with_catalogue "
              "gfpdb_copy_database gfpdb_copy_of gfpdb_decimal_text gfpdb_density_bytes gfpdb_device_id_bytes "
              "gfpdb_differences gfpdb_from_utf8 gfpdb_lint_device gfpdb_lint_flow gfpdb_lint_record "
              "gfpdb_lint_rules gfpdb_maker_of_id gfpdb_makers gfpdb_name_key gfpdb_names_server gfpdb_operations "
              "gfpdb_parse_address gfpdb_parse_bus_width gfpdb_parse_byte gfpdb_parse_bytes gfpdb_parse_decimal "
              "gfpdb_quoted gfpdb_read_catalogue gfpdb_read_records gfpdb_read_server gfpdb_read_sfdp "
              "gfpdb_server_sql gfpdb_server_status gfpdb_title gfpdb_to_utf8 gfpdb_two_databases gfpdb_values "
              "gfpdb_write_list gfpdb_write_record gfpdb_write_records gfpdb_write_server"}});
    }

    // What templates of Qt and of the language leave behind is weak, as are the tables of the abstract classes.
    void the_libraries_export_their_interface_and_nothing_else()
    {
        const auto [library, expected] = row<QString, QString>();
        static const QRegularExpression CODE(QStringLiteral(" [TDBR] (?:non-virtual thunk to )?([^(\\[]+)"));
        const QStringList linker_symbols = {QStringLiteral("__bss_start"), QStringLiteral("_edata"),
                                            QStringLiteral("_end")};

        QStringList names;
        for (const QString& line :
             lines_of(QStringLiteral("nm"),
                      {QStringLiteral("--dynamic"), QStringLiteral("--defined-only"), QStringLiteral("--demangle")},
                      library)) {
            const QString name = CODE.match(line).captured(1);
            const bool is_of_checker = name.startsWith(QLatin1String("__odr_asan."));
            if (!name.isEmpty() && !linker_symbols.contains(name) && !is_of_checker)
                names.append(name);
        }
        names.removeDuplicates();
        names.sort();

        QCOMPARE(names, expected.split(QLatin1Char(' ')));
    }

    void the_entry_point_can_be_loaded()
    {
        QLibrary module(QStringLiteral(GFPQ_MODULE));

        QVERIFY2(module.load(), qPrintable(module.errorString()));
        QVERIFY(module.resolve("gfpq_dyn_dlg") != nullptr);
        QVERIFY(QFileInfo(module.fileName()).fileName() == QLatin1String("libpgm_gfpq.so"));
    }

    // The runtime of the compiler, of its checkers and of C comes with whatever is linked.
    void the_module_needs_the_host_and_qt_and_no_other_library()
    {
        static const QRegularExpression RUNTIME(
            QStringLiteral("^(libstdc\\+\\+|libgcc_s|libc|libm|lib[a-z]+san)\\.so\\.\\d+$"));

        const QStringList needed = needed_libraries();
        QStringList others;
        for (const QString& name : needed) {
            if (!RUNTIME.match(name).hasMatch())
                others.append(name);
        }

        QCOMPARE(others,
                 (QStringList{QStringLiteral("libQt5Core.so.5"), QStringLiteral("libQt5Gui.so.5"),
                              QStringLiteral("libQt5Widgets.so.5"), QStringLiteral("libdstr.so"),
                              QStringLiteral("libfio.so"), QStringLiteral("libgen.so"), QStringLiteral("libgfpdb.so"),
                              QStringLiteral("libkovq.so"), QStringLiteral("libmsg.so")}));
    }

    void the_module_has_no_thread_timer_or_lock_data()
    {
        rows<QString>(
            {{"thread of Qt",
              QStringLiteral("\\bQ(Adopted)?Thread(Pool|Storage\\w*)?::|moveToThread|QRunnable|QtConcurrent|QFuture")},
             {"thread of the language",
              QStringLiteral(
                  "std::(__)?(thread|jthread|async|future|promise|__future)|pthread_create|thrd_create|clone$|fork$")},
             {"timer of Qt",
              QStringLiteral("\\bQ(Basic|Deadline|Elapsed)?Timer::|QObject::(start|kill)Timer|QTimeLine|Animation::")},
             {"timer of the system", "timer_create|timerfd|setitimer|\\balarm|sleep"},
             {"lock of Qt",
              QStringLiteral(
                  "\\bQ(\\w*Mutex|\\w*MutexLocker|ReadWriteLock|Semaphore|WaitCondition|SystemSemaphore|LockFile)::")},
             {"lock of the language", QStringLiteral("pthread_(mutex|rwlock|cond|spin|barrier)|std::(mutex|condition_"
                                                     "variable|lock)|sem_(wait|init)|flock|mtx_")}});
    }

    void the_module_has_no_thread_timer_or_lock()
    {
        const QString pattern = row<QString>();
        const QStringList symbols = needed_symbols();
        QVERIFY(!symbols.filter(QStringLiteral("QDialog::exec()")).isEmpty());

        QCOMPARE(symbols.filter(QRegularExpression(pattern)), QStringList());
    }
};

QTEST_GUILESS_MAIN(TEST_EXPORTED_SYMBOLS)

#include "test_exported_symbols.moc"
