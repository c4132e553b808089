#include "tarvo/text/AnsiPage.h"
#include "tarvo/text/StdioFileEx.h"
#include "tarvo/text/TextFile.h"
#include "tests/tarvo/text/PlainTextReader.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>

// Any bytes read as lines, in pieces of any size, as a plain reader reads them that goes byte by byte by the
// rules. What the reader of message files gives is the text in lines of at most its length, and its position
// leads through the file.
namespace
{
constexpr int pages[] = {949, 932, 936, 950, 1251, 65001};

void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

// Hands out pieces of a size that changes, but the bytes of a mark as they are asked for.
class MemoryFile : public CFile
{
public:
    MemoryFile(std::string_view bytes, unsigned seed) : m_bytes(bytes), m_seed(seed) {}
    UINT Read(void* to, UINT count) override
    {
        m_seed = m_seed * 1103515245 + 12345;
        const std::size_t most = m_at < 3 || m_seed % 7 == 0 ? count : 1 + m_seed / 7 % 5;
        const std::size_t n = std::min(most, m_bytes.size() - m_at);
        std::copy_n(m_bytes.data() + m_at, n, static_cast<char*>(to));
        m_at += n;
        return static_cast<UINT>(n);
    }

private:
    std::string_view m_bytes;
    std::size_t m_at = 0;
    unsigned m_seed;
};

// The one file that is written anew for each input.
struct DiskFile
{
    DiskFile()
        : path(std::filesystem::temp_directory_path() /
               ("tarvo-fuzz-text-" + std::to_string(std::random_device()())))
    {
    }
    ~DiskFile()
    {
        std::error_code error;
        std::filesystem::remove(path, error);
    }
    std::filesystem::path path;
};

void CheckLineReader(std::string_view bytes, int page, unsigned seed)
{
    MemoryFile file(bytes, seed);
    CTextFileBase reader(file);
    PlainTextReader plain(bytes, page);
    Require(static_cast<int>(reader.GetEncoding()) == plain.Encoding(), "the encoding");
    std::wstring line;
    std::wstring expected;
    for (bool more = true; more;)
    {
        more = plain.ReadLine(expected);
        Require(reader.ReadLine(line) == more, "as many lines");
        Require(line == expected, "the same line");
        Require(reader.IsEndOfFile() == plain.IsEndOfFile(), "the end is seen at the same line");
    }
}

void CheckStdioReader(std::string_view bytes, int page, bool binary)
{
    static const DiskFile disk;
    const std::wstring path = disk.path.wstring();
    CFile(path.c_str(), CFile::modeCreate | CFile::modeWrite)
        .Write(bytes.data(), static_cast<UINT>(bytes.size()));
    CStdioFileEx file(path.c_str(), CFile::modeRead | (binary ? CFile::typeBinary : CFile::typeText));
    file.SetCodePage(static_cast<UINT>(page));
    ULONGLONG position = 0;
    for (CString line; file.ReadString(line);)
    {
        Require(line.GetLength() <= CStdioFileEx::kLineMost, "a line is not longer than it may be");
        Require(file.GetPosition() > position && file.GetPosition() <= bytes.size(), "the position goes on");
        position = file.GetPosition();
        Require(line.Find(L'\n') < 0, "no break stays");
    }
    const std::size_t end = binary ? std::string_view::npos : bytes.find('\x1A');
    if (!file.IsUnicodeText() && end == std::string_view::npos)
        Require(file.GetPosition() == bytes.size(), "every byte is read");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const int page = pages[data[0] % std::size(pages)];
    SetAnsiCodePage(page);
    const std::string_view bytes(reinterpret_cast<const char*>(data + 2), size - 2);
    CheckLineReader(bytes, page, data[1]);
    CheckStdioReader(bytes, page, data[1] % 2 == 0);
    return 0;
}
