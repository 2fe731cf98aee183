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

constexpr std::array kReadings = {
    Key("ZKBH", Text),         Key("QYBH", Text),        Key("SJBH", Int32),      Key("SHJHXH", Int32),
    Required("WY", Float),     Required("SYGD", Float),  Required("SYZJ", Float), Required("CLHXS", Float),
    Required("GJKXYL", Float), Required("CLHDS", Float), Required("ZXBX", Float), Required("JQPS", Float),
    Required("KXYL", Float),   Required("GJPS", Float),  Required("JLLX", Int8),
};
constexpr std::array<std::string_view, 11> kReadingValues = {
    "WY", "SYGD", "SYZJ", "CLHXS", "GJKXYL", "CLHDS", "ZXBX", "JQPS", "KXYL", "GJPS", "JLLX"};
constexpr std::array kReadingParts = {CImportPart{&g_tableSanZhouCSXM, kReadingValues}};

// The method may be empty though its column must be there.
constexpr std::array kSamples = {
    Key("ZKBH", Text),       Key("QYBH", Text),       CImportColumn{"SYFF", Text, false, true, true},
    Optional("QYSD", Float), Optional("QYHD", Float), Optional("QYHSL", Float),
    Optional("QYLX", UInt8), Optional("QYSY", Float), Optional("QYYX", Float),
};
constexpr std::array<std::string_view, 6> kSampleValues = {"QYSD", "QYHD", "QYHSL", "QYLX", "QYSY", "QYYX"};
constexpr std::array<std::string_view, 1> kSampleMethod = {"SYFF"};
constexpr std::array kSampleParts = {CImportPart{&g_tableQuYang, kSampleValues},
                                     CImportPart{&g_tableSanZhou, kSampleMethod}};

constexpr std::array kLayers = {
    Key("ZKBH", Text),
    Key("TCCDSD", Float),
    Required("TCHD", Float),
    Required("TCMC", Text),
};
constexpr std::array<std::string_view, 2> kLayerValues = {"TCHD", "TCMC"};
constexpr std::array kLayerParts = {CImportPart{&g_tableTuCeng, kLayerValues}};

constexpr std::array kKinds = {
    CImportKind{"readings", "CLHDS", kReadings, kReadingParts},
    CImportKind{"samples", "SYFF", kSamples, kSampleParts},
    CImportKind{"layers", "TCCDSD", kLayers, kLayerParts},
};

} // namespace

int CImportKind::FindColumn(std::string_view strName) const {
    for (std::size_t i = 0; i < m_arColumns.size(); ++i)
        if (EqualNoCase(m_arColumns[i].m_strName, strName)) return static_cast<int>(i);
    return -1;
}

std::span<const CImportKind> ImportKinds() {
    return kKinds;
}
