#pragma once
// What the program holds by operator new, which this replaces in every program that links it.

#include <cstddef>

/// Beyond nBytes held more than now, an allocation calls pOnFault, which does not return.
void LimitAllocations(std::size_t nBytes, void (*pOnFault)());
void LiftAllocationLimit();
