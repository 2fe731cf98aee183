#pragma once

#include "drawing/title_fields.h"
#include "tests/support/suite_fixture.h"
#include "tests/support/title_config.h"

/// Project 1 with a row of the project's table, two layers of borehole ZK1 and one of ZK2, and fields to be
/// configured; on each engine.
class CTitleFieldsTest : public CSuiteEngineTest {
protected:
    CTitleFieldsTest() {
        Execute("insert into x_GongCheng values(1,'G1','一号工程',2,0)");
        Execute("insert into x_GongCheng values(2,'G2','二号工程',0,0)");
        Execute("insert into z_g_TuCeng values(1,'ZK1',3.25,3.25,'填土')");
        Execute("insert into z_g_TuCeng values(1,'ZK1',9.5,6.25,'粘土')");
        Execute("insert into z_g_TuCeng values(1,'ZK2',4,4,'砂')");
    }

    /// Keys and values of all fields, "key=value" each.
    static CTexts Fields(const char* pZKBH = "ZK1") {
        CStringArray saKeys, saValues;
        EXPECT_EQ(BuildSheetFields("1", pZKBH, saKeys, saValues, 1, 1), 1);
        EXPECT_EQ(saKeys.GetSize(), saValues.GetSize());
        CTexts fields;
        for (int i = 0; i < saKeys.GetSize(); ++i)
            fields.emplace_back((saKeys[i] + "=" + saValues[i]).GetString());
        return fields;
    }
    /// The values of the configured fields, in order.
    static CTexts Values(const char* pZKBH = "ZK1") {
        CTexts values;
        for (const std::string& strField : Fields(pZKBH))
            values.push_back(strField.substr(strField.find('=') + 1));
        values.resize(values.size() - 3); // page, pages, today
        return values;
    }

    CTitleConfig m_config{m_root.Path()};
};
