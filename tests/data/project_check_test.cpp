#include "data/project_check.h"

#include "tests/support/suite_fixture.h"

namespace {
class ProjectCheck : public CSuiteEngineTest {
protected:
    ProjectCheck() { Execute("insert into x_GongCheng values(1,'GC-1','工程',0,NULL),(0,'GC-0','零',0,5)"); }
};
INSTANTIATE_TEST_SUITE_P(Engines, ProjectCheck, TestEngines(), TestEngineName);
} // namespace

TEST_P(ProjectCheck, PassesWhenTheNumberStandsExactly) {
    EXPECT_EQ(CheckProjectNumber(1, "GC-1"), 1);
    EXPECT_EQ(CheckProjectNumber(0, "GC-0"), 1);
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_P(ProjectCheck, RefusesAnotherNumber) {
    EXPECT_EQ(CheckProjectNumber(1, "gc-1"), 0);
    EXPECT_EQ(CheckProjectNumber(1, "GC-1 "), 0);
    EXPECT_EQ(m_arBoxes,
              (CTexts{"该工程工程编号已被修改,数据无法入库!", "该工程工程编号已被修改,数据无法入库!"}));
}

TEST_P(ProjectCheck, RefusesAMissingProject) {
    EXPECT_EQ(CheckProjectNumber(2, "GC-1"), 0);
    Execute("insert into x_GongCheng values(-1,'GC-1','',0,0)"); // no project has a negative index
    EXPECT_EQ(CheckProjectNumber(-1, "GC-1"), 0);
    EXPECT_EQ(m_arBoxes, (CTexts{"打开工点信息数据表中不存在该工程!", "打开工点信息数据表中不存在该工程!"}));
}

TEST_P(ProjectCheck, RefusesWhenTheTableCannotBeOpened) {
    Execute("drop table x_GongCheng");
    EXPECT_EQ(CheckProjectNumber(1, "GC-1"), 0);
    EXPECT_EQ(m_arBoxes, CTexts{"不能打开工点信息数据表,请检查数据!"});
}
