// The cases on which every system must agree. Where two readings of a file are thinkable, the table
// holds what the system's own calls answer.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/Platform.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

using std::string_literals::operator""s;

constexpr int32_t kBufferSize = 255;

// The text in 16-bit units with their mark. `text` is Latin-1, but for the euro sign at 0x80.
std::string Wide(const std::string& text, bool little = true) {
  std::string bytes = little ? "\xFF\xFE" : "\xFE\xFF";
  for (const char c : text) {
    const char low = c == '\x80' ? '\xAC' : c;
    const char high = c == '\x80' ? '\x20' : '\0';
    bytes += little ? low : high;
    bytes += little ? high : low;
  }
  return bytes;
}

std::string WideBig(const std::string& text) { return Wide(text, false); }

constexpr char kUtf8Mark[] = "\xEF\xBB\xBF";

struct TextCase {
  const char* rule;
  std::string file;
  const char* section;
  const char* key;
  std::string expected;
};

// Read with the default "none".
const TextCase kTexts[] = {
    {"a value", "[s]\r\nk=v\r\n", "s", "k", "v"},
    {"missing key", "[s]\r\nk=v\r\n", "s", "x", "none"},
    {"missing section", "[s]\r\nk=v\r\n", "x", "k", "none"},
    {"empty file", "", "s", "k", "none"},
    {"key of another section", "[s]\r\na=1\r\n[t]\r\nk=v\r\n", "s", "k", "none"},
    {"second section", "[s]\r\na=1\r\n[t]\r\nk=v\r\n", "t", "k", "v"},
    {"section with no keys", "[s]\r\n[t]\r\nk=v\r\n", "s", "k", "none"},

    {"section name in another case", "[SecTion]\r\nk=v\r\n", "sECtION", "k", "v"},
    {"key name in another case", "[s]\r\nKeyName=v\r\n", "s", "kEYnAME", "v"},
    {"the value keeps its case", "[s]\r\nk=VaLuE\r\n", "s", "k", "VaLuE"},
    {"8-bit value", "[s]\r\nk=caf\xE9 \x80 \xFF\r\n", "s", "k", "caf\xE9 \x80 \xFF"},
    {"part of a key name", "[s]\r\nkey=v\r\n", "s", "ke", "none"},
    {"more than a key name", "[s]\r\nkey=v\r\n", "s", "keyx", "none"},
    {"part of a section name", "[sect]\r\nk=v\r\n", "sec", "k", "none"},
    {"blank inside names", "[a b]\r\nk l=v\r\n", "a b", "k l", "v"},

    {"blanks before a section", "  [s]\r\nk=v\r\n", "s", "k", "v"},
    {"blanks behind a section", "[s]  \r\nk=v\r\n", "s", "k", "v"},
    {"tabs around a section", "\t[s]\t\r\nk=v\r\n", "s", "k", "v"},
    {"text behind a section", "[s] what\r\nk=v\r\n", "s", "k", "v"},
    {"comment behind a section", "[s] ; what\r\nk=v\r\n", "s", "k", "v"},
    {"a key behind a section on its line", "[s]k=v\r\n", "s", "k", "none"},
    {"blanks before a key", "[s]\r\n  k=v\r\n", "s", "k", "v"},
    {"blanks behind a key", "[s]\r\nk  =v\r\n", "s", "k", "v"},
    {"tabs around a key", "[s]\r\n\tk\t=v\r\n", "s", "k", "v"},
    {"blanks before a value", "[s]\r\nk=   v\r\n", "s", "k", "v"},
    {"blanks behind a value", "[s]\r\nk=v   \r\n", "s", "k", "v"},
    {"tabs around a value", "[s]\r\nk=\tv\t\r\n", "s", "k", "v"},
    {"blanks inside a value", "[s]\r\nk=a  b\tc\r\n", "s", "k", "a  b\tc"},
    {"value of blanks", "[s]\r\nk=   \r\n", "s", "k", ""},
    {"blanks around the section asked for", "[s]\r\nk=v\r\n", " s ", "k", "v"},
    {"blanks around the key asked for", "[s]\r\nk=v\r\n", "s", " k ", "v"},
    {"empty value", "[s]\r\nk=\r\n", "s", "k", ""},
    {"equals sign in a value", "[s]\r\nk=a=b=c\r\n", "s", "k", "a=b=c"},
    {"equals sign first in a value", "[s]\r\nk==a\r\n", "s", "k", "=a"},
    {"bracket first in a value", "[s]\r\nk=[x]\r\n", "s", "k", "[x]"},

    {"double quotes", "[s]\r\nk=\"v\"\r\n", "s", "k", "v"},
    {"single quotes", "[s]\r\nk='v'\r\n", "s", "k", "v"},
    {"quotes keep blanks", "[s]\r\nk= \"  v  \" \r\n", "s", "k", "  v  "},
    {"single quotes keep blanks", "[s]\r\nk= '  v  ' \r\n", "s", "k", "  v  "},
    {"pair of quotes around nothing", "[s]\r\nk=\"\"\r\n", "s", "k", ""},
    {"pair of single quotes around nothing", "[s]\r\nk=''\r\n", "s", "k", ""},
    {"one pair of quotes of two", "[s]\r\nk=\"\"v\"\"\r\n", "s", "k", "\"v\""},
    {"single quotes in double ones", "[s]\r\nk=\"'v'\"\r\n", "s", "k", "'v'"},
    {"double quotes in single ones", "[s]\r\nk='\"v\"'\r\n", "s", "k", "\"v\""},
    {"quote at the beginning", "[s]\r\nk=\"v\r\n", "s", "k", "\"v"},
    {"quote at the end", "[s]\r\nk=v\"\r\n", "s", "k", "v\""},
    {"quote inside", "[s]\r\nk=it's\r\n", "s", "k", "it's"},
    {"quotes that differ", "[s]\r\nk=\"v'\r\n", "s", "k", "\"v'"},
    {"quotes in the wrong order", "[s]\r\nk='\"v'\"\r\n", "s", "k", "'\"v'\""},
    {"quotes at both ends of two texts", "[s]\r\nk=\"a\" \"b\"\r\n", "s", "k", "a\" \"b"},
    {"quotes of a section name belong to it", "[\"s\"]\r\nk=v\r\n", "\"s\"", "k", "v"},
    {"quotes of a key name belong to it", "[s]\r\n\"k\"=v\r\n", "s", "\"k\"", "v"},

    {"repeated key", "[s]\r\nk=first\r\nk=second\r\n", "s", "k", "first"},
    {"repeated key in another case", "[s]\r\nK=first\r\nk=second\r\n", "s", "k", "first"},
    {"repeated section", "[s]\r\nk=first\r\n[t]\r\n[s]\r\nk=second\r\n", "s", "k", "first"},
    {"key in the second of two sections", "[s]\r\na=1\r\n[s]\r\nk=second\r\n", "s", "k", "none"},
    {"repeated section in another case", "[S]\r\na=1\r\n[s]\r\nk=second\r\n", "s", "k", "none"},

    {"comment line", "[s]\r\n;k=no\r\nk=v\r\n", "s", "k", "v"},
    {"comment line alone", "[s]\r\n;k=no\r\n", "s", "k", "none"},
    {"comment line with blanks", "[s]\r\n \t;k=no\r\n", "s", "k", "none"},
    {"comment line that names a section", ";[s]\r\nk=v\r\n", "s", "k", "none"},
    {"semicolon in a value", "[s]\r\nk=v ; why\r\n", "s", "k", "v ; why"},
    {"semicolon first in a value", "[s]\r\nk=;v\r\n", "s", "k", ";v"},
    {"semicolon in a key", "[s]\r\nk;l=v\r\n", "s", "k;l", "v"},
    {"number sign is no comment", "[s]\r\n#k=v\r\n", "s", "#k", "v"},
    {"number sign belongs to the key", "[s]\r\n#k=v\r\n", "s", "k", "none"},
    {"number sign in a value", "[s]\r\nk=#v\r\n", "s", "k", "#v"},
    {"line without an equals sign", "[s]\r\nk\r\n", "s", "k", "none"},
    {"such a line between keys", "[s]\r\na=1\r\nwhat\r\nk=v\r\n", "s", "k", "v"},
    {"line with an equals sign alone", "[s]\r\n=\r\nk=v\r\n", "s", "k", "v"},
    {"empty lines", "\r\n[s]\r\n\r\n\r\nk=v\r\n\r\n", "s", "k", "v"},
    {"text ahead of the first section", "k=no\r\nwhat\r\n[s]\r\nk=v\r\n", "s", "k", "v"},
    {"key ahead of the first section", "k=no\r\n[s]\r\na=1\r\n", "s", "k", "none"},

    {"no line end at the file's end", "[s]\r\nk=v", "s", "k", "v"},
    {"key without value at the file's end", "[s]\r\nk=", "s", "k", ""},
    {"section at the file's end", "[t]\r\na=1\r\n[s]", "s", "k", "none"},
    {"line feeds alone", "[s]\na=1\nk=v\n", "s", "k", "v"},
    {"mixed line ends", "[s]\na=1\r\nk=v\n[t]\r\nb=2\n", "t", "b", "2"},
    {"line feeds and no last one", "[s]\nk=v", "s", "k", "v"},
    {"blanks at the file's end", "[s]\r\nk=v\r\n  \r\n\t", "s", "k", "v"},

    {"254 characters fit", "[s]\r\nk=" + std::string(254, 'x') + "\r\n", "s", "k",
     std::string(254, 'x')},
    {"the 255th character does not", "[s]\r\nk=" + std::string(255, 'x') + "\r\n", "s", "k",
     std::string(254, 'x')},
    {"a long value is cut", "[s]\r\nk=" + std::string(1000, 'x') + "\r\n", "s", "k",
     std::string(254, 'x')},
    {"a long quoted value is cut behind its quote",
     "[s]\r\nk=\"" + std::string(1000, 'x') + "\"\r\n", "s", "k", std::string(254, 'x')},
    {"16-bit units", Wide("[s]\r\na=1\r\nk=caf\xE9 \x80\r\n"), "s", "k", "caf\xE9 \x80"},
    {"16-bit units, section and key in another case", Wide("[S]\r\nKey=v\r\n"), "s", "kEY", "v"},
    {"16-bit units, blanks and quotes", Wide(" [s] \r\n k = \" v \" \r\n"), "s", "k", " v "},
    {"16-bit units, line feeds alone", Wide("[s]\na=1\nk=v\n"), "s", "k", "v"},
    {"16-bit units, no last line end", Wide("[s]\r\nk=v"), "s", "k", "v"},
    {"16-bit units, comment", Wide(";k=no\r\n[s]\r\n;k=no\r\nk=v\r\n"), "s", "k", "v"},
    {"16-bit units, characters that the code page can't hold",
     Wide("[s]\r\nk=") + "\x16\x04-N"s + Wide("v\r\n").substr(2), "s", "k", "??v"},
    {"16-bit units, a unit whose bytes are a line feed and a carriage return",
     Wide("[s]\r\nk=a") + "\x0A\x0D"s + Wide("b\r\n").substr(2), "s", "k", "a?b"},
    {"16-bit units, 255 characters", Wide("[s]\r\nk=" + std::string(255, '\xE9') + "\r\n"), "s",
     "k", std::string(254, '\xE9')},
    {"16-bit units, half a unit at the end", Wide("[s]\r\nk=v\r\n") + "x", "s", "k", "v"},
    {"16-bit units, mark alone", Wide(""), "s", "k", "none"},
    {"16-bit units, second mark", "\xFF\xFE" + Wide("[s]\r\nk=v\r\n"), "s", "k", "none"},
    {"16-bit units without a mark", Wide("[s]\r\nk=v\r\n").substr(2), "s", "k", "none"},
    {"16-bit units, high byte first", WideBig("[s]\r\nk=caf\xE9 \x80\r\n"), "s", "k",
     "caf\xE9 \x80"},
    {"UTF-8 mark", kUtf8Mark + "[s]\r\nk=caf\xC3\xA9 \xE2\x82\xAC\r\n"s, "s", "k", "caf\xE9 \x80"},
    {"UTF-8 mark, second section", kUtf8Mark + "[t]\r\na=1\r\n[s]\r\nk=v\r\n"s, "s", "k", "v"},
    {"UTF-8 mark alone", kUtf8Mark, "s", "k", "none"},
    {"UTF-8 mark, byte that is no UTF-8", kUtf8Mark + "[s]\r\nk=caf\xE9\r\n"s, "s", "k", "caf?"},
    {"UTF-8 without a mark is in the code page", "[s]\r\nk=caf\xC3\xA9\r\n", "s", "k",
     "caf\xC3\xA9"},

    {"a long line elsewhere", "[s]\r\na=" + std::string(70000, 'x') + "\r\nk=v\r\n", "s", "k", "v"},
};

