#include "host/files/dwg_variables.h"

#include "host/files/bit_reader.h"
#include "tests/host/files/dwg_refusal.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>

namespace {

/// The codes of the section's values in order: d BD, r RD, t T, l BL, h H, b B, s BS. A number repeats the
/// code before it; names mark the next value.
constexpr const char* g_pLayout =
    "d4 t4 l2 h b20 s8 s5 s14 {LTSCALE} d9 {USERR1} d5 d7 t l8 {CECOLOR} s {HANDSEED} h {CLAYER} h "
    "{TEXTSTYLE} h "
    "{CELTYPE} h h h d {PINSBASE} d9 r4 d10 h2 s h d18 {INSBASE} d9 {LIMMIN} r4 d10 h2 s h d18 "
    "t2 {DIMSCALE} d9 b6 s3 {DIMTXT} d9 b s b4 s3 s11 b2 s4 b {DIMATFIT} s h5 {DIMLWD} s2 {BLOCKS} h h9 h2 "
    "{NAMED} h "
    "s2 t2 h3 {FLAGS} l s2 {FINGERPRINT} t t h {MODEL} h h3 s4";

/// The named values, doubles and numbers as text, and the bits that are left behind the last one.
std::map<std::string, std::string> Decode(const CBytes& data, std::size_t* pLeft) {
    std::map<std::string, std::string> values;
    std::string strName;
    CBitReader bits(data);
    const auto take = [&](char code) -> std::string {
        double d = 0.0;
        std::uint16_t nShort = 0;
        std::uint32_t nLong = 0;
        bool b = false;
        CDwgHandle handle;
        std::string strText;
        switch (code) {
        case 'd':
            return bits.BD(d), std::to_string(d);
        case 'r':
            return bits.RD(d), std::to_string(d);
        case 't':
            return bits.T(strText), strText;
        case 'l':
            return bits.BL(nLong), std::to_string(nLong);
        case 'h':
            return bits.H(handle), std::to_string(handle.m_nCode) + "." + std::to_string(handle.m_nValue);
        case 'b':
            return bits.B(b), std::to_string(b);
        default:
            return bits.BS(nShort), std::to_string(nShort);
        }
    };
    for (const char* p = g_pLayout; *p; ++p) {
        if (*p == ' ') continue;
        if (*p == '{') {
            const char* const pEnd = std::strchr(p, '}');
            strName.assign(p + 1, pEnd);
            p = pEnd;
            continue;
        }
        const char code = *p;
        const int nCount = std::isdigit(static_cast<unsigned char>(p[1])) ? std::atoi(p + 1) : 1;
        for (int i = 0; i < nCount; ++i) {
            const std::string strValue = take(code);
            if (!strName.empty()) values[std::exchange(strName, {})] = strValue;
        }
        while (std::isdigit(static_cast<unsigned char>(p[1])))
            ++p;
    }
    *pLeft = bits.Failed() ? 999 : bits.Left();
    return values;
}

CDwgVariables SomeVariables() {
    CDwgVariables vars;
    vars.m_dLtscale = 2.5;
    vars.m_arUserr[0] = 7.0;
    vars.m_nCecolor = 3;
    vars.m_hHandseed.m_nValue = 0x53;
    vars.m_hClayer.m_nValue = 0x10;
    vars.m_hTextstyle.m_nValue = 0x11;
    vars.m_hCeltype.m_nValue = 0x15;
    vars.m_paper.m_ptInsbase.x = 5.0;
    vars.m_model.m_ptInsbase.x = 6.0;
    vars.m_model.m_ptLimmin.x = 8.0;
    vars.m_dimension.m_dDimscale = 9.0;
    vars.m_roots.m_hBlocks.m_nValue = 1;
    vars.m_roots.m_hNamedObjects.m_nValue = 0xC;
    vars.m_roots.m_hModelSpace.m_nValue = 0x1F;
    vars.m_strFingerprint = "print";
    return vars;
}

} // namespace

TEST(DwgVariables, StandInTheOrderOfTheFormat) {
    std::size_t nLeft = 0;
    const auto values = Decode(WriteDwgVariables(SomeVariables()), &nLeft);
    EXPECT_LT(nLeft, 8u);
    const std::map<std::string, std::string> expected = {
        {"LTSCALE", "2.500000"}, {"USERR1", "7.000000"},   {"CECOLOR", "3"},         {"HANDSEED", "0.83"},
        {"CLAYER", "5.16"},      {"TEXTSTYLE", "5.17"},    {"CELTYPE", "5.21"},      {"PINSBASE", "5.000000"},
        {"INSBASE", "6.000000"}, {"LIMMIN", "8.000000"},   {"DIMSCALE", "9.000000"}, {"DIMTXT", "0.180000"},
        {"DIMATFIT", "3"},       {"DIMLWD", "65534"},      {"BLOCKS", "3.1"},        {"NAMED", "3.12"},
        {"FLAGS", "10781"},      {"FINGERPRINT", "print"}, {"MODEL", "5.31"}};
    EXPECT_EQ(values, expected);
}

TEST(DwgVariables, AreReadAsTheyWereWritten) {
    const CBytes data = WriteDwgVariables(SomeVariables());
    const CDwgVariables vars = ReadDwgVariables(data);
    EXPECT_EQ(vars.m_dLtscale, 2.5);
    EXPECT_EQ(vars.m_hClayer, HardPointer(0x10));
    EXPECT_EQ(vars.m_model.m_ptInsbase.x, 6.0);
    EXPECT_EQ(vars.m_strFingerprint, "print");
    EXPECT_EQ(WriteDwgVariables(vars), data);
}

TEST(DwgVariables, NameAPlotStyleOnlyWhereOneIsSet) {
    CDwgVariables vars;
    const std::size_t nWithout = WriteDwgVariables(vars).size();
    vars.m_nCepsntype = 3;
    vars.m_hCpsnid.m_nValue = 0xF;
    const CBytes data = WriteDwgVariables(vars);
    EXPECT_GT(data.size(), nWithout);
    EXPECT_EQ(ReadDwgVariables(data).m_hCpsnid, HardPointer(0xF));
}

TEST(DwgVariables, KeepANegativeZero) {
    CDwgVariables vars;
    vars.m_model.m_ptInsbase.y = -0.0;
    EXPECT_TRUE(std::signbit(ReadDwgVariables(WriteDwgVariables(vars)).m_model.m_ptInsbase.y));
}

TEST(DwgVariables, AreRefusedWhenTheDataEndTooEarly) {
    CBytes data = WriteDwgVariables({});
    while (!data.empty()) {
        data.pop_back();
        EXPECT_EQ(RefusalOf([&] { ReadDwgVariables(data); }),
                  "Header variables: the data end too early or hold no legal value.");
    }
}

TEST(DwgVariables, RefuseATextThatIsTooLongForAFile) {
    CDwgVariables vars;
    vars.m_strMenuname.assign(0x10000, 'x');
    EXPECT_EQ(RefusalOf([&] { WriteDwgVariables(vars); }), "Header variables: a text is too long.");
}
