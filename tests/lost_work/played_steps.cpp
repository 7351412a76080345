// SPDX-License-Identifier: MIT
#include "lost_work_test.h"

#include <QRegularExpression>

#include <functional>

namespace {

const char* edit_of(const QString& field)
{
    static const QMap<QString, const char*> edits = {{qs("name"), "m_device_name_edit"},
                                                     {qs("id"), "m_device_id_edit"},
                                                     {qs("dies"), "m_total_die_edit"},
                                                     {qs("template"), "m_template_name_edit"},
                                                     {qs("filter"), "m_filter_line_edit"}};
    return edits.value(field, "an unknown field");
}

} // namespace

void LOST_WORK_TEST::play(const QString& steps)
{
    for (const QString& step : steps.split(qs("; "))) {
        play_step(step);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(qs("in the step \"%1\"").arg(step)));
    }
}

void LOST_WORK_TEST::play_step(const QString& step)
{
    static const QRegularExpression typing(qs("^(\\w+) =(?: (.*))?$"));
    static const QRegularExpression look(qs("^(.*) is(?: (.*))?$"));
    if (const QRegularExpressionMatch typed = typing.match(step); typed.hasMatch())
        type(edit_of(typed.captured(1)), typed.captured(2));
    else if (act(step.section(QLatin1Char(' '), 0, 0), step.section(QLatin1Char(' '), 1)))
        return;
    else if (const QRegularExpressionMatch seen = look.match(step); seen.hasMatch())
        QCOMPARE(seen_of(seen.captured(1)), seen.captured(2));
    else
        QFAIL("not a step");
}

bool LOST_WORK_TEST::act(const QString& verb, const QString& rest)
{
    const QStringList parts = rest.split(qs(", "));
    const auto button = [&](const char* name) {
        return [this, rest, name] { do_and_read(rest, [this, name] { click(name); }); };
    };
    const QMap<QString, std::function<void()>> acts = {
        {qs("store"), [&] { store(parts[0].toStdString(), parts.value(1, qs("0xC2 0x20 0x19")).toStdString()); }},
        {qs("open"), [&] { open(rest.toStdString()); }},
        {qs("row"), [&] { click_row(rest); }},
        {qs("select"), [&] { select_only(rest); }},
        {qs("focus"), [&] { table().setFocus(); }},
        {qs("save_as"),
         [&] {
             part<QCheckBox>("m_save_template_check").setChecked(true);
             type("m_template_name_edit", rest);
         }},
        {qs("apply"), button("m_apply_button")},
        {qs("ok"), button("m_ok_button")},
        {qs("delete"), button("m_delete_button")},
        {qs("return"),
         [&] { do_and_read(rest, [&] { QTest::keyClick(&part("m_device_name_edit"), Qt::Key_Return); }); }},
        {qs("lock"), [&] { lock(rest); }},
        {qs("unlock"), [&] { unlock(); }},
        {qs("sql"), [&] { run_foreign(rest); }},
    };
    if (!acts.contains(verb))
        return false;
    acts[verb]();
    return true;
}

void LOST_WORK_TEST::do_and_read(const QString& rest, const std::function<void()>& deed)
{
    const QString says = qs("says ");
    if (!rest.startsWith(says)) {
        deed();
        return;
    }
    m_modals.expect(MODAL_DRIVER::accept());
    deed();
    const QString told = m_modals.met().isEmpty() ? QString() : m_modals.last().text;
    for (const QString& part : rest.mid(says.size()).split(qs(", ")))
        QVERIFY2(told.contains(part), qPrintable(told));
}

QString LOST_WORK_TEST::seen_of(const QString& subject) const
{
    const QMap<QString, std::function<QString()>> subjects = {
        {qs("current"), [this] { return current_row(); }},
        {qs("selected"), [this] { return selected_row(); }},
        {qs("rows"), [this] { return shown_rows().join(qs(", ")); }},
        {qs("devices"), [this] { return stored_names().join(qs(", ")); }},
        {qs("history"), [this] { return history().join(qs(", ")); }},
        {qs("dialog"), [this] { return dlg().isVisible() ? qs("open") : qs("closed"); }},
        {qs("result"), [this] { return QString::fromStdString(dlg().device_name()); }},
        {qs("Delete"), [this] { return part("m_delete_button").isEnabled() ? qs("enabled") : qs("disabled"); }},
    };
    const QString of = qs(" of ");
    if (subject.startsWith(qs("rows of ")))
        return QString::number(shown_rows().count(subject.section(of, 1)));
    if (subject.contains(of))
        return stored(subject.section(of, 1), subject.section(of, 0, 0).toLatin1().constData());
    return subjects.contains(subject) ? subjects[subject]() : text(edit_of(subject));
}

void LOST_WORK_TEST::select_only(const QString& name)
{
    const QModelIndex index = table().model()->index(shown_rows().indexOf(name), 0);
    QVERIFY(index.isValid());
    table().selectionModel()->select(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}
