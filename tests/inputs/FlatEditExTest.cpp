#include "Inputs.h"

#include <QorApi/QorApi.h>
#include <QorUI/inputs/FlatEditEx.h>
#include <tests/support/ui/Control.h>

namespace
{

/** An edit control that refuses ':' and '/', and what it asks its balloon tip to show. */
class FlatEditEx : public testing::Test
{
  protected:
    void SetUp() override
    {
        QorSetLanguage(L"en");
        ASSERT_TRUE(m_edit.SubclassWindow(AddSystem(m_host, L"EDIT", ES_AUTOHSCROLL)));
        m_edit.SetIllegalChars(L":/");
        m_log = std::make_unique<ts::MessageRecorder>(m_edit);
        m_log->RecordOnly({EM_SHOWBALLOONTIP, EM_HIDEBALLOONTIP});
        m_log->Answer(EM_SHOWBALLOONTIP, [this](const ts::Message& message) -> std::optional<LRESULT> {
            m_tip = *reinterpret_cast<const EDITBALLOONTIP*>(message.lParam);
            m_tipText = m_tip.pszText;
            m_wParam = message.wParam;
            return TRUE;
        });
        m_edit.SetFocus();
    }

    void TearDown() override
    {
        m_log.reset();
        QorSetLanguage(nullptr);
    }

    size_t Shown() const { return m_log->Count(ts::Msg(EM_SHOWBALLOONTIP)); }
    size_t Hidden() const { return m_log->Count(ts::Msg(EM_HIDEBALLOONTIP)); }

    ts::AfxHost m_host{200, 100};
    CFlatEditEx m_edit;
    std::unique_ptr<ts::MessageRecorder> m_log;
    EDITBALLOONTIP m_tip = {};
    std::wstring m_tipText;
    WPARAM m_wParam = 99;
};

TEST_F(FlatEditEx, StartsEmpty)
{
    EXPECT_EQ(0, CFlatEditEx().IsValidText());
}

TEST_F(FlatEditEx, RefusedCharacterMarksTheTextAndShowsABalloon)
{
    ts::Type(L"a:b");
    EXPECT_EQ(-1, m_edit.IsValidText());
    EXPECT_EQ(2u, Shown()) << "for ':' and for the character behind it";
    EXPECT_STREQ(L"a:b", ts::TextOf(m_edit)) << "the character stays";
}

TEST_F(FlatEditEx, BalloonNamesAllRefusedCharacters)
{
    ts::Type(L":");
    CString expected;
    expected.Format(QorGetModuleLang(L"QorUI.dll", L"Strings")->GetChildData(L"STR_INVALID_TEXT", 1), L":/");
    EXPECT_STREQ(expected, m_tipText.c_str());
    EXPECT_NE(std::wstring::npos, m_tipText.find(L":/"));
    EXPECT_GT(m_tipText.length(), 2u);
}

TEST_F(FlatEditEx, BalloonHasNeitherTitleNorIcon)
{
    ts::Type(L"/");
    EXPECT_EQ(32u, m_tip.cbStruct);
    EXPECT_EQ(nullptr, m_tip.pszTitle);
    EXPECT_EQ(TTI_NONE, m_tip.ttiIcon);
    EXPECT_EQ(0u, m_wParam);
}

TEST_F(FlatEditEx, BalloonIsInTheUsersLanguage)
{
    ts::Type(L":");
    const std::wstring english = m_tipText;
    QorSetLanguage(L"de");
    ts::Type(L":");
    EXPECT_NE(english, m_tipText);
    EXPECT_NE(std::wstring::npos, m_tipText.find(L":/"));
}

TEST_F(FlatEditEx, ValidTextHidesTheBalloon)
{
    ts::Type(L"a:");
    m_log->Clear();
    ts::Key(VK_BACK);
    EXPECT_EQ(1, m_edit.IsValidText());
    EXPECT_EQ(1u, Hidden());
    EXPECT_EQ(0u, Shown());
}

TEST_F(FlatEditEx, EmptyTextLeavesTheBalloonAlone)
{
    ts::Type(L":");
    m_log->Clear();
    m_edit.SetWindowText(L"");
    EXPECT_EQ(0, m_edit.IsValidText());
    EXPECT_TRUE(m_log->Messages().empty());
}

TEST_F(FlatEditEx, BlankTextCountsAsEmpty)
{
    ts::Type(L"a");
    m_edit.SetWindowText(L"  \t ");
    EXPECT_EQ(0, m_edit.IsValidText());
}

TEST_F(FlatEditEx, RefusedBlanksAtTheEndsAreTrimmed)
{
    m_edit.SetIllegalChars(L" ");
    m_edit.SetWindowText(L" ab ");
    EXPECT_EQ(1, m_edit.IsValidText());
    m_edit.SetWindowText(L"a b");
    EXPECT_EQ(-1, m_edit.IsValidText());
}

TEST_F(FlatEditEx, WithoutCharactersTheStateIsNotTouched)
{
    ts::Type(L":");
    m_edit.SetIllegalChars(nullptr);
    m_log->Clear();
    ts::Type(L"b");
    EXPECT_EQ(-1, m_edit.IsValidText());
    EXPECT_TRUE(m_log->Messages().empty());
}

TEST_F(FlatEditEx, EmptySetRefusesNothing)
{
    m_edit.SetIllegalChars(L"");
    ts::Type(L":");
    EXPECT_EQ(1, m_edit.IsValidText());
}

TEST_F(FlatEditEx, CharactersAreKeptByPointer)
{
    wchar_t chars[] = L":";
    m_edit.SetIllegalChars(chars);
    chars[0] = L'#';
    ts::Type(L":");
    EXPECT_EQ(1, m_edit.IsValidText());
    ts::Type(L"#");
    EXPECT_EQ(-1, m_edit.IsValidText());
}

TEST_F(FlatEditEx, ParentGetsTheNotificationToo)
{
    class CParent : public ts::AfxHost
    {
      public:
        int updates = 0;

      protected:
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
        {
            updates += id == ts::kControlId && code == EN_UPDATE;
            return AfxHost::OnCmdMsg(id, code, extra, info);
        }
    } parent;
    CFlatEditEx edit;
    ASSERT_TRUE(edit.SubclassWindow(AddSystem(parent, L"EDIT", 0)));
    edit.SetIllegalChars(L":");
    edit.SetFocus();
    ts::Type(L"a");
    EXPECT_EQ(1, parent.updates);
    EXPECT_EQ(1, edit.IsValidText());
}

TEST_F(FlatEditEx, HugeTextIsChecked)
{
    m_edit.SetLimitText(200000);
    m_edit.SetWindowText(CString(L'x', 100000) + L":");
    EXPECT_EQ(-1, m_edit.IsValidText());
}

TEST_F(FlatEditEx, PaintsItsBorderFlat)
{
    EXPECT_TRUE(HasFlatBorder(m_edit));
}

} // namespace