struct NumberCase {
  const char* rule;
  const char* value;
  int32_t expected;
};

// Read with the default 77.
const NumberCase kNumbers[] = {
    {"digits", "42", 42},
    {"zero", "0", 0},
    {"leading zeros", "007", 7},
    {"minus sign", "-5", -5},
    {"plus sign", "+5", 5},
    {"two signs", "--5", 0},
    {"sign alone", "-", 0},
    {"blanks around", "  12  ", 12},
    {"blank inside", "1 2", 1},
    {"quotes around", "\"12\"", 12},
    {"single quotes around", "'-12'", -12},
    {"blanks in quotes", "\" 12 \"", 12},
    {"quote at the beginning", "\"12", 0},
    {"letters behind", "12ab", 12},
    {"letters before", "ab12", 0},
    {"letters alone", "yes", 0},
    {"comma behind", "3,5", 3},
    {"decimals", "5.9", 5},
    {"point at the beginning", ".9", 0},
    {"exponent", "1e3", 1},
    {"hexadecimal", "0x1F", 31},
    {"hexadecimal in small letters", "0xff", 255},
    {"hexadecimal with other letters behind", "0x1Fg", 31},
    {"hexadecimal colour", "0xC00000", 0xC00000},
    {"the largest", "2147483647", 2147483647},
    {"one more", "2147483648", -2147483647 - 1},
    {"32 bits", "4294967295", -1},
    {"33 bits", "4294967296", 0},
    {"33 bits and one", "4294967297", 1},
    {"33 bits below zero", "-4294967297", -1},
    {"hexadecimal of 32 bits", "0xFFFFFFFF", -1},
    {"empty", "", 77},
    {"blanks", "   ", 77},
    {"quotes around nothing", "\"\"", 77},
};

