// SPDX-License-Identifier: MIT
#include "program/host_program.h"

#include "dialog/dialog_call.h"
#include "dialog/host_offer.h"
#include "dialog/module_loader.h"
#include "dialog/page_renderer.h"
#include "program/host_choice.h"
#include "program/host_database.h"
#include "program/host_translation.h"
#include "program/program_icon.h"
#include "programmer/programmer_window.h"
#include "run/chosen_device.h"
#include "run/run_preparation.h"

#include "dstr/dstr.h"
#include "kovq/kovq_dialog.h"
#include "kovq/zui_app.h"
#include "msg/msg.h"

#include <QDir>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QScopeGuard>
#include <QSettings>
#include <QTextStream>

#include <cstdio>

namespace {

void print(std::FILE* stream, const QString& line)
{
    QTextStream(stream) << line << '\n';
}

int fail(const QString& problem)
{
    print(stderr, QLatin1String(HOST_PROGRAM_NAME) + QLatin1String(": ") + problem);
    return HOST_EXIT_FAILED;
}

MODULE_LOADER module_of(const HOST_ARGUMENTS& arguments)
{
    if (!arguments.module_file.isEmpty())
        return MODULE_LOADER({arguments.module_file});
    return MODULE_LOADER(MODULE_LOADER::installed_files(QCoreApplication::applicationDirPath()));
}

// What was chosen last, overruled by what the command line says.
HOST_CHOICE first_choice(const HOST_ARGUMENTS& arguments, const QSettings& settings)
{
    HOST_CHOICE choice = load_choice(settings);
    choice.family = arguments.family.value_or(choice.family);
    choice.config_scheme = arguments.config_scheme.value_or(choice.config_scheme);
    if (arguments.device_name)
        choice.device_name = arguments.device_name->toLocal8Bit().toStdString();
    return choice;
}

// The dialog makes the database directory the current one, so a relative base directory would not stay where it is.
void set_directories(ZUI_APP& app, const HOST_ARGUMENTS& arguments)
{
    const QString& given = arguments.base_directory;
    const QString base = given.isEmpty() ? QString() : QDir::cleanPath(QDir::current().absoluteFilePath(given));
    if (!base.isEmpty()) {
        app.get_ui_mgr()->set_base_dir(base.toLocal8Bit().toStdString());
        use_base_directory(base);
    }
    if (!arguments.database_directory.isEmpty())
        use_database_directory(arguments.database_directory, base);
}

// The dialog's options for an opening with `choice`.
DIALOG_OPTIONS options_for(const HOST_CHOICE& choice, const HOST_ARGUMENTS& arguments)
{
    const HOST_OFFER offer(arguments.dialog.family_schemes);
    DIALOG_OPTIONS options = arguments.dialog;
    options.family_schemes = offer.for_opening(offer.nearest(choice).config_scheme);
    return options;
}

int run_window(MODULE_LOADER& module, const HOST_ARGUMENTS& arguments, QSettings& settings)
{
    PROGRAMMER_WINDOW window(module, arguments.dialog, first_choice(arguments, settings), settings);
    QObject::connect(&window, &PROGRAMMER_WINDOW::choice_changed, &window,
                     [&] { store_choice(window.choice(), settings); });
    window.show();
    return QCoreApplication::exec();
}

int run_dialog(MODULE_LOADER& module, const HOST_ARGUMENTS& arguments, const QSettings& settings)
{
    const GFPQ_DYN_DLG entry_point = module.entry_point();
    if (!entry_point)
        return fail(module.problem());
    const HOST_CHOICE before = first_choice(arguments, settings);
    const HOST_CHOICE after = open_dialog(entry_point, nullptr, before, options_for(before, arguments));
    std::printf("%s\n", choice_to_json(after).constData());
    return HOST_EXIT_OK;
}

int run_render(MODULE_LOADER& module, const HOST_ARGUMENTS& arguments, const QSettings& settings)
{
    const GFPQ_DYN_DLG entry_point = module.entry_point();
    if (!entry_point)
        return fail(module.problem());
    // What Qt says of a platform without a screen is of no use; what this program logs has categories.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    const HOST_CHOICE choice = first_choice(arguments, settings);
    QString problem;
    if (arguments.device_name && !choice.device_name.empty() && !find_chosen_device(choice, problem))
        return fail(problem.isEmpty()
                        ? RUN_PREPARATION::tr("The device \"%1\" does not exist.").arg(*arguments.device_name)
                        : problem);
    PAGE_RENDERER renderer(arguments.render_directory);
    open_dialog(entry_point, nullptr, choice, options_for(choice, arguments));
    for (const QString& file : renderer.files())
        print(stdout, file);
    if (renderer.files().isEmpty() && renderer.problem().isEmpty())
        return fail(QStringLiteral("The module opened no dialog."));
    return renderer.problem().isEmpty() ? int(HOST_EXIT_OK) : fail(renderer.problem());
}

} // namespace

int run_host(ZUI_APP& app, const HOST_ARGUMENTS& arguments)
{
    const HOST_TRANSLATION translation(arguments.language,
                                       TEXT_CATALOGUE::installed_directories(QCoreApplication::applicationDirPath()),
                                       HOST_TRANSLATION::qt_directory());
    set_directories(app, arguments);

    MSG_O::set_reason_source(reason_of_message);
    QGuiApplication::setWindowIcon(program_icon());
    QGuiApplication::setDesktopFileName(QLatin1String(HOST_PROGRAM_NAME));

    QSettings settings(QStringLiteral("gfpq"), QLatin1String(HOST_PROGRAM_NAME));
    // Pictures do not depend on what somebody did to a window.
    KOVQ_DIALOG::set_settings(arguments.task == HOST_TASK::RENDER ? nullptr : &settings);
    const auto forget_settings = qScopeGuard([] { KOVQ_DIALOG::set_settings(nullptr); });
    MODULE_LOADER module = module_of(arguments);
    // The window shows it; a dialog of its own has no place for it.
    const std::string families_problem = dstr_get_problem();
    if (arguments.task != HOST_TASK::WINDOW && !families_problem.empty())
        return fail(QString::fromStdString(families_problem));
    switch (arguments.task) {
    case HOST_TASK::DIALOG:
        return run_dialog(module, arguments, settings);
    case HOST_TASK::RENDER:
        return run_render(module, arguments, settings);
    case HOST_TASK::WINDOW:
        break;
    }
    return run_window(module, arguments, settings);
}
