// Bytes as a recipe for a tree: folders, files and links of every kind with
// names made of hostile characters. The tree is copied, moved (securely) and
// deleted. Oracle: a folder beside the tree, which the links point into,
// stays byte-identical, and the walks leave no trace of the tree behind.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <tovuutil/tovuutil.h>

#include "FuzzFile.h"
#include "framework/TreeSnapshot.h"

namespace {

namespace fs = std::filesystem;

// Names from a small alphabet of troublemakers.
std::string nameFrom(std::uint8_t const*& p, std::uint8_t const* end)
{
    static char const* const pieces[] = {"a", "..", "\\", ".", "..\\out", "\n", "\xe9", "b.txt", "*", " "};
    std::string name;
    std::size_t length = p < end ? 1 + *p++ % 4 : 1;
    while (length-- > 0 && p < end)
        name += pieces[*p++ % (sizeof pieces / sizeof *pieces)];
    if (name.empty() || name == "." || name == "..")
        name += "x";
    return name;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const base = fs::absolute("fuzz_tree_" + std::to_string(getpid())).string();
    fs::remove_all(base);
    fs::create_directories(base + "/out/dir");
    std::ofstream(base + "/out/file.txt") << "outside";
    std::ofstream(base + "/out/dir/inner.txt") << "outside too";
    auto const before = tovutest::snapshot(base + "/out");

    // Each step: a kind, a name and the folder (an earlier one) it goes into.
    std::vector<std::string> folders{base + "/t"};
    fs::create_directory(folders[0]);
    std::uint8_t const* p = data;
    std::uint8_t const* const end = data + size;
    while (p < end && folders.size() < 64) {
        std::uint8_t const kind = *p++ % 7;
        std::string const folder = folders[p < end ? *p++ % folders.size() : 0];
        std::string const path = folder + "/" + nameFrom(p, end);
        std::error_code ignored;
        switch (kind) {
        case 0: if (mkdir(path.c_str(), 0755) == 0) folders.push_back(path); break;
        case 1: {
            // Never through a link made by an earlier step.
            int const file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0644);
            std::string const bytes(p < end ? *p : 0, 'z');
            if (file >= 0) {
                if (write(file, bytes.data(), bytes.size()) < 0) {
                    // a short file is a tree all the same
                }
                close(file);
            }
            break;
        }
        case 2: fs::create_symlink(base + "/out/file.txt", path, ignored); break;
        case 3: fs::create_directory_symlink(base + "/out/dir", path, ignored); break;
        case 4: fs::create_directory_symlink("..", path, ignored); break;
        case 5: fs::create_symlink(base + "/nowhere", path, ignored); break;
        case 6: fs::create_symlink("../../out/file.txt", path, ignored); break;
        }
    }

    copyFolder(base + "/t", base + "/copy", true);
    moveFolder(base + "/copy", base + "/moved", true, (size & 1) != 0);
    deleteDirRecursive(base + "/moved", (size & 2) != 0, true);
    deleteDirRecursive(base + "/t", (size & 4) != 0, true);
    fuzzCheck(tovutest::snapshot(base + "/out") == before, "a walk changed something outside its tree");
    fuzzCheck(!fs::exists(fs::symlink_status(base + "/t")) && !fs::exists(fs::symlink_status(base + "/copy")) &&
                  !fs::exists(fs::symlink_status(base + "/moved")),
              "a walk left part of its tree");
    fs::remove_all(base);
    return 0;
}
