#include "platform/file.h"

#include "tests/support/Child.h"
#include "tests/support/TempFolder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

namespace file = platform::file;
using file::Written;

namespace
{
/// Runs \p body as a user who owns nothing: root would be let through everywhere. Children cannot
/// report to the test, so the body answers a number.
template <class Body>
int as_nobody(Body body)
{
    return in_child([&] {
        if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0))
            return 99;
        return static_cast<int>(body());
    });
}

/// Runs \p body where no file may grow beyond \p most bytes, which is how a full disk looks.
template <class Body>
int with_file_limit(rlim_t most, Body body)
{
    return in_child([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{most, most};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return 99;
        return static_cast<int>(body());
    });
}

mode_t mode_of(const std::wstring& path)
{
    struct stat info = {};
    ::stat(narrow(path).c_str(), &info);
    return info.st_mode & 07777;
}
} // namespace

TEST(FilePosix, FullDiskIsReportedAndNeverAsSuccess)
{
    EXPECT_EQ(file::write_whole(L"/dev/full", "x"), Written::not_written);
    EXPECT_EQ(file::replace_whole(L"/dev/full", "x"), Written::not_written);
    const file::stream stream = file::open(L"/dev/full", "wb");
    ASSERT_NE(stream, nullptr);
    std::fputs("x", stream.get());
    EXPECT_NE(std::fflush(stream.get()), 0);
}

TEST(FilePosix, ReplacingOnAFullDiskLeavesTheOldFileAndNothingBeside)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a";
    ASSERT_EQ(file::write_whole(path.c_str(), "old"), Written::ok);
    const auto replace = [&] { return file::replace_whole(path.c_str(), std::string(100000, 'n')); };
    EXPECT_EQ(with_file_limit(4096, replace), static_cast<int>(Written::not_written));
    EXPECT_EQ(file::read_whole(path.c_str(), 100), "old");
    EXPECT_EQ(folder.count(), 1);
}

TEST(FilePosix, FileThatTheUserMayNotWriteIsRefusedAndKept)
{
    const TempFolder folder;
    ::chmod(narrow(folder.path()).c_str(), 0777);
    const std::wstring path = folder / L"a";
    ASSERT_EQ(file::write_whole(path.c_str(), "old"), Written::ok);
    ::chmod(narrow(path).c_str(), 0444);
    const int refused = static_cast<int>(Written::not_opened);
    EXPECT_EQ(as_nobody([&] { return file::write_whole(path.c_str(), "new"); }), refused);
    EXPECT_EQ(as_nobody([&] { return file::replace_whole(path.c_str(), "new"); }), refused);
    EXPECT_EQ(as_nobody([&] { return file::open(path.c_str(), "r+b") == nullptr; }), 1);
    EXPECT_EQ(file::read_whole(path.c_str(), 100), "old");
    EXPECT_EQ(folder.count(), 1);
}

TEST(FilePosix, FolderThatTheUserMayNotWriteRefusesNewAndReplacedFiles)
{
    const TempFolder folder;
    ::chmod(narrow(folder.path()).c_str(), 0555);
    const std::wstring path = folder / L"a";
    const int refused = static_cast<int>(Written::not_opened);
    EXPECT_EQ(as_nobody([&] { return file::write_whole(path.c_str(), "new"); }), refused);
    EXPECT_EQ(as_nobody([&] { return file::replace_whole(path.c_str(), "new"); }), refused);
    EXPECT_EQ(folder.count(), 0);
    ::chmod(narrow(folder.path()).c_str(), 0755);
}

TEST(FilePosix, FileThatTheUserMayNotReadGivesNothing)
{
    const TempFolder folder;
    ::chmod(narrow(folder.path()).c_str(), 0777);
    const std::wstring path = folder / L"a";
    ASSERT_EQ(file::write_whole(path.c_str(), "old"), Written::ok);
    ::chmod(narrow(path).c_str(), 0);
    EXPECT_EQ(as_nobody([&] { return !file::read_whole(path.c_str(), 100); }), 1);
}

TEST(FilePosix, ReplacingKeepsThePermissionsOfTheOldFileAndObeysTheMaskForANewOne)
{
    const TempFolder folder;
    const std::wstring old = folder / L"old", fresh = folder / L"new";
    ASSERT_EQ(file::write_whole(old.c_str(), "x"), Written::ok);
    ::chmod(narrow(old).c_str(), 0640);
    EXPECT_EQ(file::replace_whole(old.c_str(), "y"), Written::ok);
    EXPECT_EQ(mode_of(old), 0640u);
    const auto made_with_mask = [&] {
        ::umask(027);
        return file::replace_whole(fresh.c_str(), "y");
    };
    EXPECT_EQ(in_child([&] { return static_cast<int>(made_with_mask()); }), 0);
    EXPECT_EQ(mode_of(fresh), 0640u);
}

TEST(FilePosix, RootReplacingAnotherUsersFileLeavesItTheirs)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root may give files away";
    const TempFolder folder;
    const std::wstring path = folder / L"a";
    ASSERT_EQ(file::write_whole(path.c_str(), "x"), Written::ok);
    ASSERT_EQ(::chown(narrow(path).c_str(), 65534, 65534), 0);
    EXPECT_EQ(file::replace_whole(path.c_str(), "y"), Written::ok);
    struct stat info = {};
    ::stat(narrow(path).c_str(), &info);
    EXPECT_EQ(info.st_uid, 65534u);
}

TEST(FilePosix, ReplacingASymbolicLinkReplacesItsTarget)
{
    const TempFolder folder;
    const std::wstring path = folder / L"target", link = folder / L"link", loose = folder / L"loose";
    ASSERT_EQ(file::write_whole(path.c_str(), "x"), Written::ok);
    ASSERT_EQ(::symlink("target", narrow(link).c_str()), 0);
    EXPECT_EQ(file::replace_whole(link.c_str(), "y"), Written::ok);
    EXPECT_EQ(file::read_whole(path.c_str(), 9), "y");

    ASSERT_EQ(::symlink("later", narrow(loose).c_str()), 0);
    EXPECT_EQ(file::replace_whole(loose.c_str(), "z"), Written::ok);
    EXPECT_EQ(file::read_whole((folder / L"later").c_str(), 9), "z");
    for (const std::wstring& kept : {link, loose})
    {
        struct stat info = {};
        ::lstat(narrow(kept).c_str(), &info);
        EXPECT_TRUE(S_ISLNK(info.st_mode));
    }
}

TEST(FilePosix, PipesAndDevicesAreNotReadAndNeverWaitedFor)
{
    const TempFolder folder;
    const std::wstring pipe = folder / L"pipe";
    ASSERT_EQ(::mkfifo(narrow(pipe).c_str(), 0600), 0);
    EXPECT_EQ(file::read_whole(pipe.c_str(), 100), std::nullopt);
    EXPECT_EQ(file::read_whole(L"/dev/zero", 100), std::nullopt);
}

TEST(FilePosix, ReaderSeesTheOldOrTheNewFileWhileItIsReplaced)
{
    const TempFolder folder;
    const std::wstring path = folder / L"a";
    const std::string one(20000, '1'), two(30000, '2');
    ASSERT_EQ(file::replace_whole(path.c_str(), one), Written::ok);
    std::thread writer([&] {
        for (int i = 0; i < 50; ++i)
            file::replace_whole(path.c_str(), i % 2 ? one : two);
    });
    int torn = 0;
    for (int i = 0; i < 500; ++i)
    {
        const auto seen = file::read_whole(path.c_str(), 100000);
        torn += seen != one && seen != two;
    }
    writer.join();
    EXPECT_EQ(torn, 0);
}
