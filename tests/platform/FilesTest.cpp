#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/Platform.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

class FilesTest : public testing::Test {
 protected:
  ~FilesTest() override { files_.CloseAll(); }

  int16_t Number() {
    int16_t number = 0;
    EXPECT_EQ(files_.FreeFile(&number), kNoError);
    return number;
  }

  int16_t Input(std::string_view name) {
    const int16_t number = Number();
    EXPECT_EQ(files_.OpenForInput(number, folder_.Path(name)), kNoError);
    return number;
  }

  int16_t Output(std::string_view name) {
    const int16_t number = Number();
    EXPECT_EQ(files_.OpenForOutput(number, folder_.Path(name)), kNoError);
    return number;
  }

  int16_t Append(std::string_view name) {
    const int16_t number = Number();
    EXPECT_EQ(files_.OpenForAppend(number, folder_.Path(name)), kNoError);
    return number;
  }

  int16_t Random(std::string_view name, int32_t recordLength) {
    const int16_t number = Number();
    EXPECT_EQ(files_.OpenRandom(number, folder_.Path(name), recordLength), kNoError);
    return number;
  }

  bool AtEnd(int16_t number) {
    bool atEnd = false;
    EXPECT_EQ(files_.EndOfFile(number, &atEnd), kNoError);
    return atEnd;
  }

  int64_t Position(int16_t number) {
    int64_t position = 0;
    EXPECT_EQ(files_.Position(number, &position), kNoError);
    return position;
  }

  // All that is left of an input file.
  std::string Rest(int16_t number) {
    std::string text;
    std::string_view bytes;
    while (files_.Peek(number, &bytes) == kNoError && !bytes.empty()) {
      text += bytes;
      files_.Skip(number, bytes.size());
    }
    return text;
  }

  TempFolder folder_;
  Files& files_ = Os().files;
};

TEST_F(FilesTest, AMissingFileIsNotFound) {
  const std::string missing = folder_.Path("missing.txt");
  int64_t length = 0;
  double dateTime = 0;
  EXPECT_EQ(files_.OpenForInput(Number(), missing), kFileNotFound);
  EXPECT_EQ(files_.FileLength(missing, &length), kFileNotFound);
  EXPECT_EQ(files_.FileDateTime(missing, &dateTime), kFileNotFound);
  EXPECT_EQ(files_.ProbeFile(missing), kFileNotFound);
  EXPECT_EQ(folder_.Count(), 0U);
}

TEST_F(FilesTest, AMissingFolderIsAPathNotFound) {
  const std::string missing = folder_.Path("missing/file.txt");
  int64_t length = 0;
  EXPECT_EQ(files_.OpenForInput(Number(), missing), kPathNotFound);
  EXPECT_EQ(files_.OpenForAppend(Number(), missing), kPathNotFound);
  EXPECT_EQ(files_.OpenForOutput(Number(), missing), kPathNotFound);
  EXPECT_EQ(files_.OpenRandom(Number(), missing, 4), kPathNotFound);
  EXPECT_EQ(files_.FileLength(missing, &length), kPathNotFound);
  EXPECT_EQ(files_.ProbeFile(missing), kPathNotFound);
}

TEST_F(FilesTest, AFileIsNoFolder) {
  folder_.WriteFile("file", "x");
  EXPECT_EQ(files_.OpenForInput(Number(), folder_.Path("file/x")), kPathNotFound);
  EXPECT_EQ(files_.OpenForAppend(Number(), folder_.Path("file/x")), kPathNotFound);
}

TEST_F(FilesTest, ADirectoryIsNoFile) {
  std::filesystem::create_directory(folder_.Path("folder"));
  const std::string path = folder_.Path("folder");
  int64_t length = 0;
  EXPECT_EQ(files_.OpenForInput(Number(), path), kPathFileAccess);
  EXPECT_EQ(files_.OpenForAppend(Number(), path), kPathFileAccess);
  EXPECT_EQ(files_.OpenForOutput(Number(), path), kPathFileAccess);
  EXPECT_EQ(files_.OpenRandom(Number(), path, 4), kPathFileAccess);
  EXPECT_EQ(files_.ProbeFile(path), kPathFileAccess);
  EXPECT_EQ(files_.FileLength(path, &length), kFileNotFound);
}

