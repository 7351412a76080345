// SPDX-License-Identifier: MIT

// Texts of a database and texts that a user types are shown as they stand: no markup is rendered anywhere.
#include "modal_driver.h"
#include "soak_stand.h"

#include "dialog/gfpq_dlg.h"
#include "flow/gfpq_flow_items.h"
#include "flow/gfpq_operation_tab_widget.h"
#include "words/gfpq_warning.h"

#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/zui_app.h"
#include "msg/msg.h"

#include <QGraphicsView>
#include <QHelpEvent>
#include <QLabel>
#include <QTableView>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = PGMIO_ACTIVE_SERIAL_X4;
// Qt takes it for markup wherever a text may be either.
const QString MARKUP = QStringLiteral("<b>bold</b><img src='file:///etc/hosts'>&amp;");

// What a tool tip of `text` says to the one who reads it.
QString as_read(const QString& text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

} // namespace

class TEST_PLAIN_TEXT : public QObject
{
    Q_OBJECT

private slots:
    // A database whose every text is markup, as far as its rules go and beyond: it is written by the library, but the
    // dialog's checks are not asked.
    void initTestCase()
    {
        m_stand = std::make_unique<SOAK_STAND>();
        GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(SCHEME));
        GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(true);
        manager->set_device_family(FAMILY);
        GFPDB_FLASH* const device = manager->create_flash(MARKUP.toStdString());
        device->set_user_defined(true);
        for (const GFPDB_FLASH_PROPERTY property : {GFPDB_FLASH_DEVICE_ID, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY})
            device->set_string_property(property, MARKUP.toStdString());
        const std::string template_name = (MARKUP + QStringLiteral(" template")).toStdString();
        device->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, template_name);
        device->set_string_property(GFPDB_FLASH_FLOW_TEMPLATE, template_name);
        GFPDB_OPERATION* const operation = manager->create_operation(GFPDB_OPERATION_INITIALIZATION);
        GFPDB_ACTION* const action = manager->create_action(GFPDB_ACT_WRITE_REGISTER);
        for (const GFPDB_ACT_PROPERTY property : action->get_property_enum_list())
            action->set_property_value(property, MARKUP.toStdString());
        operation->add_action(action);
        device->set_operation(operation, manager->get_flow_variant());
        QVERIFY2(manager->save_flash(device, std::string()), manager->get_last_error().c_str());
    }

    void init()
    {
        m_dialog = std::make_unique<GFPQ_DLG>(nullptr, FAMILY, SCHEME, MARKUP.toStdString(), true, true, true,
                                              std::map<int, std::vector<int>>());
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    }

    void cleanup()
    {
        QToolTip::hideText();
        m_dialog.reset();
        QCOMPARE(m_modals.problems(), QStringList());
        m_modals.reset();
        QCOMPARE(m_stand->take_warnings(), QStringList());
    }

    void the_text_would_be_taken_for_markup()
    {
        QVERIFY(Qt::mightBeRichText(MARKUP));
        QVERIFY(as_read(MARKUP) != MARKUP);
    }

    // Views draw the texts of their items as they stand, so it is enough that the items have them.
    void lists_and_fields_show_markup_as_it_is()
    {
        QCOMPARE(find<QTableView>("m_device_table_view")->currentIndex().data().toString(), MARKUP);
        QCOMPARE(find<QLineEdit>("m_device_name_edit")->text(), MARKUP);
        QCOMPARE(find<QLineEdit>("m_device_id_edit")->text(), MARKUP);
        const auto* const templates = find<QComboBox>("m_flow_template_cbox");
        QVERIFY(templates->findText(MARKUP + QStringLiteral(" template"), Qt::MatchExactly) >= 0);
    }

    void no_label_renders_what_comes_from_a_database()
    {
        show_page();
        const QList<QWidget*> widgets = m_dialog->findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            QVERIFY2(!widget->toolTip().contains(QLatin1String("bold")), qPrintable(widget->objectName()));
            QVERIFY2(!widget->windowTitle().contains(QLatin1String("bold")), qPrintable(widget->objectName()));
            const auto* const label = qobject_cast<const QLabel*>(widget);
            QVERIFY2(label == nullptr || !label->text().contains(QLatin1String("bold")),
                     qPrintable(widget->objectName()));
        }
    }

    void the_chart_shows_markup_as_it_is()
    {
        int shown = 0;
        const QList<QGraphicsView*> views = show_page()->findChildren<QGraphicsView*>();
        for (const QGraphicsView* view : views) {
            const QList<QGraphicsItem*> items = view->scene()->items();
            for (const QGraphicsItem* item : items) {
                const auto* const text = dynamic_cast<const GFPQ_GRAPHICS_TEXT_ITEM*>(item);
                if (text == nullptr || text->action() == nullptr)
                    continue;
                QCOMPARE(text->toPlainText().count(MARKUP), int(text->action()->get_property_enum_list().size()));
                ++shown;
            }
        }
        QCOMPARE(shown, 1);
    }

    void a_tool_tip_shows_markup_as_it_is()
    {
        GPFQ_OPERATION_TAB_WIDGET* const page = show_page();
        page->update_property_table(page->get_flow().first());
        auto* const table = page->findChild<QTableView*>(QStringLiteral("m_property_table"));
        const QModelIndex value = table->model()->index(0, 1);
        table->model()->setData(value, MARKUP, Qt::ToolTipRole);
        const QPoint at = table->visualRect(value).center();
        QHelpEvent help(QEvent::ToolTip, at, table->viewport()->mapToGlobal(at));
        QApplication::sendEvent(table->viewport(), &help);

        QVERIFY(QToolTip::isVisible());
        QCOMPARE(as_read(QToolTip::text()), MARKUP);
    }

    void a_warning_shows_markup_as_it_is()
    {
        find<QLineEdit>("m_device_id_edit")->setText(MARKUP);
        m_modals.expect(MODAL_DRIVER::accept());
        QTest::keyClick(find<QLineEdit>("m_device_id_edit"), Qt::Key_Return);
        QVERIFY2(m_modals.last().text.contains(QLatin1String("<b>bold</b><img")), qPrintable(m_modals.last().text));
        QCOMPARE(m_modals.last().text_format, Qt::PlainText);

        m_modals.expect(MODAL_DRIVER::accept());
        gfpq_show_warning(MARKUP);
        QCOMPARE(m_modals.last().text, MARKUP);
        QCOMPARE(m_modals.last().text_format, Qt::PlainText);
    }

    void a_message_of_the_host_shows_markup_as_it_is()
    {
        MSG_O message;
        message.fill_args(MARKUP.toStdString() + "/O20439");
        message.set_id(20439);
        m_modals.expect(MODAL_DRIVER::accept());
        message.prompt();

        QVERIFY(m_modals.last().text.contains(MARKUP));
        QCOMPARE(m_modals.last().text_format, Qt::PlainText);
    }

private:
    template <typename WIDGET>
    WIDGET* find(const char* name) const
    {
        return m_dialog->findChild<WIDGET*>(QLatin1String(name));
    }
    // The page of the first operation, brought to the front.
    GPFQ_OPERATION_TAB_WIDGET* show_page()
    {
        auto* const pages = find<QTabWidget>("m_prog_flows_tab_widget");
        pages->setCurrentIndex(1);
        return qobject_cast<GPFQ_OPERATION_TAB_WIDGET*>(pages->currentWidget());
    }

    std::unique_ptr<SOAK_STAND> m_stand;
    std::unique_ptr<GFPQ_DLG> m_dialog;
    MODAL_DRIVER m_modals;
};

int main(int argc, char** argv)
{
    ZUI_APP app(argc, argv);
    TEST_PLAIN_TEXT test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_plain_text.moc"
