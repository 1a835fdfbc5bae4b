#include "TraceCatcher.h"

#include <gtest/gtest.h>

namespace
{
class CDumped : public CObject
{
  public:
    void Dump(CDumpContext& dc) const override { dc << "narrow " << L"wide " << 7 << " " << 2.5; }
};
} // namespace

TEST(Diagnostics, DumpWritesEveryKindOfValue)
{
    TraceCatcher catcher;
    afxDump << static_cast<BYTE>(1) << " " << static_cast<WORD>(2) << " " << static_cast<DWORD>(3) << " " << 255U << " "
            << static_cast<LONG>(-4) << " " << static_cast<LONGLONG>(-5) << " " << static_cast<ULONGLONG>(6) << " "
            << 1.5F;
    EXPECT_STREQ(L"1 2 3 0xFF -4 -5 6 1.5", g_strOutput);
    g_strOutput.Empty();
    const CDumped dumped;
    AfxDump(&dumped);
    EXPECT_STREQ(L"narrow wide 7 2.5", g_strOutput);
    g_strOutput.Empty();
    afxDump << static_cast<const CObject*>(nullptr) << static_cast<LPCWSTR>(nullptr);
    EXPECT_STREQ(L"(null)(null)", g_strOutput);
}

TEST(Diagnostics, DefaultDumpNamesTheClass)
{
    TraceCatcher catcher;
    const CByteArray array;
    afxDump << array;
    EXPECT_EQ(0, g_strOutput.Find(L"a CByteArray at $"));
}