class ProfileFilesTest : public testing::Test {
 protected:
  // Each file has a name of its own, so that no answer comes from what another one held.
  std::string NewFile(const std::string& bytes) {
    ++files_;
    const std::string name = NameOfNewest();
    folder_.WriteFile(name, bytes);
    return folder_.Path(name);
  }

  std::string NameOfNewest() const { return "file" + std::to_string(files_) + ".ini"; }

  std::string Get(const std::string& file, const std::string& section, const std::string& key) {
    return profiles_.GetString(section, key, "none", kBufferSize, file);
  }

  TempFolder folder_;
  ProfileFiles& profiles_ = Os().profiles;

 private:
  int files_ = 0;
};

TEST_F(ProfileFilesTest, ReadsTexts) {
  for (const TextCase& row : kTexts) {
    EXPECT_EQ(Get(NewFile(row.file), row.section, row.key), row.expected) << row.rule;
  }
}

TEST_F(ProfileFilesTest, ReadsNumbers) {
  for (const NumberCase& row : kNumbers) {
    const std::string file = NewFile("[s]\r\nk="s + row.value + "\r\n");
    EXPECT_EQ(profiles_.GetInt("s", "k", 77, file), row.expected) << row.rule;
  }
}

TEST_F(ProfileFilesTest, AMissingNumberIsTheDefault) {
  const std::string file = NewFile("[s]\r\nk=5\r\n");
  EXPECT_EQ(profiles_.GetInt("s", "x", -1, file), -1);
  EXPECT_EQ(profiles_.GetInt("x", "k", 1, file), 1);
  EXPECT_EQ(profiles_.GetInt("s", "k", 1, folder_.Path("missing.ini")), 1);
}

