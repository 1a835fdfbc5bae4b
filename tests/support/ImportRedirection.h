#pragma once

#include <windows.h>

#include <vector>

namespace ts
{

/**
 * Puts other functions in the place of system functions, in the import tables of all modules of the process, while it
 * lives: for calls that fail, and calls to be counted. Those that live at the same time must be for different
 * functions.
 */
class ImportRedirection
{
  public:
    struct Function
    {
        void* original;
        void* replacement;
    };

    /** @param original A function of a DLL. @param replacement What is called in its place; may call the original. */
    template <class Signature>
    static Function Of(Signature* original, Signature* replacement)
    {
        return {reinterpret_cast<void*>(original), reinterpret_cast<void*>(replacement)};
    }

    explicit ImportRedirection(std::vector<Function> functions);
    ~ImportRedirection();
    ImportRedirection(const ImportRedirection&) = delete;
    ImportRedirection& operator=(const ImportRedirection&) = delete;

  private:
    struct Slot
    {
        void** place;
        void* original;
    };

    void Redirect(void** place);

    std::vector<Function> m_functions;
    std::vector<Slot> m_slots;
};

} // namespace ts
