#include "host/datamanager/schema.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace {

using enum ColumnKind;

constexpr std::array g_arSanZhou = {
    CColumn{"GCSY", Int32}, CColumn{"ZKBH", Text},  CColumn{"QYBH", Text},  CColumn{"SYFF", Text},
    CColumn{"SYRQ", Text},  CColumn{"UUC", Float},  CColumn{"UUF", Float},  CColumn{"CUC", Float},
    CColumn{"CUF", Float},  CColumn{"CUCE", Float}, CColumn{"CUFE", Float}, CColumn{"CDC", Float},
    CColumn{"CDF", Float},
};

constexpr std::array g_arSanZhouCSXM = {
    CColumn{"GCSY", Int32},   CColumn{"ZKBH", Text},    CColumn{"QYBH", Text},   CColumn{"SJBH", Int32},
    CColumn{"SHJHXH", Int32}, CColumn{"WY", Float},     CColumn{"SYGD", Float},  CColumn{"SYZJ", Float},
    CColumn{"CLHXS", Float},  CColumn{"GJKXYL", Float}, CColumn{"CLHDS", Float}, CColumn{"ZXBX", Float},
    CColumn{"JQPS", Float},   CColumn{"KXYL", Float},   CColumn{"GJPS", Float},  CColumn{"JLLX", Int8},
};

constexpr std::array g_arQuYang = {
    CColumn{"GCSY", Int32}, CColumn{"ZKBH", Text},  CColumn{"QYBH", Text},
    CColumn{"QYSD", Float}, CColumn{"QYHD", Float}, CColumn{"QYHSL", Float},
    CColumn{"QYLX", UInt8}, CColumn{"QYSY", Float}, CColumn{"QYYX", Float},
};

constexpr std::array g_arTuCeng = {
    CColumn{"GCSY", Int32}, CColumn{"ZKBH", Text}, CColumn{"TCCDSD", Float},
    CColumn{"TCHD", Float}, CColumn{"TCMC", Text},
};

constexpr std::array g_arGongCheng = {
    CColumn{"GCSY", Int32}, CColumn{"GCBH", Text},  CColumn{"GCMC", Text},
    CColumn{"GCBZ", Int16}, CColumn{"GCSJ", Int32},
};

constexpr std::array g_arPeople = {
    CColumn{"CGT", Text},
    CColumn{"KEYCGT", Text},
    CColumn{"PEOPLETYPE", Text},
    CColumn{"PEOPLENAME", Text},
};

constexpr std::array g_arTempletConfig = {
    CColumn{"FileName", Text}, CColumn{"Path", Text}, CColumn{"GCBZ", Int32},
    CColumn{"Fun", Text},      CColumn{"Type", Text},
};

constexpr std::array g_arGraphTYPZ = {
    CColumn{"t_peizhi", Text},   CColumn{"t_tablename", Text}, CColumn{"t_tablefield", Text},
    CColumn{"t_type", Int32},    CColumn{"t_fieldtype", Text}, CColumn{"t_Key", Text},
    CColumn{"t_XiaoShu", Int32}, CColumn{"t_Where", Text},     CColumn{"t_hb", Int32},
    CColumn{"t_LiuBai", Int32},  CColumn{"t_OthInfo", Text},
};

constexpr CTable g_tablePeople = {"g_peizhi_people", g_arPeople};
constexpr CTable g_tableTempletConfig = {"g_TervoTempletConfig", g_arTempletConfig};
constexpr CTable g_tableGraphTYPZ = {"t_GraphTYPZ", g_arGraphTYPZ};

} // namespace

constexpr CTable g_tableSanZhou = {"z_c_SanZhou", g_arSanZhou};
constexpr CTable g_tableSanZhouCSXM = {"z_c_SanZhouCSXM", g_arSanZhouCSXM};
constexpr CTable g_tableQuYang = {"z_c_QuYang", g_arQuYang};
constexpr CTable g_tableTuCeng = {"z_g_TuCeng", g_arTuCeng};
constexpr CTable g_tableGongCheng = {"x_GongCheng", g_arGongCheng};

const CColumn& CTable::Column(std::string_view strName) const {
    const auto it = std::ranges::find(m_arColumns, strName, &CColumn::m_strName);
    if (it == m_arColumns.end()) throw std::logic_error("no such column in the table");
    return *it;
}

bool CTable::HasColumn(std::string_view strName) const {
    return std::ranges::find(m_arColumns, strName, &CColumn::m_strName) != m_arColumns.end();
}

std::span<const CTable* const> ProjectTables() {
    static constexpr std::array g_arTables = {&g_tableSanZhou, &g_tableSanZhouCSXM, &g_tableQuYang,
                                              &g_tableTuCeng, &g_tableGongCheng};
    return g_arTables;
}

std::span<const CTable* const> CommonTables() {
    static constexpr std::array g_arTables = {&g_tablePeople};
    return g_arTables;
}

std::span<const CTable* const> ConfigTables() {
    static constexpr std::array g_arTables = {&g_tableTempletConfig, &g_tableGraphTYPZ};
    return g_arTables;
}
