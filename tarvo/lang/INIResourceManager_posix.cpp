#include "tarvo/lang/INIResourceManager.h"

int INIResourceManager::LoadMenuToINITranslate(CString, HMENU) { return 0; }

int INIResourceManager::FindCtrl_MenuINIResource(XMultiLang&, XIni&) { return 0; }