TEST_F(ProfileFilesTest, ASmallBufferCutsTheValue) {
  const std::string file = NewFile("[s]\r\nk=abcdef\r\n");
  EXPECT_EQ(profiles_.GetString("s", "k", "", 7, file), "abcdef");
  EXPECT_EQ(profiles_.GetString("s", "k", "", 6, file), "abcde");
  EXPECT_EQ(profiles_.GetString("s", "k", "", 2, file), "a");
  EXPECT_EQ(profiles_.GetString("s", "k", "", 1, file), "");
  EXPECT_EQ(profiles_.GetString("s", "k", "", 0, file), "");
}

TEST_F(ProfileFilesTest, ADefaultLosesTrailingBlanksAndIsCutToTheBuffer) {
  const std::string file = NewFile("[s]\r\nk=v\r\n");
  EXPECT_EQ(profiles_.GetString("s", "x", "none  ", kBufferSize, file), "none");
  EXPECT_EQ(profiles_.GetString("s", "x", "  none", kBufferSize, file), "  none");
  EXPECT_EQ(profiles_.GetString("s", "x", "", kBufferSize, file), "");
  EXPECT_EQ(profiles_.GetString("s", "x", "abcdef", 4, file), "abc");
}

TEST_F(ProfileFilesTest, AFileThatIsNotThereCountsAsEmpty) {
  EXPECT_EQ(Get(folder_.Path("missing.ini"), "s", "k"), "none");
  EXPECT_EQ(Get(folder_.Path("no folder/missing.ini"), "s", "k"), "none");
  EXPECT_FALSE(folder_.Exists("missing.ini")) << "reading makes no file";
}

