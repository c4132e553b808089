#include "tarvo/lang/XMultiLang.h"

#include "platform/codepage.h"
#include "platform/file.h"
#include "tarvo/settings/Registry.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestRegistry.h"
#include "tests/tarvo/lang/Dump.h"

#include "qlx/qlx_lib.h"

#include <gtest/gtest.h>

namespace
{
constexpr wchar_t kTestKey[] = L"HKEY_CURRENT_USER\\Software\\KORAL\\TEST";
constexpr wchar_t kMissing[] = L"CaNNot Find szLangKey To Ini File";

void load_header(XMultiLang& table, const std::wstring& text)
{
    std::string bytes = platform::codepage::to_utf16le(text);
    EXPECT_EQ(table.LoadResourceHeader(reinterpret_cast<unsigned char*>(bytes.data()),
                                       static_cast<int>(text.size())),
              1);
}

class Tables : public testing::Test
{
protected:
    CString write(const wchar_t* name, const std::wstring& text)
    {
        const std::wstring path = folder / name;
        const std::string bytes = "\xFF\xFE" + platform::codepage::to_utf16le(text);
        EXPECT_EQ(platform::file::write_whole(path.c_str(), bytes), platform::file::Written::ok);
        return path.c_str();
    }
    CString control(XMultiLang& table, int id)
    {
        CString text = L"untouched";
        const int found = table.FindDialogControlText(id, text);
        EXPECT_EQ(found, text.IsEmpty() ? 0 : 1);
        return text;
    }
    TempFolder folder;
    TestRegistry registry;
    XMultiLang table;
};
} // namespace

TEST_F(Tables, AnswerThatNothingIsLoadedBeforeCreate)
{
    EXPECT_EQ(table.Lang(L"k", L"S"), L"Can't load language file");
    parse(table.GetXIni(), L"[S]\nk=v\n");
    EXPECT_EQ(table.Lang(L"k", L"S"), L"Can't load language file");
    EXPECT_EQ(table.Create((folder / L"none.ini").c_str(), L""), 0);
    EXPECT_EQ(table.Lang(L"k", L"S"), L"Can't load language file");
}

TEST_F(Tables, AreCreatedWhenEitherFileIsRead)
{
    const CString file = write(L"a.ini", L"[S]\nk=v\n");
    const CString none = (folder / L"none.ini").c_str();
    const struct
    {
        CString primary, secondary;
        int result;
    } rows[] = {
        {file, L"", 1},  {file, file, 1}, {file, none, 1}, {none, file, 1},
        {none, none, 0}, {none, L"", 0},  {L"", L"", 0},
    };
    for (const auto& row : rows)
    {
        XMultiLang fresh;
        EXPECT_EQ(fresh.Create(row.primary, row.secondary), row.result);
        EXPECT_EQ(fresh.Lang(L"k", L"S"), row.result ? L"v" : L"Can't load language file");
    }
}

TEST_F(Tables, AreCreatedFromMemoryWhateverItHolds)
{
    unsigned char bytes[] = "[S]\nk=v\n[GENERAL]\nCODEPAGE=949\n";
    EXPECT_EQ(table.Create(bytes, sizeof bytes - 1), 1);
    EXPECT_EQ(table.Lang(L"k", L"S"), L"v");
    EXPECT_EQ(table.GetCodePage(), 949);
    XMultiLang empty;
    EXPECT_EQ(empty.Create(bytes, 0), 1);
    EXPECT_EQ(empty.Lang(L"k", L"S"), kMissing);
    EXPECT_EQ(empty.GetCodePage(), 0);
}

TEST_F(Tables, TellTheCodePageOfThePrimaryFile)
{
    EXPECT_EQ(table.GetCodePage(), 0);
    table.Create(write(L"a.ini", L"[GENERAL]\nCODEPAGE=\"949\"\n"),
                 write(L"b.ini", L"[GENERAL]\nCODEPAGE=932\n"));
    EXPECT_EQ(table.GetCodePage(), 949);
    table.Create((folder / L"none").c_str(), write(L"b.ini", L"[GENERAL]\nCODEPAGE=932\n"));
    EXPECT_EQ(table.GetCodePage(), 0);
}

