#include "platform/registry.h"

#include "platform/file.h"
#include "platform/registry_text_posix.h"
#include "tests/support/Child.h"
#include "tests/support/TempFolder.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>

namespace file = platform::file;
namespace registry = platform::registry;

namespace
{
struct key_closer
{
    void operator()(HKEY key) const { registry::close(key); }
};
using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, key_closer>;

/// A registry file of the test's own, whose text the tests see.
struct RegistryFile : testing::Test
{
    RegistryFile() { ::setenv("TARVO_REGISTRY", narrow(path).c_str(), 1); }
    ~RegistryFile() override { ::unsetenv("TARVO_REGISTRY"); }

    std::string text() const { return file::read_whole(path.c_str(), 1 << 24).value_or("(no file)"); }
    void write(const std::string& bytes) const
    {
        ASSERT_EQ(file::write_whole(path.c_str(), bytes), file::Written::ok);
    }
    static Key create(const wchar_t* name)
    {
        return Key(registry::create(registry::root(registry::Root::current_user), name));
    }
    static Key open(const wchar_t* name)
    {
        return Key(registry::open(registry::root(registry::Root::current_user), name));
    }
    static bool put(const Key& key, const wchar_t* name, const std::string& data, std::uint32_t type = 3)
    {
        return registry::set(key.get(), name, type, data.data(), data.size());
    }
    static std::string get(const Key& key, const wchar_t* name)
    {
        char room[64];
        std::size_t size = sizeof room;
        return registry::query(key.get(), name, room, size) ? std::string(room, size) : "(none)";
    }

    TempFolder folder;
    std::wstring path = folder / L"registry";
};

const std::string heading =
    "; Settings of Tarvo programs, in the notation of exported registry files.\n"
    "; Programs write this file whole; lines that they cannot read stay as they are.\n";
} // namespace

TEST_F(RegistryFile, IsReadableTextUnderAHeading)
{
    const Key key = create(L"Software\\Tarvo");
    ASSERT_TRUE(put(key, L"Text", std::string("C\0:\0\\\0\"\0\n\0\0\0", 12), registry::type_string));
    ASSERT_TRUE(put(key, L"Number", std::string("\x1f\0\0\0", 4), registry::type_dword));
    ASSERT_TRUE(put(key, L"Bytes", "\x01\x02\xff"));
    ASSERT_TRUE(put(key, L"None", ""));
    ASSERT_TRUE(put(key, L"Other", "a", 0x0007));
    ASSERT_TRUE(put(key, L"", std::string("\x5c\xd5\0\0", 4), registry::type_string));
    create(L"Software\\Second");
    EXPECT_EQ(text(), heading + "\n[HKEY_CURRENT_USER\\Software\\Tarvo]\n"
                                "\"Text\"=\"C:\\\\\\\"\\n\"\n"
                                "\"Number\"=dword:0000001f\n"
                                "\"Bytes\"=hex:01,02,ff\n"
                                "\"None\"=hex:\n"
                                "\"Other\"=hex(7):61\n"
                                "@=\"\xED\x95\x9C\"\n"
                                "\n[HKEY_CURRENT_USER\\Software\\Second]\n");
}

TEST_F(RegistryFile, WriteKeepsEveryLineThatItDoesNotUnderstand)
{
    const std::string before =
        "loose line\r\n[HKEY_CURRENT_USER\\A]\n; a remark\n\"one\"=hex:31\n\"broken\"=oops\n"
        "\"unclosed\nbytes \xFF\xC3 and a null:" +
        std::string(1, '\0') +
        "\n\n[HKEY_NOWHERE\\A]\n\"one\"=hex:32\n"
        "[HKEY_CURRENT_USER\\B\n\"one\"=hex:33\n[hkey_current_user\\C]\n\"one\"=hex:34";
    write(before);
    const Key a = create(L"A");
    EXPECT_EQ(get(a, L"one"), "1");
    EXPECT_EQ(get(a, L"broken"), "(none)");
    EXPECT_EQ(open(L"B").get(), nullptr) << "its key line is damaged";
    EXPECT_EQ(get(open(L"C"), L"one"), "4");
    ASSERT_TRUE(put(a, L"two", "2"));
    std::string after = before + "\n";
    after.insert(after.find("\n\n[HKEY_NOWHERE") + 1, "\"two\"=hex:32\n");
    EXPECT_EQ(text(), after);
}

