#pragma once

#include "platform/mfc/string.h"

/// Makes NULL of the empty literals in a statement that is put together from texts: '' behind or before a
/// comma and before a blank becomes NULL, and ='' a test " IS NULL". What then stands as a test before the
/// word where, in lower case, is an assignment, so "IS NULL" becomes "= NULL" there; without that word all
/// tests stay. Two quotes within a longer literal are a quote, and the inside of literals is left alone.
void FixNullSyntax(CString* pStatement);
