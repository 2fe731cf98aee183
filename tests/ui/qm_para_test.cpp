#include "ui/qm_para.h"

#include <array>

#include "tests/support/suite_fixture.h"

namespace {

/// A value of each kind.
class CFourValues final : public CQMPara {
public:
    int Exchange(int bLoad) override {
        m_bLoad = bLoad;
        return ExchangeFloat("S", "f", 0.5F, &m_fValue, m_bProjectFile) +
               ExchangeDouble("S", "d", -1.25, &m_dValue, m_bProjectFile) +
               ExchangeString("S", "s", "缺省", &m_strValue, m_bProjectFile) +
               ExchangeInt("S", "i", -7, &m_nValue, m_bProjectFile);
    }

    int m_bProjectFile = 0;
    float m_fValue = 9;
    double m_dValue = 9;
    CString m_strValue = "九";
    int m_nValue = 9;
};

class QMPara : public CSuiteTest {
protected:
    static std::string Stored(const char* pszKey, const CString& strFile = g_strSettingsIni) {
        std::array<char, 1024> szText{};
        GetPrivateProfileStringA("S", pszKey, "(none)", szText.data(), szText.size(), strFile);
        return szText.data();
    }

    CFourValues m_values;
};

} // namespace

TEST_F(QMPara, ReadsDefaultsOfMissingKeys) {
    EXPECT_EQ(m_values.Exchange(1), 4);
    EXPECT_EQ(m_values.m_fValue, 0.5F);
    EXPECT_EQ(m_values.m_dValue, -1.25);
    EXPECT_EQ(m_values.m_strValue, "缺省");
    EXPECT_EQ(m_values.m_nValue, -7);
    EXPECT_EQ(Stored("f"), "(none)");
}

TEST_F(QMPara, WritesWhatItReadsBack) {
    m_values.m_fValue = 0.1F;
    m_values.m_dValue = 1.0 / 3;
    m_values.m_strValue = "固结 排水";
    m_values.m_nValue = -70000;
    EXPECT_EQ(m_values.Exchange(0), 4);
    EXPECT_EQ(Stored("f"), "0.100000");
    EXPECT_EQ(Stored("d"), "0.333333");
    EXPECT_EQ(Stored("s"), "固结 排水");
    EXPECT_EQ(Stored("i"), "-70000");
    CFourValues read;
    EXPECT_EQ(read.Exchange(1), 4);
    EXPECT_EQ(read.m_fValue, 0.1F);
    EXPECT_EQ(read.m_dValue, 0.333333);
    EXPECT_EQ(read.m_strValue, "固结 排水");
    EXPECT_EQ(read.m_nValue, -70000);
}

TEST_F(QMPara, LeavesTheVariablesAsTheyAreWhenItWrites) {
    m_values.m_dValue = 1.0 / 3;
    m_values.m_fValue = 1.0F / 3;
    m_values.Exchange(0);
    EXPECT_EQ(m_values.m_dValue, 1.0 / 3);
    EXPECT_EQ(m_values.m_fValue, 1.0F / 3);
}

TEST_F(QMPara, GoesToTheProjectsFileOnRequest) {
    m_values.m_bProjectFile = 1;
    m_values.Exchange(0);
    EXPECT_EQ(Stored("i", g_strProjectIni), "9");
    EXPECT_EQ(Stored("i"), "(none)");
    WritePrivateProfileStringA("S", "i", "12", g_strProjectIni);
    m_values.Exchange(1);
    EXPECT_EQ(m_values.m_nValue, 12);
}

TEST_F(QMPara, Reads254BytesOfATextAtACharacter) {
    const std::string strLong = "a" + std::string(300, 'b');
    WritePrivateProfileStringA("S", "s", strLong.c_str(), g_strSettingsIni);
    m_values.Exchange(1);
    EXPECT_EQ(m_values.m_strValue, strLong.substr(0, 254).c_str());
    std::string strWide = "a";
    for (int i = 0; i < 200; ++i)
        strWide += "固";
    m_values.m_strValue = strWide;
    m_values.Exchange(0);
    EXPECT_EQ(Stored("s"), strWide);
    m_values.Exchange(1);
    EXPECT_EQ(m_values.m_strValue, strWide.substr(0, 253).c_str());
}

TEST_F(QMPara, IgnoresAFileThatCannotBeWritten) {
    g_strSettingsIni = m_root.Path("missing/Settings.ini");
    EXPECT_EQ(m_values.Exchange(0), 4);
    EXPECT_EQ(m_values.Exchange(1), 4);
    EXPECT_EQ(m_values.m_nValue, -7);
}
