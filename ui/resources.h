#pragma once

#include "platform/mfc/resources.h"

/// Numbers of the dialogs and of their controls.
inline constexpr UINT IDD_GEN_PAGE = 11;
inline constexpr UINT IDC_ZK_LIST = 1010;
inline constexpr UINT IDC_QY_LIST = 1011;
inline constexpr UINT IDC_CLEAR_MARKS = 1062;
inline constexpr UINT IDC_ALL = 1063;
inline constexpr UINT IDC_EDIT_TEMPLATE = 1556;

inline constexpr UINT IDD_OPT_PAGE = 12;
inline constexpr UINT IDC_FRAME_BORDER = 1026;
inline constexpr UINT IDC_ONE_DWG = 1027;
inline constexpr UINT IDC_SHEET_SIZE = 1028;
inline constexpr UINT IDC_PER_ROW = 1058;

inline constexpr UINT IDD_ZS_PAGE = 13;
inline constexpr UINT IDC_UNIT = 1016;
inline constexpr UINT IDC_TESTER = 1017;
inline constexpr UINT IDC_CHECKER = 1018;
inline constexpr UINT IDC_DATE = 1019;
inline constexpr UINT IDC_SHOW_UNIT = 1021;
inline constexpr UINT IDC_SHOW_TESTER = 1022;
inline constexpr UINT IDC_SHOW_CHECKER = 1023;
inline constexpr UINT IDC_SHOW_DATE = 1024;

/// The strength values: graphical, computed and adopted ones, those of effective stress with an E.
inline constexpr UINT IDD_SAVE = 14;
inline constexpr UINT IDC_GRAPH_C = 1041;
inline constexpr UINT IDC_GRAPH_PHI = 1042;
inline constexpr UINT IDC_CALC_C = 1043;
inline constexpr UINT IDC_CALC_PHI = 1044;
inline constexpr UINT IDC_ADOPT_C = 1045;
inline constexpr UINT IDC_ADOPT_PHI = 1046;
inline constexpr UINT IDC_GRAPH_CE = 1047;
inline constexpr UINT IDC_GRAPH_PHIE = 1048;
inline constexpr UINT IDC_METHOD = 1049;
inline constexpr UINT IDC_CALC_CE = 1051;
inline constexpr UINT IDC_CALC_PHIE = 1052;
inline constexpr UINT IDC_ADOPT_CE = 1053;
inline constexpr UINT IDC_ADOPT_PHIE = 1054;
inline constexpr UINT IDC_FROM_CALC = 1059; ///< the first of the radio buttons
inline constexpr UINT IDC_FROM_GRAPH = 1060;
inline constexpr UINT IDC_BY_HAND = 1061;

inline constexpr UINT IDD_OPEN = 1005;
inline constexpr UINT IDC_OPEN_ZK_LIST = 1055;
inline constexpr UINT IDC_OPEN_CHART_LIST = 1056;

inline constexpr UINT IDC_STATIC = 65535; ///< every label
inline constexpr UINT IDI_TERVO = 1006;

/// The module's own resources.
HINSTANCE ModuleResources();
