#include "tovuutil/properties/Ini.h"

#include <cstring>
#include <memory>
#include <stdexcept>
#include <string_view>

#include "tovuutil/framework/Logger.h"
#include "tovuutil/files/detail/HostFileSystem.h"
#include "tovuutil/properties/detail/TextMode.h"
#include "tovuutil/text/StringUtil.h"

namespace msvc_tovu_ini_wrapper {

namespace {

constexpr std::size_t kPiece = 19999; // bytes one line read takes at most
constexpr int kMaxFormatted = 4999;   // longest line the formatted write accepts
constexpr std::size_t kReadBlock = 256 * 1024;

std::string_view trimmed(std::string_view text)
{
    constexpr char kBlanks[] = " \t\r\n";
    std::size_t const first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return std::string_view();
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// One line of the file, as the line reader hands it out: the text up to the
// first line feed (the CR of a CR LF belongs to the line end) within a piece
// of 19999 bytes, a NUL byte ending it early. The next line is taken to start
// two bytes after the line's text; a line without a line feed in its piece
// ends the piece. Returns the position of the next read.
std::size_t nextLine(std::string const& text, std::size_t p, std::string_view& line)
{
    std::size_t const size = text.size();
    std::size_t end = std::min(p + kPiece, size);
    // A CR LF split by the piece's end is read as one line end.
    if (end < size && text[end - 1] == '\r' && text[end] == '\n')
        ++end;
    char const* begin = text.data() + p;
    std::size_t const length = end - p;
    auto const* lf = static_cast<char const*>(std::memchr(begin, '\n', length));
    auto const* nul = static_cast<char const*>(std::memchr(begin, '\0', lf ? static_cast<std::size_t>(lf - begin) : length));
    if (lf != nullptr && nul == nullptr) {
        std::size_t lineLength = static_cast<std::size_t>(lf - begin);
        if (lineLength > 0 && begin[lineLength - 1] == '\r')
            --lineLength;
        line = std::string_view(begin, lineLength);
        return p + lineLength + 2;
    }
    line = std::string_view(begin, nul ? static_cast<std::size_t>(nul - begin) : length);
    return end;
}

// "%s" stops at a NUL character, as the formatted write does.
std::string_view cString(std::string const& s) { return std::string_view(s.c_str()); }

void appendFormatted(std::string& out, std::string_view a, char separator, std::string_view b, char const* close)
{
    std::size_t const length = a.size() + 1 + b.size() + std::strlen(close);
    if (length < 1 || length > static_cast<std::size_t>(kMaxFormatted))
        return; // too long for the formatted write: silently left out
    std::string line;
    line.reserve(length);
    line.append(a).append(1, separator).append(b).append(close);
    out += tovu::detail::toTextMode(line.data(), line.size());
}

} // namespace

Ini::Ini() = default;

Ini::~Ini() = default;

bool Ini::Open(char const* path) { return Log::Open(path, true, true, true); }

void Ini::Close() { Log::Close(); }

bool Ini::clear()
{
    sections.clear();
    dropIndexes();
    return true;
}

void Ini::dropIndexes()
{
    sectionIndex_.clear();
    sectionIndexValid_ = false;
    keyIndex_.assign(sections.size(), {});
    keyIndexValid_.assign(sections.size(), false);
}

bool Ini::Load()
{
    clear();
    if (handle == -1)
        return true;
    // The rest of the file in one go; the line rules are applied in memory
    // and the handle is left where line-by-line reading would have left it.
    long long const start = tovu::detail::tellHandle(handle);
    std::string text;
    std::unique_ptr<char[]> block(new char[kReadBlock]); // not zeroed: filled by the reads
    long n;
    while ((n = tovu::detail::readHandle(handle, block.get(), kReadBlock)) > 0)
        text.append(block.get(), static_cast<std::size_t>(n));
    long long consumed = 0;
    parse(text, consumed);
    if (start >= 0)
        tovu::detail::seekHandle(handle, start + consumed);
    dropIndexes();
    return true;
}

bool Ini::parse(std::string const& text, long long& consumed)
{
    std::size_t p = 0;
    while (p < text.size()) {
        std::string_view line;
        p = nextLine(text, p, line);
        std::size_t const comment = line.find_first_of("#;");
        if (comment != std::string_view::npos)
            line = line.substr(0, comment);
        if (line.empty())
            continue;
        if (line[0] == '[') {
            std::size_t const close = line.find(']');
            if (close != std::string_view::npos)
                sections.push_back(Section{std::string(line.substr(1, close - 1)), {}, {}, {}});
            continue;
        }
        std::size_t const equals = line.find('=');
        if (equals == std::string_view::npos || equals == 0 || sections.empty())
            continue;
        Key& key = sections.back().keys.emplace_back();
        key.name.assign(trimmed(line.substr(0, equals)));
        key.value.assign(trimmed(line.substr(equals + 1)));
    }
    consumed = static_cast<long long>(p);
    return true;
}

bool Ini::Save()
{
    // All lines built first, then written at once.
    std::string content;
    for (Section const& section : sections) {
        std::string_view const name = cString(section.name);
        if (name.size() + 3 <= static_cast<std::size_t>(kMaxFormatted)) {
            std::string line;
            line.reserve(name.size() + 3);
            line.append("[").append(name).append("]\n");
            content += tovu::detail::toTextMode(line.data(), line.size());
        }
        for (Key const& key : section.keys)
            appendFormatted(content, cString(key.name), '=', cString(key.value), "\n");
    }

    Close();
    bool opened = false;
    writeFile(content, opened);
    Close();
    Log::Open(path.c_str(), true, true, true);
    return opened;
}

bool Ini::writeFile(std::string const& content, bool& opened)
{
    Logger* logger = nullptr;
    auto fail = [&logger, this]() {
        logger = Logger::getInstance("tovuutil.Ini");
        if (logger->isErrorEnabled())
            logger->error("Save(" + path + "): Vermutlich konnte die Datei nicht geschrieben werden.");
        return false;
    };

    if (path.empty())
        return false; // never opened: there is no file to write
    std::string const target = tovu::detail::realTarget(path);
    tovu::detail::PathStatus status;
    bool const existing = tovu::detail::statPath(target, status) == 0;
    if (existing && status.isDirectory)
        return false; // a directory cannot be opened for writing
    // Every name of a hard-linked file must see the new content: those are
    // rewritten in place, all others replaced at once by a new file.
    std::string sibling;
    int const temporary =
        existing && status.links > 1 ? -1 : tovu::detail::createSibling(target, sibling);
    if (temporary >= 0) {
        opened = true;
        tovu::detail::copyPermissions(target, temporary);
        bool ok = tovu::detail::writeHandle(temporary, content.data(), content.size()) ==
                      static_cast<long>(content.size()) &&
                  tovu::detail::commitHandle(temporary) == 0;
        ok = tovu::detail::closeHandle(temporary) == 0 && ok;
        ok = ok && tovu::detail::replaceFile(sibling, target) == 0;
        if (!ok) {
            tovu::detail::removeFile(sibling); // the old file stays as it was
            return fail();
        }
        return true;
    }
    // In place. The space is claimed before anything is overwritten, so a
    // full disk leaves the old content whole.
    int const handle = existing ? tovu::detail::openForUpdate(target) : tovu::detail::openForWriting(target, false);
    if (handle == -1)
        return false;
    opened = true;
    long long const length = static_cast<long long>(content.size());
    bool ok = tovu::detail::reserveHandle(handle, length) == 0 && tovu::detail::seekHandle(handle, 0) == 0 &&
              tovu::detail::writeHandle(handle, content.data(), content.size()) == static_cast<long>(length) &&
              tovu::detail::resizeHandle(handle, length) == 0 && tovu::detail::commitHandle(handle) == 0;
    ok = tovu::detail::closeHandle(handle) == 0 && ok;
    return ok ? true : fail();
}

Ini::Section* Ini::firstSection(std::string const& name)
{
    if (!sectionIndexValid_) {
        sectionIndex_.clear();
        sectionIndex_.reserve(sections.size());
        for (std::size_t i = 0; i < sections.size(); ++i)
            sectionIndex_.emplace(sections[i].name, i);
        sectionIndexValid_ = true;
    }
    auto const it = sectionIndex_.find(name);
    return it == sectionIndex_.end() ? nullptr : &sections[it->second];
}

Ini::Key* Ini::firstKey(Section& section, std::string const& name)
{
    std::size_t const at = static_cast<std::size_t>(&section - sections.data());
    auto& index = keyIndex_[at];
    if (!keyIndexValid_[at]) {
        index.clear();
        index.reserve(section.keys.size());
        for (std::size_t i = 0; i < section.keys.size(); ++i)
            index.emplace(section.keys[i].name, i);
        keyIndexValid_[at] = true;
    }
    auto const it = index.find(name);
    return it == index.end() ? nullptr : &section.keys[it->second];
}

bool Ini::FindSection(char const* section, Section*& found)
{
    found = firstSection(section ? section : "");
    return found != nullptr;
}

bool Ini::FindKey(char const* section, char const* key, Key*& found)
{
    found = nullptr;
    Section* s = firstSection(section ? section : "");
    if (s != nullptr)
        found = firstKey(*s, key ? key : "");
    return found != nullptr;
}

bool Ini::SectionExists(char const* section)
{
    Section* found;
    return FindSection(section, found);
}

bool Ini::KeyExists(char const* section, char const* key)
{
    Key* found;
    return FindKey(section, key, found);
}

bool Ini::ReadKey(char const* key, char const* section, std::string& value, char const* defaultValue)
{
    Key* found;
    if (FindKey(section, key, found)) {
        value = found->value;
        return true;
    }
    value = defaultValue ? defaultValue : "";
    return false;
}

bool Ini::WriteKey(char const* section, char const* key, char const* value)
{
    Key* found;
    if (FindKey(section, key, found)) {
        found->value = value ? value : "";
        return true;
    }
    AddSection(section);
    Section* s = firstSection(section ? section : "");
    if (s == nullptr)
        return false;
    std::size_t const at = static_cast<std::size_t>(s - sections.data());
    s->keys.push_back(Key{key ? key : "", value ? value : "", {}, {}});
    if (keyIndexValid_[at])
        keyIndex_[at].emplace(s->keys.back().name, s->keys.size() - 1);
    return true;
}

bool Ini::AddSection(char const* section)
{
    std::string const name = section ? section : "";
    if (firstSection(name) != nullptr)
        return true;
    sections.push_back(Section{name, {}, {}, {}});
    keyIndex_.emplace_back();
    keyIndexValid_.push_back(false);
    sectionIndex_.emplace(name, sections.size() - 1);
    return true;
}

bool Ini::RemoveSection(char const* section)
{
    Section* found;
    if (FindSection(section, found)) {
        std::size_t const at = static_cast<std::size_t>(found - sections.data());
        sections.erase(sections.begin() + static_cast<std::ptrdiff_t>(at));
        keyIndex_.erase(keyIndex_.begin() + static_cast<std::ptrdiff_t>(at));
        keyIndexValid_.erase(keyIndexValid_.begin() + static_cast<std::ptrdiff_t>(at));
        sectionIndexValid_ = false; // later positions moved
    }
    return true;
}

bool Ini::RemoveKey(char const* section, char const* key)
{
    Section* s = firstSection(section ? section : "");
    if (s == nullptr)
        return false;
    Key* k = firstKey(*s, key ? key : "");
    if (k == nullptr)
        return false;
    std::size_t const at = static_cast<std::size_t>(s - sections.data());
    s->keys.erase(s->keys.begin() + (k - s->keys.data()));
    keyIndexValid_[at] = false; // later positions moved
    return true;
}

std::string Ini::get(std::string const& name) { return get(name, ""); }

std::string Ini::get(std::string const& name, std::string const& defaultValue)
{
    std::string key = name;
    std::string const section = extractLeftToken(key, '.');
    std::string value;
    ReadKey(key.c_str(), section.c_str(), value, defaultValue.c_str());
    return value;
}

void Ini::put(std::string const& name, std::string const& value)
{
    std::string key = name;
    std::string const section = extractLeftToken(key, '.');
    WriteKey(section.c_str(), key.c_str(), value.c_str());
}

std::list<std::string> Ini::getKeysOfSection(std::string const& section)
{
    std::list<std::string> names;
    if (Section* s = firstSection(section))
        for (Key const& key : s->keys)
            names.push_back(key.name);
    return names;
}

std::list<std::string> Ini::getSectionNames()
{
    std::list<std::string> names;
    for (Section const& section : sections)
        names.push_back(section.name);
    return names;
}

bool Ini::Trim(std::string& text, char const* left, char const* right)
{
    std::string const leftSet = std::string(" \t") + (left ? left : "");
    std::string::size_type const first = text.find_first_not_of(leftSet);
    if (first == std::string::npos)
        throw std::out_of_range("Ini::Trim: nothing but blanks");
    text.erase(0, first);
    std::string const rightSet = std::string(" \t") + (right ? right : "");
    std::string::size_type const last = text.find_last_not_of(rightSet);
    // Deliberate: the cut lies before that last character, which goes too.
    if (last != std::string::npos && last != text.size() - 1)
        text.erase(last);
    return true;
}

bool Ini::ReadLine(std::string& line)
{
    if (handle == -1)
        return false;
    long long const start = tovu::detail::tellHandle(handle);
    // One piece, plus a byte in case a CR LF is split at its end.
    std::string piece(kPiece + 1, '\0');
    long const n = tovu::detail::readHandle(handle, &piece[0], piece.size());
    if (n < 1)
        return false;
    piece.resize(static_cast<std::size_t>(n));
    std::string_view view;
    std::size_t const next = nextLine(piece, 0, view);
    line.assign(view.data(), view.size());
    tovu::detail::seekHandle(handle, start + static_cast<long long>(next));
    return true;
}

bool Ini::StripComment(std::string& line, std::string& comment)
{
    std::string::size_type const at = line.find_first_of("#;");
    if (at == std::string::npos)
        return false;
    comment = line.substr(at);
    line.erase(at);
    return true;
}

} // namespace msvc_tovu_ini_wrapper
