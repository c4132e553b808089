// The demonstration programs as their users run them: processes with arguments, output and exit status.
#include "platform/file.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <commctrl.h>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace
{
constexpr DWORD kPatience = 500000; // milliseconds; only a program that hangs needs them

struct HandleCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using unique_handle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleCloser>;

std::wstring program_folder()
{
    wchar_t path[1024] = L"";
    GetModuleFileNameW(nullptr, path, 1024);
    const std::wstring file = path;
    return file.substr(0, file.find_last_of(L'\\'));
}

struct Started
{
    unique_handle process;
    DWORD id = 0;
};

Started start(const std::wstring& program, const std::wstring& arguments, const std::wstring& outputFile)
{
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const unique_handle output(CreateFileW(outputFile.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                                           CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output.get();
    startup.hStdError = output.get();
    std::wstring command = L"\"" + program + L"\" " + arguments;
    PROCESS_INFORMATION info{};
    // The other DLLs are found in the current folder when only some were copied elsewhere.
    EXPECT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr,
                               program_folder().c_str(), &startup, &info))
        << GetLastError();
    CloseHandle(info.hThread);
    return {unique_handle(info.hProcess), info.dwProcessId};
}

DWORD finish(const Started& started)
{
    DWORD status = 999;
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(started.process.get(), kPatience));
    GetExitCodeProcess(started.process.get(), &status);
    return status;
}

struct Ended
{
    DWORD status;
    std::string output;
};

Ended run(const std::wstring& program, const std::wstring& arguments)
{
    const TempFolder folder;
    const std::wstring file = folder / L"output.txt";
    const Started started = start(program, arguments, file);
    const DWORD status = finish(started);
    std::string output = platform::file::read_whole(file.c_str(), 1 << 20).value_or("");
    std::erase(output, '\r');
    return {status, output};
}

std::wstring demo_program() { return program_folder() + L"\\TarvoDemo.exe"; }

std::string first_bytes(const std::wstring& path, std::size_t count)
{
    return platform::file::read_whole(path.c_str(), 1 << 22).value_or("").substr(0, count);
}

constexpr const wchar_t* kWindows[] = {
    L"IDR_MAINFRAME",   L"IDD_MODEL_FORM",  L"IDD_MESSAGE_PANE",     L"IDD_SECTION_TOOL",
    L"IDD_LIMITS",      L"IDD_AC_SOLVER",   L"IDD_AC_DYNAMICS",      L"IDD_AC_OUTPUT",
    L"IDD_WZ_GEOMETRY", L"IDD_WZ_SECTIONS", L"IDD_WZ_LOADS",         L"IDD_WZ_SUMMARY",
    L"SWITCH_BEFORE",   L"SWITCH_AFTER",    L"IDD_PROJECT_SETTINGS", L"IDD_LOAD_CASES",
    L"IDD_UNITS",       L"IDD_ABOUT",       L"IDD_SECTION_LIBRARY",  L"IDD_MEMBER_PROPERTIES"};
} // namespace

