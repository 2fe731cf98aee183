#pragma once

#include "bench/sample_names.h"
#include "tests/support/project.h"

/// Puts the readings into an empty project.
void FillSamples(CTestProject* pProject);

/// Reads every sample through the record class, which finds the running project and connects anew for each.
void ReadSamplesByRecordClass();
