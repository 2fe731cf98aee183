#pragma once

#include "host/datamanager/failure.h"

/// The exception that is being handled as a failure of the program.
CFailure CurrentFailure();
