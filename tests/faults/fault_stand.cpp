// SPDX-License-Identifier: MIT
#include "fault_stand.h"

#include "child_process.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb_test.h"

#include <QDir>
#include <QDirIterator>
#include <QTest>

#include <cerrno>
#include <cstring>
#include <filesystem>

const char SETTINGS_FOR_FAULTS[] = "[database]\nbusy_timeout=10\n";
const char FAULT_TOLD_NOTHING[] = "(nothing)";

std::string all_records(const GFPDB_PLACE& /*the one that the settings name*/)
{
    GFPDB_MGR* manager = fresh_manager();
    std::string text = GFPDB_HELPER::get_database_problem() + '\n';
    for (const std::string& name : custom_names(*manager)) {
        const GFPDB_FLASH* record = manager->find_flash(name, true);
        text += record == nullptr ? name + " cannot be read\n" : text_of(*record);
    }
    return text;
}

namespace {

struct FAULT_KIND
{
    FAULT_CALL call;
    int error;
};
constexpr FAULT_KIND FAULT_KINDS[] = {
    {FAULT_CALL::READ, EIO},    {FAULT_CALL::WRITE, ENOSPC}, {FAULT_CALL::WRITE, EIO},     {FAULT_CALL::TRUNCATE, EIO},
    {FAULT_CALL::SYNC, ENOSPC}, {FAULT_CALL::SYNC, EIO},     {FAULT_CALL::RENAME, ENOSPC}, {FAULT_CALL::RENAME, EIO},
    {FAULT_CALL::OPEN, ENOSPC}, {FAULT_CALL::OPEN, EIO},     {FAULT_CALL::LOCK, ENOLCK},   {FAULT_CALL::LOCK, EIO},
};

QString described(const FAULT& fault)
{
    return QStringLiteral("%1 number %2 fails%3 (%4)")
        .arg(QLatin1String(name_of(fault.call)))
        .arg(fault.at)
        .arg(QLatin1String(fault.is_lasting ? " from then on" : ""), QLatin1String(std::strerror(fault.error)));
}

// How often the next process has called what, as a text and back.
std::string counts_text()
{
    QStringList counts;
    for (int call = 0; call < static_cast<int>(FAULT_CALL::COUNT); ++call)
        counts << QString::number(FAULT_INJECTOR::count(static_cast<FAULT_CALL>(call)));
    return counts.join(QLatin1Char(' ')).toStdString();
}

constexpr char RECOVERED[] = "recovered";
// How the library ends a refusal to change what another program has changed.
constexpr char LOOK_AGAIN[] = "Look at it again, or try again";

// What the library makes once for a process is made here, before the others are forked from this one. It leaves no file
// open: a database must not be used on both sides of a fork.
void warm_up()
{
    const GFPDB_PLACE elsewhere(GFPDB_PLACE::ON::MEMORY);
    GFPDB_MGR* manager = fresh_manager();
    if (!manager->save_flash(make_device(*manager, "A"), std::string()) || manager->find_flash("A", true) == nullptr)
        qFatal("%s", manager->get_last_error().c_str());
}

std::unique_ptr<GFPDB_PLACE> warm_place()
{
    warm_up();
    auto place = std::make_unique<GFPDB_PLACE>(GFPDB_PLACE::ON::MEMORY);
    fresh_manager();
    return place;
}

} // namespace

FAULT_STAND::FAULT_STAND(const FAULT_SCENE& scene)
    : m_scene(scene), m_place(warm_place()),
      m_kept(QString::fromStdString(m_place->path("")).chopped(1) + QLatin1String("-before-XXXXXX"))
{}

FAULT_STAND::~FAULT_STAND() = default;

QStringList FAULT_STAND::run()
{
    QStringList problems = {make_references()};
    if (!problems.first().isEmpty())
        return problems;
    problems.clear();
    for (const FAULT_KIND& kind : FAULT_KINDS) {
        for (int at = 1; at <= count(kind.call); ++at) {
            for (const bool is_lasting : {false, true}) {
                const FAULT fault = {kind.call, at, kind.error, is_lasting};
                const QString problem = check(fault);
                if (!problem.isEmpty())
                    problems << described(fault) + QLatin1String(": ") + problem;
            }
        }
    }
    return problems;
}

void FAULT_STAND::verify(std::initializer_list<FAULT_CALL> calls)
{
    const QStringList problems = run();

    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
    for (const FAULT_CALL call : calls)
        QVERIFY2(count(call) > 0, name_of(call));
    qInfo("%d faults", fault_count());
}

