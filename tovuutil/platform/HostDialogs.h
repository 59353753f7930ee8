#ifndef TOVUUTIL_PLATFORM_HOSTDIALOGS_H
#define TOVUUTIL_PLATFORM_HOSTDIALOGS_H

#include <string>

#include <tovuutil/export.h>

// Shortcuts to the host callback service (service 3). Each returns what the
// host's callback returned, or 0 when no callback is registered, dialogs are
// switched off ("TEST.NO_DIALOG=TRUE" in "tdf.dii") or the callback threw.

// Shows a message: first is the text, second the caption.
TOVU_API int messageBox(std::string const& first, std::string const& second, int type);

// Opens, updates and closes the host's progress dialog. The ten texts and two
// numbers are passed through unchanged.
TOVU_API int initDialog(char const* t1, char const* t2, char const* t3, char const* t4, char const* t5,
                        char const* t6, char const* t7, char const* t8, char const* t9, char const* t10, short n1,
                        short n2);
TOVU_API int updateDialog(char const* t1, char const* t2, char const* t3, char const* t4, char const* t5,
                          char const* t6, char const* t7, char const* t8, char const* t9, char const* t10, short n1,
                          short n2);
TOVU_API int closeDialog();

// False only when "TEST.NO_DIALOG" in "tdf.dii" is exactly "TRUE".
TOVU_API bool isDialogEnabled();

#endif
