#pragma once

/// Tables whose failed opening has a message of its own.
enum TableError {
    TableError_Borehole = 1,
    TableError_RoutineTest = 2,
    TableError_Triaxial = 3,
    TableError_TriaxialItems = 4,
    TableError_Project = 5,
};

/// Shows the message for a table that could not be opened; nothing for any other code.
void ReportTableError(int nCode);
