#pragma once

#include "platform/mfc/resources.h"

/// Numbers of the dialogs and of their controls.
inline constexpr UINT IDD_GEN_PAGE = 11;
inline constexpr UINT IDC_ZK_LIST = 1010;
inline constexpr UINT IDC_QY_LIST = 1011;
inline constexpr UINT IDC_CLEAR_MARKS = 1062;
inline constexpr UINT IDC_ALL = 1063;
inline constexpr UINT IDC_EDIT_TEMPLATE = 1556;
inline constexpr UINT IDD_ZS_PAGE = 13;
inline constexpr UINT IDC_STATIC = 65535; ///< every label
inline constexpr UINT IDI_TERVO = 1006;

/// The module's own resources.
HINSTANCE ModuleResources();
