#pragma once

#include "platform/codepage.h"
#include "tarvo/text/ConvertString.h"

#include <afxstr.h>

#include <cwchar>
#include <map>
#include <string>
#include <string_view>

/// Message files read the slow way, as the rules are told: what the readers are held against.
class PlainMessages
{
public:
    /// A line of a message file.
    void Take(CString line)
    {
        line.Trim();
        if (line.IsEmpty() || line[0] == L';' || line[0] == L'[')
            return;
        const int nEquals = line.Find(L'=');
        CString key = nEquals < 0 ? line : line.Left(nEquals);
        if (const int nMarker = key.Find(L"/**/"); nMarker >= 0)
            key = key.Mid(nMarker + 4);
        key.Trim();
        CString value = line.Right(line.GetLength() - key.GetLength() - 1);
        const int nFirst = value.Find(L'"');
        const int nLast = value.ReverseFind(L'"');
        if (nFirst >= 0)
            value = nFirst == nLast ? value.Mid(nFirst + 1) : value.Mid(nFirst + 1, nLast - nFirst - 1);
        value.Replace(L"\\n", L"\n");
        value.Replace(L"\\t", L"\t");
        value.Replace(L"\\r", L"\r");
        value.Replace(L"\"\"", L"\"");
        value.Replace(L"\\\\", L"\\");
        m_messages.emplace(Exact(key), Exact(value));
    }

    /// A line of a font file.
    void TakeFont(const CString& line)
    {
        if (line.IsEmpty() || line[0] == L';' || line[0] == L'/' || line[0] == L'[')
            return;
        const int nEquals = line.Find(L'=');
        if (nEquals < 0)
            return;
        const CString key = line.Left(nEquals);
        if (key.GetLength() != 4) // the comparison below ends at a NUL
            return;
        if (key.CompareNoCase(L"FONT") == 0)
            m_font = line.Mid(nEquals + 1);
        else if (key.CompareNoCase(L"SIZE") == 0)
            m_size = CConvertString::CStringToInteger(line.Mid(nEquals + 1));
    }

    const std::map<std::wstring, std::wstring>& Messages() const { return m_messages; }
    const CString& Font() const { return m_font; }
    int Size() const { return m_size; }

    static std::wstring Exact(const CString& text)
    {
        return std::wstring(text, static_cast<std::size_t>(text.GetLength()));
    }

private:
    std::map<std::wstring, std::wstring> m_messages;
    CString m_font;
    int m_size = 0;
};

/// The lines of bytes as a C stream in text mode gives them through a buffer of 1,024: visits each.
template <class Visit>
void ForEachPlainByteLine(std::string_view bytes, int codePage, Visit visit)
{
    std::string text;
    for (std::size_t i = 0; i < bytes.size() && bytes[i] != 0x1A; ++i)
        if (bytes[i] != '\r' || i + 1 == bytes.size() || bytes[i + 1] != '\n')
            text += bytes[i];
    for (std::size_t at = 0; at < text.size();)
    {
        std::string line;
        while (at < text.size() && line.size() < 1023)
        {
            line += text[at++];
            if (line.back() == '\n')
                break;
        }
        if (line.back() == '\n')
            line.pop_back();
        line.resize(line.find('\0') == std::string::npos ? line.size() : line.find('\0'));
        const std::wstring wide = CConvertString::MultiToWide(line.data(), static_cast<int>(line.size()),
                                                              static_cast<unsigned>(codePage));
        visit(CString(wide.data(), static_cast<int>(wide.size())));
    }
}
