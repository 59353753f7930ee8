#include "tovuutil/files/FileOperation.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <vector>

#include "tovuutil/files/PathUtil.h"
#include "tovuutil/files/detail/ErrnoText.h"
#include "tovuutil/files/detail/FileReport.h"
#include "tovuutil/files/detail/HostFileSystem.h"
#include "tovuutil/files/detail/TreeWalk.h"
#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/MethodMarker.h"
#include "tovuutil/text/StringUtil.h"

using tovu::detail::ErrnoTable;

namespace {

constexpr std::size_t kBlock = 64 * 1024;

Logger* log() { return tovu::detail::fileOperationLog(); }

using tovu::detail::report;
using tovu::detail::reportErrno;

std::string absolute(std::string const& path) { return getAbsolutePath(path); }

// A file, or a symbolic link itself (even one pointing nowhere).
bool exists(std::string const& path)
{
    tovu::detail::PathStatus status;
    return fileExists(path) || tovu::detail::linkStatus(path, status) == 0;
}

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
    // The file is overwritten through its directory, never through a link:
    // a link itself is only removed.
    std::string::size_type const slash = p.rfind(tovu::detail::pathSeparator());
    std::string const parent = slash == std::string::npos ? "." : slash == 0 ? p.substr(0, 1) : p.substr(0, slash);
    std::string const name = slash == std::string::npos ? p : p.substr(slash + 1);
    tovu::detail::PathStatus status;
    int const directory = tovu::detail::openDirectory(parent, true);
    if (directory < 0 || tovu::detail::linkStatus(p, status) != 0) {
        if (directory >= 0)
            tovu::detail::closeDirectory(directory);
        report("deleteFileSecure", tovu::detail::kNotDeleted);
        return -1;
    }
    int const result =
        tovu::detail::removeFileAt(directory, name, p, true, status.isLink);
    tovu::detail::closeDirectory(directory);
    return result;
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
    return tovu::detail::removeTree(absolute(path), secure, deleteSelf);
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

namespace {
// copyFile with the whole truth: complete is true only when every byte was
// read and written and the target was closed without error.
bool copyFileDo(std::string const& from, std::string const& to, bool overwrite, bool& complete)
{
    complete = false;
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
    complete = true;
    if (source == target)
        return true; // truncating the target would destroy the source
    File in = openFile(source, "rb");
    File out = openFile(target, "wb");
    complete = in && out;
    if (complete) {
        std::vector<char> block(kBlock);
        std::size_t count;
        while (complete && (count = std::fread(block.data(), 1, block.size(), in.get())) > 0)
            complete = writeAll(out.get(), block.data(), count);
        complete = complete && !std::ferror(in.get());
    }
    if (out)
        complete = std::fclose(out.release()) == 0 && complete;
    return true;
}

// A root that is a symbolic link is not moved: deleting it would mean
// deleting through the link.
bool refuseLinkRoot(std::string const& path)
{
    std::string p = absolute(path);
    while (p.size() > 1 && p.back() == tovu::detail::pathSeparator())
        p.pop_back();
    tovu::detail::PathStatus status;
    if (tovu::detail::linkStatus(p, status) != 0 || !status.isLink)
        return false;
    reportErrno("deleteDir", p, ErrnoTable::DeleteDir, ENOTDIR);
    return true;
}
} // namespace

int moveFile(std::string const& from, std::string const& to, bool overwrite, bool secure)
{
    bool complete = false;
    if (absolute(from) == absolute(to))
        return copyFileDo(from, to, overwrite, complete) ? 0 : -1; // nothing to move, nothing to delete
    if (!copyFileDo(from, to, overwrite, complete) || !complete)
        return -1; // the source stays unless its copy is whole
    int const removed = secure ? deleteFileSecure(from) : deleteFile(from);
    return removed != 0 ? 1 : 0;
}

int moveFolder(std::string const& from, std::string const& to, bool overwrite, bool secure)
{
    if (refuseLinkRoot(from))
        return -1;
    tovu::detail::CopyOutcome const copied = tovu::detail::copyTree(from, to, overwrite);
    if (!copied.answer || !copied.complete)
        return -1;
    if (copied.sourceKeepsCopy)
        return 1; // deleting the source would delete the copy
    return deleteDirRecursive(from, secure, true);
}

bool copyFile(std::string const& from, std::string const& to, bool overwrite)
{
    bool complete = false;
    return copyFileDo(from, to, overwrite, complete);
}

bool copyFolder(std::string const& from, std::string const& to, bool overwrite)
{
    return tovu::detail::copyTree(from, to, overwrite).answer;
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
