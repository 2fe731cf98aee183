#pragma once
// The fields of title blocks, as the suite's configuration (t_GraphTYPZ) has them.

#include "platform/acad/adesk.h"
#include "platform/mfc/collections.h"

// What a field's query is restricted to; other numbers restrict it to nothing.
inline constexpr Adesk::Int32 g_nScopeProject = 0;
inline constexpr Adesk::Int32 g_nScopeBorehole = 1;
inline constexpr Adesk::Int32 g_nScopeNoQuery = 2; ///< the field stays empty
inline constexpr Adesk::Int32 g_nScopeConfig = 5;  ///< a shared query, on the configuration database

// What a field's value is; any other kind is a number.
inline constexpr const char* g_pKindText = "文本";
inline constexpr const char* g_pKindBlock = "图块";      ///< a text; whoever uses it knows the block
inline constexpr const char* g_pKindLabels = "类型拼接"; ///< of all rows, codes told by their labels

/// One field: what stands for a placeholder of a title block, and how to find it.
struct CGraphFiled {
    CString t_peizhi;                      ///< the placeholder
    CString t_tablename;                   ///< table or table expression
    CString t_tablefield;                  ///< column list or expression of the query
    CString t_Key;                         ///< the column of the result
    Adesk::Int32 t_type = g_nScopeProject; ///< one of the scopes above
    CString t_value;                       ///< what was found for it
    CString t_fieldtype;                   ///< one of the kinds above; any other is a number
    CString t_Where;                       ///< what a borehole's condition ends with
    CString t_OthInfo;                     ///< of labels: "code|label" pairs joined with ","
    Adesk::Int32 t_hb = 0;                 ///< nonzero: shares its query with fields of its table
    Adesk::Int32 t_XiaoShu = 0;            ///< decimals of a number in a shared query
    Adesk::Int32 t_LiuBai = 0;             ///< not used

    bool IsQueried() const { return t_type != g_nScopeNoQuery && !t_tablename.IsEmpty(); }
    bool IsShared() const { return t_hb != 0; }
};

/// The fields, in table order, since LoadFieldConfig.
extern CArray<CGraphFiled> g_arFields;

/// Reads g_arFields anew; there are none when the configuration cannot be read. The text is of no account.
/// Gives 1.
int LoadFieldConfig(const CString& strUnused);
