#include "commands/chart_marks.h"

#include <gtest/gtest.h>

#include "platform/windows/profile.h"
#include "tests/platform/mfc/test_list.h"
#include "tests/temp_folder.h"

namespace {

constexpr const char* SECTION = "CBRENDlg";
constexpr const char* KEY = "SYQXG1";

class ChartMarks : public testing::Test {
protected:
    std::string File() const { return m_folder.Path("Marks.ini"); }
    void Store(const std::string& value) const {
        ASSERT_TRUE(WritePrivateProfileStringA(SECTION, KEY, value.c_str(), File().c_str()));
    }
    std::string Stored() const {
        std::vector<char> value(4096);
        GetPrivateProfileStringA(SECTION, KEY, "(none)", value.data(), static_cast<DWORD>(value.size()),
                                 File().c_str());
        return value.data();
    }

    CTempFolder m_folder;
    CTestList m_several{CControlKind::MultiList, {"1-1", "1-2", "1-3"}};
    CTestList m_one{CControlKind::List, {"ZK1", "ZK2"}};
};

} // namespace

TEST_F(ChartMarks, AreWrittenInPlaceOfTheFormerOnes) {
    Store("1-3");
    CStringArray marks;
    for (const char* pMark : {"1-1", "1-2"})
        marks.Add(pMark);
    WriteMarks(SECTION, KEY, marks, File().c_str());
    EXPECT_EQ(Stored(), "1-1@1-2");
}

TEST_F(ChartMarks, LoadPutsAMarkBeforeEntriesThatTheKeyNames) {
    Store("1-3@1-1");
    LoadMarks(SECTION, KEY, &m_several, File().c_str());
    EXPECT_EQ(m_several.Shown(), " *1-1 1-2 *1-3");
    EXPECT_EQ(Stored(), "1-1@1-3"); // in the list's order
}

TEST_F(ChartMarks, LoadDropsWhatIsNoLongerInTheList) {
    Store("1-2@gone@BR全部-全部试样");
    LoadMarks(SECTION, KEY, &m_several, File().c_str());
    EXPECT_EQ(m_several.Shown(), " 1-1 *1-2 1-3");
    EXPECT_EQ(Stored(), "1-2");
}

TEST_F(ChartMarks, LoadOfAnEmptyKeyTouchesNothing) {
    LoadMarks(SECTION, KEY, &m_several, File().c_str());
    EXPECT_EQ(m_several.Shown(), " 1-1 1-2 1-3");
    EXPECT_EQ(Stored(), "(none)");
}

TEST_F(ChartMarks, AKeyIsReadTo519BytesAndTheLastEntriesLoseTheirMarks) {
    CTestList list(CControlKind::MultiList);
    std::string value;
    for (int i = 0; i < 60; ++i) {
        const std::string entry = "sample-" + std::to_string(100 + i); // 10 bytes, 11 with the separator
        list.AddString(entry.c_str());
        value += (i ? "@" : "") + entry;
    }
    Store(value);
    LoadMarks(SECTION, KEY, &list, File().c_str());
    CString last, next;
    list.GetText(46, last);
    list.GetText(47, next);
    EXPECT_STREQ(last, "*sample-146"); // bytes 507 to 516
    EXPECT_STREQ(next, "sample-147");
    EXPECT_EQ(Stored().size(), 47U * 11 - 1);
}

TEST_F(ChartMarks, SaveAddsTheSelectedEntriesThatAreNotThereYet) {
    Store("1-2");
    LoadMarks(SECTION, KEY, &m_several, File().c_str());
    m_several.SetSel(1);
    m_several.SetSel(2);
    SaveMarks(SECTION, KEY, &m_several, File().c_str());
    EXPECT_EQ(Stored(), "1-2@1-3");
}

TEST_F(ChartMarks, SaveOfAListForOneAddsItsCurrentEntry) {
    m_one.SetCurSel(1);
    SaveMarks(SECTION, KEY, &m_one, File().c_str());
    EXPECT_EQ(Stored(), "ZK2");
    m_one.SetCurSel(0);
    SaveMarks(SECTION, KEY, &m_one, File().c_str());
    EXPECT_EQ(Stored(), "ZK2@ZK1");
}

