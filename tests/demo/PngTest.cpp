#include "demo/host/Png.h"
#include "demo/host/Deflate.h"

#include <gtest/gtest.h>
#include <wincodec.h>
#include <windows.h>

#include <cstring>
#include <functional>
#include <memory>

namespace
{
struct Release
{
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class T>
using unique_com = std::unique_ptr<T, Release>;

/// The system's own decoder is the judge: ours would repeat a misunderstanding of the format.
Picture decode_with_system(std::vector<unsigned char> png)
{
    Picture picture;
    CoInitialize(nullptr);
    {
        void* raw = nullptr;
        EXPECT_EQ(S_OK, CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                         IID_IWICImagingFactory, &raw));
        const unique_com<IWICImagingFactory> factory(static_cast<IWICImagingFactory*>(raw));
        IWICStream* stream = nullptr;
        EXPECT_EQ(S_OK, factory->CreateStream(&stream));
        const unique_com<IWICStream> ownedStream(stream);
        EXPECT_EQ(S_OK, stream->InitializeFromMemory(png.data(), static_cast<DWORD>(png.size())));
        IWICBitmapDecoder* decoder = nullptr;
        EXPECT_EQ(S_OK,
                  factory->CreateDecoderFromStream(stream, nullptr, WICDecodeMetadataCacheOnLoad, &decoder));
        const unique_com<IWICBitmapDecoder> ownedDecoder(decoder);
        IWICBitmapFrameDecode* frame = nullptr;
        EXPECT_EQ(S_OK, decoder->GetFrame(0, &frame));
        const unique_com<IWICBitmapFrameDecode> ownedFrame(frame);
        IWICFormatConverter* converter = nullptr;
        EXPECT_EQ(S_OK, factory->CreateFormatConverter(&converter));
        const unique_com<IWICFormatConverter> ownedConverter(converter);
        EXPECT_EQ(S_OK, converter->Initialize(frame, GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                              nullptr, 0, WICBitmapPaletteTypeCustom));
        UINT width = 0;
        UINT height = 0;
        EXPECT_EQ(S_OK, converter->GetSize(&width, &height));
        picture = Picture(static_cast<int>(width), static_cast<int>(height), 0);
        EXPECT_EQ(S_OK, converter->CopyPixels(nullptr, width * 4, width * height * 4,
                                              reinterpret_cast<BYTE*>(picture.pixels.data())));
        for (std::uint32_t& pixel : picture.pixels)
            pixel &= 0xFFFFFF;
    }
    CoUninitialize();
    return picture;
}

Picture painted(int width, int height, const std::function<std::uint32_t(int, int)>& colour)
{
    Picture picture(width, height, 0);
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
            picture.At(x, y) = colour(x, y);
    }
    return picture;
}

unsigned char colour_type(const std::vector<unsigned char>& png) { return png.at(25); }
} // namespace

TEST(Png, PictureOfManyColoursComesBackFromTheSystemsDecoderPixelByPixel)
{
    const Picture picture = painted(311, 97, [](int x, int y) {
        return static_cast<std::uint32_t>((x * 7919 + y * 104729 + x * y * 31) & 0xFFFFFF);
    });
    const auto png = encode_png(picture);
    EXPECT_EQ(2, colour_type(png));
    const Picture decoded = decode_with_system(png);
    EXPECT_EQ(picture.width, decoded.width);
    EXPECT_TRUE(picture.pixels == decoded.pixels);
}

TEST(Png, PictureOf256ColoursIsStoredWithAPaletteAndOf257Without)
{
    for (const int colours : {1, 2, 256, 257})
    {
        const Picture picture = painted(400, 300, [colours](int x, int y) {
            return static_cast<std::uint32_t>((x + y * 3) % colours * 0x0F0F);
        });
        const auto png = encode_png(picture);
        EXPECT_EQ(colours <= 256 ? 3 : 2, colour_type(png)) << colours;
        EXPECT_TRUE(picture.pixels == decode_with_system(png).pixels) << colours;
    }
}

TEST(Png, FlatPictureTakesAFewKilobytes)
{
    EXPECT_LT(encode_png(Picture(1024, 768, 0xF0F0F0)).size(), 8192u);
}

TEST(Png, FarRepeatsWithinAndBeyondTheWindowComeBack)
{
    // Rows of noise repeated after 20,000 bytes (inside the window) and after 40,000 (outside).
    for (const int rows : {20, 40})
    {
        const Picture picture = painted(1000, rows * 3, [rows](int x, int y) {
            return static_cast<std::uint32_t>((x * 2654435761u + (y % rows) * 40503u) >> 13 & 0x7F);
        });
        EXPECT_TRUE(picture.pixels == decode_with_system(encode_png(picture)).pixels) << rows;
    }
}

TEST(Deflate, NothingIsAnEmptyStreamWithItsCheckNumber)
{
    const std::vector<unsigned char> expected{0x78, 0x01, 0x03, 0x00, 0x00, 0x00, 0x00, 0x01};
    EXPECT_EQ(expected, deflate_zlib({}));
}
