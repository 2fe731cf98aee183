#include "host/files/dwg_extended_data.h"

#include "tests/host/files/hex_bytes.h"

#include <gtest/gtest.h>

namespace {

const CDrawingText g_text(g_nChinesePage);

CDwgExtendedContext Context() {
    return {g_text, g_nDwgAnsi936, [](const std::wstring& strName) { return strName == L"0" ? 0x10u : 0u; },
            [](std::uint64_t nHandle) { return nHandle == 0x10 ? std::wstring(L"0") : std::wstring(); }};
}

CBytes Packed(const std::vector<CXDataItem>& items) {
    return PackExtendedData(items, Context());
}

} // namespace

TEST(DwgExtendedData, StandInTheCodesOfTheFormat) {
    EXPECT_EQ(Packed({{1000, L"\u56FAa"}}), HexBytes("00 03 00 27 B9 CC 61"));
    EXPECT_EQ(Packed({{1002, L"{"}, {1002, L"}"}}), HexBytes("02 00 02 01"));
    EXPECT_EQ(Packed({{1003, L"0"}}), HexBytes("03 00 00 00 00 00 00 00 10"));
    EXPECT_EQ(Packed({{1005, L"1A2"}}), HexBytes("05 00 00 00 00 00 00 01 A2"));
    EXPECT_EQ(Packed({{1040, 1.0}}), HexBytes("28 00 00 00 00 00 00 F0 3F"));
    EXPECT_EQ(Packed({{1070, Adesk::Int16{-2}}}), HexBytes("46 FE FF"));
    EXPECT_EQ(Packed({{1071, Adesk::Int32{-2}}}), HexBytes("47 FE FF FF FF"));
}

TEST(DwgExtendedData, GiveEveryValueBack) {
    const std::vector<CXDataItem> items = {{1000, L"\u56FA\u00E9"},
                                           {1002, L"{"},
                                           {1003, L"0"},
                                           {1005, L"1A2"},
                                           {1010, AcGePoint3d(1.0, -0.0, 3.0)},
                                           {1041, 2.5},
                                           {1070, Adesk::Int16{7}},
                                           {1071, Adesk::Int32{70000}},
                                           {1002, L"}"}};
    const std::vector<CXDataItem> back = UnpackExtendedData(Packed(items), Context());
    ASSERT_EQ(back.size(), items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        EXPECT_EQ(back[i].m_nCode, items[i].m_nCode);
        EXPECT_EQ(back[i].m_value, items[i].m_value);
    }
}

TEST(DwgExtendedData, ReadTextsOfAnotherCodePage) {
    const std::vector<CXDataItem> items = UnpackExtendedData(HexBytes("00 01 00 1E E9"), Context());
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(std::get<std::wstring>(items[0].m_value), L"\u00E9");
}

TEST(DwgExtendedData, EndAtWhatThereIsNoTellingOf) {
    EXPECT_EQ(UnpackExtendedData(HexBytes("02 00 63 00 02 01"), Context()).size(), 1u);
    EXPECT_EQ(UnpackExtendedData(HexBytes("02 00 28 00"), Context()).size(), 1u);
    EXPECT_EQ(UnpackExtendedData(HexBytes("00 FF 00 1E 41"), Context()).size(), 0u);
}

TEST(DwgExtendedData, HoldOfATextWhatThereIsRoomFor) {
    const auto textOf = [](const std::wstring& strText) {
        return std::get<std::wstring>(UnpackExtendedData(Packed({{1000, strText}}), Context())[0].m_value);
    };
    EXPECT_EQ(textOf(std::wstring(255, L'x')), std::wstring(255, L'x'));
    EXPECT_EQ(textOf(std::wstring(256, L'x')), std::wstring(255, L'x'));
    EXPECT_EQ(textOf(std::wstring(200, L'\u56FA')), std::wstring(127, L'\u56FA')) << "two bytes each";
    EXPECT_EQ(textOf(std::wstring(100, L'\u0159')), std::wstring(36, L'\u0159')) << "seven bytes each";
}
