// SPDX-License-Identifier: MIT
#include "programmer/run_words.h"

#include "run/number_text.h"

#include <QFile>
#include <QLocale>

#include <algorithm>

namespace {

// As many ranges as a box can show.
constexpr std::size_t SHOWN_RANGES = 8;
constexpr int MS_DIGITS = 2;

QString phase_text(GFPE_PHASE phase)
{
    return QString::fromUtf8(gfpe_phase_name(phase));
}

QString failed_text(const RUN_OUTCOME& outcome)
{
    const std::optional<GFPE_FAILURE>& failure = outcome.result.failure;
    if (!failure)
        return RUN_WORDS::tr("Failed");
    const QString phase = phase_text(failure->phase);
    if (failure->action == 0)
        return RUN_WORDS::tr("Failed at %1").arg(phase);
    return RUN_WORDS::tr("Failed at %1, action %2 \"%3\"")
        .arg(phase, QString::number(failure->action), QString::fromStdString(failure->action_name));
}

QString lost_text(const RUN_OUTCOME& outcome)
{
    return outcome.was_stopped ? RUN_WORDS::tr("Stopped. The state of the chip is unknown.")
                               : RUN_WORDS::tr("The connection is lost. The state of the chip is unknown.");
}

RUN_WORDS::VERDICT passed_verdict(const RUN_OUTCOME& outcome)
{
    if (!outcome.problem.isEmpty())
        return {RUN_WORDS::tr("Passed, but not everything could be stored"), RUN_BAR::DOUBTFUL};
    if (!outcome.notes.isEmpty())
        return {RUN_WORDS::tr("Passed, but a real chip would have refused or misread commands: see the log"),
                RUN_BAR::DOUBTFUL};
    return {RUN_WORDS::tr("Passed"), RUN_BAR::GOOD};
}

QStringList operation_names(const GFPE_ORDER& order)
{
    QStringList names;
    const auto add = [&names](bool is_asked, GFPE_PHASE phase) {
        if (is_asked)
            names.append(phase_text(phase));
    };
    add(order.erase, GFPE_PHASE::ERASE);
    add(order.blank_check, GFPE_PHASE::BLANK_CHECK);
    add(order.program, GFPE_PHASE::PROGRAM);
    add(order.verify, GFPE_PHASE::VERIFY);
    add(order.examine, GFPE_PHASE::EXAMINE);
    return names;
}

} // namespace

RUN_WORDS::VERDICT RUN_WORDS::verdict(const RUN_OUTCOME& outcome)
{
    switch (outcome.result.verdict) {
    case GFPE_VERDICT::PASSED:
        return passed_verdict(outcome);
    case GFPE_VERDICT::FAILED:
        return {failed_text(outcome), RUN_BAR::BAD};
    case GFPE_VERDICT::CANCELLED:
        return {tr("Cancelled"), RUN_BAR::DOUBTFUL};
    case GFPE_VERDICT::LOST:
        return {lost_text(outcome), RUN_BAR::BAD};
    case GFPE_VERDICT::REFUSED:
        break;
    }
    return {tr("Not started: see the log"), RUN_BAR::BAD};
}

QStringList RUN_WORDS::start_lines(const RUN_REQUEST& request, bool is_trial)
{
    const GFPE_DEVICE& device = request.plan->get_device();
    const GFPE_RANGE range = request.order.range.value_or(GFPE_RANGE{0, device.bytes});
    const QString connection = QFile::decodeName(QByteArray::fromStdString(request.target.connection.to_text()));
    QString content = request.file;
    if (request.has_pattern)
        content = tr("a test pattern");
    QStringList lines{
        is_trial ? tr("Trying the flow of %1 on an emulated chip that is full of other data")
                       .arg(QString::fromStdString(device.name))
                 : tr("%1 on the connection %2").arg(QString::fromStdString(device.name), connection),
        QStringLiteral("%1: %2").arg(operation_names(request.order).join(QLatin1String(", ")), range_text(range))};
    if (!content.isEmpty())
        lines.append(tr("Content: %1").arg(content));
    return lines;
}

QStringList RUN_WORDS::end_lines(const RUN_OUTCOME& outcome)
{
    QStringList lines;
    for (const GFPE_PROBLEM& problem : outcome.result.problems)
        lines.append(QString::fromStdString(problem.to_text()));
    if (outcome.result.failure)
        lines.append(QString::fromStdString(outcome.result.failure->text));
    if (outcome.result.chip_is_unknown)
        lines.append(tr("Nothing more was sent, because this may be another chip than the device says."));
    if (!outcome.problem.isEmpty())
        lines.append(outcome.problem);
    for (const QString& note : outcome.notes)
        lines.append(tr("Note of the chip: %1").arg(note));
    lines.append(tr("%1 (%2 commands, %3 s)")
                     .arg(verdict(outcome).text, QString::number(outcome.result.commands),
                          QLocale().toString(outcome.seconds, 'f', MS_DIGITS)));
    return lines;
}

QString RUN_WORDS::erase_question(const std::vector<GFPE_RANGE>& erased_beside)
{
    QStringList ranges;
    for (std::size_t i = 0; i < std::min(erased_beside.size(), SHOWN_RANGES); ++i)
        ranges.append(range_text(erased_beside[i]));
    if (erased_beside.size() > SHOWN_RANGES)
        ranges.append(QStringLiteral("..."));
    return tr("Whole sectors are erased. These bytes beside the range are erased, too:\n\n%1\n\nErase them?")
        .arg(ranges.join(QLatin1Char('\n')));
}
