// SPDX-License-Identifier: MIT
#include "bench_harness.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QTextStream>

#include <algorithm>

namespace {

double run_ms(const std::function<void()>& prepare, const std::function<void()>& timed)
{
    if (prepare)
        prepare();
    QElapsedTimer timer;
    timer.start();
    timed();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2.0;
}

QString cell(const QJsonObject& row, const char* key)
{
    const QJsonValue value = row.value(QLatin1String(key));
    return value.isDouble() ? QString::number(value.toDouble(), 'f', 3) : QString();
}

QString verdict(const QJsonObject& row)
{
    const double goal = row.value(QLatin1String("goal")).toDouble();
    if (goal <= 0)
        return QString();
    return row.value(QLatin1String("ratio")).toDouble() <= goal ? QStringLiteral("met") : QStringLiteral("MISSED");
}

} // namespace

BENCH_HARNESS::BENCH_HARNESS()
{
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({QStringLiteral("json"), QStringLiteral("Write the rows to <file>."), QStringLiteral("file")});
    parser.addOption({QStringLiteral("rounds"), QStringLiteral("Rounds for each row."), QStringLiteral("number"),
                      QString::number(m_rounds)});
    parser.process(*QCoreApplication::instance());
    m_json_file = parser.value(QStringLiteral("json"));
    m_rounds = std::max(1, parser.value(QStringLiteral("rounds")).toInt());
}

void BENCH_HARNESS::compare(const QString& row, double goal, const std::function<void()>& floor,
                            const std::function<void()>& operation, const std::function<void()>& prepare)
{
    std::vector<double> floors;
    std::vector<double> operations;
    std::vector<double> ratios;
    run_ms(prepare, floor);
    run_ms(prepare, operation);
    for (int round = 0; round < m_rounds; ++round) {
        const bool floor_first = round % 2 == 0;
        const double first = run_ms(prepare, floor_first ? floor : operation);
        const double second = run_ms(prepare, floor_first ? operation : floor);
        floors.push_back(floor_first ? first : second);
        operations.push_back(floor_first ? second : first);
        ratios.push_back(operations.back() / floors.back());
    }
    m_rows.append(QJsonObject{{QStringLiteral("row"), row},
                              {QStringLiteral("floor_ms"), median(floors)},
                              {QStringLiteral("ours_ms"), median(operations)},
                              {QStringLiteral("ratio"), median(ratios)},
                              {QStringLiteral("goal"), goal}});
}

void BENCH_HARNESS::figure(const QString& row, double value, const QString& unit)
{
    m_rows.append(
        QJsonObject{{QStringLiteral("row"), row}, {QStringLiteral("value"), value}, {QStringLiteral("unit"), unit}});
}

double BENCH_HARNESS::median_ms(const std::function<void()>& operation, const std::function<void()>& prepare) const
{
    std::vector<double> times;
    run_ms(prepare, operation);
    for (int round = 0; round < m_rounds; ++round)
        times.push_back(run_ms(prepare, operation));
    return median(times);
}

int BENCH_HARNESS::finish() const
{
    QTextStream out(stdout);
    out << QStringLiteral("%1 %2 %3 %4 %5\n")
               .arg(QStringLiteral("row"), -64)
               .arg(QStringLiteral("floor ms"), 12)
               .arg(QStringLiteral("ours ms"), 12)
               .arg(QStringLiteral("ratio"), 8)
               .arg(QStringLiteral("goal"), 8);
    for (const QJsonValue& value : m_rows) {
        const QJsonObject row = value.toObject();
        const QString name = row.value(QLatin1String("row")).toString();
        if (row.contains(QLatin1String("unit")))
            out << QStringLiteral("%1 %2 %3\n")
                       .arg(name, -64)
                       .arg(cell(row, "value"), 12)
                       .arg(row.value(QLatin1String("unit")).toString());
        else
            out << QStringLiteral("%1 %2 %3 %4 %5 %6\n")
                       .arg(name, -64)
                       .arg(cell(row, "floor_ms"), 12)
                       .arg(cell(row, "ours_ms"), 12)
                       .arg(cell(row, "ratio"), 8)
                       .arg(cell(row, "goal"), 8)
                       .arg(verdict(row));
    }
    if (m_json_file.isEmpty())
        return 0;
    QSaveFile file(m_json_file);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(m_rows).toJson()) < 0 || !file.commit()) {
        QTextStream(stderr) << QStringLiteral("%1: %2\n").arg(m_json_file, file.errorString());
        return 1;
    }
    return 0;
}
