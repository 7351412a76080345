// SPDX-License-Identifier: MIT

// Times of the database for people.
#pragma once

#include <QDateTime>
#include <QString>

#include <string>

// "2024-05-17T09:30:00Z" as the time here: "2024-05-17 11:30:00". What is not a time comes back as it is.
inline QString local_time_text(const std::string& utc)
{
    const QString text = QString::fromStdString(utc);
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    return time.isValid() ? time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) : text;
}
