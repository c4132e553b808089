#include <benchmark/benchmark.h>

#include <cstdio>

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::RunSpecifiedBenchmarks() == 0)
    {
        std::fputs("no benchmark matches\n", stderr);
        return 1;
    }
    benchmark::Shutdown();
    return 0;
}