TEST_F(RegistryFile, ChangedValueStaysInItsLineWithItsFirstSpelling)
{
    write("[HKEY_CURRENT_USER\\A]\n\"One\"=hex:31\n; between\n\"two\"=hex:32\n");
    ASSERT_TRUE(put(create(L"a"), L"ONE", "9"));
    EXPECT_EQ(text(), "[HKEY_CURRENT_USER\\A]\n\"One\"=hex:39\n; between\n\"two\"=hex:32\n");
}

TEST_F(RegistryFile, LaterLineForAValueCountsAndRemovingTakesBoth)
{
    write("[HKEY_CURRENT_USER\\A]\n\"v\"=hex:31\n[HKEY_CURRENT_USER\\B]\n[HKEY_CURRENT_USER\\a]\n\"V\"=hex:"
          "32\n");
    const Key a = create(L"A");
    EXPECT_EQ(get(a, L"v"), "2");
    ASSERT_TRUE(put(a, L"v", "3"));
    EXPECT_EQ(get(a, L"v"), "3");
    ASSERT_TRUE(registry::remove_value(a.get(), L"v"));
    EXPECT_EQ(text(), "[HKEY_CURRENT_USER\\A]\n[HKEY_CURRENT_USER\\B]\n[HKEY_CURRENT_USER\\a]\n");
}

TEST_F(RegistryFile, KeyNamedOnlyByAKeyBelowItTakesValues)
{
    write("[HKEY_CURRENT_USER\\A\\B]\n");
    ASSERT_TRUE(put(create(L"A"), L"v", "1"));
    EXPECT_EQ(text(), "[HKEY_CURRENT_USER\\A\\B]\n\n[HKEY_CURRENT_USER\\A]\n\"v\"=hex:31\n");
}

TEST_F(RegistryFile, RootTakesValuesToo)
{
    ASSERT_TRUE(registry::set(registry::root(registry::Root::current_user), L"v", 3, "1", 1));
    EXPECT_EQ(text(), heading + "\n[HKEY_CURRENT_USER]\n\"v\"=hex:31\n");
}

TEST_F(RegistryFile, HandWrittenFormsAreRead)
{
    write("\xEF\xBB\xBF  [HKEY_CURRENT_USER\\A b]  \r\n\t\"v\" = \"x\\u0041\\0\" \r\n\"n\"=dword:1F\n@ "
          "=hex(1):4A,0a\n");
    const Key key = open(L"a B");
    EXPECT_EQ(get(key, L"v"), std::string("x\0A\0\0\0\0\0", 8));
    EXPECT_EQ(get(key, L"n"), std::string("\x1f\0\0\0", 4));
    EXPECT_EQ(get(key, L""), "J\n");
}

TEST_F(RegistryFile, DamagedLinesAreNoValues)
{
    const char* lines[] = {"v=hex:31",
                           "\"v\"",
                           "\"v\"=",
                           "\"v\"=hex:3",
                           "\"v\"=hex:31,",
                           "\"v\"=hex:31 32",
                           "\"v\"=hex:,31",
                           "\"v\"=hex:3g",
                           "\"v\"=hex(:31",
                           "\"v\"=hex(3:31",
                           "\"v\"=hex(3)31",
                           "\"v\"=dword:",
                           "\"v\"=dword:1 2",
                           "\"v\"=\"x",
                           "\"v\"=\"x\" y",
                           "\"v\"=\"\\x\"",
                           "\"v\"=\"\\u12\"",
                           "\"v\"=\"\\",
                           "\"v\"=\"\xED\xA0\"",
                           "\"v\"=dword:123456789",
                           "\"v\"=-",
                           "\"v=hex:31",
                           "\"\\v\"=hex:31",
                           "\"v\" hex:31",
                           "\"v\"=hex(123456789):31"};
    for (const char* line : lines)
    {
        write(std::string("[HKEY_CURRENT_USER\\A]\n") + line + "\n");
        EXPECT_EQ(get(open(L"A"), L"v"), "(none)") << line;
    }
}

TEST_F(RegistryFile, DamagedKeyLinesNameNoKey)
{
    const char* lines[] = {"[HKEY_CURRENT_USER\\A\\]",
                           "[HKEY_CURRENT_USER\\\\A]",
                           "[HKCU\\A]",
                           "[]",
                           "[\\A]",
                           "[HKEY_CURRENT_USER\\A\x01]",
                           "[HKEY_CURRENT_USER\\A\xFF]",
                           "HKEY_CURRENT_USER\\A]"};
    for (const char* line : lines)
    {
        write(std::string(line) + "\n\"v\"=hex:31\n");
        EXPECT_EQ(open(L"A").get(), nullptr) << line;
        ASSERT_NE(create(L"A").get(), nullptr);
        EXPECT_EQ(get(open(L"A"), L"v"), "(none)") << line;
    }
}

