#pragma once

#include "tarvo/intl/TemplateFont.h"

#include <afxwin.h>

#include <afxpriv.h>

/// Loads a dialog resource from the module that has it and puts a font into it (SetTemplateFont). False when
/// it cannot be loaded or is damaged.
bool LoadWithFont(CDialogTemplate& memory, LPCTSTR resource, const TemplateFont& font);

/// Puts another font into a template that LoadWithFont has loaded from the resource, where it lies: somebody
/// may have its address. False, with nothing changed, when there is none or the resource is another one now.
bool ReplaceFont(CDialogTemplate& memory, LPCTSTR resource, const TemplateFont& font);

/// True when the template is that of a child window.
bool MakesChild(const CDialogTemplate& memory);
/// The template's caption.
CString CaptionOf(const CDialogTemplate& memory);

/// The font of dialogs in the user's settings.
TemplateFont GetDialogFont();

/// The framework's current resource module, for the life of the object.
class CResourceModule
{
public:
    explicit CResourceModule(HINSTANCE module) : m_former(AfxGetResourceHandle())
    {
        AfxSetResourceHandle(module);
    }
    ~CResourceModule() { AfxSetResourceHandle(m_former); }
    CResourceModule(const CResourceModule&) = delete;
    CResourceModule& operator=(const CResourceModule&) = delete;

private:
    HINSTANCE m_former;
};

/// A template's memory, locked for the life of the object; null when there is none.
class CTemplateLock
{
public:
    explicit CTemplateLock(const CDialogTemplate& memory)
        : m_memory(memory.m_hTemplate),
          m_pTemplate(m_memory ? static_cast<LPCDLGTEMPLATE>(::GlobalLock(m_memory)) : nullptr)
    {
    }
    ~CTemplateLock()
    {
        if (m_pTemplate)
            ::GlobalUnlock(m_memory);
    }
    CTemplateLock(const CTemplateLock&) = delete;
    CTemplateLock& operator=(const CTemplateLock&) = delete;

    LPCDLGTEMPLATE Get() const { return m_pTemplate; }

private:
    HGLOBAL m_memory;
    LPCDLGTEMPLATE m_pTemplate;
};
