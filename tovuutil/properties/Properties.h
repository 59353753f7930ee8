#ifndef TOVUUTIL_PROPERTIES_PROPERTIES_H
#define TOVUUTIL_PROPERTIES_PROPERTIES_H

#include <list>
#include <string>
#include <utility>
#include <vector>

#include <tovuutil/framework/ResourceManager.h>

// Properties
//
// One configuration file held in memory: values addressed by a dotted name,
// the text before the first "." naming the section, the rest the key.
// (Minimal form for the services, INI files only; the properties model
// completes it.)
class TOVU_API Properties : public Resource {
public:
    Properties();
    ~Properties() override;

    // The file name it was loaded from.
    std::string getName() override;
    // Reads the INI file; false (and no content) when it cannot be read. The
    // name is kept either way.
    bool loadProperties(std::string const& name);
    // Saves to the file it was read from ("[section]" and "key=value" lines
    // ending in CR LF).
    bool writeProperties();
    // The value, or "" when absent.
    std::string getProperty(std::string const& key);
    void setProperty(std::string const& key, std::string const& value);
    // False when not available.
    bool removeProperty(std::string const& key);
    bool isAvailable(std::string const& key);
    std::list<std::string> getKeysOfSection(std::string const& section);
    std::list<std::string> getSectionNames();
    void log();

private:
    typedef std::vector<std::pair<std::string, std::string>> Keys;
    typedef std::vector<std::pair<std::string, Keys>> Sections;

    Keys* findSection(std::string const& section);
    std::pair<std::string, std::string>* findKey(std::string const& name);

    Sections sections_;
    std::string name_;
    std::string path_;
};

#endif
