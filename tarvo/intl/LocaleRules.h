#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

/// The rules of CLocaleLib over given values.
namespace LocaleRules
{
/// The interface language \p id as text if it is English, Japanese, Korean or Russian, else
/// \p systemLocale.
TARVO_API CString UILanguage(unsigned short id, const CString& systemLocale);

/// 1 when \p language is Korean, else 0.
TARVO_API int IsKorean(const CString& language);
} // namespace LocaleRules
