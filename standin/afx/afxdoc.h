#pragma once

#include "afxcmd.h"
#include "afxcoll.h"

class CDocTemplate;
class CDocument;
class CFrameWnd;
class CView;

/// What a frame and its view are made for; handed down to OnCreateClient and to the view's OnCreate. Members
/// that do not apply are null.
struct CCreateContext
{
    CRuntimeClass* m_pNewViewClass = nullptr;
    CDocument* m_pCurrentDoc = nullptr;
    CDocTemplate* m_pNewDocTemplate = nullptr;
    CView* m_pLastView = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};

/// What several views show. Knows its views, takes commands after them, and goes with the last of them.
/// Reading and writing files is the program's affair: override OnNewDocument, OnOpenDocument and
/// OnSaveDocument.
class AFX_API CDocument : public CCmdTarget
{
    DECLARE_DYNAMIC(CDocument)

public:
    CDocument() = default;
    /// Its views stay, without a document.
    ~CDocument() override;

    BOOL m_bAutoDelete = TRUE; ///< the document deletes itself when it is closed

    const CString& GetTitle() const { return m_strTitle; }
    virtual void SetTitle(LPCTSTR lpszTitle);
    const CString& GetPathName() const { return m_strPathName; }
    /// The title becomes the file's name. There is no list of recent files: \p bAddToMRU has no effect.
    virtual void SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU = TRUE);
    virtual BOOL IsModified() { return m_bModified; }
    virtual void SetModifiedFlag(BOOL bModified = TRUE) { m_bModified = bModified; }

    /// A view belongs to one document at most.
    void AddView(CView* pView);
    void RemoveView(CView* pView);
    POSITION GetFirstViewPosition() const { return m_viewList.GetHeadPosition(); }
    /// \p rPosition is null after the last.
    CView* GetNextView(POSITION& rPosition) const;
    /// OnUpdate of every view but the sender.
    void UpdateAllViews(CView* pSender, LPARAM lHint = 0, CObject* pHint = nullptr);
    /// OnInitialUpdate of every view.
    void SendInitialUpdate();
    /// The list has changed. Without views a document closes, unless it was told to stay (m_bAutoDelete).
    virtual void OnChangedViewList();

    virtual void DeleteContents() {}
    /// Empties the document; FALSE stops what asked for a new one.
    virtual BOOL OnNewDocument();
    /// FALSE: not opened, or not saved.
    virtual BOOL OnOpenDocument(LPCTSTR lpszPathName);
    virtual BOOL OnSaveDocument(LPCTSTR lpszPathName);
    /// Destroys the frames of its views, empties it and, with m_bAutoDelete, deletes it.
    virtual void OnCloseDocument();
    /// FALSE keeps the frame open; asks SaveModified.
    virtual BOOL CanCloseFrame(CFrameWnd* pFrame);
    /// Before a changed document goes: TRUE lets it. The default loses the changes without asking, since it
    /// has no file.
    virtual BOOL SaveModified() { return TRUE; }

protected:
    CString m_strTitle;
    CString m_strPathName;
    BOOL m_bModified = FALSE;
    CPtrList m_viewList;

private:
    CFrameWnd* AnyFrame() const;
};
