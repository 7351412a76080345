// SPDX-License-Identifier: MIT

// The language that the dialog speaks: the host's.
#include "people_test.h"

#include "gfpq_dyn_dlg.h"
#include "text_catalogue.h"

#include <QComboBox>
#include <QGraphicsTextItem>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QStyleOptionComboBox>

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
        call_module(locale_name,
                    [&text](QDialog& dialog) { text = dialog.findChild<QPushButton*>(qs("m_cancel_button"))->text(); });
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
        rows<QString>({{"de", "Abbrechen"},
                       {"de_AT", "Abbrechen"},
                       {"es_MX", "Cancelar"},
                       {"fr_CA", "Annuler"},
                       {"it", "Annulla"},
                       {"ja_JP", "キャンセル"},
                       {"ko", "취소"},
                       {"pt_BR", "Cancelar"},
                       {"pt_PT", "Cancelar"},
                       {"ru_RU", "Отмена"},
                       {"zh_CN", "取消"},
                       {"zh_SG", "取消"},
                       {"zh_TW", "取消"},
                       {"zh_HK", "取消"},
                       {"en_GB", "Cancel"},
                       {"fi", "Cancel"},
                       {"C", "Cancel"}});
    }

    void the_dialog_speaks_the_language_of_the_host()
    {
        QCOMPARE(cancel_text(QLatin1String(QTest::currentDataTag())), row<QString>());
    }

    void the_language_goes_with_the_dialog()
    {
        const auto translated = [] { return QCoreApplication::translate("gfpq_dlg", "Cancel"); };
        QString meanwhile;
        call_module(qs("de"), [&](QDialog&) { meanwhile = translated(); });

        QCOMPARE(meanwhile, qs("Abbrechen"));
        QCOMPARE(translated(), qs("Cancel"));
        QCOMPARE(cancel_text(qs("fr")), qs("Annuler"));
        QCOMPARE(cancel_text(qs("en")), qs("Cancel"));
    }

    void every_text_of_the_form_is_translated()
    {
        const auto texts = [](const QDialog& dialog) {
            QMap<QString, QString> all{{qs("title"), dialog.windowTitle()}};
            const auto* const pages = dialog.findChild<QTabWidget*>();
            all[qs("page")] = pages->tabText(0);
            for (const QLabel* const label : pages->window()->findChildren<QLabel*>(QRegularExpression(qs("^m_"))))
                all[label->objectName()] = label->text();
            for (const QAbstractButton* const button :
                 dialog.findChildren<QAbstractButton*>(QRegularExpression(qs("^m_"))))
                all[button->objectName()] = button->text();
            for (const QTableView* const table : dialog.findChildren<QTableView*>(qs("m_device_table_view"))) {
                all[qs("header")] = table->model()->headerData(0, Qt::Horizontal).toString();
                all[qs("devices")] = table->accessibleName();
            }
            all[qs("example")] = dialog.findChild<QLineEdit*>(qs("m_device_id_edit"))->placeholderText();
            return all;
        };
        QMap<QString, QString> english;
        QMap<QString, QString> russian;

        call_module(qs("en"), [&](QDialog& dialog) { english = texts(dialog); });
        call_module(qs("ru"), [&](QDialog& dialog) { russian = texts(dialog); });

        QCOMPARE(english.size(), 24);
        QCOMPARE(russian.keys(), english.keys());
        QCOMPARE(russian.take(qs("m_ok_button")), english.take(qs("m_ok_button")));
        for (auto text = english.cbegin(); text != english.cend(); ++text)
            QVERIFY2(russian.value(text.key()) != text.value(), qPrintable(text.key()));
    }

    void the_words_of_the_vocabulary_stay()
    {
        QStringList words;
        call_module(qs("ja"), [&words](QDialog& dialog) {
            const auto* const pages = dialog.findChild<QTabWidget*>();
            for (int page = 1; page < pages->count(); ++page)
                words.append(pages->tabText(page));
            words.append(dialog.findChild<QComboBox*>(qs("m_config_mode_cbox"))->currentText());
            words.append(
                dialog.findChild<QTableView*>(qs("m_device_table_view"))->model()->index(0, 0).data().toString());
        });

        QCOMPARE(words, QStringList({qs("Initialization"), qs("Program"), qs("Erase"), qs("Verify/Blank-Check/Examine"),
                                     qs("Termination"), qs("Active Serial x4"), qs("<<new device>>")}));
    }

    void the_menu_of_a_chart_says_insert_in_the_language()
    {
        QLocale::setDefault(QLocale(qs("de")));
        const TEXT_CATALOGUE texts(qs("gfpq"), {qs(":/gfpq/translations")});
        open_dialog();
        show_operation_page(GFPDB_OPERATION_ERASE);

        m_modals.expect(MODAL_DRIVER::reject());
        QContextMenuEvent menu_key(QContextMenuEvent::Keyboard, QPoint());
        QApplication::sendEvent(&chart(), &menu_key);

        QCOMPARE(m_modals.last().menu_entries, QStringList({qs("Aktion einf\u00fcgen"), qs("-"), qs("Refresh")}));
    }

    void the_page_of_an_operation_speaks_the_language()
    {
        QLocale::setDefault(QLocale(qs("fr")));
        const TEXT_CATALOGUE texts(qs("gfpq"), {qs(":/gfpq/translations")});
        open_dialog();
        show_operation_page(GFPDB_OPERATION_ERASE);

        const QAbstractItemModel& rows = *property_table().model();
        QCOMPARE(rows.headerData(0, Qt::Horizontal).toString(), QString::fromUtf8("Propriété"));
        QCOMPARE(rows.headerData(1, Qt::Horizontal).toString(), qs("Valeur"));
        QStringList palette;
        QStringList names;
        for (const QGraphicsView* const view : tabs().currentWidget()->findChildren<QGraphicsView*>()) {
            names.append(view->accessibleName());
            for (const QGraphicsItem* const item : view->items()) {
                if (const auto* const text = qgraphicsitem_cast<const QGraphicsTextItem*>(item))
                    palette.append(text->toPlainText());
            }
        }
        QVERIFY2(palette.contains(qs("Actions :")), qPrintable(palette.join(QLatin1Char('/'))));
        names.sort();
        QCOMPARE(names, (QStringList{QString::fromUtf8("Erase\u00A0: actions"),
                                     QString::fromUtf8("Erase\u00A0: organigramme")}));
    }

    // Whose margin alone is too wide.
    void a_long_title_of_the_actions_brings_no_scroll_bar()
    {
        QLocale::setDefault(QLocale(qs("ru")));
        const TEXT_CATALOGUE texts(qs("gfpq"), {qs(":/gfpq/translations")});
        open_dialog();
        show_operation_page(GFPDB_OPERATION_ERASE);

        const auto* const palette = qobject_cast<QGraphicsView*>(
            tabs().currentWidget()->findChild<QGraphicsView*>(QString(), Qt::FindDirectChildrenOnly));
        QVERIFY(palette != nullptr && palette != &chart());
        QVERIFY(palette->sceneRect().width() > palette->viewport()->width());
        QVERIFY(!palette->horizontalScrollBar()->isVisible());
    }

    // Beside the labels of each language, in a dialog of the form's width, with the font of a desktop.
    void the_names_of_templates_can_be_told_apart_data()
    {
        rows_named<QString>({"de", "es", "fr", "it", "ja", "ko", "pt_BR", "ru", "zh_CN", "zh_TW"});
    }

    void the_names_of_templates_can_be_told_apart()
    {
        QLocale::setDefault(QLocale(row<QString>()));
        const TEXT_CATALOGUE texts(qs("gfpq"), {qs(":/gfpq/translations")});
        const auto back_to_it = qScopeGuard([font = QApplication::font()] { QApplication::setFont(font); });
        QApplication::setFont(QFont(qs("DejaVu Sans"), 9));
        mgr().templates = {"QE in SR1 bit 6, 3-byte address", "QE in SR1 bit 6, 4-byte address"};
        GFPQ_DLG& dialog = open_dialog();
        child<QTableView>("m_device_table_view").selectRow(0);

        auto& combo = child<QComboBox>("m_flow_template_cbox");
        const auto room = [&combo] {
            QStyleOptionComboBox option;
            option.initFrom(&combo);
            return combo.style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo)
                .width();
        };
        QTRY_VERIFY(room() >= combo.fontMetrics().horizontalAdvance(combo.itemText(0)));
        QCOMPARE(dialog.width(), 994);
    }

    void the_template_editor_speaks_the_language()
    {
        QStringList texts;
        call_module(qs("fr"), [&](QDialog& dialog) {
            dialog.findChild<QTableView*>(qs("m_device_table_view"))->selectRow(0);
            m_modals.expect([&texts](QWidget* editor) {
                texts.append(editor->windowTitle());
                for (const char* name : {"m_templates_label"})
                    texts.append(editor->findChild<QLabel*>(QLatin1String(name))->text());
                for (const char* name : {"m_remove_button", "m_close_button"})
                    texts.append(editor->findChild<QPushButton*>(QLatin1String(name))->text());
                editor->close();
            });
            dialog.findChild<QPushButton*>(qs("m_edit_template_button"))->click();
        });

        QCOMPARE(texts, QStringList({qs("Modifier les mod\u00e8les"), qs("Mod\u00e8les\u00a0:"), qs("Supprimer"),
                                     qs("Fermer")}));
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
        environment.remove(qs("LC_ALL"));
        environment.insert(qs("LANG"), qs("en_US.UTF-8"));
        environment.insert(qs("LANGUAGE"), languages);
        QProcess probe;
        probe.setProcessEnvironment(environment);

        probe.start(QStringLiteral(GFPQ_LANGUAGE_PROBE), QStringList());

        QVERIFY(probe.waitForFinished());
        QCOMPARE(QString::fromUtf8(probe.readAllStandardOutput()), cancel);
    }

    void a_catalogue_that_is_tried_out_comes_first_data()
    {
        rows<QString, QString>({{"de", "gfpq_de.qm", "Abbrechen"},
                                {"pt_BR", "gfpq_pt_BR.qm", "Cancelar"},
                                {"pt_PT", "gfpq_pt_BR.qm", "Cancelar"},
                                {"zh_CN", "gfpq_zh_CN.qm", "取消"},
                                {"zh_HK", "gfpq_zh_TW.qm", "取消"}});
    }

    void a_catalogue_that_is_tried_out_comes_first()
    {
        const auto [file, cancel] = row<QString, QString>();
        const QString language = QLatin1String(QTest::currentDataTag());
        QVERIFY(QFile::copy(qs(":/gfpq/translations/gfpq_ko.qm"), scratch() + QLatin1Char('/') + file));
        qputenv("GFPQ_TRANSLATIONS", scratch().toLocal8Bit());
        const QString tried_out = cancel_text(language);
        qunsetenv("GFPQ_TRANSLATIONS");

        QCOMPARE(tried_out, QString::fromUtf8("취소"));
        QCOMPARE(cancel_text(language), cancel);
    }

    void directories_are_looked_through_in_order()
    {
        QVERIFY(QFile::copy(qs(":/gfpq/translations/gfpq_it.qm"), scratch() + qs("/gfpq_de.qm")));
        QLocale::setDefault(QLocale(qs("de")));
        const QString embedded = qs(":/gfpq/translations");
        const auto cancel = [](const QStringList& directories) {
            const TEXT_CATALOGUE texts(qs("gfpq"), directories);
            return QCoreApplication::translate("gfpq_dlg", "Cancel");
        };

        QCOMPARE(cancel({qs("/no/such/place"), scratch(), embedded}), qs("Annulla"));
        QCOMPARE(cancel({embedded, scratch()}), qs("Abbrechen"));
        QCOMPARE(cancel({}), qs("Cancel"));
    }
};

GFPQ_TEST_MAIN(TEST_LANGUAGE)

#include "test_language.moc"
