#include "tarvo/lang/XIni.h"

#include "tests/tarvo/lang/Dump.h"

#include <gtest/gtest.h>

#include <map>

using namespace std::string_literals;

TEST(XIni, IsEmptyWhenConstructed)
{
    XIni ini;
    EXPECT_EQ(ini.IsOpened(), 0);
    EXPECT_EQ(dump(ini), L"");
    EXPECT_EQ(ini.GetStr(nullptr, L"k", L"none"), L"none");
    EXPECT_EQ(ini.GetSection(nullptr), nullptr);
    EXPECT_EQ(ini.GetSection(L""), nullptr);
}

TEST(XIni, ParsesTheDocumentedLines)
{
    const struct
    {
        const wchar_t* source;
        const wchar_t* result;
    } rows[] = {
        {L"[A]\nkey = \"a \"b\" c\"\n", L"[A] key=a \"b\" c;"},
        {L"[A]\nkey=abc\nkey2 = abc\nkey3=\"x", L"[A] key=abc; key2== abc; key3=x;"},
        {L"[A]\nrem/**/key=\"v\"", L"[A] key=v;"},
        {L"[A]\nName\n", L"[A] Name=;"},
        {L"lost=1\nlost\n[A]\nk=1\n[]\nlost=2\nlost\n[  ]\nlost=3\n[B]\nk=2", L"[A] k=1; [B] k=2;"},
        {L"[A]\nk=1\nl=1\n[B]\n[A]\nk=2\n", L"[A] k=2; l=1; [B]"},
        {L"[A]\nk=1\nk=2\nk\n", L"[A] k=;"},
        {L"[A]\nk=1\nK=2\n", L"[A] K=2; k=1;"},
        {L"[b]\n[B]\n[a]\nz=1\ny=2\nx=3", L"[B] [a] x=3; y=2; z=1; [b]"},
        {L";c=1\n[A]\n;c=1\n\n  \n ; c\nk=1 ; kept", L"[A] k=1 ; kept;"},
        {L"[A]\n[open=x\n[open\n", L"[A] [open=;"},
        {L"[ A ]\r\n\tk\t= \"v\"\t\r\n", L"[A] k=v;"},
        {L"[A]\nk\r=\r\"v\"", L"[A] k=v;"},
        {L"[A]\n=x\n", L"[A] =x;"},
        {L"", L""},
        {L"\n\n", L""},
    };
    for (const auto& row : rows)
    {
        XIni ini;
        EXPECT_EQ(parse(ini, row.source), 1);
        EXPECT_EQ(dump(ini), row.result) << testing::PrintToString(std::wstring(row.source));
        EXPECT_EQ(ini.IsOpened(), 1);
    }
}

TEST(XIni, ParsesWideTextUpToTheBoundOrANul)
{
    XIni ini;
    EXPECT_EQ(ini.OpenMemory(L"[A]\nk=123", 8), 1);
    EXPECT_EQ(dump(ini), L"[A] k=12;");
    EXPECT_EQ(ini.OpenMemory(L"[B]\nk=1\0\nl=2", 13), 1);
    EXPECT_EQ(dump(ini), L"[A] k=12; [B] k=1;");
    XIni empty;
    EXPECT_EQ(empty.OpenMemory(L"[A]", -1), 1);
    EXPECT_EQ(empty.OpenMemory(static_cast<const wchar_t*>(nullptr), 3), 1);
    EXPECT_EQ(dump(empty), L"");
    EXPECT_EQ(empty.IsOpened(), 1);
}

TEST(XIni, MergesASecondBlock)
{
    XIni ini;
    parse(ini, L"[A]\nk=old\nl=1\n[Text]\nt=1");
    parse(ini, L"k=lost\n[A]\nk=newer and longer\nm=2\n[C]\nc=1\n[TEXT]\nt=2");
    EXPECT_EQ(dump(ini), L"[A] k=newer and longer; l=1; m=2; [C] c=1; [TEXT] t=2; [Text] t=1;");
    EXPECT_EQ(ini.GetStr(nullptr, L"t", L""), L"1");
}

