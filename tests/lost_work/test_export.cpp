// SPDX-License-Identifier: MIT

// Records of the real database through the export's window into files.
#include "lost_work_test.h"

#include "database/export_dialog.h"
#include "fault_injector.h"

#include <QDir>
#include <QFile>
#include <QLabel>

#include <cerrno>

class TEST_EXPORT : public LOST_WORK_TEST
{
    Q_OBJECT

private:
    void take_down() override
    {
        FAULT_INJECTOR::stop();
        m_export.reset();
        m_database.reset();
    }

    template <typename WIDGET>
    WIDGET& in_dialog(const char* name) const
    {
        auto* const found = m_export->findChild<WIDGET*>(qs(name));
        if (found == nullptr)
            qFatal("no widget %s", name);
        return *found;
    }

    // The devices of these names are selected in the window.
    void show(const QStringList& chosen = {})
    {
        m_database = std::make_unique<GFPDB_DATABASE>(directory());
        std::vector<GFPDB_RECORD> records;
        for (const GFPDB_RECORD& record : m_database->find_stored({})) {
            if (chosen.contains(QString::fromStdString(record.name())))
                records.push_back(record);
        }
        m_export = std::make_unique<EXPORT_DIALOG>(*m_database, records, nullptr);
        m_export->show();
    }

    void export_as(EXPORT_WISH::SOURCE source, EXPORT_WISH::FORMAT format, const QString& path)
    {
        for (const auto& [name, value] :
             {std::pair<const char*, int>{"m_export_source_combo", source}, {"m_export_format_combo", format}}) {
            auto& combo = in_dialog<QComboBox>(name);
            QVERIFY(combo.findData(value) >= 0);
            combo.setCurrentIndex(combo.findData(value));
        }
        in_dialog<QLineEdit>("m_export_path_edit").setText(path);
        QTest::keyClick(m_export.get(), Qt::Key_Return);
    }

    QString problem() const { return in_dialog<QLabel>("m_export_problem").text(); }
    QString summary() const { return in_dialog<QLabel>("m_export_summary").text(); }
    QString place(const QString& name) const { return QFile::decodeName(other_directory().c_str()) + name; }
    QStringList files() const { return QDir(place(QString())).entryList(QDir::Files | QDir::Hidden, QDir::Name); }

