/** @file A program without an application object. */
#include "LinkedChecks.h"

int wmain()
{
    HOST_CHECK(AfxGetApp() == nullptr);
    HOST_CHECK(AfxGetInstanceHandle() == host::Program());
    host::CheckLinked();
    HOST_CHECK(AfxGetApp() == nullptr);
    return host::g_failures;
}
