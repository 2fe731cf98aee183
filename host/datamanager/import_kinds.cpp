#include "host/datamanager/import_kinds.h"

#include <array>

#include "platform/ado/text.h"

namespace {

using enum ColumnKind;

constexpr CImportColumn Key(std::string_view strName, ColumnKind kind) {
    return {strName, kind, true, true, false};
}
constexpr CImportColumn Required(std::string_view strName, ColumnKind kind) {
    return {strName, kind, false, true, false};
}
constexpr CImportColumn Optional(std::string_view strName, ColumnKind kind) {
    return {strName, kind, false, false, true};
}

constexpr std::array g_arReadings = {
    Key("ZKBH", Text),         Key("QYBH", Text),        Key("SJBH", Int32),      Key("SHJHXH", Int32),
    Required("WY", Float),     Required("SYGD", Float),  Required("SYZJ", Float), Required("CLHXS", Float),
    Required("GJKXYL", Float), Required("CLHDS", Float), Required("ZXBX", Float), Required("JQPS", Float),
    Required("KXYL", Float),   Required("GJPS", Float),  Required("JLLX", Int8),
};
constexpr std::array<std::string_view, 11> g_arReadingValues = {
    "WY", "SYGD", "SYZJ", "CLHXS", "GJKXYL", "CLHDS", "ZXBX", "JQPS", "KXYL", "GJPS", "JLLX"};
constexpr std::array g_arReadingParts = {CImportPart{&g_tableSanZhouCSXM, g_arReadingValues}};

// The method may be empty though its column must be there.
constexpr std::array g_arSamples = {
    Key("ZKBH", Text),       Key("QYBH", Text),       CImportColumn{"SYFF", Text, false, true, true},
    Optional("QYSD", Float), Optional("QYHD", Float), Optional("QYHSL", Float),
    Optional("QYLX", UInt8), Optional("QYSY", Float), Optional("QYYX", Float),
};
constexpr std::array<std::string_view, 6> g_arSampleValues = {"QYSD", "QYHD", "QYHSL",
                                                              "QYLX", "QYSY", "QYYX"};
constexpr std::array<std::string_view, 1> g_arSampleMethod = {"SYFF"};
constexpr std::array g_arSampleParts = {CImportPart{&g_tableQuYang, g_arSampleValues},
                                        CImportPart{&g_tableSanZhou, g_arSampleMethod}};

constexpr std::array g_arLayers = {
    Key("ZKBH", Text),
    Key("TCCDSD", Float),
    Required("TCHD", Float),
    Required("TCMC", Text),
};
constexpr std::array<std::string_view, 2> g_arLayerValues = {"TCHD", "TCMC"};
constexpr std::array g_arLayerParts = {CImportPart{&g_tableTuCeng, g_arLayerValues}};

constexpr std::array g_arKinds = {
    CImportKind{"readings", "CLHDS", g_arReadings, g_arReadingParts},
    CImportKind{"samples", "SYFF", g_arSamples, g_arSampleParts},
    CImportKind{"layers", "TCCDSD", g_arLayers, g_arLayerParts},
};

} // namespace

int CImportKind::FindColumn(std::string_view strName) const {
    for (std::size_t i = 0; i < m_arColumns.size(); ++i)
        if (EqualNoCase(m_arColumns[i].m_strName, strName)) return static_cast<int>(i);
    return -1;
}

std::span<const CImportKind> ImportKinds() {
    return g_arKinds;
}
