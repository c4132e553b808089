#include "TestApp.h"

#include <afxpriv.h>

#include <cstddef>
#include <cstring>
#include <memory>

namespace
{
class Application : public WindowTest
{
};

/// Settings below a key of the test's own, removed afterwards.
class Profile : public WindowTest
{
protected:
    static constexpr LPCTSTR KEY = L"TarvoAfxTest";
    void SetUp() override
    {
        WindowTest::SetUp();
        theApp.SetRegistryKey(KEY);
    }
    void TearDown() override
    {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\TarvoAfxTest");
        WindowTest::TearDown();
    }
};

TEST_F(Profile, NamesComeFromTheApplication)
{
    EXPECT_STREQ(theApp.m_pszRegistryKey, KEY);
    EXPECT_STREQ(theApp.m_pszProfileName, L"afxwin_test");
    EXPECT_STREQ(theApp.m_pszAppName, L"afxwin_test");
    EXPECT_STREQ(theApp.m_pszExeName, L"afxwin_test");
    EXPECT_EQ(theApp.m_hInstance, ::GetModuleHandleW(nullptr));
}

TEST_F(Profile, ValuesAreKeptInTheRegistryByTheirTypes)
{
    EXPECT_EQ(theApp.GetProfileInt(L"Section", L"Number", 17), 17u);
    EXPECT_TRUE(theApp.WriteProfileInt(L"Section", L"Number", -5));
    EXPECT_EQ(static_cast<int>(theApp.GetProfileInt(L"Section", L"Number", 17)), -5);
    EXPECT_TRUE(theApp.WriteProfileString(L"Section", L"Text", L"글꼴"));
    EXPECT_EQ(theApp.GetProfileString(L"Section", L"Text"), L"글꼴");
    EXPECT_EQ(theApp.GetProfileString(L"Section", L"Number", L"other type"), L"other type");
    EXPECT_EQ(theApp.GetProfileInt(L"Section", L"Text", 3), 3u);
    WCHAR szStored[32] = {};
    DWORD dwSize = sizeof(szStored);
    EXPECT_EQ(::RegGetValueW(HKEY_CURRENT_USER, L"Software\\TarvoAfxTest\\afxwin_test\\Section", L"Text",
                             RRF_RT_REG_SZ, nullptr, szStored, &dwSize),
              ERROR_SUCCESS);
    EXPECT_STREQ(szStored, L"글꼴");
}

TEST_F(Profile, NullDeletesTheEntryOrTheSection)
{
    theApp.WriteProfileString(L"Section", L"A", L"1");
    theApp.WriteProfileString(L"Section", L"B", L"2");
    EXPECT_TRUE(theApp.WriteProfileString(L"Section", L"A", nullptr));
    EXPECT_EQ(theApp.GetProfileString(L"Section", L"A", L"gone"), L"gone");
    EXPECT_EQ(theApp.GetProfileString(L"Section", L"B", L"gone"), L"2");
    EXPECT_TRUE(theApp.WriteProfileString(L"Section", nullptr, nullptr));
    EXPECT_EQ(theApp.GetProfileString(L"Section", L"B", L"gone"), L"gone");
}

TEST_F(Profile, BytesComeBackAsTheyWere)
{
    BYTE bytes[] = {0, 1, 0xFE, 0xFF};
    BYTE* pRead = nullptr;
    UINT nRead = 9;
    EXPECT_FALSE(theApp.GetProfileBinary(L"Section", L"Bytes", &pRead, &nRead));
    EXPECT_EQ(pRead, nullptr);
    EXPECT_TRUE(theApp.WriteProfileBinary(L"Section", L"Bytes", bytes, sizeof(bytes)));
    ASSERT_TRUE(theApp.GetProfileBinary(L"Section", L"Bytes", &pRead, &nRead));
    EXPECT_EQ(std::vector<BYTE>(pRead, pRead + nRead), std::vector<BYTE>(bytes, bytes + sizeof(bytes)));
    delete[] pRead;
}

TEST_F(Profile, WithoutACompanySettingsAreInAnIniFile)
{
    WCHAR szFile[MAX_PATH] = {};
    WCHAR szFolder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, szFolder);
    ::GetTempFileNameW(szFolder, L"afx", 0, szFile);
    class CIniApp : public CWinApp
    {
    public:
        explicit CIniApp(AFX_MODULE_STATE* pState) : CWinApp(L"ini", pState) {}
    };
    AFX_MODULE_STATE state(reinterpret_cast<HINSTANCE>(::GetModuleHandleW(L"user32.dll")));
    CIniApp app(&state);
    app.m_pszProfileName = ::_wcsdup(szFile);
    BYTE bytes[] = {0, 1, 0xFE, 0xFF};
    EXPECT_TRUE(app.WriteProfileInt(L"S", L"N", -7));
    EXPECT_TRUE(app.WriteProfileString(L"S", L"T", CString(L'x', 2000)));
    EXPECT_TRUE(app.WriteProfileBinary(L"S", L"B", bytes, sizeof(bytes)));
    EXPECT_EQ(static_cast<int>(app.GetProfileInt(L"S", L"N", 0)), -7);
    EXPECT_EQ(app.GetProfileString(L"S", L"T").GetLength(), 2000);
    BYTE* pRead = nullptr;
    UINT nRead = 0;
    ASSERT_TRUE(app.GetProfileBinary(L"S", L"B", &pRead, &nRead));
    EXPECT_EQ(std::vector<BYTE>(pRead, pRead + nRead), std::vector<BYTE>(bytes, bytes + sizeof(bytes)));
    delete[] pRead;
    EXPECT_EQ(app.GetAppRegistryKey(), nullptr);
    EXPECT_EQ(AfxGetApp(), &theApp); // another module's object is not the program's
    ::DeleteFileW(szFile);
}

