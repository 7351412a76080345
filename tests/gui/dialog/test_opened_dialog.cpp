// SPDX-License-Identifier: MIT

// The opened dialog as a whole: what its widgets are left without, what the flags and a change of the mode leave alone,
// and that it lives on copies of what its caller handed in.
#include "dialog_test.h"

#include "dialog/gfpq_form.h"

#include "marking_translator.h"

#include <QDebug>
#include <QFormLayout>
#include <QMetaProperty>
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

QString as_text(const QVariant& value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

} // namespace

class TEST_OPENED_DIALOG : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void the_dialog_goes_on_from_its_form_in_a_few_places_only();
    void only_the_edit_button_keeps_its_auto_default_data() { devices_data(); }
    void only_the_edit_button_keeps_its_auto_default();
    void nothing_has_a_hint_data() { devices_data(); }
    void nothing_has_a_hint();
    void line_edits_are_as_their_kind_makes_them_data() { devices_data(); }
    void line_edits_are_as_their_kind_makes_them();
    void a_field_takes_a_text_of_any_length_data();
    void a_field_takes_a_text_of_any_length();
    void combos_offer_what_they_list_and_no_more_data() { devices_data(); }
    void combos_offer_what_they_list_and_no_more();
    void tabs_are_enabled_whatever_the_flags_say_data();
    void tabs_are_enabled_whatever_the_flags_say();
    void the_flags_outlive_every_refill_data();
    void the_flags_outlive_every_refill();
    void a_box_blocks_the_whole_host_data();
    void a_box_blocks_the_whole_host();
    void a_mode_change_leaves_the_rows_of_the_form();
    void a_mode_change_brings_no_row_back();
    void a_new_directory_leaves_the_rows_of_the_form();
    void a_slot_reads_its_combo_not_the_index_data();
    void a_slot_reads_its_combo_not_the_index();
    void the_vocabulary_is_never_translated();
    void the_map_is_a_copy();
    void the_name_is_a_copy();

private:
    void fill_world() override;
    static void devices_data();
    // Opens and shows the dialog with the device of the test's row.
    void show_device();
    bool is_of_the_form(const QWidget* widget) const;
    QFormLayout& fields() const { return child<QFormLayout>("formLayout_3"); }
};

void TEST_OPENED_DIALOG::fill_world()
{
    mgr().add_custom("A").operations[false] = make_operations("own");
    mgr().add_custom("H");
    mgr().add_builtin("B");
    mgr().hidden_properties = {"H"};
}

void TEST_OPENED_DIALOG::devices_data()
{
    QTest::addColumn<QString>("device");

    QTest::newRow("new device") << qs("<<new device>>");
    QTest::newRow("custom") << qs("A");
    QTest::newRow("hidden") << qs("H");
    QTest::newRow("built-in") << qs("B");
}

void TEST_OPENED_DIALOG::show_device()
{
    QFETCH(const QString, device);
    open_with(device.toStdString());
    show_dialog();
    QCOMPARE(current_row(), device);
}

// The pages of the operations have tests of their own.
bool TEST_OPENED_DIALOG::is_of_the_form(const QWidget* widget) const
{
    for (int operation = 0; operation < 5; ++operation) {
        if (widget == &page(operation) || page(operation).isAncestorOf(widget))
            return false;
    }
    return true;
}

