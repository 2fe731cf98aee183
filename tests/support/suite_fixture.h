#pragma once

#include "data/project_context.h"
#include "platform/windows/code_page.h"
#include "platform/windows/profile.h"
#include "tests/support/project.h"

#include <gtest/gtest.h>

#include <fstream>

/// Tests that run in a project of their own.
class CSuiteTest : public testing::Test, protected CTestProject {};

/// The same with the project's database on each engine in turn: TEST_P, instantiated with TestEngines().
class CSuiteEngineTest : public testing::TestWithParam<TestEngine>, protected CTestProject {
protected:
    CSuiteEngineTest()
        : CTestProject(GetParam()) {}
};

using CTexts = std::vector<std::string>;
