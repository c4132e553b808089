// Changing the language of what is open, against the bare calls that set the same texts and the same font.
#include "tarvo/intl/InternationalDlg.h"
#include "tarvo/intl/InternationalUtil.h"
#include "tarvo/intl/LanguageSwitch.h"
#include "tarvo/intl/TemplateFont.h"
#include "tarvo/lang/INIResourceManager.h"
#include "tarvo/msg/MSGFunction.h"

#include <afxwin.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace
{
constexpr int kWindows = 20;
constexpr int kControls = 50;
constexpr int kFirstId = 1000;

/// A dialog template of 50 controls, four in five labels or buttons, the rest edit controls.
std::vector<WORD> make_template()
{
    std::vector<WORD> words{
        0, static_cast<WORD>((WS_POPUP | WS_CAPTION) >> 16), 0, 0, kControls, 0, 0, 300, 300, 0, 0};
    const auto put = [&](const std::wstring& text) {
        words.insert(words.end(), text.begin(), text.end());
        words.push_back(0);
    };
    put(L"Setup");
    for (int i = 0; i < kControls; ++i)
    {
        if (words.size() % 2)
            words.push_back(0);
        const WORD kind = i % 5 == 4 ? 0x81 : i % 5 == 3 ? 0x80 : 0x82; // edit, button, static
        words.insert(words.end(),
                     {0, static_cast<WORD>((WS_CHILD | WS_VISIBLE) >> 16), 0, 0, 7, static_cast<WORD>(i * 6),
                      80, 10, static_cast<WORD>(kFirstId + i), 0xFFFF, kind});
        put(kind == 0x81 ? L"" : L"Control " + std::to_wstring(i));
        words.push_back(0);
    }
    return words;
}

class CBenchDlg : public CInternationalDlg
{
public:
    /// As from a resource in the dialog font of the settings, whose changes it follows.
    BOOL Open(LPCDLGTEMPLATE bytes)
    {
        MadeFrom(MAKEINTRESOURCEW(120),
                 {CInternationalUtil::GetDlgFontName(), CInternationalUtil::GetDlgFontSize()});
        return CreateIndirect(bytes, nullptr);
    }
    int TranslateStringToINI() override { return TranslateByTable(120); }
};

std::wstring text_of(int language, int id)
{
    return (language ? L"Beschriftung Nummer " : L"Caption number ") + std::to_wstring(id);
}

/// Puts the texts and the font of a language into the catalogue.
void speak(int language)
{
    for (int i = 0; i < kControls; ++i)
        CMSGFunction::SetValue((L"IDS_IDD_SETUP_IDC_" + std::to_wstring(i)).c_str(),
                               text_of(language, i).c_str());
    CMSGFunction::SetValue(L"IDS_IDD_SETUP_IDD_SETUP", text_of(language, -1).c_str());
    std::FILE* const file = std::fopen("switch_bench_font.ini", "wb");
    std::fputs(language ? "FONT=Tahoma\r\n" : "FONT=DejaVu Sans\r\n", file);
    std::fclose(file);
    CMSGFunction::SetFontPath(L"switch_bench_font.ini", L"");
    CMSGFunction::LoadFile();
}

/// Twenty open dialogs, visible or not, that the module's table translates.
struct Desk
{
    Desk()
    {
        std::wstring header = L"#define IDD_SETUP 120\n";
        for (int i = 0; i < kControls; ++i)
            header += L"#define IDC_" + std::to_wstring(i) + L" " + std::to_wstring(kFirstId + i) + L"\n";
        auto* const table = new XMultiLang;
        table->LoadResourceHeader(reinterpret_cast<unsigned char*>(header.data()),
                                  static_cast<int>(header.size()));
        // The program has no project resource, which is a project's name like any other.
        INIResourceManager::AppendMap(L"Non Find String", table);
        speak(0);
        static const std::vector<WORD> words = make_template();
        for (int i = 0; i < kWindows; ++i)
        {
            dialogs.push_back(std::make_unique<CBenchDlg>());
            dialogs.back()->Open(reinterpret_cast<LPCDLGTEMPLATE>(words.data()));
            dialogs.back()->ShowWindow(SW_SHOWNOACTIVATE);
        }
    }
    ~Desk()
    {
        for (const auto& dialog : dialogs)
            dialog->DestroyWindow();
        INIResourceManager::DeleteINIResource();
        CMSGFunction::Reset();
        std::remove("switch_bench_font.ini");
    }
    std::vector<std::unique_ptr<CBenchDlg>> dialogs;
};

/// Paints what has to be painted: a change that is not seen has not been made.
void paint(const Desk& desk)
{
    for (const auto& dialog : desk.dialogs)
        ::RedrawWindow(dialog->m_hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void change_language(benchmark::State& state)
{
    Desk desk;
    int language = 0;
    for (auto _ : state)
    {
        state.PauseTiming();
        speak(language ^= 1);
        state.ResumeTiming();
        if (CLanguageSwitch::Retranslate() != kWindows)
            state.SkipWithError("a window did not follow");
        paint(desk);
    }
    wchar_t text[64] = {};
    ::GetDlgItemTextW(desk.dialogs.back()->m_hWnd, kFirstId, text, 64);
    if (text != text_of(language, 0))
        state.SkipWithError("not translated");
}

void bare_calls(benchmark::State& state)
{
    Desk desk;
    LOGFONTW description = desk.dialogs[0]->GetTextLogFont();
    const HFONT fonts[] = {::CreateFontIndirectW(&description), ::CreateFontIndirectW(&description)};
    std::vector<std::wstring> texts[2];
    for (int language = 0; language < 2; ++language)
        for (int i = 0; i < kControls; ++i)
            texts[language].push_back(text_of(language, i));
    std::vector<HWND> controls;
    for (const auto& dialog : desk.dialogs)
        for (int i = 0; i < kControls; ++i)
            controls.push_back(::GetDlgItem(dialog->m_hWnd, kFirstId + i));
    int language = 0;
    for (auto _ : state)
    {
        language ^= 1;
        const HWND* next = controls.data();
        for (const auto& dialog : desk.dialogs)
        {
            ::SetWindowTextW(dialog->m_hWnd, text_of(language, -1).c_str());
            for (int i = 0; i < kControls; ++i)
            {
                const HWND control = *next++;
                if (i % 5 != 4)
                    ::SetWindowTextW(control, texts[language][static_cast<std::size_t>(i)].c_str());
                ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(fonts[language]), TRUE);
            }
        }
        paint(desk);
    }
    for (const HFONT font : fonts)
        ::DeleteObject(font);
}

BENCHMARK(change_language);
BENCHMARK(bare_calls);
} // namespace
