// SPDX-License-Identifier: MIT

// Does what its first argument names, so that a test can look at a process that dies or that reads the world again.
#include "dstr/dstr.h"
#include "kovq/kovq_connect.h"
#include "kovq/zui_app.h"
#include "msg/msg.h"

#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <thread>

namespace {

struct SPEAKS_WHEN_DESTROYED
{
    ~SPEAKS_WHEN_DESTROYED() { std::fputs("destroyed", stdout); }
};

void print_families()
{
    for (int family : dstr_get_families()) {
        std::printf("%d %s:", family, dstr_get_user_string(family).c_str());
        for (int scheme : dstr_get_config_schemes(family))
            std::printf(" %d", scheme);
        std::printf("\n");
    }
    if (!dstr_get_problem().empty())
        std::printf("problem: %s\n", dstr_get_problem().c_str());
}

void report_internal_error()
{
    MSG_INTERNAL_ERROR::report("100 %1 != nullptr", "PROBE", "tests/%2/host_probe", 94);
}

void report_internal_error_at_work()
{
    const SPEAKS_WHEN_DESTROYED half_built;
    std::atexit([] { std::fputs("exit handler", stdout); });
    std::fputs("before", stdout);
    report_internal_error();
}

// Shows the box when the platform has a display.
void report_internal_error_in_application(int argc, char** argv)
{
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Probe"));
    report_internal_error();
}

// Meets the broken state again while the box is open.
void report_internal_error_twice(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTimer::singleShot(0, report_internal_error);
    report_internal_error();
}

void prompt_without_widgets(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    MSG_O message;
    message.fill_args("nobody there/ONOBODY");
    message.set_id(7);
    std::printf("%d\n", message.prompt());
}

void connect_with(const std::string& mistake)
{
    QObject sender;
    QObject receiver;
    QTimer timer;
    sender.setObjectName(QStringLiteral("sender"));
    const char* signal = SIGNAL(destroyed());
    const char* slot = SLOT(deleteLater());
    constexpr const char* PLACE = "the/caller";
    constexpr int LINE = 17;
    const auto safe_connect = [&](const QObject* from, const char* what, const QObject* to, const char* method) {
        kovq_safe_connect(from, what, to, method, Qt::AutoConnection, PLACE, LINE);
    };
    if (mistake == "signal")
        safe_connect(&sender, SIGNAL(destroied()), &receiver, slot);
    else if (mistake == "slot")
        safe_connect(&sender, signal, &receiver, SLOT(deleteLatr()));
    else if (mistake == "arguments")
        safe_connect(&sender, signal, &timer, SLOT(start(int)));
    else if (mistake == "sender")
        safe_connect(nullptr, signal, &receiver, slot);
    else if (mistake == "receiver")
        safe_connect(&sender, signal, nullptr, slot);
    else if (mistake == "signature")
        safe_connect(&sender, nullptr, &receiver, nullptr);
    std::puts("still alive");
}

} // namespace

int main(int argc, char** argv)
{
    const std::map<std::string, std::function<void()>> commands = {
        {"families",
         [&] {
             QCoreApplication app(argc, argv);
             print_families();
         }},
        {"families-without-application", print_families},
        {"internal-error", report_internal_error_at_work},
        {"internal-error-in-application", [&] { report_internal_error_in_application(argc, argv); }},
        {"internal-error-twice", [&] { report_internal_error_twice(argc, argv); }},
        {"internal-error-in-thread",
         [&] {
             QApplication app(argc, argv);
             std::thread(report_internal_error).join();
         }},
        {"internal-error-without-texts", [] { MSG_INTERNAL_ERROR::report(nullptr, nullptr, nullptr, 0); }},
        {"prompt-without-widgets", [&] { prompt_without_widgets(argc, argv); }},
        {"connect", [&] { connect_with(argv[2]); }},
        {"no-application", [] { std::puts(kovq_get_app() ? "there is one" : "null"); }},
    };
    const auto command = argc > 1 ? commands.find(argv[1]) : commands.end();
    if (command == commands.end())
        return EXIT_FAILURE;
    command->second();
    return EXIT_SUCCESS;
}
