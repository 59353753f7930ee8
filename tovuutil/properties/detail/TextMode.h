#ifndef TOVUUTIL_PROPERTIES_DETAIL_TEXTMODE_H
#define TOVUUTIL_PROPERTIES_DETAIL_TEXTMODE_H

#include <string>

namespace tovu {
namespace detail {

// Bytes as a text-mode write puts them in the file: every "\n" becomes CR LF
// (a "\r\n" in the text therefore becomes "\r\r\n").
inline std::string toTextMode(char const* data, unsigned long length)
{
    std::string out;
    out.reserve(length + length / 16 + 8);
    for (unsigned long i = 0; i < length; ++i) {
        if (data[i] == '\n')
            out += '\r';
        out += data[i];
    }
    return out;
}

} // namespace detail
} // namespace tovu

#endif
