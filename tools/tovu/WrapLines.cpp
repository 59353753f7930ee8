#include "WrapLines.h"

#include <algorithm>
#include <cstring>

namespace tovu::cli {

void wrapLines(char const* text, std::size_t size, std::size_t width, std::size_t& column,
               std::function<void(char const*, std::size_t)> const& write)
{
    char const* const end = text + size;
    while (text < end) {
        if (*text == '\n') {
            write(text++, 1);
            column = 0;
            continue;
        }
        if (column == width) {
            write("\n", 1);
            column = 0;
        }
        auto const* lineFeed = static_cast<char const*>(std::memchr(text, '\n', static_cast<std::size_t>(end - text)));
        std::size_t const run = std::min({width - column, static_cast<std::size_t>((lineFeed ? lineFeed : end) - text)});
        write(text, run);
        column += run;
        text += run;
    }
}

} // namespace tovu::cli
