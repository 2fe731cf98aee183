#include "host/console/progress.h"

namespace {

CProgressSink g_progress;

} // namespace

void SetProgressSink(CProgressSink sink) {
    g_progress = std::move(sink);
}

bool ShowProgress(const std::string& strWork, std::size_t nDone, std::size_t nAll) {
    return !g_progress || g_progress(strWork, nDone, nAll);
}
