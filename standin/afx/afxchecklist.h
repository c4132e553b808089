#pragma once

#include "afxlistbox.h"

#include <vector>

/// A list box with a check mark before each line. The list draws itself: it is created with one of the
/// owner-draw styles and LBS_HASSTRINGS, which Create adds. A click on the mark, or Space, changes it and
/// tells the parent CLBN_CHKCHANGE. Item data are the program's, as in any list box.
class AFX_API CCheckListBox : public CListBox
{
    DECLARE_DYNAMIC(CCheckListBox)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// BS_CHECKBOX, BS_AUTOCHECKBOX (as it begins), BS_3STATE or BS_AUTO3STATE. Those without AUTO leave the
    /// marks to the program.
    void SetCheckStyle(UINT nStyle) { m_nCheckStyle = nStyle; }
    UINT GetCheckStyle() const { return m_nCheckStyle; }
    /// 0, 1, or in the styles with three states 2. A line that does not exist has 0.
    int GetCheck(int nIndex) const;
    void SetCheck(int nIndex, int nCheck);
    /// A disabled line is grey, and its mark stays as it is.
    void Enable(int nIndex, BOOL bEnabled = TRUE);
    BOOL IsEnabled(int nIndex) const;
    /// Where the mark is drawn in a line at \p rectItem.
    virtual CRect OnGetCheckPosition(CRect rectItem, CRect rectCheckBox);

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;

protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    struct Mark
    {
        int nCheck = 0;
        BOOL bEnabled = TRUE;
    };
    const Mark* At(int nIndex) const;
    Mark* At(int nIndex) { return const_cast<Mark*>(static_cast<const CCheckListBox*>(this)->At(nIndex)); }
    CRect CheckPlace(CRect rectItem);
    void KeepInStep(UINT message, WPARAM wParam, LRESULT lResult);
    void Toggle(int nIndex);
    void Redraw(int nIndex);

    UINT m_nCheckStyle = BS_AUTOCHECKBOX;
    std::vector<Mark> m_marks; ///< one for each line, in step with the lines
};

/// What a CCheckListBox tells its parent: the mark of the line with the caret has changed.
inline constexpr UINT CLBN_CHKCHANGE = 40;
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)
