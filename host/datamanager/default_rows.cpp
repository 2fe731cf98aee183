#include "host/datamanager/default_rows.h"

#include <array>
#include <initializer_list>

#include "host/datamanager/frame_choice.h"

namespace {

struct CPerson {
    const char* m_pKey;
    const char* m_pRole;
};
constexpr std::array g_arPeople = {CPerson{"[SH]", "审核"}, CPerson{"[FZR]", "项目负责人"},
                                   CPerson{"[BZRQ]", "日期"}};

enum : std::int64_t { Project = 0, Borehole = 1, NoQuery = 2 };

/// Each field is a text of its own key; those of one table that are shared come from one query.
struct CField {
    const char* m_pPlaceholder;
    const char* m_pTable;
    const char* m_pColumn;
    std::int64_t m_nScope;
    const char* m_pKey = "";
    bool m_bShared = false;
};
constexpr std::array g_arFields = {
    CField{"[GCMC]", "x_GongCheng", "GCMC", Project, "", true},
    CField{"[GCBH]", "x_GongCheng", "GCBH", Project, "", true},
    CField{"[WJBH]", "x_GongCheng", "GCBH", Project, "", true},
    CField{"[ZKBH]", "z_c_QuYang", "ZKBH", NoQuery}, // the chosen borehole itself
    CField{"[QYSL]", "z_c_QuYang", "count(*) as QYSL", Borehole, "QYSL"},
    CField{"[ZKSD]", "z_g_TuCeng", "max(TCCDSD) as ZKSD", Borehole, "ZKSD"},
};

void Insert(CDbConnection& database, const char* pStatement, std::initializer_list<CDbValue> values) {
    database.Execute(pStatement, std::span<const CDbValue>(values.begin(), values.size()));
}

} // namespace

void FillCommonDatabase(CDbConnection& database) {
    for (const CPerson& person : g_arPeople)
        Insert(database,
               "INSERT INTO g_peizhi_people (CGT, KEYCGT, PEOPLETYPE, PEOPLENAME) VALUES (?, ?, ?, ?)",
               {"三轴剪切试验曲线", person.m_pKey, person.m_pRole, ""});
}

void FillConfigDatabase(CDbConnection& database) {
    StoreFrameChoice(database, g_pPortraitFile);
    for (const CField& field : g_arFields)
        Insert(database,
               "INSERT INTO t_GraphTYPZ (t_peizhi, t_tablename, t_tablefield, t_type, t_fieldtype, t_Key, "
               "t_XiaoShu, t_Where, t_hb, t_LiuBai, t_OthInfo) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
               {field.m_pPlaceholder, field.m_pTable, field.m_pColumn, field.m_nScope, "文本", field.m_pKey,
                std::int64_t{0}, "", std::int64_t{field.m_bShared}, std::int64_t{0}, ""});
}
