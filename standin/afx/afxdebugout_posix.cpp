#include "afxdebugout.h"

#include "platform/codepage.h"

#include <cstdio>

void afx_debug_out(const wchar_t* text)
{
    const auto bytes = platform::codepage::encode(platform::codepage::utf8, text);
    std::fputs(bytes ? bytes->c_str() : "", stderr);
}
