#include "tarvo/restools/ScriptText.h"

#include "tarvo/restools/ScriptBytes.h"

#include <algorithm>
#include <new>

bool CScriptText::Open(CScriptBytes& bytes)
{
    m_bytes = &bytes;
    m_length = 0;
    const TextEncoding encoding = bytes.GetEncoding();
    const bool isWide =
        encoding == TextEncoding::Utf16LittleEndian || encoding == TextEncoding::Utf16BigEndian;
    const auto size = static_cast<std::size_t>(bytes.GetLeft());
    m_room = (isWide ? size / 2 : size) + CScriptMarks::Block; // no encoding gives more units
    try
    {
        m_memory = platform::memory::take_piece(m_room * sizeof(char16_t));
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
    Grow(0);
    return true;
}

bool CScriptText::Grow(std::size_t needed)
{
    const std::string_view piece = m_bytes->Peek();
    std::string_view rest = piece;
    auto* const units = reinterpret_cast<char16_t*>(m_memory.get());
    const std::size_t count = DecodeTextPart(m_bytes->GetEncoding(), rest, units + m_length);
    // Without a unit, what is left is a character that the end of the file has cut off.
    m_bytes->Take(count == 0 ? piece.size() : piece.size() - rest.size());
    m_length += count;
    std::fill_n(units + m_length, CScriptMarks::Block, u'\0');
    m_marks.Grow(units, m_length, needed);
    return count != 0;
}

void CScriptText::Close()
{
    m_marks = CScriptMarks();
    m_bytes = nullptr;
}
