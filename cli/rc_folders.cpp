#include "cli/rc_comparison.h"
#include "cli/terminal.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <exception>
#include <filesystem>
#include <mutex>
#include <thread>

namespace cli
{
namespace fs = std::filesystem;
namespace
{
fs::path path_of(const std::string& name) { return std::u8string(name.begin(), name.end()); }

std::string name_of(const fs::path& path)
{
    const std::u8string name = path.generic_u8string();
    return {name.begin(), name.end()};
}

bool is_script(const fs::path& path)
{
    std::string ending = name_of(path.extension());
    std::ranges::transform(ending, ending.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; });
    return ending == ".rc";
}

/// The scripts below a folder by their path from there, sorted by bytes: the same order everywhere.
std::vector<std::string> scripts_below(const std::string& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    const fs::path root = path_of(folder);
    fs::recursive_directory_iterator walk(root, fs::directory_options::skip_permission_denied, error);
    for (; !error && walk != fs::recursive_directory_iterator(); walk.increment(error))
    {
        std::error_code other;
        if (walk->is_regular_file(other) && is_script(walk->path()))
            names.push_back(name_of(walk->path().lexically_relative(root)));
    }
    if (error)
        throw Failure{Status::unreadable, folder, "cannot be read: " + error.message()};
    std::ranges::sort(names);
    return names;
}

std::string joined(const std::string& folder, const std::string& name)
{
    return folder + (folder.ends_with('/') || folder.ends_with('\\') ? "" : "/") + name;
}

std::size_t job_count(const Call& call)
{
    const std::string* const text = call.option("jobs");
    if (text == nullptr)
        return 1;
    std::size_t count = 0;
    const char* const end = text->data() + text->size();
    const auto [rest, error] = std::from_chars(text->data(), end, count);
    if (error != std::errc() || rest != end || count == 0 || count > 256)
        throw Failure{Status::usage, "rc compare", "--jobs needs a number from 1 to 256, not " + *text};
    return count;
}

/// Several threads that each take the next pair until none is left. A failure is kept at its pair's place.
class Workers
{
public:
    Workers(std::vector<Comparison>& comparisons, const Call& call)
        : m_comparisons(comparisons), m_call(call), m_failures(comparisons.size()),
          m_is_watched(!call.quiet && terminal::interactive(stderr))
    {
    }

    void run(std::size_t count)
    {
        std::vector<std::thread> threads;
        for (std::size_t i = 1; i < std::min(count, m_comparisons.size()); ++i)
            threads.emplace_back([this] { work(); });
        work();
        for (std::thread& thread : threads)
            thread.join();
        if (m_is_watched)
            std::fputs("\r\x1b[K", stderr);
        for (const std::exception_ptr& failure : m_failures)
            if (failure)
                std::rethrow_exception(failure);
    }

private:
    void work()
    {
        for (std::size_t at; (at = m_next++) < m_comparisons.size();)
        {
            try
            {
                if (!m_comparisons[at].is_missing)
                    perform(m_comparisons[at], m_call);
            }
            catch (...)
            {
                m_failures[at] = std::current_exception();
            }
            if (m_is_watched)
                show(m_comparisons[at].name);
        }
    }

    void show(const std::string& name)
    {
        const std::lock_guard guard(m_lock);
        std::fprintf(stderr, "\r\x1b[K%zu/%zu %.60s", ++m_done, m_comparisons.size(), name.c_str());
        std::fflush(stderr);
    }

    std::vector<Comparison>& m_comparisons;
    const Call& m_call;
    std::vector<std::exception_ptr> m_failures;
    std::atomic<std::size_t> m_next = 0;
    std::mutex m_lock;
    std::size_t m_done = 0;
    bool m_is_watched;
};
} // namespace

bool is_folder(const std::string& name)
{
    std::error_code error;
    return fs::is_directory(path_of(name), error);
}

std::vector<Comparison> compare_folders(const Call& call)
{
    const std::size_t jobs = job_count(call);
    std::vector<Comparison> comparisons;
    for (const std::string& name : scripts_below(call.operands[0]))
    {
        Comparison& comparison = comparisons.emplace_back();
        comparison.name = name;
        comparison.file1 = joined(call.operands[0], name);
        comparison.file2 = joined(call.operands[1], name);
        std::error_code error;
        comparison.is_missing = !fs::exists(path_of(comparison.file2), error);
    }
    Workers(comparisons, call).run(jobs);
    return comparisons;
}
} // namespace cli
