// SPDX-License-Identifier: MIT

// The dialog framework.
#include "message_recorder.h"
#include "modal_driver.h"
#include "probe.h"
#include "test_rows.h"

#include "kovq/kovq_connect.h"
#include "kovq/kovq_dialog.h"
#include "kovq/kovq_native_file_dlg.h"
#include "kovq/zui_app.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <memory>
#include <type_traits>

namespace {

// Notes what reaches it.
class RECEIVER : public QObject
{
    Q_OBJECT

public:
    QList<int> values;

public slots:
    void take(int value) { values.append(value); }
};

// A field, a button with the auto-default flag, one that is the default, and one that is neither.
struct FORM : KOVQ_DIALOG
{
    FORM()
    {
        auto* rows = new QVBoxLayout(this);
        for (QWidget* widget : std::initializer_list<QWidget*>{&field, &auto_default, &default_one, &plain})
            rows->addWidget(widget);
        auto_default.setAutoDefault(true);
        default_one.setDefault(true);
        plain.setAutoDefault(false);
    }
    ~FORM() override
    {
        for (QWidget* widget : std::initializer_list<QWidget*>{&field, &auto_default, &default_one, &plain})
            widget->setParent(nullptr);
    }

    QLineEdit field;
    QPushButton auto_default;
    QPushButton default_one;
    QPushButton plain;
};

struct CLICKS
{
    explicit CLICKS(FORM& form)
        : auto_default(&form.auto_default, &QPushButton::clicked),
          default_one(&form.default_one, &QPushButton::clicked), plain(&form.plain, &QPushButton::clicked)
    {}
    QList<int> counts() const { return {auto_default.count(), default_one.count(), plain.count()}; }

    QSignalSpy auto_default;
    QSignalSpy default_one;
    QSignalSpy plain;
};

// What a window manager puts around a window; there is none here.
constexpr QSize FRAME(10, 40);
constexpr QSize FORM_SIZE(300, 200);
constexpr QSize USERS_SIZE(350, 260);

QSize room_on_screen()
{
    return QGuiApplication::primaryScreen()->availableSize() - FRAME;
}

// A dialog as a form makes one: with a name and a size.
struct NAMED_DIALOG : KOVQ_DIALOG
{
    explicit NAMED_DIALOG(const QString& name = QStringLiteral("probe_dlg"), const QSize& form_size = FORM_SIZE)
    {
        setObjectName(name);
        resize(form_size);
    }
};

// Shows a dialog, lets the user make it `users_size` (not at all when that is invalid), and closes it. The size that it
// was shown with.
QSize use_dialog(KOVQ_DIALOG& dialog, const QSize& users_size = QSize())
{
    dialog.show();
    const QSize shown = dialog.size();
    if (users_size.isValid())
        dialog.resize(users_size);
    dialog.close();
    return shown;
}

QSize use_named_dialog(const QSize& users_size = QSize(), const QString& name = QStringLiteral("probe_dlg"))
{
    NAMED_DIALOG dialog(name);
    return use_dialog(dialog, users_size);
}

void show_active(QWidget& window)
{
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        QFAIL("the window does not become active");
}

} // namespace

class TEST_KOVQ : public QObject
{
    Q_OBJECT

signals:
    void pinged(int value);

private slots:
    void init()
    {
        m_modals.reset();
        m_scratch = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<QSettings>(settings_file(), QSettings::IniFormat);
        KOVQ_DIALOG::set_settings(m_settings.get());
    }

    void cleanup()
    {
        KOVQ_DIALOG::set_settings(nullptr);
        m_settings.reset();
        QCOMPARE(m_modals.problems(), QStringList());
        QCOMPARE(QApplication::topLevelWidgets().size(), 0);
    }

    void connection_delivers_as_its_type_says()
    {
        RECEIVER receiver;
        RECEIVER later;
        QVERIFY(kovq_safe_connect(this, SIGNAL(pinged(int)), &receiver, SLOT(take(int))));
        QVERIFY(kovq_safe_connect(this, SIGNAL(pinged(int)), &later, SLOT(take(int)), Qt::QueuedConnection));

        emit pinged(5);
        QCOMPARE(receiver.values, QList<int>{5});
        QCOMPARE(later.values, QList<int>());

        QCoreApplication::processEvents();
        QCOMPARE(later.values, QList<int>{5});
    }