TEST(DemoProgram, PicturesOfOneLanguageAreWrittenWithALineOfCountsForEachWindow)
{
    const TempFolder folder;
    const std::wstring pictures = folder / L"a b";
    const Ended ended = run(demo_program(), L"--pictures \"" + pictures + L"\" --language Korean");
    EXPECT_EQ(0u, ended.status);
    EXPECT_EQ(
        "Korean    IDR_MAINFRAME           35 translated   0 fallback   0 missing\n"
        "Korean    IDD_MODEL_FORM          13 translated   0 fallback   0 missing\n"
        "Korean    IDD_MESSAGE_PANE         0 translated   0 fallback   0 missing\n"
        "Korean    IDD_SECTION_TOOL        12 translated   0 fallback   0 missing\n"
        "Korean    IDD_LIMITS               8 translated   0 fallback   0 missing\n"
        "Korean    IDD_AC_SOLVER            6 translated   0 fallback   0 missing\n"
        "Korean    IDD_AC_DYNAMICS          5 translated   0 fallback   0 missing\n"
        "Korean    IDD_AC_OUTPUT            5 translated   0 fallback   0 missing\n"
        "Korean    IDD_WZ_GEOMETRY          5 translated   0 fallback   0 missing\n"
        "Korean    IDD_WZ_SECTIONS          5 translated   0 fallback   0 missing\n"
        "Korean    IDD_WZ_LOADS             5 translated   0 fallback   0 missing\n"
        "Korean    IDD_WZ_SUMMARY           2 translated   0 fallback   0 missing\n"
        "Korean    IDD_PROJECT_SETTINGS    20 translated   4 fallback   1 missing\n"
        "Korean    IDD_LOAD_CASES          13 translated   4 fallback   0 missing\n"
        "Korean    IDD_UNITS               18 translated   3 fallback   0 missing\n"
        "Korean    IDD_ABOUT                8 translated   1 fallback   0 missing\n"
        "Korean    IDD_SECTION_LIBRARY     17 translated   3 fallback   1 missing\n"
        "Korean    IDD_MEMBER_PROPERTIES   23 translated   4 fallback   0 missing\n"
        "Korean    font of texts          Malgun Gothic, 9 pt is Malgun Gothic (WenQuanYi - Micro Hei), "
        "14 px\n"
        "Korean    font of dialogs        굴림 is 굴림 (WenQuanYi - Micro Hei), 14 px\n"
        "Korean    switched from English: 165 controls, 127 texts changed, 0 left\n",
        ended.output);
    for (const wchar_t* window : kWindows)
        EXPECT_EQ("\x89PNG\r\n", first_bytes(pictures + L"\\" + window + L"_Korean.png", 6));
    EXPECT_EQ("<!DOCTYPE html>", first_bytes(pictures + L"\\index.html", 15));
}

TEST(DemoProgram, NoTextIsCutOffInAnyLanguageAndNoneIsLeftWhenTheLanguageChanges)
{
    const TempFolder folder;
    const Ended ended = run(demo_program(), L"--pictures \"" + folder.path() + L"\"");
    EXPECT_EQ(0u, ended.status);
    EXPECT_THAT(ended.output, testing::Not(testing::HasSubstr("cut off")));
    EXPECT_THAT(ended.output, testing::Not(testing::HasSubstr("left: ")));
    EXPECT_EQ(6 * static_cast<int>(std::size(kWindows)) + 1, folder.count());
}

namespace
{
/// Renumbers the second of two neighbours in the resource directory of a module: a number, then where its
/// entry stands, with the highest bit set.
void hide_template(std::string& module, char before, char id)
{
    int found = 0;
    for (std::size_t at = 0; at + 16 <= module.size(); at += 4)
    {
        const auto isEntry = [&](std::size_t entry, char number) {
            return module[entry] == number && module[entry + 1] == 0 && module[entry + 2] == 0 &&
                   module[entry + 3] == 0 && module[entry + 7] == '\x80';
        };
        if (!isEntry(at, before) || !isEntry(at + 8, id))
            continue;
        ++module[at + 8];
        ++found;
    }
    ASSERT_EQ(1, found);
}
} // namespace

TEST(DemoProgram, DialogThatCannotBeMadeIsNamedAndMakesTheExitStatusOne)
{
    const TempFolder folder;
    const std::wstring program = folder / L"TarvoDemo.exe";
    const std::wstring module = folder / L"SectionModule.dll";
    ASSERT_TRUE(CopyFileW(demo_program().c_str(), program.c_str(), TRUE));
    std::string bytes =
        platform::file::read_whole((program_folder() + L"\\SectionModule.dll").c_str(), 1 << 28).value_or("");
    hide_template(bytes, '\xD2', '\xD3'); // 210 and 211
    ASSERT_EQ(platform::file::Written::ok, platform::file::write_whole(module.c_str(), bytes));

    const Ended ended = run(program, L"--pictures \"" + (folder / L"out") + L"\" --language English");
    EXPECT_EQ(1u, ended.status);
    EXPECT_THAT(ended.output, testing::HasSubstr("\nEnglish   IDD_MEMBER_PROPERTIES  did not come up\n"));
}

TEST(DemoProgram, FolderThatCannotBeMadeMakesTheExitStatusOne)
{
    const TempFolder folder;
    const std::wstring file = folder / L"file";
    ASSERT_EQ(platform::file::Written::ok, platform::file::write_whole(file.c_str(), "x"));
    EXPECT_EQ(1u, run(demo_program(), L"--pictures \"" + file + L"\" --language English").status);
}