TEST_F(Application, StringsComeFromTheProgramsResources)
{
    CString strText;
    EXPECT_TRUE(strText.LoadString(IDS_GREETING));
    EXPECT_EQ(strText, L"Grüße 안녕");
    EXPECT_FALSE(strText.LoadString(9999u));
    WCHAR szText[4];
    EXPECT_EQ(AfxLoadString(IDS_GREETING, szText, 4), 3); // cut to the room
    EXPECT_STREQ(szText, L"Grü");
    EXPECT_EQ(AfxLoadString(9999, szText, 4), 0);
    EXPECT_STREQ(szText, L"");
}

TEST_F(Application, SubStringsAreCountedFromZero)
{
    CString strPart;
    EXPECT_TRUE(AfxExtractSubString(strPart, L"a\n\nc", 0));
    EXPECT_EQ(strPart, L"a");
    EXPECT_TRUE(AfxExtractSubString(strPart, L"a\n\nc", 1));
    EXPECT_EQ(strPart, L"");
    EXPECT_TRUE(AfxExtractSubString(strPart, L"a\n\nc", 2));
    EXPECT_EQ(strPart, L"c");
    EXPECT_FALSE(AfxExtractSubString(strPart, L"a\n\nc", 3));
    EXPECT_TRUE(AfxExtractSubString(strPart, L"x|y", 1, L'|'));
    EXPECT_EQ(strPart, L"y");
}

/// The number of a dialog that the module has and this program lacks.
LPCTSTR DialogOnlyIn(HMODULE hModule)
{
    LPCTSTR pszFound = nullptr;
    ::EnumResourceNamesW(
        hModule, RT_DIALOG,
        [](HMODULE, LPCWSTR, LPWSTR pszName, LONG_PTR lParam) -> BOOL {
            if (!IS_INTRESOURCE(pszName) || ::FindResourceW(nullptr, pszName, RT_DIALOG))
                return TRUE;
            *reinterpret_cast<LPCTSTR*>(lParam) = pszName;
            return FALSE;
        },
        reinterpret_cast<LONG_PTR>(&pszFound));
    return pszFound;
}