    void failed_connection_ends_the_process_data()
    {
        const QByteArray open("Internal error: connection of ");
        rows<QString, QByteArray>(
            {{"unknown signal", "signal", open + "QObject 'sender' destroied() to QObject deleteLater() does not hold"},
             {"unknown slot", "slot", open + "QObject 'sender' destroyed() to QObject deleteLatr() does not hold"},
             {"arguments that do not fit", "arguments",
              open + "QObject 'sender' destroyed() to QTimer start(int) does not hold"},
             {"no sender", "sender", open + "null destroyed() to QObject deleteLater() does not hold"},
             {"no receiver", "receiver", open + "QObject 'sender' destroyed() to null deleteLater() does not hold"},
             {"no signature", "signature",
              open + "QObject 'sender' no signature to QObject no signature does not hold"},
             {"place of the caller", "signal", "(KOVQ, the/caller, line 17)"}});
    }

    void failed_connection_ends_the_process()
    {
        const auto [mistake, said] = row<QString, QByteArray>();

        const PROBE_RESULT result = run_probe({QStringLiteral("connect"), mistake});

        QVERIFY(result.ended);
        QCOMPARE(result.exit_code, 70);
        QVERIFY2(result.log.contains(said), result.log.constData());
        QCOMPARE(result.output, QByteArray());
    }