TEST_F(FilesTest, ANumberIsKeptUntilItIsClosed) {
  const int16_t first = Number();
  const int16_t second = Number();
  EXPECT_NE(first, second);
  EXPECT_EQ(files_.OpenForInput(first, folder_.Path("missing.txt")), kFileNotFound);
  EXPECT_NE(Number(), first) << "a failed open gives the number back";
  EXPECT_EQ(files_.Close(first), kNoError);
  EXPECT_EQ(Number(), first) << "a close does not give the number back";
}

TEST_F(FilesTest, NumbersRunOut) {
  for (int i = 0; i < Files::kLastFileNumber; ++i) Number();
  int16_t number = 1;
  EXPECT_EQ(files_.FreeFile(&number), kTooManyFiles);
  EXPECT_EQ(number, 0);
  files_.CloseAll();
  EXPECT_EQ(files_.FreeFile(&number), kNoError);
  EXPECT_EQ(number, 1);
}

TEST_F(FilesTest, EveryNumberCanHaveAnOpenFile) {
  folder_.WriteFile("file.txt", "x");
  for (int i = 0; i < Files::kLastFileNumber; ++i) {
    const int16_t number = Number();
    ASSERT_EQ(files_.OpenForInput(number, folder_.Path("file.txt")), kNoError) << i;
    EXPECT_EQ(Rest(number), "x") << i;
  }
}

TEST_F(FilesTest, AFileCanBeClosedAndItsNumberKept) {
  folder_.WriteFile("file.txt", "abc");
  const int16_t number = Input("file.txt");
  EXPECT_EQ(files_.CloseAndKeepNumber(number), kNoError);
  EXPECT_EQ(files_.CloseAndKeepNumber(number), kNoError) << "without a file";
  bool atEnd = false;
  EXPECT_EQ(files_.EndOfFile(number, &atEnd), kBadFileNumber);
  EXPECT_NE(Number(), number);
  EXPECT_EQ(files_.OpenForInput(number, folder_.Path("missing")), kFileNotFound);
  EXPECT_NE(Number(), number);
  EXPECT_EQ(files_.OpenForInput(number, folder_.Path("file.txt")), kNoError);
  EXPECT_EQ(files_.Close(number), kNoError);
  EXPECT_EQ(Number(), number);
}

TEST_F(FilesTest, WhatWasWrittenIsThereWhenTheNumberIsKept) {
  const int16_t number = Number();
  ASSERT_EQ(files_.OpenForOutput(number, folder_.Path("out.txt")), kNoError);
  EXPECT_EQ(files_.Write(number, "abc"), kNoError);
  EXPECT_EQ(files_.CloseAndKeepNumber(number), kNoError);
  EXPECT_EQ(folder_.ReadFile("out.txt"), "abc");
}

TEST_F(FilesTest, ANumberThatNobodyHoldsCannotBeOpenedOrKept) {
  folder_.WriteFile("file.txt", "abc");
  const int16_t number = Input("file.txt");
  EXPECT_EQ(files_.Close(number), kNoError);
  EXPECT_EQ(files_.CloseAndKeepNumber(number), kBadFileNumber);
  EXPECT_EQ(files_.OpenForInput(number, folder_.Path("file.txt")), kBadFileNumber);
  EXPECT_EQ(files_.OpenForAppend(number, folder_.Path("file.txt")), kBadFileNumber);
  EXPECT_EQ(files_.OpenForOutput(number, folder_.Path("file.txt")), kBadFileNumber);
  EXPECT_EQ(files_.OpenRandom(number, folder_.Path("new.txt"), 3), kBadFileNumber);
  EXPECT_FALSE(folder_.Exists("new.txt"));
  EXPECT_EQ(Number(), number);
}

