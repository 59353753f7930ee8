#include "tovuutil/files/FileOperation.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <vector>

#include "tovuutil/files/DirReader.h"
#include "tovuutil/files/PathUtil.h"
#include "tovuutil/files/detail/ErrnoText.h"
#include "tovuutil/files/detail/HostFileSystem.h"
#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/MethodMarker.h"
#include "tovuutil/text/Random.h"
#include "tovuutil/text/StringUtil.h"

using tovu::detail::ErrnoTable;

namespace {

constexpr std::size_t kBlock = 64 * 1024;

Logger* log() { return Logger::getInstance("tovuutil.fileoperation"); }

// "<function>(<path>): <text of errno>"
void reportErrno(char const* function, std::string const& path, ErrnoTable table, int error)
{
    Logger* logger = log();
    if (logger->isErrorEnabled())
        logger->error(std::string(function) + "(" + path + "): " + tovu::detail::errnoText(table, error));
}

// "<function>: <message with %1 = path>"
void report(char const* function, char const* message, std::string const& path = std::string())
{
    Logger* logger = log();
    if (logger->isErrorEnabled())
        logger->error(std::string(function) + ": " + replacePattern(message, "%1", path));
}

std::string absolute(std::string const& path) { return getAbsolutePath(path); }

// A symbolic link to a directory, or one pointing nowhere: copying it would
// mean following it. A link to a file is copied as a plain file.
bool isLinkToNonFile(std::string const& path)
{
    tovu::detail::PathStatus status;
    return tovu::detail::statPath(path, status) == 0 && status.isLink && !status.linksToFile;
}

// A file, or a symbolic link itself (even one pointing nowhere).
bool exists(std::string const& path) { return fileExists(path) || pathExists(path) != 0; }

struct FileCloser {
    void operator()(std::FILE* file) const
    {
        if (file != nullptr)
            std::fclose(file);
    }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

File openFile(std::string const& path, char const* mode) { return File(std::fopen(path.c_str(), mode)); }

bool writeAll(std::FILE* file, void const* data, std::size_t length)
{
    return length == 0 || std::fwrite(data, 1, length, file) == length;
}

bool writeString2FileDo(std::string const& path, std::string const& text, bool append)
{
    std::string const p = absolute(path);
    File file = openFile(p, append ? "ab" : "wb");
    bool const written = file && writeAll(file.get(), text.data(), text.size()) && std::fclose(file.release()) == 0;
    if (!written)
        report("writeString2FileDo", tovu::detail::kNotWritten);
    return written;
}

bool writeBinary2FileDo(std::string const& path, unsigned char const* data, long length, bool append)
{
    std::string const p = absolute(path);
    if (length < 0 || (length > 0 && data == nullptr)) {
        report("writeBinary2FileDo", tovu::detail::kNotWritten);
        return false;
    }
    File file = openFile(p, append ? "ab" : "wb");
    bool const written = file && writeAll(file.get(), data, static_cast<std::size_t>(length)) &&
                         std::fclose(file.release()) == 0;
    if (!written)
        report("writeBinary2FileDo", tovu::detail::kNotWritten);
    return written;
}

bool makeDir(std::string const& path, int mode)
{
    bool made = true;
    if (tovu::detail::makeDirectory(path, mode) != 0) {
        reportErrno("makeDir", path, ErrnoTable::MakeDir, errno);
        made = false;
    }
    if (pathExists(path) == 0) {
        Logger* logger = log();
        if (logger->isErrorEnabled())
            logger->error("makeDir: pathExists(" + path + "): existiert nicht!");
        made = false;
    }
    return made;
}

// The size readBinaryFromFile would find, with its messages; -1 when it would fail.
long readableLength(std::string const& p)
{
    if (!fileExists(p)) {
        report("readBinaryFromFile", tovu::detail::kFileMissing, p);
        return -1;
    }
    long const length = getFileLength(p);
    if (length < 0 || length >= INT_MAX)
        report("readBinaryFromFile", tovu::detail::kNotRead);
    return length >= INT_MAX ? -1 : length;
}

} // namespace

bool changeDir(std::string const& path)
{
    std::string const p = absolute(path);
    if (tovu::detail::changeDirectory(p) != 0) {
        reportErrno("changeDir", p, ErrnoTable::ChangeDir, errno);
        return false;
    }
    return true;
}

int deleteFile(std::string const& path)
{
    try {
        std::string const p = absolute(path);
        if (!exists(p)) {
            report("deleteFile", tovu::detail::kFileMissing, p);
            return -1;
        }
        int const result = tovu::detail::removeFile(p);
        if (result != 0)
            reportErrno("deleteFile", p, ErrnoTable::DeleteFile, errno);
        return result == 0 ? 0 : -1;
    } catch (...) {
        report("deleteFile", tovu::detail::kUnknownException);
        return -1;
    }
}

int deleteFileSecure(std::string const& path)
{
    std::string const p = absolute(path);
    if (!fileExists(p)) {
        report("deleteFileSecure", tovu::detail::kFileMissing, p);
        return -1;
    }
    long const length = getFileLength(p);
    File file = openFile(p, "r+b");
    if (!file) {
        // Nothing overwritten, so nothing deleted either.
        report("deleteFileSecure", tovu::detail::kNotDeleted);
        return -1;
    }
    Random random;
    std::vector<unsigned char> block(kBlock);
    bool written = true;
    for (long done = 0; done < length && written;) {
        std::size_t const count = static_cast<std::size_t>(std::min<long>(length - done, static_cast<long>(kBlock)));
        for (std::size_t i = 0; i < count; ++i)
            block[i] = static_cast<unsigned char>(random.random());
        written = writeAll(file.get(), block.data(), count);
        done += static_cast<long>(count);
    }
    // The overwrite must reach the disk before the name goes away.
    written = written && std::fflush(file.get()) == 0 && tovu::detail::syncFile(fileno(file.get())) == 0;
    written = std::fclose(file.release()) == 0 && written;
    if (!written) {
        report("deleteFileSecure", tovu::detail::kNotDeleted);
        return -1;
    }
    return deleteFile(p);
}

int deleteDir(std::string const& path)
{
    std::string const p = absolute(path);
    if (tovu::detail::removeDirectory(p) != 0) {
        reportErrno("deleteDir", p, ErrnoTable::DeleteDir, errno);
        return -1;
    }
    Logger* logger = log();
    if (logger->isDebugEnabled())
        logger->debug("deleteDir: Ordner: " + p + " erfolgreich entfernt.");
    return 0;
}

int deleteDirRecursive(std::string const& path, bool secure, bool deleteSelf)
{
    // An explicit stack instead of recursion: deep trees cannot exhaust the
    // call stack. Each level deletes its files, then its subdirectories one
    // by one (each completely), then itself; the first failure ends everything.
    struct Level {
        std::string path;
        std::list<std::string> directories;
        bool deleteSelf;
    };
    auto enter = [secure](std::string const& directory, bool self, int& result) {
        std::string const p = absolute(directory);
        DirReader reader(p, "*.*");
        for (auto const& name : reader.getFiles()) {
            if (result != 0)
                break;
            std::string const file = getFullFilename(p, name);
            result = secure ? deleteFileSecure(file) : deleteFile(file);
        }
        return Level{p, reader.getDirectories(), self};
    };

    int result = 0;
    std::vector<Level> stack;
    stack.push_back(enter(path, deleteSelf, result));
    while (!stack.empty() && result == 0) {
        Level& top = stack.back();
        if (!top.directories.empty()) {
            std::string const next = concatPath(top.path, top.directories.front());
            top.directories.pop_front();
            stack.push_back(enter(next, true, result));
            continue;
        }
        if (top.deleteSelf)
            result = deleteDir(top.path);
        stack.pop_back();
    }
    return result;
}

long getFileLength(std::string const& path)
{
    std::string const p = absolute(path);
    if (!fileExists(p)) {
        report("getFileLength", tovu::detail::kFileMissing, p);
        return -1;
    }
    File file = openFile(p, "rb");
    if (!file || std::fseek(file.get(), 0, SEEK_END) != 0)
        return -1;
    return std::ftell(file.get());
}

int moveFile(std::string const& from, std::string const& to, bool overwrite, bool secure)
{
    if (absolute(from) == absolute(to))
        return copyFile(from, to, overwrite) ? 0 : -1; // nothing to move, nothing to delete
    if (!copyFile(from, to, overwrite))
        return -1;
    int const removed = secure ? deleteFileSecure(from) : deleteFile(from);
    return removed != 0 ? 1 : 0;
}

int moveFolder(std::string const& from, std::string const& to, bool overwrite, bool secure)
{
    if (!copyFolder(from, to, overwrite))
        return -1;
    return deleteDirRecursive(from, secure, true);
}

bool copyFile(std::string const& from, std::string const& to, bool overwrite)
{
    std::string const source = absolute(from);
    std::string const target = absolute(to);
    if (!fileExists(source)) {
        report("copyFile", tovu::detail::kFileMissing, source);
        return false;
    }
    if (!overwrite && fileExists(target)) {
        report("copyFile", tovu::detail::kFileExists, target);
        return false;
    }
    if (source == target)
        return true; // truncating the target would destroy the source
    File in = openFile(source, "rb");
    File out = openFile(target, "wb");
    if (in && out) {
        std::vector<char> block(kBlock);
        std::size_t count;
        // Errors while copying do not change the result: the copy was attempted.
        while ((count = std::fread(block.data(), 1, block.size(), in.get())) > 0)
            if (!writeAll(out.get(), block.data(), count))
                break;
    }
    return true;
}

bool copyFolder(std::string const& from, std::string const& to, bool overwrite)
{
    // An explicit stack instead of recursion. Each level creates its target,
    // copies its subdirectories one by one (each completely), then its files;
    // the first failure ends everything and what was copied stays.
    struct Level {
        std::string from, to;
        std::list<std::string> directories, files;
    };
    auto enter = [](std::string const& source, std::string const& target, std::vector<Level>& stack) {
        std::string const s = absolute(source);
        std::string const t = absolute(target);
        if (pathExists(t) == 0)
            createDir(t, 511);
        if (pathExists(s) != 'd')
            return false;
        DirReader reader(s, "*.*");
        stack.push_back(Level{s, t, reader.getDirectories(), reader.getFiles()});
        return true;
    };

    std::vector<Level> stack;
    if (!enter(from, to, stack))
        return false;
    while (!stack.empty()) {
        Level& top = stack.back();
        if (!top.directories.empty()) {
            std::string const name = top.directories.front();
            top.directories.pop_front();
            if (!enter(concatPath(top.from, name), concatPath(top.to, name), stack))
                return false;
            continue;
        }
        for (auto const& name : top.files) {
            std::string const source = getFullFilename(top.from, name);
            if (isLinkToNonFile(source))
                continue; // links are never followed into directories or nowhere
            if (!copyFile(source, getFullFilename(top.to, name), overwrite))
                return false;
        }
        stack.pop_back();
    }
    return true;
}

int fileAccess(std::string const& path, int mode)
{
    std::string const p = absolute(path);
    if (tovu::detail::accessPath(p, mode) != 0) {
        int const error = errno;
        Logger* logger = log();
        if (logger->isErrorEnabled())
            logger->error("fileAccess ERROR (" + p + "): " +
                          tovu::detail::errnoText(ErrnoTable::FileAccess, error));
        return -1;
    }
    return 0;
}

namespace {
// Reads a text file line by line (LF ends a line, trailing CR and LF are
// stripped); false with its messages when the file is missing or unreadable.
template <class Sink>
bool readLines(std::string const& path, Sink sink)
{
    std::string const p = absolute(path);
    if (!fileExists(p)) {
        report("readStringFromFile", tovu::detail::kFileMissing, p);
        return false;
    }
    std::ifstream in(p, std::ios::binary);
    if (!in) {
        Logger* logger = log();
        if (logger->isErrorEnabled())
            logger->error("readStringFromFile(" + p + "): " + tovu::detail::kCannotOpen);
        return false;
    }
    std::string line;
    while (std::getline(in, line))
        sink(trimRight(line, "\r\n"));
    return true;
}
} // namespace

bool readStringFromFile(std::string const& path, std::list<std::string>& lines)
{
    return readLines(path, [&lines](std::string const& line) { lines.push_back(line); });
}

bool readStringFromFile(std::string const& path, std::string& text)
{
    return readLines(path, [&text](std::string const& line) {
        text += line;
        text += "\r\n";
    });
}

bool writeString2File(std::string const& path, std::string const& text)
{
    return writeString2FileDo(path, text, false);
}

bool appendString2File(std::string const& path, std::string const& text)
{
    return writeString2FileDo(path, text, true);
}

int readBinaryFromFile(std::string const& path, unsigned char** buffer)
{
    std::string const p = absolute(path);
    if (buffer == nullptr)
        return -1;
    *buffer = nullptr;
    long const length = readableLength(p);
    if (length < 0)
        return -1;
    auto* data = static_cast<unsigned char*>(std::calloc(static_cast<std::size_t>(length) + 1, 1));
    File file = data ? openFile(p, "rb") : File();
    if (!file || std::fread(data, 1, static_cast<std::size_t>(length), file.get()) != static_cast<std::size_t>(length)) {
        report("readBinaryFromFile", tovu::detail::kNotRead);
        std::free(data);
        return -1;
    }
    *buffer = data;
    return static_cast<int>(length);
}

bool writeBinary2File(std::string const& path, unsigned char const* data, long length)
{
    return writeBinary2FileDo(path, data, length, false);
}

bool appendBinary2File(std::string const& path, unsigned char const* data, long length)
{
    return writeBinary2FileDo(path, data, length, true);
}

bool compareFilesBinary(std::string const& a, std::string const& b)
{
    // Both files are checked (and their failures logged) as if read whole,
    // but compared block by block so that size does not matter.
    std::string const pa = absolute(a);
    std::string const pb = absolute(b);
    long const la = readableLength(pa);
    long const lb = readableLength(pb);
    if (la < 0 || la != lb)
        return false;
    File fa = openFile(pa, "rb");
    File fb = openFile(pb, "rb");
    if (!fa || !fb)
        return false;
    std::vector<char> ba(kBlock), bb(kBlock);
    for (long done = 0; done < la;) {
        std::size_t const want = static_cast<std::size_t>(std::min<long>(la - done, static_cast<long>(kBlock)));
        if (std::fread(ba.data(), 1, want, fa.get()) != want || std::fread(bb.data(), 1, want, fb.get()) != want)
            return false;
        if (std::memcmp(ba.data(), bb.data(), want) != 0)
            return false;
        done += static_cast<long>(want);
    }
    return true;
}

bool fileExists(std::string const& path) { return fileAccess(path, 0) != -1; }

char pathExists(std::string const& path)
{
    std::string p = absolute(absolute(path));
    if (p.size() > 1 && p.back() == tovu::detail::pathSeparator())
        p.pop_back();
    tovu::detail::PathStatus status;
    if (tovu::detail::statPath(p, status) != 0)
        return 0;
    return status.isDirectory ? 'd' : 'f';
}

int changeMode(std::string const& path, int mode)
{
    tovu::detail::MethodMarker const marker(log(), [&] { return "changeMode(\"" + path + "\")"; });
    std::string const p = absolute(path);
    if (tovu::detail::changeFileMode(p, mode) != 0) {
        reportErrno("changeMode", p, ErrnoTable::ChangeMode, errno);
        return -1;
    }
    return 0;
}

std::tm getFileTime(std::string const& path)
{
    tovu::detail::PathStatus status;
    if (tovu::detail::statPath(absolute(path), status) != 0)
        return std::tm{};
    return tovu::detail::localTime(status.modified);
}

bool createDir(std::string const& path, int mode)
{
    std::string const p = absolute(path);
    char const sep = tovu::detail::pathSeparator();
    std::string const drive = getOnlyDriveOfFullFilename(p);
    std::string rest = p.substr(std::min(drive.size(), p.size()));
    std::string current = drive;
    while (!rest.empty()) {
        std::string const component = extractLeftToken(rest, sep);
        if (component.empty())
            continue;
        current += sep + component;
        char const found = pathExists(current);
        if (found == 0) {
            makeDir(current, mode);
        } else if (found == 'f') {
            report("createDir", tovu::detail::kPathIsFile, current);
            return false;
        }
    }
    return pathExists(p) == 'd';
}