TEST_F(Application, ResourcesAreSearchedInTheCurrentModuleThenInExtensionsThenInTheProgram)
{
    const HINSTANCE hProgram = ::GetModuleHandleW(nullptr);
    const HMODULE hOther = ::LoadLibraryW(L"comdlg32.dll");
    ASSERT_NE(hOther, nullptr);
    const LPCTSTR pszOther = DialogOnlyIn(hOther);
    ASSERT_NE(pszOther, nullptr);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(IDD_FORM), RT_DIALOG), hProgram);
    EXPECT_EQ(AfxFindResourceHandle(pszOther, RT_DIALOG), hProgram); // nobody has it: the current one
    AFX_EXTENSION_MODULE module{};
    EXPECT_TRUE(AfxInitExtensionModule(module, hOther));
    EXPECT_FALSE(AfxInitExtensionModule(module, hOther));
    new CDynLinkLibrary(module);
    EXPECT_EQ(AfxFindResourceHandle(pszOther, RT_DIALOG), hOther);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(IDD_FORM), RT_DIALOG), hProgram);
    AfxTermExtensionModule(module);
    EXPECT_EQ(AfxFindResourceHandle(pszOther, RT_DIALOG), hProgram);
    AfxSetResourceHandle(hOther);
    EXPECT_EQ(AfxGetModuleState()->m_hCurrentResourceHandle, hOther);
    EXPECT_EQ(AfxFindResourceHandle(pszOther, RT_DIALOG), hOther);
    AfxSetResourceHandle(hProgram);
    ::FreeLibrary(hOther);
}

