#include "host/plot/fonts.h"

#include "platform/windows/code_page.h"
#include "tests/host/plot/plot_fixture.h"

class FontsTest : public PlotTest {
protected:
    std::vector<std::string> m_arWarnings;
    CFonts m_fonts{[this](const std::string& strText) { m_arWarnings.push_back(strText); }};
};

TEST_F(FontsTest, OurOwnFontsAreInstalled) {
    m_fonts.Chain({CHART_FONT, ""});
    EXPECT_EQ(m_arWarnings, std::vector<std::string>());
}

TEST_F(FontsTest, MapsChineseAndShapeFontsToOneFamilyInAnyCaseWithoutAWarning) {
    for (const char* strName : {"仿宋_GB2312", "ComFont.shx", "COMFONT.SHX", "Hztxt12a.shx", "txt.shx", "txt",
                                "simplex.shx", "hztxt.shx", "st64f.shx", ""})
        EXPECT_EQ(m_fonts.Chain({strName, ""}).Families().front(), u"AR PL SungtiL GB") << strName;
    EXPECT_TRUE(m_arWarnings.empty());
}

TEST_F(FontsTest, TakesAnInstalledFontByItsNameInAnyCase) {
    EXPECT_EQ(m_fonts.Chain({"ar pl sungtil gb", ""}).Families().front(), u"AR PL SungtiL GB");
    EXPECT_EQ(m_fonts.Chain({"BABELSTONE han", ""}).Families().front(), u"BabelStone Han");
    EXPECT_TRUE(m_arWarnings.empty());
}

TEST_F(FontsTest, NamesAMissingFontOnceAndReplacesIt) {
    EXPECT_EQ(m_fonts.Chain({"华文琥珀", ""}).Families().front(), u"AR PL SungtiL GB");
    m_fonts.AdvanceWidth({"华文琥珀", ""}, "三轴");
    m_fonts.Chain({"txt.shx", "华文琥珀"});
    ASSERT_EQ(m_arWarnings.size(), 1u);
    EXPECT_NE(m_arWarnings.front().find("华文琥珀"), std::string::npos);
}

TEST_F(FontsTest, NamesAMissingBigFontToo) {
    m_fonts.Chain({"txt.shx", "nowhere.shx"});
    ASSERT_EQ(m_arWarnings.size(), 1u);
    EXPECT_NE(m_arWarnings.front().find("nowhere.shx"), std::string::npos);
}

TEST_F(FontsTest, HaveAGlyphForEveryCharacterOfTheCodePage) {
    CFontChain& chain = m_fonts.Chain({CHART_FONT, ""});
    int nHanzi = 0;
    int nAll = 0;
    for (int nLead = 0x81; nLead <= 0xFE; ++nLead)
        for (int nTrail = 0x40; nTrail <= 0xFE; ++nTrail) {
            const std::string strPair = {static_cast<char>(nLead), static_cast<char>(nTrail)};
            const std::wstring strWide = WideFromGbk(strPair);
            if (strWide.size() != 1 || strWide[0] == 0xFFFD) continue;
            const auto character = static_cast<char32_t>(strWide[0]);
            EXPECT_TRUE(chain.Covers(character)) << std::hex << nLead << nTrail;
            EXPECT_NE(chain.Glyph(character).m_nIndex, 0u) << std::hex << nLead << nTrail;
            ++nAll;
            if ((character >= 0x4E00 && character <= 0x9FFF) || (character >= 0xF900 && character <= 0xFAFF))
                ++nHanzi;
        }
    EXPECT_GE(nAll, 21791);
    EXPECT_GE(nHanzi, 20923); // all of the standard's hanzi that the code page maps
}

TEST_F(FontsTest, HaveAGlyphForTheHanziThatTheCodePageLeavesUnmapped) {
    // The standard's last eighty: radicals and characters that came into Unicode later.
    const std::u32string strRest =
        U"\u2E81\U00020087\U00020089\U000200CC\u2E84\u3473\u3447\u2E88\u2E8B\u9FB4\u359E\u361A\u360E\u2E8C"
        U"\u2E97\u396E"
        U"\u3918\u9FB5\u39CF\u39DF\u3A73\u39D0\u9FB6\u9FB7\u3B4E\u3C6E\u3CE0\u2EA7\U000215D7\u9FB8\u2EAA"
        U"\u4056"
        U"\u415F\u2EAE\u4337\u2EB3\u2EB6\u2EB7\U0002298F\u43B1\u43AC\u2EBB\u43DD\u44D6\u4661\u464C\u9FB9"
        U"\u4723"
        U"\u4729\u477C\u478D\u2ECA\u4947\u497A\u497D\u4982\u4983\u4985\u4986\u499F\u499B\u49B7\u49B6\u9FBA"
        U"\U000241FE\u4CA3\u4C9F\u4CA0\u4CA1\u4C77\u4CA2\u4D13\u4D14\u4D15\u4D16\u4D17\u4D18\u4D19\u4DAE"
        U"\u9FBB";
    CFontChain& chain = m_fonts.Chain({CHART_FONT, ""});
    EXPECT_EQ(strRest.size(), 80u);
    for (const char32_t character : strRest)
        EXPECT_TRUE(chain.Covers(character)) << std::hex << static_cast<unsigned>(character);
}

TEST_F(FontsTest, CapitalsAreAsHighAsTheText) {
    CFontChain& chain = m_fonts.Chain({CHART_FONT, ""});
    const CGlyph& glyph = chain.Glyph(U'H');
    const double dCapital =
        glyph.m_pFont->pathForGlyph(glyph.m_nIndex).boundingRect().height() / CFonts::PixelSize;
    EXPECT_NEAR(dCapital * chain.EmPerCapital(), 1.0, 1e-9);
}

TEST_F(FontsTest, AdvanceWidthIsTheSumOverTheCharacters) {
    const CTextFont font{CHART_FONT, ""};
    const double dHan = m_fonts.AdvanceWidth(font, "轴");
    const double dDigit = m_fonts.AdvanceWidth(font, "1");
    const double dEm = m_fonts.Chain(font).EmPerCapital();
    EXPECT_NEAR(dHan, dEm, 1e-9);         // a full square
    EXPECT_NEAR(dDigit, dEm / 2.0, 1e-9); // half a square
    EXPECT_NEAR(m_fonts.AdvanceWidth(font, "轴1轴"), 2.0 * dHan + dDigit, 1e-12);
    EXPECT_EQ(m_fonts.AdvanceWidth(font, ""), 0.0);
}

TEST_F(FontsTest, ControlCharactersTakeNoWidth) {
    const CTextFont font{CHART_FONT, ""};
    EXPECT_EQ(m_fonts.AdvanceWidth(font, "a\t\nb"), m_fonts.AdvanceWidth(font, "ab"));
}

TEST_F(FontsTest, ARareHanziComesFromTheSecondFontAtTheFirstFontsScale) {
    CFontChain& chain = m_fonts.Chain({CHART_FONT, ""});
    const CGlyph& common = chain.Glyph(U'轴');
    const CGlyph& rare = chain.Glyph(U'镕'); // not among the standard's first set
    EXPECT_NE(rare.m_pFont, common.m_pFont);
    EXPECT_EQ(rare.m_pFont->familyName(), u"BabelStone Han");
    EXPECT_NEAR(rare.m_dAdvance, common.m_dAdvance, 1e-9);
}