TEST_F(Tables, ReadEightBitFilesInThePageSetBefore)
{
    const std::wstring path = folder / L"k.ini";
    platform::file::write_whole(path.c_str(), "[S]\nk=\xB0\xA1\n");
    table.GetXIni().SetCodePage(949);
    table.GetSecondaryXIni().SetCodePage(949);
    table.Create(path.c_str(), path.c_str());
    EXPECT_EQ(table.Lang(L"k", L"S"), L"\xAC00");
    EXPECT_EQ(table.GetSecondaryXIni().GetStr(L"S", L"k", L""), L"\xAC00");
}

TEST_F(Tables, AnswerFromThePrimaryThenFromTheSecondaryFile)
{
    table.Create(
        write(L"a.ini", L"[S]\nboth=first\nempty=\nempty2=\nlost=\n[Text]\nt=default\n"),
        write(L"b.ini", L"[S]\nboth=second\nempty=filled\nonly=here\nempty2=\nbare\n[TEXT]\nu=other\n"));
    const struct
    {
        const wchar_t* key;
        const wchar_t* section;
        const wchar_t* text;
    } rows[] = {
        {L"both", L"S", L"first"},   {L"empty", L"S", L"filled"},  {L"only", L"S", L"here"},
        {L"empty2", L"S", L""},      {L"bare", L"S", L""},         {L"lost", L"S", kMissing},
        {L"none", L"S", kMissing},   {L"both", L"None", kMissing}, {L"BOTH", L"S", kMissing},
        {L"t", nullptr, L"default"}, {L"u", nullptr, L"other"},    {L"both", nullptr, kMissing},
        {nullptr, L"S", kMissing},
    };
    for (const auto& row : rows)
        EXPECT_EQ(table.Lang(row.key, row.section), row.text);
}

TEST_F(Tables, SpellLineBreaksOut)
{
    table.Create(write(L"a.ini", L"[S]\na=Line1\\nLine2\nb=x\\r\\ny\\n\\n\nc=\\\\n\\t\\N\n"), L"");
    EXPECT_EQ(table.Lang(L"a", L"S"), L"Line1\nLine2");
    EXPECT_EQ(table.Lang(L"b", L"S"), L"x\r\ny\n\n");
    EXPECT_EQ(table.Lang(L"c", L"S"), L"\\\n\\t\\N");
}

TEST_F(Tables, FindAControlsTextInTheDialogThenAmongSharedOnes)
{
    load_header(table, L"#define IDD_A 100\n#define IDC_OWN 1\n#define IDC_X 1001\n#define IDC_LATER 1001\n"
                       L"#define IDC_SECOND 1002\n#define IDC_SHARED 1003\n#define IDC_SHARED2 1004\n"
                       L"#define IDC_EMPTY 1005\n#define IDC_STATIC -1\n#define ,IDC_P,,IDC_Q 1006\n");
    table.Create(write(L"a.ini",
                       L"[IDD_A]\nIDC_X=own\\ntext\nIDC_EMPTY=\nIDC_STATIC=label\nIDOK=Fine\nIDC_Q=of two\n"
                       L"[DIALOG]\nIDC_X=shared\nIDC_SHARED=shared first\nIDC_LATER=wrong\n"),
                 write(L"b.ini", L"[IDD_A]\nIDC_X=no\nIDC_SECOND=second\nIDC_SHARED=second wins over shared\n"
                                 L"[DIALOG]\nIDC_SHARED2=shared second\nIDC_EMPTY=filled\n"));
    table.SetCurrentDlgManually(L"IDD_A");
    EXPECT_EQ(table.GetCurrentDlg(), L"IDD_A");
    EXPECT_EQ(control(table, 1001), L"own\ntext");
    EXPECT_EQ(control(table, 1002), L"second");
    EXPECT_EQ(control(table, 1003), L"second wins over shared");
    EXPECT_EQ(control(table, 1004), L"shared second");
    EXPECT_EQ(control(table, 1005), L"filled");
    EXPECT_EQ(control(table, 1006), L"of two") << "each part of a name with commas is tried";
    EXPECT_EQ(control(table, -1), L"label");
    EXPECT_EQ(control(table, 1), L"Fine") << "the standard button's name comes before the header's";
    EXPECT_EQ(control(table, 77), L"");
    EXPECT_EQ(control(table, 100), L"");
}

TEST_F(Tables, LookOnlyIntoTheEmptySectionWithoutADialog)
{
    load_header(table, L"#define IDC_X 1001\n");
    table.Create(write(L"a.ini", L"[IDD_A]\nIDC_X=own\n[DIALOG]\nIDC_X=shared\n"), L"");
    EXPECT_EQ(control(table, 1001), L"");
    table.GetXIni().SetStr(L"", L"IDC_X", L"nameless");
    EXPECT_EQ(control(table, 1001), L"nameless");
}

