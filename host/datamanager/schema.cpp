#include "host/datamanager/schema.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace {

using enum ColumnKind;

constexpr std::array kSanZhou = {
    CColumn{"GCSY", Int32}, CColumn{"ZKBH", Text},  CColumn{"QYBH", Text},  CColumn{"SYFF", Text},
    CColumn{"SYRQ", Text},  CColumn{"UUC", Float},  CColumn{"UUF", Float},  CColumn{"CUC", Float},
    CColumn{"CUF", Float},  CColumn{"CUCE", Float}, CColumn{"CUFE", Float}, CColumn{"CDC", Float},
    CColumn{"CDF", Float},
};

constexpr std::array kSanZhouCSXM = {
    CColumn{"GCSY", Int32},   CColumn{"ZKBH", Text},    CColumn{"QYBH", Text},   CColumn{"SJBH", Int32},
    CColumn{"SHJHXH", Int32}, CColumn{"WY", Float},     CColumn{"SYGD", Float},  CColumn{"SYZJ", Float},
    CColumn{"CLHXS", Float},  CColumn{"GJKXYL", Float}, CColumn{"CLHDS", Float}, CColumn{"ZXBX", Float},
    CColumn{"JQPS", Float},   CColumn{"KXYL", Float},   CColumn{"GJPS", Float},  CColumn{"JLLX", Int8},
};

constexpr std::array kQuYang = {
    CColumn{"GCSY", Int32}, CColumn{"ZKBH", Text},  CColumn{"QYBH", Text},
    CColumn{"QYSD", Float}, CColumn{"QYHD", Float}, CColumn{"QYHSL", Float},
    CColumn{"QYLX", UInt8}, CColumn{"QYSY", Float}, CColumn{"QYYX", Float},
};

constexpr std::array kTuCeng = {
    CColumn{"GCSY", Int32}, CColumn{"ZKBH", Text}, CColumn{"TCCDSD", Float},
    CColumn{"TCHD", Float}, CColumn{"TCMC", Text},
};

constexpr std::array kGongCheng = {
    CColumn{"GCSY", Int32}, CColumn{"GCBH", Text},  CColumn{"GCMC", Text},
    CColumn{"GCBZ", Int16}, CColumn{"GCSJ", Int32},
};

constexpr std::array kPeople = {
    CColumn{"CGT", Text},
    CColumn{"KEYCGT", Text},
    CColumn{"PEOPLETYPE", Text},
    CColumn{"PEOPLENAME", Text},
};

constexpr std::array kTempletConfig = {
    CColumn{"FileName", Text}, CColumn{"Path", Text}, CColumn{"GCBZ", Int32},
    CColumn{"Fun", Text},      CColumn{"Type", Text},
};

constexpr std::array kGraphTYPZ = {
    CColumn{"t_peizhi", Text},   CColumn{"t_tablename", Text}, CColumn{"t_tablefield", Text},
    CColumn{"t_type", Int32},    CColumn{"t_fieldtype", Text}, CColumn{"t_Key", Text},
    CColumn{"t_XiaoShu", Int32}, CColumn{"t_Where", Text},     CColumn{"t_hb", Int32},
    CColumn{"t_LiuBai", Int32},  CColumn{"t_OthInfo", Text},
};

constexpr CTable kTablePeople = {"g_peizhi_people", kPeople};
constexpr CTable kTableTempletConfig = {"g_TervoTempletConfig", kTempletConfig};
constexpr CTable kTableGraphTYPZ = {"t_GraphTYPZ", kGraphTYPZ};

} // namespace

constexpr CTable g_tableSanZhou = {"z_c_SanZhou", kSanZhou};
constexpr CTable g_tableSanZhouCSXM = {"z_c_SanZhouCSXM", kSanZhouCSXM};
constexpr CTable g_tableQuYang = {"z_c_QuYang", kQuYang};
constexpr CTable g_tableTuCeng = {"z_g_TuCeng", kTuCeng};
constexpr CTable g_tableGongCheng = {"x_GongCheng", kGongCheng};

const CColumn& CTable::Column(std::string_view strName) const {
    const auto it = std::ranges::find(m_arColumns, strName, &CColumn::m_strName);
    if (it == m_arColumns.end()) throw std::logic_error("no such column in the table");
    return *it;
}

bool CTable::HasColumn(std::string_view strName) const {
    return std::ranges::find(m_arColumns, strName, &CColumn::m_strName) != m_arColumns.end();
}

std::span<const CTable* const> ProjectTables() {
    static constexpr std::array kTables = {&g_tableSanZhou, &g_tableSanZhouCSXM, &g_tableQuYang,
                                           &g_tableTuCeng, &g_tableGongCheng};
    return kTables;
}

std::span<const CTable* const> CommonTables() {
    static constexpr std::array kTables = {&kTablePeople};
    return kTables;
}

std::span<const CTable* const> ConfigTables() {
    static constexpr std::array kTables = {&kTableTempletConfig, &kTableGraphTYPZ};
    return kTables;
}
