#include "tarvo/settings/Registry.h"

#include "platform/codepage.h"
#include "platform/registry.h"
#include "tests/support/TestHost.h"
#include "tests/support/TestRegistry.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace registry = platform::registry;

namespace
{
struct KeyCloser
{
    void operator()(HKEY hKey) const { registry::close(hKey); }
};
using CKey = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

CKey Open(const std::wstring& path, int bReadOnly = 1)
{
    return CKey(CRegistry::GetRegistryKey(path.c_str(), bReadOnly));
}

struct RegistryTest : testing::Test
{
    /// Writes a value of any type and size, past what CRegistry offers.
    void Put(const wchar_t* name, std::uint32_t type, const std::string& data) const
    {
        const CKey key = Open(path, 0);
        ASSERT_TRUE(key && registry::set(key.get(), name, type, data.data(), data.size()));
    }
    /// The bytes of a value as hexadecimal text, its type in front.
    std::string Stored(const std::wstring& keyPath, const wchar_t* name) const
    {
        char data[64];
        std::size_t nSize = sizeof data;
        std::uint32_t type = 0;
        const CKey key = Open(keyPath);
        if (!key || !registry::query(key.get(), name, data, nSize, &type))
            return "(none)";
        std::string text = std::to_string(type) + ":";
        for (std::size_t i = 0; i < nSize; ++i)
            for (const int nShift : {4, 0})
                text += "0123456789abcdef"[(data[i] >> nShift) & 15];
        return text;
    }
    CString Text(const std::wstring& keyPath, const wchar_t* name) const
    {
        CString strValue(L"(untouched)");
        const int bFound = CRegistry::GetProfileStringW(keyPath.c_str(), name, strValue);
        EXPECT_EQ(bFound == 1, strValue != L"(untouched)");
        return strValue;
    }

    TestRegistry own;
    const std::wstring path = own.key();
};

std::string Bytes(const std::wstring& text) { return platform::codepage::to_utf16le(text); }
} // namespace

TEST_F(RegistryTest, RootAloneIsNeverHandedOut)
{
    for (const wchar_t* root :
         {L"HKEY_CURRENT_USER", L"HKEY_CURRENT_USER\\", L"HKEY_LOCAL_MACHINE", L"HKEY_USERS\\"})
        for (const int bReadOnly : {0, 1})
            EXPECT_EQ(Open(root, bReadOnly).get(), nullptr) << bReadOnly;
}

TEST_F(RegistryTest, EachRootNameStandsForItsPredefinedKeyInAnyLetterCase)
{
    struct Row
    {
        const wchar_t* big;
        const wchar_t* small;
        std::uint32_t number;
    };
    const Row rows[] = {
        {L"HKEY_CLASSES_ROOT", L"hkey_classes_root", 0x80000000u},
        {L"HKEY_CURRENT_USER", L"hkey_current_user", 0x80000001u},
        {L"HKEY_LOCAL_MACHINE", L"Hkey_Local_Machine", 0x80000002u},
        {L"HKEY_USERS", L"hKEY_uSERS", 0x80000003u},
        {L"HKEY_CURRENT_CONFIG", L"hkey_current_config", 0x80000005u},
    };
    for (const Row& row : rows)
    {
        const HKEY hRoot = registry::root(static_cast<registry::Root>(row.number));
        const CKey made(registry::create(hRoot, own.name().c_str()));
        // Not every user may write below every root; there both spellings fail alike.
        for (const wchar_t* name : {row.big, row.small})
            EXPECT_EQ(Open(std::wstring(name) + L"\\" + own.name()) != nullptr, made != nullptr)
                << row.number;
        registry::remove_tree(hRoot, own.name().c_str());
    }
    EXPECT_NE(Open(L"hkey_current_user\\Software", 0).get(), nullptr);
}

TEST_F(RegistryTest, UnknownRootsYieldNull)
{
    for (const wchar_t* root : {L"HKCU", L"HKLM", L"HKEY_PERFORMANCE_DATA", L"HKEY_DYN_DATA",
                                L"HKEY_CURRENT_USERS", L"Software", L"", L" HKEY_CURRENT_USER"})
        EXPECT_EQ(Open(std::wstring(root) + L"\\Software", 0).get(), nullptr) << CStringA(root).GetString();
    EXPECT_EQ(CRegistry::GetRegistryKey(nullptr, 1), nullptr);
    EXPECT_EQ(CRegistry::GetRegistryKey(L"", 1), nullptr);
    EXPECT_EQ(CRegistry::GetRegistryKey(L"\\", 1), nullptr);
}

