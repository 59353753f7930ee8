#ifndef TOVUUTIL_PLATFORM_SHAREDLIB_H
#define TOVUUTIL_PLATFORM_SHAREDLIB_H

#include <string>

#include <tovuutil/framework/ResourceManager.h>

class Logger;

// SharedLib
//
// One loaded shared library. load(name) maps it (once), getSymbol looks a
// symbol up, unload() releases it. Failures are logged as errors and reported
// by the result; nothing throws. The destructor does not release the library:
// the cache (SharedLibResourceManager) unloads before it destroys.
class TOVU_API SharedLib : public Resource {
public:
    SharedLib();
    // Stores the name only; load() maps the library.
    explicit SharedLib(std::string const& name);
    // Copies the name only: the copy is not loaded and has no module.
    SharedLib(SharedLib const& other);
    // Takes the name and resets to not loaded, without releasing a library
    // this object had mapped.
    SharedLib& operator=(SharedLib const& other);
    ~SharedLib() override;

    // The file name last passed to load(name).
    std::string getName() override;
    // Always "Unknown Error": no host error text is consulted.
    virtual std::string getError();
    // The symbol's address, or null (with an error line). The loaded flag is
    // not consulted.
    virtual void* getSymbol(std::string const& symbol) const;
    // Stores the name and maps the library unless it is loaded already.
    virtual bool load(std::string const& name);
    // load(name) with the stored name when not loaded.
    virtual bool load();
    // Releases the library when it was mapped here; not loaded afterwards in
    // every case.
    virtual bool unload();

private:
    void init();

    Logger* logger;
    std::string name;
    bool loaded;
    bool freeOnUnload;
    void* module;
};

// SharedLibResourceManager
//
// The process-wide cache of SharedLib objects under their normalised file
// names. getFileName: the file part loses a platform suffix (".so" here,
// whatever its case) or else ".dll"/".dylib" and then gets a "lib" prefix;
// ".so" is ensured at the end; a directory part stays. A versioned library
// file name (libm.so.6) is already a host name and kept as it is.
//   "x" -> "libx.so", "x.dll" -> "libx.so", "libx.so" -> "libx.so", "X.SO" -> "X.so"
// Destroying a manager unloads and forgets every cached library.
class TOVU_API SharedLibResourceManager : public ResourceManager {
public:
    SharedLibResourceManager();
    ~SharedLibResourceManager() override;

    // A loaded SharedLib, or null; a failed library is not cached.
    Resource* load(std::string const& key) override;
    bool unload(std::string const& key) override;
    // The normalised file name described above.
    std::string getFileName(std::string const& name) override;
    // One map for every manager of this class, never destroyed.
    ResourceMap& getResourceMap() override;

private:
    Logger* ownLogger_;
};

#endif
