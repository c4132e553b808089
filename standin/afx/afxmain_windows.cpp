#include "afxapp.h"

/// The entry point of a window program. It stands in a library of its own, so that programs with a main
/// function of theirs do without it.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): as the framework names them
int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR, int nCmdShow)
{
    // The wide command line without the program's name, which may be quoted.
    LPWSTR pszLine = ::GetCommandLineW();
    const wchar_t chEnd = *pszLine == L'"' ? L'"' : L' ';
    if (chEnd == L'"')
        ++pszLine;
    while (*pszLine != 0 && *pszLine != chEnd && (chEnd == L'"' || *pszLine != L'\t'))
        ++pszLine;
    if (*pszLine != 0)
        ++pszLine;
    while (*pszLine == L' ' || *pszLine == L'\t')
        ++pszLine;
    return AfxWinMain(hInstance, hPrevInstance, pszLine, nCmdShow);
}
