#include "ui/qs_para.h"

#include <filesystem>

#include "commands/text_lists.h"
#include "data/date_text.h"
#include "platform/ado/sqlite_provider.h"
#include "tests/support/suite_fixture.h"

namespace {

constexpr const char* g_pszClass = "三轴剪切试验曲线";

class QSPara : public CSuiteTest {
protected:
    QSPara() {
        std::filesystem::create_directory(m_root.Path("Data"));
        m_pCommon = CreateSqliteDatabase(m_root.Path("Data/common.db"));
        m_pCommon->Execute(
            "create table g_peizhi_people(CGT text, KEYCGT text, PEOPLETYPE text, PEOPLENAME text)");
    }

    void AddPerson(const std::string& strKey, const std::string& strRole, const std::string& strName,
                   const std::string& strClass = g_pszClass) {
        m_pCommon->Execute("insert into g_peizhi_people values('" + strClass + "','" + strKey + "','" +
                           strRole + "'," + strName + ")");
    }
    static void Switch(const char* pszKey, const char* pszValue) {
        WritePrivateProfileStringA("QSSet", pszKey, pszValue, g_strSettingsIni);
    }
    /// The fields after GetPeople, as "key=value" joined with blanks.
    std::string People() {
        const int nKeys = m_para.GetPeople(g_pszClass, &m_saKeys, &m_saValues);
        EXPECT_EQ(nKeys, m_saKeys.GetSize());
        EXPECT_EQ(nKeys, m_saValues.GetSize());
        CStringArray saFields;
        for (int i = 0; i < nKeys; ++i)
            saFields.Add(m_saKeys[i] + "=" + m_saValues[i]);
        return JoinTexts(saFields, ' ').GetString();
    }

    std::shared_ptr<CDbConnection> m_pCommon;
    CQSPara m_para;
    CStringArray m_saKeys;
    CStringArray m_saValues;
};

/// Today as a title block shows it.
std::string Today() {
    return DateText(CTime::GetCurrentTime()).GetString();
}

} // namespace

TEST_F(QSPara, ReadsAndWritesItsSwitches) {
    EXPECT_EQ(m_para.m_bLB, 0);
    EXPECT_EQ(m_para.m_bRQNow, 0);
    Switch("bRQNow", "1");
    EXPECT_EQ(m_para.Exchange(1), 1);
    EXPECT_EQ(m_para.m_bLoad, 1);
    EXPECT_EQ(m_para.m_bLB, 0);
    EXPECT_EQ(m_para.m_bRQNow, 1);
    m_para.m_bLB = 5;
    EXPECT_EQ(m_para.Exchange(0), 1);
    EXPECT_EQ(m_para.m_bLoad, 0);
    EXPECT_EQ(GetPrivateProfileIntA("QSSet", "bLB", 0, g_strSettingsIni), 5U);
}

TEST_F(QSPara, GetsThePeopleOfADrawingClass) {
    AddPerson("[ZT]", "制图", "'张三'");
    AddPerson("[RQ]", "日期", "'2024.3.9'");
    AddPerson("[SH]", "审核", "NULL");
    AddPerson("[ZT]", "制图", "'李四'", "剖面");
    EXPECT_EQ(People(), "[ZT]=张三 [RQ]=2024.3.9 [SH]=");
}

TEST_F(QSPara, AddsNothingWithoutPeopleOrDatabase) {
    m_saKeys.Add("[ZKBH]");
    m_saValues.Add("ZK1");
    EXPECT_EQ(People(), "[ZKBH]=ZK1");
    m_pCommon->Execute("drop table g_peizhi_people");
    EXPECT_EQ(People(), "[ZKBH]=ZK1");
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_F(QSPara, GivesARepeatedKeyItsPlaceAndTheLastName) {
    AddPerson("[ZT]", "制图", "'张三'");
    AddPerson("[SH]", "审核", "'李四'");
    AddPerson("[ZT]", "制图", "'王五'");
    EXPECT_EQ(People(), "[ZT]=王五 [SH]=李四");
}

TEST_F(QSPara, OverwritesFieldsThatAreThere) {
    m_saKeys.Add("[SH]");
    m_saValues.Add("无");
    AddPerson("[ZT]", "制图", "'张三'");
    AddPerson("[SH]", "审核", "'李四'");
    EXPECT_EQ(People(), "[SH]=李四 [ZT]=张三");
}

TEST_F(QSPara, PutsTodayInDatesOnly) {
    AddPerson("[ZT]", "制图", "'张三'");
    AddPerson("[RQ]", "日期", "'2024.3.9'");
    Switch("bRQNow", "1");
    const std::string strBefore = Today();
    const std::string strPeople = People();
    EXPECT_TRUE(strPeople == "[ZT]=张三 [RQ]=" + strBefore || strPeople == "[ZT]=张三 [RQ]=" + Today())
        << strPeople; // midnight may pass meanwhile
}

TEST_F(QSPara, LeavesDatesBlankWithAllNames) {
    AddPerson("[ZT]", "制图", "'张三'");
    AddPerson("[RQ]", "日期", "'2024.3.9'");
    Switch("bLB", "1");
    EXPECT_EQ(People(), "[ZT]= [RQ]=");
    Switch("bRQNow", "1");
    EXPECT_EQ(People(), "[ZT]= [RQ]=");
}