// A file of 3 bytes in another one's place; the other goes to "away".
TEST_F(FilesTest, AReplacedFileIsOpenedInItsPlaceUnderTheSameNumber) {
  folder_.WriteFile("list", "old");
  folder_.WriteFile("new", "new");
  const std::string path = folder_.Path("list");
  const int16_t number = Random("list", 3);
  std::string record = "---";
  EXPECT_EQ(files_.ReopenIfReplaced(number, path), kNoError) << "the same";
  EXPECT_EQ(files_.GetRecord(number, 1, record.data()), kNoError);
  EXPECT_EQ(record, "old");
  std::filesystem::rename(path, folder_.Path("away"));
  EXPECT_EQ(files_.ReopenIfReplaced(number, path), kFileNotFound);
  EXPECT_FALSE(folder_.Exists("list")) << "it is not made";
  record = "---";
  EXPECT_EQ(files_.GetRecord(number, 1, record.data()), kNoError);
  EXPECT_EQ(record, "old");
  std::filesystem::rename(folder_.Path("new"), path);
  EXPECT_EQ(files_.ReopenIfReplaced(number, path), kNoError);
  EXPECT_EQ(files_.GetRecord(number, 1, record.data()), kNoError);
  EXPECT_EQ(record, "new");
  EXPECT_EQ(files_.PutRecord(number, 2, "abc"), kNoError);
  EXPECT_EQ(folder_.ReadFile("list"), "newabc");
  EXPECT_EQ(folder_.ReadFile("away"), "old");
}

TEST_F(FilesTest, AReplacementThatCannotBeOpenedLeavesTheNumberWithoutAFile) {
  folder_.WriteFile("list", "old");
  const std::string path = folder_.Path("list");
  const int16_t number = Random("list", 3);
  std::filesystem::rename(path, folder_.Path("away"));
  std::filesystem::create_directory(path);
  EXPECT_EQ(files_.ReopenIfReplaced(number, path), kPathFileAccess);
  std::string record = "---";
  EXPECT_EQ(files_.GetRecord(number, 1, record.data()), kBadFileNumber);
  EXPECT_EQ(files_.ReopenIfReplaced(number, path), kBadFileNumber);
  EXPECT_NE(Number(), number) << "it is still held";
  EXPECT_EQ(files_.ReopenIfReplaced(Output("out"), path), kBadFileNumber);
  EXPECT_EQ(files_.ReopenIfReplaced(0, path), kBadFileNumber);
}

TEST_F(FilesTest, BadNumbers) {
  folder_.WriteFile("file.txt", "x");
  const std::string path = folder_.Path("file.txt");
  const int16_t open = Input("file.txt");
  EXPECT_EQ(files_.OpenForInput(open, path), kBadFileNumber) << "already open";
  const int16_t held = Number();
  bool atEnd = false;
  std::string_view bytes;
  int64_t place = 0;
  for (const int16_t number :
       {int16_t{0}, int16_t{-1}, int16_t{Files::kLastFileNumber + 1}, held}) {
    EXPECT_EQ(files_.EndOfFile(number, &atEnd), kBadFileNumber) << number;
    EXPECT_EQ(files_.Peek(number, &bytes), kBadFileNumber) << number;
    EXPECT_EQ(files_.Seek(number, 1), kBadFileNumber) << number;
    EXPECT_EQ(files_.Position(number, &place), kBadFileNumber) << number;
    EXPECT_EQ(files_.Write(number, "x"), kBadFileNumber) << number;
    EXPECT_EQ(files_.LengthOfOpenFile(number, &place), kBadFileNumber) << number;
    if (number != held) {
      EXPECT_EQ(files_.OpenForInput(number, path), kBadFileNumber) << number;
      EXPECT_EQ(files_.Close(number), kBadFileNumber) << number;
    }
  }
  EXPECT_EQ(files_.Write(open, "x"), kBadFileNumber) << "open for input";
  EXPECT_EQ(files_.PutRecord(open, 1, "x"), kBadFileNumber) << "open for input";
}

TEST_F(FilesTest, ReadsWhatTheFileHolds) {
  const std::string text("a\r\nb\0c\x1A\xFF", 8);
  folder_.WriteFile("file.bin", text);
  const int16_t number = Input("file.bin");
  EXPECT_FALSE(AtEnd(number));
  EXPECT_EQ(Rest(number), text);
  EXPECT_TRUE(AtEnd(number));
  EXPECT_EQ(Position(number), 9);
}

TEST_F(FilesTest, AnEmptyFileIsAtItsEnd) {
  folder_.WriteFile("empty.txt", "");
  const int16_t number = Input("empty.txt");
  std::string_view bytes = "x";
  EXPECT_TRUE(AtEnd(number));
  EXPECT_EQ(files_.Peek(number, &bytes), kNoError);
  EXPECT_TRUE(bytes.empty());
}

