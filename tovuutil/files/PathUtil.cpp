#include "tovuutil/files/PathUtil.h"

#include "tovuutil/datetime/TovuDate.h"
#include "tovuutil/files/FileOperation.h"
#include "tovuutil/files/detail/HostFileSystem.h"
#include "tovuutil/text/BaseCodec.h"
#include "tovuutil/text/StringUtil.h"

namespace {

std::string separator() { return std::string(1, tovu::detail::pathSeparator()); }

} // namespace

std::string transformPath(std::string const& path)
{
    return replacePattern(path, std::string(1, tovu::detail::foreignSeparator()), separator());
}

std::string formatPath(std::string const& path)
{
    if (path.size() < 2 || path.back() != tovu::detail::pathSeparator())
        return path;
    if (path.size() < 4 && path[1] == ':')
        return path; // a drive root
    return path.substr(0, path.size() - 1);
}

std::string getFullFilename(std::string const& path, std::string const& name)
{
    char const sep = tovu::detail::pathSeparator();
    std::string p = transformPath(path);
    if (!p.empty())
        p = ensureAtEnd(p, separator());
    std::string const n = transformPath(name);
    std::string::size_type const first = n.find_first_not_of(sep);
    if (first == std::string::npos)
        return p;
    std::string::size_type const last = n.find_last_not_of(sep);
    return p + n.substr(first, last - first + 1);
}

std::string getFullFilename(std::string const& path, std::string const& name, std::string const& extension)
{
    if (name.empty() || extension.empty())
        return transformPath(path);
    std::string f = removeRight(name, ".");
    if (extension[0] != '.')
        f += ".";
    return getFullFilename(path, f + extension);
}

std::string getOnlyFilenameOfFullFilename(std::string const& fullName)
{
    return right(transformPath(fullName), separator());
}

std::string getOnlyPathOfFullFilename(std::string const& fullName)
{
    return ensureAtEnd(removeRight(transformPath(fullName), separator()), separator());
}

std::string getOnlyDriveOfFullFilename(std::string const& fullName)
{
    char const sep = tovu::detail::pathSeparator();
    std::string const s = ensureAtEnd(getAbsolutePath(fullName), separator());
    std::string drive = tovu::detail::drivePart(s);
    if (drive.empty() && s.size() > 2 && s[0] == sep && s[1] == sep) {
        std::string::size_type const p1 = s.find(sep, 2);
        if (p1 != std::string::npos && p1 > 2) {
            std::string::size_type const p2 = s.find(sep, p1 + 1);
            if (p2 != std::string::npos && p2 > p1)
                drive = s.substr(0, p2);
        }
    }
    return drive;
}

bool extractPathFilenameExtention(std::string const& fullName, std::string& path, std::string& filename,
                                  std::string& extension)
{
    std::string const p = transformPath(fullName);
    if (p == "." || p == "..") {
        // Directory references, not file names: never a rejoinable split.
        path = p;
        filename.clear();
        extension.clear();
        return false;
    }
    {
        filename = right(p, separator());
        path = filename != fullName ? removeRight(p, separator()) : std::string();
        std::string::size_type const dot = filename.find('.');
        if (dot != std::string::npos) {
            extension = filename.substr(dot + 1);
            filename = filename.substr(0, dot);
        }
    }
    return getFullFilename(path, filename, extension) == p;
}

std::string concatPath(std::string const& first, std::string const& second)
{
    std::string const a = ensureAtEnd(transformPath(first), separator());
    std::string b = ensureAtEnd(transformPath(second), separator());
    if (!b.empty() && b[0] == tovu::detail::pathSeparator())
        b.erase(0, 1);
    return a + b;
}

bool isAbsolutePath(std::string const& path)
{
    if (path.empty())
        return false;
    return path[0] == '\\' || path[0] == '/' || (path.size() > 1 && path[1] == ':');
}

std::string getAbsolutePath(std::string const& path)
{
    std::string const t = transformPath(path);
    std::string absolute;
    return tovu::detail::fullPath(t, absolute) ? absolute : t;
}

namespace {

// Year and milliseconds as 16-bit little-endian values, then month, day,
// hours, minutes and seconds, one byte each.
std::string timeStampName()
{
    TovuDate const now;
    int const year = now.getDate().getYear();
    int const millis = now.getTime().getMilliSeconds();
    unsigned char const record[9] = {
        static_cast<unsigned char>(year & 0xFF),   static_cast<unsigned char>((year >> 8) & 0xFF),
        static_cast<unsigned char>(millis & 0xFF), static_cast<unsigned char>((millis >> 8) & 0xFF),
        static_cast<unsigned char>(now.getDate().getMonth()), static_cast<unsigned char>(now.getDate().getDay()),
        static_cast<unsigned char>(now.getTime().getHours()), static_cast<unsigned char>(now.getTime().getMinutes()),
        static_cast<unsigned char>(now.getTime().getSeconds())};
    char encoded[20] = {0};
    BaseEncode::Base64Encode(encoded, record, sizeof record);
    return replacePattern(encoded, "/", "-");
}

} // namespace

std::string createTempDirName(std::string const& parentDir)
{
    std::string candidate = ensureAtEnd(getAbsolutePath(parentDir), separator()) + timeStampName();
    if (pathExists(candidate) == 0)
        return candidate;
    for (int i = 0; i < 256; ++i) {
        std::string const suffix = left(getFormattedString(10, "%02x", i), 2);
        candidate = i == 0 ? candidate + suffix : candidate.substr(0, candidate.size() - 2) + suffix;
        if (pathExists(candidate) == 0)
            return candidate;
    }
    return std::string();
}

std::string getCurrentDirectory()
{
    std::string directory;
    if (!tovu::detail::currentDirectory(directory))
        return std::string();
    return ensureAtEnd(directory, separator());
}

std::string getCurrentDrive()
{
    int const drive = tovu::detail::currentDrive();
    if (drive < 1)
        return std::string();
    return std::string(1, static_cast<char>(64 + drive)) + ":";
}

bool changeCurrentDrive(std::string const& drive)
{
    int const letter = drive.empty() ? 0 : static_cast<unsigned char>(drive[0]);
    return tovu::detail::changeDrive(letter - 64) == 0;
}
