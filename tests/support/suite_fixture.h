#pragma once

#include "data/project_context.h"
#include "platform/windows/code_page.h"
#include "platform/windows/profile.h"
#include "tests/support/project.h"

#include <gtest/gtest.h>

#include <fstream>

/// Tests that run in a project of their own.
class CSuiteTest : public testing::Test, protected CTestProject {};

using CTexts = std::vector<std::string>;
