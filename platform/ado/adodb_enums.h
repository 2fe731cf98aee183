#pragma once

// The constants of the database objects, with the numbers that callers pass.

namespace ADODB {

enum ObjectStateEnum { adStateClosed = 0, adStateOpen = 1 };

enum CursorTypeEnum {
    adOpenUnspecified = -1,
    adOpenForwardOnly = 0,
    adOpenKeyset = 1,
    adOpenDynamic = 2,
    adOpenStatic = 3,
};

enum CursorLocationEnum { adUseServer = 2, adUseClient = 3 };

enum LockTypeEnum {
    adLockUnspecified = -1,
    adLockReadOnly = 1,
    adLockPessimistic = 2,
    adLockOptimistic = 3,
    adLockBatchOptimistic = 4,
};

enum CommandTypeEnum {
    adCmdUnspecified = -1,
    adCmdText = 1,
    adCmdTable = 2,
    adCmdStoredProc = 4,
    adCmdUnknown = 8,
    adCmdFile = 256,
    adCmdTableDirect = 512,
};

// Options of Execute, which go together with a CommandTypeEnum.
inline constexpr long adOptionUnspecified = -1;
inline constexpr long adExecuteNoRecords = 128;

enum ParameterDirectionEnum {
    adParamUnknown = 0,
    adParamInput = 1,
    adParamOutput = 2,
    adParamInputOutput = 3,
    adParamReturnValue = 4,
};

enum DataTypeEnum {
    adEmpty = 0,
    adSmallInt = 2,
    adInteger = 3,
    adSingle = 4,
    adDouble = 5,
    adCurrency = 6,
    adDate = 7,
    adBSTR = 8,
    adBoolean = 11,
    adVariant = 12,
    adDecimal = 14,
    adTinyInt = 16,
    adUnsignedTinyInt = 17,
    adUnsignedInt = 19,
    adBigInt = 20,
    adBinary = 128,
    adChar = 129,
    adWChar = 130,
    adNumeric = 131,
    adDBDate = 133,
    adDBTimeStamp = 135,
    adVarChar = 200,
    adLongVarChar = 201,
    adVarWChar = 202,
    adLongVarWChar = 203,
    adVarBinary = 204,
    adLongVarBinary = 205,
};

enum SearchDirectionEnum { adSearchBackward = -1, adSearchForward = 1 };

enum BookmarkEnum { adBookmarkCurrent = 0, adBookmarkFirst = 1, adBookmarkLast = 2 };

enum PositionEnum { adPosUnknown = -1, adPosBOF = -2, adPosEOF = -3 };

enum EditModeEnum { adEditNone = 0, adEditInProgress = 1, adEditAdd = 2, adEditDelete = 4 };

enum AffectEnum { adAffectCurrent = 1, adAffectGroup = 2, adAffectAll = 3 };

enum FilterGroupEnum {
    adFilterNone = 0,
    adFilterPendingRecords = 1,
    adFilterAffectedRecords = 2,
    adFilterFetchedRecords = 3,
    adFilterConflictingRecords = 5,
};

enum PersistFormatEnum { adPersistADTG = 0, adPersistXML = 1 };

enum StringFormatEnum { adClipString = 2 };

/// As a number of rows: all that are left.
inline constexpr long adGetRowsRest = -1;

} // namespace ADODB
