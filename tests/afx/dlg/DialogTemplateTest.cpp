#include <tests/afx/TestWindows.h>
#include <tests/support/Imports.h>

#include <afxpriv.h>

#include <vector>

namespace
{
void ExpectSameSizeAsTheDialog(UINT nTemplate)
{
    CDialogTemplate dialogTemplate;
    ASSERT_TRUE(dialogTemplate.Load(MAKEINTRESOURCE(nTemplate)));
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(nTemplate));
    CRect client;
    dialog.GetClientRect(&client);
    CSize size;
    dialogTemplate.GetSizeInPixels(&size);
    EXPECT_EQ(client.Size(), size);
}
} // namespace

TEST(DialogTemplate, MissingResourceIsRefused)
{
    CDialogTemplate dialogTemplate;
    EXPECT_FALSE(dialogTemplate.Load(MAKEINTRESOURCE(9999)));
    EXPECT_FALSE(dialogTemplate.HasFont());
    SIZE size = {1, 1};
    dialogTemplate.GetSizeInPixels(&size);
    EXPECT_EQ(0, size.cx);
    EXPECT_FALSE(dialogTemplate.SetFont(_T("Tahoma"), 8));
}

TEST(DialogTemplate, FontAndSizeOfBothKindsAreRead)
{
    for (const UINT nTemplate : {IDD_SIMPLE, IDD_EXTENDED}) {
        CDialogTemplate dialogTemplate;
        ASSERT_TRUE(dialogTemplate.Load(MAKEINTRESOURCE(nTemplate)));
        EXPECT_TRUE(dialogTemplate.HasFont());
        CString strFace;
        WORD nPoints = 0;
        ASSERT_TRUE(dialogTemplate.GetFont(strFace, nPoints));
        EXPECT_EQ(CString(_T("MS Shell Dlg")), strFace);
        EXPECT_EQ(8, nPoints);
        SIZE size;
        dialogTemplate.GetSizeInDialogUnits(&size);
        EXPECT_EQ(nTemplate == IDD_SIMPLE ? 180 : 265, size.cx);
        EXPECT_EQ(nTemplate == IDD_SIMPLE ? 90 : 121, size.cy);
    }
}

TEST(DialogTemplate, TemplateWithoutAFontSaysSo)
{
    CDialogTemplate dialogTemplate;
    ASSERT_TRUE(dialogTemplate.Load(MAKEINTRESOURCE(IDD_HIDDEN)));
    CString strFace;
    WORD nPoints = 0;
    EXPECT_FALSE(dialogTemplate.HasFont());
    EXPECT_FALSE(dialogTemplate.GetFont(strFace, nPoints));
}

TEST(DialogTemplate, SizeInPixelsIsTheClientAreaOfTheRealDialog)
{
    ExpectSameSizeAsTheDialog(IDD_SIMPLE);
    ExpectSameSizeAsTheDialog(IDD_EXTENDED);
    ExpectSameSizeAsTheDialog(IDD_HIDDEN);
}

TEST(DialogTemplate, ChangedFontGivesADialogThatStillHasItsControls)
{
    for (const UINT nTemplate : {IDD_SIMPLE, IDD_EXTENDED, IDD_HIDDEN}) {
        CDialogTemplate dialogTemplate;
        ASSERT_TRUE(dialogTemplate.Load(MAKEINTRESOURCE(nTemplate)));
        ASSERT_TRUE(dialogTemplate.SetFont(_T("Tahoma"), 14));
        CString strFace;
        WORD nPoints = 0;
        ASSERT_TRUE(dialogTemplate.GetFont(strFace, nPoints));
        EXPECT_EQ(CString(_T("Tahoma")), strFace);
        EXPECT_EQ(14, nPoints);
        SIZE size;
        dialogTemplate.GetSizeInPixels(&size);
        const HGLOBAL hTemplate = dialogTemplate.Detach();
        CDialog dialog;
        ASSERT_TRUE(dialog.CreateIndirect(hTemplate));
        CRect client;
        dialog.GetClientRect(&client);
        EXPECT_EQ(CSize(size), client.Size());
        EXPECT_NE(nullptr, dialog.GetDlgItem(IDOK));
        ::GlobalFree(hTemplate);
    }
}

std::vector<HGLOBAL> g_freed;

HGLOBAL WINAPI NoteFreed(HGLOBAL hBlock)
{
    g_freed.push_back(hBlock);
    return ::GlobalFree(hBlock);
}

TEST(DialogTemplate, AttachedBlockReplacesTheFormer)
{
    const ts::ReplacedImport noted(L"afx.dll", "GlobalFree", &NoteFreed);
    g_freed.clear();
    CDialogTemplate dialogTemplate;
    ASSERT_TRUE(dialogTemplate.Load(MAKEINTRESOURCE(IDD_SIMPLE)));
    const HGLOBAL hFormer = dialogTemplate.m_hTemplate;
    const DWORD dwSize = dialogTemplate.m_dwTemplateSize;
    EXPECT_EQ(hFormer, dialogTemplate.Attach(hFormer));
    EXPECT_EQ(dwSize, dialogTemplate.m_dwTemplateSize);
    EXPECT_TRUE(g_freed.empty());
    CDialogTemplate other;
    ASSERT_TRUE(other.Load(MAKEINTRESOURCE(IDD_EXTENDED)));
    const HGLOBAL hOther = other.Detach();
    EXPECT_EQ(hOther, dialogTemplate.Attach(hOther));
    EXPECT_EQ(std::vector<HGLOBAL>{hFormer}, g_freed);
}

TEST(DialogTemplate, SystemFontReplacesFaceAndSize)
{
    CDialogTemplate dialogTemplate;
    ASSERT_TRUE(dialogTemplate.Load(MAKEINTRESOURCE(IDD_SIMPLE)));
    ASSERT_TRUE(dialogTemplate.SetSystemFont(11));
    CString strFace;
    WORD nPoints = 0;
    ASSERT_TRUE(dialogTemplate.GetFont(strFace, nPoints));
    EXPECT_EQ(11, nPoints);
}

TEST(DialogTemplate, CopiedTemplateIsCompleteAndIndependent)
{
    CDialogTemplate first;
    ASSERT_TRUE(first.Load(MAKEINTRESOURCE(IDD_EXCHANGE)));
    const auto* pTemplate = static_cast<const DLGTEMPLATE*>(::GlobalLock(first.m_hTemplate));
    CDialogTemplate copy(pTemplate);
    ::GlobalUnlock(first.m_hTemplate);
    EXPECT_LE(copy.m_dwTemplateSize, first.m_dwTemplateSize);
    EXPECT_GT(copy.m_dwTemplateSize + sizeof(DWORD), first.m_dwTemplateSize);
    EXPECT_TRUE(copy.SetFont(_T("Tahoma"), 20));
    CString strFace;
    WORD nPoints = 0;
    first.GetFont(strFace, nPoints);
    EXPECT_EQ(8, nPoints);
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(copy.m_hTemplate));
    EXPECT_NE(nullptr, dialog.GetDlgItem(IDC_COMBO));
}
