#include "tovuutil/files/DirReader.h"

#include <vector>

#include "tovuutil/files/PathUtil.h"
#include "tovuutil/files/detail/HostFileSystem.h"
#include "tovuutil/files/detail/Wildcard.h"
#include "tovuutil/framework/Logger.h"

DirReader::DirReader() : logger(Logger::getInstance("tovuutil.DirReader")) {}

DirReader::DirReader(std::string const& path, std::string const& pattern)
    : logger(Logger::getInstance("tovuutil.DirReader"))
{
    bool const debug = logger->isDebugEnabled();
    if (debug)
        logger->debug("DirReader(" + path + ", " + pattern + ") begin");
    setPath(transformPath(path));
    scan(pattern);
    if (debug)
        logger->debug("DirReader(" + path + ", " + pattern + ") end");
}

DirReader::DirReader(DirReader const& other)
    : logger(other.logger), path(other.path), files(other.files), directories(other.directories)
{
}

DirReader& DirReader::operator=(DirReader const& other)
{
    path = other.path;
    files = other.files;
    directories = other.directories;
    return *this;
}

DirReader::~DirReader() = default;

void DirReader::setPath(std::string const& path)
{
    if (logger->isDebugEnabled())
        logger->debug("setPath(" + path + ")");
    this->path = path;
}

void DirReader::scan(std::string const& pattern)
{
    clear();
    if (logger->isDebugEnabled())
        logger->debug("scan(" + pattern + ")");
    std::vector<tovu::detail::DirectoryEntry> entries;
    if (!tovu::detail::readDirectory(path.empty() ? "." : path, entries))
        return;
    for (auto const& entry : entries) {
        if (!tovu::detail::matchesWildcard(entry.name, pattern))
            continue;
        if (!entry.isDirectory)
            files.push_back(entry.name);
        else if (entry.name != "." && entry.name != "..")
            directories.push_back(entry.name);
    }
}

std::list<std::string> DirReader::getFiles() const { return files; }

std::list<std::string> DirReader::getDirectories() const { return directories; }

void DirReader::clear()
{
    files.clear();
    directories.clear();
}

void DirReader::logContent()
{
    if (!logger->isDebugEnabled())
        return;
    logger->debug("------- Directories (" + std::to_string(directories.size()) + ")-------");
    for (auto const& name : directories)
        logger->debug(name);
    logger->debug("------- Files (" + std::to_string(files.size()) + ")-------");
    for (auto const& name : files)
        logger->debug(name);
    logger->debug("---------------------------------------");
}