TEST_F(ProfileFilesTest, ADirectoryCountsAsEmptyAndCannotBeWritten) {
  std::filesystem::create_directory(folder_.Path("folder.ini"));
  const std::string file = folder_.Path("folder.ini");
  EXPECT_EQ(Get(file, "s", "k"), "none");
  EXPECT_EQ(profiles_.GetInt("s", "k", 3, file), 3);
  EXPECT_EQ(profiles_.WriteString("s", "k", "v", file), kPathFileAccess);
}

TEST_F(ProfileFilesTest, AFileInAMissingFolderCannotBeWritten) {
  EXPECT_EQ(profiles_.WriteString("s", "k", "v", folder_.Path("no folder/file.ini")),
            kPathNotFound);
}

TEST_F(ProfileFilesTest, AFileKeepsItsEncodingWhenAKeyIsWritten) {
  const std::string other = "; caf\xE9 \x80\r\n";
  const std::string before = "[s]\r\nk=old\r\n";
  const std::string after = "[s]\r\nk=\xE9\x80\r\nl=new\r\n";
  const std::string inUtf8 = "; caf\xC3\xA9 \xE2\x82\xAC\r\n";
  // Of what the code page can't hold nothing is lost either.
  const std::string foreign = "; \xD0\x96\xE4\xB8\xAD\xF0\x9F\x98\x80\r\n";
  const std::string wideForeign =
      Wide("; ").substr(2) + "\x16\x04-N\x3D\xD8\x00\xDE"s + Wide("\r\n").substr(2);
  const struct {
    const char* rule;
    std::string before;
    std::string after;
  } cases[] = {
      {"code page", other + before, other + after},
      {"16-bit units", Wide(other) + wideForeign + Wide(before).substr(2),
       Wide(other) + wideForeign + Wide(after).substr(2)},
      {"high byte first", WideBig(other + before), WideBig(other + after)},
      {"UTF-8", kUtf8Mark + inUtf8 + foreign + before,
       kUtf8Mark + inUtf8 + foreign + "[s]\r\nk=\xC3\xA9\xE2\x82\xAC\r\nl=new\r\n"},
  };
  for (const auto& row : cases) {
    const std::string file = NewFile(row.before);
    EXPECT_EQ(profiles_.WriteString("s", "k", "\xE9\x80", file), kNoError) << row.rule;
    EXPECT_EQ(profiles_.WriteString("s", "l", "new", file), kNoError) << row.rule;
    EXPECT_EQ(folder_.ReadFile(NameOfNewest()), row.after) << row.rule;
  }
}