TEST_F(RegistryTest, TrailingAndDoubledBackslashesOpenTheSameKey)
{
    ASSERT_EQ(CRegistry::WriteProfileStringW((path + L"\\Sub").c_str(), L"v", L"1"), 1);
    EXPECT_EQ(Text(path + L"\\Sub\\", L"v"), L"1");
    EXPECT_EQ(Text(path + L"\\\\Sub", L"v"), L"1");
    EXPECT_EQ(Text(path + L"\\Sub\\\\", L"v"), L"1");
}

TEST_F(RegistryTest, WritingCreatesMissingKeysAndReadingCreatesNone)
{
    const std::wstring deep = path + L"\\One\\Two\\Three";
    EXPECT_EQ(Open(deep).get(), nullptr);
    EXPECT_EQ(Text(deep, L"v"), L"(untouched)");
    int nValue = 7;
    EXPECT_EQ(CRegistry::GetProfileIntW(deep.c_str(), L"v", nValue), 0);
    EXPECT_EQ(Open(path).get(), nullptr) << "reading made a key";
    EXPECT_EQ(CRegistry::WriteProfileInt(deep.c_str(), L"v", 1), 1);
    EXPECT_NE(Open(deep).get(), nullptr);
}

TEST_F(RegistryTest, ReadOnlyKeyIsNotWrittenThrough)
{
    ASSERT_EQ(CRegistry::WriteProfileInt(path.c_str(), L"v", 1), 1);
    EXPECT_FALSE(registry::set(Open(path, 1).get(), L"v", 4, "1234", 4));
    EXPECT_TRUE(registry::set(Open(path, 0).get(), L"v", 4, "1234", 4));
}

TEST_F(RegistryTest, IntegerIsStoredAsFourBytesAndComesBack)
{
    for (const int nWritten : {0, 1, -1, 0x12345678, static_cast<int>(0x80000000)})
    {
        int nRead = 77;
        EXPECT_EQ(CRegistry::WriteProfileInt(path.c_str(), L"n", nWritten), 1);
        EXPECT_EQ(CRegistry::GetProfileIntW(path.c_str(), L"n", nRead), 1);
        EXPECT_EQ(nRead, nWritten);
    }
    CRegistry::WriteProfileInt(path.c_str(), L"n", 0x12345678);
    EXPECT_EQ(Stored(path, L"n"), "4:78563412");
}

TEST_F(RegistryTest, IntegerTakesAnyValueOfAtMostFourBytes)
{
    struct Row
    {
        std::uint32_t type;
        std::string data;
        int bFound, nValue;
    };
    const Row rows[] = {
        {4, std::string("\x01\0\0\x80", 4), 1, static_cast<int>(0x80000001)},
        {3, "\xff", 1, 255},
        {3, "\x01\x02\x03", 1, 0x030201},
        {3, "", 1, 0},
        {1, std::string("7\0\0\0", 4), 1, '7'},
        {1,
         std::string("1\0"
                     "2\0\0\0",
                     6),
         0, 77},
        {3, "12345", 0, 77},
        {11, "12345678", 0, 77},
        {3, std::string(1 << 20, 'x'), 0, 77},
    };
    for (const Row& row : rows)
    {
        Put(L"v", row.type, row.data);
        int nValue = 77;
        EXPECT_EQ(CRegistry::GetProfileIntW(path.c_str(), L"v", nValue), row.bFound) << &row - rows;
        EXPECT_EQ(nValue, row.nValue) << &row - rows;
    }
}

TEST_F(RegistryTest, TextIsStoredWithItsTerminatingNullAndComesBack)
{
    const std::wstring any = {L'a', 0xD55C, 0xD83D, 0xDE00, 0xD800, L'\\', L'"', L'\r', L'\n', L' '};
    for (const std::wstring& text :
         {std::wstring(), std::wstring(L"text"), any, std::wstring(1 << 19, 0xAC00)})
    {
        ASSERT_EQ(CRegistry::WriteProfileStringW(path.c_str(), L"s", text.c_str()), 1);
        EXPECT_TRUE(Text(path, L"s") == text.c_str()) << text.size();
    }
    CRegistry::WriteProfileStringW(path.c_str(), L"s", L"ab");
    EXPECT_EQ(Stored(path, L"s"), "1:610062000000");
    CRegistry::WriteProfileStringW(path.c_str(), L"s", L"");
    EXPECT_EQ(Stored(path, L"s"), "1:0000");
}

