#ifndef FITTINGS_DIALOGS_FOLDER_DIALOG_P_H_
#define FITTINGS_DIALOGS_FOLDER_DIALOG_P_H_

#include <string>

// The folder that wxFolderDlg remembers. Private to the library.

namespace fittings {

/// Returns the folder remembered in @a section; empty when there is none.
std::wstring LoadLastFolder(const wchar_t* section);

/// Remembers @a folder exactly as it is, unless it is empty.
void SaveLastFolder(const wchar_t* section, const wchar_t* folder);

}  // namespace fittings

#endif
