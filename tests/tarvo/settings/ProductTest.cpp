#include "tarvo/settings/Product.h"

#include "tarvo/settings/Registry.h"
#include "tests/support/Self.h"
#include "tests/support/TestHost.h"
#include "tests/support/TestRegistry.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace
{
constexpr const wchar_t* pszTest = L"HKEY_CURRENT_USER\\Software\\KORAL\\TEST";
constexpr const wchar_t* pszCommon = L"HKEY_CURRENT_USER\\Software\\KORAL\\COMMON";
constexpr const wchar_t* pszMachine = L"HKEY_LOCAL_MACHINE\\Software\\KORAL\\COMMON";
constexpr const wchar_t* pszDwm = L"HKEY_CURRENT_USER\\Software\\Mocrosoft\\Windows\\DWM";

/// Opens what only derived classes may call.
struct Product : CProduct
{
    using CProduct::CheckCzech;
    using CProduct::CheckIndia;
    using CProduct::CheckMalaysia;
    using CProduct::CheckTaiwan;
    using CProduct::CheckTunnel;
    using CProduct::Initialize;
};

struct ProductTest : testing::Test
{
    ProductTest()
    {
        for (const wchar_t* key : {pszTest, pszCommon, pszMachine, pszDwm})
            own.borrow(key);
        CProduct::m_bMovingLoadBatch = 0;
    }
    ~ProductTest() override
    {
        for (const wchar_t* key : {pszTest, pszCommon, pszMachine})
            for (const wchar_t* name : {L"Moving Type", L"Moving Load Batch", L"Design Output Type",
                                        L"Taiwan", L"Czech", L"Malaysia", L"Tunnel", L"India"})
                CRegistry::WriteProfileStringW(key, name, nullptr);
        CProduct::m_bMovingLoadBatch = 0;
        Product::Initialize();
    }
    static void Put(const wchar_t* key, const wchar_t* name, const wchar_t* text)
    {
        ASSERT_EQ(CRegistry::WriteProfileStringW(key, name, text), 1);
    }
    /// The flag that Initialize sets for the text of a TEST value, null for an absent one.
    static int Read(const wchar_t* name, const wchar_t* text, const int& flag)
    {
        if (text)
            Put(pszTest, name, text);
        else
            CRegistry::WriteProfileStringW(pszTest, name, nullptr);
        EXPECT_EQ(Product::Initialize(), 1);
        return flag;
    }

    TestRegistry own;
};

struct Edition
{
    const wchar_t* name;
    int (*check)();
    int (*is)();
};

const Edition aEditions[] = {
    {L"Taiwan", &Product::CheckTaiwan, &CProduct::IsTaiwan},
    {L"Czech", &Product::CheckCzech, &CProduct::IsCzech},
    {L"Malaysia", &Product::CheckMalaysia, &CProduct::IsMalaysia},
    {L"Tunnel", &Product::CheckTunnel, &CProduct::IsTunnel},
};
} // namespace

TEST_F(ProductTest, FlagsAreReadOnceAsTheLibraryIsLoaded)
{
    EXPECT_EQ(CProduct::m_bInit, 1);
    Put(pszTest, L"Moving Type", L"_RUS");
    Put(pszTest, L"Moving Load Batch", L"_test");
    Put(pszTest, L"Design Output Type", L"VAL_EX");
    Put(pszTest, L"Taiwan", L"yes");
    Put(pszCommon, L"Tunnel", L"yes");
    EXPECT_EQ(CProduct::GetMovingType(), 0) << "a change while the host runs";
    EXPECT_EQ(run_self("ProductAtLoad.SeesWhatTheRegistryHolds"), 0);
}

TEST(ProductAtLoad, SeesWhatTheRegistryHolds)
{
    EXPECT_EQ(CProduct::m_bInit, 1);
    if (!is_run_by_self())
        return; // the rest needs the registry of ProductTest.FlagsAreReadOnceAsTheLibraryIsLoaded
    EXPECT_EQ(CProduct::GetMovingType(), 4);
    EXPECT_EQ(CProduct::IsMovLoadBatchTestMode(), 1);
    EXPECT_EQ(CProduct::GetDesignOutputType(), 5);
    EXPECT_EQ(CProduct::IsTaiwan(), 1);
    EXPECT_EQ(CProduct::IsTunnel(), 1);
    EXPECT_EQ(CProduct::IsCzech() + CProduct::IsMalaysia() + CProduct::IsIndia(), 0);
}

