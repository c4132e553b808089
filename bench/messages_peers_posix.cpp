// What the catalogue is measured against natively: gettext, Boost.Locale and ICU over the same messages.
#include "bench/messages_inputs.h"
#include "bench/support/data.h"

#include <benchmark/benchmark.h>
#include <boost/locale.hpp>
#include <libintl.h>
#include <unicode/ures.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <locale>
#include <memory>

namespace
{
[[noreturn]] void give_up(const char* what)
{
    std::fprintf(stderr, "%s does not answer the generated messages\n", what);
    std::exit(1);
}

std::string folder()
{
    const std::string file = bench::data_path("messages/ko.txt");
    return file.substr(0, file.rfind('/'));
}

// ---- gettext

/// gettext keeps a catalogue for the life of the process and knows it by its path: "/./." in it makes a new
/// one.
void bind_anew(const std::vector<std::string>& domains)
{
    static std::string path = (std::setlocale(LC_ALL, "C.UTF-8"), ::setenv("LANGUAGE", "ko", 1), folder());
    path += "/.";
    if (path.size() > 3000)
        path = folder() + "//"; // far from the first ones
    for (const std::string& domain : domains)
        ::bindtextdomain(domain.c_str(), path.c_str());
}

const char* find_text(const std::vector<std::string>& domains, const char* key)
{
    for (const std::string& domain : domains)
        if (const char* const text = ::dgettext(domain.c_str(), key); text != key)
            return text;
    return nullptr;
}

const std::vector<std::string>& one_domain()
{
    static const std::vector<std::string> domains = {"all"};
    return domains;
}

const std::vector<std::string>& many_domains()
{
    static const auto domains = [] {
        std::vector<std::string> names;
        for (int number = 0; number < bench::modules; ++number)
            names.push_back(bench::module_name(number));
        return names;
    }();
    return domains;
}

void ask_gettext(benchmark::State& state, const std::vector<std::string>& domains)
{
    for (auto _ : state)
    {
        bind_anew(domains);
        const auto& keys = bench::message_keys();
        for (std::size_t i = 0; i < keys.size(); ++i)
            if (find_text(domains, keys[i]) == nullptr)
                give_up("gettext");
    }
}

void gettext_load_and_ask_all(benchmark::State& state) { ask_gettext(state, one_domain()); }
void gettext_17_load_and_ask_all(benchmark::State& state) { ask_gettext(state, many_domains()); }

void gettext_look_up(benchmark::State& state)
{
    bind_anew(one_domain());
    const auto& keys = bench::message_keys();
    for (std::size_t i = 0; i < keys.size(); ++i)
        find_text(one_domain(), keys[i]);
    std::size_t at = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(::dgettext("all", keys[at]));
        at = at + 1 == keys.size() ? 0 : at + 1;
    }
}

// ---- Boost.Locale

void boost_load_and_ask_all(benchmark::State& state)
{
    for (auto _ : state)
    {
        boost::locale::generator generate;
        generate.categories(boost::locale::message_facet);
        generate.add_messages_path(folder());
        generate.add_messages_domain("all");
        const std::locale locale = generate("ko_KR.UTF-8");
        const auto& keys = bench::message_keys();
        for (std::size_t i = 0; i < keys.size(); ++i)
            if (boost::locale::gettext(keys[i], locale) == keys[i])
                give_up("Boost.Locale");
    }
}

// ---- ICU

void icu_load_and_ask_all(benchmark::State& state)
{
    struct Close
    {
        void operator()(UResourceBundle* bundle) const { ures_close(bundle); }
    };
    for (auto _ : state)
    {
        UErrorCode status = U_ZERO_ERROR;
        const std::unique_ptr<UResourceBundle, Close> bundle(
            ures_openDirect(folder().c_str(), "ko", &status));
        const auto& keys = bench::message_keys();
        for (std::size_t i = 0; i < keys.size(); ++i)
        {
            int32_t length = 0;
            benchmark::DoNotOptimize(ures_getStringByKey(bundle.get(), keys[i], &length, &status));
        }
        if (U_FAILURE(status))
            give_up("ICU");
    }
}

BENCHMARK(gettext_load_and_ask_all);
BENCHMARK(gettext_17_load_and_ask_all);
BENCHMARK(gettext_look_up);
BENCHMARK(boost_load_and_ask_all);
BENCHMARK(icu_load_and_ask_all);
} // namespace
