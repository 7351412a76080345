// SPDX-License-Identifier: MIT
#include "run/file_summary.h"

#include "run/crc32.h"

#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <vector>

namespace {

constexpr std::size_t PIECE = std::size_t{1} << 20;

// A pipe or a device would be read for ever.
FILE_FACTS facts_of(const QString& name, const std::atomic<bool>& is_given_up)
{
    FILE_FACTS facts;
    facts.file = name;
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly)) {
        facts.problem = QFileInfo(name).isFile() ? file.errorString() : FILE_SUMMARY::tr("It is not a file.");
        return facts;
    }
    CRC32 check_sum;
    std::vector<std::uint8_t> piece(PIECE);
    qint64 count = 0;
    do {
        count = file.read(reinterpret_cast<char*>(piece.data()), static_cast<qint64>(piece.size()));
        if (count > 0)
            check_sum.add(piece.data(), static_cast<std::size_t>(count));
        facts.size += std::max<qint64>(count, 0);
    } while (count > 0 && !is_given_up);
    if (count < 0)
        facts.problem = file.errorString();
    facts.crc32 = check_sum.value();
    return facts;
}

} // namespace

FILE_SUMMARY::FILE_SUMMARY(QObject* parent) : QObject(parent) {}

FILE_SUMMARY::~FILE_SUMMARY()
{
    give_up();
}

void FILE_SUMMARY::give_up()
{
    if (!m_thread)
        return;
    *m_is_given_up = true;
    m_thread->wait();
    m_thread.reset();
}

void FILE_SUMMARY::read(const QString& file)
{
    give_up();
    m_is_given_up = std::make_shared<std::atomic<bool>>(false);
    auto facts = std::make_shared<FILE_FACTS>();
    const auto work = [file, facts, given_up = m_is_given_up] { *facts = facts_of(file, *given_up); };
    m_thread.reset(QThread::create(work));
    connect(m_thread.get(), &QThread::finished, this, [this, facts, given_up = m_is_given_up] {
        if (!*given_up)
            emit ready(*facts);
    });
    m_thread->start();
}
