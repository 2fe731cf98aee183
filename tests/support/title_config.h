#pragma once
// The suite's configuration of title blocks for tests.

#include "data/sql_text.h"
#include "platform/ado/sqlite_provider.h"

#include <filesystem>
#include <memory>
#include <string>

/// A row of t_GraphTYPZ, GBK.
struct CTitleFieldRow {
    const char* t_peizhi;
    const char* t_tablename;
    const char* t_tablefield;
    int t_type = 0;
    const char* t_fieldtype = "文本";
    const char* t_Key = "";
    int t_XiaoShu = 0;
    const char* t_Where = "";
    int t_hb = 0;
    const char* t_OthInfo = "";
};

/// The configuration database of an installation, with no fields yet.
class CTitleConfig {
public:
    explicit CTitleConfig(const std::string& strRoot) {
        std::filesystem::create_directories(strRoot + "/Data");
        m_pDatabase = CreateSqliteDatabase(strRoot + "/Data/config.db");
        m_pDatabase->Execute("create table t_GraphTYPZ(t_peizhi text, t_tablename text, t_tablefield text, "
                             "t_type integer, t_fieldtype text, t_Key text, t_XiaoShu integer, t_Where text, "
                             "t_hb integer, t_LiuBai integer, t_OthInfo text)");
    }
    void Add(const CTitleFieldRow& row) {
        const auto text = [](const char* pText) {
            return "'" + std::string(SqlText(pText).GetString()) + "',";
        };
        m_pDatabase->Execute("insert into t_GraphTYPZ values(" + text(row.t_peizhi) + text(row.t_tablename) +
                             text(row.t_tablefield) + std::to_string(row.t_type) + "," +
                             text(row.t_fieldtype) + text(row.t_Key) + std::to_string(row.t_XiaoShu) + "," +
                             text(row.t_Where) + std::to_string(row.t_hb) + ",7," + std::string("'") +
                             SqlText(row.t_OthInfo).GetString() + "')");
    }

    std::shared_ptr<CDbConnection> m_pDatabase;
};
