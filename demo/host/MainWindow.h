#pragma once
#include "demo/common/DemoModule.h"
#include "demo/host/AnalysisSettings.h"
#include "demo/host/MessagePane.h"
#include "demo/host/ModelForm.h"
#include "demo/host/ModelPicture.h"
#include "demo/host/SectionTool.h"

#include <afxext.h>

/// The program's window: a form with what is calculated, the model's picture, the message pane, and a menu
/// that opens the dialogs and changes the language. It deletes itself when it is closed.
class CMainWindow : public CFrameWnd
{
public:
    static constexpr int kViewMenu = 3; ///< its place in the menu bar

    CMainWindow(std::vector<DemoModule> modules, int language);

    /// FALSE when the window did not come up; the object is gone then.
    BOOL Open();
    /// Changes the language of everything that is open; what is opened from now on follows.
    void SetLanguage(int language);
    int GetLanguage() const { return m_language; }
    /// Where the menu's texts came from.
    const CTranslateCount& GetCount() const { return m_count; }
    CModelForm& GetForm() { return *m_form; }
    CMessagePane& GetPane() { return m_pane; }
    CSectionTool& GetTool() { return m_tool; }
    FrameModel& GetModel() { return m_model; }
    AnalysisSettings& GetSettings() { return m_settings; }

    /// Opens the popup at this place of the menu bar and calls \p shown once it is on the screen; closes it
    /// then.
    void ShowPopup(int position, void (*shown)(void* context), void* context);

    /// Loads the menu of a right click on the model's picture, in the language in force: the popup "View" of
    /// the menu bar. Null when it cannot be loaded.
    CMenu* LoadPictureMenu(CMenu& menu) const;

    void RecalcLayout(BOOL bNotify = TRUE) override;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext) override;
    afx_msg void OnPaint();
    afx_msg void OnEnterIdle(UINT why, CWnd* who);
    afx_msg void OnOpenDialog(UINT id);
    afx_msg void OnLanguage(UINT id);
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg void OnViewOption(UINT id);
    afx_msg void OnViewExtents() { m_picture.Invalidate(); }
    afx_msg void OnFileExit() { SendMessage(WM_CLOSE); }
    afx_msg void OnWizard();
    afx_msg void OnTool() { m_tool.Open(this); }
    afx_msg void OnAnalysisControl();
    afx_msg void OnLimits();
    afx_msg void OnCheckModel();
    afx_msg void OnRunAnalysis();
    DECLARE_MESSAGE_MAP()

private:
    void ShowLanguage();
    void CheckMenu();
    CRect StatusPlace() const;

    std::vector<DemoModule> m_modules;
    int m_language;
    FrameModel m_model;
    AnalysisSettings m_settings;
    CModelForm* m_form = nullptr; ///< deletes itself with its window
    CSize m_formSize;
    CModelPicture m_picture;
    CMessagePane m_pane;
    CPanePrinter m_printer{m_pane};
    CSectionTool m_tool;
    bool m_bGrid = true;
    bool m_bNodes = true;
    CFont m_font;
    CTranslateCount m_count;
    void (*m_pfnShown)(void*) = nullptr;
    void* m_pShownContext = nullptr;
};