TEST_F(FilesTest, ReadsALongFileWhole) {
  std::string text;
  for (int i = 0; text.size() < 300000; ++i) text += std::to_string(i) + "\r\n";
  folder_.WriteFile("long.txt", text);
  const int16_t number = Input("long.txt");
  EXPECT_TRUE(Rest(number) == text);
  EXPECT_EQ(files_.Seek(number, 200001), kNoError);
  EXPECT_TRUE(Rest(number) == text.substr(200000));
}

TEST_F(FilesTest, PeekShowsAndSkipPasses) {
  folder_.WriteFile("file.txt", "abcdef");
  const int16_t number = Input("file.txt");
  std::string_view bytes;
  EXPECT_EQ(Position(number), 1);
  EXPECT_EQ(files_.Peek(number, &bytes), kNoError);
  EXPECT_EQ(bytes, "abcdef");
  EXPECT_EQ(Position(number), 1) << "a look moves nothing";
  files_.Skip(number, 2);
  EXPECT_EQ(Position(number), 3);
  EXPECT_EQ(files_.Peek(number, &bytes), kNoError);
  EXPECT_EQ(bytes, "cdef");
  files_.Skip(number, 100);
  EXPECT_EQ(Position(number), 7) << "no further than what was shown";
}

TEST_F(FilesTest, SeekCountsFromOne) {
  folder_.WriteFile("file.txt", "abcdef");
  const int16_t number = Input("file.txt");
  EXPECT_EQ(files_.Seek(number, 4), kNoError);
  EXPECT_EQ(Position(number), 4);
  EXPECT_EQ(Rest(number), "def");
  EXPECT_EQ(files_.Seek(number, 1), kNoError);
  EXPECT_EQ(Rest(number), "abcdef");
  EXPECT_EQ(files_.Seek(number, 100), kNoError);
  EXPECT_TRUE(AtEnd(number));
  EXPECT_EQ(files_.Seek(number, 0), kInvalidCall);
}

TEST_F(FilesTest, SeekForgetsWhatWasReadAhead) {
  folder_.WriteFile("file.txt", "abcdef");
  const int16_t number = Input("file.txt");
  std::string_view bytes;
  EXPECT_EQ(files_.Peek(number, &bytes), kNoError);
  files_.Skip(number, 1);
  EXPECT_EQ(files_.Seek(number, 5), kNoError);
  EXPECT_EQ(Position(number), 5);
  EXPECT_EQ(Rest(number), "ef");
  EXPECT_EQ(files_.Seek(number, 2), kNoError);
  EXPECT_EQ(files_.Peek(number, &bytes), kNoError);
  folder_.WriteFile("file.txt", "ABCDEF");
  EXPECT_EQ(files_.Seek(number, 2), kNoError);
  EXPECT_EQ(Rest(number), "BCDEF") << "the bytes as they are now";
}

TEST_F(FilesTest, AFileThatGrowsIsNoLongerAtItsEnd) {
  folder_.WriteFile("file.txt", "one");
  const int16_t number = Input("file.txt");
  EXPECT_EQ(Rest(number), "one");
  EXPECT_TRUE(AtEnd(number));
  const int16_t writer = Append("file.txt");
  EXPECT_EQ(files_.Write(writer, "two"), kNoError);
  EXPECT_EQ(files_.Close(writer), kNoError);
  EXPECT_FALSE(AtEnd(number));
  EXPECT_EQ(Rest(number), "two");
}

TEST_F(FilesTest, AppendingMakesTheFileAndAddsToIt) {
  int16_t number = Append("file.txt");
  EXPECT_EQ(files_.Write(number, "one"), kNoError);
  EXPECT_EQ(files_.Write(number, "two"), kNoError);
  EXPECT_EQ(files_.Close(number), kNoError);
  EXPECT_EQ(folder_.ReadFile("file.txt"), "onetwo");
  number = Append("file.txt");
  EXPECT_EQ(files_.Write(number, "three"), kNoError);
  files_.CloseAll();
  EXPECT_EQ(folder_.ReadFile("file.txt"), "onetwothree");
}

