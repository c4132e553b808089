#include "tarvo/lang/XMultiLang.h"

#include "platform/module.h"
#include "tarvo/settings/Product.h"

#include "qlx/qlx_lib.h"

#include <string>

namespace
{
constexpr wchar_t kNotLoaded[] = L"Can't load language file";
constexpr wchar_t kNotFound[] =
    L"CaNNot Find szLangKey To Ini File"; // callers compare with this very spelling
constexpr wchar_t kNotRegistered[] = L"Not Registered String";
constexpr wchar_t kSharedControls[] = L"DIALOG";
constexpr wchar_t kMenus[] = L"MENUSTR";
constexpr wchar_t kToTranslate[] = L"#Need to Copy..#";
/// The most characters of a text that the message catalogue's texts replace.
constexpr int kMostText = 260;

void SpellOutBreaks(CString& text)
{
    text.Replace(L"\\n", L"\n");
    text.Replace(L"\\r", L"\r");
}

/// Calls \p visit with each piece of a name that is taken apart at commas, until one returns true.
template <class Visit>
bool AnyCandidate(const CString& names, Visit visit)
{
    int start = 0;
    for (CString piece = names.Tokenize(L",", start); start >= 0; piece = names.Tokenize(L",", start))
        if (visit(piece))
            return true;
    return false;
}

/// The key of a popup that has no name: its text without "&" and without the part behind a tab.
CString PlainMenuText(const CString& text)
{
    const int tab = text.Find(L'\t');
    CString plain = tab < 0 ? text : text.Left(tab);
    plain.Remove(L'&');
    return plain.Trim();
}
} // namespace

int XMultiLang::m_bIniFindMode = 0;

XMultiLang::XMultiLang()
{
    m_bIniFindMode = 0;
    if (CProduct::GetTestEnvValue(L"INIFindMode") == L"yes")
        m_bIniFindMode = 1;
}

XMultiLang::~XMultiLang() = default;

int XMultiLang::Create(CString primaryPath, CString secondaryPath)
{
    const int primary = m_primary.Open(primaryPath);
    const int secondary = !secondaryPath.IsEmpty() && m_secondary.Open(secondaryPath);
    return primary || secondary ? _Create() : 0;
}

int XMultiLang::Load(CString primaryPath, CString secondaryPath, int codePage)
{
    m_bCreated = 0;
    for (XIni* document : {&m_primary, &m_secondary})
    {
        document->Clear();
        document->SetCodePage(codePage);
    }
    return Create(primaryPath, secondaryPath);
}

int XMultiLang::Create(unsigned char* bytes, int size)
{
    m_primary.OpenMemory(bytes, size);
    return _Create();
}

int XMultiLang::_Create()
{
    m_nCodePage = m_primary.GetInt(L"GENERAL", L"CODEPAGE", 0, 10);
    m_bCreated = 1;
    return 1;
}

int XMultiLang::LoadResourceHeaderByDLL(int id, const wchar_t* type, HINSTANCE module)
{
    const auto bytes = platform::module::resource(module, id, type);
    if (!bytes)
        return 0;
    m_headerModule = module;
    return m_header.LoadMemory(bytes->data(), static_cast<int>(bytes->size() / 2));
}

int XMultiLang::LoadResourceHeader(unsigned char* text, int count)
{
    return m_header.LoadMemory(text, count);
}

int XMultiLang::LoadResourceHeader(CString path) { return m_header.LoadFile(path); }

CString XMultiLang::GetProjectName(int id, const wchar_t* type, HINSTANCE module)
{
    const auto bytes = platform::module::resource(module, id, type);
    if (!bytes)
        return L"Non Find String";
    return CResourceHeader::FirstWord(bytes->data(), static_cast<int>(bytes->size() / 2));
}

CString XMultiLang::GetProjectName(unsigned char* text, int count)
{
    return CResourceHeader::FirstWord(text, count);
}

CString XMultiLang::Lang(const wchar_t* key, const wchar_t* section)
{
    CString text;
    if (!LookUp(key, section, text) && m_bIniFindMode && m_bCreated && !HasKey(section, key))
        AddMissingKey(section, key);
    return text;
}

/// The text that Lang answers; 0 when it is one of the two messages.
int XMultiLang::LookUp(const wchar_t* key, const wchar_t* section, CString& text)
{
    if (!m_bCreated)
    {
        text = kNotLoaded;
        return 0;
    }
    const bool primary = m_primary.GetStr2(section, key, text, nullptr) && !text.IsEmpty();
    if (!primary && !m_secondary.GetStr2(section, key, text, kNotFound))
        return 0;
    SpellOutBreaks(text);
    return 1;
}

/// A text of one section that is not empty, from either document.
XMultiLang::SOURCE XMultiLang::FindText(const wchar_t* section, const wchar_t* key, CString& text)
{
    if (m_primary.GetStr2(section, key, text, nullptr) && !text.IsEmpty())
        return SOURCE_DIALOG;
    return m_secondary.GetStr2(section, key, text, nullptr) && !text.IsEmpty() ? SOURCE_FALLBACK
                                                                               : SOURCE_NONE;
}

XMultiLang::SOURCE XMultiLang::FindControlText(const CString& names, CString& text)
{
    SOURCE source = SOURCE_NONE;
    AnyCandidate(names, [&](const CString& name) {
        source = FindText(m_strDialog, name, text);
        if (source == SOURCE_NONE && !m_strDialog.IsEmpty() &&
            FindText(kSharedControls, name, text) != SOURCE_NONE)
            source = SOURCE_FALLBACK;
        return source != SOURCE_NONE;
    });
    if (source != SOURCE_NONE)
        SpellOutBreaks(text);
    return source;
}

