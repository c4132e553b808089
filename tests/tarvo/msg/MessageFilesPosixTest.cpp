// Message files that the system does not give, and one that changes while it is read.
#include "platform/file.h"
#include "tests/support/Child.h"
#include "tests/support/TempFolder.h"
#include "tests/tarvo/msg/Dump.h"

#include <gtest/gtest.h>

#include <atomic>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace
{
void write(const std::wstring& path, const std::string& bytes)
{
    ASSERT_EQ(platform::file::write_whole(path.c_str(), bytes), platform::file::Written::ok);
}
} // namespace

TEST(MessageFiles, ALanguageFolderWithoutRightsIsPassedOver)
{
    const TempFolder folder;
    const std::string open = narrow(folder / L"open"), closed = narrow(folder / L"closed");
    ASSERT_EQ(::mkdir(open.c_str(), 0755) + ::mkdir(closed.c_str(), 0755), 0);
    ASSERT_EQ(::chmod(narrow(folder.path()).c_str(), 0755), 0);
    write(folder / L"open/M.ini", "B=\"2\"\n");
    write(folder / L"closed/M.ini", "A=\"1\"\n");
    write(folder / L"closed/Font.ini", "FONT=F\n");
    ASSERT_EQ(::chmod(closed.c_str(), 0), 0);
    // The administrator may read everything: somebody else looks.
    const int result = in_child([&] {
        if (::geteuid() == 0 && ::setuid(65534) != 0)
            return 2;
        CPrimary reader;
        reader.set_fontpath((folder / L"closed/Font.ini").c_str());
        reader.add_path((folder / L"closed/M.ini").c_str());
        reader.add_path((folder / L"open/M.ini").c_str());
        return reader.load() && dump(reader.store()) == L"B=2;" && reader.get_font().IsEmpty() ? 0 : 1;
    });
    ::chmod(closed.c_str(), 0755);
    EXPECT_EQ(result, 0);
}

TEST(MessageFiles, ADeviceAndAPipeAreNoMessageFiles)
{
    const TempFolder folder;
    ASSERT_EQ(::mkfifo(narrow(folder / L"pipe").c_str(), 0600), 0);
    CPrimary reader;
    reader.add_path(L"/dev/zero");
    reader.add_path((folder / L"pipe").c_str());
    EXPECT_TRUE(reader.load());
    EXPECT_EQ(dump(reader.store()), L"");
}

TEST(MessageFiles, AFileThatGrowsWhileItIsReadGivesWhatItHeldAtSomeMoment)
{
    const TempFolder folder;
    const std::wstring path = folder / L"M.ini";
    std::string first;
    for (int i = 0; i < 20000; ++i)
        first += "KEY" + std::to_string(i) + "=\"text\"\n";
    write(path, first);
    std::atomic<bool> stop = false;
    std::thread writer([&] {
        const int file = ::open(narrow(path).c_str(), O_WRONLY | O_APPEND);
        for (int i = 0; !stop && i < 200000; ++i)
        {
            const std::string line = "MORE" + std::to_string(i) + "=\"text\"\n";
            if (::write(file, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
                break;
        }
        ::close(file);
    });
    std::size_t before = 20000;
    for (int round = 0; round < 10; ++round)
    {
        CPrimary reader;
        reader.add_path(path.c_str());
        reader.load();
        const std::size_t count = reader.store().GetCount();
        EXPECT_GE(count, before) << "what was there stays";
        EXPECT_EQ(reader.get_value(L"KEY19999"), L"text");
        // The last line may have been on its way; the one before it was there.
        if (count > 20001)
        {
            EXPECT_EQ(reader.get_value((L"MORE" + std::to_wstring(count - 20002)).c_str()), L"text");
        }
        before = count;
    }
    stop = true;
    writer.join();
}
