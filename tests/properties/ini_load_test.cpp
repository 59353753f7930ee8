#include <gtest/gtest.h>

#include <stdexcept>

#include "IniFiles.h"

using msvc_tovu_ini_wrapper::Ini;
using tovutest::LoadedIni;
using Names = std::list<std::string>;

TEST(IniLoad, LineRules)
{
    LoadedIni f("lost=1\r\n"
                "[s]\r\n"
                "k = a=b ; note\r\n"
                "=x\r\n"
                "no equals\r\n"
                "  [not a section]=v\r\n"
                "[a;b]\r\n"
                "[ t ] trailing\r\n"
                "# comment\r\n"
                "x=1#c\r\n");
    EXPECT_EQ(f.ini.getSectionNames(), (Names{"s", " t "}));
    EXPECT_EQ(f.ini.getKeysOfSection("s"), (Names{"k", "[not a section]"}));
    EXPECT_EQ(f.ini.get("s.k"), "a=b");
    EXPECT_EQ(f.ini.get("s.[not a section]"), "v");
    EXPECT_EQ(f.ini.get(" t .x"), "1");
    EXPECT_FALSE(f.ini.KeyExists("s", "lost"));
}

TEST(IniLoad, BareLineFeedsLoseTheFirstCharacterOfEachFollowingLine)
{
    LoadedIni crlf("[s]\r\nkey=1\r\nkey2=2\r\n");
    EXPECT_EQ(crlf.ini.getKeysOfSection("s"), (Names{"key", "key2"}));
    LoadedIni lf("[s]\nkey=1\nkey2=2\n");
    EXPECT_EQ(lf.ini.getKeysOfSection("s"), (Names{"ey", "ey2"}));
    LoadedIni cr("[s]\rkey=1\r");
    EXPECT_EQ(cr.ini.getSectionNames(), (Names{"s"})); // a lone CR ends nothing
    EXPECT_TRUE(cr.ini.getKeysOfSection("s").empty());
}

TEST(IniLoad, DuplicatesAreKeptAndTheFirstWins)
{
    LoadedIni f("[d]\r\nk=1\r\nk=2\r\n[d]\r\nk=3\r\nj=4\r\n");
    EXPECT_EQ(f.ini.getSectionNames(), (Names{"d", "d"}));
    EXPECT_EQ(f.ini.getKeysOfSection("d"), (Names{"k", "k"}));
    EXPECT_EQ(f.ini.get("d.k"), "1");
    EXPECT_EQ(f.ini.get("d.j", "none"), "none"); // only the first section is searched
    EXPECT_TRUE(f.ini.RemoveKey("d", "k"));
    EXPECT_EQ(f.ini.get("d.k"), "2");
    EXPECT_TRUE(f.ini.RemoveSection("d"));
    EXPECT_EQ(f.ini.get("d.k"), "3"); // the second record is first now
    EXPECT_EQ(f.ini.get("d.j"), "4");
}

TEST(IniLoad, LongLinesNulBytesAndGarbage)
{
    std::string const longValue(30000, 'v');
    LoadedIni f("[s]\r\nk=" + longValue + "\r\nz=1\r\n");
    // The line is read in pieces of 19999 bytes: the first piece is key k.
    std::string const first = f.ini.get("s.k");
    EXPECT_EQ(first.size(), 19999u - 2);
    EXPECT_EQ(f.ini.get("s.z"), "1");

    // A NUL byte ends the line and the rest of its piece.
    LoadedIni nul(std::string("[s]\r\na=1\0junk\r\nb=2\r\n", 21));
    EXPECT_EQ(nul.ini.get("s.a"), "1");
    EXPECT_FALSE(nul.ini.KeyExists("s", "b"));

    std::string garbage;
    for (int i = 0; i < 100000; ++i)
        garbage += static_cast<char>((i * 7919) % 256);
    LoadedIni g(garbage);
    SUCCEED();

    LoadedIni noEnd("[s]\r\nk=1");
    EXPECT_EQ(noEnd.ini.get("s.k"), "1");
}

TEST(IniLoad, MissingFileAndSecondLoad)
{
    Ini ini;
    EXPECT_FALSE(ini.Open("/nonexistent/x.ini"));
    EXPECT_TRUE(ini.Load());
    EXPECT_TRUE(ini.getSectionNames().empty());

    LoadedIni f("[s]\r\nk=1\r\n");
    EXPECT_TRUE(f.ini.Load()); // reading goes on at the end: nothing left
    EXPECT_TRUE(f.ini.getSectionNames().empty());
}

TEST(IniEdit, ReadWriteAddRemove)
{
    Ini ini;
    std::string value;
    EXPECT_FALSE(ini.ReadKey("k", "s", value, "dflt"));
    EXPECT_EQ(value, "dflt");
    EXPECT_TRUE(ini.WriteKey("s", "k", "v"));
    EXPECT_TRUE(ini.ReadKey("k", "s", value, "dflt"));
    EXPECT_EQ(value, "v");
    EXPECT_TRUE(ini.WriteKey("s", "k", "w"));
    EXPECT_EQ(ini.get("s.k"), "w");
    EXPECT_TRUE(ini.AddSection("s"));
    EXPECT_EQ(ini.getSectionNames(), (Names{"s"}));
    ini.put("n.k", "1");
    EXPECT_EQ(ini.getSectionNames(), (Names{"s", "n"}));
    EXPECT_TRUE(ini.SectionExists("n"));
    EXPECT_TRUE(ini.RemoveSection("missing"));
    EXPECT_FALSE(ini.RemoveKey("missing", "k"));
    EXPECT_FALSE(ini.RemoveKey("s", "missing"));
    ini.put("plain", "x"); // no ".": the section is the whole name, the key empty
    EXPECT_EQ(ini.get("plain"), "x");
    EXPECT_TRUE(ini.KeyExists("plain", ""));
    EXPECT_TRUE(ini.clear());
    EXPECT_TRUE(ini.getSectionNames().empty());
}

TEST(IniEdit, TrimKeepsItsQuirks)
{
    std::string text = "  ab  ";
    EXPECT_TRUE(Ini::Trim(text, "", ""));
    EXPECT_EQ(text, "a");
    text = "xab";
    EXPECT_TRUE(Ini::Trim(text, "x", ""));
    EXPECT_EQ(text, "ab");
    text = " \t ";
    EXPECT_THROW(Ini::Trim(text, "", ""), std::out_of_range);
}

TEST(IniEdit, ManyKeysStayFast)
{
    Ini ini;
    for (int i = 0; i < 200000; ++i)
        ini.WriteKey(("s" + std::to_string(i % 100)).c_str(), ("k" + std::to_string(i)).c_str(), "v");
    EXPECT_EQ(ini.get("s7.k199907"), "v");
    EXPECT_EQ(ini.getKeysOfSection("s0").size(), 2000u);
}
