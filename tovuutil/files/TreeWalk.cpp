#include "tovuutil/files/detail/TreeWalk.h"

#include <algorithm>
#include <cerrno>
#include <set>
#include <utility>
#include <vector>

#include "tovuutil/files/FileOperation.h"
#include "tovuutil/files/PathUtil.h"
#include "tovuutil/files/detail/FileReport.h"
#include "tovuutil/files/detail/HostFileSystem.h"
#include "tovuutil/framework/Logger.h"
#include "tovuutil/text/Random.h"

namespace tovu {
namespace detail {

namespace {

constexpr std::size_t kBlock = 64 * 1024;

// The path of the current level, for messages only: it grows and shrinks
// with the walk, so building it costs nothing per level.
class TreePath {
public:
    explicit TreePath(std::string root) : text_(std::move(root)) {}
    void enter(std::string const& name)
    {
        marks_.push_back(text_.size());
        text_ += pathSeparator();
        text_ += name;
    }
    void leave()
    {
        text_.resize(marks_.back());
        marks_.pop_back();
    }
    std::string const& text() const { return text_; }
    std::string child(std::string const& name) const { return text_ + pathSeparator() + name; }

private:
    std::string text_;
    std::vector<std::size_t> marks_;
};

// One open directory handle, closed when it goes.
class Directory {
public:
    explicit Directory(int handle = -1) : handle_(handle) {}
    Directory(Directory const&) = delete;
    Directory& operator=(Directory const&) = delete;
    ~Directory() { reset(-1); }
    void reset(int handle)
    {
        if (handle_ >= 0)
            closeDirectory(handle_);
        handle_ = handle;
    }
    int get() const { return handle_; }
    int release()
    {
        int const handle = handle_;
        handle_ = -1;
        return handle;
    }
    bool valid() const { return handle_ >= 0; }

private:
    int handle_;
};

std::string withoutTrailingSeparator(std::string path)
{
    while (path.size() > 1 && path.back() == pathSeparator())
        path.pop_back();
    return path;
}

void logRemoved(std::string const& path)
{
    Logger* logger = fileOperationLog();
    if (logger->isDebugEnabled())
        logger->debug("deleteDir: Ordner: " + path + " erfolgreich entfernt.");
}

// Overwrites the first length bytes of an open file with random bytes and
// forces them to the disk.
bool overwriteRandomly(int handle, long long length)
{
    Random random;
    std::vector<char> block(kBlock);
    for (long long done = 0; done < length;) {
        std::size_t const count = static_cast<std::size_t>(std::min<long long>(length - done, kBlock));
        for (std::size_t i = 0; i < count; ++i)
            block[i] = static_cast<char>(random.random());
        if (writeHandle(handle, block.data(), count) != static_cast<long>(count))
            return false;
        done += static_cast<long long>(count);
    }
    return commitHandle(handle) == 0;
}

// Copies an open file to another through block; true when every byte was
// read and written.
bool copyBytes(int in, int out, std::vector<char>& block)
{
    long n;
    while ((n = readHandle(in, block.data(), block.size())) > 0)
        if (writeHandle(out, block.data(), static_cast<unsigned long>(n)) != n)
            return false;
    return n == 0;
}

} // namespace

int removeFileAt(int directory, std::string const& name, std::string const& path, bool secure, bool isLink)
{
    if (secure && !isLink) {
        int const handle = openFileAt(directory, name, OpenAt::Overwrite);
        PathStatus status;
        bool written = handle >= 0 && handleStatus(handle, status) == 0 && overwriteRandomly(handle, status.size);
        written = handle >= 0 && closeHandle(handle) == 0 && written;
        if (!written) {
            // Nothing fully overwritten, so nothing deleted either.
            report("deleteFileSecure", kNotDeleted);
            return -1;
        }
    }
    if (removeAt(directory, name, false) != 0) {
        reportErrno("deleteFile", path, ErrnoTable::DeleteFile, errno);
        return -1;
    }
    return 0;
}

int removeTree(std::string const& rootPath, bool secure, bool deleteSelf)
{
    std::string const root = withoutTrailingSeparator(rootPath);
    PathStatus status;
    if (linkStatus(root, status) == 0 && status.isLink) {
        reportErrno("deleteDir", root, ErrnoTable::DeleteDir, ENOTDIR);
        return -1;
    }
    Directory current(openDirectory(root, false));
    if (!current.valid())
        return deleteSelf ? deleteDir(rootPath) : 0; // nothing to empty

    struct Level {
        NodeId id;
        std::string name; // in the level above
        std::vector<std::string> directories;
        std::size_t next = 0;
    };
    TreePath path(root);
    std::vector<Level> stack;
    // Lists the current directory, deletes its files and stacks its
    // subdirectories; false on the first failure.
    auto enter = [&](std::string name) {
        Level level;
        level.name = std::move(name);
        std::vector<TreeEntry> entries;
        if (!nodeId(current.get(), true, level.id))
            return false;
        listDirectory(current.get(), entries);
        stack.push_back(std::move(level));
        for (auto& entry : entries) {
            if (entry.type == EntryType::Directory) {
                stack.back().directories.push_back(std::move(entry.name));
            } else if (removeFileAt(current.get(), entry.name, path.child(entry.name), secure,
                                    entry.type != EntryType::Regular) != 0) {
                return false;
            }
        }
        return true;
    };

    if (!enter(std::string()))
        return -1;
    while (true) {
        Level& top = stack.back();
        if (top.next < top.directories.size()) {
            std::string const& name = top.directories[top.next++];
            int const child = openDirectoryAt(current.get(), name);
            if (child < 0) {
                // Gone, or no longer a directory: only removing it is left.
                if (removeAt(current.get(), name, true) != 0) {
                    reportErrno("deleteDir", path.child(name), ErrnoTable::DeleteDir, errno);
                    return -1;
                }
                logRemoved(path.child(name));
                continue;
            }
            current.reset(child);
            path.enter(name);
            if (!enter(name))
                return -1;
            continue;
        }
        if (stack.size() == 1)
            break;
        int const parent = openParentDirectory(current.get(), stack[stack.size() - 2].id);
        if (parent < 0) {
            reportErrno("deleteDir", path.text(), ErrnoTable::DeleteDir, errno);
            return -1;
        }
        current.reset(parent);
        if (removeAt(current.get(), top.name, true) != 0) {
            reportErrno("deleteDir", path.text(), ErrnoTable::DeleteDir, errno);
            return -1;
        }
        logRemoved(path.text());
        path.leave();
        stack.pop_back();
    }
    current.reset(-1);
    return deleteSelf ? deleteDir(rootPath) : 0;
}

CopyOutcome copyTree(std::string const& fromPath, std::string const& toPath, bool overwrite)
{
    std::string const from = withoutTrailingSeparator(getAbsolutePath(fromPath));
    std::string const to = withoutTrailingSeparator(getAbsolutePath(toPath));
    CopyOutcome outcome;
    if (pathExists(to) == 0)
        createDir(to, 511);
    if (pathExists(from) != 'd')
        return CopyOutcome{false, false, false};
    Directory source(openDirectory(from, true));
    Directory target(openDirectory(to, true));
    if (!source.valid())
        return CopyOutcome{false, false, false};
    if (!target.valid())
        return CopyOutcome{true, false, false}; // every file copy would fail to open its target

    struct Level {
        NodeId sourceId, targetId;
        std::string name;
        std::vector<std::string> directories;
        std::vector<TreeEntry> files;
        std::size_t next = 0;
    };
    // Directories of the copy: met again in the source, they are not copied
    // into themselves.
    std::set<std::pair<unsigned long long, unsigned long long>> made;
    auto key = [](NodeId const& id) { return std::make_pair(id.device, id.node); };
    TreePath sourcePath(from), targetPath(to);
    std::vector<Level> stack;
    auto enter = [&](std::string name) {
        Level level;
        level.name = std::move(name);
        if (!nodeId(source.get(), true, level.sourceId) || !nodeId(target.get(), true, level.targetId))
            return false;
        made.insert(key(level.targetId));
        std::vector<TreeEntry> entries;
        listDirectory(source.get(), entries);
        for (auto& entry : entries) {
            if (entry.type == EntryType::Directory)
                level.directories.push_back(std::move(entry.name));
            else
                level.files.push_back(std::move(entry));
        }
        stack.push_back(std::move(level));
        return true;
    };
    auto fail = [&outcome]() {
        outcome.answer = false;
        outcome.complete = false;
        return outcome;
    };
    std::vector<char> block(kBlock); // one buffer for every file
    // Copies one file of the current level; false ends the walk.
    auto copyOne = [&](TreeEntry const& entry) {
        bool const isLink = entry.type == EntryType::Link;
        int const in = openFileAt(source.get(), entry.name, isLink ? OpenAt::ReadThroughLink : OpenAt::Read);
        if (in < 0 && isLink)
            return true; // a link to a directory or to nothing is not followed
        if (in < 0 && errno == ENOENT) {
            report("copyFile", kFileMissing, sourcePath.child(entry.name));
            return false;
        }
        if (!overwrite && existsAt(target.get(), entry.name)) {
            if (in >= 0)
                closeHandle(in);
            report("copyFile", kFileExists, targetPath.child(entry.name));
            return false;
        }
        int const out = in < 0 ? -1 : openFileAt(target.get(), entry.name, OpenAt::Create);
        bool copied = out >= 0 && copyBytes(in, out, block);
        if (out >= 0)
            copied = closeHandle(out) == 0 && copied;
        if (in >= 0)
            closeHandle(in);
        outcome.complete = outcome.complete && copied;
        return true; // a failed copy is still an attempted one
    };

    if (!enter(std::string()))
        return fail();
    if (stack.back().sourceId == stack.back().targetId) {
        outcome.sourceKeepsCopy = true; // copying a tree onto itself: nothing to do
        return outcome;
    }
    while (!stack.empty()) {
        Level& top = stack.back();
        if (top.next < top.directories.size()) {
            std::string const& name = top.directories[top.next++];
            Directory child(openDirectoryAt(source.get(), name));
            NodeId id;
            if (!child.valid() || !nodeId(child.get(), true, id))
                return fail();
            if (made.count(key(id)) != 0) {
                outcome.sourceKeepsCopy = true;
                continue;
            }
            if (!existsAt(target.get(), name) && makeDirectoryAt(target.get(), name, 511) != 0)
                reportErrno("makeDir", targetPath.child(name), ErrnoTable::MakeDir, errno);
            int const copy = openDirectoryAt(target.get(), name);
            if (copy < 0) {
                outcome.complete = false; // nowhere to copy this branch to
                continue;
            }
            source.reset(child.release());
            target.reset(copy);
            sourcePath.enter(name);
            targetPath.enter(name);
            if (!enter(name))
                return fail();
            continue;
        }
        for (auto const& entry : top.files)
            if (!copyOne(entry))
                return fail();
        if (stack.size() == 1)
            break;
        Level const& above = stack[stack.size() - 2];
        int const sourceParent = openParentDirectory(source.get(), above.sourceId);
        int const targetParent = openParentDirectory(target.get(), above.targetId);
        source.reset(sourceParent);
        target.reset(targetParent);
        if (sourceParent < 0 || targetParent < 0)
            return fail(); // a tree was moved away during the walk
        sourcePath.leave();
        targetPath.leave();
        stack.pop_back();
    }
    return outcome;
}

} // namespace detail
} // namespace tovu
