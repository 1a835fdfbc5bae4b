#pragma once

#include <tests/afx/TestWindows.h>

#include <string>
#include <utility>

/** Writes down its life; may refuse to be created. */
class LifeWnd : public CWnd
{
  public:
    explicit LifeWnd(Events& log, std::string name = "") : events(log), m_name(std::move(name)) {}
    ~LifeWnd() override
    {
        if (m_hWnd) {
            DestroyWindow();
        }
    }

    Events& events;
    int createResult = 0;
    BOOL ncCreateResult = TRUE;
    BOOL preCreateResult = TRUE;
    bool destroyInHandler = false;
    bool hadHandleAtFirst = false;

    BOOL Make(CWnd* pParent = nullptr, DWORD style = WS_OVERLAPPEDWINDOW)
    {
        return CreateEx(0, nullptr, _T("life"), style, CRect(0, 0, 200, 150), pParent, 0);
    }
    LRESULT Value(WPARAM wParam, LPARAM)
    {
        if (destroyInHandler) {
            DestroyWindow();
        }
        return static_cast<LRESULT>(wParam) + 1;
    }

  protected:
    void Log(const char* event) { events.push_back(m_name + event); }
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        Log("precreate");
        return preCreateResult && CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override
    {
        Log("presubclass");
        hadHandleAtFirst = m_hWnd != nullptr;
    }
    void PostNcDestroy() override
    {
        Log("postncdestroy");
        CWnd::PostNcDestroy();
    }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI)
    {
        Log("minmax");
        CWnd::OnGetMinMaxInfo(lpMMI);
    }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct)
    {
        Log("nccreate");
        return ncCreateResult && CWnd::OnNcCreate(lpCreateStruct);
    }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        Log("create");
        return createResult ? createResult : CWnd::OnCreate(lpCreateStruct);
    }
    afx_msg void OnDestroy()
    {
        Log("destroy");
        CWnd::OnDestroy();
    }
    afx_msg void OnNcDestroy()
    {
        Log("ncdestroy");
        CWnd::OnNcDestroy();
    }

    DECLARE_MESSAGE_MAP()

  private:
    std::string m_name;
};
