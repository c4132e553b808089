#include "tarvo/lang/INIResourceManager.h"

// NOLINTNEXTLINE(performance-unnecessary-value-param): hosts link against this signature
int INIResourceManager::LoadMenuToINITranslate(CString, HMENU) { return 0; }

int INIResourceManager::FindCtrl_MenuINIResource(XMultiLang&, XIni&) { return 0; }
