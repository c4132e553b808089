#include <afxstr.h>

#include "platform/codepage.h"
#include "qlx/qlx_lib.h"

#include <cstdio>

int main()
{
    CString text(L"translated");
    text.MakeUpper();
    std::printf("%ls\n", static_cast<const wchar_t*>(text));
    return text == L"TRANSLATED" ? 0 : 1;
}
