// SPDX-License-Identifier: MIT

// The form of the dialog as the Designer file builds it: tree, layouts, properties and texts.
#include "ui_gfpq_dlg.h"

#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

#include <memory>

namespace {

QString q(const char* text)
{
    return QString::fromUtf8(text);
}

QString name_of(const QObject* object)
{
    return object == nullptr ? QStringLiteral("null") : object->objectName();
}

// What stands at a place of a layout: the name of a widget or layout, or "spacer".
QString item_name(QLayoutItem* item)
{
    if (item == nullptr)
        return QStringLiteral("nothing");
    if (item->widget() != nullptr)
        return item->widget()->objectName();
    if (item->layout() != nullptr)
        return item->layout()->objectName();
    return QStringLiteral("spacer");
}

QStringList items_of(const QLayout* layout)
{
    QStringList names;
    for (int index = 0; index < layout->count(); ++index)
        names.append(item_name(layout->itemAt(index)));
    return names;
}

// "label|field" of each row.
QStringList rows_of(QFormLayout* layout)
{
    QStringList rows;
    for (int row = 0; row < layout->rowCount(); ++row) {
        rows.append(item_name(layout->itemAt(row, QFormLayout::LabelRole)) + QLatin1Char('|') +
                    item_name(layout->itemAt(row, QFormLayout::FieldRole)));
    }
    return rows;
}

QStringList names(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list.append(QString::fromUtf8(text));
    return list;
}

// Answers every text of one context with the text in angle brackets.
class MARKING_TRANSLATOR : public QTranslator
{
public:
    explicit MARKING_TRANSLATOR(const char* context) : m_context(context) {}

    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const bool is_ours = qstrcmp(context, m_context) == 0 && *source != '\0';
        return is_ours ? QLatin1Char('<') + QString::fromUtf8(source) + QLatin1Char('>') : QString();
    }
    bool isEmpty() const override { return false; }

private:
    const char* m_context;
};

} // namespace

class TEST_FORM : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void the_dialog_has_name_size_and_title();
    void a_dialog_that_has_a_name_keeps_it();
    void every_widget_has_its_class_and_parent_data();
    void every_widget_has_its_class_and_parent();
    void boxes_hold_their_items_in_order();
    void box_layouts_run_their_way();
    void margins_are_those_of_the_style_unless_set();
    void form_layouts_have_their_rows();
    void form_layouts_let_their_fields_grow();
    void the_tab_widget_shows_the_device_page();
    void the_splitter_is_left_as_it_is();
    void the_scroll_area_resizes_its_widget();
    void the_scroll_area_starts_with_its_geometry();
    void spacers_push_the_buttons_to_the_right();
    void the_template_row_has_its_size_policies();
    void only_the_edit_button_keeps_its_auto_default();
    void texts_data();
    void texts();
    void labels_have_their_texts_and_no_more();
    void every_text_goes_through_the_translation();
    void no_hints_validators_buddies_or_read_only_fields();
    void the_tab_order_is_the_order_of_creation();

private:
    template <typename WIDGET>
    WIDGET& child(const char* name) const
    {
        auto* const found = m_dialog->findChild<WIDGET*>(QLatin1String(name));
        if (found == nullptr)
            qFatal("no %s", name);
        return *found;
    }

    std::unique_ptr<QDialog> m_dialog;
    std::unique_ptr<Ui::gfpq_dlg> m_form;
};

void TEST_FORM::init()
{
    m_dialog = std::make_unique<QDialog>();
    m_form = std::make_unique<Ui::gfpq_dlg>();
    m_form->setupUi(m_dialog.get());
}

void TEST_FORM::cleanup()
{
    m_dialog.reset();
    m_form.reset();
}

void TEST_FORM::the_dialog_has_name_size_and_title()
{
    QCOMPARE(m_dialog->objectName(), QStringLiteral("gfpq_dlg"));
    QCOMPARE(m_dialog->size(), QSize(994, 892));
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Configuration Device"));
}

void TEST_FORM::a_dialog_that_has_a_name_keeps_it()
{
    QDialog named;
    named.setObjectName(QStringLiteral("mine"));
    Ui::gfpq_dlg form;

    form.setupUi(&named);

    QCOMPARE(named.objectName(), QStringLiteral("mine"));
}