TEST_F(FilesTest, TwoThatAppendLoseNothing) {
  const int16_t first = Append("file.txt");
  const int16_t second = Append("file.txt");
  EXPECT_EQ(files_.Write(first, "first"), kNoError);
  EXPECT_EQ(files_.Write(second, "second"), kNoError);
  EXPECT_EQ(files_.Close(second), kNoError);
  EXPECT_EQ(files_.Close(first), kNoError);
  EXPECT_EQ(folder_.ReadFile("file.txt"), "secondfirst");
}

TEST_F(FilesTest, OutputTakesTheOldFilesPlaceOnClose) {
  folder_.WriteFile("file.txt", "the old text");
  const int16_t number = Output("file.txt");
  EXPECT_EQ(files_.Write(number, "new"), kNoError);
  EXPECT_EQ(folder_.ReadFile("file.txt"), "the old text");
  EXPECT_EQ(files_.Close(number), kNoError);
  EXPECT_EQ(folder_.ReadFile("file.txt"), "new");
  EXPECT_EQ(folder_.Count(), 1U) << "something is left beside the file";
}

TEST_F(FilesTest, OutputMakesANewFileOnClose) {
  const int16_t number = Output("file.txt");
  EXPECT_FALSE(folder_.Exists("file.txt"));
  EXPECT_EQ(files_.Close(number), kNoError);
  EXPECT_EQ(folder_.ReadFile("file.txt"), "");
  EXPECT_EQ(folder_.Count(), 1U);
}

TEST_F(FilesTest, AbandonedOutputLeavesTheOldFile) {
  folder_.WriteFile("file.txt", "the old text");
  const int16_t number = Output("file.txt");
  EXPECT_EQ(files_.Write(number, std::string(200000, 'x')), kNoError);
  files_.Abandon(number);
  EXPECT_EQ(folder_.ReadFile("file.txt"), "the old text");
  EXPECT_EQ(folder_.Count(), 1U);
  EXPECT_EQ(Number(), number) << "the number was not given back";
}

TEST_F(FilesTest, AbandonedOutputMakesNoFile) {
  const int16_t number = Output("file.txt");
  EXPECT_EQ(files_.Write(number, "new"), kNoError);
  files_.Abandon(number);
  EXPECT_EQ(folder_.Count(), 0U);
}

TEST_F(FilesTest, LongOutputIsWhole) {
  std::string text;
  const int16_t number = Output("file.txt");
  for (int i = 0; i < 40000; ++i) {
    const std::string line = std::to_string(i) + "\r\n";
    ASSERT_EQ(files_.Write(number, line), kNoError);
    text += line;
  }
  EXPECT_EQ(files_.Close(number), kNoError);
  EXPECT_TRUE(folder_.ReadFile("file.txt") == text);
}

// Not every system lets go of a file that is being read.
TEST_F(FilesTest, OutputOverAFileThatIsBeingReadIsWholeOrTellsThatItIsNot) {
  folder_.WriteFile("file.txt", "old");
  const int16_t reader = Input("file.txt");
  const int16_t writer = Output("file.txt");
  EXPECT_EQ(files_.Write(writer, "new"), kNoError);
  const int32_t error = files_.Close(writer);
  EXPECT_EQ(folder_.ReadFile("file.txt"), error == kNoError ? "new" : "old");
  EXPECT_EQ(Rest(reader), "old");
  EXPECT_EQ(files_.Close(reader), kNoError);
  EXPECT_EQ(folder_.Count(), 1U);
}

TEST_F(FilesTest, OutputGoesWhereItWasOpenedWhateverTheCurrentDirectory) {
  Directories& directories = Os().directories;
  std::string before;
  ASSERT_EQ(directories.CurrentDirectory(&before), kNoError);
  folder_.WriteFile("file.txt", "old");
  std::filesystem::create_directory(folder_.Path("sub"));
  ASSERT_EQ(directories.ChangeDirectory(folder_.Path()), kNoError);
  const int16_t existing = Number();
  EXPECT_EQ(files_.OpenForOutput(existing, "file.txt"), kNoError);
  const int16_t added = Number();
  EXPECT_EQ(files_.OpenForOutput(added, "added.txt"), kNoError);
  ASSERT_EQ(directories.ChangeDirectory("sub"), kNoError);
  EXPECT_EQ(files_.Write(existing, "new"), kNoError);
  EXPECT_EQ(files_.Write(added, "new too"), kNoError);
  EXPECT_EQ(files_.Close(existing), kNoError);
  EXPECT_EQ(files_.Close(added), kNoError);
  ASSERT_EQ(directories.ChangeDirectory(before), kNoError);
  EXPECT_EQ(folder_.ReadFile("file.txt"), "new");
  EXPECT_EQ(folder_.ReadFile("added.txt"), "new too");
}

