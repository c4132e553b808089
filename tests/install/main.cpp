#include "tarvo/lang/XIni.h"

#include <cstdio>

int main()
{
    const wchar_t text[] = L"[IDD_SETUP]\r\nIDC_NAME=\xC774\xB984\r\n"; // a label in Korean
    XIni ini;
    const int opened = ini.OpenMemory(text, static_cast<int>(sizeof text / sizeof *text) - 1);
    const CString label = ini.GetStr(L"IDD_SETUP", L"IDC_NAME", L"Name");
    std::printf("opened %d, %d characters\n", opened, label.GetLength());
    return opened == 1 && label == L"\xC774\xB984" ? 0 : 1;
}