TEST(XIni, TakesTheFirstTextSectionAsDefault)
{
    XIni ini;
    parse(ini, L"[A]\nk=1\n[Text]\nk=2\n[TEXT]\nk=3\n");
    EXPECT_EQ(ini.GetStr(nullptr, L"k", L""), L"2");
    EXPECT_EQ(ini.GetSection(nullptr), ini.GetSection(L"Text"));
    XIni fresh;
    parse(fresh, L"[Text]\nk=2\n[TEXT]\nk=3\n");
    EXPECT_EQ(fresh.GetStr(L"TEXT", L"k", L""), L"3");
    EXPECT_EQ(fresh.GetDefaultSection(), L"DEFAULT_SECTION");
}

TEST(XIni, ASectionMadeByAWriteIsNoDefault)
{
    XIni ini;
    EXPECT_EQ(ini.SetStr(L"TEXT", L"k", L"v"), 1);
    EXPECT_EQ(ini.GetStr(nullptr, L"k", L"none"), L"none");
}

TEST(XIni, LookUpInOtherLetterCaseSucceedsOnlyAfterAHit)
{
    XIni ini;
    parse(ini, L"[Dlg]\nk=v\n[Other]\nk=w");
    EXPECT_EQ(ini.GetStr(L"DLG", L"k", L"none"), L"none");
    EXPECT_EQ(ini.GetStr(L"Dlg", L"k", L"none"), L"v");
    EXPECT_EQ(ini.GetStr(L"DLG", L"k", L"none"), L"v");
    EXPECT_EQ(ini.GetStr(L"dlg", L"k", L"none"), L"v");
    EXPECT_EQ(ini.GetStr(L"Other", L"k", L"none"), L"w");
    EXPECT_EQ(ini.GetStr(L"DLG", L"k", L"none"), L"none");
    EXPECT_EQ(ini.GetStr(L"OTHER", L"k", L"none"), L"w") << "a miss leaves the last section found";
    EXPECT_EQ(ini.GetStr(L"Other", L"K", L"none"), L"none") << "keys keep their case";
}

TEST(XIni, WritesAndParsingUseTheRememberedSectionButDoNotChangeIt)
{
    XIni ini;
    parse(ini, L"[Dlg]\nk=v\n[Other]\n");
    ini.GetStr(L"Dlg", L"k", L"");
    ini.SetStr(L"DLG", L"set", L"1");
    parse(ini, L"[dLG]\nparsed=1\n");
    ini.SetStr(L"Other", L"x", L"1");
    ini.SetStr(L"OTHER", L"x", L"2");
    EXPECT_EQ(dump(ini), L"[Dlg] k=v; parsed=1; set=1; [OTHER] x=2; [Other] x=1;");
}

