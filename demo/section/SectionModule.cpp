#include "demo/section/SectionModule.h"

#include "demo/section/SectionDialogs.h"
#include "demo/section/resource.h"

namespace
{
// A dialog object remembers the module in whose state it was made and finds its template there.
template <std::unique_ptr<CTranslatedDialog> (*Make)(CWnd*)>
std::unique_ptr<CTranslatedDialog> in_module(CWnd* parent)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Make(parent);
}
} // namespace

DemoModule SectionModule()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return {AfxGetInstanceHandle(),
            IDR_RESOURCE_HEADER,
            {{L"IDD_SECTION_LIBRARY", IDD_SECTION_LIBRARY, in_module<make_section_library>},
             {L"IDD_MEMBER_PROPERTIES", IDD_MEMBER_PROPERTIES, in_module<make_member_properties>}}};
}
