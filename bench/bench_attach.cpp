/** @file
 * Loading the library, with the system's two libraries that it stands on already loaded, against loading those two.
 */

#include "Runner.h"

#include <common/Owner.h>

#include <windows.h>

#include <array>

namespace
{

constexpr std::array<LPCWSTR, 2> kSystem = {L"gdiplus.dll", L"comctl32.dll"};

using Modules = std::array<own::Module, kSystem.size()>;

Modules LoadSystem()
{
    Modules modules;
    for (size_t i = 0; i < kSystem.size(); ++i) {
        modules[i].Reset(::LoadLibraryW(kSystem[i]));
    }
    return modules;
}

void Attach(benchmark::State& state)
{
    const Modules system = LoadSystem();
    for (auto _ : state) {
        own::Module library(::LoadLibraryW(L"QorUI.dll"));
        if (!library) {
            state.SkipWithError("QorUI.dll could not be loaded");
            break;
        }
        state.PauseTiming();
        library.Reset();
        state.ResumeTiming();
    }
}

void LoadSystemLibraries(benchmark::State& state)
{
    for (auto _ : state) {
        Modules modules = LoadSystem();
        state.PauseTiming();
        modules = {};
        state.ResumeTiming();
    }
}

} // namespace

int main(int argc, char** argv)
{
    ComparePair("attach", &Attach, &LoadSystemLibraries);
    return RunBenchmarks(argc, argv);
}
