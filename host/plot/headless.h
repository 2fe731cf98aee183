#pragma once

/// Starts Qt's graphics without a display, once; does nothing when a program has started Qt already. Qt's own
/// remarks stay off standard error, and the process keeps its locale.
void StartHeadlessQt();
