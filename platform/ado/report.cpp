#include "platform/ado/report.h"

#include <utility>

namespace {
CReportSink& Sink() {
    static CReportSink s_sink;
    return s_sink;
}
} // namespace

void SetReportSink(CReportSink sink) {
    Sink() = std::move(sink);
}

void ReportLine(const std::string& strLine) {
    if (Sink()) Sink()(strLine);
}
