#pragma once
// Smooth curves through measured points, and how the stages of one specimen are cut against each other: part
// of each curve stays solid and the remainder goes dashed.

#include "drawing/picture_sink.h"

/// Divides a curve at its first falling step; the peak stands in both parts. 2 when it falls somewhere, or is
/// empty; 1 when it never falls, and then the tail is empty. Equal heights don't count as falling.
int SplitAtFirstDrop(const AcGePoint3dArray& points, AcGePoint3dArray& head, AcGePoint3dArray& tail);

/// Divides a curve where its points pass P, seen along y or x; P stands in both parts. Points within 0.001
/// below P count to the second part.
void SplitAtPoint(const AcGePoint3d& ptAt, const AcGePoint3dArray& points, bool bByY, AcGePoint3dArray& first,
                  AcGePoint3dArray& second);

/// Cuts the rising part of a curve against the next stage's curve: solid up to the first crossing, dashed
/// beyond it; the next curve dashed up to there, and its rest carried on. 1 when they cross. Without a
/// crossing the first is solid and the whole second is carried; a failed search draws both solid and leaves
/// carry as it was.
int DrawCrossHead(CPictureSink& sink, const AcGePoint3dArray& first, const AcGePoint3dArray& second,
                  AcGePoint3dArray& carry);
/// The same for the falling part: dashed up to the crossing, solid beyond it, and dashed without one.
int DrawCrossTail(CPictureSink& sink, const AcGePoint3dArray& first, const AcGePoint3dArray& second,
                  AcGePoint3dArray& carry);
