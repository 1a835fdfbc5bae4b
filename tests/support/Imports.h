#pragma once

#include <windows.h>

#include <functional>
#include <set>
#include <string>

/** @file
 * What modules import from others, and how a test gets in between: for failures of the system that cannot be brought
 * about otherwise, and for watching what the system is asked to do.
 */

namespace ts
{

/**
 * Calls a function for everything that a module imports by name and that is bound when it is loaded.
 * @param visit Gets the name of the DLL, of the function, and where the module keeps the function's address.
 */
void ForEachImport(HMODULE module,
                   const std::function<void(const char* library, const char* function, void** slot)>& visit);

/** Writes an address into the place of an import. */
void WriteImport(void** slot, void* address);

/** The DLLs, in lower case, that the system loads together with a module; those loaded at first use are not among them.
 */
std::set<std::string> ImportsOf(HMODULE module);

/**
 * Replaces a function that a loaded module calls in another one, until the object goes. Only calls of this module
 * through its import table are replaced.
 */
class ReplacedImport
{
  public:
    /**
     * @param module File name of the module whose calls are replaced; null for the program.
     * @param function Name of the function, as exported. One that the module does not import fails the test.
     * @param replacement A function of exactly the same type.
     */
    template <class Function>
    ReplacedImport(const wchar_t* module, const char* function, Function* replacement)
        : ReplacedImport(module, function, reinterpret_cast<void*>(replacement))
    {
    }
    ~ReplacedImport();
    ReplacedImport(const ReplacedImport&) = delete;
    ReplacedImport& operator=(const ReplacedImport&) = delete;

  private:
    ReplacedImport(const wchar_t* module, const char* function, void* replacement);

    void** m_slot; // in the import table; null when there is none
    void* m_original = nullptr;
};

/**
 * Replaces a function of a DLL for all its callers, until the object goes, also those that were bound late. The
 * function itself cannot be called meanwhile.
 */
class ReplacedFunction
{
  public:
    /**
     * @param library File name of the DLL; it is loaded when it is not yet.
     * @param function Name of the function, as exported. One that the DLL does not export fails the test.
     * @param replacement A function of exactly the same type.
     */
    template <class Function>
    ReplacedFunction(const wchar_t* library, const char* function, Function* replacement)
        : ReplacedFunction(library, function, reinterpret_cast<void*>(replacement))
    {
    }
    ~ReplacedFunction();
    ReplacedFunction(const ReplacedFunction&) = delete;
    ReplacedFunction& operator=(const ReplacedFunction&) = delete;

  private:
    ReplacedFunction(const wchar_t* library, const char* function, void* replacement);
    void Write(const std::string& code);

    void* m_entry = nullptr; // null when there is no such function
    std::string m_original;
};

} // namespace ts