TEST_F(Tables, FindMenuTextsByTheMenuTablesNames)
{
    load_header(table,
                L"#define ID_OPEN 500\n#define IDM_EXIT 501\n#define IDC_NO_MENU 502\n#define ID_A,ID_B 503\n"
                L"#define ID_TAB 504\n");
    table.Create(write(L"a.ini",
                       L"[MENUSTR]\nID_OPEN=Oeffnen\nIDC_NO_MENU=no\nID_B=second name\nID_TAB=x\\tF2\n"
                       L"File=Datei\nRecent Files=Zuletzt\\nbenutzt\n[TEXT]\nIDM_EXIT=no\n"),
                 write(L"b.ini", L"[MENUSTR]\nIDM_EXIT=Beenden\tAlt+X\nID_OPEN=no\n"));
    const struct
    {
        unsigned id;
        bool isPopup;
        const wchar_t* text;
        const wchar_t* translated;
    } rows[] = {
        {500, false, L"&Open", L"Oeffnen"},
        {500, false, L"&Open\tCtrl+O", L"Oeffnen\tCtrl+O"},
        {501, false, L"E&xit\tAlt+F4", L"Beenden\tAlt+X"}, // the translation's own accelerator text
        {502, false, L"No", nullptr},
        {503, false, L"A", L"second name"},
        {504, false, L"T\tF2", L"x\\tF2\tF2"}, // only line breaks are spelled with a backslash
        {77, false, L"File", nullptr},
        {77, true, L"&File", L"Datei"},
        {77, true, L"Recent &Files\tx", L"Zuletzt\nbenutzt\tx"},
        {77, true, L"", nullptr},
        {500, true, L"File", L"Oeffnen"},
    };
    for (const auto& row : rows)
    {
        CString translated;
        EXPECT_EQ(table.FindMenuText(row.id, row.isPopup, row.text, translated), row.translated ? 1 : 0);
        if (row.translated)
        {
            EXPECT_EQ(translated, row.translated);
        }
    }
}

TEST_F(Tables, NameTheProjectByTheFirstWord)
{
    unsigned char text[] = {' ', 0, 'D', 0, 'r', 0, 'a', 0, 'w', 0, '\n', 0, 'x', 0};
    EXPECT_EQ(XMultiLang::GetProjectName(text, 7), L"Draw");
    EXPECT_EQ(XMultiLang::GetProjectName(text, 3), L"Dr");
    EXPECT_EQ(XMultiLang::GetProjectName(4711, L"NO SUCH TYPE", nullptr), L"Non Find String");
    EXPECT_EQ(table.GetProjectName(), L"");
}

TEST_F(Tables, AMissingHeaderResourceLeavesTheTables)
{
    EXPECT_EQ(table.LoadResourceHeader(4711, L"NO SUCH TYPE"), 0);
    EXPECT_EQ(table.LoadResourceHeaderByDLL(4711, L"NO SUCH TYPE", nullptr), 0);
    EXPECT_EQ(table.LoadResourceHeader(CString(L"")), 0);
    EXPECT_TRUE(table.GetResourceHeader().GetTable(CResourceHeader::All).empty());
    EXPECT_FALSE(table.GetHeaderModule());
}

TEST_F(Tables, FindModeIsReadByEachConstruction)
{
    registry.borrow(kTestKey);
    const struct
    {
        const wchar_t* value;
        int mode;
    } rows[] = {{L"yes", 1}, {L"Yes", 0}, {L"yes ", 0}, {L"", 0}, {L"1", 0}, {nullptr, 0}};
    for (const auto& row : rows)
    {
        XMultiLang::m_bIniFindMode = 1 - row.mode;
        CRegistry::WriteProfileStringW(kTestKey, L"INIFindMode", row.value);
        const XMultiLang fresh;
        EXPECT_EQ(XMultiLang::m_bIniFindMode, row.mode);
    }
}

