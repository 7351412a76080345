// SPDX-License-Identifier: MIT
#include "cli_complete.h"

#include "cli_find.h"
#include "cli_place.h"
#include "cli_records.h"

#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_enums.h"
#include "gfpdb/gfpdb_text.h"

#include "dstr/dstr.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

// So many states of the history are offered.
constexpr int MOST_STATES = 200;

class COMPLETION
{
public:
    COMPLETION(const CLI_PROGRAM& program, const QStringList& words)
        : m_program(program), m_words(words), m_current(words.isEmpty() ? QString() : words.last())
    {}

    std::string answer()
    {
        if (m_words.size() <= 1)
            add_commands(true);
        else if (m_words.first() == QLatin1String("help"))
            add_commands(false);
        else if (const CLI_COMMAND* const command = cli_find_command(m_program, m_words.first()))
            add_of(*command);
        return m_paths + '\n' + m_lines;
    }

private:
    void add(const std::string& word, const std::string& text = std::string())
    {
        const bool has_control = word.find_first_of("\t\n\r") != std::string::npos;
        if (!has_control && gfpdb_name_key(word).rfind(gfpdb_name_key(gfpdb_to_utf8(m_current)), 0) == 0)
            m_lines += gfpdb_to_utf8(m_option) + word + '\t' + cli_printable(text) + '\n';
    }

    void add_commands(bool with_options)
    {
        for (const CLI_COMMAND& command : m_program.commands)
            add(command.name, command.summary);
        add("help", "Explain a command");
        if (with_options) {
            add("--help", "List the commands");
            add("--version", "Print the version");
        }
    }

    void add_of(const CLI_COMMAND& command)
    {
        const CLI_OPTIONS options = cli_options(command);
        QCommandLineParser parser;
        cli_add_options(parser, options);
        // What is incomplete here is what is being written.
        parser.parse(m_words.mid(0, m_words.size() - 1));
        const bool is_value = split_current();
        const QString before = is_value ? m_option.chopped(1) : m_words[m_words.size() - 2];
        for (const CLI_OPTION& option : options) {
            const bool is_before = before == QLatin1String("--") + QLatin1String(option.name) ||
                                   (*option.letter != 0 && before == QLatin1Char('-') + QLatin1String(option.letter));
            if (is_before && *option.value != 0)
                return add_values(command, parser, option.value);
        }
        if (is_value)
            return;
        if (!are_options_over() && m_current.startsWith(QLatin1Char('-'))) {
            for (const CLI_OPTION& option : options)
                add(std::string("--") + option.name, option.text);
            return;
        }
        // "[NAME...]" stands for any number of them.
        const QStringList places = QString::fromLatin1(command.arguments).split(QLatin1Char(' '));
        const int index = parser.positionalArguments().size();
        QString place = places.value(index);
        if (place.isEmpty() && places.last().contains(QLatin1String("...")))
            place = places.last();
        const QStringList words = place.remove(QRegularExpression(QStringLiteral("[][.]"))).split(QLatin1Char('|'));
        if (words.size() == 1)
            return add_values(command, parser, gfpdb_to_utf8(place));
        // "sql|init|status" stands for these words.
        for (const QString& word : words)
            add(gfpdb_to_utf8(word));
    }

    // Behind "--" there are names alone.
    bool are_options_over() const { return m_words.mid(0, m_words.size() - 1).contains(QLatin1String("--")); }