// The states before and after, and the calls on the way.
QString FAULT_STAND::make_references()
{
    in_child([this] {
        m_scene.prepare(*m_place);
        return std::string();
    });
    m_before = state_now();
    std::filesystem::copy(m_place->path(""), m_kept.path().toStdString(), std::filesystem::copy_options::recursive);
    std::string told;
    {
        CHILD_PROCESS child([this](CHILD_PROCESS& self) {
            m_scene.begin(*m_place);
            FAULT_INJECTOR::watch(m_place->path(""));
            self.say(m_scene.change(*m_place));
            FAULT_INJECTOR::stop();
            self.say(counts_text());
        });
        told = child.hear();
        const QStringList counts = QString::fromStdString(child.hear()).split(QLatin1Char(' '));
        for (std::size_t call = 0; call < m_counts.size(); ++call)
            m_counts[call] = counts.value(static_cast<int>(call)).toInt();
    }
    m_after = state_now();
    m_files_after = files_now();
    if (told.empty() && m_before != m_after && count(FAULT_CALL::WRITE) > 0)
        return QString();
    return QStringLiteral("without a fault: %1, %2 writes, before: %3, after: %4")
        .arg(QString::fromStdString(told))
        .arg(count(FAULT_CALL::WRITE))
        .arg(QString::fromStdString(m_before), QString::fromStdString(m_after));
}

QString FAULT_STAND::check(const FAULT& fault)
{
    ++m_fault_count;
    reset();
    CHILD_PROCESS child([this, &fault](CHILD_PROCESS& self) {
        m_scene.begin(*m_place);
        FAULT_INJECTOR::inject(m_place->path(""), fault);
        self.say(m_scene.change(*m_place));
        FAULT_INJECTOR::stop();
        const bool is_recovered = self.hear() == RECOVERED;
        std::string end = m_scene.change(*m_place);
        // What another program has brought back is asked about once.
        if (is_recovered && end.find(LOOK_AGAIN) != std::string::npos)
            end = m_scene.change(*m_place);
        self.say(end);
    });
    const std::string told = child.hear();
    bool is_recovered = false;
    const QString problem = check_state(fault, told, is_recovered);
    child.say(is_recovered ? RECOVERED : "go on");
    return problem + check_end(child.hear());
}

// `is_recovered` becomes true when another program had to bring back what was lost.
QString FAULT_STAND::check_state(const FAULT& fault, const std::string& told, bool& is_recovered) const
{
    if (told == FAULT_TOLD_NOTHING)
        return QStringLiteral("The change failed without a word. ");
    std::string state = state_now();
    if (state != m_after && told.empty())
        return QStringLiteral("The change was reported as made, but there is: ") + QString::fromStdString(state);
    if (state != m_after && state != m_before && fault.is_lasting && m_scene.recover) {
        state = recovered_state(told);
        is_recovered = true;
    }
    if (state != m_after && state != m_before)
        return QStringLiteral("Neither before nor after; told: %1; there is: %2")
            .arg(QString::fromStdString(told), QString::fromStdString(state));
    return QString();
}

std::string FAULT_STAND::recovered_state(const std::string& told) const
{
    in_child([&] {
        m_scene.recover(*m_place, told);
        return std::string();
    });
    return state_now();
}

// The same change was made again in the same process, without a fault.
QString FAULT_STAND::check_end(const std::string& told) const
{
    if (!told.empty())
        return QStringLiteral("The change fails also when the fault is over: ") + QString::fromStdString(told);
    const std::string state = state_now();
    if (state != m_after)
        return QStringLiteral("After the second try there is: ") + QString::fromStdString(state);
    if (files_now() != m_files_after)
        return QStringLiteral("There are other files: ") + files_now().join(QLatin1String(", "));
    return QString();
}

void FAULT_STAND::reset() const
{
    for (const auto& entry : std::filesystem::directory_iterator(m_place->path("")))
        std::filesystem::remove_all(entry);
    std::filesystem::copy(m_kept.path().toStdString(), m_place->path(""), std::filesystem::copy_options::recursive);
}

std::string FAULT_STAND::state_now() const
{
    return in_child([this] { return m_scene.state(*m_place); });
}

QStringList FAULT_STAND::files_now() const
{
    QStringList files;
    for (QDirIterator entries(QString::fromStdString(m_place->path("")),
                              QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
         entries.hasNext();)
        files << entries.next();
    files.sort();
    return files;
}
