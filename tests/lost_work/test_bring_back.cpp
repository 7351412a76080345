// SPDX-License-Identifier: MIT

// A state of the history is brought back in the host's history page: it comes back whole, and nothing of anybody is
// lost, whatever has its name by then.
#include "database/bring_back_dialog.h"
#include "database/history_page.h"
#include "lost_work_test.h"

#include <QLabel>
#include <QRadioButton>

class TEST_BRING_BACK : public LOST_WORK_TEST
{
    Q_OBJECT

private slots:
    void a_deleted_device_comes_back_whole()
    {
        store("Mine", "0x01");
        const QStringList before = content(qs("Mine"));
        remove("Mine");

        bring_back(1, [this](QDialog& dialog) {
            QVERIFY(!in<QLabel>(dialog, "m_use_label").isVisible());
            press_ok(dialog);
        });

        QCOMPARE(content(qs("Mine")), before);
        QCOMPARE(history(), QStringList{qs("deleted Mine")});
        QCOMPARE(m_restored, 1);
    }

    void the_current_device_goes_into_the_history()
    {
        store("Mine", "0x01");
        store("Mine", "0x02");

        bring_back(1, [this](QDialog& dialog) {
            QVERIFY(in<QLabel>(dialog, "m_use_label").text().startsWith(qs("The current \"Mine\" was saved on ")));
            press_ok(dialog);
        });

        QCOMPARE(stored(qs("Mine")), qs("0x01"));
        QCOMPARE(history(), (QStringList{qs("replaced Mine"), qs("replaced Mine")}));
        QCOMPARE(numbers(), (QStringList{qs("2"), qs("1")}));
    }

    void both_stay_under_two_names()
    {
        store("Mine", "0x01");
        store("Mine", "0x02");

        bring_back(1, [this](QDialog& dialog) {
            in<QLineEdit>(dialog, "m_new_name_edit").setFocus();
            QTest::keyClicks(&in<QLineEdit>(dialog, "m_new_name_edit"), qs("Old"));
            QVERIFY(in<QRadioButton>(dialog, "m_new_name_button").isChecked());
            press_ok(dialog);
        });

        QCOMPARE(stored_names(), (QStringList{qs("Mine"), qs("Old")}));
        QCOMPARE(stored(qs("Mine")), qs("0x02"));
        QCOMPARE(stored(qs("Old")), qs("0x01"));
    }

    void a_name_that_is_refused_is_said_and_can_be_changed_data()
    {
        rows<QString, QString>({{"none", "", "Enter the new name."},
                                {"in use", "Other", "already"},
                                {"of a built-in device", "MX25L25645G", "built-in"},
                                {"with a blank before it", " Old", "space"}});
    }

    void a_name_that_is_refused_is_said_and_can_be_changed()
    {
        const auto [name, expected] = row<QString, QString>();
        store("Other", "0x09");
        store("Mine", "0x01");
        remove("Mine");

        bring_back(1, [this, name = name, expected = expected](QDialog& dialog) {
            in<QRadioButton>(dialog, "m_new_name_button").click();
            in<QLineEdit>(dialog, "m_new_name_edit").setText(name);
            press_ok(dialog);
            QVERIFY(dialog.isVisible());
            QVERIFY2(problem(dialog).contains(expected), qPrintable(problem(dialog)));
            QCOMPARE(in<QLineEdit>(dialog, "m_new_name_edit").text(), name);
            QCOMPARE(stored_names(), QStringList{qs("Other")});
            in<QLineEdit>(dialog, "m_new_name_edit").setText(qs("Old"));
            press_ok(dialog);
        });

        QCOMPARE(stored_names(), (QStringList{qs("Old"), qs("Other")}));
        QCOMPARE(stored(qs("Other")), qs("0x09"));
    }

    // Between the look at the dialog and its button.
    void what_someone_else_stored_is_replaced_only_when_it_was_seen()
    {
        store("Mine", "0x01");
        store("Mine", "0x02");

        bring_back(1, [this](QDialog& dialog) {
            run_foreign(qs("UPDATE device SET device_id = '0x77', revision = 'hers', saved_by = 'anna@lab2', "
                           "saved_at = '2026-05-17T09:30:00Z'"));
            press_ok(dialog);
            QVERIFY(dialog.isVisible());
            QVERIFY2(problem(dialog).contains(qs("was changed by anna@lab2")), qPrintable(problem(dialog)));
            QVERIFY(in<QLabel>(dialog, "m_use_label").text().endsWith(qs("by anna@lab2.")));
            QCOMPARE(stored(qs("Mine")), qs("0x77"));
            QCOMPARE(history(), QStringList{qs("replaced Mine")});
            press_ok(dialog);
        });

        QCOMPARE(stored(qs("Mine")), qs("0x01"));
        QCOMPARE(history().size(), 2);
        GFPDB_DATABASE database(directory());
        QCOMPARE(database.load_state(database.find_history_page({}, {}, 1).entries[0].id)->row.device_id,
                 std::string("0x77"));
    }

    void what_someone_else_stored_under_a_free_name_is_not_replaced()
    {
        store("Mine", "0x01");
        remove("Mine");

        bring_back(1, [this](QDialog& dialog) {
            store("Mine", "0x77");
            press_ok(dialog);
            QVERIFY2(problem(dialog).contains(qs("already")), qPrintable(problem(dialog)));
            QVERIFY(in<QLabel>(dialog, "m_use_label").isVisible());
            QCOMPARE(stored(qs("Mine")), qs("0x77"));
            dialog.reject();
        });

        QCOMPARE(stored(qs("Mine")), qs("0x77"));
        QCOMPARE(m_restored, 0);
    }

