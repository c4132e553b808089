#pragma once
#include <cstdint>
#include <filesystem>
#include <vector>

/// A picture, rows from the top, pixels 0x00RRGGBB.
struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    Picture() = default;
    Picture(int nWidth, int nHeight, std::uint32_t colour)
        : width(nWidth), height(nHeight), pixels(static_cast<std::size_t>(nWidth) * nHeight, colour)
    {
    }
    std::uint32_t& At(int x, int y) { return pixels[static_cast<std::size_t>(y) * width + x]; }
    std::uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }
};

/// The picture as a PNG file: 8-bit palette when it has at most 256 colours, else 24-bit colour. Lossless.
std::vector<unsigned char> encode_png(const Picture& picture);

/// Writes the whole file; false when it could not be created or written.
bool write_bytes(const std::filesystem::path& path, const std::vector<unsigned char>& bytes);
