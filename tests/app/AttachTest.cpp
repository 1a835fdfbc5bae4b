#include <gtest/gtest.h>
#include <QorUI/app/Attach.h>
#include <string>
#include <tests/support/Support.h>

namespace
{

/** An application object that writes down what is asked of it. */
class Recorder : public CWinThread
{
  public:
    explicit Recorder(BOOL starts) : m_starts(starts) {}

    BOOL InitInstance() override
    {
        m_calls += "init ";
        return m_starts;
    }
    int ExitInstance() override
    {
        m_calls += "exit ";
        return 0;
    }

    std::string m_calls;

  private:
    BOOL m_starts;
};

HINSTANCE Library()
{
    return ::GetModuleHandleW(L"afx.dll");
}

TEST(Attach, StartsTheApplicationAndRegistersTheModule)
{
    Recorder app(TRUE);
    AFX_EXTENSION_MODULE extension;
    EXPECT_TRUE(QorAttach(app, extension, Library()));
    EXPECT_EQ("init ", app.m_calls);
    EXPECT_TRUE(extension.bInitialized);
    EXPECT_EQ(Library(), extension.hModule);
    QorDetach(app, extension);
    EXPECT_EQ("init exit ", app.m_calls);
}

TEST(Attach, RefusedStartEndsTheApplicationAtOnceAndFails)
{
    Recorder app(FALSE);
    AFX_EXTENSION_MODULE extension;
    EXPECT_FALSE(QorAttach(app, extension, Library()));
    EXPECT_EQ("init exit ", app.m_calls);
    EXPECT_FALSE(extension.bInitialized);
}

TEST(Attach, DetachAfterARefusedStartDoesNothing)
{
    Recorder app(FALSE);
    AFX_EXTENSION_MODULE extension;
    ASSERT_FALSE(QorAttach(app, extension, Library()));
    QorDetach(app, extension);
    EXPECT_EQ("init exit ", app.m_calls);
}

TEST(Attach, SecondDetachDoesNothing)
{
    Recorder app(TRUE);
    AFX_EXTENSION_MODULE extension;
    ASSERT_TRUE(QorAttach(app, extension, Library()));
    QorDetach(app, extension);
    QorDetach(app, extension);
    EXPECT_EQ("init exit ", app.m_calls);
}

} // namespace
