// Translating a live dialog from its language file, against setting the same texts.
#include "tarvo/lang/XMultiLang.h"

#include <afxwin.h>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace
{
constexpr int kControls = 500;

/// A window with 500 labels, and a table that names and translates them.
struct Dialog
{
    Dialog()
    {
        window = ::CreateWindowExW(0, L"STATIC", L"Setup", WS_POPUP | WS_VISIBLE, 0, 0, 800, 600, nullptr,
                                   nullptr, nullptr, nullptr);
        std::wstring header = L"#define IDD_SETUP 120\n";
        std::wstring ini = L"[IDD_SETUP]\nIDD_SETUP=Einstellungen\n";
        for (int id = 1000; id < 1000 + kControls; ++id)
        {
            const std::wstring number = std::to_wstring(id);
            header += L"#define IDC_CONTROL_" + number + L" " + number + L"\n";
            ini += L"IDC_CONTROL_" + number + L"=" + text(id) + L"\n";
            labels.push_back(::CreateWindowExW(0, L"STATIC", L"text", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20,
                                               window, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                               nullptr, nullptr));
        }
        table.LoadResourceHeader(reinterpret_cast<unsigned char*>(header.data()),
                                 static_cast<int>(header.size()));
        table.GetXIni().OpenMemory(ini.c_str(), static_cast<int>(ini.size()));
    }
    ~Dialog() { ::DestroyWindow(window); }
    static std::wstring text(int id) { return L"Beschriftung Nummer " + std::to_wstring(id); }

    HWND window;
    std::vector<HWND> labels;
    XMultiLang table;
};

void translate_dialog(benchmark::State& state)
{
    Dialog dialog;
    for (auto _ : state)
        if (dialog.table.TranslateDialog(dialog.window, 120).nTranslated != kControls + 1)
            state.SkipWithError("not translated");
}

void set_window_texts(benchmark::State& state)
{
    Dialog dialog;
    std::vector<std::wstring> texts;
    for (int id = 1000; id < 1000 + kControls; ++id)
        texts.push_back(Dialog::text(id));
    for (auto _ : state)
    {
        ::SetWindowTextW(dialog.window, L"Einstellungen");
        for (int i = 0; i < kControls; ++i)
            ::SetWindowTextW(dialog.labels[static_cast<std::size_t>(i)],
                             texts[static_cast<std::size_t>(i)].c_str());
    }
}

BENCHMARK(translate_dialog);
BENCHMARK(set_window_texts);
} // namespace
