#pragma once

#include "tarvo/export.h"

class CDocument;

/// Where messages, warnings and errors of all modules go. The host implements it over its message window and
/// constructs one; the free functions below write to it from everywhere. A document names whose output is
/// meant; null is the active or default one.
///
/// All of it belongs to the user interface's thread.
class TARVO_API msg_printer
{
public:
    /// The sink in use; null, and all output is dropped, when there is none.
    static msg_printer* m_pInstance;

    /// No sink is in use afterwards, whichever object it was.
    virtual ~msg_printer();

    // The order is part of the interface.
    virtual void ActiveMessageWnd(CDocument* pDoc) = 0;
    virtual void ActiveSessionWnd(CDocument* pDoc) = 0;
    virtual void MsgClear(CDocument* pDoc) = 0;
    /// Writes a line. Texts are never null.
    virtual void MsgOut(CDocument* pDoc, const wchar_t* text) = 0;
    /// Writes over the last line: progress.
    virtual void MsgOutSampPos(CDocument* pDoc, const wchar_t* text) = 0;
    virtual void MsgOutError(CDocument* pDoc, const wchar_t* text) = 0;
    virtual void MsgOutSampPosError(CDocument* pDoc, const wchar_t* text) = 0;
    virtual void MsgOutWarning(CDocument* pDoc, const wchar_t* text) = 0;
    virtual void MsgOutSampPosWarning(CDocument* pDoc, const wchar_t* text) = 0;
    virtual void ActivateHistory() = 0;
    virtual void ActivateAnalysis() = 0;

protected:
    /// The new object becomes the sink in use, in place of any earlier one.
    msg_printer();
    /// A copy does not.
    msg_printer(const msg_printer&) = default;
    msg_printer& operator=(const msg_printer&) = default;
};

// The functions call the sink, and do nothing, no formatting either, when there is none. A form without a
// document passes null. A null text or format is an empty one.
//
// Formats are those of CString::FormatV: %s is wide text, %S 8-bit text. Some names say SampPos and some
// SamePos; both are part of the interface.

TARVO_API void nsActiveMessageWnd(CDocument* pDoc);
TARVO_API void nsActiveSessionWnd(CDocument* pDoc);
TARVO_API void nsMsgClear(CDocument* pDoc);
TARVO_API void nsMsgOutActivateHistory();
TARVO_API void nsMsgOutActivateAnalysis();

TARVO_API void nsMsgOut(const wchar_t* text);
TARVO_API void nsMsgOut(CDocument* pDoc, const wchar_t* text);
TARVO_API void nsMsgOutSampPos(const wchar_t* text);
TARVO_API void nsMsgOutSampPos(CDocument* pDoc, const wchar_t* text);
TARVO_API void nsMsgOutError(const wchar_t* text);
TARVO_API void nsMsgOutError(CDocument* pDoc, const wchar_t* text);
TARVO_API void nsMsgOutSampPosError(const wchar_t* text);
TARVO_API void nsMsgOutSampPosError(CDocument* pDoc, const wchar_t* text);
TARVO_API void nsMsgOutWarning(const wchar_t* text);
TARVO_API void nsMsgOutWarning(CDocument* pDoc, const wchar_t* text);
TARVO_API void nsMsgOutSampPosWarning(const wchar_t* text);
TARVO_API void nsMsgOutSampPosWarning(CDocument* pDoc, const wchar_t* text);

TARVO_API void nsMsgOutFormat(const wchar_t* format, ...);
TARVO_API void nsMsgOutFormat(CDocument* pDoc, const wchar_t* format, ...);
TARVO_API void nsMsgOutFormatError(const wchar_t* format, ...);
TARVO_API void nsMsgOutFormatError(CDocument* pDoc, const wchar_t* format, ...);
TARVO_API void nsMsgOutFormatWarning(const wchar_t* format, ...);
TARVO_API void nsMsgOutFormatWarning(CDocument* pDoc, const wchar_t* format, ...);
TARVO_API void nsMsgOutSamePosFormat(const wchar_t* format, ...);
TARVO_API void nsMsgOutSamePosFormat(CDocument* pDoc, const wchar_t* format, ...);
TARVO_API void nsMsgOutSamePosFormatError(const wchar_t* format, ...);
TARVO_API void nsMsgOutSamePosFormatError(CDocument* pDoc, const wchar_t* format, ...);
TARVO_API void nsMsgOutSamePosFormatWarning(const wchar_t* format, ...);
TARVO_API void nsMsgOutSamePosFormatWarning(CDocument* pDoc, const wchar_t* format, ...);

// The debug forms are empty: what developers told each other never reaches a user.

TARVO_API void nsMsgOutD(const wchar_t* text);
TARVO_API void nsMsgOutD(CDocument* pDoc, const wchar_t* text);
TARVO_API void nsMsgOutSampPosD(const wchar_t* text);
TARVO_API void nsMsgOutSampPosD(CDocument* pDoc, const wchar_t* text);
TARVO_API void nsMsgOutFormatD(const wchar_t* format, ...);
TARVO_API void nsMsgOutFormatD(CDocument* pDoc, const wchar_t* format, ...);
TARVO_API void nsMsgOutSamePosFormatD(const wchar_t* format, ...);
TARVO_API void nsMsgOutSamePosFormatD(CDocument* pDoc, const wchar_t* format, ...);
