// SPDX-License-Identifier: MIT

// A user edits the erase flow of a new device with mouse and keys, and it is stored as it is drawn.
#include "e2e_test.h"
#include "flow_page.h"

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = 13;
const QString NEW_DEVICE = QStringLiteral("<<new device>>");
const QString WRITE_ENABLE = QStringLiteral("Name: Write Enable");
const QString ERASE_SECTOR = QStringLiteral("Name: Erase Sector");

// The place of the action whose text opens with `first_line`.
int index_of(const QStringList& texts, const QString& first_line)
{
    for (int index = 0; index < texts.size(); ++index) {
        if (texts[index].startsWith(first_line + QLatin1Char('\n')))
            return index;
    }
    qFatal("no action opens with %s", qUtf8Printable(first_line));
}

QStringList strings(const QJsonValue& array)
{
    QStringList result;
    for (const QJsonValue& text : array.toArray())
        result.append(text.toString());
    return result;
}

} // namespace

class TEST_EDIT_FLOW : public E2E_TEST
{
    Q_OBJECT

private slots:
    void flow_is_edited_by_every_means_and_stored_as_drawn()
    {
        QVERIFY(open_erase_page(NEW_DEVICE));
        FLOW_PAGE page(session(), user());
        const QStringList defaults = strings(read_database(FAMILY, SCHEME, {}).value(QStringLiteral("defaults")));
        QStringList expected = page.texts();
        QVERIFY2(expected.size() >= 4, qPrintable(expected.join(QLatin1Char('|'))));
        QVERIFY(page.agrees_on(expected));

        // An erase action is dragged from the palette onto the arrow behind the write enable.
        const int behind_write_enable = index_of(expected, WRITE_ENABLE) + 1;
        QVERIFY(page.drop(QStringLiteral("E"), behind_write_enable));
        expected.insert(behind_write_enable, defaults[4]);
        QVERIFY(page.agrees_on(expected));

        // A write register action comes in front of everything from the context menu.
        QVERIFY(page.open_menu(arrow(0)));
        QCOMPARE(page.menu_entries(),
                 (QStringList{QStringLiteral("Insert"), QStringLiteral("-"), QStringLiteral("Refresh")}));
        QVERIFY(user().click(menu_entry(QStringLiteral("Insert"))));
        QVERIFY(user().click(menu_entry(QStringLiteral("Write Register"))));
        expected.insert(0, defaults[0]);
        QVERIFY(page.agrees_on(expected));

        // Two blocks are copied to the end of the flow; which of them comes first is not the user's choice.
        const QString first = expected[index_of(expected, WRITE_ENABLE)];
        const QString second = expected[index_of(expected, ERASE_SECTOR)];
        QVERIFY(page.select(block(first)));
        QVERIFY(page.control_click(block(second)));
        QVERIFY(page.wait_for_selection(block(first), true));
        QVERIFY(page.wait_for_selection(block(second), true));
        QVERIFY(user().press(QStringLiteral("ctrl+c")));
        QVERIFY(page.click(arrow(expected.size())));
        QVERIFY(user().press(QStringLiteral("ctrl+v")));
        const QStringList one_order = expected + QStringList{first, second};
        const QStringList other_order = expected + QStringList{second, first};
        QTRY_VERIFY(page.texts() == one_order || page.texts() == other_order);
        expected = page.texts();
        QVERIFY(page.agrees_on(expected));

        // The copy of the write enable goes again.
        QVERIFY(page.select(block(first, 1)));
        QVERIFY(user().press(QStringLiteral("Delete")));
        expected.removeAt(expected.lastIndexOf(first));
        QVERIFY(page.agrees_on(expected));

        // The copy of the erase action gets a name of its own, and another bus width.
        QVERIFY(page.select(block(second, 1)));
        QVERIFY(user().open_property_editor(QStringLiteral("Name:"), "QLineEdit"));
        QVERIFY(user().press(QStringLiteral("ctrl+a")));
        QVERIFY(user().type(QStringLiteral("Erase once more")));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(session().wait_for(
            item_in("m_property_table", QStringLiteral("Erase once more"), 1),
            [](const QJsonObject& answer) { return answer.value(QLatin1String("found")).toBool(); }));
        QVERIFY(page.click(block(QStringLiteral("End"))));
        QString edited = QString(second).replace(ERASE_SECTOR, QStringLiteral("Name: Erase once more"));
        expected.replace(expected.lastIndexOf(second), edited);
        QVERIFY(page.agrees_on(expected));

        const QString bus_width = QStringLiteral("Command-Address(bus width):");
        QVERIFY(page.select(block(edited)));
        QVERIFY(user().open_property_editor(bus_width, "QComboBox"));
        const QStringList widths = column_of("");
        const QString width_before = look(widget_with_focus()).value(QLatin1String("currentText")).toString();
        QVERIFY2(widths.size() > 1 && widths.contains(width_before), qPrintable(widths.join(QLatin1Char(' '))));
        const QString width = widths.last() == width_before ? widths.first() : widths.last();
        QVERIFY(user().choose("", width));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(page.click(block(QStringLiteral("End"))));
        const QString edited_again =
            QString(edited).replace(bus_width + QLatin1Char(' ') + width_before, bus_width + QLatin1Char(' ') + width);
        QVERIFY(edited_again != edited);
        expected.replace(expected.indexOf(edited), edited_again);
        QVERIFY(page.agrees_on(expected));

        // What is drawn is what is stored.
        QVERIFY(fill_device_page(QStringLiteral("Edited")));
        QVERIFY(user().click(widget_called("m_ok_button")));
        QVERIFY(ended_well());
        const QJsonObject record = read_database(FAMILY, SCHEME, {QStringLiteral("Edited")})
                                       .value(QStringLiteral("records"))
                                       .toObject()
                                       .value(QStringLiteral("Edited"))
                                       .toObject();
        const QJsonObject flows = record.value(QStringLiteral("flows")).toObject();
        QCOMPARE(strings(flows.value(QStringLiteral("quad")).toArray().at(2)), expected);
    }