TEST_F(FilesTest, RandomAccessMakesTheFileAndKeepsItsRecords) {
  const int16_t number = Random("file.lst", 4);
  EXPECT_EQ(files_.PutRecord(number, 1, "AAAA"), kNoError);
  EXPECT_EQ(files_.PutRecord(number, 3, "CCCC"), kNoError);
  EXPECT_EQ(files_.PutRecord(number, 2, "BBBB"), kNoError);
  char record[5] = "....";
  EXPECT_EQ(files_.GetRecord(number, 3, record), kNoError);
  EXPECT_STREQ(record, "CCCC");
  int64_t length = 0;
  EXPECT_EQ(files_.LengthOfOpenFile(number, &length), kNoError);
  EXPECT_EQ(length, 12);
  EXPECT_EQ(files_.Close(number), kNoError);
  EXPECT_EQ(folder_.ReadFile("file.lst"), "AAAABBBBCCCC");
}

TEST_F(FilesTest, RandomAccessLeavesTheOtherRecordsAlone) {
  folder_.WriteFile("file.lst", "AAAABBBBCCCC");
  const int16_t number = Random("file.lst", 4);
  EXPECT_EQ(files_.PutRecord(number, 2, "XXXX"), kNoError);
  EXPECT_EQ(files_.Close(number), kNoError);
  EXPECT_EQ(folder_.ReadFile("file.lst"), "AAAAXXXXCCCC");
}

TEST_F(FilesTest, ARecordBehindTheEndLeavesTheBytesAsTheyWere) {
  folder_.WriteFile("file.lst", "AAAABB");
  const int16_t number = Random("file.lst", 4);
  char record[5] = "....";
  EXPECT_EQ(files_.GetRecord(number, 2, record), kNoError);
  EXPECT_STREQ(record, "BB..") << "the file ends in the record";
  char other[5] = "....";
  EXPECT_EQ(files_.GetRecord(number, 3, other), kNoError);
  EXPECT_STREQ(other, "....") << "the file ends before the record";
  EXPECT_EQ(files_.Close(number), kNoError);
  EXPECT_EQ(folder_.ReadFile("file.lst"), "AAAABB") << "reading adds nothing";
}

TEST_F(FilesTest, RecordsFarIntoAFile) {
  const int16_t number = Random("file.lst", 300);
  const std::string record(300, 'x');
  EXPECT_EQ(files_.PutRecord(number, 30000, record.data()), kNoError);
  std::string read(300, '.');
  EXPECT_EQ(files_.GetRecord(number, 30000, read.data()), kNoError);
  EXPECT_EQ(read, record);
  EXPECT_EQ(files_.GetRecord(number, 29999, read.data()), kNoError);
  EXPECT_EQ(read, std::string(300, '\0')) << "the gap reads as zeros";
  int64_t length = 0;
  EXPECT_EQ(files_.LengthOfOpenFile(number, &length), kNoError);
  EXPECT_EQ(length, 9000000);
}

TEST_F(FilesTest, RecordsCountFromOneAndHaveALength) {
  const int16_t number = Random("file.lst", 4);
  char record[5] = "....";
  EXPECT_EQ(files_.GetRecord(number, 0, record), kInvalidCall);
  EXPECT_EQ(files_.PutRecord(number, 0, record), kInvalidCall);
  EXPECT_EQ(files_.OpenRandom(Number(), folder_.Path("other.lst"), 0), kInvalidCall);
  EXPECT_FALSE(folder_.Exists("other.lst"));
}

