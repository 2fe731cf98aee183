#include "ui/selection_keys.h"

#include "tests/ui/project_fixture.h"

class SelectionKeys : public CProjectFixture {};

TEST_F(SelectionKeys, NameTheRunningProjectAndTheBorehole) {
    EXPECT_EQ(BoreholeMarksKey(), CString("SYQXG1"));
    EXPECT_EQ(SampleMarksKey("ZK1"), CString("SYQXG1ZK1"));
    SetProject("GCBH", "勘-1");
    EXPECT_EQ(BoreholeMarksKey(), CString("SYQX勘-1"));
    SetProject("GCBH", nullptr);
    EXPECT_EQ(SampleMarksKey("ZK1"), CString("SYQXZK1"));
}
