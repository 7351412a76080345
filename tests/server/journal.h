// SPDX-License-Identifier: MIT

// Programs that change what is on a server and keep a journal of it, and the comparison of both.
//
// Each change carries a mark that no other one has: the device ID of the records that it stores. Wherever a program, a
// server or a line between them breaks, the marks of what was reported as stored are there once (once for each record
// of an import), as a current record or in the history, and those of other changes at most as often.
#pragma once

#include "gfpdb_test.h"

#include <QProcess>
#include <QStringList>

// The records of an import.
constexpr int JOURNAL_IMPORT_RECORDS = 20;
// A name that all workers change now and then.
constexpr char JOURNAL_SHARED_NAME[] = "Shared";

class JOURNAL
{
public:
    // A line of a worker: "begins MARK RECORDS", "stored MARK" or "refused MARK REASON".
    void add(const QByteArray& line);

    int stored_count() const { return m_stored.size(); }
    // Changes of which it is not known whether they happened.
    int open_count() const { return m_records.size() - m_stored.size(); }
    // What in the place's database does not follow from it; empty when all does.
    QStringList problems(const GFPDB_PLACE& place) const;

private:
    // How many records the change of each mark has.
    QMap<QString, int> m_records;
    QStringList m_stored;
};

// Stores a device under `name` in place of the one that is there, as Apply does; the reason when that is refused.
std::string apply_marked(GFPDB_MGR& manager, const std::string& name, const std::string& mark);

// The program itself as a worker, see run_worker().
class WORKER
{
public:
    // `how` is "apply" or "import".
    WORKER(const GFPDB_PLACE& place, const QString& how, const QString& prefix, int changes);

    // The next line that it says; empty when it has ended.
    QByteArray hear();
    // What it waits for after a refusal.
    void go_on();
    void kill();
    // Its remaining lines, when it has ended.
    QList<QByteArray> rest();

private:
    QProcess m_process;
};

// Changes that many times what the directory in GFPDB_TEST_DIR names, or until it is killed. It saves under five names
// that begin with `prefix`, now and then under the shared one, or imports records. A refusal because another program
// has been faster is followed by another try; after any other it waits for a line of its input.
int run_worker(const QStringList& arguments);
