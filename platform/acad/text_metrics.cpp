#include "platform/acad/text_metrics.h"

namespace {

CTextMetrics* g_pTextMetrics = nullptr;

} // namespace

CTextMetrics* TextMetrics() {
    return g_pTextMetrics;
}

void SetTextMetrics(CTextMetrics* pMetrics) {
    g_pTextMetrics = pMetrics;
}
