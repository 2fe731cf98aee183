#pragma once
// How the objects of a drawing file are numbered, refer to each other and lie in the file.

#include "host/files/dwg_file.h"

/// Gives the objects other handles, so that runs of them come in the opposite order, with gaps in between.
void SpreadHandles(CDwgFile& file);

/// Lets model space's entities tell their neighbours by their own handles where these follow each other.
void OmitNeighbours(CDwgFile& file);

/// Makes all pointers relative to the object that they stand in, unless they own or are hard.
void MakeRelative(CDwgFile& file);

/// The file's bytes with the objects in the opposite order, and the sections behind them in another one.
CBytes WriteReversed(const CDwgFile& file);