void TEST_OPENED_DIALOG::the_dialog_goes_on_from_its_form_in_a_few_places_only()
{
    KOVQ_DIALOG bare(nullptr, Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    Ui::gfpq_dlg form;
    gfpq_build_form(form, &bare);
    open();
    QCOMPARE(dlg().objectName(), QStringLiteral("gfpq_dlg"));
    QCOMPARE(dlg().windowTitle(), QStringLiteral("Configuration Device"));
    QCOMPARE(dlg().size(), QSize(994, 892));

    QStringList differences;
    // Without what Qt's widgets are made of, the scroll buttons of the tab bar among them.
    const QList<QWidget*> of_the_form = bare.findChildren<QWidget*>(QRegularExpression(QStringLiteral("^[^qS].*")));
    for (const QWidget* const part : of_the_form) {
        const QWidget& opened = widget(part->objectName().toLatin1().constData());
        const QMetaObject& kind = *part->metaObject();
        for (int index = 0; index < kind.propertyCount(); ++index) {
            const QString property = QLatin1String(kind.property(index).name());
            const QString text_now = as_text(opened.property(kind.property(index).name()));
            const bool is_text = qobject_cast<const QLineEdit*>(part) != nullptr && OF_THE_TEXT.contains(property) &&
                                 property != QLatin1String("placeholderText");
            if (!is_text && !OF_THE_MOMENT.contains(property) &&
                text_now != as_text(part->property(kind.property(index).name())))
                differences.append(part->objectName() + QLatin1Char(' ') + property);
        }
    }

    QVERIFY(of_the_form.size() > 40);
    differences.sort();
    QCOMPARE(differences, OF_THE_DIALOG);
}

void TEST_OPENED_DIALOG::only_the_edit_button_keeps_its_auto_default()
{
    QFETCH(const QString, device);
    open_with(device.toStdString());
    const QList<QPushButton*> buttons = dlg().findChildren<QPushButton*>();
    for (const QPushButton* const button : buttons)
        QVERIFY2(!button->isDefault(), qPrintable(button->objectName()));

    show_dialog();

    for (const QPushButton* const button : buttons) {
        const bool keeps = button->objectName() == QLatin1String("m_edit_template_button");
        QVERIFY2(button->autoDefault() == keeps, qPrintable(button->objectName()));
        // A dialog that is shown without a default button marks its first auto-default one.
        QVERIFY2(button->isDefault() == keeps, qPrintable(button->objectName()));
    }
}

void TEST_OPENED_DIALOG::nothing_has_a_hint()
{
    show_device();

    const QList<QWidget*> widgets = dlg().findChildren<QWidget*>();
    for (const QWidget* const widget : widgets) {
        if (!is_of_the_form(widget))
            continue;
        QVERIFY2(widget->toolTip().isEmpty(), qPrintable(widget->objectName()));
        QVERIFY2(widget->statusTip().isEmpty(), qPrintable(widget->objectName()));
        QVERIFY2(widget->whatsThis().isEmpty(), qPrintable(widget->objectName()));
        const auto* const label = qobject_cast<const QLabel*>(widget);
        QVERIFY2(label == nullptr || label->buddy() == nullptr, qPrintable(widget->objectName()));
    }
    for (int position = 0; position < tabs().count(); ++position) {
        QCOMPARE(tabs().tabToolTip(position), QString());
        QCOMPARE(tabs().tabWhatsThis(position), QString());
    }
    for (int row = 0; row < device_model().rowCount(); ++row)
        QCOMPARE(device_model().item(row)->toolTip(), QString());
    QCOMPARE(dlg().toolTip(), QString());
}

void TEST_OPENED_DIALOG::line_edits_are_as_their_kind_makes_them()
{
    show_device();

    const QLineEdit of_its_kind;
    const QMetaObject& kind = QLineEdit::staticMetaObject;
    const QList<QLineEdit*> edits = dlg().findChildren<QLineEdit*>();
    QVERIFY(edits.size() >= 8);
    for (const QLineEdit* const edit : edits) {
        for (int index = kind.propertyOffset(); index < kind.propertyCount(); ++index) {
            const QMetaProperty property = kind.property(index);
            const QString what = edit->objectName() + QLatin1Char(' ') + QLatin1String(property.name());
            if (!OF_THE_TEXT.contains(QLatin1String(property.name())))
                QVERIFY2(property.read(edit) == property.read(&of_its_kind), qPrintable(what));
        }
        QVERIFY2(edit->validator() == nullptr, qPrintable(edit->objectName()));
        QVERIFY2(edit->completer() == nullptr, qPrintable(edit->objectName()));
        QVERIFY2(edit->actions().isEmpty(), qPrintable(edit->objectName()));
    }
}

void TEST_OPENED_DIALOG::a_field_takes_a_text_of_any_length_data()
{
    QTest::addColumn<int>("length");

    for (const char* name : {"m_device_name_edit", "m_device_id_edit", "m_total_die_edit", "m_clock_cycle_edit",
                             "m_clock_cycle_edit_x4", "m_template_name_edit", "m_filter_line_edit", "m_directory_edit"})
        QTest::newRow(name) << QLineEdit().maxLength();
}

void TEST_OPENED_DIALOG::a_field_takes_a_text_of_any_length()
{
    QFETCH(const int, length);
    open();
    QLineEdit& field = edit(QTest::currentDataTag());
    const QString text(length - 1, QLatin1Char('x'));
    field.setText(text);
    show_dialog();
    field.setEnabled(true);

    // Typed, which is where a validator or a mask would say no.
    field.setCursorPosition(text.size());
    QTest::keyClicks(&field, QStringLiteral("-"));

    QCOMPARE(field.text(), text + QLatin1Char('-'));
}

void TEST_OPENED_DIALOG::combos_offer_what_they_list_and_no_more()
{
    show_device();

    const QList<QComboBox*> boxes = dlg().findChildren<QComboBox*>();
    QCOMPARE(boxes.size(), 5);
    for (const QComboBox* const box : boxes) {
        QVERIFY2(!box->isEditable(), qPrintable(box->objectName()));
        QVERIFY2(!box->duplicatesEnabled(), qPrintable(box->objectName()));
        for (int index = 0; index < box->count(); ++index)
            QVERIFY2(box->model()->flags(box->model()->index(index, 0)).testFlag(Qt::ItemIsEnabled),
                     qPrintable(box->objectName()));
    }
}

void TEST_OPENED_DIALOG::tabs_are_enabled_whatever_the_flags_say_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<QString>("device");

    for (const char* device : {"<<new device>>", "A", "B"}) {
        for (int bits = 0; bits < 8; ++bits)
            QTest::addRow("%s %d", device, bits) << bits << qs(device);
    }
}

