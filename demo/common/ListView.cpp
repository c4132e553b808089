#include "demo/common/ListView.h"

void add_columns(HWND list, std::initializer_list<ListColumn> columns)
{
    ListView_SetExtendedListViewStyle(list, LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    int index = 0;
    for (const ListColumn& column : columns)
    {
        LVCOLUMNW item{};
        item.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
        item.fmt = column.format;
        item.cx = column.width;
        item.pszText = const_cast<wchar_t*>(static_cast<const wchar_t*>(column.title));
        item.iSubItem = index;
        SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
        ++index;
    }
}

void set_row(HWND list, int row, std::initializer_list<CString> texts)
{
    if (row == ListView_GetItemCount(list))
    {
        LVITEMW item{};
        item.iItem = row;
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    int column = 0;
    for (const CString& text : texts)
    {
        LVITEMW item{};
        item.iSubItem = column++;
        item.pszText = const_cast<wchar_t*>(static_cast<const wchar_t*>(text));
        SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
}

int selected_row(HWND list) { return ListView_GetNextItem(list, -1, LVNI_SELECTED); }

void select_row(HWND list, int row)
{
    ListView_SetItemState(list, row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(list, row, FALSE);
}