TEST_F(ChartMarks, SaveKeepsOfALongKeyWhatIsReadOfIt) {
    std::string value = "sample-100";
    for (int i = 1; i < 60; ++i)
        value += "@sample-" + std::to_string(100 + i);
    Store(value);
    m_several.SetSel(0);
    SaveMarks(SECTION, KEY, &m_several, File().c_str());
    EXPECT_EQ(Stored(), value.substr(0, 519) + "@1-1"); // 47 entries and the beginning of one
    EXPECT_EQ(value.substr(516, 3), "@sa");
}

TEST_F(ChartMarks, SaveWritesMoreThanIsReadBack) {
    CTestList list(CControlKind::MultiList);
    for (int i = 0; i < 60; ++i)
        list.AddString(("sample-" + std::to_string(100 + i)).c_str());
    list.SetSel(-1);
    SaveMarks(SECTION, KEY, &list, File().c_str());
    EXPECT_EQ(Stored().size(), 60U * 11 - 1);
}

TEST_F(ChartMarks, ClearTakesTheSelectedEntriesOutOfKeyAndList) {
    Store("1-1@1-2@1-3");
    LoadMarks(SECTION, KEY, &m_several, File().c_str());
    m_several.SetSel(0);
    m_several.SetSel(2);
    ClearMarks(SECTION, KEY, &m_several, File().c_str());
    EXPECT_EQ(m_several.Shown(), " 1-1 *1-2 1-3");
    EXPECT_EQ(Stored(), "1-2");
}

TEST_F(ChartMarks, ClearLeavesAnEntryThatTheKeyDoesNotName) {
    Store("1-2");
    m_several.SetSel(0);
    ClearMarks(SECTION, KEY, &m_several, File().c_str());
    EXPECT_EQ(m_several.Shown(), ">1-1 1-2 1-3");
    EXPECT_EQ(Stored(), "1-2");
}

TEST_F(ChartMarks, ClearOfAListForOneTakesItsSelectionAway) {
    Store("ZK1@ZK2");
    LoadMarks(SECTION, KEY, &m_one, File().c_str());
    m_one.SetCurSel(0);
    ClearMarks(SECTION, KEY, &m_one, File().c_str());
    EXPECT_EQ(m_one.Shown(), " ZK1 *ZK2");
    EXPECT_EQ(Stored(), "ZK2");
}

TEST_F(ChartMarks, AllDoneCountsSelectedAndMarkedEntries) {
    EXPECT_EQ(AllDone(&m_several), 0);
    m_several.SetSel(-1);
    EXPECT_EQ(AllDone(&m_several), 1);
    m_several.SetSel(1, FALSE);
    EXPECT_EQ(AllDone(&m_several), 0);
    Store("1-2");
    LoadMarks(SECTION, KEY, &m_several, File().c_str());
    EXPECT_EQ(AllDone(&m_several), 1);
    m_several.SetSel(1); // both marked and selected
    m_several.SetSel(0, FALSE);
    EXPECT_EQ(AllDone(&m_several), 0);
}

TEST_F(ChartMarks, AnyMarkedLooksForAMark) {
    EXPECT_EQ(AnyMarked(&m_several), 0);
    Store("1-2");
    LoadMarks(SECTION, KEY, &m_several, File().c_str());
    EXPECT_EQ(AnyMarked(&m_several), 1);
}

TEST_F(ChartMarks, AnotherWindowThanAListBoxIsLeftAlone) {
    CWnd window;
    Store("1-1");
    LoadMarks(SECTION, KEY, &window, File().c_str());
    SaveMarks(SECTION, KEY, &window, File().c_str());
    ClearMarks(SECTION, KEY, nullptr, File().c_str());
    EXPECT_EQ(AllDone(&window), 0);
    EXPECT_EQ(AnyMarked(&window), 0);
    EXPECT_EQ(Stored(), "1-1");
}

TEST(WithoutMark, TakesOneMarkAway) {
    EXPECT_STREQ(WithoutMark("*1-1"), "1-1");
    EXPECT_STREQ(WithoutMark("**1"), "*1");
    EXPECT_STREQ(WithoutMark("1-1"), "1-1");
    EXPECT_STREQ(WithoutMark(""), "");
}
