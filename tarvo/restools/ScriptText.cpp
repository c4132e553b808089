#include "tarvo/restools/ScriptText.h"

#include "platform/memory.h"
#include "tarvo/restools/ScriptBytes.h"

#include <algorithm>

bool CScriptText::Open(CScriptBytes& bytes)
{
    m_bytes = &bytes;
    m_length = 0;
    const TextEncoding encoding = bytes.GetEncoding();
    const bool isWide =
        encoding == TextEncoding::Utf16LittleEndian || encoding == TextEncoding::Utf16BigEndian;
    const auto size = static_cast<std::size_t>(bytes.GetLeft());
    m_room = (isWide ? size / 2 : size) + CScriptMarks::Count; // no encoding gives more units
    m_units.reset(static_cast<char16_t*>(std::malloc(m_room * sizeof(char16_t))));
    if (!m_units)
        return false;
    platform::memory::expect_use(m_units.get(), m_room * sizeof(char16_t));
    Grow(0);
    return true;
}

bool CScriptText::Grow(std::size_t needed)
{
    const std::string_view piece = m_bytes->Peek();
    std::string_view rest = piece;
    const std::size_t count = DecodeTextPart(m_bytes->GetEncoding(), rest, m_units.get() + m_length);
    // Without a unit, what is left is a character that the end of the file has cut off.
    m_bytes->Take(count == 0 ? piece.size() : piece.size() - rest.size());
    m_length += count;
    std::fill_n(m_units.get() + m_length, CScriptMarks::Count, u'\0');
    m_marks.Grow(m_units.get(), m_length, needed);
    return count != 0;
}

void CScriptText::Close()
{
    m_marks = CScriptMarks();
    m_bytes = nullptr;
}
