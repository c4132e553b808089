#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

/// The product's edition and country flags and the switches that developers and testers set by hand in
/// the registry, below "HKEY_CURRENT_USER\Software\KORAL\TEST" and "...\COMMON". The flags are read once,
/// when the library is loaded, before any caller; later changes of the registry are seen by
/// GetTestEnvValue only. A missing key or value is never an error. Nothing throws.
class TARVO_API CProduct
{
public:
    CProduct() = default;
    CProduct(const CProduct&) = default;
    CProduct& operator=(const CProduct&) = default;
    virtual ~CProduct() = default;

    /// Always 2.
    static int GetProductID();

    static int IsIndia(); ///< always 0: no edition sets it, callers still ask
    static int IsTaiwan();
    static int IsCzech();
    static int IsMalaysia();
    static int IsTunnel();

    /// The moving-load code set: 0 none, 1 "_JP", 2 "_CH", 3 "_US", 4 "_RUS", 100 "_ALL".
    static int GetMovingType();
    /// 1 when the code set is \p nType, and for every type when it is 100.
    static int IsMovingType(int nType);
    static int IsMovLoadBatchTestMode();

    /// The design output type, 0 to 9 as the TEST value "Design Output Type" names it. Setting takes any
    /// number.
    static int GetDesignOutputType();
    static void SetDesignOutputType(int nType);
    /// The parts of the design output type: \p nKind 1 for histories ("HIS"), 2 for values ("VAL"), else 0;
    /// whether extremes, rows and columns are put out. Returns 1 when nKind is not 0. A type outside 1 to 9
    /// gives 0 and all three parts.
    static int GetTestOutType(int& nKind, int& bEx, int& bRow, int& bCol);

    /// A test or environment text, read anew by every call; empty when it is absent. The names of the four
    /// dialog-font settings ("DlgFontName_Std", "DlgFontSize_Std", "DlgFontName_Eng", "DlgFontSize_Eng")
    /// are answered from the section "ENV_GENERAL" of the host's profile, with defaults; any other name is a
    /// value of the TEST key. Font names are compared with case. May be called from any thread.
    static CString GetTestEnvValue(const wchar_t* name);

    /// Flips the value "EnableAeroPeek" of the product's own DWM key: 1 becomes 0; 0 and absent become 1;
    /// any other number stays. Returns 1.
    static int EnableDisableAeroPeekMode();

    static int m_nMovingType;
    static int m_bIndia;
    static int m_bTaiwan;
    static int m_bCzech;
    static int m_bMalaysia;
    static int m_bTunnel;
    static int m_bMovingLoadBatch;
    static int m_nDesignOutputType;
    static int m_bAluminiumUse; ///< for the modules' own use: nothing here sets or reads it
    static int m_bInit;         ///< the result of Initialize

protected:
    /// Reads all flags; returns 1. A missing "Moving Load Batch" leaves that flag as it was.
    static int Initialize();
    static int CheckIndia();
    static int CheckTaiwan();
    static int CheckCzech();
    static int CheckMalaysia();
    static int CheckTunnel();
};
