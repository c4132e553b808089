#include "tarvo/intl/DialogMemory_windows.h"

#include "tarvo/intl/InternationalUtil.h"
#include "tarvo/lang/TemplateReader.h"

#include <cstring>
#include <utility>

namespace
{
bool PutFont(CDialogTemplate& memory, const TemplateFont& font)
{
    std::vector<unsigned char> bytes;
    {
        const CTemplateLock lock(memory);
        const auto* begin = reinterpret_cast<const unsigned char*>(lock.Get());
        if (!begin || !SetTemplateFont({begin, memory.m_dwTemplateSize}, font, bytes))
            return false;
    }
    const HGLOBAL changed = ::GlobalAlloc(GPTR, bytes.size());
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
