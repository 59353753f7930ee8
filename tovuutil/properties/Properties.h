#ifndef TOVUUTIL_PROPERTIES_PROPERTIES_H
#define TOVUUTIL_PROPERTIES_PROPERTIES_H

#include <list>
#include <string>

#include <tovuutil/framework/ResourceManager.h>
#include <tovuutil/properties/Ini.h>

class Logger;

// The kind of a properties file.
enum PropertyFileEnum {
    PF_UNKNOWN = 0,   // not loadable, not writable
    PF_NONE = 1,      // loads nothing (true), not writable
    PF_XML = 2,       // file must exist; nothing is read or written (a stub by design)
    PF_INI = 3,       // read and written as an INI file
    PF_PROPERTIES = 4 // "key=value" lines; readable but deliberately not writable
};

// Properties
//
// One configuration file in memory: string values under dotted names (the
// text before the first "." names the section, the rest the key). Every
// kind of file is held in an Ini, so all share sections and keys. The value
// "_##undefined##_" counts as not available (a deliberate sentinel).
//
// The type comes from the extension, compared in lower case: "properties" is
// PF_PROPERTIES, "xml" PF_XML, anything else (no extension too) PF_INI.
// Failures are logged and answered by the result; nothing throws.
//
// Example:
//   Properties p("conf/app.ini");
//   p.setProperty("SERVER.PORT", "8080");   // dirty
//   p.writeProperties();                    // saved, clean
class TOVU_API Properties : public Resource {
public:
    Properties();
    // loadProperties(name): the type from the extension.
    explicit Properties(std::string const& name);
    // loadProperties(name, type).
    Properties(std::string const& name, PropertyFileEnum type);
    // Copies name, type, dirty flag and content; the copy's file is not open.
    Properties(Properties const& other);
    // Copies name, type, dirty flag and content; the file is not shared.
    Properties& operator=(Properties const& other);
    ~Properties() override;

    // The file name last loaded (or set).
    std::string getName() override;
    // Renames only: nothing is loaded, and writing still goes to the file opened.
    void setName(std::string const& name);
    // The file's kind; PF_UNKNOWN before a load.
    PropertyFileEnum getType() const;
    // Sets the kind used by the next writeProperties; nothing is converted.
    void setType(PropertyFileEnum type);
    // True after a change not yet written.
    bool isDirty() const;
    // Sets the flag by hand; nothing is written.
    void setDirty(bool dirty);

    // Chooses the type from the name, then loads.
    bool loadProperties(std::string const& name);
    // Reads the file of that type. A missing file keeps name and type, no content.
    bool loadProperties(std::string const& name, PropertyFileEnum type);
    // writeProperties(getName(), getType()).
    bool writeProperties();
    // writeProperties(name, getType()): name is only logged, the file
    // written is still the one the content was loaded from.
    bool writeProperties(std::string const& name);
    // Only INI (saved to the file it was opened from) and XML (nothing
    // written) succeed; clears dirty then.
    bool writeProperties(std::string const& name, PropertyFileEnum type);
    // "key=value" lines; keys starting with "#" (after trimming) are comments.
    bool readPropertiesFile(std::string const& name);
    // Kept as it has always been: each key's line replaces the whole file, so
    // only the last remains. Nothing in the library calls it.
    bool writePropertiesFile();

    // The value, or "" when absent.
    std::string getProperty(std::string const& key);
    // Replaces the value or adds the key (and its section); sets dirty.
    void setProperty(std::string const& key, std::string const& value);
    // Removes the key and sets dirty; false (nothing changed) when not available.
    bool removeProperty(std::string const& key);
    // True when the key exists with a value other than "_##undefined##_".
    bool isAvailable(std::string const& key);
    // The key names of the section in file order; empty when it is missing.
    std::list<std::string> getKeysOfSection(std::string const& section);
    // Every section name in file order.
    std::list<std::string> getSectionNames();
    // Debug dump of all sections and keys.
    void log();

private:
    void init();

    Logger* logger;
    bool dirty;
    msvc_tovu_ini_wrapper::Ini ini;
    std::string name;
    PropertyFileEnum type;
};

#endif