TEST(DemoProgram, WrongArgumentIsOneLineAndExitStatusTwo)
{
    const Ended ended = run(demo_program(), L"--language Klingon");
    EXPECT_EQ(2u, ended.status);
    EXPECT_EQ("TarvoDemo: unknown language: Klingon\n", ended.output);
}

namespace
{
struct Search
{
    DWORD process;
    HWND found;
};

BOOL CALLBACK find_dialog(HWND hwnd, LPARAM to)
{
    auto& search = *reinterpret_cast<Search*>(to);
    DWORD process = 0;
    GetWindowThreadProcessId(hwnd, &process);
    if (process != search.process || !IsWindowVisible(hwnd))
        return TRUE;
    search.found = hwnd;
    return FALSE;
}

/// The first visible window of the process; null when the process ends before it shows one.
HWND wait_for_window(const Started& started)
{
    Search search{started.id, nullptr};
    const ULONGLONG end = GetTickCount64() + kPatience;
    while (!search.found && GetTickCount64() < end &&
           WaitForSingleObject(started.process.get(), 10) == WAIT_TIMEOUT)
        EnumWindows(find_dialog, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::wstring text_of(HWND hwnd)
{
    wchar_t text[256] = L"";
    SendMessageW(hwnd, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text));
    return text;
}
} // namespace

TEST(MinimalHost, DialogComesUpInJapanese)
{
    const TempFolder folder;
    const Started started = start(program_folder() + L"\\minimal_host.exe", L"", folder / L"output.txt");
    const HWND dialog = wait_for_window(started);
    ASSERT_NE(nullptr, dialog);
    EXPECT_EQ(L"プロジェクト設定", text_of(dialog));
    EXPECT_EQ(L"キャンセル", text_of(GetDlgItem(dialog, IDCANCEL)));
    PostMessageW(dialog, WM_CLOSE, 0, 0);
    finish(started);
}

namespace
{
/// The language that the program has stored, kept while a test changes it.
class StoredLanguage
{
public:
    StoredLanguage() : m_before(Read()) {}
    ~StoredLanguage()
    {
        RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"LANGUAGE", REG_DWORD, &m_before, sizeof m_before);
    }
    StoredLanguage(const StoredLanguage&) = delete;
    StoredLanguage& operator=(const StoredLanguage&) = delete;

    static DWORD Read()
    {
        DWORD value = 0;
        DWORD size = sizeof value;
        RegGetValueW(HKEY_CURRENT_USER, kKey, L"LANGUAGE", RRF_RT_REG_DWORD, nullptr, &value, &size);
        return value;
    }

private:
    static constexpr const wchar_t* kKey = L"Software\\TarvoDemo\\TarvoDemo\\LANGUAGE";
    DWORD m_before;
};

bool wait_for_text(HWND hwnd, const std::wstring& text)
{
    const ULONGLONG end = GetTickCount64() + kPatience;
    while (text_of(hwnd) != text && IsWindow(hwnd) && GetTickCount64() < end)
        Sleep(10);
    return text_of(hwnd) == text;
}
} // namespace

TEST(DemoProgram, LanguageMenuChangesTheWindowAndIsRememberedForTheNextStart)
{
    constexpr WPARAM idLanguageJapanese = 2043;
    const StoredLanguage kept;
    const TempFolder folder;
    {
        const Started started = start(demo_program(), L"--language Russian", folder / L"output.txt");
        const HWND window = wait_for_window(started);
        ASSERT_NE(nullptr, window);
        EXPECT_TRUE(wait_for_text(window, L"Офисное здание, 3 этажа - TarvoDemo"));
        PostMessageW(window, WM_COMMAND, idLanguageJapanese, 0);
        EXPECT_TRUE(wait_for_text(window, L"3階建て事務所ビル - TarvoDemo"));
        PostMessageW(window, WM_CLOSE, 0, 0);
        EXPECT_EQ(0u, finish(started));
    }
    EXPECT_EQ(2u, StoredLanguage::Read());
    const Started again = start(demo_program(), L"", folder / L"output2.txt");
    const HWND window = wait_for_window(again);
    ASSERT_NE(nullptr, window);
    EXPECT_TRUE(wait_for_text(window, L"3階建て事務所ビル - TarvoDemo"));
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, finish(again));
}