    QByteArray content(const QString& name) const
    {
        QFile file(place(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    // The names of the records in the files of the directory.
    QStringList exported() const
    {
        QStringList names;
        const QStringList all = files();
        for (const QString& file : all) {
            const GFPDB_READ_OPTIONS options;
            const GFPDB_RECORD_FILE read =
                gfpdb_read_records(QFile::encodeName(place(file)).toStdString(), manager(), options);
            for (const GFPDB_RECORD& record : read.records)
                names += QString::fromStdString(record.name());
        }
        return names;
    }

    std::unique_ptr<GFPDB_DATABASE> m_database;
    std::unique_ptr<EXPORT_DIALOG> m_export;

private slots:
    void records_go_into_files_data()
    {
        rows<int, int, QStringList, QString>(
            {{"one file", EXPORT_WISH::CHOSEN, EXPORT_WISH::ONE_FILE, {"A", "C"}, "a.json"},
             {"a file each", EXPORT_WISH::CHOSEN, EXPORT_WISH::FILE_EACH, {"A", "C"}, "A-3-13.json, C-3-13.json"},
             {"a list", EXPORT_WISH::CHOSEN, EXPORT_WISH::LIST, {"A", "C"}, "a.json"},
             {"all that are stored", EXPORT_WISH::STORED, EXPORT_WISH::ONE_FILE, {"A", "B", "C"}, "a.json"}});
    }

    void records_go_into_files()
    {
        const auto [source, format, names, made] = row<int, int, QStringList, QString>();
        for (const char* name : {"A", "B", "C"})
            store(name);
        show({qs("A"), qs("C")});
        const bool is_list = format == EXPORT_WISH::LIST;
        const QString path = place(format == EXPORT_WISH::FILE_EACH ? QString() : qs(is_list ? "a.csv" : "a.json"));
        export_as(static_cast<EXPORT_WISH::SOURCE>(source), static_cast<EXPORT_WISH::FORMAT>(format), path);

        QCOMPARE(problem(), QString());
        QVERIFY2(summary().startsWith(qs("Exported records: %1").arg(names.size())), qPrintable(summary()));
        QCOMPARE(files().join(qs(", ")), is_list ? qs("a.csv") : made);
        QCOMPARE(exported(), names);
        QTest::keyClick(m_export.get(), Qt::Key_Escape);
        QCOMPARE(m_export->result(), int(QDialog::Accepted));
    }

    void built_in_devices_are_exported()
    {
        show();
        QCOMPARE(in_dialog<QComboBox>("m_export_source_combo").findData(EXPORT_WISH::CHOSEN), -1);
        export_as(EXPORT_WISH::BUILTIN, EXPORT_WISH::ONE_FILE, place(qs("a.json")));
        QVERIFY(content(qs("a.json")).contains("\"MX25L25645G\""));
    }

    void a_spreadsheet_runs_nothing_of_a_list_for_it()
    {
        store("=A1");
        show();
        auto& box = in_dialog<QCheckBox>("m_spreadsheet_check");
        QVERIFY(!box.isEnabled());
        box.setChecked(true);
        export_as(EXPORT_WISH::STORED, EXPORT_WISH::LIST, place(qs("a.csv")));
        QVERIFY(content(qs("a.csv")).contains("'=A1"));
    }

    void a_file_is_replaced_only_when_the_user_says_so_data()
    {
        rows<QString, bool>({{"no", "Cancel", false}, {"yes", "Replace", true}});
    }

    void a_file_is_replaced_only_when_the_user_says_so()
    {
        const auto [answer, replaces] = row<QString, bool>();
        store("A");
        QFile file(place(qs("A-3-13.json")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("kept");
        file.close();
        show();
        m_modals.expect(MODAL_DRIVER::click(answer));
        export_as(EXPORT_WISH::STORED, EXPORT_WISH::FILE_EACH, place(QString()));

        QCOMPARE(m_modals.last().text, qs("These files already exist:\nA-3-13.json"));
        QCOMPARE(content(qs("A-3-13.json")) == "kept", !replaces);
        QCOMPARE(summary().isEmpty(), !replaces);
        QVERIFY(m_export->isVisible());
    }

    void a_record_that_cannot_be_read_is_named()
    {
        store("Bad");
        store("Good");
        run_foreign(qs("UPDATE device SET single_flows = 'broken' WHERE name = 'Bad'"));
        show();
        export_as(EXPORT_WISH::STORED, EXPORT_WISH::ONE_FILE, place(qs("a.json")));
        QCOMPARE(problem(), qs("These cannot be read, and are not exported:\nBad"));
        QCOMPARE(exported(), QStringList(qs("Good")));
    }

    // Not that there is nothing: who reads that would not try again.
    void a_database_that_cannot_be_read_is_said()
    {
        store("A");
        show();
        lock(qs("EXCLUSIVE"));
        export_as(EXPORT_WISH::STORED, EXPORT_WISH::ONE_FILE, place(qs("a.json")));
        QVERIFY2(problem().contains(qs("locked")), qPrintable(problem()));
        QCOMPARE(files(), QStringList());
        unlock();
        export_as(EXPORT_WISH::STORED, EXPORT_WISH::ONE_FILE, place(qs("a.json")));
        QCOMPARE(exported(), QStringList(qs("A")));
    }

    void a_file_that_cannot_be_written_is_as_it_was()
    {
        store("A");
        show();
        export_as(EXPORT_WISH::STORED, EXPORT_WISH::ONE_FILE, place(qs("a.json")));
        const QByteArray before = content(qs("a.json"));
        store("B");
        show();
        m_modals.expect(MODAL_DRIVER::click(qs("Replace")));
        FAULT_INJECTOR::inject(other_directory(), {FAULT_CALL::WRITE, 1, ENOSPC, true});
        export_as(EXPORT_WISH::STORED, EXPORT_WISH::ONE_FILE, place(qs("a.json")));
        FAULT_INJECTOR::stop();

        QVERIFY2(problem().startsWith(qs("The file %1 cannot be written: ").arg(place(qs("a.json")))),
                 qPrintable(problem()));
        QCOMPARE(content(qs("a.json")), before);
        QCOMPARE(files(), QStringList(qs("a.json")));
        QVERIFY(in_dialog<QPushButton>("m_export_button").isVisible());
    }

    void what_is_missing_is_asked_for_data()
    {
        rows<QString, QString>(
            {{"a path", "", "Enter where the records go."}, {"a record", "a.json", "There is nothing to export."}});
    }

    void what_is_missing_is_asked_for()
    {
        const auto [name, asked] = row<QString, QString>();
        show();
        export_as(EXPORT_WISH::STORED, EXPORT_WISH::ONE_FILE, name.isEmpty() ? name : place(name));
        QCOMPARE(problem(), asked);
        QCOMPARE(files(), QStringList());
    }
};

LOST_WORK_TEST_MAIN(TEST_EXPORT)

#include "test_export.moc"
