#pragma once

#include <string>

/// A new empty folder for one test, removed with all that it holds when the object goes. Its path is
/// ASCII, so that it can be written as wide and as byte text.
class TempFolder
{
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::wstring path() const { return m_strPath; }
    /// The path of \p name in the folder, with the platform's separator.
    std::wstring operator/(const std::wstring& name) const;
    /// How many files and folders stand directly in it.
    int count() const;

private:
    std::wstring m_strPath;
};

/// An ASCII text as bytes.
std::string narrow(const std::wstring& text);