TEST_F(RegistryTest, TextIsTakenFromAnyTypeUpToItsFirstNullWithoutAnOddByte)
{
    struct Row
    {
        std::uint32_t type;
        std::string data;
        const wchar_t* text;
    };
    const Row rows[] = {
        {1, Bytes(L"open"), L"open"},
        {1, Bytes(std::wstring(L"one\0two\0", 8)), L"one"},
        {1, Bytes(L"odd") + "x", L"odd"},
        {1, Bytes(std::wstring(L"odd\0", 4)) + "x", L"odd"},
        {1, "x", L""},
        {1, "", L""},
        {2, Bytes(std::wstring(L"%A%\0", 4)), L"%A%"},
        {7, Bytes(std::wstring(L"a\0b\0\0", 5)), L"a"},
        {3, Bytes(L"bin"), L"bin"},
        {4, std::string("A\0\0\0", 4), L"A"},
    };
    for (const Row& row : rows)
    {
        Put(L"v", row.type, row.data);
        EXPECT_EQ(Text(path, L"v"), row.text) << &row - rows;
    }
}

TEST_F(RegistryTest, TextOfOneMebibyteIsReadWhole)
{
    Put(L"v", 3, std::string(1 << 20, 'x'));
    EXPECT_EQ(Text(path, L"v").GetLength(), 1 << 19);
}

TEST_F(RegistryTest, NullTextDeletesTheValueOnce)
{
    ASSERT_EQ(CRegistry::WriteProfileStringW(path.c_str(), L"s", L"text"), 1);
    EXPECT_EQ(CRegistry::WriteProfileStringW(path.c_str(), L"s", nullptr), 1);
    EXPECT_EQ(Text(path, L"s"), L"(untouched)");
    EXPECT_EQ(CRegistry::WriteProfileStringW(path.c_str(), L"s", nullptr), 0);
}

TEST_F(RegistryTest, NullNamesAreEmptyOnes)
{
    EXPECT_EQ(CRegistry::WriteProfileStringW(path.c_str(), nullptr, L"unnamed"), 1);
    EXPECT_EQ(Text(path, L""), L"unnamed");
    int nValue = 7;
    CString strValue;
    EXPECT_EQ(CRegistry::GetProfileIntW(nullptr, L"v", nValue), 0);
    EXPECT_EQ(CRegistry::GetProfileStringW(nullptr, L"v", strValue), 0);
    EXPECT_EQ(CRegistry::WriteProfileInt(nullptr, L"v", 1), 0);
    EXPECT_EQ(CRegistry::WriteProfileStringW(nullptr, L"v", L"x"), 0);
    EXPECT_EQ(CRegistry::WriteProfileStringW(nullptr, L"v", nullptr), 0);
}

TEST_F(RegistryTest, WritingWhereNoKeyCanBeMadeFails)
{
    const std::wstring endless = path + L"\\" + std::wstring(32000, L'k');
    EXPECT_EQ(CRegistry::WriteProfileInt(endless.c_str(), L"v", 1), 0);
    EXPECT_EQ(CRegistry::WriteProfileStringW(endless.c_str(), L"v", L"x"), 0);
    EXPECT_EQ(CRegistry::WriteProfileInt(L"HKEY_NOWHERE\\A", L"v", 1), 0);
    EXPECT_EQ(CRegistry::WriteProfileInt(path.c_str(), std::wstring(20000, L'v').c_str(), 1), 0);
}

TEST_F(RegistryTest, WithoutAHostThereAreNoPathsAndNoSettings)
{
    EXPECT_EQ(CRegistry::GetRegistryCompanyPath(0), L"");
    EXPECT_EQ(CRegistry::GetRegistryCompanyPath(1), L"");
    EXPECT_EQ(CRegistry::GetRegistryAppPath(0), L"");
    EXPECT_EQ(CRegistry::GetRegistryAppPath(1), L"");
    EXPECT_EQ(CRegistry::AppGetProfileInt(L"S", L"E", 42), 42);
    EXPECT_EQ(CRegistry::AppGetProfileString(L"S", L"E", L"default", 0), L"");
    EXPECT_EQ(CRegistry::AppGetProfileString(L"S", L"E", L"default", 1), L"");
    EXPECT_EQ(CRegistry::AppWriteProfileInt(L"S", L"E", 1), 0);
    EXPECT_EQ(CRegistry::AppWriteProfileString(L"S", L"E", L"x", 0), 0);
}

TEST_F(RegistryTest, PathsSpellTheTwoRootsAsTheyAlwaysDid)
{
    const TestHost host(L"Company", L"Program");
    EXPECT_EQ(CRegistry::GetRegistryCompanyPath(0), L"HKEY_CURRENT_USER\\Software\\Company");
    EXPECT_EQ(CRegistry::GetRegistryCompanyPath(1), L"HKEY_LOCAL_MACHINE\\SOFTWARE\\Company");
    EXPECT_EQ(CRegistry::GetRegistryAppPath(0), L"HKEY_CURRENT_USER\\Software\\Company\\Program");
    EXPECT_EQ(CRegistry::GetRegistryAppPath(1), L"HKEY_LOCAL_MACHINE\\SOFTWARE\\Company\\Program");
}