    void a_name_of_the_other_kind_is_explained_data()
    {
        rows<bool, QString>({{"a device", false, "A template has this name now."},
                             {"a template", true, "A device has this name now."}});
    }

    void a_name_of_the_other_kind_is_explained()
    {
        const auto [is_template, expected] = row<bool, QString>();
        if (is_template) {
            store_with_template("Mine", "T");
            QVERIFY(manager().remove_template("T"));
            store("T");
        } else {
            store("Mine");
            remove("Mine");
            store_with_template("Other", "Mine");
        }

        bring_back(is_template ? 2 : 1, [this, expected = expected](QDialog& dialog) {
            QVERIFY2(in<QLabel>(dialog, "m_use_label").text().startsWith(expected),
                     qPrintable(in<QLabel>(dialog, "m_use_label").text()));
            QVERIFY(!in<QRadioButton>(dialog, "m_old_name_button").isEnabled());
            QVERIFY(in<QRadioButton>(dialog, "m_new_name_button").isChecked());
            in<QLineEdit>(dialog, "m_new_name_edit").setText(qs("Back"));
            press_ok(dialog);
        });

        std::vector<std::string> templates;
        const bool is_back = is_template
                                 ? manager().get_user_template_list(templates) == std::vector<std::string>{"Back"}
                                 : stored_names().contains(qs("Back"));
        QVERIFY(is_back);
    }

    void a_lock_is_waited_out_by_the_user()
    {
        store("Mine", "0x01");
        remove("Mine");

        bring_back(1, [this](QDialog& dialog) {
            lock();
            press_ok(dialog);
            QVERIFY2(problem(dialog).contains(qs("locked")), qPrintable(problem(dialog)));
            QCOMPARE(stored_names(), QStringList());
            unlock();
            press_ok(dialog);
        });

        QCOMPARE(stored(qs("Mine")), qs("0x01"));
    }

    void a_state_that_is_gone_is_said()
    {
        store("Mine", "0x01");
        remove("Mine");

        bring_back(1, [this](QDialog& dialog) {
            run_foreign(qs("DELETE FROM history"));
            press_ok(dialog);
            QVERIFY2(problem(dialog).contains(qs("no state 1")), qPrintable(problem(dialog)));
            dialog.reject();
        });

        QCOMPARE(m_restored, 0);
    }

    void cancel_changes_nothing()
    {
        store("Mine", "0x01");
        store("Mine", "0x02");

        bring_back(1, [](QDialog& dialog) { dialog.reject(); });

        QCOMPARE(stored(qs("Mine")), qs("0x02"));
        QCOMPARE(history(), QStringList{qs("replaced Mine")});
        QCOMPARE(m_restored, 0);
    }

private:
    void take_down() override
    {
        m_page.reset();
        m_database.reset();
    }

    template <typename PART>
    static PART& in(const QWidget& window, const char* name)
    {
        auto* found = window.findChild<PART*>(QLatin1String(name));
        if (found == nullptr)
            qFatal("the window has no %s", name);
        return *found;
    }
    static void press_ok(QWidget& dialog)
    {
        const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->text() == qs("&Bring Back"))
                button->click();
        }
    }
    static QString problem(const QWidget& dialog) { return in<QLabel>(dialog, "m_bring_back_problem").text(); }

    void remove(const std::string& name) { QVERIFY(manager().delete_flash(name, directory())); }
    void store_with_template(const std::string& name, const std::string& template_name)
    {
        store(name);
        GFPDB_FLASH* flash = manager().find_flash(name, true);
        flash->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, template_name);
        QVERIFY2(manager().save_flash(flash, directory()), manager().get_last_error().c_str());
    }

    // Opens the page, and the dialog for that state: `deed` must close it.
    void bring_back(int id, const std::function<void(QDialog&)>& deed)
    {
        m_restored = 0;
        m_database = std::make_unique<GFPDB_DATABASE>(directory());
        m_page = std::make_unique<HISTORY_PAGE>(*m_database);
        connect(m_page.get(), &HISTORY_PAGE::restored, this, [this] { ++m_restored; });
        m_page->show();
        const int row = numbers().indexOf(QString::number(id));
        QVERIFY(row >= 0);
        in<QTableView>(*m_page, "m_history_table").selectRow(row);
        m_modals.expect([&deed](QWidget* window) { deed(*qobject_cast<QDialog*>(window)); });
        in<QPushButton>(*m_page, "m_bring_back_button").click();
        QCOMPARE(m_modals.met().size(), 1);
    }

    QStringList numbers() const
    {
        QStringList texts;
        const QAbstractItemModel& model = *in<QTableView>(*m_page, "m_history_table").model();
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.index(row, HISTORY_MODEL::NUMBER).data().toString());
        return texts;
    }
    // All of a device but its revision, and who saved it and when.
    QStringList content(const QString& name) const
    {
        QStringList texts;
        for (const char* column :
             {"family", "scheme", "device_id", "voltage", "density", "total_die", "single_io_dummy_clock",
              "quad_io_dummy_clock", "template_name", "flow_template", "single_flows", "quad_flows"})
            texts.append(stored(name, column));
        return texts;
    }

    std::unique_ptr<GFPDB_DATABASE> m_database;
    std::unique_ptr<HISTORY_PAGE> m_page;
    int m_restored = 0;
};

LOST_WORK_TEST_MAIN(TEST_BRING_BACK)

#include "test_bring_back.moc"
