#include "printing/WholePdf.h"

#include <gtest/gtest.h>

#include <string>

namespace logchecker {
namespace {

const std::string kWhole =
    "%PDF-1.4\n1 0 obj\nendobj\nxref\n0 1\ntrailer\n<<\n>>\nstartxref\n24 \n%%EOF\n";

TEST(WholePdfTest, AFileWithItsTableAndItsTrailerIsWhole) { EXPECT_TRUE(IsWholePdf(kWhole)); }

TEST(WholePdfTest, AFileThatEndsAnywhereBeforeIsNot) {
  for (size_t length = 0; length < kWhole.size(); ++length) {
    EXPECT_FALSE(IsWholePdf(kWhole.substr(0, length))) << length;
  }
}

TEST(WholePdfTest, AFileThatLostSomethingOnTheWayIsNot) {
  for (size_t lost = 0; lost < kWhole.find("0 1\ntrailer"); ++lost) {
    std::string file = kWhole;
    file.erase(lost, 1);
    EXPECT_FALSE(IsWholePdf(file)) << lost;
  }
}

TEST(WholePdfTest, APlaceOutsideTheFileIsNone) {
  for (const char* place : {"99999", "99999999999999999999999", "-1", "x", ""}) {
    std::string file = kWhole;
    file.replace(file.find("24 "), 2, place);
    EXPECT_FALSE(IsWholePdf(file)) << place;
  }
}

}  // namespace
}  // namespace logchecker
