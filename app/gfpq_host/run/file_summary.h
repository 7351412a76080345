// SPDX-License-Identifier: MIT

// The size and the check sum of a file, found in the background.
#pragma once

#include <QObject>
#include <QString>

#include <atomic>
#include <cstdint>
#include <memory>

class QThread;

struct FILE_FACTS
{
    QString file;
    std::int64_t size = 0;
    std::uint32_t crc32 = 0;
    // Why the file cannot be read; empty when it can.
    QString problem;
};

// GUI thread only.
class FILE_SUMMARY : public QObject
{
    Q_OBJECT

public:
    explicit FILE_SUMMARY(QObject* parent = nullptr);
    ~FILE_SUMMARY() override;

    // Reads `file`; what was being read before is no longer of interest.
    void read(const QString& file);

signals:
    // The file that was asked for last was read to its end.
    void ready(const FILE_FACTS& facts);

private:
    void give_up();

    std::unique_ptr<QThread> m_thread;
    std::shared_ptr<std::atomic<bool>> m_is_given_up;
};
