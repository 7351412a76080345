// SPDX-License-Identifier: MIT

// The world of a soak test: an environment of its own with two database directories, and an ear for what is printed.
#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <cstddef>
#include <string>
#include <vector>

// One in a process, made after the application object. The library's settings, its default directory and the two
// database directories lie in a scratch directory.
class SOAK_STAND
{
public:
    SOAK_STAND();
    ~SOAK_STAND();
    SOAK_STAND(const SOAK_STAND&) = delete;
    SOAK_STAND& operator=(const SOAK_STAND&) = delete;

    // Directories that a database can be in, each ending in "/". The first is the one at the start.
    QStringList database_directories() const;
    QString path(const QString& name) const;

    // Warnings that Qt printed since the last call: a program that is used as it should be causes none. What our own
    // code logs about refused changes does not count.
    QStringList take_warnings();

private:
    static void handle_message(QtMsgType type, const QMessageLogContext& context, const QString& text);

    QTemporaryDir m_scratch;
    QStringList m_warnings;
    QtMessageHandler m_next_handler;
};

// The bytes that the process has allocated and not freed.
std::size_t allocated_bytes();

// By how many bytes memory grows from one of the levels to the next: the median. What is lost in every stretch of work
// shows in every level; a cache that is emptied after some seconds, and filled again later, in one or two.
double usual_growth(const std::vector<std::size_t>& levels);

// Keeps Qt Test from ending a test function after five minutes. Called before the first test; a limit that the
// environment sets stays.
void allow_a_long_run();

// The number in the environment variable `name`, or `otherwise` when it is not set.
int number_from_environment(const char* name, int otherwise);
