#include <gtest/gtest.h>

#include <string>

#include "headless/pages/Html.h"
#include "headless/pages/Page.h"
#include "headless/pages/Sha256.h"

namespace logchecker {
namespace {

struct TextCase {
  const char* utf8;
  const char* html;
};

TEST(PageText, EachCharacterIsTextWhateverItIs) {
  const TextCase cases[] = {
      {"North & South", "North &amp; South"},
      {"</title><script>alert(1)</script>", "&lt;/title&gt;&lt;script&gt;alert(1)&lt;/script&gt;"},
      {"\" onclick='x'", "&quot; onclick=&#39;x&#39;"},
      {"&amp;", "&amp;amp;"},
      {"a\tb\r\nc", "a b  c"},
      {"\x1B[31m\x7F", "\\u001b[31m\\u007f"},
      {"\xC2\x9B", "\\u009b"},
      {"N\xC3\xB6rth \xE2\x82\xAC \xF0\x9F\x93\xBB", "N\xC3\xB6rth \xE2\x82\xAC \xF0\x9F\x93\xBB"},
      // Marks that turn the direction of text, or hide.
      {"\xE2\x80\xAE"
       "cba",
       "\\u202ecba"},
      {"\xE2\x81\xA6x\xE2\x81\xA9", "\\u2066x\\u2069"},
      {"\xD8\x9C\xE2\x80\x8F", "\\u061c\\u200f"},
      {"soft\xC2\xADhyphen\xEF\xBB\xBF", "soft\\u00adhyphen\\ufeff"},
      {"\xF3\xA0\x81\x81", "\\ue0041"},
      // No UTF-8: a stray byte, a cut character, a long form, a surrogate, one beyond the last.
      {"a\xF6z", "a\xEF\xBF\xBDz"},
      {"\xE2\x82", "\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xC0\xBC", "\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xE0\x80\xBC", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xF4\x90\x80\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
      // Characters that no page may hold.
      {"\xEF\xBF\xBE\xEF\xB7\x90", "\\ufffe\\ufdd0"},
  };
  for (const TextCase& text : cases) EXPECT_EQ(text.html, HtmlText(text.utf8));
  EXPECT_EQ("\\u0000", HtmlText(std::string(1, '\0')));
}

TEST(PageText, ATextKeepsItsDirectionToItself) {
  EXPECT_EQ("<bdi>\xD7\xA9 &lt;b&gt;</bdi>", Isolated("\xD7\xA9 <b>"));
}

TEST(PageText, ALongTextIsCutBetweenCharacters) {
  EXPECT_EQ("", Shortened("", 3));
  EXPECT_EQ("\xC3\xB6\xC3\xB6\xC3\xB6", Shortened("\xC3\xB6\xC3\xB6\xC3\xB6", 3));
  EXPECT_EQ("\xC3\xB6\xC3\xB6\xE2\x80\xA6", Shortened("\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6", 3));
}

TEST(PageText, ALongTextIsFoldedWithTheWholeBehindIt) {
  EXPECT_EQ("<bdi>" + std::string(kLongText, 'x') + "</bdi>", Folded(std::string(kLongText, 'x')));
  const std::string text(5000, 'x');
  EXPECT_EQ("<details><summary><bdi>" + std::string(kLongText - 1, 'x') +
                "\xE2\x80\xA6</bdi></summary><bdi>" + text + "</bdi></details>",
            Folded(text));
}

TEST(PageText, TheDigestOfAStyleIsSha256) {
  EXPECT_EQ("47DEQpj8HBSa+/TImW+5JCeuQeRkm5NMpJWZG3hSuFU=", Sha256Base64(""));
  EXPECT_EQ("ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0=", Sha256Base64("abc"));
  // Around the end of a block, where the length needs a block of its own.
  EXPECT_EQ("n0OQ+NMMLdkuyfCVtl4rmumwqSWlJY4kHJ8ekQ9zQxg=", Sha256Base64(std::string(55, 'a')));
  EXPECT_EQ("s1Q5pKxvCUi21vnjxq8PX1kM4g8b3nCQ73lwaG7Gc4o=", Sha256Base64(std::string(56, 'a')));
  EXPECT_EQ("/+BU/nrgy23GXDr5th1SCfQ5hR20PQulmXM33xVGaOs=", Sha256Base64(std::string(64, 'a')));
  EXPECT_EQ("zcduXJkU+5KBocfihNc+Z/GAmkiklyAOBG05zMcRLNA=",
            Sha256Base64(std::string(1000000, 'a')));
}

TEST(PageFrame, APageNamesItsOwnStyleAndAllowsNothingElse) {
  const std::string html = WholePage({"A & B", ".x { color: red; }\n", "<main>text</main>\n"});
  const size_t begin = html.find("<style>") + 7;
  const std::string style = html.substr(begin, html.find("</style>") - begin);
  EXPECT_NE(std::string::npos, style.find(".x { color: red; }\n"));
  EXPECT_NE(std::string::npos,
            html.find("content=\"default-src 'none'; style-src 'sha256-" + Sha256Base64(style) +
                      "'; base-uri 'none'; form-action 'none'\""));
  EXPECT_EQ(0U, html.find("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">"));
  EXPECT_NE(std::string::npos, html.find("<title>A &amp; B</title>"));
  EXPECT_NE(std::string::npos, html.find("<body>\n<main>text</main>\n</body>\n</html>\n"));
  // A browser counts the bytes that it reads, so none may be read in two ways.
  EXPECT_EQ(std::string::npos, style.find('\r'));
  for (const char c : style) ASSERT_LT(static_cast<unsigned char>(c), 0x80);
}

TEST(PageFrame, AStateHasAColourASignAndWords) {
  EXPECT_EQ(
      "<span class=\"badge match\"><span class=\"sign\" aria-hidden=\"true\">\xE2\x9C\x93</span> "
      "All match</span>",
      Badge(PageState::kMatch, "All match"));
  std::string before;
  for (const PageState state : {PageState::kMatch, PageState::kDiffers, PageState::kSee,
                                PageState::kNotChecked, PageState::kNoLog, PageState::kOld}) {
    const std::string badge = Badge(state, "x");
    const size_t sign = badge.find("true\">");
    EXPECT_EQ(std::string::npos, before.find(badge.substr(sign))) << "a sign of its own";
    before += badge;
  }
}

}  // namespace
}  // namespace logchecker
