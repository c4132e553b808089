// Runs a fuzz target over files instead of searching: `fuzz_NAME FOLDER`. Every file is given whole and
// cut short, each time in a block of exactly its size, so that a read past the end meets the sanitizer.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace
{
constexpr std::size_t kCutEvery = 256; // beyond this many bytes only some lengths are tried

void run(const std::vector<char>& bytes, std::size_t size)
{
    const auto exact = std::make_unique<std::uint8_t[]>(size);
    if (size != 0)
        std::memcpy(exact.get(), bytes.data(), size);
    LLVMFuzzerTestOneInput(exact.get(), size);
}

void replay(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    run(bytes, bytes.size());
    const std::size_t step = bytes.size() / kCutEvery + 1;
    for (std::size_t size = 0; size < bytes.size(); size += step)
        run(bytes, size);
}
} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1]))
    {
        if (!entry.is_regular_file())
            continue;
        // Named before it runs: a broken property ends the program.
        std::printf("%s\n", entry.path().filename().string().c_str());
        std::fflush(stdout);
        replay(entry.path());
        ++files;
    }
    std::printf("%d files replayed\n", files);
    return files > 0 ? 0 : 1;
}
