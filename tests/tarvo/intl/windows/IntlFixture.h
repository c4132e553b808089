#pragma once

#include "tests/standin/afx/windows/TestApp.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestRegistry.h"
#include "tests/tarvo/intl/windows/IntlResources.h"

#include "qlx/qlx_lib.h"

#include <functional>
#include <map>
#include <ostream>
#include <string>

class XMultiLang;

/// Message texts by key, as the companion library asks for them.
class CTestCatalogue : public qlx::lib::IMSGTextProvider
{
public:
    CTestCatalogue() { qlx::lib::MMSGFunction::RegisterProvider(this); }
    ~CTestCatalogue() override { qlx::lib::MMSGFunction::UnregisterProvider(this); }
    bool GetText(const wchar_t* key, int project, CString& text) override;

    std::map<std::wstring, std::wstring> texts;
};

/// A host with a registry key of the test's own, the language table "IntlTest" of this program, a catalogue,
/// and a text font from a file.
class IntlWindows : public WindowTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// A setting of the section "ENV_GENERAL".
    void Set(const wchar_t* name, const wchar_t* value);
    /// The message catalogue's font from now on.
    void SetTextFont(const std::string& face);
    /// Replaces the texts of the catalogue by German ones, or by ones in which a few keys are missing.
    void SpeakGerman();
    void SpeakFrench();

    /// The table of this program's symbols, which a new owner takes over.
    static XMultiLang* MakeTable();

    TempFolder folder;
    TestRegistry registry;
    CTestCatalogue catalogue;
    XMultiLang* table = nullptr; ///< the registry's
};

/// A window's text.
std::wstring TextOf(HWND window);
/// "caption|child|child" of the direct children, in z-order.
std::wstring TextsOf(HWND window);
/// "face height" of the font that a window says it has.
std::wstring FontOf(HWND window);
/// Every window below, or those that are wanted, one a line: class, identifier, text, place and font.
std::wstring DumpOf(HWND window, const std::function<bool(HWND)>& wanted = {});
/// A control's height in pixels.
int HeightOf(HWND window);

/// Shows a place in a failed expectation.
inline void PrintTo(const CRect& place, std::ostream* os)
{
    *os << place.left << "," << place.top << " " << place.Width() << "x" << place.Height();
}
