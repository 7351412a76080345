// SPDX-License-Identifier: MIT

// Pictures of the dialog's pages.
#include "dialog/page_renderer.h"
#include "test_rows.h"

#include <QDialog>
#include <QGraphicsView>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStringListModel>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

// The renderer knows the template editor by its class.
class GFPQ_EDIT_TEMPLATE_DLG : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;
};

namespace {

const QList<QColor> COLOURS = {Qt::red, Qt::green, Qt::blue};

// A dialog with three coloured pages, a list of devices and a button that opens the template editor.
class FORM : public QDialog
{
public:
    FORM()
    {
        m_pages->setObjectName(QStringLiteral("m_prog_flows_tab_widget"));
        const QStringList titles = {QStringLiteral("Device"), QStringLiteral("Verify/Blank-Check"),
                                    QStringLiteral("L\u00f6schen 2")};
        for (int page = 0; page < titles.size(); ++page) {
            auto* content = new QLabel;
            content->setStyleSheet(QStringLiteral("background: %1").arg(COLOURS[page].name()));
            m_pages->addTab(content, titles[page]);
        }
        devices->setObjectName(QStringLiteral("m_device_table_view"));
        devices->setModel(new QStringListModel({QStringLiteral("new"), QStringLiteral("built-in")}, devices));
        devices->selectRow(1);
        devices->hide();
        button->setObjectName(QStringLiteral("m_edit_template_button"));
        connect(button, &QPushButton::clicked, this, [this] {
            page_at_click = m_pages->currentIndex();
            device_at_click = devices->currentIndex().row();
            GFPQ_EDIT_TEMPLATE_DLG editor(this);
            editor.exec();
        });
        auto* column = new QVBoxLayout(this);
        column->addWidget(m_pages);
        column->addWidget(button);
        resize(400, 300);
    }

    QPushButton* button = new QPushButton(this);
    QTableView* devices = new QTableView(this);
    int page_at_click = -1;
    int device_at_click = -1;

private:
    QTabWidget* m_pages = new QTabWidget(this);
};

QStringList names(const QStringList& files)
{
    QStringList result;
    for (const QString& file : files)
        result.append(QFileInfo(file).fileName());
    return result;
}

} // namespace

class TEST_PAGE_RENDERER : public QObject
{
    Q_OBJECT

private slots:
    void every_page_and_the_template_editor_are_drawn()
    {
        QTemporaryDir scratch;
        const QString directory = scratch.filePath(QStringLiteral("new/pictures"));
        FORM form;
        PAGE_RENDERER renderer(directory);

        QCOMPARE(form.exec(), int(QDialog::Rejected));

        QCOMPARE(renderer.problem(), QString());
        QCOMPARE(names(renderer.files()),
                 (QStringList{QStringLiteral("1-device.png"), QStringLiteral("2-verify-blank-check.png"),
                              QStringLiteral("3-l\u00f6schen-2.png"), QStringLiteral("4-template-editor.png")}));
        for (const QString& file : renderer.files())
            QCOMPARE(QFileInfo(file).absolutePath(), directory);
        QCOMPARE(form.page_at_click, 0);
        QCOMPARE(form.device_at_click, 0);
    }

    void pictures_show_their_pages()
    {
        QTemporaryDir scratch;
        FORM form;
        PAGE_RENDERER renderer(scratch.path());

        form.exec();

        for (int page = 0; page < COLOURS.size(); ++page) {
            const QImage picture(renderer.files()[page]);
            QCOMPARE(picture.size(), form.size());
            QCOMPARE(picture.pixelColor(picture.rect().center()), COLOURS[page]);
        }
    }

    // The dialog makes itself smaller for a small screen.
    void pictures_are_as_large_as_the_form()
    {
        class MODEST_FORM : public FORM
        {
            void showEvent(QShowEvent* event) override
            {
                resize(200, 150);
                FORM::showEvent(event);
            }
        };
        QTemporaryDir directory;
        PAGE_RENDERER renderer(directory.path());
        MODEST_FORM form;
        form.exec();

        QCOMPARE(renderer.problem(), QString());
        QCOMPARE(QImage(renderer.files().constFirst()).size(), QSize(400, 300));
    }

    // The picture is larger for it, and the pages after it are not.
    void charts_are_drawn_whole()
    {
        QTemporaryDir scratch;
        FORM form;
        QGraphicsScene scene(0, 0, 700, 1500);
        scene.addRect(0, 0, 700, 1500, Qt::NoPen, QColor(Qt::cyan));
        auto* const view = new QGraphicsView(&scene);
        view->setFrameStyle(QFrame::NoFrame);
        form.findChild<QTabWidget*>()->insertTab(1, view, QStringLiteral("Chart"));
        PAGE_RENDERER renderer(scratch.path());

        form.exec();

        const QImage chart(renderer.files()[1]);
        int drawn = 0;
        for (int line = 0; line < chart.height(); ++line)
            drawn += chart.pixelColor(chart.width() / 2, line) == QColor(Qt::cyan) ? 1 : 0;
        QCOMPARE(drawn, 1500);
        QVERIFY(chart.width() >= 700);
        QCOMPARE(QImage(renderer.files()[2]).size(), QSize(400, 300));
    }

    void dialog_without_a_template_editor_data()
    {
        rows<bool, bool>({{"hidden", false, true}, {"disabled", true, false}});
    }

    void dialog_without_a_template_editor()
    {
        const auto [visible, enabled] = row<bool, bool>();
        QTemporaryDir scratch;
        FORM form;
        form.button->setVisible(visible);
        form.button->setEnabled(enabled);
        PAGE_RENDERER renderer(scratch.path());

        form.exec();

        QCOMPARE(renderer.files().size(), 3);
        QCOMPARE(renderer.problem(), QString());
    }

    void foreign_window_is_closed_and_reported()
    {
        QTemporaryDir scratch;
        PAGE_RENDERER renderer(scratch.path());

        QDialog foreign;
        foreign.setWindowTitle(QStringLiteral("Foreign"));
        QCOMPARE(foreign.exec(), int(QDialog::Rejected));

        QCOMPARE(renderer.files(), QStringList());
        QCOMPARE(renderer.problem(), QStringLiteral("An unexpected window opened: Foreign"));
    }

    void directory_that_cannot_be_made_is_reported()
    {
        FORM form;
        PAGE_RENDERER renderer(QStringLiteral("/proc/self/exe/pictures"));

        form.exec();

        QCOMPARE(renderer.files(), QStringList());
        const QStringList problems = renderer.problem().split(QLatin1Char('\n'));
        QCOMPARE(problems[0], QStringLiteral("The directory /proc/self/exe/pictures cannot be created."));
        QCOMPARE(problems[1], QStringLiteral("The picture /proc/self/exe/pictures/1-device.png cannot be written."));
    }

    void renderer_leaves_the_application_alone_afterwards()
    {
        QTemporaryDir scratch;
        {
            PAGE_RENDERER renderer(scratch.path());
        }
        QDialog dialog;
        dialog.show();
        QCoreApplication::processEvents();

        QVERIFY(dialog.isVisible());
    }
};

QTEST_MAIN(TEST_PAGE_RENDERER)

#include "test_page_renderer.moc"
