#include "tarvo/lang/XMultiLang.h"

int XMultiLang::LoadResourceHeader(int, const wchar_t*) { return 0; }
