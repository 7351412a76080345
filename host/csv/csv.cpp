// SPDX-License-Identifier: MIT
#include "csv/csv.h"

namespace {

constexpr const char* BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::size_t BYTE_ORDER_MARK_SIZE = 3;

// Splits a text into cells, one character at a time.
class CSV_SPLITTER
{
public:
    explicit CSV_SPLITTER(char separator) : m_separator(separator) {}

    std::vector<CSV_ROW> split(const std::string& text)
    {
        for (std::size_t at = text.rfind(BYTE_ORDER_MARK, 0) == 0 ? BYTE_ORDER_MARK_SIZE : 0; at < text.size(); ++at) {
            if (m_quoted)
                take_quoted(text, at);
            else
                take_plain(text[at]);
            if (text[at] == '\n')
                ++m_line;
        }
        end_row();
        return std::move(m_rows);
    }

private:
    void take_quoted(const std::string& text, std::size_t& at)
    {
        if (text[at] != '"')
            m_cell += text[at];
        else if (at + 1 < text.size() && text[at + 1] == '"')
            m_cell += text[++at];
        else
            end_quote();
    }

    void end_quote()
    {
        m_quoted = false;
        m_quoted_size = m_cell.size();
    }

    void take_plain(char character)
    {
        if (character == '"' && m_cell.empty())
            m_quoted = true;
        else if (character == m_separator)
            end_cell();
        else if (character == '\n')
            end_row();
        else
            m_cell += character;
    }

    void end_cell()
    {
        m_row.cells.push_back(m_cell);
        m_cell.clear();
        m_quoted_size = 0;
    }

    // A carriage return at the end belongs to the line break, unless it is in quotes.
    void end_row()
    {
        if (!m_quoted && m_cell.size() > m_quoted_size && m_cell.back() == '\r')
            m_cell.pop_back();
        if (!m_row.cells.empty() || !m_cell.empty()) {
            end_cell();
            m_row.line = m_row_line;
            m_row.quote_is_open = m_quoted;
            m_rows.push_back(m_row);
        }
        m_row = CSV_ROW();
        m_row_line = m_line + 1;
    }

    const char m_separator;
    std::vector<CSV_ROW> m_rows;
    CSV_ROW m_row;
    std::string m_cell;
    // So much of the cell stood in quotes.
    std::size_t m_quoted_size = 0;
    bool m_quoted = false;
    int m_line = 1;
    int m_row_line = 1;
};

} // namespace

std::vector<CSV_ROW> csv_rows(const std::string& text, char separator)
{
    return CSV_SPLITTER(separator).split(text);
}

char csv_named_separator(const std::string& text)
{
    const std::string beginning = "sep=";
    const std::size_t at = text.rfind(BYTE_ORDER_MARK, 0) == 0 ? BYTE_ORDER_MARK_SIZE : 0;
    const std::size_t separator = at + beginning.size();
    if (text.compare(at, beginning.size(), beginning) != 0 || separator >= text.size() ||
        std::string("\"\r\n").find(text[separator]) != std::string::npos)
        return 0;
    const std::string rest = text.substr(separator + 1, 2);
    return rest.empty() || rest[0] == '\n' || rest == "\r\n" ? text[separator] : 0;
}

char csv_separator(const std::string& text)
{
    if (const char named = csv_named_separator(text))
        return named;
    std::string first;
    bool is_quoted = false;
    for (const char character : text) {
        if (character == '\n' && !is_quoted)
            break;
        is_quoted = is_quoted != (character == '"');
        if (!is_quoted)
            first += character;
    }
    for (const char separator : {',', ';', '\t'}) {
        if (first.find(separator) != std::string::npos)
            return separator;
    }
    return ',';
}

// Some spreadsheets take it for a formula behind blanks as well, and some begin a cell at other characters than a
// comma, quotes or not.
std::string csv_spreadsheet_text(const std::string& text)
{
    static const std::string FORMULA = "=+-@";
    static const std::string CELL_BEGIN = ";|\t\r\n";
    static const std::string BLANK = " \"";
    std::string shown;
    bool is_begin = true;
    for (const char character : text) {
        if (is_begin && FORMULA.find(character) != std::string::npos)
            shown += '\'';
        shown += character;
        is_begin =
            CELL_BEGIN.find(character) != std::string::npos || (is_begin && BLANK.find(character) != std::string::npos);
    }
    return shown;
}

std::string csv_cell(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string cell = "\"";
    for (const char character : text) {
        cell += character;
        if (character == '"')
            cell += '"';
    }
    return cell + '"';
}

std::string csv_line(const std::vector<std::string>& cells)
{
    std::string line;
    for (std::size_t at = 0; at < cells.size(); ++at) {
        if (at > 0)
            line += ',';
        line += csv_cell(cells[at]);
    }
    return line + '\n';
}
