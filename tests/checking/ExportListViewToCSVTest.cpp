#include "checking/ExportListViewToCSV.h"

#include <algorithm>

#include "common/ErrorState.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class ExportTest : public StationTest {
 protected:
  ExportTest() {
    list.ColumnHeaders = {{"Time"}, {" No\"rth "}, {"South"}};
    list.ListItems = {{"t1", "10:30", {{" 2:00.00"}, {"Not Found"}}},
                      {"t2", " 11:30 ", {{"a \"b\" c"}}},
                      {"t3", "12:30", {{"1"}, {"2"}, {"too many"}}}};
  }
  int16_t Export(int16_t onlySelected = 0, const std::string& delimiter = ",") {
    return ExportListViewToCSV(&list, Path("out.csv"), delimiter, onlySelected);
  }
  std::string Written() const { return folder().ReadFile("out.csv"); }

  ListView list;
};

constexpr char kHeading[] = "\"Time\",\" No'rth \",\"South\"\r\n";

TEST_F(ExportTest, EveryFieldIsQuotedAndRowFieldsAreTrimmed) {
  EXPECT_EQ(-1, Export());
  EXPECT_EQ(std::string(kHeading) +
                "\"10:30\",\"2:00.00\",\"Not Found\"\r\n\"11:30\",\"a 'b' c\",\"\"\r\n"
                "\"12:30\",\"1\",\"2\"\r\n",
            Written());
  EXPECT_EQ((std::vector<MousePointer>{MousePointer::kHourglass, MousePointer::kDefault}),
            ui.pointers);
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ExportTest, OnlyBlanksAreTrimmedAndOnlyQuotesReplaced) {
  struct Case {
    const char* text;
    const char* field;
  };
  const Case cases[] = {
      {"", ""},
      {"   ", ""},
      {"  a  b  ", "a  b"},
      {"\ta\t", "\ta\t"},
      {"a,b", "a,b"},
      {"\"", "'"},
      {"\"\"", "''"},
      {" \" ", "'"},
      {"'a'", "'a'"},
      {"a\r\nb", "a\r\nb"},
      {"\xC9t\xE9", "\xC9t\xE9"},
  };
  list.ColumnHeaders = {{"T"}, {"N"}};
  for (const Case& row : cases) {
    list.ListItems = {{"t1", row.text, {{row.text}}}};
    ASSERT_EQ(-1, Export());
    const std::string field = "\"" + std::string(row.field) + "\"";
    EXPECT_EQ("\"T\",\"N\"\r\n" + field + "," + field + "\r\n", Written()) << row.text;
  }
}

TEST_F(ExportTest, AnErrorFromBeforeIsForgotten) {
  gErrorState.Number = kPathNotFound;
  EXPECT_EQ(-1, Export());
  EXPECT_EQ(kNoError, gErrorState.Number);
}

TEST_F(ExportTest, TheDelimiterStandsBetweenFieldsAlone) {
  EXPECT_EQ(-1, Export(0, "; "));
  EXPECT_EQ(0U, Written().find("\"Time\"; \" No'rth \"; \"South\"\r\n"));
}

TEST_F(ExportTest, OnlySelectedRowsAreWrittenWhenAskedFor) {
  list.ListItems[0].Selected = true;
  list.ListItems[2].Selected = true;
  EXPECT_EQ(-1, Export(1));  // any value but 0 asks for it
  EXPECT_EQ(std::string(kHeading) +
                "\"10:30\",\"2:00.00\",\"Not Found\"\r\n"
                "\"12:30\",\"1\",\"2\"\r\n",
            Written());
}

TEST_F(ExportTest, ThereMustBeSomethingToWriteAndAPlaceForIt) {
  EXPECT_EQ(0, Export(-1));  // nothing is selected
  EXPECT_EQ(0, ExportListViewToCSV(nullptr, Path("out.csv"), ",", 0));
  EXPECT_EQ(0, ExportListViewToCSV(&list, "", ",", 0));
  list.ListItems.clear();
  EXPECT_EQ(0, Export());
  list.ListItems = {{"t", "10:30", {}}};
  list.ColumnHeaders.clear();
  EXPECT_EQ(0, Export());
  EXPECT_FALSE(folder().Exists("out.csv"));
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ExportTest, AFileThatCannotBeOpenedIsTold) {
  const std::string path = Path("missing") + "\\out.csv";
  EXPECT_EQ(0, ExportListViewToCSV(&list, path, ",", 0));
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ("There was a problem opening the file " + path +
                " to export to and the error's description was reported as : \n\n"
                "\"Path not found\" (76)",
            ui.messages[0].text);
  EXPECT_EQ(MessageIcon::kExclamation, ui.messages[0].icon);
  EXPECT_EQ(MousePointer::kDefault, ui.pointer);
  // The hourglass is gone for good by the time of the message.
  EXPECT_EQ(1, std::count(ui.pointers.begin(), ui.pointers.end(), MousePointer::kHourglass));
}

TEST_F(ExportTest, AnOpenThatFailsGivesItsNumberBackAndLeavesTheOldFile) {
  folder().WriteFile("out.csv", "old");
  const char* const calls[] = {"Files.FreeFile", "Files.OpenForOutput"};
  const int32_t errors[] = {kTooManyFiles, kPermissionDenied};
  const char* const texts[] = {"\"Too many files\" (67)", "\"Permission denied\" (70)"};
  for (size_t i = 0; i < 2; ++i) {
    ui.messages.clear();
    os.script.Clear();
    os.script.FailNamed(calls[i], 1, errors[i]);
    EXPECT_EQ(0, Export());
    ASSERT_EQ(1U, ui.messages.size());
    EXPECT_EQ("There was a problem opening the file " + Path("out.csv") +
                  " to export to and the error's description was reported as : \n\n" + texts[i],
              ui.messages[0].text);
    EXPECT_EQ("old", Written());
    EXPECT_EQ(MousePointer::kDefault, ui.pointer);
    os.script.Clear();
    int16_t file = 0;
    Os().files.FreeFile(&file);
    EXPECT_EQ(1, file);
    Os().files.Abandon(file);
  }
}

TEST_F(ExportTest, AnOldFileIsReplacedWhole) {
  folder().WriteFile("out.csv", std::string(5000, 'x'));
  list.ListItems.resize(1);
  EXPECT_EQ(-1, Export());
  EXPECT_EQ(std::string(kHeading) + "\"10:30\",\"2:00.00\",\"Not Found\"\r\n", Written());
}

TEST_F(ExportTest, AWriteThatFailsLeavesTheOldFile) {
  folder().WriteFile("out.csv", "old");
  int n = 0;
  bool failed = true;
  while (failed) {
    os.script.Clear();
    os.script.FailCall(++n + 2, kDiskFull);  // behind FreeFile and OpenForOutput
    failed = false;
    try {
      EXPECT_EQ(-1, Export());
    } catch (const RunTimeError& error) {
      failed = true;
      EXPECT_EQ(kDiskFull, error.number());
      EXPECT_EQ(Path("out.csv"), error.concerning());
      EXPECT_EQ("old", Written());
      EXPECT_EQ(MousePointer::kDefault, ui.pointer);
    }
  }
  EXPECT_EQ(6, n);  // a heading, three rows, the close, and the run that passes
  EXPECT_EQ(0U, Written().find(kHeading));
  EXPECT_TRUE(ui.messages.empty());
  int16_t file = 0;
  os.script.Clear();
  Os().files.FreeFile(&file);
  EXPECT_EQ(1, file);
}

}  // namespace
}  // namespace logchecker
