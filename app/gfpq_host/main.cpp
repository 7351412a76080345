// SPDX-License-Identifier: MIT

// The programmer host: a program that loads the dialog module and opens it.
#include "program/host_arguments.h"
#include "program/host_program.h"

#include "kovq/zui_app.h"

#include <QTextCodec>

#include <cstdio>

#include <sys/stat.h>

namespace {

constexpr const char* DISPLAY_VARIABLES[] = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};

// The flash database's texts are UTF-8 and cross into widgets as local 8-bit: in a locale with another encoding the two
// would not agree.
void make_local_texts_utf8()
{
    constexpr int UTF8_MIB = 106;
    if (QTextCodec::codecForLocale()->mibEnum() != UTF8_MIB)
        QTextCodec::setCodecForLocale(QTextCodec::codecForMib(UTF8_MIB));
}

// Settings, pictures and directories of this program are not everyone's to write, whatever the user's mask.
void keep_files_from_everyone()
{
    ::umask(::umask(0) | S_IWOTH);
}

void set_names()
{
    // The title of the message boxes. Not the display name: Qt would append that to the title of every window.
    QCoreApplication::setApplicationName(QStringLiteral("Flash Programmer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(GFPQ_VERSION));
}

// Before there is an application with windows, which could not even show the help without a display.
PARSED_ARGUMENTS parse_command_line(int& argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    make_local_texts_utf8();
    return parse_arguments(QCoreApplication::arguments());
}

bool has_display()
{
    for (const char* variable : DISPLAY_VARIABLES) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    }
    return false;
}

int end_with_problem(const QString& problem, int exit_code)
{
    std::fprintf(stderr, "%s: %s\n", HOST_PROGRAM_NAME, qPrintable(problem));
    return exit_code;
}

} // namespace

int main(int argc, char** argv)
{
    keep_files_from_everyone();
    set_names();
    const PARSED_ARGUMENTS parsed = parse_command_line(argc, argv);
    if (!parsed.problem.isEmpty())
        return end_with_problem(parsed.problem + QLatin1String("\nTry --help."), HOST_EXIT_USAGE);
    if (!parsed.arguments) {
        std::fputs(qPrintable(parsed.information), stdout);
        return HOST_EXIT_OK;
    }

    // Pictures are drawn without a window appearing anywhere.
    if (parsed.arguments->task == HOST_TASK::RENDER)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!has_display())
        return end_with_problem(
            QStringLiteral("There is no display here. \"--render DIR\" draws the dialog's pages into files instead."),
            HOST_EXIT_FAILED);

    ZUI_APP app(argc, argv);
    return run_host(app, *parsed.arguments);
}