    // "--kind=dev" is an option and the beginning of its value. False for any other word.
    bool split_current()
    {
        static const QRegularExpression WITH_VALUE(QStringLiteral("\\A(--[a-z-]+=)(.*)\\z"),
                                                   QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = WITH_VALUE.match(m_current);
        if (are_options_over() || !match.hasMatch())
            return false;
        m_option = match.captured(1);
        m_current = match.captured(2);
        return true;
    }

    // What `value` stands for, the name of a value in the help.
    void add_values(const CLI_COMMAND& command, const QCommandLineParser& parser, const std::string& value)
    {
        if (command.choices != nullptr) {
            for (const std::string& choice : command.choices(value))
                add(choice);
        }
        if (value == "family")
            add_families();
        else if (value == "scheme")
            add_schemes();
        else if (value == "file" || value == "FILE")
            m_paths = "files";
        else if (value == "directory" || value == "DIRECTORY" || value == "folder")
            m_paths = "directories";
        else if (value == "NAME" || value == "SOURCE")
            add_records_or_states(command, parser);
        else if (value == "device" || value == "PART")
            add_records(command, parser);
        else if (value == "ID")
            add_states(parser, std::string());
        else if (value == "LEFT" || value == "RIGHT")
            add_sides(command, parser);
        else if (value == "maker")
            add_makers();
    }

    void add_families()
    {
        for (int family = DEV_FAMILY_FIRST; family <= DEV_FAMILY_LAST; ++family)
            add(dstr_get_user_string(family), std::to_string(family));
    }

    void add_schemes()
    {
        for (const int scheme : cli_schemes())
            add(cli_scheme_name(scheme), std::to_string(scheme));
    }

    void add_makers()
    {
        for (const std::string& maker : gfpdb_makers())
            add(maker);
    }

    static GFPDB_DATABASE database(const QCommandLineParser& parser)
    {
        return GFPDB_DATABASE(QFile::encodeName(parser.value(QLatin1String(CLI_OPTION_DIR))).toStdString());
    }

    void add_records(const CLI_COMMAND& command, const QCommandLineParser& parser)
    {
        GFPDB_DATABASE of_call = database(parser);
        const std::vector<GFPDB_RECORD> stored = of_call.find_stored({});
        for (const GFPDB_RECORD& record : of_call.get_last_error().empty() ? stored : std::vector<GFPDB_RECORD>())
            add(record.name(), CLI_LISTED{record, false}.kind());
        if (!command.takes_builtin)
            return;
        for (const GFPDB_RECORD& record : of_call.find_builtin({}))
            add(record.name(), CLI_LISTED{record, true}.kind());
    }

    void add_records_or_states(const CLI_COMMAND& command, const QCommandLineParser& parser)
    {
        add_records(command, parser);
        // There may be very many: only who begins to write it means a state.
        const std::string prefix = CLI_HISTORY_PREFIX;
        if (command.takes_builtin && !m_current.isEmpty() &&
            prefix.rfind(gfpdb_to_utf8(m_current).substr(0, prefix.size()), 0) == 0)
            add_states(parser, prefix);
    }

    // The newest of those whose numbers begin as it is written; of a very large history, not all are read.
    void add_states(const QCommandLineParser& parser, const std::string& prefix)
    {
        GFPDB_DATABASE of_call = database(parser);
        const std::string written = gfpdb_to_utf8(m_current);
        const std::string digits = written.substr(std::min(prefix.size(), written.size()));
        std::vector<GFPDB_HISTORY_ENTRY> found = of_call.find_history_page({}, std::nullopt, MOST_STATES).entries;
        if (!digits.empty() && !found.empty())
            found = states_from(of_call, cli_history_id(digits).value_or(0), found.front().id);
        for (const GFPDB_HISTORY_ENTRY& entry : found)
            add(prefix + std::to_string(entry.id), entry.name() + ", " + entry.reason + ' ' + entry.changed_at);
    }

    // 12, 120 to 129, 1200 to 1299 and so on, up to `newest`, for 12: the newest of these.
    static std::vector<GFPDB_HISTORY_ENTRY> states_from(GFPDB_DATABASE& of_call, std::int64_t first,
                                                        std::int64_t newest)
    {
        constexpr int BASE = 10;
        std::vector<std::pair<std::int64_t, std::int64_t>> ranges;
        std::int64_t last = first;
        for (std::int64_t low = first; low > 0 && low <= newest; low *= BASE) {
            ranges.emplace_back(low, std::min(last, newest));
            if (low > newest / BASE)
                break;
            last = last > newest / BASE ? newest : last * BASE + BASE - 1;
        }
        std::vector<GFPDB_HISTORY_ENTRY> found;
        for (auto range = ranges.crbegin(); range != ranges.crend(); ++range) {
            const int count = MOST_STATES - static_cast<int>(found.size());
            const auto before = range->second < newest ? std::optional<std::int64_t>(range->second + 1) : std::nullopt;
            const auto states =
                count > 0 ? of_call.find_history_page({}, before, count).entries : std::vector<GFPDB_HISTORY_ENTRY>();
            std::copy_if(states.cbegin(), states.cend(), std::back_inserter(found),
                         [range](const GFPDB_HISTORY_ENTRY& state) { return state.id >= range->first; });
        }
        return found;
    }

    void add_sides(const CLI_COMMAND& command, const QCommandLineParser& parser)
    {
        m_paths = "files";
        add_records_or_states(command, parser);
    }

    const CLI_PROGRAM& m_program;
    const QStringList m_words;
    // The word that is being written, and, before a value that it has, "--kind=".
    QString m_current;
    QString m_option;
    std::string m_paths = "-";
    std::string m_lines;
};

} // namespace

std::string cli_complete(const CLI_PROGRAM& program, const QStringList& words)
{
    GFPDB_DATABASE::only_look();
    return COMPLETION(program, words).answer();
}
