// SPDX-License-Identifier: MIT
#include "gui_test.h"

#include <QApplication>
#include <QDir>

#include <algorithm>

#if defined(__SANITIZE_ADDRESS__)
// Of the leak check; the header comes with one of the compilers only.
extern "C" void __lsan_disable();
extern "C" void __lsan_enable();
#endif

namespace {

GUI_TEST* g_running = nullptr;
QtMessageHandler g_next_handler = nullptr;

QStringList names_of_top_level_widgets()
{
    QStringList names;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        names.append(QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') + widget->objectName() +
                     QLatin1Char(' ') + widget->windowTitle());
    }
    return names;
}

QByteArray lines(const QStringList& texts)
{
    return texts.join(QLatin1Char('\n')).toLocal8Bit();
}

// Where there is a leak check at all.
void ignore_leaks_from_here(bool ignore)
{
#if defined(__SANITIZE_ADDRESS__)
    ignore ? __lsan_disable() : __lsan_enable();
#else
    Q_UNUSED(ignore)
#endif
}

} // namespace

GUI_TEST::GUI_TEST() = default;
GUI_TEST::~GUI_TEST() = default;

void GUI_TEST::expect_warning(const QString& pattern)
{
    m_expected_warnings.append(QRegularExpression(pattern));
}

void GUI_TEST::handle_message(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    // The offscreen platform says so of every window.
    const bool of_platform = text.startsWith(QLatin1String("This plugin does not support"));
    if (g_running != nullptr && (type == QtWarningMsg || type == QtCriticalMsg) && !of_platform) {
        QList<QRegularExpression>& expected = g_running->m_expected_warnings;
        const auto found = std::find_if(expected.begin(), expected.end(), [&text](const QRegularExpression& pattern) {
            return pattern.match(text).hasMatch();
        });
        if (found == expected.end())
            g_running->m_unexpected_warnings.append(text);
        else
            expected.erase(found);
    }
    if (g_next_handler != nullptr && !of_platform)
        g_next_handler(type, context, text);
}

QStringList GUI_TEST::calls_of(std::initializer_list<const char*> functions) const
{
    QStringList names;
    for (const char* function : functions)
        names.append(QLatin1String(function));
    return log().calls_of(names);
}

void GUI_TEST::unwind_through_qt()
{
    if (!m_unwinds_through_qt)
        ignore_leaks_from_here(true);
    m_unwinds_through_qt = true;
}

void GUI_TEST::init()
{
    m_expected_warnings.clear();
    m_unexpected_warnings.clear();
    m_leaks_allowed = false;
    m_modals.reset();
    CALL_LOG::instance().reset();
    reset_messages();
    reset_file_dlg();
    made_connections().clear();
    GFPDB_WORLD::instance().reset();
    m_scratch = std::make_unique<QTemporaryDir>();
    QDir::setCurrent(m_scratch->path());
    if (TEST_APP* const app = test_app()) {
        app->has_ui_mgr = true;
        app->get_ui_mgr()->set_base_dir(std::string());
    }
    m_actions_before = live_actions();
    m_operations_before = live_operations();
    g_running = this;
    g_next_handler = qInstallMessageHandler(&GUI_TEST::handle_message);
    set_up();
    CALL_LOG::instance().clear();
}

void GUI_TEST::cleanup()
{
    take_down();
    if (m_unwinds_through_qt)
        ignore_leaks_from_here(false);
    m_unwinds_through_qt = false;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    qInstallMessageHandler(g_next_handler);
    g_running = nullptr;
    QDir::setCurrent(QDir::rootPath());
    CALL_LOG::instance().reset();
    GFPDB_WORLD::instance().reset();

    const QStringList modal_problems = m_modals.problems();
    QVERIFY2(modal_problems.isEmpty(), lines(modal_problems).constData());
    QVERIFY2(m_unexpected_warnings.isEmpty(), lines(m_unexpected_warnings).constData());
    for (const QRegularExpression& missing : m_expected_warnings)
        QFAIL(lines({QStringLiteral("expected warning never came: ") + missing.pattern()}).constData());
    const QStringList left = names_of_top_level_widgets();
    if (m_leaks_allowed)
        return;
    QVERIFY2(left.isEmpty(), lines(left).constData());
    QCOMPARE(live_actions(), m_actions_before);
    QCOMPARE(live_operations(), m_operations_before);
}

TEST_APP* test_app()
{
    return dynamic_cast<TEST_APP*>(QCoreApplication::instance());
}

void prepare_gui_test()
{
    qputenv("GFPQ_FAMILIES", GFPQ_TEST_FAMILIES);
}
