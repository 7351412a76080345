// SPDX-License-Identifier: MIT

// A program that only looks, as one does to complete a word.
#pragma once

// True in such a program; false at first. What its stores open they leave as it is, a database of a former version too.
// Another program's lock is not waited for, and a server for a short time only. What cannot be read so is as good as
// not there. GUI thread only.
bool& gfpdb_only_looks();
