#pragma once

#include "tarvo/export.h"
#include "tarvo/restools/ScriptMarks.h"

#include <cstddef>
#include <cstdint>
#include <span>

/// Where the marks of each kind go, a word for each block.
struct CScriptMarkWords
{
    std::uint64_t* breaks;
    std::uint64_t* quotes;
    std::uint64_t* commas;
    std::uint64_t* separators;
};

/// Marks \p count blocks of units as those of one line: its breaks do not separate.
using ScriptMarker = void (*)(const char16_t* units, std::size_t count, const CScriptMarkWords& out);

/// The versions that this processor can run, the fastest first.
TARVO_API std::span<const ScriptMarker> ScriptMarkers();
