#include "tovuutil/properties/Ini.h"

#include <cstdarg>
#include <cstdio>

#include "tovuutil/files/detail/HostFileSystem.h"
#include "tovuutil/properties/detail/TextMode.h"

namespace msvc_tovu_ini_wrapper {

Log::Log() : handle(-1) {}

Log::Log(Log const& other) : handle(-1), path(other.path) {}

Log& Log::operator=(Log const& other)
{
    if (this != &other) {
        Close();
        path = other.path;
    }
    return *this;
}

Log::~Log() { Close(); }

bool Log::Open(char const* path, bool readOnly, bool append, bool)
{
    Close();
    this->path = path ? path : "";
    handle = readOnly ? tovu::detail::openForReading(this->path) : tovu::detail::openForWriting(this->path, append);
    return handle != -1;
}

void Log::Close()
{
    if (handle == -1)
        return;
    tovu::detail::closeHandle(handle);
    handle = -1;
    tovu::detail::setNormalAttributes(path);
}

bool Log::Write(char const* buffer, unsigned long length)
{
    if (handle == -1)
        return false;
    std::string const text = tovu::detail::toTextMode(buffer, length);
    tovu::detail::writeHandle(handle, text.data(), text.size());
    return true;
}

bool Log::Write(char const* format, ...)
{
    if (handle == -1 || format == nullptr)
        return false;
    char buffer[5000] = {0};
    va_list args;
    va_start(args, format);
    int const count = std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    // Nothing for an empty text or one longer than 4999 characters.
    if (count < 1 || count > 4999)
        return false;
    std::string const text = tovu::detail::toTextMode(buffer, static_cast<unsigned long>(count));
    tovu::detail::writeHandle(handle, text.data(), text.size());
    return true;
}

void Log::Flush()
{
    if (handle != -1)
        tovu::detail::commitHandle(handle);
}

bool Log::IsOpen() const { return handle != -1; }

std::string Log::GetPath() const { return path; }

} // namespace msvc_tovu_ini_wrapper
