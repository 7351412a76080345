// SPDX-License-Identifier: MIT
#include "probe.h"

#include <QProcess>

QString probe_program()
{
    return QStringLiteral(HOST_PROBE_PROGRAM);
}

PROBE_RESULT run_probe(const QStringList& arguments, const QMap<QString, QString>& environment, const QString& program)
{
    QProcessEnvironment child_environment = QProcessEnvironment::systemEnvironment();
    for (auto variable = environment.begin(); variable != environment.end(); ++variable) {
        if (variable.value().isNull())
            child_environment.remove(variable.key());
        else
            child_environment.insert(variable.key(), variable.value());
    }
    QProcess process;
    process.setProcessEnvironment(child_environment);
    process.start(program, arguments);

    PROBE_RESULT result;
    result.ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    result.exit_code = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.log = process.readAllStandardError();
    return result;
}
