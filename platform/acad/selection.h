#pragma once
// Picks and selection sets. All results are RTNORM, RTERROR or RTCAN.

#include "platform/acad/ads_name.h"
#include "platform/acad/result_buffer.h"

/// Lets the user pick one entity: its name, and the point of the pick (the origin for a pick without one).
/// RTERROR when nothing is picked, RTCAN when the user cancelled.
int acedEntSel(const ACHAR* prompt, ads_name name, ads_point point);

/// The last entity of the working drawing's model space. RTERROR when there is none.
int acdbEntLast(ads_name result);

/// Makes a selection of entities of the working drawing. mode is null (the user picks), "X" (model and paper
/// space), "L" (the last of model space), "P" (what was selected before, other than by "X"), "C" (model
/// space, what passes through the box of two corners) or "W" (what lies wholly in it); pt1 and pt2 are the
/// corners, ads_points. Only entities that pass the filter (see IsSelectionFilter; null: all) are taken.
/// RTERROR when there are none, or for another mode or filter; ss is untouched then. The set is to be
/// released with acedSSFree; it goes with its drawing at the latest.
int acedSSGet(const ACHAR* mode, const void* pt1, const void* pt2, const resbuf* pFilter, ads_name ss);
int acedSSFree(const ads_name ss);

int acedSSLength(const ads_name ss, Adesk::Int32* pLength);
/// The entity at an index from 0, in the order selected: database order but for picks.
int acedSSName(const ads_name ss, Adesk::Int32 index, ads_name entity);

/// Adds an entity (null: none) to a set, once; result is the set, or a new one when ss is null.
int acedSSAdd(const ads_name entity, const ads_name ss, ads_name result);
int acedSSDel(const ads_name entity, const ads_name ss);  ///< RTERROR when it is no member
int acedSSMemb(const ads_name entity, const ads_name ss); ///< RTNORM when it is a member

/// For a drawing that goes: its sets go with it.
void ForgetSelections(const AcDbDatabase& drawing);