CString XMultiLang::NamesOf(int id) const
{
    return m_header.FindFirst(CResourceHeader::All, std::to_wstring(id).c_str());
}

int XMultiLang::FindDialogControlText(int id, CString& text)
{
    text.Empty();
    const CString names = NamesOf(id);
    if (FindControlText(names, text) != SOURCE_NONE)
        return 1;
    text.Empty();
    NoteMissingControl(names);
    return 0;
}

int XMultiLang::FindSharedText(const wchar_t* name, CString& text)
{
    text.Empty();
    if (FindText(kSharedControls, name, text) == SOURCE_NONE)
    {
        text.Empty();
        return 0;
    }
    SpellOutBreaks(text);
    return 1;
}

void XMultiLang::FindDialogControlText(int id, CStringArray& names)
{
    names.RemoveAll();
    m_header.FindNames(CResourceHeader::All, std::to_wstring(id).c_str(), names);
}

/// Makes a dialog the current one by its identifier; 0, and no dialog is, when it has no name.
int XMultiLang::SelectDialog(unsigned int id)
{
    const std::wstring value = std::to_wstring(static_cast<int>(id));
    m_strDialog = m_header.FindFirst(CResourceHeader::Dialog, value.c_str());
    return !m_strDialog.IsEmpty();
}

void XMultiLang::GetMenuKeys(unsigned int id, bool isPopup, const CString& text, CStringArray& keys) const
{
    const std::wstring value = std::to_wstring(static_cast<int>(id));
    const CString names = m_header.FindFirst(CResourceHeader::Menu, value.c_str());
    AnyCandidate(names, [&](const CString& name) {
        keys.Add(name);
        return false;
    });
    const CString plain = PlainMenuText(text);
    if (keys.IsEmpty() && isPopup && !plain.IsEmpty())
        keys.Add(plain);
}

int XMultiLang::FindMenuText(unsigned int id, bool isPopup, const CString& text, CString& translated)
{
    CStringArray keys;
    GetMenuKeys(id, isPopup, text, keys);
    bool known = false;
    for (INT_PTR i = 0; i < keys.GetSize(); ++i)
    {
        if (FindText(kMenus, keys[i], translated) != SOURCE_NONE)
        {
            SpellOutBreaks(translated);
            const int tab = text.Find(L'\t');
            if (tab >= 0 && translated.Find(L'\t') < 0)
                translated += text.Mid(tab);
            return 1;
        }
        known |= HasKey(kMenus, keys[i]);
    }
    if (m_bIniFindMode && !keys.IsEmpty() && !known)
        AddMissingKey(kMenus, keys[0]);
    return 0;
}

bool XMultiLang::HasKey(const wchar_t* section, const wchar_t* key)
{
    CString text;
    return m_primary.GetStr2(section, key, text, nullptr) || m_secondary.GetStr2(section, key, text, nullptr);
}

bool XMultiLang::HasControlKey(const CString& dialogName, const CString& names)
{
    return AnyCandidate(names, [&](const CString& name) {
        return HasKey(dialogName, name) || HasKey(kSharedControls, name);
    });
}

void XMultiLang::AddMissingKey(const wchar_t* section, const wchar_t* key)
{
    m_missing.SetStr(section ? section : L"TEXT", key, kToTranslate);
}

void XMultiLang::NoteMissingControl(const CString& names)
{
    if (!m_bIniFindMode || m_strDialog.IsEmpty() || HasControlKey(m_strDialog, names))
        return;
    AnyCandidate(names, [&](const CString& name) {
        AddMissingKey(m_strDialog, name);
        return true;
    });
}

/// The message catalogue's text for the first name that it knows, else \p fallback.
CString XMultiLang::FindCatalogueText(const CStringArray& names, const CString& fallback) const
{
    for (INT_PTR i = 0; i < names.GetSize(); ++i)
    {
        CString text = qlx::lib::MMSGFunction::GetValue(L"IDS_" + m_strDialog + L"_" + names[i]);
        if (text.Find(kNotRegistered) < 0)
            return text;
    }
    return fallback;
}

int XMultiLang::SelectDlgTexts(unsigned int id, const CString& project)
{
    m_nMsgProject = qlx::lib::TranslateUtil::GetMSGPROJbyName(project);
    return SelectDialog(id);
}

int XMultiLang::GetDlgCaptionText(const CString& text, CString& translated) const
{
    if (text.IsEmpty())
        return 0;
    // A dialog's caption is kept under its name twice.
    const CString key = L"IDS_" + m_strDialog + L"_" + m_strDialog;
    translated = qlx::lib::MMSGFunction::GetValueByDefault(key, text.Left(kMostText), m_nMsgProject, 1);
    return 1;
}

int XMultiLang::GetDlgControlText(int id, const CString& text, CString& translated)
{
    CStringArray names;
    FindDialogControlText(id, names);
    if (text.IsEmpty() || names.IsEmpty())
        return 0;
    const CString key = L"IDS_" + m_strDialog + L"_" + names[0];
    const CString fallback =
        qlx::lib::MMSGFunction::GetValueByDefault(key, text.Left(kMostText), m_nMsgProject, 1);
    translated = FindCatalogueText(names, fallback);
    return 1;
}
