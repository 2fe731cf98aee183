#pragma once

/// The command BREN: chooses samples, places one chart for each on sheets in the current drawing, and stores
/// the strength values. What was done before a failure stays.
void BrenCommand();
