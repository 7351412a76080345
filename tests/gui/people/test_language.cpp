// SPDX-License-Identifier: MIT

// The language that the dialog speaks: the host's.
#include "people_test.h"

#include "gfpq_dyn_dlg.h"
#include "text_catalogue.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QProcess>
#include <QPushButton>

class TEST_LANGUAGE : public PEOPLE_TEST
{
    Q_OBJECT

private:
    // Calls the module with the locale `name` set by the host; `look` sees the dialog.
    void call_module(const QString& name, const std::function<void(QDialog&)>& look)
    {
        QLocale::setDefault(QLocale(name));
        m_modals.expect([&look](QWidget* window) {
            look(*qobject_cast<QDialog*>(window));
            window->close();
        });
        GFPQ_DYN_DLG_ARGS args;
        args.family = FAMILY;
        args.config_scheme = SCHEME;
        args.device_name = "My part";
        gfpq_dyn_dlg(nullptr, &args, true, true, true);
    }

    // What "Cancel" reads in the dialog.
    QString cancel_text(const QString& locale_name)
    {
        QString text;
        call_module(locale_name, [&text](QDialog& dialog) {
            text = dialog.findChild<QPushButton*>(QStringLiteral("m_cancel_button"))->text();
        });
        return text;
    }

    void take_down() override
    {
        PEOPLE_TEST::take_down();
        QLocale::setDefault(QLocale::c());
    }

private slots:
    void the_dialog_speaks_the_language_of_the_host_data()
    {
        QTest::addColumn<QString>("cancel");
        const auto row = [](const char* locale, const char* cancel) {
            QTest::newRow(locale) << QString::fromUtf8(cancel);
        };
        row("de", "Abbrechen");
        row("de_AT", "Abbrechen");
        row("es_MX", "Cancelar");
        row("fr_CA", "Annuler");
        row("it", "Annulla");
        row("ja_JP", "キャンセル");
        row("ko", "취소");
        row("pt_BR", "Cancelar");
        row("pt_PT", "Cancelar");
        row("ru_RU", "Отмена");
        row("zh_CN", "取消");
        row("zh_SG", "取消");
        row("zh_TW", "取消");
        row("zh_HK", "取消");
        row("en_GB", "Cancel");
        row("fi", "Cancel");
        row("C", "Cancel");
    }

    void the_dialog_speaks_the_language_of_the_host()
    {
        QFETCH(QString, cancel);

        QCOMPARE(cancel_text(QLatin1String(QTest::currentDataTag())), cancel);
    }

    void the_language_goes_with_the_dialog()
    {
        const auto translated = [] { return QCoreApplication::translate("gfpq_dlg", "Cancel"); };
        QString meanwhile;
        call_module(QStringLiteral("de"), [&](QDialog&) { meanwhile = translated(); });

        QCOMPARE(meanwhile, QStringLiteral("Abbrechen"));
        QCOMPARE(translated(), QStringLiteral("Cancel"));
        QCOMPARE(cancel_text(QStringLiteral("fr")), QStringLiteral("Annuler"));
        QCOMPARE(cancel_text(QStringLiteral("en")), QStringLiteral("Cancel"));
    }

    void every_text_of_the_form_is_translated()
    {
        const auto texts = [](const QDialog& dialog) {
            QMap<QString, QString> all{{QStringLiteral("title"), dialog.windowTitle()}};
            const auto* const pages = dialog.findChild<QTabWidget*>();
            all[QStringLiteral("page")] = pages->tabText(0);
            for (const QLabel* const label :
                 pages->window()->findChildren<QLabel*>(QRegularExpression(QStringLiteral("^m_"))))
                all[label->objectName()] = label->text();
            for (const QAbstractButton* const button :
                 dialog.findChildren<QAbstractButton*>(QRegularExpression(QStringLiteral("^m_"))))
                all[button->objectName()] = button->text();
            for (const QTableView* const table :
                 dialog.findChildren<QTableView*>(QStringLiteral("m_device_table_view"))) {
                all[QStringLiteral("header")] = table->model()->headerData(0, Qt::Horizontal).toString();
                all[QStringLiteral("devices")] = table->accessibleName();
            }
            all[QStringLiteral("example")] =
                dialog.findChild<QLineEdit*>(QStringLiteral("m_device_id_edit"))->placeholderText();
            return all;
        };
        QMap<QString, QString> english;
        QMap<QString, QString> russian;

        call_module(QStringLiteral("en"), [&](QDialog& dialog) { english = texts(dialog); });
        call_module(QStringLiteral("ru"), [&](QDialog& dialog) { russian = texts(dialog); });

        QCOMPARE(english.size(), 24);
        QCOMPARE(russian.keys(), english.keys());
        for (auto text = english.cbegin(); text != english.cend(); ++text)
            QVERIFY2(russian.value(text.key()) != text.value(), qPrintable(text.key()));
    }