TEST(XIni, AnswersWithTheDefaultWhatIsMissing)
{
    XIni ini;
    parse(ini, L"[A]\nk=v\nempty=\nn=12\nneg=-1\nhex=0x10\nword=abc\n");
    EXPECT_EQ(ini.GetStr(L"A", L"k", L"d"), L"v");
    EXPECT_EQ(ini.GetStr(L"A", L"empty", L"d"), L"");
    EXPECT_EQ(ini.GetStr(L"A", L"none", L"d"), L"d");
    EXPECT_EQ(ini.GetStr(L"B", L"k", L"d"), L"d");
    EXPECT_EQ(ini.GetStr(L"A", L"none", nullptr), L"");
    EXPECT_EQ(ini.GetStr(L"A", nullptr, L"d"), L"d");

    CString text;
    EXPECT_EQ(ini.GetStr2(L"A", L"k", text, L"d"), 1);
    EXPECT_EQ(text, L"v");
    EXPECT_EQ(ini.GetStr2(L"A", L"none", text, L"d"), 0);
    EXPECT_EQ(text, L"d");

    EXPECT_EQ(ini.GetInt(L"A", L"n", 5, 10), 12);
    EXPECT_EQ(ini.GetInt(L"A", L"n", 5, 16), 18);
    EXPECT_EQ(ini.GetInt(L"A", L"neg", 5, 10), -1);
    EXPECT_EQ(ini.GetInt(L"A", L"hex", 5, 0), 16);
    EXPECT_EQ(ini.GetInt(L"A", L"word", 5, 10), 0);
    EXPECT_EQ(ini.GetInt(L"A", L"none", 5, 10), 5);
    EXPECT_EQ(ini.GetInt(L"B", L"n", 5, 10), 5);

    int number = 1;
    EXPECT_EQ(ini.GetInt2(L"A", L"none", number, 7, 10), 0);
    EXPECT_EQ(number, 7);
    EXPECT_EQ(ini.GetInt2(L"A", L"neg", number, 7, 10), 1);
    EXPECT_EQ(number, -1);
}

TEST(XIni, SetsValues)
{
    XIni ini;
    EXPECT_EQ(ini.SetStr(L"A", L"k", L"v"), 1);
    EXPECT_EQ(ini.SetStr(L"A", L"k", L"a longer value"), 1);
    EXPECT_EQ(ini.SetStr(L"A", L"l", nullptr), 1);
    EXPECT_EQ(ini.SetInt(L"A", L"n", -2147483647 - 1), 1);
    EXPECT_EQ(dump(ini), L"[A] k=a longer value; l=; n=-2147483648;");
    ini.SetStr(L"A", L"k", L"short");
    ini.SetStr(L"A", L"k", L"longer");
    EXPECT_EQ(dump(ini), L"[A] k=longer; l=; n=-2147483648;");
    EXPECT_EQ(ini.IsOpened(), 0) << "a write is no parse";
}

TEST(XIni, WritesToTheDefaultSectionByANullNameOrNotAtAll)
{
    XIni ini;
    EXPECT_EQ(ini.SetStr(nullptr, L"k", L"v"), 0);
    EXPECT_EQ(ini.SetInt(nullptr, L"k", 1), 0);
    EXPECT_EQ(ini.GetOrMakeSection(nullptr), nullptr);
    EXPECT_EQ(dump(ini), L"");
    parse(ini, L"[text]\n");
    EXPECT_EQ(ini.SetStr(nullptr, L"k", L"v"), 1);
    EXPECT_EQ(ini.SetInt(nullptr, L"n", 1), 1);
    EXPECT_EQ(dump(ini), L"[text] k=v; n=1;");
}

TEST(XIni, HoldsASectionWithAnEmptyName)
{
    XIni ini;
    EXPECT_EQ(ini.SetStr(L"", L"k", L"v"), 1);
    EXPECT_EQ(ini.GetStr(L"", L"k", L"none"), L"v");
}

TEST(XIni, OverwritingAValueThatReachesIntoItsKeyLeavesTheKey)
{
    XIni ini;
    parse(ini, L"[A]\nremark/**/key=v\nnext=1");
    EXPECT_EQ(dump(ini), L"[A] key=rk/**/key=v; next=1;");
    ini.SetStr(L"A", L"key", L"ZZZZZZZZZZ");
    EXPECT_EQ(dump(ini), L"[A] key=ZZZZZZZZZZ; next=1;");
}

