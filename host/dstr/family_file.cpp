// SPDX-License-Identifier: MIT
#include "family_file.h"

#include "csv/csv.h"
#include "dstr/dev_family.h"
#include "whole_file/whole_file.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTextCodec>

#include <algorithm>
#include <set>

namespace {

Q_LOGGING_CATEGORY(DSTR_LOG, "host.dstr")

constexpr int LAST_SCHEME = 25;
constexpr std::size_t LARGEST_FILE = std::size_t(1) << 20;
const std::vector<std::string> HEADING = {"value", "name", "schemes"};
const QByteArray BYTE_ORDER_MARK = QByteArrayLiteral("\xEF\xBB\xBF");

// One line is one row, so that a quote that is never closed costs its own line only.
CSV_ROW row_of(const QByteArray& line)
{
    const std::vector<CSV_ROW> rows = csv_rows(line.toStdString());
    return rows.empty() ? CSV_ROW() : rows.front();
}

bool says_nothing(const QByteArray& line)
{
    return line.isEmpty() || line.startsWith('#') || row_of(line).cells == HEADING;
}

QByteArray trimmed(const std::string& cell)
{
    return QByteArray::fromStdString(cell).trimmed();
}

// A name with commas need not be quoted: it is what is between the value and the schemes.
QByteArray name_of(const std::vector<std::string>& cells)
{
    std::string name = cells[1];
    for (std::size_t at = 2; at + 1 < cells.size(); ++at)
        name += ',' + cells[at];
    return trimmed(name);
}

bool is_utf8(const QByteArray& text)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

// Reads the lines of one file; remembers what they used, so that a value or a name that comes twice is noticed.
class LINE_READER
{
public:
    // The family of `line`, or null; then problem() says why.
    std::optional<FAMILY_ROW> read(const QByteArray& line);
    const char* problem() const { return m_problem; }

private:
    std::optional<FAMILY_ROW> refuse(const char* problem);

    std::set<int> m_values;
    std::set<QByteArray> m_names;
    const char* m_problem = "";
};

std::optional<FAMILY_ROW> LINE_READER::refuse(const char* problem)
{
    m_problem = problem;
    return std::nullopt;
}

// False when a word of `text` is not a scheme or was there before.
bool read_schemes(const QByteArray& text, std::vector<int>& schemes)
{
    const QByteArray words = text.simplified();
    if (words.isEmpty())
        return true;
    const QList<QByteArray> parts = words.split(' ');
    for (const QByteArray& word : parts) {
        bool is_number = false;
        const int scheme = word.toInt(&is_number);
        const bool is_repeated = std::find(schemes.begin(), schemes.end(), scheme) != schemes.end();
        if (!is_number || scheme < 0 || scheme > LAST_SCHEME || is_repeated)
            return false;
        schemes.push_back(scheme);
    }
    return true;
}

std::optional<FAMILY_ROW> LINE_READER::read(const QByteArray& line)
{
    const CSV_ROW cells_of_line = row_of(line);
    const std::vector<std::string>& cells = cells_of_line.cells;
    if (cells_of_line.quote_is_open)
        return refuse("a quote that opens in it is never closed");
    if (cells.size() < HEADING.size())
        return refuse("it is not value,name,schemes");
    if (!is_utf8(line))
        return refuse("it is not UTF-8");

    FAMILY_ROW row;
    bool is_number = false;
    row.value = trimmed(cells.front()).toInt(&is_number);
    if (!is_number || row.value < DEV_FAMILY_FIRST || row.value > DEV_FAMILY_LAST)
        return refuse("its value is not a number from 1 to 72");
    const QByteArray name = name_of(cells);
    if (name.isEmpty())
        return refuse("it has no name");
    if (!read_schemes(trimmed(cells.back()), row.schemes))
        return refuse("its schemes are not different numbers from 0 to 25 separated by blanks");

    if (m_values.count(row.value) > 0)
        return refuse("its value was used before");
    if (m_names.count(name) > 0)
        return refuse("its name was used before");
    m_values.insert(row.value);
    m_names.insert(name);
    row.name = name.toStdString();
    return row;
}

// None: `problem` says why.
std::optional<QByteArray> read_resource(const QString& file_name, QString& problem)
{
    QFile file(file_name);
    if (file.open(QIODevice::ReadOnly))
        return file.readAll();
    problem = file.errorString();
    return std::nullopt;
}

std::optional<QByteArray> read_regular_file(const QString& file_name, QString& problem)
{
    std::string why;
    const std::optional<std::string> content =
        read_whole_file(QFile::encodeName(file_name).toStdString(), LARGEST_FILE, why);
    if (content)
        return QByteArray::fromStdString(*content);
    problem = QString::fromLocal8Bit(why.c_str());
    return std::nullopt;
}

} // namespace

std::vector<FAMILY_ROW> parse_families(const QByteArray& content, const QString& file_name)
{
    const QByteArray text = content.startsWith(BYTE_ORDER_MARK) ? content.mid(BYTE_ORDER_MARK.size()) : content;
    const QList<QByteArray> lines = text.split('\n');

    std::vector<FAMILY_ROW> rows;
    LINE_READER reader;
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray line = lines[i].trimmed();
        if (says_nothing(line))
            continue;
        if (std::optional<FAMILY_ROW> row = reader.read(line))
            rows.push_back(*std::move(row));
        else
            qCWarning(DSTR_LOG, "%s, line %d is left out: %s", qUtf8Printable(file_name), i + 1, reader.problem());
    }
    return rows;
}

FAMILY_FILE read_family_file(const QString& file_name)
{
    QString problem;
    const std::optional<QByteArray> content = file_name.startsWith(QLatin1String(":/"))
                                                  ? read_resource(file_name, problem)
                                                  : read_regular_file(file_name, problem);
    if (!content)
        return {{}, QStringLiteral("%1 cannot be read: %2").arg(file_name, problem)};
    std::vector<FAMILY_ROW> rows = parse_families(*content, file_name);
    if (rows.empty())
        return {{}, QStringLiteral("%1 names no device family").arg(file_name)};
    return {std::move(rows), QString()};
}

std::vector<FAMILY_ROW> read_first_families(const std::vector<QString>& file_names, QString* first_problem)
{
    for (const QString& file_name : file_names) {
        FAMILY_FILE file = read_family_file(file_name);
        if (first_problem && &file_name == &file_names.front())
            *first_problem = file.problem;
        if (file.problem.isEmpty())
            return std::move(file.rows);
        qCWarning(DSTR_LOG, "%s", qUtf8Printable(file.problem));
    }
    return {};
}
