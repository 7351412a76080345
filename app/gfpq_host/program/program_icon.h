// SPDX-License-Identifier: MIT

// The picture of the program on its windows: the one that a desktop shows for it.
#pragma once

#include <QIcon>

QIcon program_icon();
