#include "tarvo/settings/Product.h"

#include "tarvo/settings/HostApp.h"
#include "tarvo/settings/Registry.h"

#include <iterator>

namespace
{
constexpr const wchar_t* pszUserCommonKey = L"HKEY_CURRENT_USER\\Software\\KORAL\\COMMON";
constexpr const wchar_t* pszMachineCommonKey = L"HKEY_LOCAL_MACHINE\\Software\\KORAL\\COMMON";
// "Mocrosoft" is the key's name: the value is the product's own, not the system's.
constexpr const wchar_t* pszDwmKey = L"HKEY_CURRENT_USER\\Software\\Mocrosoft\\Windows\\DWM";
constexpr const wchar_t* pszAeroPeek = L"EnableAeroPeek";

struct WordRow
{
    const wchar_t* pszWord;
    int nNumber;
};

constexpr WordRow aMovingTypes[] = {{L"_JP", 1}, {L"_CH", 2}, {L"_US", 3}, {L"_RUS", 4}, {L"_ALL", 100}};
constexpr int nAllMovingTypes = 100;

// "YES" and "EXCEL" are deliberately no rows: they mean the same as no value.
constexpr WordRow aDesignOutputs[] = {
    {L"HIS_EX_ROW", 1},        {L"HIS_EX", 1},       {L"HIS_EX_UROW", 2}, {L"HIS_UEX_ROW", 3},
    {L"HIS_UEX", 3},           {L"HIS_UEX_UROW", 4}, {L"VAL_EX_ROW", 5},  {L"VAL_EX", 5},
    {L"VAL_EX_UROW", 6},       {L"VAL_UEX_ROW", 7},  {L"VAL_UEX", 7},     {L"VAL_UEX_UROW", 8},
    {L"VAL_UEX_UROW_UCOL", 9},
};

struct OutputParts
{
    int nKind, bEx, bRow, bCol;
};

/// By design output type.
constexpr OutputParts aOutputParts[] = {
    {0, 1, 1, 1}, {1, 1, 1, 1}, {1, 1, 0, 1}, {1, 0, 1, 1}, {1, 0, 0, 1},
    {2, 1, 1, 1}, {2, 1, 0, 1}, {2, 0, 1, 1}, {2, 0, 0, 1}, {2, 0, 0, 0},
};

struct FontRow
{
    const wchar_t* pszName;
    const wchar_t* pszDefault;
};

constexpr FontRow aFonts[] = {
    {L"DlgFontName_Std", L"\uAD74\uB9BC"}, // Gulim
    {L"DlgFontSize_Std", L"9"},
    {L"DlgFontName_Eng", L"Lucida Console"},
    {L"DlgFontSize_Eng", L"8"},
};

const CString& GetTestKey()
{
    static const CString strKey(L"HKEY_CURRENT_USER\\Software\\KORAL\\TEST");
    return strKey;
}

/// The number of the word that the TEST value holds, in any letter case; 0 for none of them.
template <class Rows>
int ReadWord(const wchar_t* valueName, const Rows& rows)
{
    CString strWord;
    if (!CRegistry::GetProfileStringW(GetTestKey(), valueName, strWord))
        return 0;
    strWord.MakeUpper();
    for (const WordRow& row : rows)
        if (strWord == row.pszWord)
            return row.nNumber;
    return 0;
}

/// A tester's "Yes" decides; else the first of the common keys that holds the value.
template <class... Keys>
int CheckEdition(const wchar_t* name, Keys... keys)
{
    if (CProduct::GetTestEnvValue(name).CompareNoCase(L"Yes") == 0)
        return 1;
    CString strValue;
    for (const wchar_t* key : {keys...})
        if (CRegistry::GetProfileStringW(key, name, strValue))
            return strValue.CompareNoCase(L"YES") == 0;
    return 0;
}
} // namespace

int CProduct::m_nMovingType = 0;
int CProduct::m_bIndia = 0;
int CProduct::m_bTaiwan = 0;
int CProduct::m_bCzech = 0;
int CProduct::m_bMalaysia = 0;
int CProduct::m_bTunnel = 0;
int CProduct::m_bMovingLoadBatch = 0;
int CProduct::m_nDesignOutputType = 0;
int CProduct::m_bAluminiumUse = 0;
// Last, and while the library is loaded: no caller may ask before.
int CProduct::m_bInit = CProduct::Initialize();

int CProduct::Initialize()
{
    m_nMovingType = ReadWord(L"Moving Type", aMovingTypes);
    m_bIndia = CheckIndia() != 0;
    m_bTaiwan = CheckTaiwan() != 0;
    m_bCzech = CheckCzech() != 0;
    m_bMalaysia = CheckMalaysia() != 0;
    m_bTunnel = CheckTunnel() != 0;
    CString strBatch;
    if (CRegistry::GetProfileStringW(GetTestKey(), L"Moving Load Batch", strBatch))
        m_bMovingLoadBatch = strBatch.MakeUpper() == L"_TEST";
    m_nDesignOutputType = ReadWord(L"Design Output Type", aDesignOutputs);
    return 1;
}

int CProduct::GetProductID() { return 2; }

int CProduct::IsIndia() { return m_bIndia; }
int CProduct::IsTaiwan() { return m_bTaiwan; }
int CProduct::IsCzech() { return m_bCzech; }
int CProduct::IsMalaysia() { return m_bMalaysia; }
int CProduct::IsTunnel() { return m_bTunnel; }

int CProduct::GetMovingType() { return m_nMovingType; }

int CProduct::IsMovingType(int nType) { return m_nMovingType == nAllMovingTypes || m_nMovingType == nType; }

int CProduct::IsMovLoadBatchTestMode() { return m_bMovingLoadBatch; }

int CProduct::GetDesignOutputType() { return m_nDesignOutputType; }

void CProduct::SetDesignOutputType(int nType) { m_nDesignOutputType = nType; }

int CProduct::GetTestOutType(int& nKind, int& bEx, int& bRow, int& bCol)
{
    const int nType = m_nDesignOutputType;
    const bool bKnown = nType >= 0 && nType < static_cast<int>(std::size(aOutputParts));
    const OutputParts& parts = aOutputParts[bKnown ? nType : 0];
    nKind = parts.nKind;
    bEx = parts.bEx;
    bRow = parts.bRow;
    bCol = parts.bCol;
    return nKind != 0;
}

CString CProduct::GetTestEnvValue(const wchar_t* name)
{
    const CString strName(name);
    for (const FontRow& row : aFonts)
        if (strName == row.pszName)
            return CHostApp::ReadText(L"ENV_GENERAL", row.pszName, row.pszDefault);
    CString strValue;
    CRegistry::GetProfileStringW(GetTestKey(), strName, strValue);
    return strValue;
}

int CProduct::EnableDisableAeroPeekMode()
{
    int nMode = -1;
    CRegistry::GetProfileIntW(pszDwmKey, pszAeroPeek, nMode);
    if (nMode == 1)
        nMode = 0;
    else if (nMode == 0 || nMode == -1)
        nMode = 1;
    CRegistry::WriteProfileInt(pszDwmKey, pszAeroPeek, nMode);
    return 1;
}

int CProduct::CheckIndia() { return 0; }
int CProduct::CheckTaiwan() { return CheckEdition(L"Taiwan", pszUserCommonKey); }
int CProduct::CheckCzech() { return CheckEdition(L"Czech", pszUserCommonKey, pszMachineCommonKey); }
int CProduct::CheckMalaysia() { return CheckEdition(L"Malaysia", pszUserCommonKey); }
int CProduct::CheckTunnel() { return CheckEdition(L"Tunnel", pszUserCommonKey); }