void TEST_OPENED_DIALOG::tabs_are_enabled_whatever_the_flags_say()
{
    QFETCH(const int, bits);
    QFETCH(const QString, device);
    DIALOG_ARGS args;
    args.device_name = device.toStdString();
    args.enable_family = (bits & 1) != 0;
    args.enable_config_mode = (bits & 2) != 0;
    args.enable_edit = (bits & 4) != 0;

    open(args);

    QVERIFY(tabs().isEnabled());
    for (int position = 0; position < tabs().count(); ++position) {
        QVERIFY(tabs().isTabEnabled(position));
        QVERIFY(tabs().isTabVisible(position));
    }
    // The page behind the first tab can be looked at, and come back to.
    tabs().setCurrentIndex(2);
    tabs().setCurrentIndex(0);
    QCOMPARE(tabs().currentIndex(), 0);
    QCOMPARE(widget("m_config_device_tab").isEnabled(), args.enable_edit);
    for (const char* name : {"m_ok_button", "m_cancel_button", "m_config_device_gbox"})
        QVERIFY2(widget(name).isEnabled(), name);
}

void TEST_OPENED_DIALOG::the_flags_outlive_every_refill_data()
{
    QTest::addColumn<bool>("enabled");

    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void TEST_OPENED_DIALOG::the_flags_outlive_every_refill()
{
    QFETCH(const bool, enabled);
    DIALOG_ARGS args;
    args.enable_family = args.enable_config_mode = args.enable_edit = enabled;
    open(args);

    choose("m_family_cbox", ALDER);
    choose("m_config_mode_cbox", SCHEME_X1);
    edit("m_directory_edit").setText(QStringLiteral("/other"));
    run("on_directory_editing_finished");
    pick(QStringLiteral("A"));
    run("on_apply_clicked");
    run("on_delete_clicked");

    QCOMPARE(log().count(qs("save_flash")), 1);
    for (const char* name :
         {"m_family_cbox", "m_config_mode_cbox", "m_config_device_tab", "m_directory_edit", "m_browse_button"})
        QVERIFY2(widget(name).isEnabled() == enabled, name);
}

void TEST_OPENED_DIALOG::a_box_blocks_the_whole_host_data()
{
    QTest::addColumn<QString>("why");

    for (const char* why : {"field", "form", "directory"})
        QTest::newRow(why) << qs(why);
}

void TEST_OPENED_DIALOG::a_box_blocks_the_whole_host()
{
    QFETCH(const QString, why);
    mgr().refuse(1, "refused");
    world().save_dir_succeeds = false;
    open();
    Qt::WindowModality modality = Qt::NonModal;
    m_modals.expect([&modality](QWidget* box) {
        modality = box->windowModality();
        MODAL_DRIVER::accept()(box);
    });

    if (why == QLatin1String("field"))
        enter("m_device_id_edit", QStringLiteral("x"));
    else if (why == QLatin1String("form"))
        button("m_apply_button").click();
    else
        enter("m_directory_edit", QStringLiteral("/no"));

    QCOMPARE(modality, Qt::ApplicationModal);
}

void TEST_OPENED_DIALOG::a_mode_change_leaves_the_rows_of_the_form()
{
    open();
    MGR_DOUBLE& other = world().add_manager(QStringLiteral("other"));
    other.unused_properties = {0, 1, 2, 3, 4, 5, 6, 8};
    world().active = &other;

    choose("m_config_mode_cbox", SCHEME_X1);

    QCOMPARE(fields().count(), 18);
    QCOMPARE(child<QHBoxLayout>("horizontalLayout").count(), 2);
    const QList<QWidget*> rows =
        widget("scrollAreaWidgetContents").findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* const part : rows)
        QVERIFY2(!part->isHidden(), qPrintable(part->objectName()));
    // A field that was connected stays so.
    log().clear();
    enter("m_device_id_edit", QStringLiteral("x"));
    QCOMPARE(calls(), list_of({R"(other.check_string_property(1, "x"))"}));
}