namespace
{
constexpr int idSpan = 1506;
constexpr int idHistory = 1531;
constexpr int idAnalysis = 1532;

HWND find_control(HWND window, int id)
{
    struct Wanted
    {
        int id;
        HWND found;
    } wanted{id, nullptr};
    EnumChildWindows(
        window,
        [](HWND child, LPARAM to) -> BOOL {
            auto& search = *reinterpret_cast<Wanted*>(to);
            search.found = GetDlgCtrlID(child) == search.id ? child : nullptr;
            return search.found == nullptr;
        },
        reinterpret_cast<LPARAM>(&wanted));
    return wanted.found;
}

std::vector<std::wstring> lines_of(HWND list)
{
    std::vector<std::wstring> lines;
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i)
    {
        wchar_t text[512] = L"";
        SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
        lines.emplace_back(text);
    }
    return lines;
}
} // namespace

TEST(DemoProgram, AnalysisWritesItsMessagesToThePaneAndEntriesOutliveAChangeOfLanguage)
{
    constexpr WPARAM idRun = 2023;
    constexpr WPARAM idLanguageKorean = 2042;
    const StoredLanguage kept;
    const TempFolder folder;
    const Started started = start(demo_program(), L"--language Global", folder / L"output.txt");
    const HWND window = wait_for_window(started);
    ASSERT_NE(nullptr, window);
    EXPECT_TRUE(wait_for_text(window, L"Office building, three storeys - TarvoDemo"));
    const HWND span = find_control(window, idSpan);
    SendMessageW(span, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"7,30"));
    SendMessageW(window, WM_COMMAND, idRun, 0);
    EXPECT_EQ((std::vector<std::wstring>{L"Checking the model \"Office building\"",
                                         L"12 nodes, 15 members, 3 supports",
                                         L"Model check finished: 0 errors, 0 warnings"}),
              lines_of(find_control(window, idHistory)));
    EXPECT_EQ((std::vector<std::wstring>{L"Analysis started: Linear static",
                                         L"Sum of loads: 1950.2 kN vertical, 63.0 kN horizontal",
                                         L"6 combinations of 7 load cases",
                                         L"Material Structural steel S355: 4084 kg",
                                         L"27 equations, half bandwidth 12",
                                         L"Solving: 100%",
                                         L"Largest displacement: 21.2 mm at node 4",
                                         L"Looking for 12 modes",
                                         L"Mode 1: 3.603 Hz, period 0.278 s",
                                         L"Mode 2: 10.097 Hz, period 0.099 s",
                                         L"Mode 3: 14.590 Hz, period 0.069 s",
                                         L"Base shear 9.2 kN",
                                         L"Critical load factor 3.48",
                                         L"Factor below 10: use a second order analysis",
                                         L"Design of 3 steel members",
                                         L"Member 10: utilisation 1.06 is above 1.00",
                                         L"Member 12: utilisation 1.06 is above 1.00",
                                         L"Member 14: utilisation 0.70",
                                         L"1 of 3 members fulfil the limits",
                                         L"Footing 2: soil pressure 144 kN/m²"}),
              lines_of(find_control(window, idAnalysis)));
    SendMessageW(window, WM_COMMAND, idLanguageKorean, 0);
    EXPECT_TRUE(wait_for_text(window, L"3층 사무소 건물 - TarvoDemo"));
    EXPECT_EQ(L"7,30", text_of(span));
    EXPECT_EQ(20u, lines_of(find_control(window, idAnalysis)).size());
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, finish(started));
}

