#include <QorUI/app/module/Attach.h>
#include <tests/support/Imports.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <thread>

namespace
{

/** An application object that writes down what is asked of it, and whether the module was registered then. */
class Recorder : public CWinThread
{
  public:
    explicit Recorder(BOOL starts) : m_starts(starts) {}

    BOOL InitInstance() override
    {
        Note("init");
        return m_starts;
    }
    int ExitInstance() override
    {
        Note("exit");
        return 0;
    }

    AFX_EXTENSION_MODULE m_extension;
    std::string m_calls;

  private:
    void Note(const char* call) { m_calls += std::string(call) + (m_extension.bInitialized ? "(registered) " : " "); }

    BOOL m_starts;
};

HINSTANCE Library()
{
    return ::GetModuleHandleW(L"afx.dll");
}

TEST(Attach, StartsTheApplicationAndRegistersTheModule)
{
    Recorder app(TRUE);
    EXPECT_TRUE(QorAttach(app, app.m_extension, Library()));
    EXPECT_EQ("init ", app.m_calls);
    EXPECT_TRUE(app.m_extension.bInitialized);
    EXPECT_EQ(Library(), app.m_extension.hModule);
    QorDetach(app, app.m_extension);
    EXPECT_EQ("init exit(registered) ", app.m_calls);
}

TEST(Attach, RefusedStartEndsTheApplicationAtOnceAndFails)
{
    Recorder app(FALSE);
    EXPECT_FALSE(QorAttach(app, app.m_extension, Library()));
    EXPECT_EQ("init exit ", app.m_calls);
    EXPECT_FALSE(app.m_extension.bInitialized);
}

TEST(Attach, DetachAfterARefusedStartDoesNothing)
{
    Recorder app(FALSE);
    ASSERT_FALSE(QorAttach(app, app.m_extension, Library()));
    QorDetach(app, app.m_extension);
    EXPECT_EQ("init exit ", app.m_calls);
}

BOOL NoFramework(HINSTANCE, HINSTANCE, LPWSTR, int)
{
    return FALSE;
}

TEST(Attach, WithoutTheFrameworkFailsAndStartsNothing)
{
    const ts::ReplacedImport none(nullptr, "_Z10AfxWinInitP11HINSTANCE__S0_Pwi", &NoFramework);
    Recorder app(TRUE);
    EXPECT_FALSE(QorAttach(app, app.m_extension, Library()));
    QorDetach(app, app.m_extension);
    EXPECT_EQ("", app.m_calls);
}

BOOL NoExtension(AFX_EXTENSION_MODULE&, HMODULE)
{
    return FALSE;
}

TEST(Attach, ModuleThatIsNotRegisteredEndsTheApplicationAndFails)
{
    const ts::ReplacedImport none(nullptr, "_Z22AfxInitExtensionModuleR20AFX_EXTENSION_MODULEP11HINSTANCE__",
                                  &NoExtension);
    Recorder app(TRUE);
    EXPECT_FALSE(QorAttach(app, app.m_extension, Library()));
    QorDetach(app, app.m_extension);
    EXPECT_EQ("init exit ", app.m_calls);
}

TEST(Attach, SecondDetachDoesNothing)
{
    Recorder app(TRUE);
    ASSERT_TRUE(QorAttach(app, app.m_extension, Library()));
    QorDetach(app, app.m_extension);
    QorDetach(app, app.m_extension);
    EXPECT_EQ("init exit(registered) ", app.m_calls);
}

/** Number of temporary window objects of this thread; none when the framework keeps nothing for it. */
std::optional<size_t> TemporaryWindows()
{
    const CHandleMap* map = AfxGetHandleMap(AFX_HANDLE_HWND, nullptr);
    return map ? std::optional<size_t>(map->GetTemporaryCount()) : std::nullopt;
}

TEST(Attach, DetachedThreadKeepsNothing)
{
    std::thread([] {
        CWnd::FromHandle(::GetDesktopWindow());
        EXPECT_EQ(1u, TemporaryWindows());
        QorDetachThread(Library());
        EXPECT_EQ(std::nullopt, TemporaryWindows());
    }).join();
}

TEST(Attach, ThreadWithoutFrameworkObjectsIsDetachedToo)
{
    std::thread([] {
        QorDetachThread(Library());
        EXPECT_EQ(std::nullopt, TemporaryWindows());
    }).join();
}

TEST(Attach, LoadingAndFreeingTheLibraryLeavesNothingBehind)
{
    constexpr int kCycles = 40;
    EXPECT_TRUE(ts::NoLeak(
        [] {
            const HMODULE library = ::LoadLibraryW(L"QorUI.dll");
            EXPECT_NE(nullptr, library);
            EXPECT_TRUE(::FreeLibrary(library));
            EXPECT_EQ(nullptr, ::GetModuleHandleW(L"QorUI.dll"));
        },
        kCycles));
}

} // namespace
