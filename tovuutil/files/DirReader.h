#ifndef TOVUUTIL_FILES_DIRREADER_H
#define TOVUUTIL_FILES_DIRREADER_H

#include <list>
#include <string>

#include <tovuutil/export.h>

class Logger;

// DirReader
//
// One directory level: the names (not paths) of the files and of the
// subdirectories that match a wildcard pattern, in the order the host
// delivers them. Windows wildcard rules ("*", "?", "*.*" matches every name,
// letters without case). Hidden files are listed like any other; "." and ".."
// never. A symbolic link is listed among the files, whatever it points to.
// A missing directory gives two empty lists and no error.
//
// Example:
//   DirReader reader("/tmp/x", "*.ini");
//   for (auto const& name : reader.getFiles()) ...
class TOVU_API DirReader {
public:
    DirReader();
    // Reads path (separators converted for the host) with the pattern at once.
    DirReader(std::string const& path, std::string const& pattern);
    // Copies the path and both lists.
    DirReader(DirReader const& other);
    // Copies the path and both lists.
    DirReader& operator=(DirReader const& other);
    virtual ~DirReader();

    // The directory for the next scan, taken as given (no separator
    // conversion); an empty path means the current directory. Lists unchanged.
    void setPath(std::string const& path);
    // Re-reads the directory: the lists are replaced, not extended.
    void scan(std::string const& pattern);
    // A copy of the file names of the last scan.
    std::list<std::string> getFiles() const;
    // A copy of the subdirectory names of the last scan.
    std::list<std::string> getDirectories() const;
    // Empties both lists; the path stays.
    void clear();
    // Both lists at debug level.
    void logContent();

private:
    Logger* logger;
    std::string path;
    std::list<std::string> files;
    std::list<std::string> directories;
};

#endif