TEST_F(ProfileFilesTest, WritingMakesTheFile) {
  const std::string file = folder_.Path("new.ini");
  EXPECT_EQ(profiles_.WriteString("s", "k", "v", file), kNoError);
  EXPECT_TRUE(folder_.Exists("new.ini"));
  EXPECT_EQ(Get(file, "s", "k"), "v");
}

struct WriteCase {
  const char* rule;
  std::string file;
};

// Each holds s/k = "old", s/other = "kept" and t/k = "kept too".
const WriteCase kFilesToWrite[] = {
    {"plain", "[s]\r\nk=old\r\nother=kept\r\n[t]\r\nk=kept too\r\n"},
    {"no last line end", "[s]\r\nk=old\r\nother=kept\r\n[t]\r\nk=kept too"},
    {"section last and no line end", "[t]\r\nk=kept too\r\n[s]\r\nother=kept\r\nk=old"},
    {"line feeds", "[s]\nk=old\nother=kept\n[t]\nk=kept too\n"},
    {"line feeds and no last one", "[t]\nk=kept too\n[s]\nother=kept\nk=old"},
    {"mixed line ends", "[s]\r\nk=old\nother=kept\r\n[t]\nk=kept too\r\n"},
    {"comments", ";first\r\n[s]\r\n;k=no\r\nk=old\r\nother=kept\r\n;last\r\n[t]\r\nk=kept too\r\n"},
    {"empty lines", "\r\n[s]\r\n\r\nk=old\r\n\r\nother=kept\r\n\r\n[t]\r\n\r\nk=kept too\r\n\r\n"},
    {"blanks", "  [s]  \r\n  k =  old  \r\n\tother\t=\tkept\t\r\n[t]\r\nk = kept too \r\n"},
    {"quotes", "[s]\r\nk=\"old\"\r\nother='kept'\r\n[t]\r\nk=\"kept too\"\r\n"},
    {"other case", "[S]\r\nK=old\r\nOTHER=kept\r\n[T]\r\nK=kept too\r\n"},
    {"repeated key", "[s]\r\nk=old\r\nk=second\r\nother=kept\r\n[t]\r\nk=kept too\r\n"},
    {"repeated section",
     "[s]\r\nk=old\r\nother=kept\r\n[t]\r\nk=kept too\r\n[s]\r\nk=second\r\nother=second\r\n"},
    {"lines without an equals sign",
     "what\r\n[s]\r\nwhat\r\nk=old\r\nother=kept\r\n[t]\r\nwhat\r\nk=kept too\r\n"},
    {"units of 16 bits", Wide("[s]\r\nk=old\r\nother=kept\r\n[t]\r\nk=kept too\r\n")},
    {"units of 16 bits and no last line end",
     Wide("[t]\r\nk=kept too\r\n[s]\r\nother=kept\r\nk=old")},
    {"units with the high byte first",
     WideBig("[s]\r\nk=old\r\nother=kept\r\n[t]\r\nk=kept too\r\n")},
    {"UTF 8 mark", kUtf8Mark + "[s]\r\nk=old\r\nother=kept\r\n[t]\r\nk=kept too\r\n"s},
    {"text ahead of the first section",
     "k=no\r\nwhat\r\n[s]\r\nk=old\r\nother=kept\r\n[t]\r\nk=kept too\r\n"},
};

class ProfileFilesWriteTest : public ProfileFilesTest,
                              public testing::WithParamInterface<WriteCase> {
 protected:
  void ExpectTheRestKept() {
    EXPECT_EQ(Get(file_, "s", "other"), "kept");
    EXPECT_EQ(Get(file_, "t", "k"), "kept too");
  }

  std::string file_ = NewFile(GetParam().file);
};

