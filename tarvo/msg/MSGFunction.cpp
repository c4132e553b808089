#include "tarvo/msg/MSGFunction.h"

#include "qlx/MMSGFunction.h"
#include "tarvo/msg/msg_parser.h"
#include "tarvo/msg/msg_parser2.h"

namespace
{
/// Made on first use: modules ask for texts while they are being loaded.
msg_parser2& Primary()
{
    static msg_parser2 catalogue;
    return catalogue;
}

msg_parser& Fallback()
{
    static msg_parser catalogue;
    return catalogue;
}

/// The catalogue as the companion library asks it. One name space serves all projects.
class CCatalogueProvider : public qlx::lib::IMSGTextProvider
{
public:
    CCatalogueProvider() { qlx::lib::MMSGFunction::RegisterProvider(this); }
    CCatalogueProvider(const CCatalogueProvider&) = delete;
    CCatalogueProvider& operator=(const CCatalogueProvider&) = delete;
    ~CCatalogueProvider() override { qlx::lib::MMSGFunction::UnregisterProvider(this); }

    bool GetText(const wchar_t* key, int, CString& text) override { return CMSGFunction::Find(key, text); }
};

const CCatalogueProvider theProvider; // registers while the library is loaded
} // namespace

CString CMSGFunction::m_str_TarvoH_dll_Name;
CString CMSGFunction::m_str_TarvoBOMSource_RetWall_dll_Name;
CString CMSGFunction::m_str_TarvoBOMSBHSource_dll_Name;
CString CMSGFunction::m_str_TarvoBOMSource_dll_Name;
CString CMSGFunction::m_str_TarvoVHSectionSource_dll_Name;
CString CMSGFunction::m_str_TarvoStrutSource_dll_Name;
CString CMSGFunction::m_str_TarvoBreakDownSource_dll_Name;

void CMSGFunction::AddFile(const wchar_t* primaryPath, const wchar_t* fallbackPath)
{
    Primary().add_path(primaryPath);
    Fallback().add_path(fallbackPath);
}

void CMSGFunction::Reset()
{
    Primary().clear();
    Fallback().clear();
}

void CMSGFunction::SetFontPath(const wchar_t* primaryPath, const wchar_t* fallbackPath)
{
    Primary().set_fontpath(primaryPath);
    Fallback().set_fontpath(fallbackPath);
}

bool CMSGFunction::LoadFile() { return Primary().load(); }

CString CMSGFunction::GetValue(const wchar_t* key) { return Primary().get_value(key); }
bool CMSGFunction::Find(const wchar_t* key, CString& value) { return Primary().find_value(key, value); }
bool CMSGFunction::SetValue(const wchar_t* key, const wchar_t* value)
{
    return Primary().set_value(key, value);
}

CString CMSGFunction::RemoveQuote(const CString& text)
{
    const int nLength = text.GetLength();
    if (nLength < 2 || text[0] != L'\'' || text[nLength - 1] != L'\'')
        return text;
    return text.Mid(1, nLength - 2);
}

CString CMSGFunction::GetFont() { return Primary().get_font(); }
int CMSGFunction::GetFontSize() { return Primary().get_fontsize(); }

void CMSGFunction::SetHatchAndExcelTemplateFileNames(const wchar_t* suffix)
{
    const CString strSuffix(suffix);
    // The first is a bare file name, the others are appended to a folder's path.
    m_str_TarvoH_dll_Name.Format(L"TarvoH%s.dll", strSuffix.GetString());
    m_str_TarvoBOMSource_RetWall_dll_Name.Format(L"\\TarvoBOMSource_RetWall%s.dll", strSuffix.GetString());
    m_str_TarvoBOMSBHSource_dll_Name.Format(L"\\TarvoBOMSBHSource%s.dll", strSuffix.GetString());
    m_str_TarvoBOMSource_dll_Name.Format(L"\\TarvoBOMSource%s.dll", strSuffix.GetString());
    m_str_TarvoVHSectionSource_dll_Name.Format(L"\\TarvoVHSectionSource%s.dll", strSuffix.GetString());
    m_str_TarvoStrutSource_dll_Name.Format(L"\\TarvoStrutSource%s.dll", strSuffix.GetString());
    m_str_TarvoBreakDownSource_dll_Name.Format(L"\\TarvoBreakDownSource%s.dll", strSuffix.GetString());
}

CString CMSGFunction::Get_TarvoH_dll_Name() { return m_str_TarvoH_dll_Name; }
CString CMSGFunction::Get_TarvoBOMSource_RetWall_dll_Name() { return m_str_TarvoBOMSource_RetWall_dll_Name; }
CString CMSGFunction::Get_TarvoBOMSBHSource_dll_Name() { return m_str_TarvoBOMSBHSource_dll_Name; }
CString CMSGFunction::Get_TarvoBOMSource_dll_Name() { return m_str_TarvoBOMSource_dll_Name; }
CString CMSGFunction::Get_TarvoVHSectionSource_dll_Name() { return m_str_TarvoVHSectionSource_dll_Name; }
CString CMSGFunction::Get_TarvoStrutSource_dll_Name() { return m_str_TarvoStrutSource_dll_Name; }
CString CMSGFunction::Get_TarvoBreakDownSource_dll_Name() { return m_str_TarvoBreakDownSource_dll_Name; }
