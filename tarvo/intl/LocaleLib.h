#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

/// Which language the machine runs in. A language is four hexadecimal digits as the system's locale
/// information gives them: "0409" English (United States), "0411" Japanese, "0412" Korean, "0419"
/// Russian. The three members are set once, when the library is loaded; a change of the machine's
/// language takes effect at the next start. Where the platform has no such calls, the environment
/// tells (platform/locale.h). Nothing throws.
class TARVO_API CLocaleLib
{
public:
    virtual ~CLocaleLib() = default;

    /// The system default locale's language; asks the system anew.
    static CString GetSystemLocale();
    /// The user's interface language as a number (1042 is Korean), 0 when the platform cannot tell.
    static unsigned short GetUserDefaultUILanguage();
    /// The user's interface language if it is one of the four; for every other the system locale's.
    static CString GetUILanguage();

    // 1 when the system locale, not the interface language, is of that language; else 0.
    static int IsEnglish();
    static int IsJapanese();
    static int IsKorean();
    static int IsRussian();

    static CString csLocale;      ///< the system locale's language
    static int bKorean;           ///< the system locale is Korean
    static int bKoreanUILanguage; ///< GetUILanguage is Korean
};
