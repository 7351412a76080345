// SPDX-License-Identifier: MIT
#include "dialog/page_renderer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEvent>
#include <QGraphicsView>
#include <QPixmap>
#include <QPointer>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

namespace {

constexpr int ENLARGING_STEPS = 8;
constexpr QSize LARGEST_PICTURE(4000, 16000);
const QString PAGES = QStringLiteral("m_prog_flows_tab_widget");
const QString DEVICES = QStringLiteral("m_device_table_view");
const QString EDIT_TEMPLATE_BUTTON = QStringLiteral("m_edit_template_button");
const QString TEMPLATE_EDITOR_CLASS = QStringLiteral("GFPQ_EDIT_TEMPLATE_DLG");

// "Verify/Blank-Check/Examine" gives "verify-blank-check-examine".
QString file_name_part(const QString& title)
{
    QString name = title.toLower();
    name.replace(QRegularExpression(QStringLiteral("\\W+"), QRegularExpression::UseUnicodePropertiesOption),
                 QStringLiteral("-"));
    return name;
}

// What the charts in sight would need in addition to show all of their scenes.
QSize missing_in_charts(const QDialog& dialog)
{
    QSize missing(0, 0);
    const QList<QGraphicsView*> views = dialog.findChildren<QGraphicsView*>();
    for (const QGraphicsView* view : views) {
        if (!view->isVisible())
            continue;
        const QSize whole = view->mapFromScene(view->sceneRect()).boundingRect().size();
        missing = missing.expandedTo(whole - view->viewport()->size());
    }
    return missing;
}

// Makes the dialog so large that no chart of the page in front has to be scrolled. Only a part of what it gets may be
// the chart's, so it takes more than one step; a splitter that keeps all to itself does not go on for ever.
void make_charts_whole(QDialog& dialog)
{
    for (int step = 0; step < ENLARGING_STEPS; ++step) {
        QCoreApplication::processEvents();
        const QSize missing = missing_in_charts(dialog);
        if (missing.isNull())
            return;
        dialog.resize((dialog.size() + missing).boundedTo(LARGEST_PICTURE));
    }
}

} // namespace

PAGE_RENDERER::PAGE_RENDERER(const QString& directory) : m_directory(QDir(directory).absolutePath())
{
    if (!QDir().mkpath(m_directory))
        m_problems.append(QStringLiteral("The directory %1 cannot be created.").arg(m_directory));
    qApp->installEventFilter(this);
}

PAGE_RENDERER::~PAGE_RENDERER() = default;

bool PAGE_RENDERER::eventFilter(QObject* watched, QEvent* event)
{
    auto* shown = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (shown) {
        // From within the dialog's own event loop, which starts after it was shown. Nobody sees the screen that it
        // keeps to, so it gets the size back that it comes with.
        QTimer::singleShot(0, this, [this, dialog = QPointer<QDialog>(shown), size = shown->size()] {
            if (!dialog)
                return;
            dialog->resize(size);
            meet(dialog);
        });
    }
    return QObject::eventFilter(watched, event);
}

void PAGE_RENDERER::meet(QDialog* dialog)
{
    if (auto* pages = dialog->findChild<QTabWidget*>(PAGES))
        render_pages(dialog, pages);
    else if (QLatin1String(dialog->metaObject()->className()) == TEMPLATE_EDITOR_CLASS)
        render(dialog, QStringLiteral("template-editor"));
    else
        m_problems.append(QStringLiteral("An unexpected window opened: %1").arg(dialog->windowTitle()));
    dialog->reject();
}

void PAGE_RENDERER::render_pages(QDialog* dialog, QTabWidget* pages)
{
    for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
        const QSize size = dialog->size();
        make_charts_whole(*dialog);
        render(dialog, file_name_part(pages->tabText(page)));
        dialog->resize(size);
    }
    pages->setCurrentIndex(0);
    open_template_editor(dialog);
}

// Only a device that can be changed has a way to the template editor, and the first row is always such a one: the new
// device. Schemes without programming flows have no templates at all.
void PAGE_RENDERER::open_template_editor(const QDialog* dialog)
{
    if (auto* devices = dialog->findChild<QTableView*>(DEVICES))
        devices->selectRow(0);
    auto* button = dialog->findChild<QAbstractButton*>(EDIT_TEMPLATE_BUTTON);
    if (button && button->isVisible() && button->isEnabled())
        button->click();
}

void PAGE_RENDERER::render(QWidget* window, const QString& name)
{
    QCoreApplication::processEvents();
    const QString file = QDir(m_directory).filePath(QStringLiteral("%1-%2.png").arg(m_files.size() + 1).arg(name));
    if (window->grab().save(file))
        m_files.append(file);
    else
        m_problems.append(QStringLiteral("The picture %1 cannot be written.").arg(file));
}
