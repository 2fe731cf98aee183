#pragma once
// Angles are degrees in the file, radians in the drawing.

double DxfRadians(double dDegrees);

/// The degrees that read back as exactly these radians, where there are such: not each number of radians has
/// them.
double DxfDegrees(double dRadians);