TEST_F(Application, ModuleStateHoldsInsideItsScopeAndInItsWindowsHandlers)
{
    AFX_MODULE_STATE module(::GetModuleHandleW(L"comctl32.dll"));
    class CModuleWnd : public CWnd
    {
    public:
        HINSTANCE m_hSeen = nullptr;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP)
                m_hSeen = AfxGetResourceHandle();
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    const HINSTANCE hProgram = AfxGetResourceHandle();
    std::unique_ptr<CModuleWnd> pWnd;
    {
        AFX_MANAGE_STATE(&module)
        EXPECT_EQ(AfxGetResourceHandle(), module.m_hCurrentResourceHandle);
        EXPECT_EQ(AfxGetApp(), &theApp); // the module has none of its own
        pWnd = std::make_unique<CModuleWnd>();
    }
    EXPECT_EQ(AfxGetResourceHandle(), hProgram);
    ASSERT_TRUE(pWnd->CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    pWnd->SendMessage(WM_APP);
    EXPECT_EQ(pWnd->m_hSeen, module.m_hCurrentResourceHandle);
    EXPECT_EQ(AfxGetResourceHandle(), hProgram);
    EXPECT_EQ(AfxGetStaticModuleState()->m_hCurrentInstanceHandle, ::GetModuleHandleW(nullptr));
}

TEST_F(Application, LoopRunsIdleWorkWhenTheQueueIsEmptyAndEndsWithTheQuitCode)
{
    class CIdleApp : public CWinThread
    {
    public:
        std::vector<LONG> m_counts;
        BOOL OnIdle(LONG lCount) override
        {
            m_counts.push_back(lCount);
            if (lCount == 2)
                ::PostQuitMessage(33);
            return lCount < 2;
        }
    };
    CIdleApp thread;
    EXPECT_EQ(thread.Run(), 33);
    EXPECT_EQ(thread.m_counts, (std::vector<LONG>{0, 1, 2}));
}

class Templates : public WindowTest
{
protected:
    static std::string Font(const CDialogTemplate& t)
    {
        CString strFace;
        WORD wSize = 0;
        if (!t.GetFont(strFace, wSize))
            return "none";
        return std::string(CStringA(strFace).GetString()) + " " + std::to_string(wSize);
    }
    /// The dialog that the template makes: its font and the texts and places of its controls.
    static std::string Show(const CDialogTemplate& t)
    {
        CDialog dlg;
        const BOOL bMade = dlg.CreateIndirect(static_cast<LPCDLGTEMPLATE>(::GlobalLock(t.m_hTemplate)));
        ::GlobalUnlock(t.m_hTemplate);
        if (!bMade)
            return "no dialog";
        std::string text;
        LOGFONTW font{};
        if (CFont* pFont = dlg.GetFont())
            pFont->GetLogFont(&font);
        text = CStringA(font.lfFaceName).GetString();
        for (CWnd* pChild = dlg.GetWindow(GW_CHILD); pChild; pChild = pChild->GetNextWindow())
        {
            CString strText;
            pChild->GetWindowText(strText);
            text += "|" + std::string(CStringA(strText).GetString()) + "#" +
                    std::to_string(pChild->GetDlgCtrlID());
        }
        dlg.DestroyWindow();
        return text;
    }
};

TEST_F(Templates, FontOfBothFormsIsRead)
{
    CDialogTemplate t;
    EXPECT_FALSE(t.Load(MAKEINTRESOURCEW(999)));
    EXPECT_EQ(Font(t), "none");
    ASSERT_TRUE(t.Load(MAKEINTRESOURCEW(IDD_FORM)));
    EXPECT_EQ(Font(t), "MS Shell Dlg 9");
    ASSERT_TRUE(t.Load(MAKEINTRESOURCEW(IDD_SMALL)));
    EXPECT_EQ(Font(t), "Tahoma 8");
    EXPECT_TRUE(t.HasFont());
}

TEST_F(Templates, ChangedFontLeavesEveryControlWhereItWas)
{
    for (UINT nID : {IDD_FORM, IDD_SMALL, IDD_FAR})
    {
        CDialogTemplate t;
        ASSERT_TRUE(t.Load(MAKEINTRESOURCEW(nID)));
        const std::string before = Show(t);
        const std::string controls = before.substr(before.find('|'));
        for (LPCTSTR pszFace : {L"T", L"Tahoma", L"WenQuanYi Micro Hei Mono", L"Tahoma"})
        {
            ASSERT_TRUE(t.SetFont(pszFace, 13));
            EXPECT_EQ(Font(t), std::string(CStringA(pszFace).GetString()) + " 13");
            EXPECT_EQ(Show(t), CStringA(pszFace).GetString() + controls);
        }
    }
}

TEST_F(Templates, TemplateWithoutAFontGetsOne)
{
    struct
    {
        DLGTEMPLATE head{WS_POPUP | WS_CAPTION, 0, 1, 10, 10, 80, 40};
        WORD menuClassTitle[3] = {0, 0, 0};
        DLGITEMTEMPLATE item{WS_CHILD | WS_VISIBLE, 0, 1, 2, 30, 10, 44};
        WORD itemClass[2] = {0xFFFF, 0x0082};
        WCHAR itemTitle[3] = L"Hi";
        WORD extra = 0;
    } bytes;
    static_assert(offsetof(decltype(bytes), item) == 24);
    CDialogTemplate t(&bytes.head);
    EXPECT_EQ(t.m_dwTemplateSize, sizeof(bytes));
    EXPECT_EQ(Font(t), "none");
    EXPECT_NE(Show(t).find("|Hi#44"), std::string::npos);
    ASSERT_TRUE(t.SetFont(L"Tahoma", 10));
    EXPECT_EQ(Font(t), "Tahoma 10");
    EXPECT_EQ(Show(t), "Tahoma|Hi#44");
    SIZE size{};
    t.GetSizeInDialogUnits(&size);
    EXPECT_EQ(size.cx, 80);
}

TEST_F(Templates, SizeInPixelsIsTheDialogsClientArea)
{
    for (UINT nID : {IDD_FORM, IDD_SMALL})
    {
        CDialogTemplate t;
        ASSERT_TRUE(t.Load(MAKEINTRESOURCEW(nID)));
        SIZE size{};
        t.GetSizeInPixels(&size);
        CDialog dlg;
        ASSERT_TRUE(dlg.Create(nID));
        CRect client;
        dlg.GetClientRect(client);
        EXPECT_NEAR(size.cx, client.Width(), 1) << nID;
        EXPECT_NEAR(size.cy, client.Height(), 1) << nID;
        dlg.DestroyWindow();
    }
}

TEST_F(Templates, DetachedMemoryBelongsToTheCaller)
{
    CDialogTemplate t;
    ASSERT_TRUE(t.Load(MAKEINTRESOURCEW(IDD_SMALL)));
    const HGLOBAL hGlobal = t.Detach();
    EXPECT_EQ(t.m_hTemplate, nullptr);
    CDialogTemplate owner(hGlobal);
    EXPECT_EQ(Font(owner), "Tahoma 8");
    EXPECT_FALSE(t.SetFont(L"Tahoma", 9));
}
} // namespace
