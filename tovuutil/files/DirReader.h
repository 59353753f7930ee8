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
    DirReader(std::string const& path, std::string const& pattern);
    DirReader(DirReader const& other);
    DirReader& operator=(DirReader const& other);
    virtual ~DirReader();

    void setPath(std::string const& path);
    // Re-reads the directory: the lists are replaced, not extended.
    void scan(std::string const& pattern);
    std::list<std::string> getFiles() const;
    std::list<std::string> getDirectories() const;
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
