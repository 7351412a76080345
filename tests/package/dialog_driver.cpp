// SPDX-License-Identifier: MIT

// Works a host's windows from inside, where there is neither a display nor a test program: Qt loads this plugin into an
// unchanged program when QT_QPA_GENERIC_PLUGINS names it.
//
// The dialog: prints its devices, makes the device that GFPQ_DRIVER_DEVICE names, if it does, and clicks OK. A main
// window: prints the texts of its labels and closes it. A message box: prints its text and closes it, and everything
// behind it. All output goes to standard error.
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QGenericPlugin>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QTableView>
#include <QTimer>

#include <cstdio>

namespace {

void print(const QString& line)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(line));
}

void enter(const QWidget& dialog, const char* edit_name, const char* text)
{
    auto* const edit = dialog.findChild<QLineEdit*>(QLatin1String(edit_name));
    if (edit != nullptr && edit->isVisible())
        edit->setText(QString::fromUtf8(text));
}

void make_device(const QWidget& dialog, QTableView& devices, const QByteArray& name)
{
    devices.selectRow(0);
    enter(dialog, "m_device_name_edit", name.constData());
    enter(dialog, "m_device_id_edit", "0xC2 0x20 0x19");
    enter(dialog, "m_total_die_edit", "1");
    enter(dialog, "m_clock_cycle_edit", "8");
    enter(dialog, "m_clock_cycle_edit_x4", "6");
}

void work_dialog(const QDialog& dialog, QTableView& devices)
{
    print(QStringLiteral("dialog: ") + dialog.windowTitle());
    for (int row = 0; row < devices.model()->rowCount(); ++row)
        print(QStringLiteral("device: ") + devices.model()->index(row, 0).data().toString());
    const QByteArray name = qgetenv("GFPQ_DRIVER_DEVICE");
    if (!name.isEmpty())
        make_device(dialog, devices, name);
    dialog.findChild<QAbstractButton*>(QStringLiteral("m_ok_button"))->click();
}

void work_main_window(QMainWindow& window)
{
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    for (const QLabel* const label : labels)
        print(QStringLiteral("label: ") + label->text());
    window.close();
}

void work(QWidget& window)
{
    auto* const devices = window.findChild<QTableView*>(QStringLiteral("m_device_table_view"));
    if (const auto* const box = qobject_cast<QMessageBox*>(&window)) {
        print(QStringLiteral("box: ") + box->text());
        QApplication::closeAllWindows();
    } else if (auto* const dialog = qobject_cast<QDialog*>(&window); dialog != nullptr && devices != nullptr) {
        work_dialog(*dialog, *devices);
    } else if (auto* const main_window = qobject_cast<QMainWindow*>(&window)) {
        work_main_window(*main_window);
    }
}

class DIALOG_DRIVER : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QPointer<QWidget> window(event->type() == QEvent::Show ? qobject_cast<QWidget*>(watched) : nullptr);
        if (window && window->isWindow()) {
            // From within the event loop that the window is worked in.
            QTimer::singleShot(0, this, [window] {
                if (window)
                    work(*window);
            });
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class DIALOG_DRIVER_PLUGIN : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "dialog_driver.json")

public:
    QObject* create(const QString& /*key*/, const QString& /*settings_file*/) override
    {
        // The application deletes it.
        auto* const driver = new DIALOG_DRIVER;
        qApp->installEventFilter(driver);
        return driver;
    }
};

#include "dialog_driver.moc"
