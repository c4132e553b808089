#include "platform/registry.h"

#include "platform/file_posix.h"
#include "platform/registry_text_posix.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <mutex>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

/// An open key: its full path, as text. It is looked up anew for every operation.
struct HKEY__
{
    std::wstring path;
    bool writable;
};

namespace platform::registry
{
namespace
{
using posix::Document;

constexpr std::uint64_t most_bytes = 256u << 20;
constexpr std::size_t longest_key_name = 255, longest_value_name = 16383;

/// The name of a predefined key, else empty. Predefined keys are their numbers, never looked behind.
std::wstring_view root_name(HKEY key)
{
    for (const RootName& row : root_names)
        if (key == root(row.root))
            return row.name;
    return std::wstring_view();
}

std::wstring path_of(HKEY key)
{
    const std::wstring_view name = root_name(key);
    return name.empty() ? key->path : std::wstring(name);
}

bool is_writable(HKEY key) { return !root_name(key).empty() || key->writable; }

/// The registry file; empty when the environment names no place for it.
std::string file_path()
{
    const auto text = [](const char* name) {
        const char* value = std::getenv(name);
        return std::string(value ? value : "");
    };
    if (std::string named = text("TARVO_REGISTRY"); !named.empty())
        return named;
    const std::string config = text("XDG_CONFIG_HOME"), home = text("HOME");
    if (config.starts_with('/')) // by the convention of that variable, any other text is ignored
        return config + "/tarvo/registry";
    return home.empty() ? std::string() : home + "/.config/tarvo/registry";
}

using DocumentPtr = std::shared_ptr<const Document>;

/// The document last read or written, for as long as its file is the same. The open descriptor keeps
/// the file's number from being given to a later one; so a replaced file is always another one, and
/// one that was edited in place has another size or time.
class Cache
{
public:
    /// The newest document. A missing file is an empty one; null when there is a file and it cannot be
    /// read, so that nobody writes over it.
    DocumentPtr load(const std::string& path)
    {
        if (path.empty())
            return nullptr;
        const std::lock_guard<std::mutex> guard(m_mutex);
        struct stat now;
        if (::stat(path.c_str(), &now) != 0)
            return errno == ENOENT || errno == ENOTDIR ? std::make_shared<Document>(Document::heading())
                                                       : nullptr;
        if (!m_document || !is_same(now))
        {
            m_document.reset();
            const std::optional<std::string> bytes = open(path) ? read() : std::nullopt;
            if (bytes)
                m_document = std::make_shared<Document>(*bytes);
        }
        return m_document;
    }

