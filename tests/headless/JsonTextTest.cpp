#include "headless/JsonText.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace logchecker {
namespace {

using Json = nlohmann::ordered_json;

TEST(JsonText, WhatHoldsPlainValuesIsOneLine) {
  EXPECT_EQ("{\"a\": 1, \"b\": [], \"c\": null}\n",
            JsonText({{"a", 1}, {"b", Json::array()}, {"c", nullptr}}));
  EXPECT_EQ("[1, \"x\"]\n", JsonText(Json::array({1, "x"})));
  EXPECT_EQ("[]\n", JsonText(Json::array()));
  EXPECT_EQ("{}\n", JsonText(Json::object()));
  EXPECT_EQ("0.5\n", JsonText(0.5));
}

TEST(JsonText, WhatHoldsOthersHasALineForEach) {
  const Json adverts = Json::array({{{"row", 1}, {"audio", true}}, {{"row", 2}, {"audio", false}}});
  EXPECT_EQ(
      "{\n  \"name\": \"x\",\n  \"splits\": [\n    null,\n    [\n"
      "      {\"row\": 1, \"audio\": true},\n      {\"row\": 2, \"audio\": false}\n    ]\n  ]\n}\n",
      JsonText({{"name", "x"}, {"splits", Json::array({nullptr, adverts})}}));
}

TEST(JsonText, IsReadBackAsWhatItWas) {
  const Json json = {{"a\n\"", Json::array({1.25, -3, true, Json::object(), "\x01\x7F\xC2\x85"})},
                     {"b", {{"c", {{"d", Json::array({Json::array(), nullptr})}}}}}};
  EXPECT_EQ(json, Json::parse(JsonText(json)));
}

TEST(JsonText, NoControlCharacterStandsAsItIs) {
  EXPECT_EQ("\"\\u0001\\u007f\\u0080\\u009f\xC2\xA0\"\n",
            JsonText("\x01\x7F\xC2\x80\xC2\x9F\xC2\xA0"));
}

}  // namespace
}  // namespace logchecker
