#pragma once

/// The command BROPEN: shows the stored chart drawings of the running project and opens the one chosen. It
/// hands the work over to the application context, where documents can be opened.
void BropenCommand();
