#pragma once
#include "demo/common/DemoModule.h"

#include <afxwin.h>

/// The program's window: a model of a frame, and a menu that opens the dialogs and changes the language.
class CMainWindow : public CWnd
{
public:
    CMainWindow(std::vector<DemoModule> modules, int language);
    ~CMainWindow() override;

    /// FALSE when the window did not come up.
    BOOL Open();
    /// Loads the language, translates the menu and the window anew; dialogs opened from now on follow.
    void SetLanguage(int language);
    int GetLanguage() const { return m_language; }
    /// Where the menu's texts came from.
    const CTranslateCount& GetCount() const { return m_count; }

    /// Opens the popup at this place of the menu bar and calls \p shown once it is on the screen; closes it
    /// then.
    void ShowPopup(int position, void (*shown)(void* context), void* context);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnClose();
    afx_msg void OnEnterIdle(UINT why, CWnd* who);
    afx_msg void OnOpenDialog(UINT id);
    afx_msg void OnLanguage(UINT id);
    afx_msg void OnViewOption(UINT id);
    afx_msg void OnViewExtents() { Invalidate(); }
    afx_msg void OnFileExit() { SendMessage(WM_CLOSE); }
    DECLARE_MESSAGE_MAP()

private:
    void BuildMenu();

    std::vector<DemoModule> m_modules;
    int m_language;
    bool m_bGrid = true;
    bool m_bNodes = true;
    CFont m_font;
    CTranslateCount m_count;
    void (*m_pfnShown)(void*) = nullptr;
    void* m_pShownContext = nullptr;
};
