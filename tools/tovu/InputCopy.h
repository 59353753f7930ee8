#ifndef TOVU_TOOL_INPUTCOPY_H
#define TOVU_TOOL_INPUTCOPY_H

#include <string>

namespace tovu::cli {

// Standard input copied to a new temporary file (".ini"), for the library's
// file reader; the file is removed with the object.
class InputCopy {
public:
    InputCopy() = default;
    InputCopy(InputCopy const&) = delete;
    InputCopy& operator=(InputCopy const&) = delete;
    ~InputCopy();

    // Copies standard input; path names the copy. False with a reason.
    bool make(std::string& path, std::string& reason);

private:
    std::string path_;
};

} // namespace tovu::cli

#endif