    // The value's editor closes while the box is open, so that there is no editor for the focus to come back to.
    void keys_stay_in_the_property_table_after_a_refused_value()
    {
        QVERIFY(open_erase_page(NEW_DEVICE));
        FLOW_PAGE page(session(), user());
        QVERIFY(page.select(block(ERASE_SECTOR)));
        QVERIFY(user().open_property_editor(QStringLiteral("Command:"), "QLineEdit"));

        QVERIFY(user().press(QStringLiteral("ctrl+a")));
        QVERIFY(user().type(QStringLiteral("no command")));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(wait_for_box_that_opens_with(QStringLiteral("\"no command\"")));
        QVERIFY(user().press(QStringLiteral("Return")));
        QVERIFY(wait_for_window(QStringLiteral("Configuration Device")));

        QVERIFY(session().wait_for(widget_with_focus(), [](const QJsonObject& answer) {
            return answer.value(QLatin1String("name")) == QLatin1String("m_property_table");
        }));
    }

    void flow_of_a_built_in_device_is_for_looking_only()
    {
        QVERIFY(open_erase_page(QStringLiteral("MX25L25645G")));
        FLOW_PAGE page(session(), user());
        const QStringList texts = page.texts();

        QVERIFY(page.click(block(ERASE_SECTOR)));
        QVERIFY(user().press(QStringLiteral("Delete")));
        QVERIFY(page.open_menu(block(ERASE_SECTOR)));
        QCOMPARE(page.menu_entries(), QStringList(QStringLiteral("Refresh")));
        QVERIFY(user().click(menu_entry(QStringLiteral("Refresh"))));

        QVERIFY(page.wait_for_selection(block(ERASE_SECTOR), false));
        QCOMPARE(page.texts(), texts);
    }

private:
    bool open_erase_page(const QString& device)
    {
        return start({QStringLiteral("--dialog"), QStringLiteral("--family=%1").arg(FAMILY),
                      QStringLiteral("--scheme=%1").arg(SCHEME), QStringLiteral("--device=") + device}) &&
               wait_for_window(QStringLiteral("Configuration Device")) &&
               FLOW_PAGE(session(), user()).open(QStringLiteral("Erase"));
    }

    bool fill_device_page(const QString& name)
    {
        return user().click(tab_called(QStringLiteral("Configuration Device"))) &&
               user().fill("m_device_name_edit", name) &&
               user().fill("m_device_id_edit", QStringLiteral("0xC2 0x20 0x17")) &&
               user().fill("m_total_die_edit", QStringLiteral("1")) &&
               user().fill("m_clock_cycle_edit", QStringLiteral("8")) &&
               user().fill("m_clock_cycle_edit_x4", QStringLiteral("6"));
    }
};

QTEST_GUILESS_MAIN(TEST_EDIT_FLOW)

#include "test_edit_flow.moc"