TEST_P(ProfileFilesWriteTest, AnExistingKeyTakesTheValue) {
  EXPECT_EQ(profiles_.WriteString("s", "k", "new", file_), kNoError);
  EXPECT_EQ(Get(file_, "s", "k"), "new");
  ExpectTheRestKept();
}

TEST_P(ProfileFilesWriteTest, ANameInAnotherCaseIsTheSameName) {
  EXPECT_EQ(profiles_.WriteString("S", "K", "new", file_), kNoError);
  EXPECT_EQ(Get(file_, "s", "k"), "new");
  ExpectTheRestKept();
}

TEST_P(ProfileFilesWriteTest, ANewKeyJoinsItsSection) {
  EXPECT_EQ(profiles_.WriteString("s", "added", "new", file_), kNoError);
  EXPECT_EQ(Get(file_, "s", "added"), "new");
  EXPECT_EQ(Get(file_, "t", "added"), "none");
  EXPECT_EQ(Get(file_, "s", "k"), "old");
  ExpectTheRestKept();
}

TEST_P(ProfileFilesWriteTest, ANewKeyJoinsTheLastSection) {
  EXPECT_EQ(profiles_.WriteString("t", "added", "new", file_), kNoError);
  EXPECT_EQ(Get(file_, "t", "added"), "new");
  EXPECT_EQ(Get(file_, "s", "added"), "none");
  EXPECT_EQ(Get(file_, "s", "k"), "old");
  ExpectTheRestKept();
}

TEST_P(ProfileFilesWriteTest, ANewSectionIsMade) {
  EXPECT_EQ(profiles_.WriteString("added", "k", "new", file_), kNoError);
  EXPECT_EQ(profiles_.WriteString("added", "l", "newer", file_), kNoError);
  EXPECT_EQ(Get(file_, "added", "k"), "new");
  EXPECT_EQ(Get(file_, "added", "l"), "newer");
  EXPECT_EQ(Get(file_, "s", "k"), "old");
  ExpectTheRestKept();
}

TEST_P(ProfileFilesWriteTest, ADeletedKeyIsGone) {
  const bool repeated = GetParam().rule == "repeated key"s;
  EXPECT_EQ(profiles_.DeleteKey("s", "k", file_), kNoError);
  EXPECT_EQ(Get(file_, "s", "k"), repeated ? "second" : "none");
  ExpectTheRestKept();
}

TEST_P(ProfileFilesWriteTest, ADeletedSectionIsGone) {
  const bool repeated = GetParam().rule == "repeated section"s;
  EXPECT_EQ(profiles_.DeleteSection("s", file_), kNoError);
  EXPECT_EQ(Get(file_, "s", "k"), repeated ? "second" : "none");
  EXPECT_EQ(Get(file_, "s", "other"), repeated ? "second" : "none");
  EXPECT_EQ(Get(file_, "t", "k"), "kept too");
}

TEST_P(ProfileFilesWriteTest, DeletingWhatIsMissingChangesNothing) {
  EXPECT_EQ(profiles_.DeleteKey("s", "x", file_), kNoError);
  EXPECT_EQ(profiles_.DeleteSection("x", file_), kNoError);
  EXPECT_EQ(Get(file_, "s", "k"), "old");
  ExpectTheRestKept();
}

TEST_P(ProfileFilesWriteTest, CommentsStayWhenAKeyIsWritten) {
  EXPECT_EQ(profiles_.WriteString("s", "k", "new", file_), kNoError);
  const std::string bytes = folder_.ReadFile("file1.ini");
  for (const char* comment : {";first", ";k=no", ";last"}) {
    const bool was = GetParam().file.find(comment) != std::string::npos;
    EXPECT_EQ(bytes.find(comment) != std::string::npos, was) << comment;
  }
}

