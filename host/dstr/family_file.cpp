// SPDX-License-Identifier: MIT
#include "family_file.h"

#include "csv/csv.h"
#include "dstr/dev_family.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTextCodec>

#include <algorithm>
#include <cerrno>
#include <set>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

Q_LOGGING_CATEGORY(DSTR_LOG, "host.dstr")

constexpr int LAST_SCHEME = 25;
constexpr int LARGEST_FILE = 1024 * 1024;
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

// A name with commas need not be quoted: it is what stands between the value and the schemes.
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

struct FILE_CONTENT
{
    QByteArray content;
    // Empty when the content is all of the file.
    QString problem;
};

FILE_CONTENT read_resource(const QString& file_name)
{
    QFile file(file_name);
    if (!file.open(QIODevice::ReadOnly))
        return {QByteArray(), file.errorString()};
    return {file.readAll(), QString()};
}

// What is open is looked at, not what the name led to before; opening waits for nobody.
FILE_CONTENT read_regular_file(const QString& file_name)
{
    const int descriptor =
        ::open(QFile::encodeName(file_name).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return {QByteArray(), qt_error_string(errno)};
    QFile file;
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) ||
        !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return {QByteArray(), QStringLiteral("it is not a regular file")};
    }
    // One byte more than may be there: the file's own word on its size is not asked.
    const QByteArray content = file.read(LARGEST_FILE + 1);
    if (file.error() != QFileDevice::NoError)
        return {QByteArray(), file.errorString()};
    if (content.size() > LARGEST_FILE)
        return {QByteArray(), QStringLiteral("it is larger than 1 MiB")};
    return {content, QString()};
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
    const FILE_CONTENT file =
        file_name.startsWith(QLatin1String(":/")) ? read_resource(file_name) : read_regular_file(file_name);
    if (!file.problem.isEmpty())
        return {{}, QStringLiteral("%1 cannot be read: %2").arg(file_name, file.problem)};
    std::vector<FAMILY_ROW> rows = parse_families(file.content, file_name);
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