TEST_F(RegistryTest, HostWithoutACompanyOrAProfileNameHasNoSuchPath)
{
    const TestHost nameless(L"", L"Program");
    EXPECT_EQ(CRegistry::GetRegistryCompanyPath(0), L"");
    EXPECT_EQ(CRegistry::GetRegistryAppPath(1), L"");
    const TestHost firm(L"Company", nullptr);
    EXPECT_EQ(CRegistry::GetRegistryCompanyPath(0), L"HKEY_CURRENT_USER\\Software\\Company");
    EXPECT_EQ(CRegistry::GetRegistryAppPath(0), L"");
    EXPECT_EQ(CRegistry::AppGetProfileInt(L"S", L"E", 42), 42);
}

TEST_F(RegistryTest, SettingIsWrittenUnderBothRoots)
{
    const TestHost host(own.name().c_str(), L"Program");
    EXPECT_EQ(CRegistry::AppWriteProfileInt(L"Sec", L"n", 5), 1);
    EXPECT_EQ(CRegistry::AppWriteProfileString(L"Sec", L"s", L"text", 0), 1);
    EXPECT_EQ(CRegistry::AppWriteProfileString(L"Sec", L"s", L"firm", 1), 1);
    for (const wchar_t* root : {L"HKEY_CURRENT_USER", L"HKEY_LOCAL_MACHINE"})
    {
        const std::wstring company = std::wstring(root) + L"\\Software\\" + own.name();
        EXPECT_EQ(Stored(company + L"\\Program\\Sec", L"n"), "4:05000000");
        EXPECT_EQ(Text(company + L"\\Program\\Sec", L"s"), L"text");
        EXPECT_EQ(Text(company + L"\\Sec", L"s"), L"firm");
    }
    EXPECT_EQ(CRegistry::AppGetProfileInt(L"Sec", L"n", 42), 5);
    EXPECT_EQ(CRegistry::AppGetProfileString(L"Sec", L"s", L"default", 0), L"text");
    EXPECT_EQ(CRegistry::AppGetProfileString(L"Sec", L"s", L"default", 1), L"firm");
}

TEST_F(RegistryTest, SettingIsLookedForUnderTheUserFirstAndTheMachineSecond)
{
    const TestHost host(own.name().c_str(), L"Program");
    const CString strUser = CRegistry::GetRegistryAppPath(0) + L"\\Sec";
    const CString strMachine = CRegistry::GetRegistryAppPath(1) + L"\\Sec";
    EXPECT_EQ(CRegistry::AppGetProfileInt(L"Sec", L"n", 42), 42);
    EXPECT_EQ(CRegistry::AppGetProfileString(L"Sec", L"s", L"default", 0), L"default");
    EXPECT_EQ(CRegistry::AppGetProfileString(L"Sec", L"s", nullptr, 0), L"");
    CRegistry::WriteProfileInt(strMachine, L"n", 2);
    CRegistry::WriteProfileStringW(strMachine, L"s", L"machine");
    EXPECT_EQ(CRegistry::AppGetProfileInt(L"Sec", L"n", 42), 2);
    EXPECT_EQ(CRegistry::AppGetProfileString(L"Sec", L"s", L"default", 0), L"machine");
    CRegistry::WriteProfileInt(strUser, L"n", 1);
    CRegistry::WriteProfileStringW(strUser, L"s", L"");
    EXPECT_EQ(CRegistry::AppGetProfileInt(L"Sec", L"n", 42), 1);
    EXPECT_EQ(CRegistry::AppGetProfileString(L"Sec", L"s", L"default", 0), L"") << "empty is found";
}

TEST_F(RegistryTest, NullTextDeletesTheSettingUnderBothRoots)
{
    const TestHost host(own.name().c_str(), L"Program");
    ASSERT_EQ(CRegistry::AppWriteProfileString(L"Sec", L"s", L"text", 0), 1);
    EXPECT_EQ(CRegistry::AppWriteProfileString(L"Sec", L"s", nullptr, 0), 1);
    EXPECT_EQ(CRegistry::AppGetProfileString(L"Sec", L"s", L"default", 0), L"default");
    ASSERT_EQ(CRegistry::AppWriteProfileString(L"Sec", L"s", L"text", 1), 1);
    EXPECT_EQ(CRegistry::AppWriteProfileString(L"Sec", L"s", nullptr, 1), 1);
    EXPECT_EQ(CRegistry::AppGetProfileString(L"Sec", L"s", L"default", 1), L"default");
}

TEST_F(RegistryTest, ObjectsAreCopiedAndAssigned)
{
    CRegistry one, two(one);
    one = two;
    static_assert(std::has_virtual_destructor_v<CRegistry>);
}
