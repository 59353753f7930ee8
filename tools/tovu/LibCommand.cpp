#include <tovuutil/tovuutil.h>

#include "CommandLine.h"
#include "Commands.h"

namespace tovu::cli {

namespace {

constexpr char kHelp[] =
    "usage: tovu lib symbol LIBRARY SYMBOL\n"
    "       tovu lib name LIBRARY\n"
    "       tovu lib version FILE\n\n"
    "symbol loads LIBRARY through the library's shared-library service and looks\n"
    "SYMBOL up: status 0 when both succeed, 1 otherwise. name prints the file name\n"
    "a library name is loaded as (x and x.dll load libx.so, /a/x loads\n"
    "/a/libx.so; x.so and versioned names such as libm.so.6 stay as they are).\n"
    "version prints a file's\n"
    "product and file versions; status 1 when the file has none.\n\n"
    "example: tovu lib symbol libm.so.6 cos\n";

int symbol(std::string const& library, std::string const& name)
{
    auto* service = static_cast<SharedLibService*>(UtilServiceFactory::getService(2));
    if (service == nullptr)
        return failure("lib", "the shared-library service is not available");
    std::string const loaded = service->loadSharedLib(library);
    if (loaded.empty())
        return failure("lib", "'" + library + "' cannot be loaded");
    if (service->getSymbol(loaded, name) == nullptr)
        return failure("lib", loaded + " does not export '" + name + "'");
    out() << loaded << ": " << name << " found\n";
    return kOk;
}

} // namespace

int runLib(Args const& arguments)
{
    CommandLine line;
    if (auto const done = parseCommandLine("lib", kHelp, arguments, {}, line))
        return *done;
    Args const& args = line.operands;
    std::string const action = args.empty() ? "" : args[0];
    std::size_t const wanted = action == "symbol" ? 3 : action == "name" || action == "version" ? 2 : 0;
    if (wanted == 0)
        return usageError("lib", args.empty() ? "which action: symbol, name or version?"
                                              : "unknown action '" + action + "'");
    if (args.size() != wanted)
        return usageError("lib", args.size() < wanted ? "missing argument" : "unexpected argument '" + args[wanted] + "'");
    if (action == "symbol")
        return symbol(args[1], args[2]);
    if (action == "name") {
        SharedLibResourceManager manager;
        out() << manager.getFileName(args[1]) << '\n';
        return kOk;
    }
    std::string product;
    std::string file;
    getSharedLibVersionInfo(args[1], product, file);
    // Without a version block both texts are the name and this remark.
    if (product == args[1] + " nicht gefunden oder kein Versionsinfoblock")
        return failure("lib", args[1] + ": no version information (missing, or a file without a version)");
    out() << "product version: " << toTerminal(product) << "\nfile version: " << toTerminal(file) << '\n';
    return kOk;
}

} // namespace tovu::cli