TEST(RegistryText, AnyBytesStayAsTheyAreAndTakeAValueThatComesBack)
{
    const std::string pieces[] = {"[HKEY_CURRENT_USER\\A]",
                                  "[HKEY_USERS]",
                                  "[",
                                  "]",
                                  "\"",
                                  "\\",
                                  "=",
                                  "@",
                                  "v",
                                  "\n",
                                  "\r\n",
                                  "hex:",
                                  "hex(2):",
                                  "dword:",
                                  "00,",
                                  "ff",
                                  "\\u",
                                  "\xED\xA0",
                                  "\xC3\xA9",
                                  " ",
                                  ";",
                                  std::string(1, '\0')};
    std::mt19937 random(4711);
    for (int round = 0; round < 2000; ++round)
    {
        std::string bytes;
        for (unsigned n = random() % 40; n > 0; --n)
            bytes += pieces[random() % std::size(pieces)];
        registry::posix::Document document(bytes);
        const std::string whole = bytes.empty() || bytes.ends_with('\n') ? bytes : bytes + "\n";
        ASSERT_EQ(document.text(), whole);

        const std::wstring path = L"HKEY_CURRENT_USER\\A",
                           name(1 + random() % 3, static_cast<wchar_t>(random() % 0x10000));
        if (!document.has_key(path))
            document.add_key(path);
        std::string data(random() % 9, '\0');
        for (char& c : data)
            c = static_cast<char>(random() % 3 ? random() : 0);
        const std::uint32_t type = random() % 5;
        ASSERT_TRUE(document.set(path, name, {type, data}));
        const registry::posix::Document again(document.text());
        const registry::posix::Value* found = again.find(path, name);
        ASSERT_NE(found, nullptr) << whole;
        EXPECT_EQ(found->type, type);
        EXPECT_EQ(found->data, data);
        EXPECT_EQ(again.text(), document.text());
    }
}

TEST_F(RegistryFile, KeyNameThatTextCannotHoldIsRefused)
{
    EXPECT_EQ(create(L"a\nb").get(), nullptr);
    EXPECT_EQ(create(std::wstring{L'a', 0xD800}.c_str()).get(), nullptr);
    EXPECT_EQ(create(std::wstring{0xDC00, L'a'}.c_str()).get(), nullptr);
    EXPECT_NE(create(std::wstring{0xD83D, 0xDE00}.c_str()).get(), nullptr);
    EXPECT_NE(open(std::wstring{0xD83D, 0xDE00}.c_str()).get(), nullptr);
    EXPECT_NE(create(L"a]b[c").get(), nullptr);
    EXPECT_NE(open(L"A]B[C").get(), nullptr);
}

TEST_F(RegistryFile, TwoProgramsWritingAtOnceLoseNothing)
{
    constexpr int writes = 40;
    const auto writer = [&](wchar_t who) {
        for (int i = 0; i < writes; ++i)
        {
            const Key shared = create(L"Shared"), own = create((std::wstring(L"Own ") + who).c_str());
            const std::wstring name = who + std::to_wstring(i);
            if (!put(shared, name.c_str(), "1") || !put(own, L"last", std::to_string(i)))
                return 1;
        }
        return 0;
    };
    const pid_t first = start_child([&] { return writer(L'a'); });
    const pid_t second = start_child([&] { return writer(L'b'); });
    EXPECT_EQ(writer(L'c'), 0);
    EXPECT_EQ(join_child(first), 0);
    EXPECT_EQ(join_child(second), 0);
    const Key shared = open(L"Shared");
    int lost = 0;
    for (const wchar_t who : {L'a', L'b', L'c'})
    {
        for (int i = 0; i < writes; ++i)
            lost += get(shared, (who + std::to_wstring(i)).c_str()) != "1";
        EXPECT_EQ(get(open((std::wstring(L"Own ") + who).c_str()), L"last"), std::to_string(writes - 1));
    }
    EXPECT_EQ(lost, 0);
    EXPECT_EQ(folder.count(), 2) << "the registry and its lock";
}

