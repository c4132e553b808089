#include "cli/groups.h"
#include "cli/input.h"
#include "cli/json.h"
#include "cli/text.h"
#include "tarvo/text/AnsiPage.h"
#include "tarvo/text/StdioFileEx.h"
#include "tarvo/text/TextFile.h"

#include <cstdio>
#include <limits>
#include <memory>

namespace cli
{
namespace
{
constexpr Operand lines_operands[] = {
    {"FILE", Value::file, "the text file; - reads standard input, with the reader detect only"}};
constexpr Option lines_options[] = {{"reader", '\0', Value::choice, "detect|stdio",
                                     "detect, the default, reads the file as the resource tools read a "
                                     "script: by its mark, UTF-16, UTF-8 or the ANSI "
                                     "code page; stdio reads it as the message catalogue reads its files: "
                                     "UTF-16LE by its mark, else the code page"},
                                    {"code-page", '\0', Value::page, "N",
                                     "the code page of a file without a mark; by default the ANSI code page. "
                                     "With the reader stdio, 65001 passes over "
                                     "the first three bytes, mark or not"}};
constexpr Example lines_examples[] = {
    {"what a script says, whatever its encoding", "tarvo text lines module.rc | grep CAPTION"},
    {"the encoding that a file is read in", "tarvo text lines --format json module.rc | jq -r .encoding"},
    {"a Korean message file as the catalogue reads it",
     "tarvo text lines --reader stdio --code-page 949 Steel_kr.ini"},
};

constexpr std::uint64_t any_size = std::numeric_limits<std::uint64_t>::max();
constexpr std::string_view encodings[] = {"ansi", "utf-16be", "utf-16le", "utf-8"};

/// Standard input as a file of the framework, read from front to end.
class StandardInput : public CFile
{
public:
    UINT Read(void* lpBuf, UINT nCount) override
    {
        const auto count = static_cast<UINT>(std::fread(lpBuf, 1, nCount, stdin));
        m_failed = m_failed || std::ferror(stdin) != 0;
        return count;
    }

    bool m_failed = false;
};

/// Puts lines into either format as they come.
class Output
{
public:
    Output(Format format, std::string_view encoding) : m_format(format)
    {
        m_json.begin_object().key("encoding").text(to_wide(encoding)).key("lines").begin_array();
    }

    void add(const CString& line)
    {
        if (m_format == Format::json)
        {
            m_json.text(view(line));
            return;
        }
        append_utf8(m_text, view(line));
        m_text += '\n';
    }

    std::string take()
    {
        return m_format == Format::json ? m_json.end_array().end_object().take() : std::move(m_text);
    }

private:
    Format m_format;
    JsonWriter m_json;
    std::string m_text;
};

std::string read_all(CTextFileBase& file, Format format)
{
    Output output(format, encodings[static_cast<int>(file.GetEncoding())]);
    for (CString line; file.ReadLine(line);)
        output.add(line);
    return output.take();
}

std::string read_by_mark(const std::string& name, Format format)
{
    if (name != "-")
    {
        CTextFileRead file(to_wide(name).c_str());
        if (!file.IsOpen())
            unreadable(name, any_size);
        return read_all(file, format);
    }
    StandardInput input;
    CTextFileBase file(input);
    std::string data = read_all(file, format);
    if (input.m_failed)
        throw Failure{Status::unreadable, name, "standard input cannot be read"};
    return data;
}

/// The first bytes of a file that the library can open.
std::string first_bytes(const std::wstring& name)
{
    char bytes[3];
    CFile file;
    if (!file.Open(name.c_str(), CFile::modeRead | CFile::shareDenyNone))
        return {};
    return {bytes, file.Read(bytes, sizeof bytes)};
}

std::string read_as_catalogue(const std::string& name, const Call& call)
{
    if (name == "-")
        throw Failure{Status::usage, "text lines",
                      "--reader stdio reads a file by its name, not standard input"};
    const int page = call.page("code-page");
    const std::wstring path = to_wide(name);
    CStdioFileEx file;
    file.SetCodePage(static_cast<UINT>(page));
    if (!file.Open(path.c_str(), CFile::modeRead | CFile::typeText | CFile::shareDenyNone))
        unreadable(name, any_size);
    if (page == 65001 && !file.IsUnicodeText() && first_bytes(path) != "\xEF\xBB\xBF")
        call.note(name, "has no mark of UTF-8; its first three bytes are passed over all the same");
    Output output(call.format, file.IsUnicodeText() ? "utf-16le" : "multibyte");
    for (CString line; file.ReadString(line);)
        output.add(line);
    return output.take();
}

Result lines(const Call& call)
{
    const std::string& name = call.operands[0];
    require_regular(name);
    if (const std::string* reader = call.option("reader"); reader != nullptr && *reader == "stdio")
        return {Status::done, read_as_catalogue(name, call)};
    if (const int page = call.page("code-page"); page != 0)
        SetAnsiCodePage(page);
    return {Status::done, read_by_mark(name, call.format)};
}

constexpr Command commands[] = {
    {"lines", "prints the lines of a text file as the library reads them", lines_operands, lines_options,
     "Prints every line of a text file in UTF-8, without its break. So a file can be looked at that an "
     "editor shows "
     "wrongly, and compared with what it was meant to be.\n"
     "The reader detect ends a line at CR, LF or CR LF. The reader stdio ends it at LF, drops a CR before "
     "it, ends the "
     "text at Ctrl+Z unless it is UTF-16, and gives a line longer than 4,096 bytes (UTF-16: units) in "
     "pieces.",
     "the lines, each with a line feed.",
     "{\"encoding\":E,\"lines\":[LINE,...]}, E being ansi, utf-16be, utf-16le or "
     "utf-8, with the reader stdio multibyte or utf-16le.",
     lines_examples, lines},
};
} // namespace

std::span<const Command> text_commands() { return commands; }
} // namespace cli
