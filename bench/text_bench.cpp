// Reading a text file line by line, against copying the lines of the decoded text.
#include "bench/support/data.h"
#include "platform/codepage.h"
#include "platform/file.h"
#include "tarvo/text/StdioFileEx.h"
#include "tarvo/text/TextFile.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>
#include <string_view>

namespace
{
// A script of Latin letters, 5 MB like the language file.
const std::string& script()
{
    static const std::string text = [] {
        std::string lines;
        for (int i = 0; lines.size() < 5'000'000; ++i)
            lines += "    LTEXT           \"Text " + std::to_string(i) + "\",IDC_STATIC_" +
                     std::to_string(i % 997) + ",7,7,50,8\r\n";
        return lines;
    }();
    return text;
}

std::string utf8_with_mark() { return "\xEF\xBB\xBF" + bench::data_bytes("lang.utf8.ini"); }
std::string script_with_mark() { return "\xEF\xBB\xBF" + script(); }

std::string swapped(std::string bytes)
{
    for (std::size_t i = 1; i < bytes.size(); i += 2)
        std::swap(bytes[i - 1], bytes[i]);
    return bytes;
}

// The input as a file beside the others.
std::wstring file_of(const char* name, const std::string& bytes)
{
    const std::string path = bench::data_path("lang.utf8.ini") + "." + name;
    const std::wstring wide(path.begin(), path.end());
    if (platform::file::write_whole(wide.c_str(), bytes) != platform::file::Written::ok)
        std::abort();
    return wide;
}

template <class Line>
void read(benchmark::State& state, const std::wstring& path)
{
    Line line;
    for (auto _ : state)
    {
        CTextFileRead file(path.c_str());
        while (file.ReadLine(line))
            benchmark::DoNotOptimize(line);
    }
}

void stdio_read(benchmark::State& state, const std::wstring& path, UINT page)
{
    CString line;
    for (auto _ : state)
    {
        CStdioFileEx file(path.c_str(), CFile::modeRead | CFile::typeText);
        file.SetCodePage(page);
        while (file.ReadString(line))
            benchmark::DoNotOptimize(line);
    }
}

// The limit: the text is decoded already and only its lines are copied.
void copy(benchmark::State& state, const std::wstring& path)
{
    std::wstring text;
    std::wstring line;
    for (CTextFileRead file(path.c_str()); file.ReadLine(line);)
        text += line + L'\n';
    for (auto _ : state)
        for (std::wstring_view rest = text; !rest.empty();)
        {
            const std::size_t end = rest.find(L'\n');
            line.assign(rest.substr(0, end));
            benchmark::DoNotOptimize(line);
            rest.remove_prefix(end + 1);
        }
}

const std::wstring& utf16_file()
{
    static const std::wstring path = file_of("utf16", bench::data_bytes("lang.utf16.ini"));
    return path;
}
const std::wstring& utf16be_file()
{
    static const std::wstring path = file_of("utf16be", swapped(bench::data_bytes("lang.utf16.ini")));
    return path;
}
const std::wstring& utf8_file()
{
    static const std::wstring path = file_of("utf8", utf8_with_mark());
    return path;
}
const std::wstring& script_file()
{
    static const std::wstring path = file_of("script", script_with_mark());
    return path;
}
const std::wstring& cp949_file()
{
    static const std::wstring path = file_of("cp949", bench::data_bytes("lang.cp949.ini"));
    return path;
}

void text_read_utf16(benchmark::State& state) { read<std::wstring>(state, utf16_file()); }
void text_read_utf16be(benchmark::State& state) { read<std::wstring>(state, utf16be_file()); }
void text_read_utf8(benchmark::State& state) { read<std::wstring>(state, utf8_file()); }
void text_read_script(benchmark::State& state) { read<std::wstring>(state, script_file()); }
void text_read_utf8_cstring(benchmark::State& state) { read<CString>(state, utf8_file()); }
void stdio_read_utf16(benchmark::State& state) { stdio_read(state, utf16_file(), 0); }
void stdio_read_cp949(benchmark::State& state) { stdio_read(state, cp949_file(), 949); }
void text_copy_utf16(benchmark::State& state) { copy(state, utf16_file()); }
void text_copy_utf8(benchmark::State& state) { copy(state, utf8_file()); }
void text_copy_script(benchmark::State& state) { copy(state, script_file()); }

BENCHMARK(text_read_utf16);
BENCHMARK(text_read_utf16be);
BENCHMARK(text_read_utf8);
BENCHMARK(text_read_script);
BENCHMARK(text_read_utf8_cstring);
BENCHMARK(stdio_read_utf16);
BENCHMARK(stdio_read_cp949);
BENCHMARK(text_copy_utf16);
BENCHMARK(text_copy_utf8);
BENCHMARK(text_copy_script);
} // namespace
