// SPDX-License-Identifier: MIT

// The opened dialog as a whole: what its widgets are left without, what the flags and a change of the mode leave alone,
// and that it lives on copies of what its caller handed in.
#include "dialog_test.h"

#include "dialog/gfpq_form.h"

#include "marking_translator.h"
#include "property_differences.h"

#include <QAction>
#include <QFormLayout>
#include <QGraphicsItem>
#include <QMetaProperty>
#include <QSplitter>
#include <QValidator>

namespace {

// The properties of a line edit that follow what is entered, and the one text that a field may have.
const QStringList OF_THE_TEXT = list_of({"text", "displayText", "cursorPosition", "modified", "hasSelectedText",
                                         "selectedText", "undoAvailable", "redoAvailable", "placeholderText"});

// What size, place and use make of a widget, and the names that people hear.
const QStringList OF_THE_MOMENT =
    qs("accessibleName accessibleDescription baseSize childrenRect childrenRegion count currentData "
       "currentIndex currentText cursorPosition enabled focus frameGeometry frameSize geometry height "
       "isActiveWindow minimumHeight minimumSize minimumSizeHint minimumWidth normalGeometry pos rect "
       "size sizeHint visible width windowTitle x y")
        .split(QLatin1Char(' '));

// Where the dialog goes on from its form: "widget property".
const QStringList OF_THE_DIALOG =
    list_of({"m_device_id_edit placeholderText", "m_device_table_view alternatingRowColors",
             "m_device_table_view selectionBehavior", "m_device_table_view selectionMode",
             "m_device_table_view tabKeyNavigation"});

} // namespace

