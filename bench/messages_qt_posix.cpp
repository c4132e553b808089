// What the catalogue is measured against natively: Qt's translators over the same messages.
#include "bench/messages_inputs.h"
#include "bench/support/data.h"

#include <benchmark/benchmark.h>

#include <QString>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace
{
std::unique_ptr<QTranslator> load(const std::string& name)
{
    auto translator = std::make_unique<QTranslator>();
    const std::string path = bench::data_path(("messages/" + name + ".qm").c_str());
    if (!translator->load(QString::fromStdString(path)))
    {
        std::fputs("Qt does not load the generated messages\n", stderr);
        std::exit(1);
    }
    return translator;
}

void ask_qt(benchmark::State& state, const std::vector<std::string>& names)
{
    for (auto _ : state)
    {
        std::vector<std::unique_ptr<QTranslator>> translators;
        for (const std::string& name : names)
            translators.push_back(load(name));
        const auto& keys = bench::message_keys();
        for (std::size_t i = 0; i < keys.size(); ++i)
        {
            QString text;
            for (const auto& translator : translators)
                if (text = translator->translate("c", keys[i]); !text.isNull())
                    break;
            if (text.isNull())
                state.SkipWithError("Qt does not answer the generated messages");
        }
    }
}

void qt_load_and_ask_all(benchmark::State& state) { ask_qt(state, {"all"}); }

void qt_17_load_and_ask_all(benchmark::State& state)
{
    std::vector<std::string> names;
    for (int number = 0; number < bench::modules; ++number)
        names.push_back(bench::module_name(number));
    ask_qt(state, names);
}

BENCHMARK(qt_load_and_ask_all);
BENCHMARK(qt_17_load_and_ask_all);
} // namespace
