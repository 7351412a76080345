// SPDX-License-Identifier: MIT

// "Browse...": the folder dialog, and what the choice does.
#include "dialog_test.h"

#include "marking_translator.h"

#include <QDir>

class TEST_BROWSE : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void the_folder_dialog_is_set_up_in_order()
    {
        const MARKING_TRANSLATOR translator("gfpq_dlg");
        // The edit shows the directory byte by byte; that text would name another one.
        const QString start = make_dir(qs("gr\xC3\xBCn"));
        world().custom_dir = start.toStdString();
        open();

        click_browse();

        QCOMPARE(calls(),
                 QStringList({qs("file_dlg.created(gfpq_dlg)"), qs("file_dlg.set_file_mode(2)"),
                              qs("file_dlg.set_option(1, true)"), qs("file_dlg.set_directory(\"%1\")").arg(start),
                              qs("file_dlg.set_accept_mode(0)"), qs(R"(file_dlg.set_window_title("[Browse]"))"),
                              qs("file_dlg.exec()")}));
        QCOMPARE(file_dlg_answers().parent, &dlg());
        QCOMPARE(here() + QLatin1Char('/'), start);
        QCOMPARE(static_cast<int>(QFileDialog::Directory), 2);
        QCOMPARE(static_cast<int>(QFileDialog::ShowDirsOnly), 1);
        QCOMPARE(static_cast<int>(QFileDialog::AcceptOpen), 0);
    }

    void cancelling_changes_nothing()
    {
        for (const int result : {0, 2}) {
            file_dlg_answers().result = result;
            file_dlg_answers().selected = QStringList{make_dir(qs("chosen"))};
            open();
            type_in("m_directory_edit", make_dir(qs("typed")));

            click_browse();

            QCOMPARE(calls_of({"selected_files", "save_custom_dir_to_ini"}), QStringList());
            QCOMPARE(text("m_directory_edit"), make_dir(qs("typed")));
        }
    }

    void the_chosen_directory_is_taken_over()
    {
        const QString chosen = make_dir(qs("gr\xC3\xBCn"));
        file_dlg_answers().result = 1;
        file_dlg_answers().selected = QStringList{chosen.chopped(1)};
        open();
        QString shown;
        log().on_call(qs("save_custom_dir_to_ini"), [&](const QString&) { shown = text("m_directory_edit"); });

        click_browse();

        // A directory: it ends in a separator although the folder dialog gave none.
        QCOMPARE(shown, chosen);
        QCOMPARE(calls_of({"save_custom_dir_to_ini", "set_db_custom_dir"}),
                 QStringList({qs("GFPDB_MGR.save_custom_dir_to_ini(\"%1\", false)").arg(chosen),
                              qs("GFPDB_MGR.set_db_custom_dir(\"%1\")").arg(chosen)}));
        QCOMPARE(world().custom_dir, chosen.toStdString());
        // The current directory stays where browsing began.
        QCOMPARE(here() + QLatin1Char('/'), make_dir(qs("start")));
    }

    void the_chosen_directory_can_be_refused()
    {
        file_dlg_answers().result = 1;
        file_dlg_answers().selected = QStringList{make_dir(qs("chosen"))};
        world().save_dir_succeeds = false;
        open();
        m_modals.expect(MODAL_DRIVER::accept());

        click_browse();

        QCOMPARE(m_modals.last().text,
                 qs("Failed to set the custom database directory to ") + make_dir(qs("chosen")) + QLatin1Char('\n'));
        QCOMPARE(text("m_directory_edit"), make_dir(qs("start")));
    }

    void another_number_of_entries_is_an_internal_error_data()
    {
        rows<QStringList>({{"none", QStringList()}, {"two", {"/a", "/b"}}});
    }

    void another_number_of_entries_is_an_internal_error()
    {
        unwind_through_qt();
        const QStringList selected = row<QStringList>();
        file_dlg_answers().result = 1;
        file_dlg_answers().selected = selected;
        open();

        QVERIFY_EXCEPTION_THROWN(click_browse(), INTERNAL_ERROR_REPORTED);

        QCOMPARE(calls_of({"report"}),
                 list_of({R"(MSG_INTERNAL_ERROR.report("selected.size() == 1", "GFPQ", "pgm/gfpq/gfpq_dlg", 929))"}));
        QCOMPARE(text("m_directory_edit"), make_dir(qs("start")));
    }

    void the_shown_directory_becomes_the_current_one()
    {
        const QString typed = make_dir(qs("typed"));
        open();
        edit("m_directory_edit").setText(typed);

        click_browse();

        QCOMPARE(file_dlg_answers().current_dir_at_exec + QLatin1Char('/'), typed);
        QCOMPARE(here() + QLatin1Char('/'), typed);
    }

    void browsing_starts_where_the_edit_says_data()
    {
        rows<bool, QString, QString, QString>(
            {{"relative", false, "sub/", "sub/", "sub"},
             {"without a separator", false, "sub", "sub", "sub"},
             {"empty", false, "", "", ""},
             {"missing", false, "missing/", "missing/", ""},
             {"from a base directory", true, "sub/", "%1/base/sub/", "base/sub"},
             {"from a base directory, empty", true, "", "%1/base", "base"},
             {"from a base directory, missing", true, "missing/", "%1/base/missing/", "base"}});
    }

    // The last directory that is there becomes the current one.
    void browsing_starts_where_the_edit_says()
    {
        const auto [from_base, typed, start, entered] = row<bool, QString, QString, QString>();
        const QString scratch_path = QFileInfo(scratch()).canonicalFilePath();
        make_dir(qs("sub"));
        make_dir(qs("base/sub"));
        if (from_base)
            test_app()->get_ui_mgr()->set_base_dir((scratch_path + qs("/base")).toStdString());
        open();
        edit("m_directory_edit").setText(typed);
        const bool is_there = !start.isEmpty() && !start.contains(qs("missing"));
        if (!is_there)
            expect_warning(qs("the current directory"));

        click_browse();

        QCOMPARE(calls_of({"set_directory"}),
                 QStringList(qs("file_dlg.set_directory(\"%1\")").arg(from_base ? start.arg(scratch_path) : start)));
        QCOMPARE(here(), entered.isEmpty() ? scratch_path : scratch_path + QLatin1Char('/') + entered);
    }

    void with_a_base_directory_the_choice_becomes_relative()
    {
        const QString base = make_dir(qs("base"));
        test_app()->get_ui_mgr()->set_base_dir(base.toStdString());
        file_dlg_answers().result = 1;
        open();
        QStringList shown;
        log().on_call(qs("save_custom_dir_to_ini"), [&](const QString&) { shown << edit("m_directory_edit").text(); });

        for (const char* chosen : {"base/sub", "beside"}) {
            file_dlg_answers().selected = QStringList{make_dir(qs(chosen))};
            edit("m_directory_edit").setText(base);
            click_browse();
        }

        QCOMPARE(shown, list_of({"sub/", "../beside/"}));
    }

    void a_base_directory_alone_does_not_stay_the_current_one()
    {
        const QString base = make_dir(qs("base"));
        test_app()->get_ui_mgr()->set_base_dir(base.toStdString());
        open();

        click_browse();

        QCOMPARE(file_dlg_answers().current_dir_at_exec + QLatin1Char('/'), make_dir(qs("start")));
    }

    void a_host_without_ui_manager_is_an_internal_error()
    {
        unwind_through_qt();
        test_app()->has_ui_mgr = false;
        open();
        const QString before = here();

        QVERIFY_EXCEPTION_THROWN(click_browse(), INTERNAL_ERROR_REPORTED);

        QCOMPARE(calls(),
                 list_of({R"(MSG_INTERNAL_ERROR.report("ui_mgr != nullptr", "GFPQ", "pgm/gfpq/gfpq_dlg", 909))"}));
        QCOMPARE(here(), before);
    }

private:
    void fill_world() override { world().custom_dir = make_dir(qs("start")).toStdString(); }

    // Makes a directory below the scratch directory; its path with "/" at the end.
    QString make_dir(const QString& name) const
    {
        const QString path = QFileInfo(scratch()).canonicalFilePath() + QLatin1Char('/') + name;
        QDir().mkpath(path);
        return path + QLatin1Char('/');
    }

    void click_browse() { button("m_browse_button").click(); }
    static QString here() { return QDir::currentPath(); }
};

GFPQ_TEST_MAIN(TEST_BROWSE)

#include "test_browse.moc"
