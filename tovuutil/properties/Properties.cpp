#include "tovuutil/properties/Properties.h"

#include <fstream>

#include "tovuutil/text/StringUtil.h"

// Minimal form for the services; the properties model completes it.

namespace {
void split(std::string const& name, std::string& section, std::string& key)
{
    key = name;
    section = extractLeftToken(key, '.');
}
} // namespace

Properties::Properties() = default;
Properties::~Properties() = default;

std::string Properties::getName() { return name_; }

bool Properties::loadProperties(std::string const& name)
{
    name_ = name;
    std::ifstream in(name, std::ios::binary);
    if (!in)
        return false;
    path_ = name;
    sections_.clear();
    std::string line;
    while (std::getline(in, line)) {
        std::string::size_type comment = line.find_first_of("#;");
        if (comment != std::string::npos)
            line.erase(comment);
        if (!line.empty() && line[0] == '[') {
            std::string::size_type close = line.find(']');
            if (close != std::string::npos)
                sections_.emplace_back(line.substr(1, close - 1), Keys());
            continue;
        }
        std::string::size_type equals = line.find('=');
        if (equals == std::string::npos || equals == 0 || sections_.empty())
            continue;
        sections_.back().second.emplace_back(trim(line.substr(0, equals), " \t\r\n"),
                                             trim(line.substr(equals + 1), " \t\r\n"));
    }
    return true;
}

bool Properties::writeProperties()
{
    if (path_.empty())
        return true;
    std::ofstream out(path_, std::ios::binary | std::ios::trunc);
    for (auto const& section : sections_) {
        out << "[" << section.first << "]\r\n";
        for (auto const& key : section.second)
            out << key.first << "=" << key.second << "\r\n";
    }
    return true;
}

Properties::Keys* Properties::findSection(std::string const& section)
{
    for (auto& entry : sections_)
        if (entry.first == section)
            return &entry.second;
    return nullptr;
}

std::pair<std::string, std::string>* Properties::findKey(std::string const& name)
{
    std::string section, key;
    split(name, section, key);
    Keys* keys = findSection(section);
    if (keys == nullptr)
        return nullptr;
    for (auto& entry : *keys)
        if (entry.first == key)
            return &entry;
    return nullptr;
}

std::string Properties::getProperty(std::string const& key)
{
    auto* entry = findKey(key);
    return entry ? entry->second : std::string();
}

void Properties::setProperty(std::string const& name, std::string const& value)
{
    if (auto* entry = findKey(name)) {
        entry->second = value;
        return;
    }
    std::string section, key;
    split(name, section, key);
    Keys* keys = findSection(section);
    if (keys == nullptr) {
        sections_.emplace_back(section, Keys());
        keys = &sections_.back().second;
    }
    keys->emplace_back(key, value);
}

bool Properties::removeProperty(std::string const& name)
{
    std::string section, key;
    split(name, section, key);
    Keys* keys = findSection(section);
    if (keys == nullptr)
        return false;
    for (auto entry = keys->begin(); entry != keys->end(); ++entry) {
        if (entry->first == key) {
            keys->erase(entry);
            return true;
        }
    }
    return false;
}

bool Properties::isAvailable(std::string const& key) { return findKey(key) != nullptr; }

std::list<std::string> Properties::getKeysOfSection(std::string const& section)
{
    std::list<std::string> names;
    if (Keys* keys = findSection(section))
        for (auto const& entry : *keys)
            names.push_back(entry.first);
    return names;
}

std::list<std::string> Properties::getSectionNames()
{
    std::list<std::string> names;
    for (auto const& entry : sections_)
        names.push_back(entry.first);
    return names;
}

void Properties::log() {}
