#include "platform/file.h"
#include "tarvo/text/StdioFileEx.h"
#include "tests/tarvo/msg/Dump.h"
#include "tests/tarvo/msg/PlainMessages.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <random>

// Both readers give what the plain rules give: for the fallback reader over the lines of a byte stream, for
// the primary one over the lines that CStdioFileEx reads from a file of these bytes.
namespace
{
constexpr int pages[] = {0, 949, 932, 936, 1251, 65001};

void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

template <class Reader>
void Compare(const std::string& bytes, int page, const PlainMessages& plain, const char* name)
{
    Reader reader;
    reader.messages(bytes, page);
    std::map<std::wstring, std::wstring> messages;
    for (const CMessageStore::Message& message : reader.store().Sorted())
        messages.emplace(PlainMessages::Exact(units::to_string(message.key)),
                         PlainMessages::Exact(units::to_string(message.value)));
    Require(messages == plain.Messages(), name);
    Require(messages.size() == reader.store().GetCount(), "no key is listed twice");
    for (const auto& [key, value] : messages)
        if (key.find(L'\0') == std::wstring::npos)
            Require(PlainMessages::Exact(reader.get_value(key.c_str())) == value, "every key is found");

    reader.font(bytes, page);
    Require(PlainMessages::Exact(reader.get_font()) == PlainMessages::Exact(plain.Font()), "the font's name");
    Require(reader.get_fontsize() == plain.Size(), "the font's size");
}

/// The file that CStdioFileEx reads: in memory's file system, where there is one.
std::wstring FilePath()
{
    static const std::wstring path = [] {
        const std::filesystem::path shared = "/dev/shm";
        const auto folder = std::filesystem::exists(shared) ? shared : std::filesystem::temp_directory_path();
        std::random_device random;
        return (folder / ("tarvo-fuzz-messages-" + std::to_string(random()))).wstring();
    }();
    return path;
}

struct Removed
{
    ~Removed() { platform::file::remove(FilePath().c_str()); }
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const int page = pages[data[0] % std::size(pages)];
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);

    PlainMessages fallback;
    ForEachPlainByteLine(bytes, page, [&](const CString& line) {
        fallback.Take(line);
        fallback.TakeFont(line);
    });
    Compare<CFallback>(bytes, page, fallback, "the fallback reader gives what the rules give");

    static const Removed removed;
    Require(platform::file::write_whole(FilePath().c_str(), bytes) == platform::file::Written::ok,
            "the file can be written");
    PlainMessages primary;
    CStdioFileEx file;
    Require(file.Open(FilePath().c_str(), CFile::modeRead | CFile::shareDenyNone | CFile::typeText),
            "the file opens");
    file.SetCodePage(static_cast<UINT>(page));
    for (CString line; file.ReadString(line);)
    {
        primary.Take(line);
        primary.TakeFont(line);
    }
    file.Close();
    Compare<CPrimary>(bytes, page, primary, "the primary reader gives what the rules give");
    return 0;
}
