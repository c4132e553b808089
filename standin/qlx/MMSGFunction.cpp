#include "qlx/MMSGFunction.h"

#include <algorithm>
#include <vector>

namespace qlx::lib
{
namespace
{
/// The first registered first. Made on first use: libraries register while they are being loaded.
std::vector<IMSGTextProvider*>& providers()
{
    static std::vector<IMSGTextProvider*> all;
    return all;
}

bool find_text(const wchar_t* key, int project, CString& text)
{
    const wchar_t* name = key ? key : L"";
    // A copy: a provider may register another one while it is asked.
    const std::vector<IMSGTextProvider*> asked = providers();
    return std::any_of(asked.rbegin(), asked.rend(),
                       [&](IMSGTextProvider* provider) { return provider->GetText(name, project, text); });
}
} // namespace

IMSGTextProvider::~IMSGTextProvider() = default;

CString MMSGFunction::GetValue(const wchar_t* key) { return GetValue(key, no_project); }

CString MMSGFunction::GetValue(const wchar_t* key, int project)
{
    CString text;
    if (!find_text(key, project, text))
        text.Format(L"Not Registered String [%s]", key ? key : L"");
    return text;
}

CString MMSGFunction::GetValueByDefault(const wchar_t* key, const wchar_t* defaultText, int project,
                                        int bUseDefault)
{
    CString text;
    if (find_text(key, project, text))
        return text;
    return bUseDefault ? CString(defaultText) : GetValue(key, project);
}

void MMSGFunction::RegisterProvider(IMSGTextProvider* provider)
{
    if (!provider)
        return;
    UnregisterProvider(provider);
    providers().push_back(provider);
}

void MMSGFunction::UnregisterProvider(IMSGTextProvider* provider)
{
    std::vector<IMSGTextProvider*>& all = providers();
    all.erase(std::remove(all.begin(), all.end(), provider), all.end());
}
} // namespace qlx::lib