TEST_F(Tables, FindModeNotesEachMissingKeyOnce)
{
    load_header(table,
                L"#define IDD_A 100\n#define IDC_X 1001\n#define IDC_Y,IDC_Z 1002\n#define ID_OPEN 500\n");
    table.Lang(L"before", L"S");
    table.Create(write(L"a.ini", L"[S]\nempty=\nk=v\n[IDD_A]\nIDC_X=\n[Text]\n"), L"");
    table.SetCurrentDlgManually(L"IDD_A");
    const auto ask = [&] {
        CString text;
        for (const wchar_t* key : {L"k", L"empty", L"none", L"other", L"none"})
            table.Lang(key, L"S");
        table.Lang(L"t", nullptr);
        for (const int id : {1001, 1002, 1002, 77})
            table.FindDialogControlText(id, text);
        table.FindMenuText(500, false, L"Open", text);
        table.FindMenuText(77, true, L"&File", text);
        table.FindMenuText(77, false, L"no name", text);
    };
    ask();
    EXPECT_EQ(dump(table.GetMissingKeys()), L"") << "only in find mode";
    XMultiLang::m_bIniFindMode = 1;
    ask();
    XMultiLang::m_bIniFindMode = 0;
    // An empty value is an entry, although Lang answers its message.
    EXPECT_EQ(dump(table.GetMissingKeys()), L"[IDD_A] IDC_Y=#Need to Copy..#; "
                                            L"[MENUSTR] File=#Need to Copy..#; ID_OPEN=#Need to Copy..#; "
                                            L"[S] none=#Need to Copy..#; other=#Need to Copy..#; "
                                            L"[TEXT] t=#Need to Copy..#;");
}

namespace
{
/// A catalogue of two texts.
class TwoTexts : public qlx::lib::IMSGTextProvider
{
public:
    TwoTexts() { qlx::lib::MMSGFunction::RegisterProvider(this); }
    ~TwoTexts() override { qlx::lib::MMSGFunction::UnregisterProvider(this); }
    bool GetText(const wchar_t* key, int, CString& text) override
    {
        if (std::wstring(key) == L"IDS_IDD_SETUP_IDC_NAME2")
            text = L"Name (de)";
        else if (std::wstring(key) == L"IDS_IDD_SETUP_IDD_SETUP")
            text = L"Einstellungen";
        else
            return false;
        return true;
    }
};
} // namespace

TEST(XMultiLangCatalogue, RulesOfADialogsTextsNeedNoWindow)
{
    const TwoTexts catalogue;
    XMultiLang table;
    load_header(
        table,
        L"#define IDD_SETUP 120\n#define IDC_NAME 1001\n#define IDC_NAME2 1001\n#define IDC_SIZE 1002\n");
    CString text = L"untouched";
    EXPECT_EQ(table.SelectDlgTexts(999, L"Draw"), 0);
    EXPECT_EQ(table.SelectDlgTexts(120, L"Draw"), 1);
    EXPECT_EQ(table.GetDlgCaptionText(L"", text), 0);
    EXPECT_EQ(table.GetDlgControlText(1001, L"", text), 0);
    EXPECT_EQ(table.GetDlgControlText(1003, L"no name", text), 0);
    EXPECT_EQ(text, L"untouched");
    EXPECT_EQ(table.GetDlgCaptionText(L"Setup", text), 1);
    EXPECT_EQ(text, L"Einstellungen");
    EXPECT_EQ(table.GetDlgControlText(1001, L"Name", text), 1);
    EXPECT_EQ(text, L"Name (de)");
    EXPECT_EQ(table.GetDlgControlText(1002, std::wstring(300, L's').c_str(), text), 1);
    EXPECT_EQ(text.GetLength(), 260);
}

TEST(XMultiLangCatalogue, SharedTextIsThePrimarysUnlessItIsEmpty)
{
    XMultiLang table;
    const std::wstring primary = L"[DIALOG]\nIDOK=Gut\\nso\nIDCANCEL=\nIDHELP=\n";
    const std::wstring secondary = L"[DIALOG]\nIDOK=Well\nIDCANCEL=Away\n";
    table.GetXIni().OpenMemory(primary.c_str(), static_cast<int>(primary.size()));
    table.GetSecondaryXIni().OpenMemory(secondary.c_str(), static_cast<int>(secondary.size()));
    CString text = L"before";
    EXPECT_EQ(table.FindSharedText(L"IDOK", text), 1);
    EXPECT_EQ(text, L"Gut\nso");
    EXPECT_EQ(table.FindSharedText(L"IDCANCEL", text), 1);
    EXPECT_EQ(text, L"Away");
    for (const wchar_t* name : {L"IDHELP", L"IDNONE"})
    {
        EXPECT_EQ(table.FindSharedText(name, text), 0);
        EXPECT_EQ(text, L"");
    }
}