    void the_words_of_the_vocabulary_stay()
    {
        QStringList words;
        call_module(QStringLiteral("ja"), [&words](QDialog& dialog) {
            const auto* const pages = dialog.findChild<QTabWidget*>();
            for (int page = 1; page < pages->count(); ++page)
                words.append(pages->tabText(page));
            words.append(dialog.findChild<QComboBox*>(QStringLiteral("m_config_mode_cbox"))->currentText());
            words.append(dialog.findChild<QTableView*>(QStringLiteral("m_device_table_view"))
                             ->model()
                             ->index(0, 0)
                             .data()
                             .toString());
        });

        QCOMPARE(words,
                 QStringList({QStringLiteral("Initialization"), QStringLiteral("Program"), QStringLiteral("Erase"),
                              QStringLiteral("Verify/Blank-Check/Examine"), QStringLiteral("Termination"),
                              QStringLiteral("Active Serial x4"), QStringLiteral("<<new device>>")}));
    }

    void the_menu_of_a_chart_says_insert_in_the_language()
    {
        QLocale::setDefault(QLocale(QStringLiteral("de")));
        const TEXT_CATALOGUE texts(QStringLiteral("gfpq"), {QStringLiteral(":/gfpq/translations")});
        open_dialog();
        show_operation_page(GFPDB_OPERATION_ERASE);

        m_modals.expect(MODAL_DRIVER::reject());
        QContextMenuEvent menu_key(QContextMenuEvent::Keyboard, QPoint());
        QApplication::sendEvent(&chart(), &menu_key);

        QCOMPARE(m_modals.last().menu_entries,
                 QStringList({QStringLiteral("Einf\u00fcgen"), QStringLiteral("-"), QStringLiteral("Refresh")}));
    }

    void the_template_editor_speaks_the_language()
    {
        QStringList texts;
        call_module(QStringLiteral("fr"), [&](QDialog& dialog) {
            dialog.findChild<QTableView*>(QStringLiteral("m_device_table_view"))->selectRow(0);
            m_modals.expect([&texts](QWidget* editor) {
                texts.append(editor->windowTitle());
                for (const char* name : {"m_templates_label"})
                    texts.append(editor->findChild<QLabel*>(QLatin1String(name))->text());
                for (const char* name : {"m_remove_button", "m_close_button"})
                    texts.append(editor->findChild<QPushButton*>(QLatin1String(name))->text());
                editor->close();
            });
            dialog.findChild<QPushButton*>(QStringLiteral("m_edit_template_button"))->click();
        });

        QCOMPARE(texts, QStringList({QStringLiteral("Modifier les mod\u00e8les"), QStringLiteral("Mod\u00e8les\u00a0:"),
                                     QStringLiteral("Supprimer"), QStringLiteral("Fermer")}));
    }

    // A process of its own: the languages of the user are read once, at its start.
    void the_languages_of_the_user_are_tried_in_order_data()
    {
        rows<QString, QString>({{"first", "de:fr", "Abbrechen"},
                                {"one without a catalogue", "fi:it:de", "Annulla"},
                                {"English ends the search", "en:de", "Cancel"},
                                {"English of a country", "en_GB:de", "Cancel"},
                                {"none", "fi", "Cancel"}});
    }

    void the_languages_of_the_user_are_tried_in_order()
    {
        const auto [languages, cancel] = row<QString, QString>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("LC_ALL"));
        environment.insert(QStringLiteral("LANG"), QStringLiteral("en_US.UTF-8"));
        environment.insert(QStringLiteral("LANGUAGE"), languages);
        QProcess probe;
        probe.setProcessEnvironment(environment);

        probe.start(QStringLiteral(GFPQ_LANGUAGE_PROBE), QStringList());

        QVERIFY(probe.waitForFinished());
        QCOMPARE(QString::fromUtf8(probe.readAllStandardOutput()), cancel);
    }

    void a_catalogue_that_is_tried_out_comes_first()
    {
        QVERIFY(
            QFile::copy(QStringLiteral(":/gfpq/translations/gfpq_ko.qm"), scratch() + QStringLiteral("/gfpq_de.qm")));
        qputenv("GFPQ_TRANSLATIONS", scratch().toLocal8Bit());
        const QString tried_out = cancel_text(QStringLiteral("de"));
        qunsetenv("GFPQ_TRANSLATIONS");

        QCOMPARE(tried_out, QString::fromUtf8("취소"));
        QCOMPARE(cancel_text(QStringLiteral("de")), QStringLiteral("Abbrechen"));
    }

    void directories_are_looked_through_in_order()
    {
        QVERIFY(
            QFile::copy(QStringLiteral(":/gfpq/translations/gfpq_it.qm"), scratch() + QStringLiteral("/gfpq_de.qm")));
        QLocale::setDefault(QLocale(QStringLiteral("de")));
        const QString embedded = QStringLiteral(":/gfpq/translations");
        const auto cancel = [](const QStringList& directories) {
            const TEXT_CATALOGUE texts(QStringLiteral("gfpq"), directories);
            return QCoreApplication::translate("gfpq_dlg", "Cancel");
        };

        QCOMPARE(cancel({QStringLiteral("/no/such/place"), scratch(), embedded}), QStringLiteral("Annulla"));
        QCOMPARE(cancel({embedded, scratch()}), QStringLiteral("Abbrechen"));
        QCOMPARE(cancel({}), QStringLiteral("Cancel"));
    }
};

GFPQ_TEST_MAIN(TEST_LANGUAGE)

#include "test_language.moc"
