// SPDX-License-Identifier: MIT

// Base of every widget test: a fresh world before each test function, and a look round after it.
//
//     class TEST_DEVICE_LIST : public GUI_TEST { Q_OBJECT private slots: void ...(); };
//     GFPQ_TEST_MAIN(TEST_DEVICE_LIST)
//     #include "test_device_list.moc"
//
// After each function the test fails when a modal window was met unexpectedly or not met, when Qt or the code printed a
// warning that was not announced, when a top-level widget is left, or when actions or operations of the flash database
// were leaked.
#pragma once

#include "call_log.h"
#include "gfpdb_double.h"
#include "kovq_double.h"
#include "modal_driver.h"
#include "msg_double.h"
#include "test_rows.h"

#include "kovq/zui_app.h"

#include <QObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// The application of the tests. `has_ui_mgr` false makes it a host without a user interface manager.
class TEST_APP : public ZUI_APP
{
public:
    using ZUI_APP::ZUI_APP;

    ZUI_UI_MGR* get_ui_mgr() override { return has_ui_mgr ? ZUI_APP::get_ui_mgr() : nullptr; }

    bool has_ui_mgr = true;
};

class GUI_TEST : public QObject
{
    Q_OBJECT

public:
    GUI_TEST();
    ~GUI_TEST() override;

protected:
    // Announces that a warning matching `pattern` will be printed, once.
    void expect_warning(const QString& pattern);
    // For a test that ends in an exception through Qt's own frames, or one that leaks on purpose.
    void allow_leaks() { m_leaks_allowed = true; }
    // For a test function in which an exception passes Qt's own frames, which do not release what they hold: the leak
    // check of AddressSanitizer passes over what is allocated from here to the function's end.
    void unwind_through_qt();

    CALL_LOG& log() const { return CALL_LOG::instance(); }
    // The recorded calls of these functions, in order; how many there were of one.
    QStringList calls_of(std::initializer_list<const char*> functions) const;
    int count_of(const char* function) const { return log().count(QLatin1String(function)); }
    GFPDB_WORLD& world() const { return GFPDB_WORLD::instance(); }
    MGR_DOUBLE& mgr() const { return gfpdb_mgr(); }
    // A directory of the test function's own; the process's current directory at its start.
    QString scratch() const { return m_scratch->path(); }

    MODAL_DRIVER m_modals;

private slots:
    void init();
    void cleanup();

private:
    static void handle_message(QtMsgType type, const QMessageLogContext& context, const QString& text);

    // What a derived test sets up and takes down around each test function, inside the base's own.
    virtual void set_up() {}
    virtual void take_down() {}

    std::unique_ptr<QTemporaryDir> m_scratch;
    QList<QRegularExpression> m_expected_warnings;
    QStringList m_unexpected_warnings;
    bool m_leaks_allowed = false;
    bool m_unwinds_through_qt = false;
    int m_actions_before = 0;
    int m_operations_before = 0;
};

// Shorter texts in expectations.
inline QString qs(const char* text)
{
    return QString::fromUtf8(text);
}

// The application of the running test; null when it is another one.
TEST_APP* test_app();

// The environment that every widget test runs in; call it before the application is made.
void prepare_gui_test();

#define GFPQ_TEST_MAIN(TEST_CLASS)                                                                                     \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        prepare_gui_test();                                                                                            \
        TEST_APP app(argc, argv);                                                                                      \
        TEST_CLASS test;                                                                                               \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }

// The same with an application that is no host application.
#define GFPQ_TEST_MAIN_WITHOUT_HOST(TEST_CLASS)                                                                        \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        prepare_gui_test();                                                                                            \
        QApplication app(argc, argv);                                                                                  \
        TEST_CLASS test;                                                                                               \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
