// SPDX-License-Identifier: MIT
#include "tool_runs.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <vector>

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QStringList options_of(const char* program, const QString& command)
{
    const QString help = QString::fromUtf8(run_program(program, {command, QStringLiteral("--help")}).out);
    const QRegularExpression option(QStringLiteral("\n  (?:-., )?(--[a-z-]+)"));
    QStringList options;
    for (QRegularExpressionMatchIterator each = option.globalMatch(help); each.hasNext();)
        options += each.next().captured(1);
    return options;
}

} // namespace

TOOL_RUN run_program(const char* program, const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.start(QString::fromUtf8(program), arguments);
    process.write(input);
    process.closeWriteChannel();
    constexpr int LIMIT_MS = 120000;
    if (!process.waitForFinished(LIMIT_MS) || process.exitStatus() != QProcess::NormalExit)
        return {-1, "the program did not end in order", process.readAllStandardError()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QByteArray run_on_terminal(const char* program, const QStringList& arguments)
{
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        std::vector<QByteArray> texts = {program};
        for (const QString& argument : arguments)
            texts.push_back(argument.toUtf8());
        std::vector<char*> pointers;
        for (QByteArray& text : texts)
            pointers.push_back(text.data());
        pointers.push_back(nullptr);
        ::execv(program, pointers.data());
        ::_exit(127);
    }
    QByteArray shown;
    char buffer[4096];
    for (ssize_t length = 0; (length = ::read(terminal, buffer, sizeof buffer)) > 0;)
        shown.append(buffer, static_cast<int>(length));
    ::close(terminal);
    ::waitpid(child, nullptr, 0);
    return shown;
}

QStringList completed(const char* program, const QString& completion, const QStringList& words,
                      const QString& directory)
{
    QStringList quoted;
    for (const QString& word : words)
        quoted += QStringLiteral("'%1'").arg(word);
    const QString name = QFileInfo(QString::fromUtf8(program)).fileName();
    const QString script =
        QStringLiteral("source '%1'; COMP_WORDS=('%2' %3); COMP_CWORD=%4; _%5; printf '%s\\n' \"${COMPREPLY[@]}\"")
            .arg(completion, QString::fromUtf8(program), quoted.join(QLatin1Char(' ')))
            .arg(words.size())
            .arg(name);
    QProcess bash;
    bash.setWorkingDirectory(directory);
    bash.start(QStringLiteral("bash"), {QStringLiteral("--norc"), QStringLiteral("-c"), script});
    bash.waitForFinished();
    const auto lines = [](const QByteArray& text) {
        return QString::fromUtf8(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    };
    QStringList offered = lines(bash.readAllStandardOutput());
    offered.sort();
    return offered + lines(bash.readAllStandardError());
}

QStringList lacking_in_man_page(const char* program, const QByteArray& page, const QStringList& commands,
                                int last_exit_code)
{
    QByteArray plain = page;
    plain.replace("\\-", "-");
    QStringList lacking;
    const auto look_for = [&plain, &lacking](const QByteArray& text) {
        if (!plain.contains(text))
            lacking += QString::fromUtf8(text);
    };
    for (const QString& command : commands) {
        if (!plain.contains("\n.BR " + command.toUtf8() + " ") && !plain.contains("\n.BI " + command.toUtf8()))
            lacking += command;
        for (const QString& option : options_of(program, command)) {
            if (option != QLatin1String("--output"))
                look_for(option.toUtf8());
        }
    }
    for (int code = 0; code <= last_exit_code; ++code)
        look_for(".TP\n.B " + QByteArray::number(code) + "\n");
    look_for(run_program(program, {QStringLiteral("--version")}).out.trimmed());
    return lacking;
}

QStringList lacking_in_completion(const char* program, const QString& completion, const QStringList& commands,
                                  const QString& directory)
{
    QStringList lacking;
    for (const QString& command : commands) {
        const QStringList offered = completed(program, completion, {command, QStringLiteral("--")}, directory);
        for (const QString& option : options_of(program, command)) {
            if (!offered.contains(option))
                lacking += command + QLatin1Char(' ') + option;
        }
    }
    return lacking;
}
