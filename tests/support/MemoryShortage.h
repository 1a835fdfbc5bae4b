#pragma once

#include <tests/support/Imports.h>

#include <new>

namespace ts
{

/** Leaves a module no memory for new objects, until it goes. */
class MemoryShortage
{
  public:
    explicit MemoryShortage(const wchar_t* module) : m_new(module, "_Znwy", &Refuse) {}

  private:
    static void* Refuse(size_t) { throw std::bad_alloc(); }

    ReplacedImport m_new; // operator new
};

} // namespace ts
