/** @file
 * Loading the library, with the system's two libraries that it stands on already loaded, against loading those two.
 */

#include "Ratio.h"

#include <windows.h>

#include <array>

namespace
{

constexpr std::array<LPCWSTR, 2> kSystem = {L"gdiplus.dll", L"comctl32.dll"};

using Modules = std::array<HMODULE, kSystem.size()>;

Modules LoadSystem()
{
    Modules modules = {};
    for (size_t i = 0; i < kSystem.size(); ++i) {
        modules[i] = ::LoadLibraryW(kSystem[i]);
    }
    return modules;
}

void FreeSystem(const Modules& modules)
{
    for (const HMODULE module : modules) {
        ::FreeLibrary(module);
    }
}

void Attach(benchmark::State& state)
{
    const Modules system = LoadSystem();
    for (auto _ : state) {
        const HMODULE library = ::LoadLibraryW(L"QorUI.dll");
        if (!library) {
            state.SkipWithError("QorUI.dll could not be loaded");
            break;
        }
        state.PauseTiming();
        ::FreeLibrary(library);
        state.ResumeTiming();
    }
    FreeSystem(system);
}

void LoadSystemLibraries(benchmark::State& state)
{
    for (auto _ : state) {
        const Modules modules = LoadSystem();
        state.PauseTiming();
        FreeSystem(modules);
        state.ResumeTiming();
    }
}

} // namespace

int main(int argc, char** argv)
{
    ComparePair("attach", &Attach, &LoadSystemLibraries);
    return RunBenchmarks(argc, argv);
}
