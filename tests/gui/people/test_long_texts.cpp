// SPDX-License-Identifier: MIT

// The dialogs in a language whose texts are half as long again: nothing is cut.
#include "people_test.h"

#include "cut_labels.h"
#include "dialog/gfpq_edit_template_dlg.h"
#include "dialog/gfpq_pane_fitter.h"
#include "text_catalogue.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTabBar>
#include <QTableWidget>

#include <optional>

class TEST_LONG_TEXTS : public PEOPLE_TEST
{
    Q_OBJECT

private:
    // Brings the pseudo catalogue in.
    void use_long_texts()
    {
        qputenv("GFPQ_TRANSLATIONS", GFPQ_PSEUDO_CATALOGUES);
        QLocale::setDefault(QLocale(QLocale::English));
        m_texts.emplace(qs("gfpq"), QStringList());
        QVERIFY(m_texts->is_installed());
    }

    // The dialog, its rows of the flow template included.
    GFPQ_DLG& open_new_device()
    {
        GFPQ_DLG& dialog = open_dialog();
        child<QTableView>("m_device_table_view").selectRow(0);
        return dialog;
    }

private slots:
    // One text of each sort, none of which fits.
    void a_cut_text_is_noticed()
    {
        const QString text = qs("a text that needs some room");
        QWidget window;
        window.resize(400, 300);
        QLabel label(text, &window);
        label.setGeometry(0, 0, 20, 40);
        QLabel wrapped(text, &window);
        wrapped.setWordWrap(true);
        wrapped.setGeometry(0, 40, 100, 10);
        QPushButton button(text, &window);
        button.setGeometry(0, 80, 30, 40);
        QCheckBox check(text, &window);
        check.setGeometry(0, 120, 30, 40);
        QTabBar tabs_bar(&window);
        tabs_bar.addTab(text);
        tabs_bar.addTab(text);
        tabs_bar.setGeometry(0, 160, 60, 40);
        QTableWidget table(1, 1, &window);
        table.setHorizontalHeaderLabels({text});
        table.setGeometry(0, 200, 100, 60);
        table.setColumnWidth(0, 40);
        QLabel outside(text, &window);
        outside.setGeometry(380, 260, 300, 40);
        QLabel whole(text, &window);
        whole.setGeometry(0, 260, 370, 40);
        window.show();

        QCOMPARE(label_count(window), 9);
        QCOMPARE(cut_labels(window).size(), 8);
    }

    void the_catalogue_makes_texts_longer()
    {
        use_long_texts();
        open_dialog();

        QCOMPARE(child<QLabel>("m_clock_cycle_label").text(),
                 QString::fromUtf8("Sîñglé Î/Ø mødé dûmmý çløçk~~~~~~~~~~~~~~~: "));
    }

    void the_dialog_cuts_nothing()
    {
        use_long_texts();
        GFPQ_DLG& dialog = open_new_device();
        for (int page = 0; page <= GFPDB_OPERATION_COUNT; ++page) {
            tabs().setCurrentIndex(page);

            QTRY_COMPARE(cut_labels(dialog).join(QLatin1Char('\n')), QString());
            // Three labels and a button above the pages, six titles, three buttons below; and those of the page.
            QCOMPARE(label_count(dialog), 13 + (page == 0 ? 13 : 3));
        }
    }

    void the_template_editor_cuts_nothing()
    {
        use_long_texts();
        GFPQ_EDIT_TEMPLATE_DLG editor(&open_dialog(), &mgr());
        editor.show();

        QCOMPARE(cut_labels(editor).join(QLatin1Char('\n')), QString());
        QCOMPARE(label_count(editor), 3);
    }

    void the_device_fields_are_wide_enough_for_their_contents()
    {
        mgr().templates = {"one template of some", "b"};
        open_new_device();

        QTRY_VERIFY(fields().viewport()->width() >= fields().widget()->sizeHint().width());
        QCOMPARE(fields().horizontalScrollBar()->maximum(), 0);
        const auto& combo = child<QComboBox>("m_flow_template_cbox");
        QVERIFY(combo.width() >= combo.fontMetrics().horizontalAdvance(combo.itemText(0)));
    }

