// SPDX-License-Identifier: MIT
#include "database/device_filter.h"

#include "record_facts.h"

#include <QStringList>

#include <algorithm>

namespace {

std::string in_one_case(const QString& text)
{
    return text.toCaseFolded().toStdString();
}

bool begins_with(const std::string& text, const std::string& beginning)
{
    return !beginning.empty() && text.compare(0, beginning.size(), beginning) == 0;
}

} // namespace

// Between them is what no word has.
DEVICE_KEYS device_keys(const GFPDB_ROW& device)
{
    const std::string texts =
        device.name + '\n' + record_manufacturer(device) + '\n' + device.density + '\n' + device.voltage;
    return {in_one_case(QString::fromStdString(texts)), record_id(device)};
}

DEVICE_FILTER::DEVICE_FILTER(const QString& text) : m_id(record_id_digits(text.toStdString()))
{
    const QStringList words = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& word : words)
        m_words.push_back({in_one_case(word), record_id_digits(word.toStdString())});
}

bool DEVICE_FILTER::finds(const DEVICE_KEYS& device) const
{
    const auto has_word = [&device](const WORD& word) {
        return device.words.find(word.text) != std::string::npos || begins_with(device.id, word.id);
    };
    return begins_with(device.id, m_id) || std::all_of(m_words.begin(), m_words.end(), has_word);
}
