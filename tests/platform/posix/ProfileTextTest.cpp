// What the text of a profile file is after a change, to the byte.
#include "platform/posix/ProfileText.h"

#include <gtest/gtest.h>

namespace logchecker {
namespace {

std::string ValueOf(const std::string& file, const std::string& section, const std::string& key) {
  const ProfileText text(file);
  const std::string* value = text.Find(section, key);
  return value == nullptr ? "none" : *value;
}

TEST(ProfileTextTest, SectionNames) {
  EXPECT_EQ(ValueOf("[ s ]\r\nk=v\r\n", "s", "k"), "v") << "blanks inside the brackets";
  EXPECT_EQ(ValueOf("[\ts\t]\r\nk=v\r\n", "s", "k"), "v") << "tabs inside the brackets";
  EXPECT_EQ(ValueOf("[s]x]\r\nk=v\r\n", "s", "k"), "v") << "the first bracket ends the name";
  EXPECT_EQ(ValueOf("[s]x]\r\nk=v\r\n", "s]x", "k"), "none");
  EXPECT_EQ(ValueOf("[s  \r\nk=v\r\n", "s", "k"), "v") << "the line ends the name";
  EXPECT_EQ(ValueOf("[", "", "k"), "none");
  EXPECT_EQ(ValueOf("s]\r\nk=v\r\n", "s", "k"), "none") << "no opening bracket";
  EXPECT_EQ(ValueOf("[]\r\nk=v\r\n", "", "k"), "v") << "a section without a name";
  EXPECT_EQ(ValueOf("k=v\r\n", "", "k"), "none") << "ahead of the first section";
  EXPECT_EQ(ValueOf("[\xC4]\r\n\xE9=v\r\n", "\xE4", "\xC9"), "v") << "accented letters";
}

TEST(ProfileTextTest, EachEncodingComesBackToTheByte) {
  const std::string cases[] = {
      std::string("\xFF\xFE", 2),
      std::string("\xFF\xFE[\0s\0]\0\r\0\n\0", 12),
      std::string("\xFF\xFE[\0s\0]\0\r\0\n\0k", 13),                // cut off within a unit
      std::string("\xFF\xFE\x3D\xD8\x00\xDE\x3D\xD8\x0A\x00", 10),  // a pair, and half of one
      std::string("\xFE\xFF\0[\0s\0]\xD8\x3D\xDE\x00", 12),
      "\xEF\xBB\xBF[s]\nk=\xE9\xC3\xA9\xE2\x82",
  };
  for (const std::string& bytes : cases) EXPECT_EQ(ProfileText(bytes).Bytes(), bytes);
}

TEST(ProfileTextTest, ACommentIsNoKeyAndNoSection) {
  EXPECT_EQ(ValueOf("[s]\r\n;k=v\r\n", "s", ";k"), "none");
  EXPECT_EQ(ValueOf("[s]\r\n  ;k=v\r\n", "s", ";k"), "none");
  EXPECT_EQ(ValueOf("[s]\r\n;k=v\r\n", "s", "k"), "none");
  EXPECT_EQ(ValueOf("[s]\r\n;[t]\r\nk=v\r\n", "s", "k"), "v");
  EXPECT_EQ(ValueOf("[s]\r\nk=v;w\r\n", "s", "k"), "v;w") << "only at a line's beginning";
}

struct ChangeCase {
  const char* rule;
  const char* before;
  const char* after;
};

TEST(ProfileTextTest, SettingAKeyChangesItsLineAlone) {
  const ChangeCase cases[] = {
      {"in place", "[s]\r\n;c\r\nk=old\r\n\r\n[t]\r\n", "[s]\r\n;c\r\nk=new\r\n\r\n[t]\r\n"},
      {"spelling kept", "[S]\r\n K =old\r\n", "[S]\r\nK=new\r\n"},
      {"the file's line end", "[s]\nk=old\n[t]\n", "[s]\nk=new\n[t]\n"},
      {"first of two", "[s]\r\nk=1\r\nk=2\r\n", "[s]\r\nk=new\r\nk=2\r\n"},
      {"new key behind the last line that says something", "[s]\r\na=1\r\n;c\r\n\r\n[t]\r\nk=1\r\n",
       "[s]\r\na=1\r\n;c\r\nk=new\r\n\r\n[t]\r\nk=1\r\n"},
      {"new key in an empty section", "[s]\r\n[t]\r\n", "[s]\r\nk=new\r\n[t]\r\n"},
      {"no last line end", "[s]\r\na=1", "[s]\r\na=1\r\nk=new\r\n"},
      {"no last line end behind the section", "[s]\na=1\n[t]\nb=2", "[s]\na=1\nk=new\n[t]\nb=2\n"},
      {"new section", "[t]\r\nb=2", "[t]\r\nb=2\r\n[s]\r\nk=new\r\n"},
      {"empty file", "", "[s]\r\nk=new\r\n"},
  };
  for (const ChangeCase& row : cases) {
    ProfileText text(row.before);
    text.Set("s", "k", "new");
    EXPECT_EQ(text.Bytes(), row.after) << row.rule;
  }
}

TEST(ProfileTextTest, DeletingAKeyTakesItsLineAlone) {
  const ChangeCase cases[] = {
      {"one line", "[s]\r\n;c\r\nk=1\r\na=1\r\n", "[s]\r\n;c\r\na=1\r\n"},
      {"first of two", "[s]\r\nk=1\r\nk=2\r\n", "[s]\r\nk=2\r\n"},
      {"last line", "[s]\r\na=1\r\nk=1", "[s]\r\na=1\r\n"},
      {"missing key", "[s]\r\na=1", "[s]\r\na=1"},
  };
  for (const ChangeCase& row : cases) {
    ProfileText text(row.before);
    text.DeleteKey("s", "k");
    EXPECT_EQ(text.Bytes(), row.after) << row.rule;
  }
}

TEST(ProfileTextTest, DeletingASectionKeepsItsComments) {
  const ChangeCase cases[] = {
      {"in the middle", "[a]\r\nx=1\r\n[s]\r\nk=1\r\n ;c\r\n\r\n[t]\r\nk=2\r\n",
       "[a]\r\nx=1\r\n ;c\r\n[t]\r\nk=2\r\n"},
      {"first of two", "[s]\r\nk=1\r\n[s]\r\nk=2\r\n", "[s]\r\nk=2\r\n"},
      {"last", "[a]\nx=1\n[s]\nk=1", "[a]\nx=1\n"},
      {"missing section", "[a]\nx=1", "[a]\nx=1"},
  };
  for (const ChangeCase& row : cases) {
    ProfileText text(row.before);
    text.DeleteSection("s");
    EXPECT_EQ(text.Bytes(), row.after) << row.rule;
    EXPECT_EQ(ProfileText(row.after).Bytes(), row.after);
  }
}

}  // namespace
}  // namespace logchecker
