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

// The words as bash breaks them: at colons and equals signs, too, but not behind a quote.
QStringList broken_by_bash(const QStringList& words)
{
    static const QRegularExpression PART(QStringLiteral("[\"'].*|[:=]+|[^:=\"']+"));
    QStringList parts;
    for (const QString& word : words) {
        for (QRegularExpressionMatchIterator each = PART.globalMatch(word); each.hasNext();)
            parts += each.next().captured();
        if (word.isEmpty())
            parts += word;
    }
    return parts;
}

// The function of the completion, as bash calls it.
QString bash_script(const QString& completion, const QString& name, const QStringList& line)
{
    const QStringList words = broken_by_bash(line);
    QStringList quoted;
    for (QString word : words)
        quoted += QStringLiteral("'%1'").arg(word.replace(QLatin1String("'"), QLatin1String("'\\''")));
    return QStringLiteral("source '%1'; COMP_WORDS=('%2' %3); COMP_CWORD=%4; _%2; printf '%s\\n' \"${COMPREPLY[@]}\"")
        .arg(completion, name, quoted.join(QLatin1Char(' ')))
        .arg(words.size());
}

// The words alone: fish prints explanations behind tabs, zsh what its terminal shows.
QStringList offered_in(const QString& shell, const QString& text)
{
    QStringList offered;
    if (shell == QLatin1String("zsh")) {
        static const QRegularExpression WORD(QStringLiteral("<([^<>\r\n]+)>\r?\n"));
        for (QRegularExpressionMatchIterator each = WORD.globalMatch(text); each.hasNext();)
            offered += each.next().captured(1);
        return offered;
    }
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines)
        offered += line.section(QLatin1Char('\t'), 0, 0);
    return offered;
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

QStringList completed(const QString& shell, const char* program, const QStringList& words, const QString& directory)
{
    const QFileInfo tool(QString::fromUtf8(program));
    const QString name = tool.fileName();
    const QString completion = QStringLiteral(COMPLETION_DIR "/%1.%2").arg(name, shell);
    const QString line = name + QLatin1Char(' ') + words.join(QLatin1Char(' '));
    QStringList arguments;
    if (shell == QLatin1String("bash")) {
        arguments = QStringList{QStringLiteral("--norc"), QStringLiteral("-c"), bash_script(completion, name, words)};
    } else if (shell == QLatin1String("zsh")) {
        QFile::copy(completion, directory + QLatin1String("/_") + name);
        arguments = QStringList{QStringLiteral("-f"), QStringLiteral(ZSH_COMPLETION), directory, line};
    } else {
        arguments = QStringList{QStringLiteral("--no-config"), QStringLiteral("-c"),
                                QStringLiteral("source $argv[1]; complete -C $argv[2]"), completion, line};
    }
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"),
                       tool.path() + QLatin1Char(':') + environment.value(QStringLiteral("PATH")));
    environment.insert(QStringLiteral("HOME"), directory);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.start(shell, arguments);
    constexpr int LIMIT_MS = 120000;
    process.waitForFinished(LIMIT_MS);
    QStringList offered = offered_in(shell, QString::fromUtf8(process.readAllStandardOutput()));
    offered.removeDuplicates();
    offered.sort();
    return offered + QString::fromUtf8(process.readAllStandardError()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
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

QStringList lacking_in_completion(const char* program, const QStringList& commands, const QString& directory)
{
    QStringList lacking;
    for (const QString& command : commands) {
        const QStringList offered =
            completed(QStringLiteral("bash"), program, {command, QStringLiteral("--")}, directory);
        for (const QString& option : options_of(program, command)) {
            if (!offered.contains(option))
                lacking += command + QLatin1Char(' ') + option;
        }
    }
    return lacking;
}
