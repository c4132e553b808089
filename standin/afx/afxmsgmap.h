#pragma once

/// Message maps. A class that handles messages declares DECLARE_MESSAGE_MAP() and defines
///
///     BEGIN_MESSAGE_MAP(CMyDlg, CDialog)
///         ON_WM_SIZE()
///         ON_BN_CLICKED(IDC_APPLY, &CMyDlg::OnApply)
///     END_MESSAGE_MAP()
///
/// A message goes to the first line that fits, derived class before base class. A handler whose type is
/// not the documented one does not compile.

#include "afxmsgwm.h"

// clang-format off
#define DECLARE_MESSAGE_MAP() \
protected: \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap(); \
    const AFX_MSGMAP* GetMessageMap() const override;

#define AFX_BEGIN_MAP_BODY_(theClass, baseClass) \
    { \
        typedef theClass ThisClass; \
        typedef baseClass TheBaseClass; \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define BEGIN_MESSAGE_MAP(theClass, baseClass) \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); } \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() AFX_BEGIN_MAP_BODY_(theClass, baseClass)

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass) \
    template <typename type_name> const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const { return GetThisMessageMap(); } \
    template <typename type_name> const AFX_MSGMAP* PASCAL theClass<type_name>::GetThisMessageMap() \
        AFX_BEGIN_MAP_BODY_(theClass<type_name>, baseClass)

#define END_MESSAGE_MAP() \
            {0, 0, 0, 0, nullptr, nullptr} }; \
        [[maybe_unused]] typedef ThisClass Handlers; \
        static const AFX_MSGMAP map = {[]() { return TheBaseClass::GetThisMessageMap(); }, entries}; \
        return &map; \
    }

// One entry; the trailing argument is the call that unpacks the message.
#define AFX_ENTRY_(message, code, id, lastId, pnRegistered, ...) \
    {static_cast<UINT>(message), static_cast<UINT>(code), static_cast<UINT>(id), static_cast<UINT>(lastId), pnRegistered, \
     [](CCmdTarget* pTarget, AFX_MSGCALL& msgCall) { afxsig::__VA_ARGS__; }},
#define AFX_MESSAGE_(message, ...) AFX_ENTRY_(message, 0, 0, 0, nullptr, __VA_ARGS__)

/// Any message by its number: LRESULT fn(WPARAM, LPARAM).
#define ON_MESSAGE(message, memberFxn) AFX_MESSAGE_(message, l_wl<ThisClass>(pTarget, memberFxn, msgCall))
/// The same for a number that RegisterWindowMessage gave; read each time, so it may be registered later.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn) \
    AFX_ENTRY_(0xC000, 0, 0, 0, &nMessageVariable, l_wl<ThisClass>(pTarget, memberFxn, msgCall))

/// Commands of menus and accelerators: void fn(); ranges void fn(UINT nID); _EX answer FALSE to pass on.
#define ON_COMMAND(id, memberFxn) AFX_ENTRY_(WM_COMMAND, CN_COMMAND, id, id, nullptr, v_v<ThisClass>(pTarget, memberFxn, msgCall))
#define ON_COMMAND_RANGE(id, idLast, memberFxn) \
    AFX_ENTRY_(WM_COMMAND, CN_COMMAND, id, idLast, nullptr, v_id<ThisClass>(pTarget, memberFxn, msgCall))
#define ON_COMMAND_EX(id, memberFxn) AFX_ENTRY_(WM_COMMAND, CN_COMMAND, id, id, nullptr, b_id<ThisClass>(pTarget, memberFxn, msgCall))
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn) \
    AFX_ENTRY_(WM_COMMAND, CN_COMMAND, id, idLast, nullptr, b_id<ThisClass>(pTarget, memberFxn, msgCall))
/// State of an item: void fn(CCmdUI*).
#define ON_UPDATE_COMMAND_UI(id, memberFxn) \
    AFX_ENTRY_(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, nullptr, v_cmdui<ThisClass>(pTarget, memberFxn, msgCall))
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn) \
    AFX_ENTRY_(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, nullptr, v_cmdui<ThisClass>(pTarget, memberFxn, msgCall))

/// A control's WM_COMMAND: void fn(); ranges void fn(UINT nID).
#define ON_CONTROL(wNotifyCode, id, memberFxn) \
    AFX_ENTRY_(WM_COMMAND, static_cast<WORD>(wNotifyCode), id, id, nullptr, v_v<ThisClass>(pTarget, memberFxn, msgCall))
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn) \
    AFX_ENTRY_(WM_COMMAND, static_cast<WORD>(wNotifyCode), id, idLast, nullptr, v_id<ThisClass>(pTarget, memberFxn, msgCall))
/// The control's own view of it, before the parent: void fn(); _EX BOOL fn(), FALSE lets the parent have it too.
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn) \
    AFX_ENTRY_(WM_REFLECT_BASE + WM_COMMAND, static_cast<WORD>(wNotifyCode), 0, 0, nullptr, v_v<ThisClass>(pTarget, memberFxn, msgCall))
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn) \
    AFX_ENTRY_(WM_REFLECT_BASE + WM_COMMAND, static_cast<WORD>(wNotifyCode), 0, 0, nullptr, b_reflect<ThisClass>(pTarget, memberFxn, msgCall))

/// A control's WM_NOTIFY: void fn(NMHDR*, LRESULT*); _EX answer FALSE to pass on; ranges begin with UINT nID.
#define ON_NOTIFY(wNotifyCode, id, memberFxn) \
    AFX_ENTRY_(WM_NOTIFY, static_cast<WORD>(wNotifyCode), id, id, nullptr, v_notify<ThisClass>(pTarget, memberFxn, msgCall))
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn) \
    AFX_ENTRY_(WM_NOTIFY, static_cast<WORD>(wNotifyCode), id, id, nullptr, b_id_notify<ThisClass>(pTarget, memberFxn, msgCall))
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn) \
    AFX_ENTRY_(WM_NOTIFY, static_cast<WORD>(wNotifyCode), id, idLast, nullptr, v_id_notify<ThisClass>(pTarget, memberFxn, msgCall))
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn) \
    AFX_ENTRY_(WM_NOTIFY, static_cast<WORD>(wNotifyCode), id, idLast, nullptr, b_id_notify<ThisClass>(pTarget, memberFxn, msgCall))
/// The control's own view of it, before the parent; _EX BOOL fn(NMHDR*, LRESULT*).
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn) \
    AFX_ENTRY_(WM_REFLECT_BASE + WM_NOTIFY, static_cast<WORD>(wNotifyCode), 0, 0, nullptr, v_notify<ThisClass>(pTarget, memberFxn, msgCall))
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn) \
    AFX_ENTRY_(WM_REFLECT_BASE + WM_NOTIFY, static_cast<WORD>(wNotifyCode), 0, 0, nullptr, b_notify<ThisClass>(pTarget, memberFxn, msgCall))

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)
// clang-format on
