#pragma once
// The marks of samples and boreholes that have charts: in an ini key their texts joined with "@", in a list
// box a "*" in front of the entry. A key is read to 519 bytes; what stands behind is lost with the next
// write, which itself may be longer. Given another window than a list box the functions do nothing.

#include "platform/mfc/collections.h"
#include "platform/mfc/list_box.h"

/// The text of an entry without its mark.
CString WithoutMark(const CString& entry);

/// Makes these texts the key's marks, in place of those it had.
void WriteMarks(const char* section, const char* key, const CStringArray& marks, const char* file);
/// Puts "*" before the entries that the key names, and leaves in the key only these.
void LoadMarks(const char* section, const char* key, CWnd* pList, const char* file);
/// Adds the selected entries to the key.
void SaveMarks(const char* section, const char* key, const CWnd* pList, const char* file);
/// Takes the selected entries out of the key, and their "*" away. They are not selected afterwards.
void ClearMarks(const char* section, const char* key, CWnd* pList, const char* file);

/// 1 when every entry is selected or marked.
int AllDone(const CWnd* pList);
/// 1 when some entry has "*".
int AnyMarked(const CWnd* pList);
