#pragma once

#include <functional>
#include <string>

/// Takes one line for the text window, GBK, without a line end.
using CReportSink = std::function<void(const std::string& strLine)>;

/// Makes `sink` the receiver of the database layer's lines; an empty one drops them. The host registers the
/// text window here; it stays until another is set.
void SetReportSink(CReportSink sink);

/// Sends one line, GBK, without a line end, to the registered receiver.
void ReportLine(const std::string& strLine);
