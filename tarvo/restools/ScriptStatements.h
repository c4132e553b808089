#pragma once

#include "tarvo/restools/ScriptLines.h"

/// Tells from a line's first word whether it begins something new.
using BeginsNew = bool (*)(std::u16string_view firstWord);

/// Takes the line at hand and all that follow up to one that begins something new, and gives them as one
/// line, each further one behind a space. A line that stands alone is given as it is, without a copy.
CScriptLine TakeStatement(CScriptLines& lines, BeginsNew beginsNew);
