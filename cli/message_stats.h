#pragma once

#include "cli/command.h"

namespace cli
{
/// Counts what message files hold, and compares the languages among them.
Result message_stats(const Call& call);
} // namespace cli
