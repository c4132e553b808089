#include "tarvo/msg/MsgOut.h"

#include <afxstr.h>
#include <gtest/gtest.h>

#include <cstring>
#include <cwchar>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace
{
CDocument* const doc = reinterpret_cast<CDocument*>(&msg_printer::m_pInstance); // never looked into

using Log = std::vector<std::wstring>;

// Notes every call as "slot document text".
class Sink : public msg_printer
{
public:
    void ActiveMessageWnd(CDocument* p) override { Note(2, p); }
    void ActiveSessionWnd(CDocument* p) override { Note(3, p); }
    void MsgClear(CDocument* p) override { Note(4, p); }
    void MsgOut(CDocument* p, const wchar_t* s) override { Note(5, p, s); }
    void MsgOutSampPos(CDocument* p, const wchar_t* s) override { Note(6, p, s); }
    void MsgOutError(CDocument* p, const wchar_t* s) override { Note(7, p, s); }
    void MsgOutSampPosError(CDocument* p, const wchar_t* s) override { Note(8, p, s); }
    void MsgOutWarning(CDocument* p, const wchar_t* s) override { Note(9, p, s); }
    void MsgOutSampPosWarning(CDocument* p, const wchar_t* s) override { Note(10, p, s); }
    void ActivateHistory() override { m_log.push_back(L"11"); }
    void ActivateAnalysis() override { m_log.push_back(L"12"); }

    Log Taken() { return std::exchange(m_log, {}); }

private:
    void Note(int slot, CDocument* p, const wchar_t* text = L"")
    {
        m_log.push_back(std::to_wstring(slot) +
                        (p == doc       ? L" doc "
                         : p == nullptr ? L" null "
                                        : L" ? ") +
                        text);
    }

    Log m_log;
};

// Every function once, with and without a document.
void CallAll()
{
    nsActiveMessageWnd(doc);
    nsActiveMessageWnd(nullptr);
    nsActiveSessionWnd(doc);
    nsMsgClear(doc);
    nsMsgOut(L"a");
    nsMsgOut(doc, L"b");
    nsMsgOutSampPos(L"c");
    nsMsgOutSampPos(doc, L"d");
    nsMsgOutError(L"e");
    nsMsgOutError(doc, L"f");
    nsMsgOutSampPosError(L"g");
    nsMsgOutSampPosError(doc, L"h");
    nsMsgOutWarning(L"i");
    nsMsgOutWarning(doc, L"j");
    nsMsgOutSampPosWarning(L"k");
    nsMsgOutSampPosWarning(doc, L"l");
    nsMsgOutActivateHistory();
    nsMsgOutActivateAnalysis();
    nsMsgOutFormat(L"%d %s", 1, L"m");
    nsMsgOutFormat(doc, L"%d %s", 2, L"n");
    nsMsgOutFormatError(L"%d %s", 3, L"o");
    nsMsgOutFormatError(doc, L"%d %s", 4, L"p");
    nsMsgOutFormatWarning(L"%d %s", 5, L"q");
    nsMsgOutFormatWarning(doc, L"%d %s", 6, L"r");
    nsMsgOutSamePosFormat(L"%d %s", 7, L"s");
    nsMsgOutSamePosFormat(doc, L"%d %s", 8, L"t");
    nsMsgOutSamePosFormatError(L"%d %s", 9, L"u");
    nsMsgOutSamePosFormatError(doc, L"%d %s", 10, L"v");
    nsMsgOutSamePosFormatWarning(L"%d %s", 11, L"w");
    nsMsgOutSamePosFormatWarning(doc, L"%d %s", 12, L"x");
}

void CallDebugForms(const wchar_t* text)
{
    nsMsgOutD(text);
    nsMsgOutD(doc, text);
    nsMsgOutSampPosD(text);
    nsMsgOutSampPosD(doc, text);
    nsMsgOutFormatD(text, 1);
    nsMsgOutFormatD(doc, text, 1);
    nsMsgOutSamePosFormatD(text, 1);
    nsMsgOutSamePosFormatD(doc, text, 1);
}
} // namespace

TEST(MsgOut, EveryFunctionReachesItsSlotWithItsDocument)
{
    Sink sink;
    CallAll();
    EXPECT_EQ(
        sink.Taken(),
        (Log{L"2 doc ",     L"2 null ",   L"3 doc ",     L"4 doc ",     L"5 null a",     L"5 doc b",
             L"6 null c",   L"6 doc d",   L"7 null e",   L"7 doc f",    L"8 null g",     L"8 doc h",
             L"9 null i",   L"9 doc j",   L"10 null k",  L"10 doc l",   L"11",           L"12",
             L"5 null 1 m", L"5 doc 2 n", L"7 null 3 o", L"7 doc 4 p",  L"9 null 5 q",   L"9 doc 6 r",
             L"6 null 7 s", L"6 doc 8 t", L"8 null 9 u", L"8 doc 10 v", L"10 null 11 w", L"10 doc 12 x"}));
}

TEST(MsgOut, WithoutASinkNothingIsFormatted)
{
    ASSERT_EQ(msg_printer::m_pInstance, nullptr);
    CallAll();
    CallDebugForms(L"%s");
    // Formatting this would read from an address that nobody has.
    nsMsgOutFormat(L"%s", reinterpret_cast<const wchar_t*>(8));
    nsMsgOutSamePosFormatError(doc, L"%s", reinterpret_cast<const wchar_t*>(8));
    EXPECT_EQ(msg_printer::m_pInstance, nullptr);
}

