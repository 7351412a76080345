// SPDX-License-Identifier: MIT

// What a user saves is there again after a restart, for the dialog and for every other program.
#include "e2e_test.h"
#include "flow_page.h"

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = 13;
const QString TITLE = QStringLiteral("Configuration Device");
const QString NEW_DEVICE = QStringLiteral("<<new device>>");
const QString TEMPLATE = QStringLiteral("QE in SR1 bit 6, 4-byte address");
constexpr const char* DEVICES = "m_device_table_view";
constexpr const char* TEMPLATES = "m_flow_template_cbox";

QStringList strings(const QJsonValue& array)
{
    QStringList result;
    for (const QJsonValue& text : array.toArray())
        result.append(text.toString());
    return result;
}

// The flow of one operation in a record of the reader.
QStringList flow_of(const QJsonObject& record, const char* variant, int operation)
{
    const QJsonObject flows = record.value(QLatin1String("flows")).toObject();
    return strings(flows.value(QLatin1String(variant)).toArray().at(operation));
}

QString property_of(const QJsonObject& record, int property)
{
    return record.value(QString::number(property)).toString();
}

bool is_selected(const QJsonObject& answer)
{
    return answer.value(QLatin1String("selected")).toBool();
}

} // namespace

class TEST_SAVE_DEVICE : public E2E_TEST
{
    Q_OBJECT

private slots:
    void device_and_template_are_found_again_after_a_restart()
    {
        const QString device = QStringLiteral("Mine, it's 100%");
        const QString own_template = QStringLiteral("My <b>flow</b>");
        QVERIFY(open(NEW_DEVICE));

        // A built-in template, changed.
        QVERIFY(user().choose(TEMPLATES, TEMPLATE));
        FLOW_PAGE page(session(), user());
        QVERIFY(page.open(QStringLiteral("Erase")));
        QStringList erase_flow = page.texts();
        QVERIFY(page.open_menu(arrow(0)));
        QVERIFY(user().click(menu_entry(QStringLiteral("Insert"))));
        QVERIFY(user().click(menu_entry(QStringLiteral("Read Register"))));
        erase_flow.prepend(strings(read_database(FAMILY, SCHEME, {}).value(QStringLiteral("defaults"))).value(1));
        QVERIFY(page.agrees_on(erase_flow));

        // Stored as a device and as a template.
        QVERIFY(user().click(tab_called(TITLE)));
        QVERIFY(fill_device_page(device));
        QVERIFY(save_as_template(own_template));
        const QString voltage = look(widget_called("m_voltage_cbox")).value(QLatin1String("currentText")).toString();
        const QString density = look(widget_called("m_density_cbox")).value(QLatin1String("currentText")).toString();
        QVERIFY(user().click(widget_called("m_apply_button")));
        QVERIFY(session().wait_for(item_in(DEVICES, device), is_selected));
        QVERIFY(user().click(widget_called("m_cancel_button")));
        QVERIFY(ended_well());

        // After a restart both are there, and the device is handed to the caller.
        QVERIFY(open(device));
        QVERIFY(wait_for_property("m_device_name_edit", "text", device));
        QVERIFY(wait_for_property("m_device_id_edit", "text", QStringLiteral("0xC2 0x20 0x19")));
        QVERIFY(wait_for_property("m_voltage_cbox", "currentText", voltage));
        QVERIFY(wait_for_property("m_density_cbox", "currentText", density));
        QVERIFY(wait_for_property("m_total_die_edit", "text", QStringLiteral("2")));
        QVERIFY(wait_for_property("m_clock_cycle_edit", "text", QStringLiteral("8")));
        QVERIFY(wait_for_property("m_clock_cycle_edit_x4", "text", QStringLiteral("6")));
        QVERIFY(wait_for_erase_flow(erase_flow));

        QVERIFY(user().click(tab_called(TITLE)));
        QVERIFY(user().click(item_in(DEVICES, NEW_DEVICE)));
        QVERIFY(wait_for_property("m_device_name_edit", "text", QString()));
        QVERIFY(user().choose(TEMPLATES, own_template));
        QVERIFY(wait_for_erase_flow(erase_flow));

        QVERIFY(user().click(tab_called(TITLE)));
        QVERIFY(user().click(item_in(DEVICES, device)));
        QVERIFY(wait_for_property("m_device_name_edit", "text", device));
        QVERIFY(user().click(widget_called("m_ok_button")));
        QVERIFY(ended_well());
        QCOMPARE(session().record(), (QJsonObject{{QStringLiteral("family"), FAMILY},
                                                  {QStringLiteral("config_scheme"), SCHEME},
                                                  {QStringLiteral("device_name"), device}}));

        // A second program finds the same.
        const QJsonObject database = read_database(FAMILY, SCHEME, {});
        QCOMPARE(strings(database.value(QStringLiteral("devices"))), QStringList(device));
        QCOMPARE(strings(database.value(QStringLiteral("templates"))), QStringList(own_template));
        const QJsonObject record = stored(device);
        QCOMPARE(property_of(record, 0), device);
        QCOMPARE(property_of(record, 1), QStringLiteral("0xC2 0x20 0x19"));
        QCOMPARE(property_of(record, 2), voltage);
        QCOMPARE(property_of(record, 3), density);
        QCOMPARE(property_of(record, 4), QStringLiteral("2"));
        QCOMPARE(property_of(record, 5), QStringLiteral("8"));
        QCOMPARE(property_of(record, 6), QStringLiteral("6"));
        QCOMPARE(record.value(QStringLiteral("user_defined")), QJsonValue(true));
        QCOMPARE(flow_of(record, "quad", 2), erase_flow);
        for (int operation = 0; operation < 5; ++operation) {
            QVERIFY(!flow_of(record, "single", operation).isEmpty());
            QVERIFY(!flow_of(record, "quad", operation).isEmpty());
            QCOMPARE(flow_of(stored(own_template), "single", operation), flow_of(record, "single", operation));
            QCOMPARE(flow_of(stored(own_template), "quad", operation), flow_of(record, "quad", operation));
        }
    }