namespace
{
/// The visible window of the process that is not \p main, once it is there.
HWND wait_for_other_window(const Started& started, HWND main)
{
    struct Wanted
    {
        DWORD process;
        HWND main, found;
    } wanted{started.id, main, nullptr};
    const ULONGLONG end = GetTickCount64() + kPatience;
    while (!wanted.found && GetTickCount64() < end &&
           WaitForSingleObject(started.process.get(), 10) == WAIT_TIMEOUT)
        EnumWindows(
            [](HWND window, LPARAM to) -> BOOL {
                auto& search = *reinterpret_cast<Wanted*>(to);
                DWORD process = 0;
                GetWindowThreadProcessId(window, &process);
                if (process == search.process && window != search.main && IsWindowVisible(window))
                    search.found = window;
                return search.found == nullptr;
            },
            reinterpret_cast<LPARAM>(&wanted));
    return wanted.found;
}

bool wait_until(const std::function<bool()>& condition)
{
    const ULONGLONG end = GetTickCount64() + kPatience;
    while (!condition() && GetTickCount64() < end)
        Sleep(10);
    return condition();
}

bool wait_until_shown(HWND window, int id)
{
    return wait_until([=] {
        const HWND control = find_control(window, id);
        return control && IsWindowVisible(control);
    });
}

/// The running program, in English, with what its user does.
class DemoSession : public testing::Test
{
protected:
    static constexpr int idOk = 1, idNext = 0x3024, idFinish = 0x3025;

