#ifndef TOVUUTIL_FILES_DETAIL_TREEWALK_H
#define TOVUUTIL_FILES_DETAIL_TREEWALK_H

#include <string>

// The tree walks behind deleteDirRecursive, copyFolder and moveFolder. They
// hold one directory handle per tree at a time and keep the names of the
// levels above, so depth costs neither handles nor path length; names read
// from a listing are used as they are, and no symbolic link inside a tree is
// ever followed into a directory or written through.
namespace tovu {
namespace detail {

// Deletes the content of root (and root itself when deleteSelf); the first
// failure ends the walk. root is absolute. A root that is a symbolic link is
// refused with -1 before anything is touched.
int removeTree(std::string const& root, bool secure, bool deleteSelf);

struct CopyOutcome {
    bool answer = true;         // what copyFolder tells its caller
    bool complete = true;       // every file fully written and closed
    bool sourceKeepsCopy = false; // the copy lies inside the source (or is it)
};
CopyOutcome copyTree(std::string const& from, std::string const& to, bool overwrite);

// Removes one entry that is not a directory; a secure removal first
// overwrites a regular file (never a link's target). path is for messages.
int removeFileAt(int directory, std::string const& name, std::string const& path, bool secure, bool isLink);

} // namespace detail
} // namespace tovu

#endif
