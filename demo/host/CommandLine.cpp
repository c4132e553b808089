#include "demo/host/CommandLine.h"

#include "demo/host/Languages.h"

const wchar_t* const kUsage = L"usage: TarvoDemo.exe [--language NAME] [--pictures FOLDER]\n"
                              L"\n"
                              L"Without --pictures an ordinary program with a main window. With it every\n"
                              L"window is opened in every language (or in the one named), its picture is\n"
                              L"written to FOLDER beside index.html, and the exit status is 1 when a\n"
                              L"window did not come up.\n"
                              L"\n"
                              L"NAME is English, Korean, Japanese, Chinese, Russian or Global.\n";

CommandLine read_command_line(const std::vector<std::wstring>& arguments)
{
    CommandLine result;
    for (std::size_t i = 0; i < arguments.size(); ++i)
    {
        const std::wstring& argument = arguments[i];
        if (argument == L"--help")
        {
            result.help = true;
            continue;
        }
        if (argument != L"--language" && argument != L"--pictures")
        {
            result.error = L"unknown argument: " + argument;
            return result;
        }
        if (++i == arguments.size() || arguments[i].empty())
        {
            result.error = argument + L" needs a value";
            return result;
        }
        if (argument == L"--pictures")
        {
            result.picturesFolder = arguments[i];
            continue;
        }
        result.language = find_language(arguments[i]);
        if (!result.language)
        {
            result.error = L"unknown language: " + arguments[i];
            return result;
        }
    }
    return result;
}
