#include "tarvo/restools/ExportIni.h"

#include "tarvo/text/Units.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace
{
struct LanguagePage
{
    const wchar_t* word;
    const wchar_t* number;
    int page;
};

constexpr LanguagePage pages[] = {
    {L"LANG_CHINESE", L"4", 936},   {L"LANG_CZECH", L"5", 1250},      {L"LANG_GREEK", L"8", 1253},
    {L"LANG_HEBREW", L"13", 1255},  {L"LANG_HUNGARIAN", L"14", 1250}, {L"LANG_JAPANESE", L"17", 932},
    {L"LANG_KOREAN", L"18", 949},   {L"LANG_POLISH", L"21", 1250},    {L"LANG_ROMANIAN", L"24", 1250},
    {L"LANG_RUSSIAN", L"25", 1251}, {L"LANG_SLOVAK", L"27", 1250},    {L"LANG_THAI", L"30", 874},
    {L"LANG_TURKISH", L"31", 1254}, {L"LANG_UKRAINIAN", L"34", 1251}, {L"LANG_BELARUSIAN", L"35", 1251},
    {L"LANG_ARABIC", L"1", 1256},   {L"LANG_BULGARIAN", L"2", 1251},  {L"LANG_VIETNAMESE", L"42", 1258},
};

bool IsSymbol(CResText id)
{
    return !id.empty() &&
           (id[0] == u'_' || (id[0] >= u'A' && id[0] <= u'Z') || (id[0] >= u'a' && id[0] <= u'z'));
}

// What a text of a script means, in the writing of a language file: \n and \r are the same in both.
std::u16string Meaning(CResText text)
{
    std::u16string plain;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const char16_t next = text[i] == u'\\' && i + 1 < text.size() ? text[i + 1] : u'\0';
        if (next == u't' || next == u'"' || next == u'\\')
        {
            plain += next == u't' ? u'\t' : next;
            ++i;
        }
        else
            plain += text[i];
    }
    return plain;
}

// "&Open...\tCtrl+O" has the key "Open...".
std::u16string PopupKey(CResText text)
{
    std::u16string key = Meaning(text);
    key.resize(std::min(key.find(u'\t'), key.size()));
    key.erase(std::remove(key.begin(), key.end(), u'&'), key.end());
    return key;
}

void Set(XIni& ini, CResText section, CResText key, CResText text)
{
    ini.SetStr(units::to_string(section), units::to_string(key), units::to_string(Meaning(text)));
}

struct Translated
{
    CResText dialog;
    CResText symbol;
    CResText text;
};

// The texts of one dialog's controls that can be found again.
void AddControls(const CResDialog& one, const CResDialog& two, std::vector<Translated>& all)
{
    for (const CResDialogControl& control : one.m_items)
    {
        const int partner = two.m_items.Find(control.m_strID);
        const bool isAlone = one.m_items.Find(control.m_strID, 1) < 0;
        if (IsSymbol(control.m_strID) && isAlone && partner >= 0)
            if (const CResText text = two.m_items.GetAt(static_cast<std::size_t>(partner)).m_strText;
                !text.empty())
                all.push_back({one.m_strName, control.m_strID, text});
    }
}

void WriteDialogs(const CResources& original, const CResources& translated, XIni& ini)
{
    std::vector<Translated> all;
    for (std::size_t i = 0; i < original.Dialogs().GetCount(); ++i)
    {
        const CResDialog& one = original.Dialogs().GetAt(i);
        const int partner = translated.Dialogs().Find(one.m_strName);
        if (partner < 0 || original.Dialogs().RankOf(i) != 0)
            continue;
        const CResDialog& two = translated.Dialogs().GetAt(static_cast<std::size_t>(partner));
        if (!two.m_strCaption.empty())
            Set(ini, one.m_strName, one.m_strName, two.m_strCaption);
        AddControls(one, two, all);
    }

    struct Use
    {
        CResText text;
        bool isShared = false;
        bool isOne = true;
    };
    std::map<CResText, Use> uses;
    for (const Translated& entry : all)
    {
        const auto [use, isNew] = uses.try_emplace(entry.symbol, Use{entry.text});
        use->second.isShared = use->second.isShared || !isNew;
        use->second.isOne = use->second.isOne && use->second.text == entry.text;
    }
    for (const Translated& entry : all)
    {
        const Use& use = uses.find(entry.symbol)->second;
        Set(ini, use.isShared && use.isOne ? CResText(u"DIALOG") : entry.dialog, entry.symbol, entry.text);
    }
}

void WriteMenus(const CResources& original, const CResources& translated, XIni& ini)
{
    for (const CResMenu& one : original.Menus())
    {
        const int partner = translated.Menus().Find(one.m_strName);
        if (partner < 0)
            continue;
        const auto& items2 = translated.Menus().GetAt(static_cast<std::size_t>(partner)).m_items;
        for (std::size_t i = 0; i < one.m_items.GetCount(); ++i)
        {
            const CResMenuItem& item = one.m_items.GetAt(i);
            const int at = items2.Find(item.m_strID, one.m_items.RankOf(i));
            const CResText text = at < 0 ? CResText() : items2.GetAt(static_cast<std::size_t>(at)).m_strText;
            const bool isPopup = item.m_strID.starts_with(u"POPUP");
            const std::u16string key = isPopup ? PopupKey(item.m_strText) : std::u16string(item.m_strID);
            if (!text.empty() && !key.empty() && (isPopup || IsSymbol(key)))
                Set(ini, u"MENUSTR", key, text);
        }
    }
}
} // namespace

void ExportIni(const CResources& original, const CResources& translated, const wchar_t* pszProject,
               int nCodePage, XIni& ini)
{
    ini.SetStr(L"GENERAL", L"CODEPAGE", std::to_wstring(nCodePage).c_str());
    ini.SetStr(L"GENERAL", L"PROJECT", pszProject);
    WriteDialogs(original, translated, ini);
    WriteMenus(original, translated, ini);
}

int CodePageOfLanguage(const wchar_t* pszLanguage)
{
    const CString language(pszLanguage);
    for (const LanguagePage& row : pages)
        if (language.CompareNoCase(row.word) == 0 || language == row.number)
            return row.page;
    return 1252;
}
