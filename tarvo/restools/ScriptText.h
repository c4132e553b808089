#pragma once

#include "platform/memory.h"
#include "tarvo/restools/ScriptMarks.h"

#include <cstddef>

class CScriptBytes;

/// The text of a script in UTF-16 units and its marks. It grows at its end: a piece is decoded when the one
/// before has been taken apart, so that what is looked at is still in the cache. Units never move.
class CScriptText
{
public:
    /// Begins the text of \p bytes, which must stay until Close. False when there is no memory.
    bool Open(CScriptBytes& bytes);
    /// Decodes more, at least a unit; false when there is no more. The marks before \p needed go.
    bool Grow(std::size_t needed);
    /// Ends the reading. The text stays, its marks go.
    void Close();

    /// Behind the last unit there are some zeros.
    const char16_t* Units() const { return reinterpret_cast<const char16_t*>(m_memory.get()); }
    /// Units decoded.
    std::size_t GetLength() const { return m_length; }
    const CScriptMarks& Marks() const { return m_marks; }
    /// Units that there is room for.
    std::size_t GetRoom() const { return m_room; }

private:
    platform::memory::Piece m_memory;
    std::size_t m_length = 0;
    std::size_t m_room = 0;
    CScriptMarks m_marks;
    CScriptBytes* m_bytes = nullptr;
};
