#pragma once

/// The command BRCF: the user picks a chart and says which strength values are adopted; they are stored in
/// the project's table, and the chart's envelope lines drawn from them. A dialog that is cancelled says so,
/// and the values that it held are stored all the same.
void BrcfCommand();