    void SetUp() override
    {
        started = start(demo_program(), L"--language Global", folder / L"output.txt");
        main = wait_for_window(started);
        ASSERT_NE(nullptr, main);
        ASSERT_TRUE(wait_for_text(main, L"Office building, three storeys - TarvoDemo"));
    }
    void TearDown() override
    {
        PostMessageW(main, WM_CLOSE, 0, 0);
        EXPECT_EQ(0u, finish(started));
    }
    HWND Open(int command)
    {
        PostMessageW(main, WM_COMMAND, static_cast<WPARAM>(command), 0);
        return wait_for_other_window(started, main);
    }
    static void Enter(HWND window, int id, const wchar_t* text)
    {
        SendMessageW(find_control(window, id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }
    static void Click(HWND window, int id) { SendMessageW(find_control(window, id), BM_CLICK, 0, 0); }
    static void Choose(HWND window, int id, int line)
    {
        const HWND combo = find_control(window, id);
        SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(line), 0);
        SendMessageW(GetParent(combo), WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(combo));
    }
    /// Presses a button that closes its window.
    void Close(HWND window, int id)
    {
        PostMessageW(find_control(window, id), BM_CLICK, 0, 0);
        EXPECT_TRUE(wait_until([&] { return !IsWindow(window) && IsWindowEnabled(main); }));
    }
    std::vector<std::wstring> Results()
    {
        constexpr WPARAM idRun = 2023;
        SendMessageW(main, WM_COMMAND, idRun, 0);
        return lines_of(find_control(main, idAnalysis));
    }

    const StoredLanguage kept;
    const TempFolder folder;
    Started started;
    HWND main = nullptr;
};
} // namespace

TEST_F(DemoSession, WizardThatIsFinishedMakesTheStructureAndAnalysesIt)
{
    const HWND wizard = Open(2015);
    ASSERT_TRUE(wait_until_shown(wizard, 1662));
    Enter(wizard, 1662, L"4"); // bays
    Enter(wizard, 1664, L"2"); // storeys
    Enter(wizard, 1666, L"5.00");
    Click(wizard, idNext);
    ASSERT_TRUE(wait_until_shown(wizard, 1682));
    Choose(wizard, 1684, 1); // a column of concrete
    EXPECT_EQ(1, SendMessageW(find_control(wizard, 1682), CB_GETCURSEL, 0, 0)) << "the material follows";
    Click(wizard, idNext);
    ASSERT_TRUE(wait_until_shown(wizard, 1702));
    Enter(wizard, 1704, L"2.00");
    Click(wizard, 1707); // no combinations
    Click(wizard, idNext);
    ASSERT_TRUE(wait_until_shown(wizard, 1721));
    EXPECT_EQ(L"4 bays, 2 storeys\n15 nodes, 18 members", text_of(find_control(wizard, 1721)));
    Close(wizard, idFinish);
    EXPECT_EQ(L"5.00", text_of(find_control(main, idSpan)));
    EXPECT_THAT(lines_of(find_control(main, idHistory)),
                testing::Contains(std::wstring(L"15 nodes, 18 members, 5 supports")));
    const std::vector<std::wstring> results = lines_of(find_control(main, idAnalysis));
    EXPECT_THAT(results, testing::Contains(std::wstring(L"0 combinations of 7 load cases")));
    EXPECT_THAT(results, testing::Contains(std::wstring(L"Design of 2 concrete members")));
}

TEST_F(DemoSession, WizardThatIsCancelledChangesNothing)
{
    const HWND wizard = Open(2015);
    ASSERT_TRUE(wait_until_shown(wizard, 1662));
    Enter(wizard, 1666, L"5.00");
    Close(wizard, 2);
    EXPECT_EQ(L"6.00", text_of(find_control(main, idSpan)));
    EXPECT_TRUE(lines_of(find_control(main, idAnalysis)).empty());
}

TEST_F(DemoSession, EveryLimitOfTheDesignCounts)
{
    const auto exceeded = [](const std::vector<std::wstring>& lines) {
        std::wstring all;
        for (const std::wstring& line : lines)
            all += line.find(L" is above ") != std::wstring::npos ? line + L"|" : L"";
        return all;
    };
    Enter(main, idSpan, L"8.00");
    Choose(main, 1504, 1); // concrete
    EXPECT_EQ(
        L"Member 10: crack width 0.31 mm is above 0.30 mm|Member 12: crack width 0.31 mm is above 0.30 mm|"
        L"Member 14: crack width 0.32 mm is above 0.30 mm|",
        exceeded(Results()));
    HWND limits = Open(2029);
    ASSERT_TRUE(wait_until_shown(limits, 1573));
    Choose(limits, 1573, 3); // L/500
    Enter(limits, 1575, L"0.40");
    Close(limits, idOk);
    EXPECT_EQ(L"", exceeded(Results()));
    limits = Open(2029);
    ASSERT_TRUE(wait_until_shown(limits, 1573));
    EXPECT_EQ(3, SendMessageW(find_control(limits, 1573), CB_GETCURSEL, 0, 0))
        << "shown again as it was entered";
    EXPECT_EQ(L"0.40", text_of(find_control(limits, 1575)));
    Enter(limits, 1571, L"0.50");
    Enter(limits, 1575, L"0.20");
    Close(limits, idOk);
    const std::wstring several = exceeded(Results());
    limits = Open(2029);
    ASSERT_TRUE(wait_until_shown(limits, 1577));
    Click(limits, 1577); // each member once
    Close(limits, idOk);
    const std::wstring once = exceeded(Results());
    EXPECT_GT(several.size(), once.size());
}

TEST_F(DemoSession, EverySettingOfTheAnalysisCounts)
{
    const std::vector<std::wstring> first = Results();
    HWND sheet = Open(2028);
    ASSERT_TRUE(wait_until_shown(sheet, 1604));
    EXPECT_FALSE(IsWindowEnabled(find_control(sheet, 0x3021))) << "nothing to apply";
    Click(sheet, 1602); // iterative
    Enter(sheet, 1606, L"1");
    EXPECT_TRUE(IsWindowEnabled(find_control(sheet, 0x3021)));
    Close(sheet, idOk);
    const std::vector<std::wstring> stopped = Results();
    EXPECT_EQ(L"Analysis stopped: 1 errors", stopped.back());
    EXPECT_LT(stopped.size(), first.size());

    sheet = Open(2028);
    ASSERT_TRUE(wait_until_shown(sheet, 1604));
    Enter(sheet, 1606, L"500");
    SendMessageW(sheet, PSM_SETCURSEL, 1, 0);
    ASSERT_TRUE(wait_until_shown(sheet, 1621));
    Enter(sheet, 1621, L"1");
    SendMessageW(sheet, PSM_SETCURSEL, 2, 0);
    ASSERT_TRUE(wait_until_shown(sheet, 1642));
    for (const int id : {1641, 1642, 1643, 1644})
        Click(sheet, id);
    Close(sheet, idOk);
    const std::vector<std::wstring> second = Results();
    const auto count = [&](const wchar_t* part) {
        return std::count_if(second.begin(), second.end(), [part](const std::wstring& line) {
            return line.find(part) != std::wstring::npos;
        });
    };
    EXPECT_EQ(1, count(L"Residual of equilibrium"));
    EXPECT_EQ(1, count(L"Looking for 1 modes"));
    EXPECT_EQ(1, count(L" Hz, period "));
    EXPECT_EQ(0, count(L"Largest displacement"));
    EXPECT_EQ(3, count(L"bending moment"));
    EXPECT_EQ(0, count(L"soil pressure"));
    EXPECT_EQ(0, count(L": utilisation"));
}