TEST(XIni, HandsOutKeyTablesThatStayUntilClear)
{
    XIni ini;
    CKeyTable* const table = ini.GetOrMakeSection(L"A");
    EXPECT_EQ(table->GetCount(), 0);
    EXPECT_EQ(table->GetName(), L"A");
    for (int i = 0; i < 1000; ++i)
        ini.SetInt(std::to_wstring(i).c_str(), L"k", i);
    EXPECT_EQ(ini.GetSection(L"A"), table);
    table->SetAt(L"b", L"1");
    table->SetAt(L"a", L"2");
    CString key, value = L"kept";
    EXPECT_EQ(table->Lookup(L"c", value), 0);
    EXPECT_EQ(value, L"kept");
    EXPECT_EQ(table->Lookup(L"b", value), 1);
    EXPECT_EQ(value, L"1");
    table->GetAt(0, key, value);
    EXPECT_EQ(key + L"=" + value, L"a=2");
    EXPECT_EQ(ini.GetStr(L"A", L"a", L""), L"2");
    EXPECT_EQ(ini.GetSection(L"missing"), nullptr);
}

TEST(XIni, ClearEmptiesAllButTheCodePage)
{
    XIni ini;
    ini.SetCodePage(949);
    parse_bytes(ini, "[Text]\nk=\xB0\xA1");
    ini.GetStr(L"Text", L"k", L"");
    EXPECT_EQ(ini.IsOpened(), 1);
    ini.Clear();
    EXPECT_EQ(ini.IsOpened(), 0);
    EXPECT_EQ(dump(ini), L"");
    EXPECT_EQ(ini.GetStr(nullptr, L"k", L"none"), L"none");
    EXPECT_EQ(ini.GetStr(L"TEXT", L"k", L"none"), L"none");
    parse_bytes(ini, "[A]\nk=\xB0\xA1");
    EXPECT_EQ(dump(ini), L"[A] k=\xAC00;");
}

TEST(XIni, AppendsSectionNamesInOrdinalOrder)
{
    XIni ini;
    parse(ini, L"[b]\n[\xAC00]\n[B]\n[a]\n[a b]\n[ab]\n");
    CStringArray names;
    names.Add(L"first");
    ini.GetSectionList(names);
    std::wstring all;
    for (INT_PTR i = 0; i < names.GetSize(); ++i)
        all += std::wstring(names[i]) + L"|";
    EXPECT_EQ(all, L"first|B|a|a b|ab|b|\xAC00|");
    ini.SetStr(L"C", L"k", L"v");
    names.RemoveAll();
    ini.GetSectionList(names);
    ASSERT_EQ(names.GetSize(), 7);
    EXPECT_EQ(names[1], L"C");
}

TEST(XIni, CopiesShareNothing)
{
    XIni ini;
    ini.SetCodePage(949);
    parse(ini, L"[Text]\nk=v\n[Dlg]\nk=w\n");
    ini.GetStr(L"Dlg", L"k", L"");
    XIni copy(ini);
    EXPECT_EQ(dump(copy), L"[Dlg] k=w; [Text] k=v;");
    EXPECT_EQ(copy.IsOpened(), 1);
    copy = ini;
    EXPECT_EQ(copy.GetStr(L"DLG", L"k", L"none"), L"w") << "the remembered section comes along";
    copy.SetStr(nullptr, L"k", L"x");
    copy.SetStr(L"Dlg", L"new", L"1");
    ini.SetStr(L"Dlg", L"k", L"y");
    EXPECT_EQ(dump(ini), L"[Dlg] k=y; [Text] k=v;");
    EXPECT_EQ(dump(copy), L"[Dlg] k=w; new=1; [Text] k=x;");
    ini.Clear();
    EXPECT_EQ(dump(copy), L"[Dlg] k=w; new=1; [Text] k=x;");
    parse_bytes(copy, "[Z]\nk=\xB0\xA1");
    EXPECT_EQ(copy.GetStr(L"Z", L"k", L""), L"\xAC00");
    XIni& self = copy;
    copy = self;
    EXPECT_EQ(copy.GetStr(nullptr, L"k", L""), L"x");
}