    void dialog_passes_its_window_flags()
    {
        QWidget parent;
        KOVQ_DIALOG dialog(&parent, Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);

        QCOMPARE(dialog.parentWidget(), &parent);
        QCOMPARE(dialog.windowFlags(), Qt::WindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                                       Qt::WindowCloseButtonHint));
    }

    void return_clicks_the_button_with_the_focus_only_data()
    {
        rows<Qt::Key, Qt::KeyboardModifiers>({{"Return", Qt::Key_Return, Qt::NoModifier},
                                              {"Enter", Qt::Key_Enter, Qt::NoModifier},
                                              {"Enter of the keypad", Qt::Key_Enter, Qt::KeypadModifier}});
    }

    void return_clicks_the_button_with_the_focus_only()
    {
        const auto [key, modifiers] = row<Qt::Key, Qt::KeyboardModifiers>();
        FORM form;
        CLICKS clicks(form);
        QSignalSpy return_pressed(&form.field, &QLineEdit::returnPressed);
        show_active(form);
        const auto clicks_after = [&](QWidget& focus) {
            focus.setFocus();
            QTest::keyClick(&focus, key, modifiers);
            return clicks.counts();
        };

        QCOMPARE(clicks_after(form.field), (QList<int>{0, 0, 0}));
        QCOMPARE(return_pressed.count(), 1);
        QVERIFY(form.isVisible());
        QCOMPARE(clicks_after(form.plain), (QList<int>{0, 0, 1}));
        for (const auto modifier : {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier, Qt::MetaModifier}) {
            for (QWidget* const focus : std::initializer_list<QWidget*>{&form.field, &form.plain}) {
                focus->setFocus();
                QTest::keyClick(focus, key, modifiers | modifier);
            }
        }
        QCOMPARE(clicks.counts(), (QList<int>{0, 0, 1}));
        QCOMPARE(clicks_after(form.auto_default), (QList<int>{1, 0, 1}));
        QCOMPARE(clicks_after(form.default_one), (QList<int>{1, 1, 1}));
        form.plain.setFocus();
        form.plain.setEnabled(false);
        QTest::keyClick(&form, key, modifiers);
        QCOMPARE(clicks.counts(), (QList<int>{1, 1, 1}));
    }

    void return_goes_no_further()
    {
        FORM form;

        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        press.ignore();
        QCoreApplication::sendEvent(&form, &press);

        QVERIFY(press.isAccepted());
    }

    void escape_rejects()
    {
        FORM form;
        QSignalSpy rejected(&form, &QDialog::rejected);
        show_active(form);

        QTest::keyClick(&form, Qt::Key_Escape);

        QCOMPARE(rejected.count(), 1);
        QVERIFY(!form.isVisible());
    }

    void dialog_larger_than_its_screen_is_shown_on_it()
    {
        NAMED_DIALOG dialog(QStringLiteral("large_dlg"), QSize(994, 892));
        dialog.show();

        QCOMPARE(dialog.size(), room_on_screen());
        QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(dialog.frameGeometry()));

        dialog.resize(FORM_SIZE);
        QCOMPARE(dialog.size(), FORM_SIZE);
    }

    void dialog_that_fits_has_the_size_of_its_form_and_keeps_nothing()
    {
        QCOMPARE(use_named_dialog(), FORM_SIZE);

        NAMED_DIALOG largest(QStringLiteral("largest_dlg"), room_on_screen());
        QCOMPARE(use_dialog(largest), room_on_screen());
        QCOMPARE(m_settings->allKeys(), QStringList());
    }

    void dialog_is_never_smaller_than_its_contents()
    {
        NAMED_DIALOG dialog;
        dialog.setMinimumSize(5000, 100);

        QCOMPARE(use_dialog(dialog), QSize(5000, FORM_SIZE.height()));
    }

    void dialog_below_a_window_fits_on_its_screen()
    {
        QWidget window;
        window.show();
        KOVQ_DIALOG dialog(&window);
        dialog.resize(2000, 2000);

        QCOMPARE(use_dialog(dialog), room_on_screen());
    }

    void size_of_last_time_comes_back()
    {
        QCOMPARE(use_named_dialog(USERS_SIZE), FORM_SIZE);
        QCOMPARE(use_named_dialog(), USERS_SIZE);

        // The same in the next process.
        m_settings->sync();
        QSettings again(settings_file(), QSettings::IniFormat);
        KOVQ_DIALOG::set_settings(&again);
        QCOMPARE(use_named_dialog(FORM_SIZE), USERS_SIZE);
        QCOMPARE(use_named_dialog(), FORM_SIZE);
    }

    void sizes_are_kept_by_the_name_of_the_dialog()
    {
        use_named_dialog(USERS_SIZE, QStringLiteral("one_dlg"));

        QCOMPARE(use_named_dialog(QSize(), QStringLiteral("other_dlg")), FORM_SIZE);
        QCOMPARE(use_named_dialog(QSize(), QStringLiteral("one_dlg")), USERS_SIZE);
        QCOMPARE(m_settings->allKeys(), QStringList(QStringLiteral("dialog_size/one_dlg")));
    }

    void size_of_a_larger_screen_is_kept_on_a_smaller_one()
    {
        const QSize large(1900, 1300);
        m_settings->setValue(QStringLiteral("dialog_size/probe_dlg"), large);

        QCOMPARE(use_named_dialog(), room_on_screen());
        QCOMPARE(m_settings->value(QStringLiteral("dialog_size/probe_dlg")).toSize(), large);

        QCOMPARE(use_named_dialog(USERS_SIZE), room_on_screen());
        QCOMPARE(use_named_dialog(), USERS_SIZE);
    }

    void maximized_dialog_keeps_the_size_it_had_before()
    {
        NAMED_DIALOG dialog;
        dialog.show();
        dialog.resize(USERS_SIZE);
        dialog.showMaximized();
        QTRY_VERIFY(dialog.width() > USERS_SIZE.width());
        dialog.close();

        QCOMPARE(use_named_dialog(), USERS_SIZE);
    }

    void dialog_without_a_name_or_settings_forgets_its_size_data()
    {
        rows<QString, bool>({{"no name", QString(), true}, {"no settings", "probe_dlg", false}});
    }

    void dialog_without_a_name_or_settings_forgets_its_size()
    {
        const auto [name, has_settings] = row<QString, bool>();
        if (!has_settings)
            KOVQ_DIALOG::set_settings(nullptr);

        use_named_dialog(USERS_SIZE, name);

        QCOMPARE(use_named_dialog(QSize(), name), FORM_SIZE);
        QCOMPARE(m_settings->allKeys(), QStringList());
    }

    void damaged_settings_are_no_size_data()
    {
        rows<QByteArray, QSize>({{"text", "large", FORM_SIZE},
                                 {"number", "350", FORM_SIZE},
                                 {"empty", QByteArray(), FORM_SIZE},
                                 {"half a size", "@Size(350", FORM_SIZE},
                                 {"nothing", "@Size(0 0)", FORM_SIZE},
                                 {"no height", "@Size(350 0)", FORM_SIZE},
                                 {"negative", "@Size(-350 -260)", FORM_SIZE},
                                 {"another kind", "@Rect(0 0 350 260)", FORM_SIZE},
                                 {"more than a number holds", "@Size(99999999999 99999999999)", FORM_SIZE},
                                 {"gigantic", "@Size(2147483647 2147483647)", room_on_screen()}});
    }

    void damaged_settings_are_no_size()
    {
        const auto [value, shown] = row<QByteArray, QSize>();
        QFile file(settings_file());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[dialog_size]\nprobe_dlg=" + value + "\n");
        file.close();
        m_settings->sync();

        QCOMPARE(use_named_dialog(), shown);
    }

    void dialog_within_a_window_is_left_alone()
    {
        QWidget window;
        KOVQ_DIALOG dialog(&window, Qt::Widget);
        dialog.setWindowFlags(Qt::Widget);
        dialog.setObjectName(QStringLiteral("inner_dlg"));
        dialog.resize(2000, 2000);
        window.show();

        QCOMPARE(use_dialog(dialog, USERS_SIZE), QSize(2000, 2000));
        QCOMPARE(m_settings->allKeys(), QStringList());
    }

    void file_dialog_is_set_up_as_asked()
    {
        QTemporaryDir directory;
        QVERIFY(QDir(directory.path()).mkdir(QStringLiteral("flash")));
        QWidget parent;
        KOVQ_NATIVE_FILE_DLG chooser(&parent);
        chooser.set_file_mode(QFileDialog::Directory);
        chooser.set_option(QFileDialog::ShowDirsOnly, true);
        chooser.set_option(QFileDialog::DontUseNativeDialog, true);
        chooser.set_option(QFileDialog::DontUseNativeDialog, false);
        chooser.set_directory(directory.path());
        chooser.set_window_title(QStringLiteral("Where to?"));

        m_modals.expect([&](QWidget* window) {
            auto* dialog = qobject_cast<QFileDialog*>(window);
            QCOMPARE(dialog->fileMode(), QFileDialog::Directory);
            QVERIFY(dialog->testOption(QFileDialog::ShowDirsOnly));
            QVERIFY(!dialog->testOption(QFileDialog::DontUseNativeDialog));
            QCOMPARE(dialog->directory().canonicalPath(), QDir(directory.path()).canonicalPath());
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Where to?"));
            QCOMPARE(dialog->parentWidget(), &parent);
            dialog->selectFile(QStringLiteral("flash"));
            QMetaObject::invokeMethod(window, "accept");
        });
        QCOMPARE(chooser.exec(), 1);

        QCOMPARE(chooser.selected_files(), QStringList(directory.filePath(QStringLiteral("flash"))));
    }

    void file_dialog_can_be_cancelled()
    {
        KOVQ_NATIVE_FILE_DLG chooser(nullptr);
        chooser.set_accept_mode(QFileDialog::AcceptSave);
        m_modals.expect([](QWidget* window) {
            QCOMPARE(qobject_cast<QFileDialog*>(window)->acceptMode(), QFileDialog::AcceptSave);
            MODAL_DRIVER::reject()(window);
        });

        QCOMPARE(chooser.exec(), 0);
    }

    void application_is_the_process_s_own()
    {
        QCOMPARE(kovq_get_app(), QCoreApplication::instance());
        QVERIFY(qobject_cast<ZUI_APP*>(kovq_get_app()) != nullptr);
        static_assert(std::is_base_of_v<QApplication, ZUI_APP>);
    }

    void base_directory_is_empty_until_it_is_set()
    {
        ZUI_UI_MGR* ui_mgr = qobject_cast<ZUI_APP*>(kovq_get_app())->get_ui_mgr();
        QVERIFY(ui_mgr != nullptr);
        QCOMPARE(ui_mgr->get_base_dir(), std::string());

        ui_mgr->set_base_dir("/base/");
        QCOMPARE(qobject_cast<ZUI_APP*>(kovq_get_app())->get_ui_mgr()->get_base_dir(), std::string("/base/"));
        ui_mgr->set_base_dir(std::string());
    }

    void no_application_is_null()
    {
        const PROBE_RESULT result = run_probe({QStringLiteral("no-application")});

        QCOMPARE(result.output, QByteArray("null\n"));
    }

private:
    QString settings_file() const { return m_scratch->filePath(QStringLiteral("settings.ini")); }

    MODAL_DRIVER m_modals;
    std::unique_ptr<QTemporaryDir> m_scratch;
    std::unique_ptr<QSettings> m_settings;
};

int main(int argc, char** argv)
{
    ZUI_APP app(argc, argv);
    TEST_KOVQ test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_kovq.moc"