    void renamed_device_leaves_no_old_name()
    {
        QVERIFY(open(NEW_DEVICE));
        QVERIFY(apply_new_device(QStringLiteral("Before")));
        const QJsonObject before = stored(QStringLiteral("Before"));

        QVERIFY(user().fill("m_device_name_edit", QStringLiteral("After")));
        QVERIFY(user().click(widget_called("m_ok_button")));
        QVERIFY(ended_well());

        QCOMPARE(session().record().value(QStringLiteral("device_name")).toString(), QStringLiteral("After"));
        QCOMPARE(strings(read_database(FAMILY, SCHEME, {}).value(QStringLiteral("devices"))),
                 QStringList(QStringLiteral("After")));
        QCOMPARE(stored(QStringLiteral("After")).value(QStringLiteral("flows")), before.value(QStringLiteral("flows")));
    }

    void deleted_device_is_gone_for_good()
    {
        QVERIFY(open(NEW_DEVICE));
        QVERIFY(apply_new_device(QStringLiteral("Short-lived")));

        QVERIFY(user().click(widget_called("m_delete_button")));
        QVERIFY(session().wait_for(item_in(DEVICES, NEW_DEVICE), is_selected));
        QVERIFY(!column_of(DEVICES).contains(QStringLiteral("Short-lived")));
        QVERIFY(user().click(widget_called("m_cancel_button")));
        QVERIFY(ended_well());

        QVERIFY(read_database(FAMILY, SCHEME, {}).value(QStringLiteral("devices")).toArray().isEmpty());
    }

    void cancelled_device_was_never_there()
    {
        QVERIFY(open(NEW_DEVICE));
        QVERIFY(fill_device_page(QStringLiteral("Never")));

        QVERIFY(user().click(widget_called("m_cancel_button")));
        QVERIFY(ended_well());

        QVERIFY(read_database(FAMILY, SCHEME, {}).value(QStringLiteral("devices")).toArray().isEmpty());
        QCOMPARE(session().record().value(QStringLiteral("device_name")).toString(), NEW_DEVICE);
    }

    void device_that_fails_its_check_keeps_the_dialog_open()
    {
        QVERIFY(open(NEW_DEVICE));
        QVERIFY(fill_device_page(QStringLiteral("MX25L25645G")));

        QVERIFY(user().click(widget_called("m_ok_button")));
        QVERIFY(wait_for_box_that_opens_with(
            QStringLiteral("Failed to save flash as Configuration Device tab has invalid property value: \n\n")));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(wait_for_property("m_device_name_edit", "text", QStringLiteral("MX25L25645G")));
        QVERIFY(read_database(FAMILY, SCHEME, {}).value(QStringLiteral("devices")).toArray().isEmpty());
    }

