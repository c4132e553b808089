#include "TestApp.h"

#include "platform/file.h"
#include "tests/support/TempFolder.h"

#include <afxdlgs.h>

#include <functional>
#include <memory>

// The system's dialog, driven as its user would: a name is typed, a button is pressed.
namespace
{
class FileDialogs : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        s_timer = ::SetTimer(nullptr, 0, 20, OnTimer);
    }
    void TearDown() override
    {
        ::KillTimer(nullptr, s_timer);
        s_use = nullptr;
        WindowTest::TearDown();
    }
    /// What the user does in the dialog that comes up next.
    void TypeAndPress(const std::wstring& name, int button)
    {
        s_use = [=, this](HWND dialog) {
            m_title = Text(dialog);
            m_ownerIsDisabled = !m_host.IsWindowEnabled();
            if (!name.empty())
                ::SetWindowTextW(NameEntry(dialog), name.c_str());
            ::PostMessageW(dialog, WM_COMMAND, Clicked(button), 0);
        };
    }
    static std::wstring Text(HWND window)
    {
        wchar_t text[260] = {};
        ::GetWindowTextW(window, text, 260);
        return text;
    }
    /// Of one file or of several: an edit control or a combo box.
    static HWND NameEntry(HWND dialog)
    {
        constexpr int edit = 0x480, combo = 0x47C;
        const HWND one = ::GetDlgItem(dialog, edit);
        return one ? one : ::GetDlgItem(dialog, combo);
    }
    std::unique_ptr<CFileDialog> Make(BOOL open, const wchar_t* name, DWORD flags)
    {
        auto dlg = std::make_unique<CFileDialog>(open, L"txt", name, flags, L"Text|*.txt|All|*.*||", &m_host);
        m_initial = m_folder.path();
        dlg->m_ofn.lpstrInitialDir = m_initial.c_str();
        return dlg;
    }
    std::wstring Write(const wchar_t* name)
    {
        std::wstring path = m_folder / name;
        EXPECT_EQ(platform::file::write_whole(path.c_str(), "x"), platform::file::Written::ok);
        return path;
    }
    CHostWnd m_host;
    TempFolder m_folder;
    std::wstring m_initial, m_title;
    bool m_ownerIsDisabled = false;

private:
    /// Waits for the dialog; once, for each.
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        const HWND dialog = ::GetActiveWindow();
        wchar_t name[16] = {};
        ::GetClassNameW(dialog, name, 16);
        if (s_use && std::wstring(name) == L"#32770" && ::IsWindowVisible(dialog) && NameEntry(dialog))
            std::exchange(s_use, nullptr)(dialog);
    }
    static std::function<void(HWND)> s_use;
    static UINT_PTR s_timer;
};

std::function<void(HWND)> FileDialogs::s_use;
UINT_PTR FileDialogs::s_timer;
} // namespace

TEST_F(FileDialogs, NameThatIsTypedToSaveGetsTheDefaultExtension)
{
    const auto dlg = Make(FALSE, nullptr, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT);
    TypeAndPress(L"report", IDOK);
    EXPECT_EQ(dlg->DoModal(), IDOK);
    EXPECT_TRUE(m_ownerIsDisabled);
    EXPECT_TRUE(m_host.IsWindowEnabled());
    EXPECT_EQ(dlg->GetPathName(), (m_folder / L"report.txt").c_str());
    EXPECT_EQ(dlg->GetFileName(), L"report.txt");
    EXPECT_EQ(dlg->GetFileTitle(), L"report");
    EXPECT_EQ(dlg->GetFileExt(), L"txt");
}

TEST_F(FileDialogs, FileThatIsThereIsOpened)
{
    const std::wstring path = Write(L"there.txt");
    const auto dlg = Make(TRUE, L"there.txt", OFN_FILEMUSTEXIST);
    TypeAndPress(L"", IDOK);
    EXPECT_EQ(dlg->DoModal(), IDOK);
    EXPECT_EQ(dlg->GetPathName(), path.c_str());
    EXPECT_EQ(dlg->GetFolderPath(), m_folder.path().c_str());
}

TEST_F(FileDialogs, SeveralFilesComeOneAfterTheOther)
{
    const std::wstring one = Write(L"one.txt"), two = Write(L"two.txt");
    const auto dlg = Make(TRUE, nullptr, OFN_ALLOWMULTISELECT | OFN_FILEMUSTEXIST);
    TypeAndPress(L"\"one.txt\" \"two.txt\"", IDOK);
    EXPECT_EQ(dlg->DoModal(), IDOK);
    std::vector<std::wstring> paths;
    for (POSITION pos = dlg->GetStartPosition(); pos;)
        paths.emplace_back(dlg->GetNextPathName(pos).GetString());
    EXPECT_EQ(paths, (std::vector<std::wstring>{one, two}));
}

TEST_F(FileDialogs, CancelIsAnsweredAsSuch)
{
    const auto dlg = Make(TRUE, nullptr, OFN_FILEMUSTEXIST);
    TypeAndPress(L"never.txt", IDCANCEL);
    EXPECT_EQ(dlg->DoModal(), IDCANCEL);
    EXPECT_TRUE(m_host.IsWindowEnabled());
}

TEST_F(FileDialogs, TitleAndStructureCanBeChangedBefore)
{
    const auto dlg = Make(FALSE, L"name.txt", 0);
    dlg->m_ofn.lpstrTitle = L"Where to";
    TypeAndPress(L"", IDOK);
    EXPECT_EQ(dlg->DoModal(), IDOK);
    EXPECT_EQ(m_title, L"Where to");
    EXPECT_EQ(dlg->GetPathName(), (m_folder / L"name.txt").c_str());
}
