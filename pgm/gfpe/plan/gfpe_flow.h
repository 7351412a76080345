// SPDX-License-Identifier: MIT

// The compiled flow.
#pragma once

class GFPE_FLOW
{};
