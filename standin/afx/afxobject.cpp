#include "afxobject.h"

#include "afxassert.h"

#include <cstring>
#include <mutex>
#include <new>
#include <string>

namespace
{
struct ClassList
{
    std::mutex lock;
    const CRuntimeClass* first = nullptr;
};

// Modules register classes while they are loaded, before and after this file's own statics live.
ClassList& class_list()
{
    static auto* list = new ClassList;
    return *list;
}
} // namespace

const CRuntimeClass CObject::classCObject = {
    "CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr, nullptr, nullptr};
static const AFX_CLASSINIT init_object(RUNTIME_CLASS(CObject));

CObject::~CObject() = default;

CRuntimeClass* CObject::GetThisClass() { return const_cast<CRuntimeClass*>(&classCObject); }
CRuntimeClass* CObject::GetRuntimeClass() const { return GetThisClass(); }
BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const { return GetRuntimeClass()->IsDerivedFrom(pClass); }
BOOL CObject::IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF; }
void CObject::AssertValid() const {}

AFX_CLASSINIT::AFX_CLASSINIT(const CRuntimeClass* pClass) : m_pClass(pClass)
{
    ClassList& list = class_list();
    const std::lock_guard guard(list.lock);
    pClass->m_pNextClass = list.first;
    list.first = pClass;
}

AFX_CLASSINIT::~AFX_CLASSINIT()
{
    ClassList& list = class_list();
    const std::lock_guard guard(list.lock);
    for (const CRuntimeClass** pp = &list.first; *pp != nullptr; pp = &(*pp)->m_pNextClass)
        if (*pp == m_pClass)
        {
            *pp = m_pClass->m_pNextClass;
            return;
        }
}

CObject* CRuntimeClass::CreateObject() const
{
    if (m_pfnCreateObject == nullptr)
    {
        TRACE("CreateObject: %s is not a DYNCREATE class\n", m_lpszClassName);
        return nullptr;
    }
    try
    {
        return m_pfnCreateObject();
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    for (const CRuntimeClass* p = this; p != nullptr;
         p = p->m_pfnGetBaseClass != nullptr ? p->m_pfnGetBaseClass() : nullptr)
        if (p == pBaseClass)
            return TRUE;
    return FALSE;
}

CRuntimeClass* CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    ClassList& list = class_list();
    const std::lock_guard guard(list.lock);
    for (const CRuntimeClass* p = list.first; p != nullptr; p = p->m_pNextClass)
        if (std::strcmp(p->m_lpszClassName, lpszClassName) == 0)
            return const_cast<CRuntimeClass*>(p);
    return nullptr;
}

// Class names are ASCII, so that wide ones need no code page.
static std::string narrow_name(LPCWSTR name)
{
    std::string ascii;
    for (; *name != 0; ++name)
        ascii += static_cast<unsigned>(*name) < 0x80 ? static_cast<char>(*name) : '?';
    return ascii;
}

CRuntimeClass* CRuntimeClass::FromName(LPCWSTR lpszClassName)
{
    return FromName(narrow_name(lpszClassName).c_str());
}

CObject* CRuntimeClass::CreateObject(LPCSTR lpszClassName)
{
    const CRuntimeClass* pClass = FromName(lpszClassName);
    return pClass != nullptr ? pClass->CreateObject() : nullptr;
}

CObject* CRuntimeClass::CreateObject(LPCWSTR lpszClassName)
{
    return CreateObject(narrow_name(lpszClassName).c_str());
}

CObject* AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject)
{
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* AfxStaticDownCast([[maybe_unused]] CRuntimeClass* pClass, CObject* pObject)
{
    ASSERT(pObject == nullptr || pObject->IsKindOf(pClass));
    return pObject;
}
