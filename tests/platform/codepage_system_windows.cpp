#include "tests/platform/codepage_system_windows.h"

#include <windows.h>

namespace codepage_report
{
Converter system()
{
    Converter converter;
    converter.decode = [](int page, std::string_view bytes) {
        std::u16string text(4 * bytes.size(), u'\0');
        const int n =
            MultiByteToWideChar(static_cast<UINT>(page), 0, bytes.data(), static_cast<int>(bytes.size()),
                                reinterpret_cast<wchar_t*>(text.data()), static_cast<int>(text.size()));
        text.resize(static_cast<std::size_t>(n));
        return text;
    };
    converter.encode = [](int page, std::u16string_view text) {
        std::string bytes(8 * text.size(), '\0');
        const int n = WideCharToMultiByte(
            static_cast<UINT>(page), 0, reinterpret_cast<const wchar_t*>(text.data()),
            static_cast<int>(text.size()), bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
        bytes.resize(static_cast<std::size_t>(n));
        return bytes;
    };
    return converter;
}
} // namespace codepage_report