    // The width of the form, and a wide one.
    void panes_that_cut_nothing_are_as_the_form_has_them_data() { rows<int>({{"994", 994}, {"1600", 1600}}); }

    void panes_that_cut_nothing_are_as_the_form_has_them()
    {
        const int width = row<int>();
        const auto sizes_after = [](GFPQ_DLG& dialog, int new_width) {
            dialog.show();
            QCoreApplication::processEvents();
            dialog.resize(new_width, dialog.height());
            QCoreApplication::processEvents();
            return dialog.findChild<QSplitter*>(qs("m_config_device_splitter"))->sizes();
        };
        // Fields of growing width, up to those that are cut.
        for (std::size_t length = 0;; length += 2) {
            mgr().templates = {std::string(length, 'x'), "b"};
            GFPQ_DLG plain(nullptr, FAMILY, SCHEME, "My part", true, true, true, {});
            delete plain.findChild<GFPQ_PANE_FITTER*>();
            GFPQ_DLG fitted(nullptr, FAMILY, SCHEME, "My part", true, true, true, {});
            QVERIFY(fitted.findChild<GFPQ_PANE_FITTER*>() != nullptr);
            const QList<int> of_the_form = sizes_after(plain, width);
            const QScrollArea& area = *plain.findChild<QScrollArea*>(qs("m_device_info_scroll_area"));
            if (area.viewport()->width() < area.widget()->sizeHint().width()) {
                QVERIFY(length > 0);
                QVERIFY(sizes_after(fitted, width).last() > of_the_form.last());
                break;
            }

            QCOMPARE(sizes_after(fitted, width), of_the_form);
        }
    }

    void the_dialog_can_be_made_narrow()
    {
        // Before it is shown, too: that is when a host brings its size back.
        GFPQ_DLG hidden(nullptr, FAMILY, SCHEME, "My part", true, true, true, {});
        QVERIFY(hidden.minimumSizeHint().width() <= 700);
        GFPQ_DLG& dialog = open_new_device();

        dialog.resize(700, dialog.height());

        QTRY_COMPARE(dialog.width(), 700);
        QTRY_COMPARE(fields().horizontalScrollBar()->maximum(), 0);
        // Titles that do not fit are scrolled to.
        tabs().setCurrentIndex(5);
        const QTabBar& bar = *tabs().tabBar();
        QTRY_VERIFY(bar.rect().contains(bar.tabRect(5)));
    }

    void titles_that_fit_leave_the_size_of_the_form() { QCOMPARE(open_dialog().size(), QSize(994, 892)); }

    void very_long_texts_leave_room_for_the_list()
    {
        mgr().templates = {std::string(1000, 'x'), "b"};
        open_new_device();

        QTRY_COMPARE(splitter().sizes().last(), (splitter().width() - splitter().handleWidth()) * 75 / 100);
        QVERIFY(splitter().sizes().first() >= splitter().width() * 24 / 100);
    }

    void a_pane_gets_what_its_contents_and_the_area_around_them_take()
    {
        class CONTENTS : public QWidget
        {
        public:
            QSize sizeHint() const override { return {300, 1000}; }
            QSize minimumSizeHint() const override { return {200, 10}; }
        };
        QSplitter panes;
        QScrollArea area;
        area.setFrameStyle(QFrame::Box);
        area.setLineWidth(7);
        area.setWidget(new CONTENTS);
        panes.addWidget(new QWidget);
        panes.addWidget(&area);
        panes.resize(1000, 100);
        panes.setSizes({900, 100});
        new GFPQ_PANE_FITTER(panes, area);

        panes.show();

        const int around = 2 * 7 + area.verticalScrollBar()->sizeHint().width();
        QVERIFY(around > 2 * 7);
        QTRY_COMPARE(panes.sizes().last(), 300 + around);
        QCOMPARE(area.horizontalScrollBar()->maximum(), 0);
        QCOMPARE(area.minimumWidth(), 0);
        // Room for the scroll bar only where there is one.
        panes.resize(1000, 1200);
        QTRY_COMPARE(panes.sizes().last(), 300 + 2 * 7);
        panes.resize(400, 1200);
        QTRY_COMPARE(panes.sizes().last(), (400 - panes.handleWidth()) * 75 / 100);
    }