class TEST_OPENED_DIALOG : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void the_dialog_goes_on_from_its_form_in_a_few_places_only()
    {
        KOVQ_DIALOG bare(nullptr, Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
        Ui::gfpq_dlg form;
        gfpq_build_form(form, &bare);
        open();
        QCOMPARE(dlg().objectName(), qs("gfpq_dlg"));
        QCOMPARE(dlg().windowTitle(), qs("Configuration Device"));
        QCOMPARE(dlg().size(), QSize(994, 892));

        QStringList left_out_of_edits = OF_THE_TEXT + OF_THE_MOMENT;
        left_out_of_edits.removeOne(qs("placeholderText"));
        QStringList differences = property_differences(dlg(), bare, OF_THE_MOMENT);
        // Without what Qt's widgets are made of, the scroll buttons of the tab bar among them.
        const QList<QWidget*> of_the_form = bare.findChildren<QWidget*>(QRegularExpression(qs("^[^qS].*")));
        for (const QWidget* const part : of_the_form) {
            const bool is_edit = qobject_cast<const QLineEdit*>(part) != nullptr;
            differences += property_differences(*part, widget(part->objectName().toLatin1().constData()),
                                                is_edit ? left_out_of_edits : OF_THE_MOMENT);
        }
        const QList<QLayout*> layouts = bare.findChildren<QLayout*>(QRegularExpression(qs("^[^q_].*")));
        QVERIFY(layouts.size() > 10);
        for (const QLayout* const layout : layouts) {
            const auto& opened = child<QLayout>(layout->objectName().toLatin1().constData());
            differences += property_differences(*layout, opened, OF_THE_MOMENT);
            const auto* const box = qobject_cast<const QBoxLayout*>(&opened);
            for (int index = 0; box != nullptr && index < box->count(); ++index)
                QCOMPARE(box->stretch(index), 0);
        }
        for (int pane = 0; pane < 2; ++pane)
            QVERIFY(child<QSplitter>("m_config_device_splitter").isCollapsible(pane));
        QCOMPARE(dlg().minimumSize(), bare.minimumSize());
        QVERIFY(of_the_form.size() > 40);
        differences.sort();
        QCOMPARE(differences, OF_THE_DIALOG);
    }

    void nothing_is_set_but_what_the_form_sets_data() { rows_named<QString>({"<<new device>>", "A", "H", "B"}); }

    void nothing_is_set_but_what_the_form_sets()
    {
        const QString device = row<QString>();
        open_with(device);
        for (const QPushButton* const part : dlg().findChildren<QPushButton*>())
            QVERIFY2(!part->isDefault(), qPrintable(part->objectName()));

        show_dialog();

        QCOMPARE(current_row(), device);
        for (const QPushButton* const part : dlg().findChildren<QPushButton*>()) {
            const bool keeps = part->objectName() == QLatin1String("m_edit_template_button");
            QVERIFY2(part->autoDefault() == keeps, qPrintable(part->objectName()));
            // A dialog that is shown without a default button marks its first auto-default one.
            QVERIFY2(part->isDefault() == keeps, qPrintable(part->objectName()));
        }
        for (const QWidget* const part : dlg().findChildren<QWidget*>()) {
            const auto* const label = qobject_cast<const QLabel*>(part);
            const bool has_hint = !part->toolTip().isEmpty() || !part->statusTip().isEmpty() ||
                                  !part->whatsThis().isEmpty() || (label != nullptr && label->buddy() != nullptr);
            QVERIFY2(!is_of_the_form(part) || !has_hint, qPrintable(part->objectName()));
        }
        QCOMPARE(dlg().toolTip(), QString());
        for (int position = 0; position < tabs().count(); ++position)
            QVERIFY(tabs().tabIcon(position).isNull() && tabs().tabToolTip(position).isEmpty() &&
                    tabs().tabWhatsThis(position).isEmpty());
        for (int index = 0; index < device_model().rowCount(); ++index)
            QCOMPARE(device_model().item(index)->toolTip(), QString());
        compare_line_edits();
        QCOMPARE(dlg().findChildren<QComboBox*>().size(), 5);
        for (const QComboBox* const box : dlg().findChildren<QComboBox*>()) {
            QVERIFY2(!box->isEditable() && !box->duplicatesEnabled(), qPrintable(box->objectName()));
            for (int index = 0; index < box->count(); ++index)
                QVERIFY2(box->model()->flags(box->model()->index(index, 0)).testFlag(Qt::ItemIsEnabled),
                         qPrintable(box->objectName()));
        }
    }

    void a_field_takes_a_text_of_any_length_data()
    {
        rows_named<QString>({"m_device_name_edit", "m_device_id_edit", "m_total_die_edit", "m_clock_cycle_edit",
                             "m_clock_cycle_edit_x4", "m_template_name_edit", "m_filter_line_edit",
                             "m_directory_edit"});
    }

    void a_field_takes_a_text_of_any_length()
    {
        open();
        QLineEdit& field = edit(QTest::currentDataTag());
        const QString text(QLineEdit().maxLength() - 1, QLatin1Char('x'));
        field.setText(text);
        show_dialog();
        field.setEnabled(true);

        // Typed, which is where a validator or a mask would say no.
        field.setCursorPosition(text.size());
        QTest::keyClicks(&field, qs("-"));

        QCOMPARE(field.text(), text + QLatin1Char('-'));
    }

    void tabs_are_enabled_whatever_the_flags_say()
    {
        for (const char* device : {"<<new device>>", "A", "B"}) {
            for (int bits = 0; bits < 8; ++bits) {
                DIALOG_ARGS args;
                args.device_name = device;
                args.enable_family = (bits & 1) != 0;
                args.enable_config_mode = (bits & 2) != 0;
                args.enable_edit = (bits & 4) != 0;

                open(args);

                QVERIFY(tabs().isEnabled());
                for (int position = 0; position < tabs().count(); ++position)
                    QVERIFY(tabs().isTabEnabled(position) && tabs().isTabVisible(position));
                // The page behind the first tab can be looked at, and come back to.
                tabs().setCurrentIndex(2);
                tabs().setCurrentIndex(0);
                QCOMPARE(tabs().currentIndex(), 0);
                QCOMPARE(widget("m_config_device_tab").isEnabled(), args.enable_edit);
                QVERIFY(widget("m_config_device_gbox").isEnabled());
                compare_line_edits();
            }
        }
    }

    void the_flags_outlive_every_refill()
    {
        for (const bool enabled : {true, false}) {
            DIALOG_ARGS args;
            args.enable_family = args.enable_config_mode = args.enable_edit = enabled;
            open(args);

            choose("m_family_cbox", ALDER);
            choose("m_config_mode_cbox", SCHEME_X1);
            type_in("m_directory_edit", enabled ? "/other" : "/another");
            run("on_directory_editing_finished");
            pick("A");
            run("on_apply_clicked");
            run("on_delete_clicked");

            QCOMPARE(count_of("save_flash"), 1);
            for (const char* name :
                 {"m_family_cbox", "m_config_mode_cbox", "m_config_device_tab", "m_directory_edit", "m_browse_button"})
                QVERIFY2(widget(name).isEnabled() == enabled, name);
            // Deleted by now.
            mgr().add_custom("A");
        }
    }

    void a_box_blocks_the_whole_host_data() { rows_named<QString>({"field", "form", "directory"}); }

    void a_box_blocks_the_whole_host()
    {
        const QString why = row<QString>();
        mgr().refuse(GFPDB_FLASH_DEVICE_ID, "refused");
        world().save_dir_succeeds = false;
        open();
        Qt::WindowModality modality = Qt::NonModal;
        m_modals.expect([&modality](QWidget* box) {
            modality = box->windowModality();
            MODAL_DRIVER::accept()(box);
        });

        if (why == QLatin1String("field"))
            enter("m_device_id_edit", "x");
        else if (why == QLatin1String("form"))
            button("m_apply_button").click();
        else
            enter("m_directory_edit", "/no");

        QCOMPARE(modality, Qt::ApplicationModal);
    }

    void another_manager_leaves_the_rows_of_the_form_data()
    {
        rows<bool, bool>({{"mode, used before", true, true},
                          {"mode, unused before", true, false},
                          {"directory, used before", false, true},
                          {"directory, unused before", false, false}});
    }

    // A field that was connected stays so.
    void another_manager_leaves_the_rows_of_the_form()
    {
        const auto [by_mode, used] = row<bool, bool>();
        MGR_DOUBLE& first = mgr();
        first.unused_properties = used ? std::set<int>() : ALL_FIELDS;
        open();
        switch_manager().unused_properties = used ? ALL_FIELDS : std::set<int>();

        if (by_mode)
            choose("m_config_mode_cbox", SCHEME_X1);
        else
            enter("m_directory_edit", "/other");

        QCOMPARE(fields().count(), used ? 18 : 0);
        QCOMPARE(child<QHBoxLayout>("horizontalLayout").count(), used ? 2 : 0);
        const QList<QWidget*> parts =
            widget("scrollAreaWidgetContents").findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(parts.size(), 19);
        for (const QWidget* const part : parts)
            QVERIFY2(part->isHidden() != used, qPrintable(part->objectName()));
        log().clear();
        enter("m_device_id_edit", "x");
        QCOMPARE(calls(), used ? list_of({R"(other.check_string_property(1, "x"))"}) : QStringList());
    }

    void a_slot_reads_its_combo_not_the_index_data()
    {
        rows<QString>({{"on_change_family", "mgr.set_device_family(5)"},
                       {"on_change_config_mode", "GFPDB_HELPER.set_active_flash_family(13)"},
                       {"on_change_voltage", R"(mgr.check_string_property(2, "1.8 V"))"},
                       {"on_change_density", R"(mgr.check_string_property(3, "16 Mb"))"},
                       {"on_change_flow_template", R"(mgr.check_string_property(8, "Built-in A"))"}});
    }

    void a_slot_reads_its_combo_not_the_index()
    {
        const QString call = row<QString>();
        open();

        for (const int index : {-1, 1, 99}) {
            log().clear();
            QVERIFY(
                QMetaObject::invokeMethod(&dlg(), QTest::currentDataTag(), Qt::DirectConnection, Q_ARG(int, index)));
            QCOMPARE(calls().first(), call);
        }
    }

    // Families, modes, operations, actions and properties have one name in every language.
    void the_vocabulary_is_never_translated()
    {
        open_with("A");
        const QStringList words = vocabulary();
        QVERIFY(words.contains(qs("Command-Data(bus width):")) && words.contains(qs("Read Data")));

        const MARKING_TRANSLATOR translator("gfpq_dlg");
        open_with("A");

        QCOMPARE(button("m_ok_button").text(), qs("[OK]"));
        QCOMPARE(edit("m_device_id_edit").placeholderText(), qs("[i.e. 0xC2 0x20 0x19]"));
        QCOMPARE(vocabulary(), words);
    }

    void the_callers_record_is_copied()
    {
        DIALOG_ARGS args = with_map({{5, {10, 7}}, {3, {23}}});
        args.device_name = "A";
        open(args);

        args.device_name = "B";
        args.family_schemes = {{9, {13}}};
        choose("m_family_cbox", ALDER);
        QCOMPARE(items("m_config_mode_cbox"), list_of({"SDMMC x4"}));
        choose("m_family_cbox", CEDAR);
        QCOMPARE(items("m_config_mode_cbox"), list_of({"Active Serial", "Passive Parallel x8"}));
        choose("m_config_mode_cbox", 10);
        QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Cedar"}));

        button("m_cancel_button").click();
        QCOMPARE(dlg().device_name(), std::string("A"));
    }

private:
    void fill_world() override
    {
        mgr().add_custom("A").operations[false] = make_operations("own");
        mgr().add_custom("H");
        mgr().add_builtin("B");
        mgr().hidden_properties = {"H"};
    }

    QStringList vocabulary() const
    {
        tabs().setCurrentIndex(1);
        page(0).update_property_table(page(0).get_flow().at(0));
        QStringList words = items("m_family_cbox") + items("m_config_mode_cbox");
        const QAbstractItemModel& properties = *page(0).findChild<QTableView*>(qs("m_property_table"))->model();
        for (int row = 0; row < properties.rowCount(); ++row)
            words.append(properties.index(row, 0).data().toString());
        for (int operation = 0; operation < 5; ++operation) {
            words << tabs().tabText(operation + 1) << page(operation).findChild<QLabel*>()->text();
            for (const QAction* const action : page(operation).findChildren<QAction*>())
                words.append(action->text());
            // The tool tips of the palette.
            for (const QGraphicsScene* const scene : page(operation).findChildren<QGraphicsScene*>()) {
                for (const QGraphicsItem* const item : scene->items())
                    words.append(item->toolTip());
            }
        }
        return words;
    }

    // The pages of the operations have tests of their own.
    bool is_of_the_form(const QWidget* widget) const
    {
        for (int operation = 0; operation < 5; ++operation) {
            if (widget == &page(operation) || page(operation).isAncestorOf(widget))
                return false;
        }
        return true;
    }

    void compare_line_edits() const
    {
        const QLineEdit of_its_kind;
        const QMetaObject& kind = QLineEdit::staticMetaObject;
        const QList<QLineEdit*> edits = dlg().findChildren<QLineEdit*>();
        QVERIFY(edits.size() >= 8);
        for (const QLineEdit* const part : edits) {
            for (int index = kind.propertyOffset(); index < kind.propertyCount(); ++index) {
                const QMetaProperty property = kind.property(index);
                const QString what = part->objectName() + QLatin1Char(' ') + QLatin1String(property.name());
                QVERIFY2(OF_THE_TEXT.contains(QLatin1String(property.name())) ||
                             property.read(part) == property.read(&of_its_kind),
                         qPrintable(what));
            }
            QVERIFY2(part->validator() == nullptr && part->completer() == nullptr && part->actions().isEmpty(),
                     qPrintable(part->objectName()));
        }
    }

    QFormLayout& fields() const { return child<QFormLayout>("formLayout_3"); }
};

GFPQ_TEST_MAIN(TEST_OPENED_DIALOG)

#include "test_opened_dialog.moc"
