// SPDX-License-Identifier: MIT

// The form of the dialog as the Designer file builds it: tree, layouts, properties and texts.
#include "marking_translator.h"
#include "property_differences.h"
#include "test_rows.h"
#include "ui_gfpq_dlg.h"

#include <QProxyStyle>
#include <QRegularExpression>
#include <QTest>

#include <memory>

namespace {

QString q(const char* text)
{
    return QString::fromUtf8(text);
}

QString name_of(const QObject* object)
{
    return object == nullptr ? q("null") : object->objectName();
}

// What stands at a place of a layout: the name of a widget or layout, or "spacer".
QString item_name(QLayoutItem* item)
{
    if (item == nullptr)
        return q("nothing");
    if (item->widget() != nullptr)
        return item->widget()->objectName();
    if (item->layout() != nullptr)
        return item->layout()->objectName();
    return q("spacer");
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

// Lays windows out in another way than the form does: what the form asks for is not what it gets anyway.
class OTHER_STYLE : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        const bool is_margin = metric >= PM_LayoutLeftMargin && metric <= PM_LayoutBottomMargin;
        return is_margin ? 17 : QProxyStyle::pixelMetric(metric, option, widget);
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        return hint == SH_FormLayoutFieldGrowthPolicy ? static_cast<int>(QFormLayout::FieldsStayAtSizeHint)
                                                      : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

template <typename... KINDS>
struct WIDGETS
{
    // A new widget of the class of `part`, in `parent`.
    static QWidget* make_like(const QWidget& part, QWidget* parent)
    {
        QWidget* made = nullptr;
        ((part.metaObject() == & KINDS::staticMetaObject ? made = new KINDS(parent) : nullptr), ...);
        return made;
    }
};
using FORM_WIDGETS = WIDGETS<QLabel, QLineEdit, QComboBox, QPushButton, QCheckBox, QGroupBox, QTabWidget, QSplitter,
                             QTableView, QScrollArea, QWidget, QDialog>;

// What place and size make of a widget, and the texts, which have a test of their own.
const QStringList OF_THE_PLACE = q("objectName geometry frameGeometry frameRect normalGeometry x y pos frameSize size "
                                   "width height rect childrenRect "
                                   "childrenRegion visible minimumSizeHint sizeHint windowTitle text title")
                                     .split(QLatin1Char(' '));

} // namespace

class TEST_FORM : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(new OTHER_STYLE); }

    void init()
    {
        m_dialog = std::make_unique<QDialog>();
        m_form = std::make_unique<Ui::gfpq_dlg>();
        m_form->setupUi(m_dialog.get());
    }

    void cleanup()
    {
        m_dialog.reset();
        m_form.reset();
    }

    void the_dialog_has_name_size_and_title()
    {
        QCOMPARE(m_dialog->objectName(), q("gfpq_dlg"));
        QCOMPARE(m_dialog->size(), QSize(994, 892));
        QCOMPARE(m_dialog->windowTitle(), q("Configuration Device"));
        // A name that was there stays.
        QDialog named;
        named.setObjectName(q("mine"));
        Ui::gfpq_dlg().setupUi(&named);
        QCOMPARE(named.objectName(), q("mine"));
    }

    void every_widget_has_its_class_parent_and_text_data()
    {
        const char* const GBOX = "m_config_device_gbox";
        const char* const LEFT = "layoutWidget";
        const char* const PAGE = "scrollAreaWidgetContents";
        rows<QString, QString, QString>({{"m_config_device_gbox", "QGroupBox", "gfpq_dlg", ""},
                                         {"m_family_label", "QLabel", GBOX, "Device family: "},
                                         {"m_family_cbox", "QComboBox", GBOX, ""},
                                         {"m_config_mode_label", "QLabel", GBOX, "Configuration mode: "},
                                         {"m_config_mode_cbox", "QComboBox", GBOX, ""},
                                         {"m_directory_label", "QLabel", GBOX, "Custom database directory:"},
                                         {"m_directory_edit", "QLineEdit", GBOX, ""},
                                         {"m_browse_button", "QPushButton", GBOX, "Browse..."},
                                         {"m_prog_flows_tab_widget", "QTabWidget", "gfpq_dlg", ""},
                                         {"m_config_device_tab", "QWidget", "qt_tabwidget_stackedwidget", ""},
                                         {"m_config_device_splitter", "QSplitter", "m_config_device_tab", ""},
                                         {"layoutWidget", "QWidget", "m_config_device_splitter", ""},
                                         {"m_filter_label", "QLabel", LEFT, "Name filter:"},
                                         {"m_filter_line_edit", "QLineEdit", LEFT, ""},
                                         {"m_device_table_view", "QTableView", LEFT, ""},
                                         {"m_delete_button", "QPushButton", LEFT, "Delete"},
                                         {"verticalLayoutWidget_2", "QWidget", "m_config_device_splitter", ""},
                                         {"m_device_info_scroll_area", "QScrollArea", "verticalLayoutWidget_2", ""},
                                         {"scrollAreaWidgetContents", "QWidget", "qt_scrollarea_viewport", ""},
                                         {"m_device_name_label", "QLabel", PAGE, "Device name: "},
                                         {"m_device_name_edit", "QLineEdit", PAGE, ""},
                                         {"m_device_id_label", "QLabel", PAGE, "Device ID: "},
                                         {"m_device_id_edit", "QLineEdit", PAGE, ""},
                                         {"m_voltage_label", "QLabel", PAGE, "Device I/O voltage: "},
                                         {"m_voltage_cbox", "QComboBox", PAGE, ""},
                                         {"m_density_lavel", "QLabel", PAGE, "Device density: "},
                                         {"m_density_cbox", "QComboBox", PAGE, ""},
                                         {"m_total_die_label", "QLabel", PAGE, "Total device die:"},
                                         {"m_total_die_edit", "QLineEdit", PAGE, ""},
                                         {"m_clock_cycle_label", "QLabel", PAGE, "Single I/O mode dummy clock: "},
                                         {"m_clock_cycle_edit", "QLineEdit", PAGE, ""},
                                         {"m_clock_cycle_label_x4", "QLabel", PAGE, "Quad I/O mode dummy clock:"},
                                         {"m_clock_cycle_edit_x4", "QLineEdit", PAGE, ""},
                                         {"m_flow_template_label", "QLabel", PAGE, "Programming flow template: "},
                                         {"m_flow_template_cbox", "QComboBox", PAGE, ""},
                                         {"m_edit_template_button", "QPushButton", PAGE, "Edit..."},
                                         {"m_save_template_check", "QCheckBox", PAGE, "Save as template"},
                                         {"m_template_name_edit", "QLineEdit", PAGE, ""},
                                         {"m_ok_button", "QPushButton", "gfpq_dlg", "OK"},
                                         {"m_cancel_button", "QPushButton", "gfpq_dlg", "Cancel"},
                                         {"m_apply_button", "QPushButton", "gfpq_dlg", "Apply"}});
    }

    void every_widget_has_its_class_parent_and_text()
    {
        const auto [class_name, parent, text] = row<QString, QString, QString>();

        const QList<QWidget*> found = m_dialog->findChildren<QWidget*>(q(QTest::currentDataTag()));

        QCOMPARE(found.size(), 1);
        QCOMPARE(QLatin1String(found.first()->metaObject()->className()), class_name);
        QCOMPARE(name_of(found.first()->parent()), parent);
        QCOMPARE(found.first()->property("text").toString(), text);
    }

    void boxes_hold_their_items_in_order()
    {
        // The widget that has the layout, the layout and its direction, and its items.
        const char* const expected[] = {
            "gfpq_dlg V verticalLayout_3: m_config_device_gbox m_prog_flows_tab_widget m_buttons_hlayout",
            "m_config_device_gbox V verticalLayout: formLayout",
            "- H directoryLayout: m_directory_edit m_browse_button",
            "m_config_device_tab H horizontalLayout_4: m_config_device_splitter",
            "layoutWidget V verticalLayout_2: m_filter_hlayout m_device_table_view m_delete_hlayout",
            "- H m_filter_hlayout: m_filter_label m_filter_line_edit",
            "- H m_delete_hlayout: spacer m_delete_button",
            "verticalLayoutWidget_2 V verticalLayout_4: m_device_info_scroll_area",
            "- H horizontalLayout: m_flow_template_cbox m_edit_template_button",
            "- H m_buttons_hlayout: spacer m_ok_button m_cancel_button m_apply_button"};
        for (const char* line : expected) {
            const QStringList words = q(line).section(QLatin1Char(':'), 0, 0).split(QLatin1Char(' '));
            const auto& layout = child<QBoxLayout>(words.at(2).toLatin1().constData());
            const bool is_top = layout.parentWidget() != nullptr && layout.parentWidget()->layout() == &layout;
            QCOMPARE((is_top ? name_of(layout.parentWidget()) : q("-")) + QLatin1Char(' ') +
                         QLatin1String(layout.metaObject()->className()).mid(1, 1) + QLatin1Char(' ') +
                         layout.objectName() + q(": ") + items_of(&layout).join(QLatin1Char(' ')),
                     q(line));
        }
        QCOMPARE(name_of(m_form->scrollAreaWidgetContents->layout()), q("formLayout_3"));
    }

    void margins_are_those_of_the_style_unless_set()
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
        for (const QLayout* layout : layouts())
            QCOMPARE(layout->spacing(), of_inner->spacing());
    }

    void nothing_else_is_set()
    {
        QDialog window;
        QStringList found = property_differences(*m_dialog, QDialog(), OF_THE_PLACE);
        for (const QWidget* part : m_dialog->findChildren<QWidget*>(QRegularExpression(q("^[^qS].*"))))
            found += property_differences(*part, *FORM_WIDGETS::make_like(*part, &window), OF_THE_PLACE);

        found.sort();
        QCOMPARE(found,
                 names({"m_apply_button autoDefault", "m_browse_button autoDefault", "m_cancel_button autoDefault",
                        "m_delete_button autoDefault", "m_device_info_scroll_area minimumSize",
                        "m_device_info_scroll_area minimumWidth", "m_device_info_scroll_area widgetResizable",
                        "m_flow_template_cbox sizePolicy", "m_ok_button autoDefault", "m_prog_flows_tab_widget count",
                        "m_prog_flows_tab_widget currentIndex", "scrollAreaWidgetContents autoFillBackground"}));
    }

    void layouts_leave_their_items_where_they_are()
    {
        QWidget plain;
        const QFormLayout of_its_kind(&plain);
        for (const QLayout* layout : layouts()) {
            QCOMPARE(layout->sizeConstraint(), QLayout::SetDefaultConstraint);
            for (int index = 0; index < layout->count(); ++index) {
                const auto* const box = qobject_cast<const QBoxLayout*>(layout);
                QCOMPARE(box == nullptr ? 0 : box->stretch(index), 0);
                QCOMPARE(layout->itemAt(index)->alignment(), Qt::Alignment());
            }
        }
        for (const QFormLayout* form : {m_form->formLayout, m_form->formLayout_3}) {
            QCOMPARE(form->rowWrapPolicy(), of_its_kind.rowWrapPolicy());
            QCOMPARE(form->labelAlignment(), of_its_kind.labelAlignment());
            QCOMPARE(form->formAlignment(), of_its_kind.formAlignment());
        }
    }

    void form_layouts_have_their_rows()
    {
        QCOMPARE(rows_of(m_form->formLayout),
                 names({"m_family_label|m_family_cbox", "m_config_mode_label|m_config_mode_cbox",
                        "m_directory_label|directoryLayout"}));
        QCOMPARE(rows_of(m_form->formLayout_3),
                 names({"m_device_name_label|m_device_name_edit", "m_device_id_label|m_device_id_edit",
                        "m_voltage_label|m_voltage_cbox", "m_density_lavel|m_density_cbox",
                        "m_total_die_label|m_total_die_edit", "m_clock_cycle_label|m_clock_cycle_edit",
                        "m_clock_cycle_label_x4|m_clock_cycle_edit_x4", "m_flow_template_label|horizontalLayout",
                        "m_save_template_check|m_template_name_edit"}));
        QCOMPARE(m_form->formLayout->fieldGrowthPolicy(), QFormLayout::AllNonFixedFieldsGrow);
        QCOMPARE(m_form->formLayout_3->fieldGrowthPolicy(), QFormLayout::AllNonFixedFieldsGrow);
    }

    void the_tab_widget_shows_the_device_page()
    {
        QCOMPARE(m_form->m_prog_flows_tab_widget->count(), 1);
        QCOMPARE(m_form->m_prog_flows_tab_widget->widget(0), m_form->m_config_device_tab);
        QCOMPARE(m_form->m_prog_flows_tab_widget->currentIndex(), 0);
    }

    void the_splitter_is_left_as_it_is()
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

    // The scroll area resizes its widget as soon as it gets it: the start shows only in the form file.
    void the_scroll_area_resizes_its_widget()
    {
        QCOMPARE(m_form->m_device_info_scroll_area->minimumSize(), QSize(300, 0));
        QVERIFY(m_form->m_device_info_scroll_area->widgetResizable());
        QCOMPARE(m_form->m_device_info_scroll_area->widget(), m_form->scrollAreaWidgetContents);

        QFile file(q(GFPQ_DLG_UI));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString form = QString::fromUtf8(file.readAll()).remove(QRegularExpression(q("\\s")));
        const QString rect = form.section(q("scrollAreaWidgetContents"), 1).section(q("</rect>"), 0, 0);
        QCOMPARE(rect.section(q("<rect>"), 1), q("<x>0</x><y>0</y><width>511</width><height>699</height>"));
    }

    void spacers_push_the_buttons_to_the_right()
    {
        for (QHBoxLayout* layout : {m_form->m_delete_hlayout, m_form->m_buttons_hlayout}) {
            QSpacerItem* const spacer = layout->itemAt(0)->spacerItem();
            QVERIFY(spacer != nullptr);
            QCOMPARE(spacer->sizeHint(), QSize(40, 20));
            QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
            QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
        }
    }

    void the_template_row_has_its_size_policies()
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

    void only_the_edit_button_keeps_its_auto_default()
    {
        for (const QPushButton* button : m_dialog->findChildren<QPushButton*>()) {
            QCOMPARE(button->autoDefault(), button->objectName() == QLatin1String("m_edit_template_button"));
            QVERIFY(!button->isDefault());
        }
    }

    void labels_have_their_texts_and_no_more()
    {
        QCOMPARE(m_form->m_config_device_gbox->title(), QString());
        QCOMPARE(m_form->m_prog_flows_tab_widget->tabText(0), q("Configuration Device"));
        for (const QLineEdit* edit : m_dialog->findChildren<QLineEdit*>())
            QCOMPARE(edit->placeholderText(), QString());
        for (const QComboBox* combo : m_dialog->findChildren<QComboBox*>())
            QCOMPARE(combo->count(), 0);
    }

    void every_text_goes_through_the_translation()
    {
        const MARKING_TRANSLATOR translator("gfpq_dlg");

        m_form->retranslateUi(m_dialog.get());

        QCOMPARE(m_dialog->windowTitle(), q("[Configuration Device]"));
        QCOMPARE(m_form->m_prog_flows_tab_widget->tabText(0), q("[Configuration Device]"));
        for (const QWidget* widget : m_dialog->findChildren<QWidget*>()) {
            const QString text = widget->property("text").toString();
            if (!text.isEmpty())
                QVERIFY2(text.startsWith(QLatin1Char('[')), qPrintable(text));
        }
    }

    void no_hints_validators_buddies_or_read_only_fields()
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

    void the_tab_order_is_the_order_of_creation()
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

        QCOMPARE(
            order,
            names({"m_family_cbox",         "m_config_mode_cbox",   "m_directory_edit",       "m_browse_button",
                   "m_filter_line_edit",    "m_delete_button",      "m_device_name_edit",     "m_device_id_edit",
                   "m_voltage_cbox",        "m_density_cbox",       "m_total_die_edit",       "m_clock_cycle_edit",
                   "m_clock_cycle_edit_x4", "m_flow_template_cbox", "m_edit_template_button", "m_save_template_check",
                   "m_template_name_edit",  "m_ok_button",          "m_cancel_button",        "m_apply_button"}));
    }

private:
    // All of the form's own.
    QList<QLayout*> layouts() const { return m_dialog->findChildren<QLayout*>(QRegularExpression(q("^[^q_].*"))); }

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

QTEST_MAIN(TEST_FORM)

#include "test_form.moc"