    void a_pane_that_was_widened_goes_back_when_there_is_room()
    {
        QSplitter panes;
        QScrollArea area;
        auto* const contents = new QWidget;
        auto* const layout = new QVBoxLayout(contents);
        auto* const wide = new QWidget;
        wide->setMinimumWidth(380);
        layout->addWidget(wide);
        area.setWidgetResizable(true);
        area.setWidget(contents);
        panes.addWidget(new QWidget);
        panes.addWidget(&area);
        panes.resize(1200, 300);
        panes.setSizes({600, 600});
        new GFPQ_PANE_FITTER(panes, area);
        panes.show();
        QCoreApplication::processEvents();
        const QList<int> before = panes.sizes();
        const int needed = contents->minimumSizeHint().width() + 2 * area.frameWidth();
        QVERIFY(needed > 380 && needed < 600);

        panes.resize(700, 300);
        QTRY_COMPARE(panes.sizes().last(), needed);
        panes.resize(650, 300);
        QTRY_COMPARE(panes.sizes().last(), needed);
        panes.resize(1200, 300);

        QTRY_VERIFY(qAbs(panes.sizes().last() - before.last()) <= 1);
    }

    void a_pane_that_is_wide_enough_is_left_alone()
    {
        QSplitter panes;
        QScrollArea area;
        area.setWidget(new QLabel(qs("short")));
        panes.addWidget(new QWidget);
        panes.addWidget(&area);
        panes.resize(600, 100);
        panes.setSizes({200, 400});
        const QList<int> before = panes.sizes();
        new GFPQ_PANE_FITTER(panes, area);

        panes.show();
        QCoreApplication::processEvents();

        QCOMPARE(panes.sizes(), before);
    }

    void the_handle_is_the_users_afterwards()
    {
        mgr().templates = {std::string(1000, 'x'), "b"};
        GFPQ_DLG& dialog = open_new_device();
        QTRY_VERIFY(splitter().sizes().last() >= splitter().width() * 6 / 10);
        QWidget& handle = *splitter().handle(1);
        const QPoint grip = handle.rect().center();
        QTest::mousePress(&handle, Qt::LeftButton, Qt::NoModifier, grip);
        const QPoint there = grip + QPoint(200, 0);
        QMouseEvent drag(QEvent::MouseMove, there, handle.mapToGlobal(there), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&handle, &drag);
        QTest::mouseRelease(&handle, Qt::LeftButton, Qt::NoModifier, grip);
        const QList<int> chosen = splitter().sizes();
        QVERIFY(chosen.last() < splitter().width() * 6 / 10);

        tabs().setCurrentIndex(1);
        tabs().setCurrentIndex(0);
        dialog.resize(dialog.width() + 1, dialog.height());
        QCoreApplication::processEvents();

        QVERIFY(splitter().sizes().last() < splitter().width() * 6 / 10);
    }

private:
    void take_down() override
    {
        PEOPLE_TEST::take_down();
        m_texts.reset();
        qunsetenv("GFPQ_TRANSLATIONS");
        QLocale::setDefault(QLocale::c());
    }

    QScrollArea& fields() const { return child<QScrollArea>("m_device_info_scroll_area"); }
    QSplitter& splitter() const { return child<QSplitter>("m_config_device_splitter"); }

    std::optional<TEXT_CATALOGUE> m_texts;
};

GFPQ_TEST_MAIN(TEST_LONG_TEXTS)

#include "test_long_texts.moc"