void TEST_FORM::every_widget_has_its_class_and_parent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("class_name");
    QTest::addColumn<QString>("parent");

    const char* const GBOX = "m_config_device_gbox";
    const char* const DIALOG = "gfpq_dlg";
    const char* const PAGE = "scrollAreaWidgetContents";
    const struct
    {
        const char* name;
        const char* class_name;
        const char* parent;
    } widgets[] = {
        {"m_config_device_gbox", "QGroupBox", DIALOG},
        {"m_family_label", "QLabel", GBOX},
        {"m_family_cbox", "QComboBox", GBOX},
        {"m_config_mode_label", "QLabel", GBOX},
        {"m_config_mode_cbox", "QComboBox", GBOX},
        {"m_directory_label", "QLabel", GBOX},
        {"m_directory_edit", "QLineEdit", GBOX},
        {"m_browse_button", "QPushButton", GBOX},
        {"m_prog_flows_tab_widget", "QTabWidget", DIALOG},
        {"m_config_device_tab", "QWidget", "qt_tabwidget_stackedwidget"},
        {"m_config_device_splitter", "QSplitter", "m_config_device_tab"},
        {"layoutWidget", "QWidget", "m_config_device_splitter"},
        {"m_filter_label", "QLabel", "layoutWidget"},
        {"m_filter_line_edit", "QLineEdit", "layoutWidget"},
        {"m_device_table_view", "QTableView", "layoutWidget"},
        {"m_delete_button", "QPushButton", "layoutWidget"},
        {"verticalLayoutWidget_2", "QWidget", "m_config_device_splitter"},
        {"m_device_info_scroll_area", "QScrollArea", "verticalLayoutWidget_2"},
        {"scrollAreaWidgetContents", "QWidget", "qt_scrollarea_viewport"},
        {"m_device_name_label", "QLabel", PAGE},
        {"m_device_name_edit", "QLineEdit", PAGE},
        {"m_device_id_label", "QLabel", PAGE},
        {"m_device_id_edit", "QLineEdit", PAGE},
        {"m_voltage_label", "QLabel", PAGE},
        {"m_voltage_cbox", "QComboBox", PAGE},
        {"m_density_lavel", "QLabel", PAGE},
        {"m_density_cbox", "QComboBox", PAGE},
        {"m_total_die_label", "QLabel", PAGE},
        {"m_total_die_edit", "QLineEdit", PAGE},
        {"m_clock_cycle_label", "QLabel", PAGE},
        {"m_clock_cycle_edit", "QLineEdit", PAGE},
        {"m_clock_cycle_label_x4", "QLabel", PAGE},
        {"m_clock_cycle_edit_x4", "QLineEdit", PAGE},
        {"m_flow_template_label", "QLabel", PAGE},
        {"m_flow_template_cbox", "QComboBox", PAGE},
        {"m_edit_template_button", "QPushButton", PAGE},
        {"m_save_template_check", "QCheckBox", PAGE},
        {"m_template_name_edit", "QLineEdit", PAGE},
        {"m_ok_button", "QPushButton", DIALOG},
        {"m_cancel_button", "QPushButton", DIALOG},
        {"m_apply_button", "QPushButton", DIALOG},
    };
    for (const auto& widget : widgets)
        QTest::newRow(widget.name) << q(widget.name) << q(widget.class_name) << q(widget.parent);
}

void TEST_FORM::every_widget_has_its_class_and_parent()
{
    QFETCH(const QString, name);
    QFETCH(const QString, class_name);
    QFETCH(const QString, parent);

    const QList<QWidget*> found = m_dialog->findChildren<QWidget*>(name);

    QCOMPARE(found.size(), 1);
    QCOMPARE(QLatin1String(found.first()->metaObject()->className()), class_name);
    QCOMPARE(name_of(found.first()->parent()), parent);
}

