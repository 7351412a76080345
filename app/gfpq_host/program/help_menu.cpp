// SPDX-License-Identifier: MIT
#include "program/help_menu.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>

namespace {

void show_box(QWidget* window, QMessageBox::Icon icon, const QString& title, const QString& text)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, window);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (icon == QMessageBox::NoIcon)
        box.setIconPixmap(window->windowIcon().pixmap(64));
    box.exec();
}

} // namespace

QString HELP_MENU::installed_guides(const QString& program_directory)
{
    return QDir::cleanPath(program_directory + QLatin1String("/../share/doc/gfpq/docs"));
}

HELP_MENU::HELP_MENU(QWidget* window, const QString& guides) : QMenu(window), m_window(window), m_guides(guides)
{
    setTitle(tr("&Help"));
    add_guide(tr("&User Guide"), "user-guide.md", QKeySequence::HelpContents);
    add_guide(tr("Device &Database"), "device-database.md");
    add_guide(tr("&Programming"), "programming.md");
    add_guide(tr("&Flows"), "flows.md");
    add_guide(tr("&Command Line"), "gfpdb.md");
    addSeparator();
    QAction* about = addAction(tr("&About"), this, &HELP_MENU::show_about);
    about->setObjectName(QStringLiteral("m_about_action"));
    about->setMenuRole(QAction::AboutRole);
}

void HELP_MENU::add_guide(const QString& title, const char* file, const QKeySequence& keys)
{
    const QString name = QLatin1String(file);
    QAction* action = addAction(title, this, [this, name] { open_guide(name); });
    action->setObjectName(name);
    action->setShortcut(keys);
}

void HELP_MENU::open_guide(const QString& file)
{
    const QString path = QDir(m_guides).filePath(file);
    if (!QFileInfo(path).isFile())
        show_box(m_window, QMessageBox::Information, tr("Help"),
                 tr("The guide is not installed. It would be here:\n%1").arg(path));
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        show_box(m_window, QMessageBox::Information, tr("Help"),
                 tr("No program shows this guide. Open it with a viewer or an editor:\n%1").arg(path));
}

void HELP_MENU::show_about()
{
    const QString name = QCoreApplication::applicationName();
    const QString text =
        tr("%1 %2\n\nLicence: MIT\nQt %3\n\nThe built-in devices are public facts about flash parts. The "
           "names of parts belong to their makers.")
            .arg(name, QCoreApplication::applicationVersion(), QString::fromLatin1(qVersion()));
    show_box(m_window, QMessageBox::NoIcon, tr("About"), text);
}
