// SPDX-License-Identifier: MIT

// A shared library that is no dialog module.
extern "C" int no_entry_point()
{
    return 0;
}
