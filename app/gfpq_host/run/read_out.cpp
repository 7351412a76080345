// SPDX-License-Identifier: MIT
#include "run/read_out.h"

#include <QDir>
#include <QSaveFile>

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t PIECE = std::size_t{1} << 20;
constexpr std::uint8_t BLANK = 0xFF;

QString temporary_name()
{
    return QDir::temp().filePath(QStringLiteral("gfpq_host-XXXXXX.bin"));
}

std::vector<std::uint8_t> read_from(QFile& file, std::int64_t place, std::size_t length)
{
    std::vector<std::uint8_t> bytes(length);
    qint64 count = 0;
    if (place >= 0 && file.seek(place))
        count = file.read(reinterpret_cast<char*>(bytes.data()), static_cast<qint64>(length));
    bytes.resize(static_cast<std::size_t>(std::max<qint64>(count, 0)));
    return bytes;
}

} // namespace

READ_OUT::READ_OUT() : m_file(temporary_name()), m_expected(temporary_name()) {}

void READ_OUT::compare_with(GFPE_IMAGE* image)
{
    m_image = image;
    m_is_compared = image != nullptr;
}

bool READ_OUT::add(std::int64_t position, const std::uint8_t* bytes, std::size_t length)
{
    if (!m_file.isOpen()) {
        m_range.start = position;
        if (!m_file.open()) {
            m_problem = m_file.errorString();
            return false;
        }
    }
    const auto size = static_cast<qint64>(length);
    if (m_file.write(reinterpret_cast<const char*>(bytes), size) != size) {
        m_problem = m_file.errorString();
        return false;
    }
    m_range.length += size;
    return m_image == nullptr || compare(position, bytes, length);
}

// Where the image has no bytes FF is expected.
bool READ_OUT::compare(std::int64_t position, const std::uint8_t* bytes, std::size_t length)
{
    m_compared.assign(length, BLANK);
    const GFPE_RANGE image = m_image->get_range();
    const std::int64_t start = std::max(position, image.start);
    const std::int64_t end = std::min(position + static_cast<std::int64_t>(length), image.end());
    std::string problem;
    if (start < end && !m_image->read(start, &m_compared[static_cast<std::size_t>(start - position)],
                                      static_cast<std::size_t>(end - start), problem)) {
        m_problem = QString::fromStdString(problem);
        return false;
    }
    if (std::memcmp(bytes, m_compared.data(), length) == 0)
        return true;
    for (std::size_t i = 0; i < length; ++i) {
        if (bytes[i] != m_compared[i])
            note_difference(position + static_cast<std::int64_t>(i));
    }
    return keep_expected(position);
}

// What was compared last, at `position`.
bool READ_OUT::keep_expected(std::int64_t position)
{
    const auto size = static_cast<qint64>(m_compared.size());
    const bool is_kept = (m_expected.isOpen() || m_expected.open()) && m_expected.seek(position - m_range.start) &&
                         m_expected.write(reinterpret_cast<const char*>(m_compared.data()), size) == size;
    if (!is_kept)
        m_problem = m_expected.errorString();
    else if (!m_expected_ranges.empty() && m_expected_ranges.back().end() == position)
        m_expected_ranges.back().length += size;
    else
        m_expected_ranges.push_back({position, size});
    return is_kept;
}

void READ_OUT::note_difference(std::int64_t position)
{
    ++m_different_bytes;
    if (!m_differences.empty() && m_differences.back().end() == position)
        ++m_differences.back().length;
    else if (m_differences.size() < MOST_DIFFERENCES)
        m_differences.push_back({position, 1});
}

void READ_OUT::finish()
{
    m_image = nullptr;
    for (QTemporaryFile* file : {&m_file, &m_expected}) {
        if (file->isOpen())
            file->flush();
    }
}

std::vector<std::uint8_t> READ_OUT::read(std::int64_t position, std::size_t length)
{
    return read_from(m_file, position - m_range.start, length);
}

// What is not kept is as it was read.
std::vector<std::uint8_t> READ_OUT::read_expected(std::int64_t position, std::size_t length)
{
    if (!is_compared())
        return {};
    std::vector<std::uint8_t> bytes = read(position, length);
    const GFPE_RANGE asked{position, static_cast<std::int64_t>(bytes.size())};
    const auto ends_before = [](const GFPE_RANGE& kept, std::int64_t start) { return kept.end() <= start; };
    auto kept = std::lower_bound(m_expected_ranges.begin(), m_expected_ranges.end(), position, ends_before);
    for (; kept != m_expected_ranges.end() && kept->start < asked.end(); ++kept) {
        const GFPE_RANGE part = kept->common_with(asked);
        const std::vector<std::uint8_t> expected =
            read_from(m_expected, part.start - m_range.start, static_cast<std::size_t>(part.length));
        std::copy(expected.begin(), expected.end(), bytes.begin() + static_cast<std::ptrdiff_t>(part.start - position));
    }
    return bytes;
}

bool READ_OUT::save(const QString& file)
{
    QSaveFile target(file);
    bool is_right = target.open(QIODevice::WriteOnly);
    for (std::int64_t position = m_range.start; is_right && position < m_range.end();) {
        const std::vector<std::uint8_t> bytes = read(position, PIECE);
        const auto size = static_cast<qint64>(bytes.size());
        is_right = size > 0 && target.write(reinterpret_cast<const char*>(bytes.data()), size) == size;
        position += size;
    }
    is_right = is_right && target.commit();
    m_problem = is_right ? QString() : target.errorString();
    return is_right;
}
