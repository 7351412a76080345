// SPDX-License-Identifier: MIT

// The dialogs on the screen of a small laptop.
#include "e2e_test.h"
#include "test_rows.h"

namespace {

const QString TITLE = QStringLiteral("Configuration Device");
constexpr const char* DIALOG = "gfpq_dlg";

QRect rectangle(const QJsonObject& answer)
{
    const QJsonArray rect = answer.value(QLatin1String("rect")).toArray();
    return {rect.at(0).toInt(), rect.at(1).toInt(), rect.at(2).toInt(), rect.at(3).toInt()};
}

} // namespace

class TEST_SMALL_SCREEN : public E2E_TEST
{
    Q_OBJECT

private slots:
    void every_button_of_the_dialog_is_on_the_screen_data()
    {
        rows<QStringList>({{"by itself", QStringList(QStringLiteral("--dialog"))}, {"from the window", QStringList()}});
    }

    void every_button_of_the_dialog_is_on_the_screen()
    {
        const QStringList options = row<QStringList>();
        QVERIFY(start(options));
        if (options.isEmpty())
            QVERIFY(user().click(widget_called("m_dialog_button")));
        QVERIFY(wait_for_window(TITLE));

        const QRect screen_area(QPoint(), screen_size());
        for (const char* button : {"m_ok_button", "m_cancel_button", "m_apply_button", "m_delete_button"}) {
            const QRect place = place_of(button);
            QVERIFY2(!place.isEmpty() && screen_area.contains(place), button);
        }
        // As wide as the form says: there is room for that.
        QCOMPARE(place_of(DIALOG).width(), 994);
        QVERIFY(screen_area.contains(place_of(DIALOG)));
    }

    void size_of_last_time_comes_back()
    {
        const QSize users_size(1100, 700);
        QVERIFY(start({}));
        QVERIFY(user().click(widget_called("m_dialog_button")));
        QVERIFY(wait_for_window(TITLE));

        QVERIFY(screen().run(QStringLiteral("xdotool"),
                             {QStringLiteral("getactivewindow"), QStringLiteral("windowsize"),
                              QString::number(users_size.width()), QString::number(users_size.height())}));
        QVERIFY(wait_for_size_of_dialog(users_size));
        QVERIFY(user().press(QStringLiteral("Escape")));
        QVERIFY(wait_for_window(QStringLiteral("Flash Programmer")));
        QVERIFY(user().press(QStringLiteral("ctrl+q")));
        QVERIFY(ended_well());

        QVERIFY(start({}));
        QVERIFY(user().click(widget_called("m_dialog_button")));
        QVERIFY(wait_for_window(TITLE));
        QVERIFY(wait_for_size_of_dialog(users_size));
    }

private:
    QSize screen_size() const override { return {1366, 768}; }

    QRect place_of(const char* widget) { return rectangle(look(widget_called(widget))); }

    bool wait_for_size_of_dialog(const QSize& size)
    {
        return session().wait_for(widget_called(DIALOG),
                                  [&size](const QJsonObject& answer) { return rectangle(answer).size() == size; });
    }
};

QTEST_GUILESS_MAIN(TEST_SMALL_SCREEN)

#include "test_small_screen.moc"
