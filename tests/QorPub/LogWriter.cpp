#include <QorPub/QorPub.h>

#include <cstdlib>

/** Writes entries to the trace log: LogWriter <name> <count>. */
int wmain(int argc, wchar_t** argv)
{
    if (argc != 3) {
        return EXIT_FAILURE;
    }
    int count = _wtoi(argv[2]);
    for (int i = 0; i < count; ++i) {
        QorTrace(2, 0, L"wmain", L"LogWriter", __LINE__, L"%s %d", argv[1], i);
    }
    return EXIT_SUCCESS;
}
