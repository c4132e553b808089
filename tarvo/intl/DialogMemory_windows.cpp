#include "tarvo/intl/DialogMemory_windows.h"

#include "tarvo/intl/InternationalUtil.h"
#include "tarvo/lang/TemplateReader.h"

#include <cstring>
#include <utility>

namespace
{
constexpr std::size_t kLongestFont = 2 * (1 + 2 + 32) + 2; ///< size, traits and face; padding

bool PutFont(CDialogTemplate& memory, const TemplateFont& font)
{
    std::vector<unsigned char> bytes;
    {
        const CTemplateLock lock(memory);
        const auto* begin = reinterpret_cast<const unsigned char*>(lock.Get());
        if (!begin || !SetTemplateFont({begin, memory.m_dwTemplateSize}, font, bytes))
            return false;
    }
    // Room for any other face.
    const HGLOBAL changed = ::GlobalAlloc(GPTR, bytes.size() + kLongestFont);
    if (!changed)
        return false;
    std::memcpy(changed, bytes.data(), bytes.size()); // fixed memory: the handle is its address
    ::GlobalFree(std::exchange(memory.m_hTemplate, changed));
    memory.m_dwTemplateSize = static_cast<DWORD>(bytes.size());
    memory.m_bSystemFont = FALSE;
    return true;
}
} // namespace

bool LoadWithFont(CDialogTemplate& memory, LPCTSTR resource, const TemplateFont& font)
{
    return resource && memory.Load(resource) && PutFont(memory, font);
}

bool ReplaceFont(CDialogTemplate& memory, LPCTSTR resource, const TemplateFont& font)
{
    CDialogTemplate changed;
    if (!memory.m_hTemplate || !LoadWithFont(changed, resource, font) ||
        changed.m_dwTemplateSize > ::GlobalSize(memory.m_hTemplate))
        return false;
    const CTemplateLock from(changed);
    // Fixed memory: the handle is its address.
    std::memcpy(memory.m_hTemplate, from.Get(), changed.m_dwTemplateSize);
    memory.m_dwTemplateSize = changed.m_dwTemplateSize;
    return true;
}

namespace
{
TemplateHead HeadOf(const CDialogTemplate& memory)
{
    const CTemplateLock lock(memory);
    const std::span<const unsigned char> bytes(reinterpret_cast<const unsigned char*>(lock.Get()),
                                               lock.Get() ? memory.m_dwTemplateSize : 0);
    TemplateReader reader(bytes);
    return ReadTemplateHead(reader, bytes);
}
} // namespace

bool MakesChild(const CDialogTemplate& memory) { return (HeadOf(memory).style & WS_CHILD) != 0; }

CString CaptionOf(const CDialogTemplate& memory) { return HeadOf(memory).caption; }

TemplateFont GetDialogFont()
{
    return {CInternationalUtil::GetDlgFontName(), CInternationalUtil::GetDlgFontSize()};
}
