#include "tovuutil/platform/SharedLib.h"

#include "tovuutil/files/PathUtil.h"
#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/MethodMarker.h"
#include "tovuutil/platform/detail/DynamicLibrary.h"
#include "tovuutil/text/StringUtil.h"

SharedLib::SharedLib() : logger(Logger::getInstance("tovuutil.SharedLib")) { init(); }

SharedLib::SharedLib(std::string const& name) : logger(Logger::getInstance("tovuutil.SharedLib"))
{
    init();
    this->name = name;
}

SharedLib::SharedLib(SharedLib const& other) : Resource(other), logger(other.logger), name(other.name)
{
    init();
}

SharedLib& SharedLib::operator=(SharedLib const& other)
{
    if (this != &other) {
        logger = other.logger;
        name = other.name;
        init();
    }
    return *this;
}

SharedLib::~SharedLib()
{
    if (logger->isDebugEnabled())
        logger->debug("~SharedLib " + name);
}

void SharedLib::init()
{
    loaded = false;
    freeOnUnload = true;
    module = nullptr;
}

std::string SharedLib::getName() { return name; }

std::string SharedLib::getError() { return "Unknown Error"; }

void* SharedLib::getSymbol(std::string const& symbol) const
{
    tovu::detail::MethodMarker const marker(logger, [&] { return "getSymbol(" + symbol + ")"; });
    if (logger->isDebugEnabled())
        logger->debug("Get symbol " + symbol);
    void* address = tovu::detail::findSymbol(module, symbol);
    if (address == nullptr && logger->isErrorEnabled())
        logger->error(replacePattern(
            replacePattern("Symbol '%1' konnte in Shared Library '%2' nicht gefunden werden.", "%2", name), "%1",
            symbol));
    return address;
}

bool SharedLib::load(std::string const& name)
{
    logger->beginMethod("load");
    this->name = name;
    if (loaded) {
        if (logger->isDebugEnabled())
            logger->debug("Library " + name + " already loaded.");
    } else {
        if (logger->isDebugEnabled())
            logger->debug("Loading library " + name);
        freeOnUnload = true;
        module = tovu::detail::openLibrary(name);
        if (module == nullptr) {
            if (logger->isErrorEnabled())
                logger->error(replacePattern("Shared Library '%1' konnte nicht geladen werden.", "%1", name));
        } else {
            loaded = true;
        }
    }
    logger->endMethod("load");
    return loaded;
}

bool SharedLib::load() { return loaded ? loaded : load(name); }

bool SharedLib::unload()
{
    logger->beginMethod("unload");
    bool released = true;
    if (loaded) {
        if (freeOnUnload) {
            if (logger->isDebugEnabled())
                logger->debug("Unloading library " + name);
            released = tovu::detail::closeLibrary(module);
            if (!released && logger->isErrorEnabled())
                logger->error(replacePattern("Shared Library '%1' konnte nicht entladen werden.", "%1", name));
            module = nullptr;
        } else if (logger->isDebugEnabled()) {
            logger->debug(replacePattern(
                "Shared Library '%1' wurde nicht entladen, da sie vom System noch benoetigt wird.", "%1", name));
        }
    }
    loaded = false;
    logger->endMethod("unload");
    return released;
}

SharedLibResourceManager::SharedLibResourceManager()
    : ownLogger_(Logger::getInstance("tovuutil.SharedLibResourceManager"))
{
}

SharedLibResourceManager::~SharedLibResourceManager()
{
    auto const lock = lockCache();
    ResourceMap& map = getResourceMap();
    logResources();
    while (!map.empty()) {
        std::string const key = map.begin()->first;
        if (ownLogger_->isDebugEnabled())
            ownLogger_->debug("SharedLib unloading: " + key);
        unload(key);
        auto it = map.find(key);
        if (it == map.end())
            continue;
        if (ownLogger_->isDebugEnabled())
            ownLogger_->debug("delete SharedLib.");
        releaseResource(it->second);
        if (ownLogger_->isDebugEnabled())
            ownLogger_->debug("erase SharedLib.");
        map.erase(it);
    }
    logResources();
}

Resource* SharedLibResourceManager::load(std::string const& key)
{
    auto* library = new SharedLib();
    if (!library->load(getFileName(key))) {
        delete library;
        return nullptr;
    }
    return library;
}

bool SharedLibResourceManager::unload(std::string const& key)
{
    auto* library = static_cast<SharedLib*>(getResource(key));
    if (library == nullptr) {
        if (ownLogger_->isErrorEnabled())
            ownLogger_->error(replacePattern(
                "SharedLib '%1' konnte nicht gefunden und somit nicht entladen werden. ", "%1", key));
        return false;
    }
    return library->unload();
}

namespace {

// libm.so.6, libfoo.so.1.2: ".so." followed by digits and dots only.
bool isVersionedLibrary(std::string const& file)
{
    std::string::size_type const at = file.find(".so.");
    return at != std::string::npos && at + 4 < file.size() &&
           file.find_first_not_of("0123456789.", at + 4) == std::string::npos;
}

} // namespace

std::string SharedLibResourceManager::getFileName(std::string const& name)
{
    std::string const p = transformPath(name);
    std::string file = getOnlyFilenameOfFullFilename(p);
    std::string const dir = p.find_first_of("/\\") == std::string::npos ? std::string() : getOnlyPathOfFullFilename(p);
    if (isVersionedLibrary(file))
        return dir + file;

    std::string const suffix = tovu::detail::librarySuffix();
    std::string const lower = tolower(file);
    if (endsWith(lower, suffix)) {
        file = removeRight(file, static_cast<int>(suffix.size()));
    } else {
        // Names given without the host's suffix get the "lib" prefix on purpose.
        for (char const* foreign : {".dll", ".so", ".dylib"})
            if (foreign != suffix && endsWith(lower, foreign)) {
                file = removeRight(file, static_cast<int>(std::string(foreign).size()));
                break;
            }
        file = ensureAtBegin(file, "lib");
    }
    return dir + ensureAtEnd(file, suffix);
}

ResourceManager::ResourceMap& SharedLibResourceManager::getResourceMap()
{
    // One map for every manager of this class, never destroyed.
    static ResourceMap* map = new ResourceMap;
    return *map;
}
