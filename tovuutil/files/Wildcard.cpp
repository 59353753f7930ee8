#include "tovuutil/files/detail/Wildcard.h"

#include <cctype>

namespace tovu {
namespace detail {

namespace {
bool sameLetter(char a, char b)
{
    return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
}

// Greedy matching with one back-track point: linear in practice, never recursive.
bool match(std::string const& name, std::string const& pattern)
{
    std::size_t n = 0, p = 0, starP = std::string::npos, starN = 0;
    while (n < name.size()) {
        if (p < pattern.size() && (pattern[p] == '?' || sameLetter(pattern[p], name[n]))) {
            ++n;
            ++p;
        } else if (p < pattern.size() && pattern[p] == '*') {
            starP = p++;
            starN = n;
        } else if (starP != std::string::npos) {
            p = starP + 1;
            n = ++starN;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*')
        ++p;
    return p == pattern.size();
}
} // namespace

bool matchesWildcard(std::string const& name, std::string const& pattern)
{
    if (pattern.empty() || pattern == "*" || pattern == "*.*")
        return true;
    if (match(name, pattern))
        return true;
    // "x*." style patterns: a name without a dot also matches with one appended.
    return name.find('.') == std::string::npos && match(name + ".", pattern);
}

} // namespace detail
} // namespace tovu
