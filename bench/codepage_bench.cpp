#include "bench/support/data.h"
#include "platform/codepage.h"

#include <benchmark/benchmark.h>

#include <iconv.h>
#include <unicode/ucnv.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace codepage = platform::codepage;

namespace
{
/// 5 MiB of text of one page, and room for what it becomes.
struct Text
{
    int page;
    const char* iconv_name;
    const char* icu_name;
    std::string bytes;
    std::wstring wide;
    std::u16string units;
    std::vector<char16_t> room_of_units;
    std::vector<char> room_of_bytes;

    Text(int p, const char* iconv_page, const char* icu_page, const char* file)
        : page(p), iconv_name(iconv_page), icu_name(icu_page), bytes(bench::data_bytes(file)),
          wide(codepage::decode(p, bytes).value()), units(wide.begin(), wide.end()),
          room_of_units(bytes.size()), room_of_bytes(codepage::encoded_bound(units.size()))
    {
    }
};

Text& text_of(int page)
{
    static Text texts[] = {{949, "CP949", "windows-949", "text.cp949"},
                           {932, "CP932", "windows-31j", "text.cp932"},
                           {936, "CP936", "windows-936", "text.cp936"},
                           {1251, "CP1251", "windows-1251", "text.cp1251"},
                           {65001, "UTF-8", "UTF-8", "lang.utf8.ini"}};
    for (Text& text : texts)
        if (text.page == page)
            return text;
    std::abort();
}

/// Runs \p convert, which gives the number of things it wrote, and ends the program when that is not
/// \p expected: a conversion that stops early looks fast.
template <class Convert>
void measure(benchmark::State& state, const Text& text, std::size_t expected, Convert convert)
{
    for (auto _ : state)
        if (const std::size_t size = convert(); size != expected)
        {
            state.SkipWithError("wrong size");
            break;
        }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.bytes.size()));
}

void decode(benchmark::State& state, int page)
{
    Text& text = text_of(page);
    measure(state, text, text.units.size(),
            [&] { return codepage::decode(page, text.bytes, text.room_of_units.data()).value(); });
}

void decode_string(benchmark::State& state, int page)
{
    const Text& text = text_of(page);
    measure(state, text, text.units.size(),
            [&] { return codepage::decode(page, text.bytes).value().size(); });
}

void encode(benchmark::State& state, int page)
{
    Text& text = text_of(page);
    measure(state, text, text.bytes.size(),
            [&] { return codepage::encode(page, text.units, text.room_of_bytes.data()).value(); });
}

void encode_string(benchmark::State& state, int page)
{
    const Text& text = text_of(page);
    measure(state, text, text.bytes.size(), [&] { return codepage::encode(page, text.wide).value().size(); });
}

struct close_iconv
{
    void operator()(void* converter) const { iconv_close(converter); }
};
using iconv_handle = std::unique_ptr<void, close_iconv>;

/// The bytes written.
std::size_t run_iconv(const iconv_handle& converter, const void* in, std::size_t size, void* out,
                      std::size_t room)
{
    auto* from = static_cast<char*>(const_cast<void*>(in));
    auto* to = static_cast<char*>(out);
    if (iconv(converter.get(), &from, &size, &to, &room) == static_cast<std::size_t>(-1))
        std::abort();
    return static_cast<std::size_t>(to - static_cast<char*>(out));
}

void iconv_decode(benchmark::State& state, int page)
{
    Text& text = text_of(page);
    const iconv_handle converter(iconv_open("UTF-16LE", text.iconv_name));
    measure(state, text, 2 * text.units.size(), [&] {
        return run_iconv(converter, text.bytes.data(), text.bytes.size(), text.room_of_units.data(),
                         2 * text.room_of_units.size());
    });
}

void iconv_encode(benchmark::State& state, int page)
{
    Text& text = text_of(page);
    const iconv_handle converter(iconv_open(text.iconv_name, "UTF-16LE"));
    measure(state, text, text.bytes.size(), [&] {
        return run_iconv(converter, text.units.data(), 2 * text.units.size(), text.room_of_bytes.data(),
                         text.room_of_bytes.size());
    });
}

struct close_icu
{
    void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using icu_handle = std::unique_ptr<UConverter, close_icu>;

icu_handle open_icu(const Text& text)
{
    UErrorCode error = U_ZERO_ERROR;
    icu_handle converter(ucnv_open(text.icu_name, &error));
    if (U_FAILURE(error))
        std::abort();
    return converter;
}

void icu_decode(benchmark::State& state, int page)
{
    Text& text = text_of(page);
    const icu_handle converter = open_icu(text);
    measure(state, text, text.units.size(), [&] {
        UErrorCode error = U_ZERO_ERROR;
        return static_cast<std::size_t>(ucnv_toUChars(
            converter.get(), text.room_of_units.data(), static_cast<std::int32_t>(text.room_of_units.size()),
            text.bytes.data(), static_cast<std::int32_t>(text.bytes.size()), &error));
    });
}

void icu_encode(benchmark::State& state, int page)
{
    Text& text = text_of(page);
    const icu_handle converter = open_icu(text);
    measure(state, text, text.bytes.size(), [&] {
        UErrorCode error = U_ZERO_ERROR;
        return static_cast<std::size_t>(ucnv_fromUChars(
            converter.get(), text.room_of_bytes.data(), static_cast<std::int32_t>(text.room_of_bytes.size()),
            text.units.data(), static_cast<std::int32_t>(text.units.size()), &error));
    });
}

/// How fast the bytes can be moved at all.
void copy(benchmark::State& state, int page)
{
    Text& text = text_of(page);
    measure(state, text, text.bytes.size(), [&] {
        std::memcpy(text.room_of_bytes.data(), text.bytes.data(), text.bytes.size());
        benchmark::ClobberMemory();
        return text.bytes.size();
    });
}

#define OF_EACH_PAGE(name)                                                                                   \
    BENCHMARK_CAPTURE(name, 949, 949);                                                                       \
    BENCHMARK_CAPTURE(name, 932, 932);                                                                       \
    BENCHMARK_CAPTURE(name, 936, 936);                                                                       \
    BENCHMARK_CAPTURE(name, 1251, 1251);                                                                     \
    BENCHMARK_CAPTURE(name, utf8, 65001)

OF_EACH_PAGE(decode);
OF_EACH_PAGE(decode_string);
OF_EACH_PAGE(iconv_decode);
OF_EACH_PAGE(icu_decode);
OF_EACH_PAGE(encode);
OF_EACH_PAGE(encode_string);
OF_EACH_PAGE(iconv_encode);
OF_EACH_PAGE(icu_encode);
OF_EACH_PAGE(copy);
} // namespace
