#include "tarvo/msg/MsgOut.h"

#include <afxstr.h>

#include <cstdarg>

msg_printer* msg_printer::m_pInstance = nullptr;

msg_printer::msg_printer() { m_pInstance = this; }

msg_printer::~msg_printer() { m_pInstance = nullptr; }

namespace
{
template <class... Parameters, class... Arguments>
void Call(void (msg_printer::*slot)(Parameters...), Arguments... arguments)
{
    if (msg_printer::m_pInstance != nullptr)
        (msg_printer::m_pInstance->*slot)(arguments...);
}

void Write(void (msg_printer::*slot)(CDocument*, const wchar_t*), CDocument* pDoc, const wchar_t* text)
{
    Call(slot, pDoc, text != nullptr ? text : L"");
}

void Format(void (*out)(CDocument*, const wchar_t*), CDocument* pDoc, const wchar_t* format,
            std::va_list args)
{
    if (msg_printer::m_pInstance == nullptr)
        return;
    CString text;
    text.FormatV(format != nullptr ? format : L"", args);
    out(pDoc, text);
}
} // namespace

void nsActiveMessageWnd(CDocument* pDoc) { Call(&msg_printer::ActiveMessageWnd, pDoc); }
void nsActiveSessionWnd(CDocument* pDoc) { Call(&msg_printer::ActiveSessionWnd, pDoc); }
void nsMsgClear(CDocument* pDoc) { Call(&msg_printer::MsgClear, pDoc); }
void nsMsgOutActivateHistory() { Call(&msg_printer::ActivateHistory); }
void nsMsgOutActivateAnalysis() { Call(&msg_printer::ActivateAnalysis); }

void nsMsgOut(const wchar_t* text) { nsMsgOut(nullptr, text); }
void nsMsgOutSampPos(const wchar_t* text) { nsMsgOutSampPos(nullptr, text); }
void nsMsgOutError(const wchar_t* text) { nsMsgOutError(nullptr, text); }
void nsMsgOutSampPosError(const wchar_t* text) { nsMsgOutSampPosError(nullptr, text); }
void nsMsgOutWarning(const wchar_t* text) { nsMsgOutWarning(nullptr, text); }
void nsMsgOutSampPosWarning(const wchar_t* text) { nsMsgOutSampPosWarning(nullptr, text); }

void nsMsgOut(CDocument* pDoc, const wchar_t* text) { Write(&msg_printer::MsgOut, pDoc, text); }
void nsMsgOutSampPos(CDocument* pDoc, const wchar_t* text) { Write(&msg_printer::MsgOutSampPos, pDoc, text); }
void nsMsgOutError(CDocument* pDoc, const wchar_t* text) { Write(&msg_printer::MsgOutError, pDoc, text); }
void nsMsgOutSampPosError(CDocument* pDoc, const wchar_t* text)
{
    Write(&msg_printer::MsgOutSampPosError, pDoc, text);
}
void nsMsgOutWarning(CDocument* pDoc, const wchar_t* text) { Write(&msg_printer::MsgOutWarning, pDoc, text); }
void nsMsgOutSampPosWarning(CDocument* pDoc, const wchar_t* text)
{
    Write(&msg_printer::MsgOutSampPosWarning, pDoc, text);
}

// Both forms of one name: only a function that has the arguments itself can take them.
#define TARVO_FORMAT_FORMS(name, out)                                                                        \
    void name(const wchar_t* format, ...)                                                                    \
    {                                                                                                        \
        std::va_list args;                                                                                   \
        va_start(args, format);                                                                              \
        Format(out, nullptr, format, args);                                                                  \
        va_end(args);                                                                                        \
    }                                                                                                        \
    void name(CDocument* pDoc, const wchar_t* format, ...)                                                   \
    {                                                                                                        \
        std::va_list args;                                                                                   \
        va_start(args, format);                                                                              \
        Format(out, pDoc, format, args);                                                                     \
        va_end(args);                                                                                        \
    }

TARVO_FORMAT_FORMS(nsMsgOutFormat, nsMsgOut)
TARVO_FORMAT_FORMS(nsMsgOutFormatError, nsMsgOutError)
TARVO_FORMAT_FORMS(nsMsgOutFormatWarning, nsMsgOutWarning)
TARVO_FORMAT_FORMS(nsMsgOutSamePosFormat, nsMsgOutSampPos)
TARVO_FORMAT_FORMS(nsMsgOutSamePosFormatError, nsMsgOutSampPosError)
TARVO_FORMAT_FORMS(nsMsgOutSamePosFormatWarning, nsMsgOutSampPosWarning)

#undef TARVO_FORMAT_FORMS

void nsMsgOutD(const wchar_t*) {}
void nsMsgOutD(CDocument*, const wchar_t*) {}
void nsMsgOutSampPosD(const wchar_t*) {}
void nsMsgOutSampPosD(CDocument*, const wchar_t*) {}
void nsMsgOutFormatD(const wchar_t*, ...) {}
void nsMsgOutFormatD(CDocument*, const wchar_t*, ...) {}
void nsMsgOutSamePosFormatD(const wchar_t*, ...) {}
void nsMsgOutSamePosFormatD(CDocument*, const wchar_t*, ...) {}