    void lost_directory_is_reported_and_the_form_keeps_its_values()
    {
        QVERIFY(open(NEW_DEVICE));
        QVERIFY(apply_new_device(QStringLiteral("Kept")));
        FLOW_PAGE page(session(), user());
        QVERIFY(page.open(QStringLiteral("Erase")));
        const QStringList erase_flow = page.texts();
        QVERIFY(user().click(tab_called(TITLE)));
        QVERIFY(user().fill("m_total_die_edit", QStringLiteral("4")));

        QVERIFY(QDir(session().database_directory()).removeRecursively());
        QVERIFY(user().click(widget_called("m_apply_button")));

        QVERIFY(wait_for_box(QStringLiteral("Failed to save flash into database. (message 20439)")));
        QString reason = look(widget_called("qt_msgbox_informativelabel")).value(QLatin1String("text")).toString();
        // The places where a long word may be broken.
        reason.remove(QChar(0x200B));
        QVERIFY2(reason.contains(session().database_directory()), qPrintable(reason));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(wait_for_property("m_device_name_edit", "text", QStringLiteral("Kept")));
        QVERIFY(wait_for_property("m_total_die_edit", "text", QStringLiteral("4")));
        QVERIFY(wait_for_erase_flow(erase_flow));
    }

    void stored_template_is_removed_in_the_template_editor()
    {
        const QString own_template = QStringLiteral("Passing");
        QVERIFY(open(NEW_DEVICE));
        QVERIFY(fill_device_page(QStringLiteral("Holder")));
        QVERIFY(save_as_template(own_template));
        QVERIFY(user().click(widget_called("m_apply_button")));
        QVERIFY(session().wait_for(item_in(DEVICES, QStringLiteral("Holder")), is_selected));
        QVERIFY(column_of(TEMPLATES).contains(own_template));

        QVERIFY(user().click(item_in(DEVICES, NEW_DEVICE)));
        QVERIFY(user().click(widget_called("m_edit_template_button")));
        QVERIFY(user().click(item_in("m_template_table_view", own_template)));
        QVERIFY(user().click(widget_called("m_remove_button")));
        QVERIFY(wait_for_column("m_template_table_view", {}));
        QVERIFY(user().click(widget_called("m_close_button")));
        QVERIFY(wait_for_window(TITLE));

        QVERIFY(!column_of(TEMPLATES).contains(own_template));
        const QJsonObject database = read_database(FAMILY, SCHEME, {});
        QVERIFY(database.value(QStringLiteral("templates")).toArray().isEmpty());
        QCOMPARE(strings(database.value(QStringLiteral("devices"))), QStringList(QStringLiteral("Holder")));
    }

private:
    bool open(const QString& device)
    {
        return start({QStringLiteral("--dialog"), QStringLiteral("--family=%1").arg(FAMILY),
                      QStringLiteral("--scheme=%1").arg(SCHEME), QStringLiteral("--device=") + device}) &&
               wait_for_window(TITLE);
    }

    bool fill_device_page(const QString& name)
    {
        return user().fill("m_device_name_edit", name) &&
               user().fill("m_device_id_edit", QStringLiteral("0xC2 0x20 0x19")) &&
               user().choose("m_voltage_cbox", column_of("m_voltage_cbox").last()) &&
               user().choose("m_density_cbox", column_of("m_density_cbox").value(2)) &&
               user().fill("m_total_die_edit", QStringLiteral("2")) &&
               user().fill("m_clock_cycle_edit", QStringLiteral("8")) &&
               user().fill("m_clock_cycle_edit_x4", QStringLiteral("6"));
    }

    // Stores a new device of the first template with Apply.
    bool apply_new_device(const QString& name)
    {
        return user().click(item_in(DEVICES, NEW_DEVICE)) && wait_for_property("m_device_name_edit", "enabled", true) &&
               fill_device_page(name) && user().click(widget_called("m_apply_button")) &&
               session().wait_for(item_in(DEVICES, name), is_selected);
    }

    bool save_as_template(const QString& name)
    {
        return user().click(widget_called("m_save_template_check")) &&
               wait_for_property("m_template_name_edit", "enabled", true) && user().fill("m_template_name_edit", name);
    }

    // Goes to the erase page, where the flow must be `expected`.
    bool wait_for_erase_flow(const QStringList& expected)
    {
        FLOW_PAGE page(session(), user());
        return page.open(QStringLiteral("Erase")) && page.shows(expected);
    }

    QJsonObject stored(const QString& name) const
    {
        return read_database(FAMILY, SCHEME, {name}).value(QStringLiteral("records")).toObject().value(name).toObject();
    }
};

QTEST_GUILESS_MAIN(TEST_SAVE_DEVICE)

#include "test_save_device.moc"