    /// Writes a document, under the lock of all writers.
    bool save(const std::string& path, DocumentPtr document)
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        const std::string text = document->text();
        if (text.size() > most_bytes || file::posix::replace_whole(path.c_str(), text) != file::Written::ok)
            return false;
        m_document = open(path) ? std::move(document) : nullptr;
        return true;
    }

private:
    bool open(const std::string& path)
    {
        m_file.emplace(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
        return *m_file && ::fstat(m_file->get(), &m_info) == 0 && S_ISREG(m_info.st_mode) &&
               static_cast<std::uint64_t>(m_info.st_size) <= most_bytes;
    }

    std::optional<std::string> read() const
    {
        std::string bytes(static_cast<std::size_t>(m_info.st_size), '\0');
        return file::posix::read_all(m_file->get(), bytes.data(), bytes.size())
                   ? std::optional(std::move(bytes))
                   : std::nullopt;
    }

    bool is_same(const struct stat& now) const
    {
        const auto same_time = [](const timespec& a, const timespec& b) {
            return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
        };
        return now.st_dev == m_info.st_dev && now.st_ino == m_info.st_ino && now.st_size == m_info.st_size &&
               same_time(now.st_mtim, m_info.st_mtim) && same_time(now.st_ctim, m_info.st_ctim);
    }

    std::mutex m_mutex;
    std::optional<file::posix::Descriptor> m_file;
    struct stat m_info = {};
    DocumentPtr m_document;
};

/// Made on first use: settings are read while libraries are still being loaded.
Cache& cache()
{
    static Cache instance;
    return instance;
}

DocumentPtr load(const std::string& path) { return cache().load(path); }

void make_folders_of(const std::string& path)
{
    for (std::size_t slash = path.find('/', 1); slash != std::string::npos; slash = path.find('/', slash + 1))
        ::mkdir(path.substr(0, slash).c_str(), 0700); // a failure shows when the file is opened
}

/// Holds the lock that all writers take. It stands on a file of its own, since the registry file is
/// another one after each write.
file::posix::Descriptor lock(const std::string& path)
{
    make_folders_of(path);
    file::posix::Descriptor fd(::open((path + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
    while (fd && ::flock(fd.get(), LOCK_EX) != 0)
        if (errno != EINTR)
            return file::posix::Descriptor();
    return fd;
}

/// Applies \p edit to the newest document and writes the result when \p edit answers true.
template <class Edit>
bool change(Edit edit)
{
    const std::string path = file_path();
    if (path.empty())
        return false;
    const file::posix::Descriptor locked = lock(path);
    const DocumentPtr newest = locked ? load(path) : nullptr;
    if (!newest)
        return false;
    const auto document = std::make_shared<Document>(*newest);
    return edit(*document) && cache().save(path, document);
}

/// Text that comes back from UTF-8 as it was, and stands on one line.
bool is_plain(std::wstring_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const bool high = text[i] >= 0xD800 && text[i] < 0xDC00;
        if (high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000)
            ++i;
        else if (text[i] < 0x20 || (text[i] >= 0xD800 && text[i] < 0xE000))
            return false;
    }
    return true;
}

/// The path of \p name below \p parent; nothing when a component is no key name.
std::optional<std::wstring> path_below(HKEY parent, const wchar_t* name)
{
    if (!parent)
        return std::nullopt;
    std::wstring path = path_of(parent);
    std::wstring_view rest(name ? name : L"");
    while (!rest.empty())
    {
        const std::size_t end = std::min(rest.find(L'\\'), rest.size());
        const std::wstring_view part = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (part.size() > longest_key_name || !is_plain(part))
            return std::nullopt;
        if (!part.empty())
            (path += L'\\') += part;
    }
    return path;
}

bool is_root_path(const std::wstring& path) { return path.find(L'\\') == std::wstring::npos; }

std::wstring_view value_name(const wchar_t* value) { return value ? value : L""; }

bool has_good_name(const wchar_t* value) { return value_name(value).size() <= longest_value_name; }
} // namespace

HKEY root(Root which) { return reinterpret_cast<HKEY>(static_cast<std::uintptr_t>(which)); }

HKEY open(HKEY parent, const wchar_t* name)
{
    std::optional<std::wstring> path = path_below(parent, name);
    const DocumentPtr document = path ? load(file_path()) : nullptr;
    if (!document || !(is_root_path(*path) || document->has_key(*path)))
        return nullptr;
    return new HKEY__{std::move(*path), false};
}

HKEY create(HKEY parent, const wchar_t* name)
{
    std::optional<std::wstring> path = path_below(parent, name);
    if (!path)
        return nullptr;
    const DocumentPtr document = load(file_path());
    if (!document)
        return nullptr;
    const bool there = is_root_path(*path) || document->has_key(*path);
    const auto add = [&](Document& newest) {
        if (!newest.has_key(*path)) // another program may have been faster
            newest.add_key(*path);
        return true;
    };
    if (!there && !change(add))
        return nullptr;
    return new HKEY__{std::move(*path), true};
}

void close(HKEY key)
{
    if (key && root_name(key).empty())
        delete key;
}

bool query(HKEY key, const wchar_t* value, void* data, std::size_t& size, std::uint32_t* type)
{
    const DocumentPtr document = key ? load(file_path()) : nullptr;
    const posix::Value* found = document ? document->find(path_of(key), value_name(value)) : nullptr;
    if (!found || (data && found->data.size() > size))
        return false;
    if (data)
        std::memcpy(data, found->data.data(), found->data.size());
    size = found->data.size();
    if (type)
        *type = found->type;
    return true;
}

bool set(HKEY key, const wchar_t* value, std::uint32_t type, const void* data, std::size_t size)
{
    if (!key || !is_writable(key) || !has_good_name(value) || (!data && size > 0))
        return false;
    const std::wstring path = path_of(key);
    return change([&](Document& document) {
        if (is_root_path(path) && !document.has_key(path))
            document.add_key(path);
        return document.set(path, value_name(value),
                            {type, std::string(static_cast<const char*>(data), size)});
    });
}

bool remove_value(HKEY key, const wchar_t* value)
{
    if (!key || !is_writable(key))
        return false;
    const std::wstring path = path_of(key);
    return change([&](Document& document) { return document.remove_value(path, value_name(value)); });
}

bool remove_tree(HKEY parent, const wchar_t* name)
{
    const std::optional<std::wstring> path = path_below(parent, name);
    if (!path || *path == path_of(parent)) // a name that says nothing must not remove the parent
        return false;
    return change([&](Document& document) { return document.remove_tree(*path); });
}
} // namespace platform::registry
