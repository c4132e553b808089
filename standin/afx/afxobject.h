#pragma once

#include "afxexport.h"
#include "afxtypes.h"

class CObject;

/// What a class knows about itself at run time: its name, its base class and how to make an object. One
/// stands in each class that uses the DECLARE_ and IMPLEMENT_ macros below; its members are read only.
struct AFX_API CRuntimeClass
{
    LPCSTR m_lpszClassName;                    ///< the name as it is written in the IMPLEMENT_ macro
    int m_nObjectSize;                         ///< bytes
    UINT m_wSchema;                            ///< 0xFFFF: objects of the class cannot be serialized
    CObject* (*m_pfnCreateObject)();           ///< null unless the class is DYNCREATE
    CRuntimeClass* (*m_pfnGetBaseClass)();     ///< null only in CObject
    mutable const CRuntimeClass* m_pNextClass; ///< in the list that FromName searches

    /// A new object from the class' default constructor, owned by the caller. Null when the class is not
    /// DYNCREATE (with a line of debug output) or memory is short.
    CObject* CreateObject() const;
    /// True for the class itself too.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    /// The class of that name in any loaded module; null when there is none. Names are compared exactly.
    static CRuntimeClass* FromName(LPCSTR lpszClassName);
    static CRuntimeClass* FromName(LPCWSTR lpszClassName);
    /// FromName and CreateObject in one; null when either fails.
    static CObject* CreateObject(LPCSTR lpszClassName);
    static CObject* CreateObject(LPCWSTR lpszClassName);
};

/// The root of the framework's classes: run-time class information and a virtual destructor. Objects
/// are not copied.
class AFX_API CObject
{
public:
    virtual ~CObject();
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    virtual CRuntimeClass* GetRuntimeClass() const;
    /// True when the object's class is \p pClass or derived from it.
    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    BOOL IsSerializable() const;
    /// Ends the program (ASSERT) when the object's state is broken; overridden where there is one.
    virtual void AssertValid() const;

    static CRuntimeClass* GetThisClass();
    static const CRuntimeClass classCObject;

protected:
    CObject() = default;
};

/// Keeps a class in the list that FromName searches, as long as its module is loaded.
class AFX_API AFX_CLASSINIT
{
public:
    explicit AFX_CLASSINIT(const CRuntimeClass* pClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    const CRuntimeClass* m_pClass;
};

/// The CRuntimeClass* of a class.
#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

/// In the class: run-time class information (IsKindOf).
#define DECLARE_DYNAMIC(class_name)                                                                          \
protected:                                                                                                   \
    static CRuntimeClass* _GetBaseClass();                                                                   \
                                                                                                             \
public:                                                                                                      \
    static const CRuntimeClass class##class_name;                                                            \
    static CRuntimeClass* GetThisClass();                                                                    \
    CRuntimeClass* GetRuntimeClass() const override;

/// In the class: also creation by run-time class (CreateObject); needs a default constructor.
#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* CreateObject();

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                 \
    CRuntimeClass* class_name::_GetBaseClass() { return RUNTIME_CLASS(base_class_name); }                    \
    const CRuntimeClass class_name::class##class_name = {                                                    \
        #class_name, static_cast<int>(sizeof(class_name)), wSchema,                                          \
        pfnNew,      &class_name::_GetBaseClass,           nullptr};                                         \
    CRuntimeClass* class_name::GetThisClass() { return const_cast<CRuntimeClass*>(&class##class_name); }     \
    CRuntimeClass* class_name::GetRuntimeClass() const { return GetThisClass(); }                            \
    static const AFX_CLASSINIT _init_##class_name(RUNTIME_CLASS(class_name));

/// In one source file of the class, outside of any function.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* class_name::CreateObject() { return new class_name; }                                           \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

AFX_API CObject* AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
AFX_API CObject* AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject);

/// The object as \p class_name*, or null when it is null or of another kind.
#define DYNAMIC_DOWNCAST(class_name, object)                                                                 \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
/// The object as \p class_name*; an object of another kind ends a debug build.
#define STATIC_DOWNCAST(class_name, object)                                                                  \
    (static_cast<class_name*>(AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))
