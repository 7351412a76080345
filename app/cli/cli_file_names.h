// SPDX-License-Identifier: MIT

// File names, which are bytes and need not be UTF-8.
#pragma once

// From now on Qt's texts hold every file name and every argument of this process: QFile::decodeName(),
// QFile::encodeName(), QString::fromLocal8Bit() and toLocal8Bit() convert UTF-8, whatever the locale is, and bytes that
// are not UTF-8 to characters that stand for them and back. Must be called before the application object is made.
void cli_use_file_names();