TEST(XIni, DialogTextArrayIsLeftAlone)
{
    XIni ini;
    CArray<CString, CString> names, texts;
    EXPECT_EQ(ini.GetDlgTextArray(nullptr, 1, names, texts), 1);
    EXPECT_EQ(names.GetSize() + texts.GetSize(), 0);
}

TEST(XIni, AgreesWithAMapOverManyRandomOperations)
{
    std::map<std::wstring, std::map<std::wstring, std::wstring>> model;
    XIni ini;
    unsigned seed = 1;
    const auto next = [&](unsigned most) { return (seed = seed * 1664525 + 1013904223) >> 8 & (most - 1); };
    for (int step = 0; step < 60000; ++step)
    {
        const std::wstring section = L"S" + std::to_wstring(next(64) % 40);
        const std::wstring key = L"key" + std::to_wstring(section == L"S7" ? next(1024) : next(16));
        const std::wstring value(next(32), static_cast<wchar_t>(L'a' + step % 26));
        if (next(8) == 0)
            parse(ini, L"[" + section + L"]\r\n" + key + L"=\"" + value + L"\"");
        else
            ini.SetStr(section.c_str(), key.c_str(), value.c_str());
        model[section][key] = value;
    }
    std::wstring expected;
    for (const auto& [section, keys] : model)
    {
        expected += (expected.empty() ? L"[" : L" [") + section + L"]";
        for (const auto& [key, value] : keys)
        {
            expected += L" " + key + L"=" + value + L";";
            ASSERT_EQ(ini.GetStr(section.c_str(), key.c_str(), L"none"), value.c_str());
        }
    }
    EXPECT_EQ(dump(ini), expected);
}

TEST(XIni, KeysOfOneNameInManySectionsAreTheirOwn)
{
    XIni ini;
    const auto name = [](const wchar_t* front, int number) { return front + std::to_wstring(number); };
    std::wstring text;
    for (int s = 0; s < 300; ++s)
    {
        text += L"[" + name(L"S", s) + L"]\n";
        for (int k = 0; k < 40; ++k)
            text += name(L"key", k) + L"=" + std::to_wstring(s * 1000 + k) + L"\n";
    }
    parse(ini, text);
    const XIni copy(ini);
    XIni copies[] = {ini, copy};
    for (XIni& each : copies)
        for (int s = 299; s >= 0; --s)
        {
            CKeyTable* const table = each.GetSection(name(L"S", s).c_str());
            ASSERT_EQ(table->GetCount(), 40);
            for (int k = 0; k < 40; ++k)
                ASSERT_EQ(each.GetInt(name(L"S", s).c_str(), name(L"key", k).c_str(), -1, 10), s * 1000 + k);
            ASSERT_FALSE(table->Find(L"key40"));
        }
    EXPECT_EQ(ini.GetStr(L"key1", L"S1", L"none"), L"none") << "section and key are no other way round";
}

TEST(XIni, AListedTableShowsTheValuesThatReplacedOthers)
{
    XIni ini;
    parse(ini, L"[A]\nb=1\na=1\nc=1\n");
    EXPECT_EQ(dump(ini), L"[A] a=1; b=1; c=1;");
    ini.SetStr(L"A", L"b", L"longer than before");
    EXPECT_EQ(dump(ini), L"[A] a=1; b=longer than before; c=1;");
    ini.SetStr(L"A", L"b", L"");
    EXPECT_EQ(dump(ini), L"[A] a=1; b=; c=1;");
    ini.SetStr(L"A", L"aa", L"new");
    EXPECT_EQ(dump(ini), L"[A] a=1; aa=new; b=; c=1;");
    EXPECT_EQ(dump(XIni(ini)), dump(ini));
}