void TEST_FORM::boxes_hold_their_items_in_order()
{
    QCOMPARE(name_of(m_dialog->layout()), QStringLiteral("verticalLayout_3"));
    QCOMPARE(items_of(m_dialog->layout()),
             names({"m_config_device_gbox", "m_prog_flows_tab_widget", "m_buttons_hlayout"}));
    QCOMPARE(name_of(m_form->m_config_device_gbox->layout()), QStringLiteral("verticalLayout"));
    QCOMPARE(items_of(m_form->verticalLayout), names({"formLayout"}));
    QCOMPARE(items_of(m_form->directoryLayout), names({"m_directory_edit", "m_browse_button"}));
    QCOMPARE(name_of(m_form->m_config_device_tab->layout()), QStringLiteral("horizontalLayout_4"));
    QCOMPARE(items_of(m_form->horizontalLayout_4), names({"m_config_device_splitter"}));
    QCOMPARE(name_of(m_form->layoutWidget->layout()), QStringLiteral("verticalLayout_2"));
    QCOMPARE(items_of(m_form->verticalLayout_2),
             names({"m_filter_hlayout", "m_device_table_view", "m_delete_hlayout"}));
    QCOMPARE(items_of(m_form->m_filter_hlayout), names({"m_filter_label", "m_filter_line_edit"}));
    QCOMPARE(items_of(m_form->m_delete_hlayout), names({"spacer", "m_delete_button"}));
    QCOMPARE(name_of(m_form->verticalLayoutWidget_2->layout()), QStringLiteral("verticalLayout_4"));
    QCOMPARE(items_of(m_form->verticalLayout_4), names({"m_device_info_scroll_area"}));
    QCOMPARE(name_of(m_form->scrollAreaWidgetContents->layout()), QStringLiteral("formLayout_3"));
    QCOMPARE(items_of(m_form->horizontalLayout), names({"m_flow_template_cbox", "m_edit_template_button"}));
    QCOMPARE(items_of(m_form->m_buttons_hlayout),
             names({"spacer", "m_ok_button", "m_cancel_button", "m_apply_button"}));
}

void TEST_FORM::box_layouts_run_their_way()
{
    for (const char* name : {"verticalLayout", "verticalLayout_2", "verticalLayout_3", "verticalLayout_4"})
        QCOMPARE(QLatin1String(child<QBoxLayout>(name).metaObject()->className()), QLatin1String("QVBoxLayout"));
    for (const char* name : {"directoryLayout", "horizontalLayout_4", "m_filter_hlayout", "m_delete_hlayout",
                             "horizontalLayout", "m_buttons_hlayout"})
        QCOMPARE(QLatin1String(child<QBoxLayout>(name).metaObject()->className()), QLatin1String("QHBoxLayout"));
}

void TEST_FORM::margins_are_those_of_the_style_unless_set()
{
    // What the style gives a layout of a window and one of a widget inside.
    QDialog window;
    auto* const of_window = new QVBoxLayout(&window);
    auto* const inner = new QGroupBox(&window);
    auto* const of_inner = new QVBoxLayout(inner);
    QMargins top_0 = of_window->contentsMargins();
    top_0.setTop(0);
    QMargins top_9 = of_inner->contentsMargins();
    top_9.setTop(9);

    QCOMPARE(m_form->verticalLayout_3->contentsMargins(), top_0);
    QCOMPARE(m_form->verticalLayout->contentsMargins(), top_9);
    QCOMPARE(m_form->horizontalLayout_4->contentsMargins(), of_inner->contentsMargins());
    QCOMPARE(m_form->formLayout_3->contentsMargins(), of_inner->contentsMargins());
    QCOMPARE(m_form->verticalLayout_2->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(m_form->verticalLayout_4->contentsMargins(), QMargins(0, 0, 0, 0));
    for (const char* name : {"formLayout", "directoryLayout", "m_filter_hlayout", "m_delete_hlayout",
                             "horizontalLayout", "m_buttons_hlayout"})
        QCOMPARE(child<QLayout>(name).contentsMargins(), QMargins(0, 0, 0, 0));
    for (const char* name : {"verticalLayout", "verticalLayout_2", "verticalLayout_3", "verticalLayout_4"})
        QCOMPARE(child<QLayout>(name).spacing(), of_inner->spacing());
}

void TEST_FORM::form_layouts_have_their_rows()
{
    QCOMPARE(rows_of(m_form->formLayout),
             names({"m_family_label|m_family_cbox", "m_config_mode_label|m_config_mode_cbox",
                    "m_directory_label|directoryLayout"}));
    QCOMPARE(
        rows_of(m_form->formLayout_3),
        names({"m_device_name_label|m_device_name_edit", "m_device_id_label|m_device_id_edit",
               "m_voltage_label|m_voltage_cbox", "m_density_lavel|m_density_cbox", "m_total_die_label|m_total_die_edit",
               "m_clock_cycle_label|m_clock_cycle_edit", "m_clock_cycle_label_x4|m_clock_cycle_edit_x4",
               "m_flow_template_label|horizontalLayout", "m_save_template_check|m_template_name_edit"}));
}

void TEST_FORM::form_layouts_let_their_fields_grow()
{
    QCOMPARE(m_form->formLayout->fieldGrowthPolicy(), QFormLayout::AllNonFixedFieldsGrow);
    QCOMPARE(m_form->formLayout_3->fieldGrowthPolicy(), QFormLayout::AllNonFixedFieldsGrow);
}

void TEST_FORM::the_tab_widget_shows_the_device_page()
{
    QCOMPARE(m_form->m_prog_flows_tab_widget->count(), 1);
    QCOMPARE(m_form->m_prog_flows_tab_widget->widget(0), m_form->m_config_device_tab);
    QCOMPARE(m_form->m_prog_flows_tab_widget->currentIndex(), 0);
}

void TEST_FORM::the_splitter_is_left_as_it_is()
{
    const QSplitter& splitter = *m_form->m_config_device_splitter;

    QCOMPARE(splitter.orientation(), Qt::Horizontal);
    QCOMPARE(splitter.count(), 2);
    QCOMPARE(splitter.widget(0), m_form->layoutWidget);
    QCOMPARE(splitter.widget(1), m_form->verticalLayoutWidget_2);
    for (int pane = 0; pane < splitter.count(); ++pane) {
        QCOMPARE(splitter.widget(pane)->sizePolicy().horizontalStretch(), 0);
        QCOMPARE(splitter.widget(pane)->sizePolicy().verticalStretch(), 0);
    }
}

void TEST_FORM::the_scroll_area_resizes_its_widget()
{
    QCOMPARE(m_form->m_device_info_scroll_area->minimumSize(), QSize(300, 0));
    QVERIFY(m_form->m_device_info_scroll_area->widgetResizable());
    QCOMPARE(m_form->m_device_info_scroll_area->widget(), m_form->scrollAreaWidgetContents);
}

// The scroll area resizes its widget as soon as it gets it: the start shows only in the form file.
void TEST_FORM::the_scroll_area_starts_with_its_geometry()
{
    QFile file(q(GFPQ_DLG_UI));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QStringList rect;
    bool inside = false;
    while (!xml.atEnd() && rect.size() < 4) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.attributes().value(QLatin1String("name")) == QLatin1String("scrollAreaWidgetContents"))
            inside = true;
        const QStringRef element = xml.name();
        if (inside && (element == QLatin1String("x") || element == QLatin1String("y") ||
                       element == QLatin1String("width") || element == QLatin1String("height")))
            rect.append(xml.readElementText());
    }

    QCOMPARE(rect, names({"0", "0", "511", "699"}));
}