TEST(MsgOut, DebugFormsAreEmpty)
{
    Sink sink;
    CallDebugForms(L"%s");
    EXPECT_EQ(sink.Taken(), Log{});
}

TEST(MsgOut, SamePosFormatWithAPercentSign)
{
    Sink sink;
    nsMsgOutSamePosFormat(doc, L"%d%%", 5);
    EXPECT_EQ(sink.Taken(), Log{L"6 doc 5%"});
}

TEST(MsgOut, NullDocumentMayBeWrittenOut)
{
    Sink sink;
    nsMsgOut(nullptr, L"a");
    nsMsgOutFormat(nullptr, L"%s", L"b");
    nsMsgOutFormat(static_cast<CDocument*>(nullptr), L"%s", L"c");
    EXPECT_EQ(sink.Taken(), (Log{L"5 null a", L"5 null b", L"5 null c"}));
}

TEST(MsgOut, FormatsAreThoseOfTheFrameworksString)
{
    Sink sink;
    const CString text(L"wide");
    nsMsgOutFormat(L"%s %S %I64d %Iu %c %.2f %*d", text.GetString(), "narrow", 1LL << 40, sizeof(int), L'가',
                   1.005, 4, 7);
    nsMsgOutFormatError(text);
    nsMsgOut(text);
    const CString longText(L'x', 100000);
    nsMsgOutFormatWarning(L"<%s>", longText.GetString());
    const Log log = sink.Taken();
    ASSERT_EQ(log.size(), 4u);
    EXPECT_EQ(log[0], L"5 null wide narrow 1099511627776 4 가 1.00    7");
    EXPECT_EQ(log[1], L"7 null wide");
    EXPECT_EQ(log[2], L"5 null wide");
    EXPECT_EQ(log[3].size(), std::wcslen(L"9 null <>") + 100000);
}

TEST(MsgOut, TextIsNotTakenForAFormat)
{
    Sink sink;
    nsMsgOut(L"100% sure: %s %n");
    EXPECT_EQ(sink.Taken(), Log{L"5 null 100% sure: %s %n"});
}

TEST(MsgOut, NullTextsAreEmpty)
{
    Sink sink;
    nsMsgOut(static_cast<const wchar_t*>(nullptr));
    nsMsgOutError(doc, nullptr);
    nsMsgOutFormat(static_cast<const wchar_t*>(nullptr));
    nsMsgOutFormat(doc, nullptr);
    EXPECT_EQ(sink.Taken(), (Log{L"5 null ", L"7 doc ", L"5 null ", L"5 doc "}));
}

TEST(MsgOut, LastSinkWinsAndAnyDestructionLeavesNone)
{
    auto first = std::make_unique<Sink>();
    EXPECT_EQ(msg_printer::m_pInstance, first.get());
    auto second = std::make_unique<Sink>();
    EXPECT_EQ(msg_printer::m_pInstance, second.get());
    nsMsgOut(L"a");
    EXPECT_EQ(first->Taken(), Log{});
    EXPECT_EQ(second->Taken(), Log{L"5 null a"});
    first.reset();
    EXPECT_EQ(msg_printer::m_pInstance, nullptr) << "whichever is registered";
    nsMsgOut(L"b");
    EXPECT_EQ(second->Taken(), Log{});
    second.reset();
    EXPECT_EQ(msg_printer::m_pInstance, nullptr);
}

TEST(MsgOut, CopyDoesNotRegister)
{
    Sink sink;
    {
        Sink other;
        Sink copy(sink);
        EXPECT_EQ(msg_printer::m_pInstance, &other);
        copy = sink;
        EXPECT_EQ(msg_printer::m_pInstance, &other);
    }
    EXPECT_EQ(msg_printer::m_pInstance, nullptr);
}

TEST(MsgOut, SlotsStandInTheirOrder)
{
    static_assert(std::has_virtual_destructor_v<msg_printer> && std::is_abstract_v<msg_printer>);
    // The place of a virtual function in the table, as a pointer to it holds it (both compilers' ABI).
    const auto place = [](auto slot) {
        std::size_t n = 0;
        std::memcpy(&n, &slot, sizeof n);
        return (n - 1) / sizeof(void*);
    };
    const std::size_t first = place(&msg_printer::ActiveMessageWnd);
    EXPECT_EQ(place(&msg_printer::ActiveSessionWnd), first + 1);
    EXPECT_EQ(place(&msg_printer::MsgClear), first + 2);
    EXPECT_EQ(place(&msg_printer::MsgOut), first + 3);
    EXPECT_EQ(place(&msg_printer::MsgOutSampPos), first + 4);
    EXPECT_EQ(place(&msg_printer::MsgOutError), first + 5);
    EXPECT_EQ(place(&msg_printer::MsgOutSampPosError), first + 6);
    EXPECT_EQ(place(&msg_printer::MsgOutWarning), first + 7);
    EXPECT_EQ(place(&msg_printer::MsgOutSampPosWarning), first + 8);
    EXPECT_EQ(place(&msg_printer::ActivateHistory), first + 9);
    EXPECT_EQ(place(&msg_printer::ActivateAnalysis), first + 10);
    EXPECT_EQ(first, 2u) << "behind the destructor, which has two places in this ABI";
}
