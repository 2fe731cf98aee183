#pragma once

#include "tests/support/programs.h"

// The demo project of examples/demo in the installation of a test. Project numbers are UTF-8.

/// Imports the demo's samples, layers and readings into a project.
void ImportDemo(const CProgram& program, const std::string& strNumber);
/// Makes a project of a number and standard with them.
void MakeDemoProject(const CProgram& program, const std::string& strNumber, int nStandard = 0);
/// Makes the installation and the project DEMO-01 in it, and opens that as the running one.
void OpenDemoProject(const CProgram& program);