void TEST_FORM::spacers_push_the_buttons_to_the_right()
{
    for (QHBoxLayout* layout : {m_form->m_delete_hlayout, m_form->m_buttons_hlayout}) {
        QSpacerItem* const spacer = layout->itemAt(0)->spacerItem();
        QVERIFY(spacer != nullptr);
        QCOMPARE(spacer->sizeHint(), QSize(40, 20));
        QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    }
}

void TEST_FORM::the_template_row_has_its_size_policies()
{
    const QSizePolicy combo = m_form->m_flow_template_cbox->sizePolicy();
    const QSizePolicy button = m_form->m_edit_template_button->sizePolicy();

    QCOMPARE(combo.horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(combo.verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(button.horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(button.verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(combo.hasHeightForWidth(), QComboBox().sizePolicy().hasHeightForWidth());
    QCOMPARE(button.hasHeightForWidth(), QPushButton().sizePolicy().hasHeightForWidth());
    for (const QSizePolicy& policy : {combo, button}) {
        QCOMPARE(policy.horizontalStretch(), 0);
        QCOMPARE(policy.verticalStretch(), 0);
    }
}

void TEST_FORM::only_the_edit_button_keeps_its_auto_default()
{
    for (const QPushButton* button : m_dialog->findChildren<QPushButton*>()) {
        QCOMPARE(button->autoDefault(), button->objectName() == QLatin1String("m_edit_template_button"));
        QVERIFY(!button->isDefault());
    }
}

void TEST_FORM::texts_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("m_family_label") << q("Device family: ");
    QTest::newRow("m_config_mode_label") << q("Configuration mode: ");
    QTest::newRow("m_directory_label") << q("Custom database directory:");
    QTest::newRow("m_browse_button") << q("Browse...");
    QTest::newRow("m_filter_label") << q("Name filter:");
    QTest::newRow("m_delete_button") << q("Delete");
    QTest::newRow("m_device_name_label") << q("Device name: ");
    QTest::newRow("m_device_id_label") << q("Device ID: ");
    QTest::newRow("m_voltage_label") << q("Device I/O voltage: ");
    QTest::newRow("m_density_lavel") << q("Device density: ");
    QTest::newRow("m_total_die_label") << q("Total device die:");
    QTest::newRow("m_clock_cycle_label") << q("Single I/O mode dummy clock: ");
    QTest::newRow("m_clock_cycle_label_x4") << q("Quad I/O mode dummy clock:");
    QTest::newRow("m_edit_template_button") << q("Edit...");
    QTest::newRow("m_flow_template_label") << q("Programming flow template: ");
    QTest::newRow("m_save_template_check") << q("Save as template");
    QTest::newRow("m_ok_button") << q("OK");
    QTest::newRow("m_cancel_button") << q("Cancel");
    QTest::newRow("m_apply_button") << q("Apply");
}

void TEST_FORM::texts()
{
    QFETCH(const QString, text);

    QCOMPARE(child<QWidget>(QTest::currentDataTag()).property("text").toString(), text);
}

void TEST_FORM::labels_have_their_texts_and_no_more()
{
    QCOMPARE(m_form->m_config_device_gbox->title(), QString());
    QCOMPARE(m_form->m_prog_flows_tab_widget->tabText(0), QStringLiteral("Configuration Device"));
    for (const QLineEdit* edit : m_dialog->findChildren<QLineEdit*>()) {
        QCOMPARE(edit->text(), QString());
        QCOMPARE(edit->placeholderText(), QString());
    }
    for (const QComboBox* combo : m_dialog->findChildren<QComboBox*>())
        QCOMPARE(combo->count(), 0);
}

void TEST_FORM::every_text_goes_through_the_translation()
{
    MARKING_TRANSLATOR translator("gfpq_dlg");
    QVERIFY(QCoreApplication::installTranslator(&translator));

    m_form->retranslateUi(m_dialog.get());
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("<Configuration Device>"));
    QCOMPARE(m_form->m_prog_flows_tab_widget->tabText(0), QStringLiteral("<Configuration Device>"));
    for (const QWidget* widget : m_dialog->findChildren<QWidget*>()) {
        const QString text = widget->property("text").toString();
        if (!text.isEmpty())
            QVERIFY2(text.startsWith(QLatin1Char('<')), qPrintable(text));
    }
}

void TEST_FORM::no_hints_validators_buddies_or_read_only_fields()
{
    for (const QWidget* widget : m_dialog->findChildren<QWidget*>()) {
        QVERIFY(widget->toolTip().isEmpty());
        QVERIFY(widget->statusTip().isEmpty());
        QVERIFY(widget->whatsThis().isEmpty());
    }
    for (const QLabel* label : m_dialog->findChildren<QLabel*>())
        QVERIFY(label->buddy() == nullptr);
    for (const QLineEdit* edit : m_dialog->findChildren<QLineEdit*>()) {
        QVERIFY(edit->validator() == nullptr);
        QVERIFY(!edit->isReadOnly());
    }
    for (const QComboBox* combo : m_dialog->findChildren<QComboBox*>())
        QVERIFY(!combo->isEditable());
}

void TEST_FORM::the_tab_order_is_the_order_of_creation()
{
    QStringList order;
    for (const QWidget* widget = m_dialog->nextInFocusChain(); widget != m_dialog.get();
         widget = widget->nextInFocusChain()) {
        const bool is_field = qobject_cast<const QLineEdit*>(widget) != nullptr ||
                              qobject_cast<const QComboBox*>(widget) != nullptr ||
                              qobject_cast<const QAbstractButton*>(widget) != nullptr;
        if (is_field && widget->objectName().startsWith(QLatin1String("m_")))
            order.append(widget->objectName());
    }

    QCOMPARE(order,
             names({"m_family_cbox",         "m_config_mode_cbox",   "m_directory_edit",       "m_browse_button",
                    "m_filter_line_edit",    "m_delete_button",      "m_device_name_edit",     "m_device_id_edit",
                    "m_voltage_cbox",        "m_density_cbox",       "m_total_die_edit",       "m_clock_cycle_edit",
                    "m_clock_cycle_edit_x4", "m_flow_template_cbox", "m_edit_template_button", "m_save_template_check",
                    "m_template_name_edit",  "m_ok_button",          "m_cancel_button",        "m_apply_button"}));
}

QTEST_MAIN(TEST_FORM)

#include "test_form.moc"
