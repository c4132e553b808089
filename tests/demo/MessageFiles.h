#pragma once
#include <map>
#include <string>
#include <vector>

/// The demonstration's message files, read without the library.
namespace message_files
{
using Texts = std::map<std::wstring, std::wstring>; ///< key to text, as written between the quotes

struct Language
{
    const wchar_t* folder;
    const wchar_t* suffix;
    int codePage; ///< of its 8-bit files
};
inline constexpr Language kLanguages[] = {{L"English", L"_us", 1252}, {L"Korean", L"_kr", 949},
                                          {L"Japanese", L"_jp", 932}, {L"Chinese", L"_ch", 936},
                                          {L"Russia", L"_rus", 1251}, {L"Global", L"_gb", 1252}};

std::wstring source_path(const std::wstring& path);
std::string read_bytes(const Language& language, const std::wstring& file);
/// The keys of a module's file in the order of its lines, repeated ones too.
std::vector<std::wstring> read_keys(const wchar_t* module, const Language& language);
Texts load_module(const wchar_t* module, const Language& language);
/// All seventeen files.
Texts load_all(const Language& language);
/// The texts in the script of the international windows, by the keys under which the library asks for them.
Texts load_script();

/// With the escapes of the files replaced: "" and \n, the only ones in use.
std::wstring unescaped(std::wstring text);
/// Conversion specifications and escapes in their order.
std::vector<std::wstring> placeholders(const std::wstring& text);
/// The access key of a text in upper case, 0 without one.
wchar_t access_key(const std::wstring& text);
} // namespace message_files
