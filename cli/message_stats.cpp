#include "cli/message_stats.h"

#include "cli/json.h"
#include "cli/message_files.h"
#include "cli/text.h"
#include "tarvo/msg/Languages.h"
#include "tarvo/text/Units.h"

#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace cli
{
namespace
{
struct File
{
    std::string name;
    std::string language;
    std::size_t bytes, keys, duplicates;
};

/// All files of one language, as a host loads them into one catalogue.
struct Language
{
    std::string name;
    CMessageStore messages;
    std::size_t files = 0;
    std::size_t entries = 0;

    std::size_t keys() const { return messages.GetCount(); }
    bool has(units::view key) const { return messages.Find(key).has_value(); }
};

struct Stats
{
    std::vector<File> files;
    std::deque<Language> languages;           ///< in the order in which they first occur
    std::vector<std::u16string> partial_keys; ///< that some language lacks, in ordinal order
};

/// The language's suffix before the last dot of a file's name; a file without one is its own language.
std::string language_of(const std::string& file)
{
    const CString stem(to_wide(file.substr(0, file.rfind('.'))).c_str());
    for (int number = 0; number < languages::count; ++number)
    {
        const CString suffix(languages::of(number).suffix);
        if (stem.Right(suffix.GetLength()).CompareNoCase(suffix) == 0)
            return to_utf8(view(suffix));
    }
    return file;
}

Language& language(std::deque<Language>& all, const std::string& name)
{
    const auto found = std::ranges::find(all, name, &Language::name);
    if (found != all.end())
        return *found;
    all.emplace_back().name = name;
    return all.back();
}

std::vector<std::u16string> partial_keys(const std::deque<Language>& languages)
{
    std::map<std::u16string, std::size_t> found;
    for (const Language& language : languages)
        for (const CMessageStore::Message& message : language.messages.Sorted())
            ++found[message.key];
    std::vector<std::u16string> keys;
    for (const auto& [key, count] : found)
        if (count < languages.size())
            keys.push_back(key);
    return keys;
}

Stats stats_of(const Call& call)
{
    Stats stats;
    for (const std::string& file : call.operands)
    {
        const std::unique_ptr<Catalogue> alone = Catalogue::open(call);
        const auto [bytes, entries] = alone->add(file);
        const std::size_t keys = alone->store().GetCount();
        Language& all = language(stats.languages, language_of(file));
        stats.files.push_back({file, all.name, bytes, keys, entries - keys});
        ++all.files;
        all.entries += entries;
        for (const CMessageStore::Message& message : alone->store().Sorted())
            all.messages.Insert(message.key, message.value);
    }
    stats.partial_keys = partial_keys(stats.languages);
    return stats;
}

/// The names of the languages that have the key, or of those that have not.
std::vector<std::string> names(const std::deque<Language>& languages, units::view key, bool has)
{
    std::vector<std::string> found;
    for (const Language& language : languages)
        if (language.has(key) == has)
            found.push_back(language.name);
    return found;
}

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text.append(" ").append(word);
    return text;
}

std::string text_of(const Stats& stats)
{
    const auto number = [](const char* name, std::size_t value) {
        return std::string(" ").append(name).append(" ").append(std::to_string(value));
    };
    std::string text;
    for (const File& file : stats.files)
        text += "file " + file.name + " language " + file.language + number("keys", file.keys) +
                number("duplicates", file.duplicates) + number("bytes", file.bytes) + "\n";
    for (const Language& language : stats.languages)
        text += "language " + language.name + number("files", language.files) +
                number("keys", language.keys()) + number("duplicates", language.entries - language.keys()) +
                "\n";
    for (const std::u16string& key : stats.partial_keys)
        text += "partial " + to_utf8(view(units::to_string(key))) + " in" +
                joined(names(stats.languages, key, true)) + " missing" +
                joined(names(stats.languages, key, false)) + "\n";
    return text;
}

std::string json_of(const Stats& stats)
{
    JsonWriter json;
    const auto count = [&json](const char* name, std::size_t value) {
        json.key(name).number(static_cast<long long>(value));
    };
    const auto list = [&json](const char* name, const std::vector<std::string>& words) {
        json.key(name).begin_array();
        for (const std::string& word : words)
            json.text(to_wide(word));
        json.end_array();
    };
    json.begin_object().key("files").begin_array();
    for (const File& file : stats.files)
    {
        json.begin_object().key("file").text(to_wide(file.name)).key("language").text(to_wide(file.language));
        count("keys", file.keys);
        count("duplicates", file.duplicates);
        count("bytes", file.bytes);
        json.end_object();
    }
    json.end_array().key("languages").begin_array();
    for (const Language& language : stats.languages)
    {
        json.begin_object().key("language").text(to_wide(language.name));
        count("files", language.files);
        count("keys", language.keys());
        count("duplicates", language.entries - language.keys());
        json.end_object();
    }
    json.end_array().key("partial").begin_array();
    for (const std::u16string& key : stats.partial_keys)
    {
        json.begin_object().key("key").text(view(units::to_string(key)));
        list("in", names(stats.languages, key, true));
        list("missing", names(stats.languages, key, false));
        json.end_object();
    }
    return json.end_array().end_object().take();
}
} // namespace

Result message_stats(const Call& call)
{
    const Stats stats = stats_of(call);
    return {Status::done, call.format == Format::json ? json_of(stats) : text_of(stats)};
}
} // namespace cli
