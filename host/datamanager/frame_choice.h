#pragma once

#include <string>

#include "host/datamanager/installation.h"
#include "platform/ado/provider.h"

inline constexpr const char* g_pPortraitFile = "BREN-A4.dwg";
inline constexpr const char* g_pLandscapeFile = "BREN-A3.dwg";

/// Notes a file of the folder of templates (GBK) as the chart's frame template. Throws CDbError.
void StoreFrameChoice(CDbConnection& config, const std::string& strFile);

/// The same in an installation; CFailure (refused) for a file that is not in the folder.
void ChooseFrame(const CInstallation& installation, const std::string& strFile);