INSTANTIATE_TEST_SUITE_P(Files, ProfileFilesWriteTest, testing::ValuesIn(kFilesToWrite),
                         [](const testing::TestParamInfo<WriteCase>& row) {
                           std::string name = row.param.rule;
                           for (char& c : name) {
                             if (c == ' ') c = '_';
                           }
                           return name;
                         });

struct ValueCase {
  const char* rule;
  const char* written;
  const char* read;
};

const ValueCase kValuesToWrite[] = {
    {"plain", "v", "v"},
    {"empty", "", ""},
    {"blanks inside", "a  b", "a  b"},
    {"blanks around", "  v  ", "v"},
    {"blanks in quotes", "\"  v  \"", "  v  "},
    {"quotes", "\"v\"", "v"},
    {"two pairs of quotes", "\"\"v\"\"", "\"v\""},
    {"equals sign", "a=b", "a=b"},
    {"semicolon", ";v", ";v"},
    {"brackets", "[x]", "[x]"},
    {"8-bit text", "caf\xE9 \x80", "caf\xE9 \x80"},
    {"path", "C:\\Logs\\Split 1", "C:\\Logs\\Split 1"},
};

TEST_F(ProfileFilesTest, AWrittenValueIsReadAsTheFileHoldsIt) {
  for (const ValueCase& row : kValuesToWrite) {
    const std::string file = NewFile("[s]\r\na=1\r\n");
    EXPECT_EQ(profiles_.WriteString("s", "k", row.written, file), kNoError) << row.rule;
    EXPECT_EQ(Get(file, "s", "k"), row.read) << row.rule;
    EXPECT_EQ(Get(file, "s", "a"), "1") << row.rule;
  }
}

TEST_F(ProfileFilesTest, WhatALineCannotHoldIsRefusedAndTheFileStays) {
  const std::string bytes = "[General]\r\nSplitName1=East\r\nSplitName2=West\r\n";
  const std::string file = NewFile(bytes);
  for (const char* text : {"East\n[Oops]\nWest", "East\r\n[Oops]\r\nWest", "\n", "a\rb", "a\x1Bz",
                           "a\tb", "a\x7F", "\x01"}) {
    EXPECT_EQ(profiles_.WriteString("General", "SplitName1", text, file), kInvalidCall) << text;
    EXPECT_EQ(profiles_.WriteString("General", text, "v", file), kInvalidCall) << text;
    EXPECT_EQ(profiles_.WriteString(text, "SplitName1", "v", file), kInvalidCall) << text;
    EXPECT_EQ(profiles_.DeleteKey(text, "SplitName1", file), kInvalidCall) << text;
    EXPECT_EQ(profiles_.DeleteKey("General", text, file), kInvalidCall) << text;
    EXPECT_EQ(profiles_.DeleteSection(text, file), kInvalidCall) << text;
    EXPECT_EQ(folder_.ReadFile("file1.ini"), bytes) << text;
  }
}

TEST_F(ProfileFilesTest, BlanksAroundNamesAreNotWritten) {
  const std::string file = folder_.Path("new.ini");
  EXPECT_EQ(profiles_.WriteString(" s ", " k ", "v", file), kNoError);
  EXPECT_EQ(Get(file, "s", "k"), "v");
}

TEST_F(ProfileFilesTest, NamesInTheFileKeepTheirSpelling) {
  const std::string file = NewFile("[Sec]\r\nKey=old\r\n");
  EXPECT_EQ(profiles_.WriteString("SEC", "KEY", "new", file), kNoError);
  const std::string bytes = folder_.ReadFile("file1.ini");
  EXPECT_NE(bytes.find("[Sec]\r\nKey=new\r\n"), std::string::npos) << bytes;
}

TEST_F(ProfileFilesTest, AFileChangedBehindOurBackIsReadAnew) {
  const std::string file = NewFile("[s]\r\nk=first\r\n");
  EXPECT_EQ(Get(file, "s", "k"), "first");
  folder_.WriteFile("file1.ini", "[s]\r\nk=second time\r\n");
  EXPECT_EQ(Get(file, "s", "k"), "second time");
}

}  // namespace
}  // namespace logchecker
