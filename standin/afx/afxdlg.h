#pragma once

#include "afxwnd.h"

#include <cfloat>

/// A dialog box from a template: a resource named by the constructor or by Create, or memory given to
/// InitModalIndirect or CreateIndirect. Like every window it is shown in the owner's middle when the
/// template gives it the place 0,0.
///
/// While DoModal runs, the owner is disabled, and messages pass the same PreTranslateMessage as in the
/// application's loop.
class AFX_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog() = default;
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    /// What EndDialog was given; -1 when the dialog could not be made or was destroyed without it. Without
    /// a parent the application's main window owns the dialog.
    virtual INT_PTR DoModal();
    /// A modeless dialog. FALSE when it could not be made or did not outlive its OnInitDialog.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr)
    {
        return Create(MAKEINTRESOURCEW(nIDTemplate), pParentWnd);
    }
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                void* lpDialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    /// The template must stay where it is until DoModal returns.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                           void* lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);

    /// Ends DoModal. A modeless dialog is only hidden: destroy it.
    void EndDialog(int nResult);
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    void NextDlgCtrl() const { ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* pWndCtrl)
    {
        ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), 1);
    }
    void SetDefID(UINT nID) { SendMessage(DM_SETDEFID, nID); }
    /// The low word is the button's ID when the high word is DC_HASDEFID.
    DWORD GetDefID() const { return static_cast<DWORD>(SendMessage(DM_GETDEFID)); }
    void SetHelpID(UINT nIDR) { m_nIDHelp = nIDR; }

    /// The controls exist; fills the lists and calls UpdateData(FALSE). TRUE: the system sets the focus to
    /// the first control.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont*) {}

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL CheckAutoCenter();

protected:
    /// The button IDOK: UpdateData, then EndDialog(IDOK) when it agreed.
    virtual void OnOK();
    /// The button IDCANCEL and the system menu's close: EndDialog(IDCANCEL).
    virtual void OnCancel();
    virtual void PreInitDialog() {}

    /// Takes a number as it is and copies a name.
    void SetTemplateName(LPCTSTR lpszTemplateName);

    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = nullptr;        ///< the resource; a number or a copy of the name
    HGLOBAL m_hDialogTemplate = nullptr;         ///< in memory instead
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr; ///< in memory instead
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr;

    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    const AFX_MSGMAP* GetMessageMap() const override;

private:
    friend struct AfxWndAccess;
    LPCDLGTEMPLATE LockTemplate(HINSTANCE& hInst);
    CString m_strTemplateName;
};

/// One exchange between a dialog's controls and its members. DoDataExchange calls DDX_ functions for each
/// pair, and a DDV_ function behind each that checks.
class AFX_API CDataExchange
{
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
        : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd)
    {
    }

    BOOL m_bSaveAndValidate; ///< TRUE: from controls to members
    CWnd* m_pDlgWnd;
    HWND m_hWndLastControl = nullptr; ///< the control that Fail gives the focus to
    int m_idLastControl = 0;
    BOOL m_bEditLastControl = FALSE;

    /// The control; throws CNotSupportedException when the dialog has none of that ID.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    /// The last control's text is refused: focus and selection go there, and CUserException is thrown,
    /// which ends UpdateData with FALSE.
    [[noreturn]] void Fail();
};

/// Attaches a control object to the dialog's control, once.
AFX_API void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
/// Numbers: a text that is none is refused with a message.
AFX_API void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
AFX_API void DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFX_API void DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
AFX_API void DDX_Text(CDataExchange* pDX, int nIDC, long& value);
AFX_API void DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
AFX_API void DDX_Text(CDataExchange* pDX, int nIDC, double& value);
AFX_API void DDX_Text(CDataExchange* pDX, int nIDC, float& value);
/// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE; anything else is read as BST_CHECKED.
AFX_API void DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// The position in the group that begins with this button (WS_GROUP), -1 for none.
AFX_API void DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
AFX_API void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
/// Selects the line that begins with the text, or puts it into the edit part.
AFX_API void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
AFX_API void DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
AFX_API void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
AFX_API void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
AFX_API void DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);

/// Both bounds are allowed values. When saving, a value outside is refused with a message.
AFX_API void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
AFX_API void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
AFX_API void DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
/// Compared exactly: bounds are met only by equal values.
AFX_API void DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal,
                              int precision = DBL_DIG);
/// When loading, limits what can be typed; when saving, refuses longer texts.
AFX_API void DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
