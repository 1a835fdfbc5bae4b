#include "Painted.h"

#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxwin.h>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 160, 130);

/** A drop-down combo box with the items Ann, Bob, Cid. */
class ComboBox : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_combo.Create(kChild | CBS_DROPDOWN, kPlace, &m_host, kId));
        for (LPCTSTR text : {TEXT("Ann"), TEXT("Bob"), TEXT("Cid")}) {
            m_combo.AddString(text);
        }
    }

    ts::AfxHost m_host;
    CComboBox m_combo;
};
} // namespace

TEST_F(ComboBox, ItemsAreAddedFoundAndDeleted)
{
    EXPECT_EQ(m_combo.GetCount(), 3);
    EXPECT_EQ(m_combo.InsertString(0, TEXT("First")), 0);
    EXPECT_EQ(m_combo.FindString(-1, TEXT("bo")), 2);
    EXPECT_EQ(m_combo.FindStringExact(-1, TEXT("bo")), CB_ERR);
    EXPECT_EQ(m_combo.SelectString(-1, TEXT("Cid")), 3);
    EXPECT_EQ(m_combo.GetCurSel(), 3);
    EXPECT_EQ(m_combo.DeleteString(0), 3);
    CString text;
    m_combo.GetLBText(0, text);
    EXPECT_STREQ(text, TEXT("Ann"));
    EXPECT_EQ(m_combo.GetLBTextLen(0), 3);
    m_combo.GetLBText(9, text);
    EXPECT_TRUE(text.IsEmpty());
    m_combo.ResetContent();
    EXPECT_EQ(m_combo.GetCount(), 0);
    EXPECT_EQ(m_combo.SetCurSel(1), CB_ERR);
}

TEST_F(ComboBox, EditPartHasASelection)
{
    m_combo.SetCurSel(1);
    EXPECT_TRUE(m_combo.SetEditSel(1, 3));
    EXPECT_EQ(m_combo.GetEditSel(), static_cast<DWORD>(MAKELONG(1, 3)));
    m_combo.Clear();
    CString text;
    m_combo.GetWindowText(text);
    EXPECT_STREQ(text, TEXT("B"));
    m_combo.LimitText(5);
    EXPECT_EQ(m_combo.GetWindow(GW_CHILD)->SendMessage(EM_GETLIMITTEXT), 5);
}

TEST_F(ComboBox, DropsDownAndTellsItsSize)
{
    m_combo.ShowDropDown();
    EXPECT_TRUE(m_combo.GetDroppedState());
    CRect dropped;
    m_combo.GetDroppedControlRect(&dropped);
    EXPECT_GT(dropped.Height(), 40);
    m_combo.ShowDropDown(FALSE);
    EXPECT_FALSE(m_combo.GetDroppedState());
    EXPECT_NE(m_combo.SetDroppedWidth(300), CB_ERR);
    EXPECT_EQ(m_combo.GetDroppedWidth(), 300);
    EXPECT_NE(m_combo.SetItemHeight(-1, 32), CB_ERR);
    EXPECT_NEAR(m_combo.GetItemHeight(-1), 32, 2);
    EXPECT_EQ(m_combo.SetExtendedUI(), CB_OKAY);
    EXPECT_TRUE(m_combo.GetExtendedUI());
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    EXPECT_TRUE(m_combo.GetComboBoxInfo(&info));
    EXPECT_NE(info.hwndItem, nullptr);
}

TEST_F(ComboBox, ItemDataIsPointerSized)
{
    int value = 0;
    m_combo.SetItemDataPtr(0, &value);
    EXPECT_EQ(m_combo.GetItemDataPtr(0), &value);
    m_combo.SetItemData(1, 0x123456789A);
    EXPECT_EQ(m_combo.GetItemData(1), 0x123456789Aull);
}

TEST(OwnerDraw, ComboBoxMeasuresComparesDrawsAndDeletes)
{
    ts::AfxHost host;
    Measured<CComboBox> combo;
    ASSERT_TRUE(combo.Create(kChild | CBS_OWNERDRAWFIXED | CBS_SORT | CBS_DROPDOWNLIST, kPlace, &host, kId));
    EXPECT_GT(combo.measures, 0);
    combo.AddString(reinterpret_cast<LPCTSTR>(1));
    EXPECT_EQ(combo.AddString(reinterpret_cast<LPCTSTR>(2)), 0);
    EXPECT_GT(combo.compares, 0);
    combo.SetCurSel(1);
    EXPECT_TRUE(IsPainted(combo, 10, 10));
    EXPECT_EQ(combo.type, static_cast<UINT>(ODT_COMBOBOX));
    combo.DeleteString(0);
    EXPECT_EQ(combo.deleted, std::vector<ULONG_PTR>{2});
}
