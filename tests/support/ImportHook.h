#pragma once

#include <windows.h>

namespace ts
{

/**
 * Puts a function of the test in place of one that a module imports, until the object ends: to make a call of the
 * system fail, or to see how it is made. Calls that other modules make are not touched.
 */
class ImportHook
{
  public:
    /**
     * @param module Name of a loaded module. One that does not import the function fails the test.
     * @param replacement A function of exactly the same type.
     */
    template <class Function>
    ImportHook(const wchar_t* module, const char* function, Function* replacement)
        : ImportHook(module, function, reinterpret_cast<ULONG_PTR>(replacement))
    {
    }
    ~ImportHook();
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;

  private:
    ImportHook(const wchar_t* module, const char* function, ULONG_PTR replacement);

    ULONG_PTR* m_slot;
    ULONG_PTR m_original;
};

} // namespace ts