TEST_F(FilesTest, RandomAccessSeesWhatAnotherWrites) {
  const int16_t first = Random("file.lst", 4);
  const int16_t second = Random("file.lst", 4);
  EXPECT_EQ(files_.PutRecord(first, 1, "AAAA"), kNoError);
  char record[5] = "....";
  EXPECT_EQ(files_.GetRecord(second, 1, record), kNoError);
  EXPECT_STREQ(record, "AAAA");
}

TEST_F(FilesTest, LengthsOfFiles) {
  folder_.WriteFile("empty.txt", "");
  folder_.WriteFile("file.txt", std::string(70000, 'x'));
  int64_t length = -1;
  EXPECT_EQ(files_.FileLength(folder_.Path("empty.txt"), &length), kNoError);
  EXPECT_EQ(length, 0);
  EXPECT_EQ(files_.FileLength(folder_.Path("file.txt"), &length), kNoError);
  EXPECT_EQ(length, 70000);
  EXPECT_EQ(files_.LengthOfOpenFile(Input("file.txt"), &length), kNoError);
  EXPECT_EQ(length, 70000);
}

TEST_F(FilesTest, AFileThatIsOpenCanBeProbed) {
  folder_.WriteFile("file.txt", "x");
  EXPECT_EQ(files_.ProbeFile(folder_.Path("file.txt")), kNoError);
  Random("file.txt", 1);
  EXPECT_EQ(files_.ProbeFile(folder_.Path("file.txt")), kNoError);
}

TEST_F(FilesTest, TheDateOfAFileIsLocalTime) {
  folder_.WriteFile("file.txt", "x");
  double dateTime = 0;
  EXPECT_EQ(files_.FileDateTime(folder_.Path("file.txt"), &dateTime), kNoError);
  constexpr double kMinute = 1.0 / (24 * 60);
  EXPECT_NEAR(dateTime, Os().clock.Now(), kMinute);
}

TEST_F(FilesTest, ANameCanHoldAccentedLetters) {
  const std::string path = folder_.Path("caf\xE9 \x80.txt");
  const int16_t number = Number();
  EXPECT_EQ(files_.OpenForAppend(number, path), kNoError);
  EXPECT_EQ(files_.Write(number, "abc"), kNoError);
  EXPECT_EQ(files_.Close(number), kNoError);
  int64_t length = 0;
  EXPECT_EQ(files_.FileLength(path, &length), kNoError);
  EXPECT_EQ(length, 3);
}

TEST_F(FilesTest, NamesAreFoundWhateverTheirCase) {
  folder_.WriteFile("Mixed Case.Txt", "abc");
  int64_t length = 0;
  EXPECT_EQ(files_.FileLength(folder_.Path("MIXED CASE.TXT"), &length), kNoError);
  EXPECT_EQ(length, 3);
  EXPECT_EQ(files_.OpenForInput(Number(), folder_.Path("mixed case.txt")), kNoError);
}

TEST_F(FilesTest, EitherSeparatorServes) {
  std::filesystem::create_directory(folder_.Path("sub"));
  folder_.WriteFile("sub/file.txt", "abc");
  int64_t length = 0;
  EXPECT_EQ(files_.FileLength(folder_.Path() + "\\sub\\file.txt", &length), kNoError);
  EXPECT_EQ(files_.FileLength(folder_.Path() + "/sub\\file.txt", &length), kNoError);
  EXPECT_EQ(files_.FileLength(folder_.Path() + "/sub/file.txt", &length), kNoError);
}

TEST_F(FilesTest, AStampTellsAChangedFileFromTheSame) {
  const std::string path = folder_.Path("file.txt");
  EXPECT_EQ(files_.StampOf(path).error, kFileNotFound);
  folder_.WriteFile("file.txt", "abc");
  const FileStamp first = files_.StampOf(path);
  EXPECT_EQ(first.error, kNoError);
  EXPECT_EQ(first.size, 3);
  EXPECT_EQ(first, files_.StampOf(path));
  folder_.WriteFile("file.txt", "abcd");
  EXPECT_NE(first, files_.StampOf(path));
  const FileStamp folder = files_.StampOf(folder_.Path());
  EXPECT_TRUE(folder.isDirectory);
  folder_.WriteFile("other.txt", "");
  EXPECT_EQ(folder, files_.StampOf(folder_.Path())) << "what it holds does not count";
}

}  // namespace
}  // namespace logchecker
