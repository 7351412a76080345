// SPDX-License-Identifier: MIT

// System calls that fail as they do on a full disk, a dying one or a share without locks.
//
// The library takes the place of the C library's functions: in a test program that is linked with it, and in any other
// one by LD_PRELOAD. Only calls on files below one directory are counted, and only these fail, so that the program
// itself is not disturbed. A call that fails does nothing.
//
// A program that is not linked with it is told what to do by its environment (read when it starts):
//   FAULT_DIRECTORY  the directory
//   FAULT            CALL:N:ERROR, as in "write:3:ENOSPC": the third call of this kind fails; with ":lasting" behind it
//                    all later ones of the kind fail as well
#pragma once

#include <functional>
#include <string>

enum class FAULT_CALL
{
    READ,     // read, pread
    WRITE,    // write, pwrite, writev
    TRUNCATE, // ftruncate
    SYNC,     // fsync, fdatasync
    RENAME,   // rename, renameat2, link
    OPEN,     // open, openat, creat
    LOCK,     // fcntl(F_SETLK), where it takes a lock
    STATUS,   // stat, lstat, fstat
    MODE,     // chmod, fchmod
    COUNT,
};

struct FAULT
{
    FAULT_CALL call = FAULT_CALL::READ;
    int at = 1; // counted from 1, from watch() on
    int error = 0;
    bool is_lasting = false;
};

class FAULT_INJECTOR
{
public:
    // Counts from zero, on files below `directory` (absolute, without symbolic links, ending in "/"). Nothing fails.
    static void watch(const std::string& directory);
    // As watch(), and lets calls fail.
    static void inject(const std::string& directory, const FAULT& fault);
    // As watch(), and runs `act` right after the n-th call, whose result is already known, before the program gets it.
    // What `act` calls is not counted.
    static void run_after(const std::string& directory, FAULT_CALL call, int at, const std::function<void()>& act);
    // From now on everything works; the counts stay.
    static void stop();

    // The calls since watch().
    static int count(FAULT_CALL call);
};

// "write", and so on.
const char* name_of(FAULT_CALL call);