void TEST_OPENED_DIALOG::a_mode_change_brings_no_row_back()
{
    mgr().unused_properties = {0, 1, 2, 3, 4, 5, 6, 8};
    open();
    MGR_DOUBLE& other = world().add_manager(QStringLiteral("other"));
    world().active = &other;

    choose("m_config_mode_cbox", SCHEME_X1);

    QCOMPARE(fields().count(), 0);
    const QList<QWidget*> rows =
        widget("scrollAreaWidgetContents").findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(rows.size(), 19);
    for (const QWidget* const part : rows)
        QVERIFY2(part->isHidden(), qPrintable(part->objectName()));
    log().clear();
    enter("m_device_id_edit", QStringLiteral("x"));
    QCOMPARE(calls(), QStringList());
}

void TEST_OPENED_DIALOG::a_new_directory_leaves_the_rows_of_the_form()
{
    mgr().unused_properties = {1};
    open();
    MGR_DOUBLE& other = world().add_manager(QStringLiteral("other"));
    other.unused_properties = {3};
    world().active = &other;

    enter("m_directory_edit", QStringLiteral("/other"));

    QVERIFY(edit("m_device_id_edit").isHidden());
    QVERIFY(!combo("m_density_cbox").isHidden());
    QCOMPARE(fields().count(), 16);
}

void TEST_OPENED_DIALOG::a_slot_reads_its_combo_not_the_index_data()
{
    QTest::addColumn<QString>("call");

    QTest::newRow("on_change_family") << qs("mgr.set_device_family(5)");
    QTest::newRow("on_change_config_mode") << qs("GFPDB_HELPER.set_active_flash_family(13)");
    QTest::newRow("on_change_voltage") << qs(R"(mgr.check_string_property(2, "1.8 V"))");
    QTest::newRow("on_change_density") << qs(R"(mgr.check_string_property(3, "16 Mb"))");
    QTest::newRow("on_change_flow_template") << qs(R"(mgr.check_string_property(8, "Built-in A"))");
}

void TEST_OPENED_DIALOG::a_slot_reads_its_combo_not_the_index()
{
    QFETCH(const QString, call);
    open();

    for (const int index : {-1, 1, 99}) {
        log().clear();
        QVERIFY(QMetaObject::invokeMethod(&dlg(), QTest::currentDataTag(), Qt::DirectConnection, Q_ARG(int, index)));
        QCOMPARE(calls().first(), call);
    }
}

// Families, modes and operations have one name in every language.
void TEST_OPENED_DIALOG::the_vocabulary_is_never_translated()
{
    open();
    const QStringList families = items("m_family_cbox");
    const QStringList modes = items("m_config_mode_cbox");
    QStringList titles;
    for (int position = 1; position < tabs().count(); ++position)
        titles.append(tabs().tabText(position) + page(position - 1).findChild<QLabel*>()->text());

    const MARKING_TRANSLATOR translator("gfpq_dlg");
    open();

    QCOMPARE(button("m_ok_button").text(), QStringLiteral("[OK]"));
    QCOMPARE(edit("m_device_id_edit").placeholderText(), QStringLiteral("[i.e. 0xC2 0x20 0x19]"));
    QCOMPARE(items("m_family_cbox"), families);
    QCOMPARE(items("m_config_mode_cbox"), modes);
    for (int position = 1; position < tabs().count(); ++position)
        QCOMPARE(tabs().tabText(position) + page(position - 1).findChild<QLabel*>()->text(), titles.at(position - 1));
}

void TEST_OPENED_DIALOG::the_map_is_a_copy()
{
    DIALOG_ARGS args;
    args.family_schemes = {{5, {10, 7}}, {3, {23}}};
    open(args);

    args.family_schemes = {{9, {13}}};
    choose("m_family_cbox", ALDER);
    QCOMPARE(items("m_config_mode_cbox"), list_of({"SDMMC x4"}));
    choose("m_family_cbox", CEDAR);
    QCOMPARE(items("m_config_mode_cbox"), list_of({"Active Serial", "Passive Parallel x8"}));
    choose("m_config_mode_cbox", 10);

    QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Cedar"}));
}

void TEST_OPENED_DIALOG::the_name_is_a_copy()
{
    DIALOG_ARGS args;
    args.device_name = "A";
    open(args);

    args.device_name = "B";
    button("m_cancel_button").click();

    QCOMPARE(dlg().device_name(), std::string("A"));
}

GFPQ_TEST_MAIN(TEST_OPENED_DIALOG)

#include "test_opened_dialog.moc"
