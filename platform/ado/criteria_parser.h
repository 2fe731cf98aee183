#pragma once

#include <string_view>
#include <vector>

#include "platform/ado/criteria.h"

/// Takes a criteria text, GBK, apart: a row meets it when all conditions of any one group hold. What is no
/// such text raises adErrInvalidArgument.
std::vector<std::vector<CCriterion>> ParseCriteria(std::string_view strText);
