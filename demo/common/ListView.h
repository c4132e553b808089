#pragma once
#include <afxwin.h>
#include <commctrl.h>

#include <initializer_list>

/// Rows and columns of a report list.
struct ListColumn
{
    CString title;
    int width;                ///< pixels
    int format = LVCFMT_LEFT; ///< the first column is left-aligned whatever is asked
};

void add_columns(HWND list, std::initializer_list<ListColumn> columns);
/// Replaces the row's texts, or appends the row when it is the next one.
void set_row(HWND list, int row, std::initializer_list<CString> texts);
/// The selected row, -1 without one.
int selected_row(HWND list);
void select_row(HWND list, int row);