TEST(XIni, NamesWithOneHashAreTheirOwn)
{
    // Among so many names some pairs have the same hash.
    std::map<std::uint32_t, std::wstring> known;
    int pairs = 0;
    for (int i = 0; i < 200000; ++i)
    {
        const std::wstring name = L"name" + std::to_wstring(i);
        const auto [other, isNew] = known.try_emplace(units::hash(CUnits(name.c_str())), name);
        if (isNew)
            continue;
        ++pairs;
        const std::wstring& first = other->second;
        XIni ini;
        ini.SetStr(first.c_str(), L"key", L"1");
        ini.SetStr(name.c_str(), L"key", L"2");
        ini.SetStr(L"S", first.c_str(), L"3");
        ini.SetStr(L"S", name.c_str(), L"4");
        EXPECT_EQ(ini.GetStr(first.c_str(), L"key", L""), L"1");
        EXPECT_EQ(ini.GetStr(name.c_str(), L"key", L""), L"2");
        EXPECT_EQ(ini.GetStr(L"S", first.c_str(), L""), L"3");
        EXPECT_EQ(ini.GetStr(L"S", name.c_str(), L""), L"4");
        EXPECT_EQ(ini.GetSectionCount(), 3);
    }
    EXPECT_GT(pairs, 0);
}

TEST(XIni, WritesNoMoreThanItHoldsAfterValuesBecameShorter)
{
    XIni ini, fresh;
    parse(ini, L"[A]\na=a long value\nb=another one\na=short\n");
    ini.SetStr(L"A", L"b", L"");
    parse(fresh, L"[A]\na=short\nb=\n");
    EXPECT_EQ(ini.Serialize(), fresh.Serialize());
}

TEST(XIni, TablesStayWhereTheyAreWhenReplacedValuesMakeRoom)
{
    XIni ini;
    std::map<std::wstring, std::wstring> values;
    const auto set = [&](const std::wstring& key, std::size_t length) {
        values[key].assign(length, key.back());
        ini.SetStr(L"A", key.c_str(), values[key].c_str());
    };
    CKeyTable* const table = ini.GetOrMakeSection(L"A");
    ini.SetStr(L"B", L"left", L"alone");
    for (int large = 0; large < 40; ++large)
        set(L"large" + std::to_wstring(large), large % 2 ? 90000 : 10);
    for (std::size_t length = 0; length < 2000; ++length)
    {
        set(L"a", length);
        set(L"b", 2000 + length);
        if (length % 500 == 0)
            dump(ini);
    }
    EXPECT_EQ(ini.GetSection(L"A"), table);
    std::wstring expected = L"[A]";
    for (const auto& [key, value] : values)
    {
        expected += L" " + key + L"=" + value + L";";
        EXPECT_EQ(ini.GetStr(L"A", key.c_str(), L""), value.c_str()) << testing::PrintToString(key);
    }
    EXPECT_TRUE(dump(ini) == expected + L" [B] left=alone;");
}

TEST(XIni, HoldsAMillionKeys)
{
    std::wstring text = L"[many]\n";
    for (int i = 0; i < 1000000; ++i)
    {
        const std::wstring number = std::to_wstring(i);
        text.append(L"k").append(number).append(L"=").append(number).append(L"\n");
    }
    XIni ini;
    EXPECT_EQ(parse(ini, text), 1);
    EXPECT_EQ(ini.GetSection(L"many")->GetCount(), 1000000);
    for (const int i : {0, 1, 127, 128, 129, 99999, 999999})
        EXPECT_EQ(ini.GetInt(L"many", (L"k" + std::to_wstring(i)).c_str(), -1, 10), i);
    EXPECT_EQ(ini.GetInt(L"many", L"k1000000", -1, 10), -1);
}

TEST(XIni, HoldsManySections)
{
    XIni ini;
    std::wstring text;
    for (int i = 0; i < 100000; ++i)
        text += L"[s" + std::to_wstring(i) + L"]\n";
    parse(ini, text);
    EXPECT_TRUE(ini.GetSection(L"s0"));
    EXPECT_TRUE(ini.GetSection(L"s99999"));
    EXPECT_FALSE(ini.GetSection(L"s100000"));
}