TEST_F(RegistryFile, WriteOfAnotherProgramIsSeenAtOnce)
{
    const Key key = create(L"A");
    ASSERT_TRUE(put(key, L"v", "1"));
    EXPECT_EQ(in_child([&] { return put(create(L"A"), L"v", "2") ? 0 : 1; }), 0);
    EXPECT_EQ(get(key, L"v"), "2");
}

TEST_F(RegistryFile, EditInPlaceIsSeenAlsoWhenTheSizeStays)
{
    write("[HKEY_CURRENT_USER\\A]\n\"v\"=hex:31\n");
    const Key key = open(L"A");
    EXPECT_EQ(get(key, L"v"), "1");
    write("[HKEY_CURRENT_USER\\A]\n\"v\"=hex:32\n");
    const timespec later[2] = {{2000000000, 0}, {2000000000, 0}}; // the clock may not have ticked
    ::utimensat(AT_FDCWD, narrow(path).c_str(), later, 0);
    EXPECT_EQ(get(key, L"v"), "2");
    ASSERT_TRUE(file::remove(path.c_str()));
    EXPECT_EQ(get(key, L"v"), "(none)");
    EXPECT_FALSE(put(key, L"v", "3"));
}

TEST_F(RegistryFile, FullDiskLeavesTheOldFile)
{
    ASSERT_TRUE(put(create(L"A"), L"v", "old"));
    const std::string before = text();
    const int result = in_child([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{4096, 4096};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        return put(create(L"A"), L"v", std::string(10000, 'n')) ? 1 : 0;
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(text(), before);
    EXPECT_EQ(folder.count(), 2);
}

TEST_F(RegistryFile, FileThatCannotBeReadIsNeverWrittenOver)
{
    ::mkdir(narrow(path).c_str(), 0755); // a folder stands where the file should
    EXPECT_EQ(open(L"").get(), nullptr);
    EXPECT_EQ(create(L"A").get(), nullptr);
    EXPECT_FALSE(registry::set(registry::root(registry::Root::current_user), L"v", 3, "1", 1));
    EXPECT_FALSE(registry::remove_tree(registry::root(registry::Root::current_user), L"A"));
    struct stat info = {};
    ::stat(narrow(path).c_str(), &info);
    EXPECT_TRUE(S_ISDIR(info.st_mode));
}

TEST_F(RegistryFile, ReadOnlyFolderRefusesWritesAndStillReads)
{
    write("[HKEY_CURRENT_USER\\A]\n\"v\"=hex:31\n");
    ::chmod(narrow(path).c_str(), 0444);
    ::chmod(narrow(folder.path()).c_str(), 0555);
    const int result = in_child([&] {
        if (::geteuid() == 0 && ::setuid(65534) != 0)
            return 99;
        const Key key = create(L"A");
        return (get(key, L"v") != "1") * 1 + put(key, L"v", "2") * 2 + (create(L"B") != nullptr) * 4;
    });
    ::chmod(narrow(folder.path()).c_str(), 0755);
    EXPECT_EQ(result, 0) << "1 not read, 2 value written, 4 key created";
}

TEST_F(RegistryFile, PlaceComesFromTheEnvironmentAndFoldersAreMade)
{
    const std::string base = narrow(folder.path());
    const auto wrote_to = [&](const char* named, const char* config, const char* home,
                              const std::string& file) {
        return in_child([&] {
            named ? ::setenv("TARVO_REGISTRY", named, 1) : ::unsetenv("TARVO_REGISTRY");
            config ? ::setenv("XDG_CONFIG_HOME", config, 1) : ::unsetenv("XDG_CONFIG_HOME");
            home ? ::setenv("HOME", home, 1) : ::unsetenv("HOME");
            return (create(L"A") != nullptr) * 1 + (!file.empty() && ::access(file.c_str(), F_OK) == 0) * 2;
        });
    };
    const std::string home = base + "/home", config = base + "/config", named = base + "/x/y/named";
    EXPECT_EQ(wrote_to(nullptr, nullptr, home.c_str(), home + "/.config/tarvo/registry"), 3);
    EXPECT_EQ(wrote_to("", config.c_str(), home.c_str(), config + "/tarvo/registry"), 3);
    EXPECT_EQ(wrote_to(named.c_str(), config.c_str(), home.c_str(), named), 3);
    const std::string second = base + "/second";
    EXPECT_EQ(wrote_to(nullptr, "relative", second.c_str(), second + "/.config/tarvo/registry"), 3);
    EXPECT_EQ(wrote_to(nullptr, nullptr, nullptr, ""), 0) << "nowhere to keep it";
}
