#include "tarvo/intl/TextOwner.h"

#include <gtest/gtest.h>

TEST(TextOwner, EntriesAreWhatTheUserTypesAndChooses)
{
    struct Row
    {
        const wchar_t* className;
        bool takesSelection;
        unsigned style;
        bool entry, readOnly;
    };
    for (const Row& row :
         {Row{L"Static", false, 0, false, false}, Row{L"Button", false, 0x0800, false, false},
          Row{L"SysTabControl32", false, 0, false, false}, Row{L"Edit", true, 0, true, false},
          Row{L"EDIT", false, 0, true, false}, Row{L"Edit", true, 0x0800, true, true},
          Row{L"RichEdit20W", true, 0, true, false}, Row{L"RichEdit20W", true, 0x0800, true, true},
          Row{L"Their.Edit.1", true, 0, true, false}, Row{L"ComboBox", false, 0x0802, true, false},
          Row{L"ComboBox", false, 3, true, false}, Row{L"ComboBoxEx32", false, 0, true, false},
          Row{L"ListBox", false, 0x0800, true, false}, Row{L"SysDateTimePick32", false, 0, true, false},
          Row{L"SysIPAddress32", false, 0, true, false}, Row{L"msctls_hotkey32", false, 0, true, false},
          Row{L"", false, 0, false, false}, Row{L"Editor", false, 0, false, false}})
    {
        const TextOwner::Control control{row.className, row.takesSelection, row.style};
        EXPECT_EQ(TextOwner::IsEntry(control), row.entry) << testing::PrintToString(row.className);
        EXPECT_EQ(TextOwner::IsReadOnlyEntry(control), row.readOnly) << testing::PrintToString(row.className);
    }
}
