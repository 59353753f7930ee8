#ifndef TOVUUTIL_FILES_DETAIL_ERRNOTEXT_H
#define TOVUUTIL_FILES_DETAIL_ERRNOTEXT_H

#include <string>

namespace tovu {
namespace detail {

// The host call whose failure is explained.
enum class ErrnoTable { ChangeDir, DeleteFile, DeleteDir, FileAccess, ChangeMode, MakeDir };

// The fixed text of an errno for a call, keyed by the symbolic errno names;
// an errno without text gives "Unbekannter Fehler.(<errno>)".
std::string errnoText(ErrnoTable table, int code);

// Further messages of the file operations; "%1" is the path.
extern char const kFileMissing[];
extern char const kFileExists[];
extern char const kCannotOpen[];
extern char const kNotDeleted[];
extern char const kNotRead[];
extern char const kNotWritten[];
extern char const kPathIsFile[];
extern char const kUnknownException[];

} // namespace detail
} // namespace tovu

#endif
