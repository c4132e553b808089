#include "demo/host/Png.h"

#include "demo/host/Deflate.h"

#include <array>
#include <fstream>
#include <map>
#include <optional>
#include <string_view>

namespace
{
using Bytes = std::vector<unsigned char>;

void append_number(Bytes& out, std::uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(static_cast<unsigned char>(value >> shift));
}

constexpr std::array<std::uint32_t, 256> make_crc_table()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t n = 0; n < 256; ++n)
    {
        std::uint32_t c = n;
        for (int k = 0; k < 8; ++k)
            c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
        table[n] = c;
    }
    return table;
}

void append_chunk(Bytes& out, std::string_view type, const Bytes& data)
{
    static constexpr auto table = make_crc_table();
    append_number(out, static_cast<std::uint32_t>(data.size()));
    const std::size_t covered = out.size();
    out.insert(out.end(), type.begin(), type.end());
    out.insert(out.end(), data.begin(), data.end());
    std::uint32_t crc = 0xFFFFFFFFu;
    for (std::size_t i = covered; i < out.size(); ++i)
        crc = table[(crc ^ out[i]) & 0xFF] ^ (crc >> 8);
    append_number(out, crc ^ 0xFFFFFFFFu);
}

using Palette = std::map<std::uint32_t, unsigned char>; // colour to index

std::optional<Palette> find_palette(const Picture& picture)
{
    Palette palette;
    for (const std::uint32_t pixel : picture.pixels)
    {
        if (palette.size() == 256 && !palette.contains(pixel))
            return std::nullopt;
        palette.try_emplace(pixel, static_cast<unsigned char>(palette.size()));
    }
    return palette;
}

void append_colour(Bytes& out, std::uint32_t pixel)
{
    out.push_back(static_cast<unsigned char>(pixel >> 16));
    out.push_back(static_cast<unsigned char>(pixel >> 8));
    out.push_back(static_cast<unsigned char>(pixel));
}

Bytes scan_lines(const Picture& picture, const std::optional<Palette>& palette)
{
    Bytes lines;
    for (int y = 0; y < picture.height; ++y)
    {
        lines.push_back(0); // no filter
        for (int x = 0; x < picture.width; ++x)
        {
            if (palette)
                lines.push_back(palette->at(picture.At(x, y)));
            else
                append_colour(lines, picture.At(x, y));
        }
    }
    return lines;
}
} // namespace

std::vector<unsigned char> encode_png(const Picture& picture)
{
    const std::optional<Palette> palette = find_palette(picture);
    Bytes header;
    append_number(header, static_cast<std::uint32_t>(picture.width));
    append_number(header, static_cast<std::uint32_t>(picture.height));
    const unsigned char colourType = palette ? 3 : 2;
    header.insert(header.end(), {8, colourType, 0, 0, 0});

    Bytes out{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    append_chunk(out, "IHDR", header);
    if (palette)
    {
        Bytes colours(palette->size() * 3);
        for (const auto& [pixel, index] : *palette)
        {
            colours[index * 3u] = static_cast<unsigned char>(pixel >> 16);
            colours[index * 3u + 1] = static_cast<unsigned char>(pixel >> 8);
            colours[index * 3u + 2] = static_cast<unsigned char>(pixel);
        }
        append_chunk(out, "PLTE", colours);
    }
    append_chunk(out, "IDAT", deflate_zlib(scan_lines(picture, palette)));
    append_chunk(out, "IEND", {});
    return out;
}

bool write_bytes(const std::filesystem::path& path, const std::vector<unsigned char>& bytes)
{
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return !file.fail();
}
