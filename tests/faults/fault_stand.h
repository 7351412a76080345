// SPDX-License-Identifier: MIT

// A change that is made again and again, each time with another system call that fails in it.
#pragma once

#include "fault_injector.h"

#include <QStringList>
#include <QTemporaryDir>

#include <array>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>

class GFPDB_PLACE;

// One change of what is stored. Its functions run in processes that are forked from the test, in the environment of the
// stand's place.
struct FAULT_SCENE
{
    // Makes the state before the change, in an empty place.
    std::function<void(const GFPDB_PLACE& place)> prepare;
    // What the program has done when the change begins; nothing fails in it yet.
    std::function<void(const GFPDB_PLACE& place)> begin;
    // Makes the change. Gives back what the user is told when it fails; nothing when it is reported as made. Called a
    // second time it makes the same change again.
    std::function<std::string(const GFPDB_PLACE& place)> change;
    // Follows what the user was told, for a change that nothing could undo because everything went on failing. Empty
    // where that must not happen.
    std::function<void(const GFPDB_PLACE& place, const std::string& told)> recover;
    // Everything that the change must leave as it was or make whole, read from the files, as a text to compare.
    std::function<std::string(const GFPDB_PLACE& place)> state;
};

// Content of a settings file: a lock that is not to be had is not waited for long.
extern const char SETTINGS_FOR_FAULTS[];

// What a fresh manager finds in the place's database: problems, and the devices of the tests' family and scheme.
std::string all_records(const GFPDB_PLACE& place);

// The answer of a change that has failed without a word.
extern const char FAULT_TOLD_NOTHING[];

// Runs a scene without a fault, then once for each system call that this run made and each error that the call can
// have, and as often again with the error lasting. Each run begins with a copy of the state before.
//
// What must hold of each: the state is the one before or the one after, and the one after when the change was reported
// as made; a change that failed says why; the same process can make it when the fault is over, and then nothing
// unfinished lies about.
class FAULT_STAND
{
public:
    explicit FAULT_STAND(const FAULT_SCENE& scene);
    ~FAULT_STAND();

    // What did not hold; empty when all did.
    QStringList run();
    // Runs; the test fails with what did not hold, and when the change makes no call of one of `calls`.
    void verify(std::initializer_list<FAULT_CALL> calls);
    // The runs with a fault so far, and the calls of one change.
    int fault_count() const { return m_fault_count; }
    int count(FAULT_CALL call) const { return m_counts[static_cast<std::size_t>(call)]; }

private:
    QString make_references();
    QString check(const FAULT& fault);
    QString check_state(const FAULT& fault, const std::string& told, bool& is_recovered) const;
    std::string recovered_state(const std::string& told) const;
    QString check_end(const std::string& told) const;
    void reset() const;
    std::string state_now() const;
    QStringList files_now() const;

    FAULT_SCENE m_scene;
    std::unique_ptr<GFPDB_PLACE> m_place;
    // A copy of the place as it is before the change.
    QTemporaryDir m_kept;
    std::string m_before;
    std::string m_after;
    QStringList m_files_after;
    std::array<int, static_cast<std::size_t>(FAULT_CALL::COUNT)> m_counts = {};
    int m_fault_count = 0;
};
