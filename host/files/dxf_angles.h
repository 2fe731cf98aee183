#pragma once
// Angles are degrees in the file, radians in the drawing.

double DxfRadians(double dDegrees);

/// The degrees that read back as exactly these radians, where there are such.
double DxfDegrees(double dRadians);