TEST_F(ProductTest, EmptyRegistryGivesNoFlagAtAll)
{
    EXPECT_EQ(Product::Initialize(), 1);
    EXPECT_EQ(CProduct::GetProductID(), 2);
    EXPECT_EQ(
        CProduct::GetMovingType() + CProduct::IsMovLoadBatchTestMode() + CProduct::GetDesignOutputType(), 0);
    EXPECT_EQ(CProduct::IsIndia() + CProduct::IsTaiwan() + CProduct::IsCzech() + CProduct::IsMalaysia() +
                  CProduct::IsTunnel(),
              0);
    EXPECT_EQ(CProduct::m_bAluminiumUse, 0);
}

TEST_F(ProductTest, MovingTypeIsOneOfFiveWordsInAnyLetterCase)
{
    struct Row
    {
        const wchar_t* text;
        int nType;
    };
    const Row rows[] = {
        {L"_JP", 1},  {L"_CH", 2},  {L"_US", 3},  {L"_RUS", 4}, {L"_ALL", 100}, {L"_all", 100},
        {L"_rUs", 4}, {L"JP", 0},   {L"_JP ", 0}, {L" _JP", 0}, {L"", 0},       {L"1", 0},
        {L"_KR", 0},  {nullptr, 0}, {L"_US", 3},  {nullptr, 0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Read(L"Moving Type", row.text, CProduct::m_nMovingType), row.nType) << &row - rows;
}

TEST_F(ProductTest, MovingTypeHundredIsEveryType)
{
    Read(L"Moving Type", L"_all", CProduct::m_nMovingType);
    for (const int nType : {-1, 0, 1, 4, 100, 999})
        EXPECT_EQ(CProduct::IsMovingType(nType), 1) << nType;
    Read(L"Moving Type", L"_CH", CProduct::m_nMovingType);
    for (const int nType : {-1, 0, 1, 2, 3, 100})
        EXPECT_EQ(CProduct::IsMovingType(nType), nType == 2) << nType;
    EXPECT_EQ(CProduct::GetMovingType(), 2);
}

TEST_F(ProductTest, MovingLoadBatchNeedsItsWordAndKeepsItsStateWhenAbsent)
{
    const int& flag = CProduct::m_bMovingLoadBatch;
    EXPECT_EQ(Read(L"Moving Load Batch", L"_TEST", flag), 1);
    EXPECT_EQ(Read(L"Moving Load Batch", nullptr, flag), 1) << "absent leaves it";
    EXPECT_EQ(Read(L"Moving Load Batch", L"TEST", flag), 0);
    EXPECT_EQ(Read(L"Moving Load Batch", nullptr, flag), 0);
    EXPECT_EQ(Read(L"Moving Load Batch", L"_tEsT", flag), 1);
    EXPECT_EQ(CProduct::IsMovLoadBatchTestMode(), 1);
    EXPECT_EQ(Read(L"Moving Load Batch", L"", flag), 0);
}

TEST_F(ProductTest, DesignOutputTypeAndItsPartsFollowTheWord)
{
    struct Row
    {
        const wchar_t* text;
        int nType, bResult, nKind, bEx, bRow, bCol;
    };
    const Row rows[] = {
        {nullptr, 0, 0, 0, 1, 1, 1},
        {L"", 0, 0, 0, 1, 1, 1},
        {L"YES", 0, 0, 0, 1, 1, 1},
        {L"yes", 0, 0, 0, 1, 1, 1},
        {L"Excel", 0, 0, 0, 1, 1, 1},
        {L"HIS", 0, 0, 0, 1, 1, 1},
        {L"HIS_EX_ROW_UCOL", 0, 0, 0, 1, 1, 1},
        {L"HIS_UEX_UROW_UCOL", 0, 0, 0, 1, 1, 1},
        {L"HIS_EX_ROW", 1, 1, 1, 1, 1, 1},
        {L"HIS_EX", 1, 1, 1, 1, 1, 1},
        {L"his_ex", 1, 1, 1, 1, 1, 1},
        {L"HIS_EX_UROW", 2, 1, 1, 1, 0, 1},
        {L"HIS_UEX_ROW", 3, 1, 1, 0, 1, 1},
        {L"HIS_UEX", 3, 1, 1, 0, 1, 1},
        {L"HIS_UEX_UROW", 4, 1, 1, 0, 0, 1},
        {L"VAL_EX_ROW", 5, 1, 2, 1, 1, 1},
        {L"Val_Ex", 5, 1, 2, 1, 1, 1},
        {L"VAL_EX_UROW", 6, 1, 2, 1, 0, 1},
        {L"VAL_UEX_ROW", 7, 1, 2, 0, 1, 1},
        {L"VAL_UEX", 7, 1, 2, 0, 1, 1},
        {L"VAL_UEX_UROW", 8, 1, 2, 0, 0, 1},
        {L"VAL_UEX_UROW_UCOL", 9, 1, 2, 0, 0, 0},
        {L" VAL_EX", 0, 0, 0, 1, 1, 1},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(Read(L"Design Output Type", row.text, CProduct::m_nDesignOutputType), row.nType)
            << &row - rows;
        int nKind = 7, bEx = 7, bRow = 7, bCol = 7;
        EXPECT_EQ(CProduct::GetTestOutType(nKind, bEx, bRow, bCol), row.bResult) << &row - rows;
        EXPECT_EQ(std::to_string(nKind) + std::to_string(bEx) + std::to_string(bRow) + std::to_string(bCol),
                  std::to_string(row.nKind) + std::to_string(row.bEx) + std::to_string(row.bRow) +
                      std::to_string(row.bCol))
            << &row - rows;
    }
}

TEST_F(ProductTest, DesignOutputTypeThatIsSetTakesEffectAtOnceAndUnknownOnesGiveTheDefaults)
{
    int nKind = 7, bEx = 7, bRow = 7, bCol = 7;
    CProduct::SetDesignOutputType(9);
    EXPECT_EQ(CProduct::GetTestOutType(nKind, bEx, bRow, bCol), 1);
    EXPECT_EQ(nKind * 1000 + bEx * 100 + bRow * 10 + bCol, 2000);
    for (const int nType : {12, 10, -1, 0, 0x7FFFFFFF, static_cast<int>(0x80000000)})
    {
        CProduct::SetDesignOutputType(nType);
        EXPECT_EQ(CProduct::GetDesignOutputType(), nType);
        EXPECT_EQ(CProduct::GetTestOutType(nKind, bEx, bRow, bCol), 0);
        EXPECT_EQ(nKind * 1000 + bEx * 100 + bRow * 10 + bCol, 111) << nType;
    }
}

TEST_F(ProductTest, EditionIsOnByATestersYes)
{
    for (const Edition& edition : aEditions)
    {
        EXPECT_EQ(edition.check(), 0);
        Put(pszTest, edition.name, L"YES");
        EXPECT_EQ(edition.check(), 1);
        Put(pszTest, edition.name, L"yEs");
        EXPECT_EQ(edition.check(), 1);
        Put(pszTest, edition.name, L"1");
        EXPECT_EQ(edition.check(), 0);
        EXPECT_EQ(edition.is(), 0) << "the flag is older";
        Put(pszTest, edition.name, L"Yes");
        Product::Initialize();
        EXPECT_EQ(edition.is(), 1);
    }
}

TEST_F(ProductTest, EditionIsOnByTheUsersCommonKey)
{
    for (const Edition& edition : aEditions)
    {
        Put(pszCommon, edition.name, L"yes");
        EXPECT_EQ(edition.check(), 1);
        Put(pszTest, edition.name, L"No");
        EXPECT_EQ(edition.check(), 1) << "a tester can only turn an edition on";
        Put(pszCommon, edition.name, L"no");
        EXPECT_EQ(edition.check(), 0);
        Put(pszCommon, edition.name, L"yes ");
        EXPECT_EQ(edition.check(), 0);
    }
}

TEST_F(ProductTest, OnlyTheCzechEditionIsLookedForUnderTheMachineToo)
{
    for (const Edition& edition : aEditions)
        Put(pszMachine, edition.name, L"yes");
    EXPECT_EQ(Product::CheckCzech(), 1);
    EXPECT_EQ(Product::CheckTaiwan() + Product::CheckMalaysia() + Product::CheckTunnel(), 0);
    Put(pszCommon, L"Czech", L"no");
    EXPECT_EQ(Product::CheckCzech(), 0) << "the user's value hides the machine's";
    Put(pszCommon, L"Czech", L"");
    EXPECT_EQ(Product::CheckCzech(), 0);
}

TEST_F(ProductTest, IndiaIsNeverOn)
{
    for (const wchar_t* key : {pszTest, pszCommon, pszMachine})
        Put(key, L"India", L"yes");
    Product::Initialize();
    EXPECT_EQ(Product::CheckIndia(), 0);
    EXPECT_EQ(CProduct::IsIndia(), 0);
}

TEST_F(ProductTest, InitialisingAgainTakesBackEveryEdition)
{
    for (const Edition& edition : aEditions)
        Put(pszTest, edition.name, L"yes");
    Product::Initialize();
    for (const Edition& edition : aEditions)
        Put(pszTest, edition.name, nullptr);
    CProduct::m_bIndia = 1;
    Product::Initialize();
    for (const Edition& edition : aEditions)
        EXPECT_EQ(edition.is(), 0);
    EXPECT_EQ(CProduct::IsIndia(), 0);
}

TEST_F(ProductTest, TestValueIsReadAnewByEveryCall)
{
    for (const wchar_t* name :
         {L"Hide Version", L"Batch Output", L"Post Batch", L"Staad Import", L"Columnn Shortening Text",
          L"QLX", L"Design Output", L"No Shear Stress", L"Guider", L"Jud_Test", L"INIFindMode", L"Any Other"})
    {
        EXPECT_EQ(CProduct::GetTestEnvValue(name), L"");
        Put(pszTest, name, L"yes");
        EXPECT_EQ(CProduct::GetTestEnvValue(name), L"yes");
        Put(pszTest, name, L"No");
        EXPECT_EQ(CProduct::GetTestEnvValue(name), L"No");
        Put(pszTest, name, nullptr);
        EXPECT_EQ(CProduct::GetTestEnvValue(name), L"");
    }
    EXPECT_EQ(CProduct::GetTestEnvValue(nullptr), L"");
}

TEST_F(ProductTest, DialogFontsHaveDefaultsWithAndWithoutAHost)
{
    struct Row
    {
        const wchar_t* name;
        CString strDefault;
    };
    const Row rows[] = {
        {L"DlgFontName_Std", CString(wchar_t(0xAD74)) + wchar_t(0xB9BC)},
        {L"DlgFontSize_Std", L"9"},
        {L"DlgFontName_Eng", L"Lucida Console"},
        {L"DlgFontSize_Eng", L"8"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(CProduct::GetTestEnvValue(row.name), row.strDefault);
    const TestHost host(own.name().c_str(), L"Program");
    for (const Row& row : rows)
        EXPECT_EQ(CProduct::GetTestEnvValue(row.name), row.strDefault);
}

TEST_F(ProductTest, DialogFontsComeFromTheHostsProfileAndNotFromTheTestKey)
{
    const TestHost host(own.name().c_str(), L"Program");
    const std::wstring profile = own.key() + L"\\Program\\ENV_GENERAL";
    for (const wchar_t* name :
         {L"DlgFontName_Std", L"DlgFontSize_Std", L"DlgFontName_Eng", L"DlgFontSize_Eng"})
    {
        Put(pszTest, name, L"from the test key");
        EXPECT_NE(CProduct::GetTestEnvValue(name), L"from the test key");
        Put(profile.c_str(), name, L"from the profile");
        EXPECT_EQ(CProduct::GetTestEnvValue(name), L"from the profile");
        Put(profile.c_str(), name, L"");
        EXPECT_EQ(CProduct::GetTestEnvValue(name), L"");
    }
}

TEST_F(ProductTest, DialogFontNamesAreComparedWithCase)
{
    Put(pszTest, L"DLGFONTNAME_ENG", L"from the test key");
    EXPECT_EQ(CProduct::GetTestEnvValue(L"DlgFontName_eng"), L"from the test key");
    EXPECT_EQ(CProduct::GetTestEnvValue(L"DlgFontName_Eng"), L"Lucida Console");
}

TEST_F(ProductTest, AeroPeekModeFlipsBetweenOneAndZero)
{
    const auto stored = [] {
        int nValue = -7;
        CRegistry::GetProfileIntW(pszDwm, L"EnableAeroPeek", nValue);
        return nValue;
    };
    EXPECT_EQ(CProduct::EnableDisableAeroPeekMode(), 1);
    EXPECT_EQ(stored(), 1) << "absent becomes 1";
    EXPECT_EQ(CProduct::EnableDisableAeroPeekMode(), 1);
    EXPECT_EQ(stored(), 0);
    EXPECT_EQ(CProduct::EnableDisableAeroPeekMode(), 1);
    EXPECT_EQ(stored(), 1);
    for (const int nOther : {2, 5, -2})
    {
        CRegistry::WriteProfileInt(pszDwm, L"EnableAeroPeek", nOther);
        EXPECT_EQ(CProduct::EnableDisableAeroPeekMode(), 1);
        EXPECT_EQ(stored(), nOther);
    }
    CRegistry::WriteProfileInt(pszDwm, L"EnableAeroPeek", -1);
    CProduct::EnableDisableAeroPeekMode();
    EXPECT_EQ(stored(), 1);
}

TEST_F(ProductTest, DamagedValuesAreAsIfUnknown)
{
    // An integer where a word belongs reads as one character; nothing matches it.
    CRegistry::WriteProfileInt(pszTest, L"Moving Type", 0x41);
    CRegistry::WriteProfileInt(pszTest, L"Design Output Type", -1);
    const std::wstring longText(1 << 19, L'x');
    Put(pszTest, L"Moving Load Batch", longText.c_str());
    Put(pszTest, L"Taiwan", longText.c_str());
    EXPECT_EQ(Product::Initialize(), 1);
    EXPECT_EQ(CProduct::GetMovingType() + CProduct::GetDesignOutputType() +
                  CProduct::IsMovLoadBatchTestMode() + CProduct::IsTaiwan(),
              0);
}
