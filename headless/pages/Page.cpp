#include "headless/pages/Page.h"

#include "headless/pages/Html.h"
#include "headless/pages/Sha256.h"
#include "headless/pages/Style.h"

namespace logchecker {

namespace {

// Symbols of a text font; none that a system draws as a coloured picture.
const char* SignOf(PageState state) {
  switch (state) {
    case PageState::kMatch:
      return "\xE2\x9C\x93";  // check mark
    case PageState::kDiffers:
      return "\xE2\x89\xA0";  // not equal
    case PageState::kSee:
      return "!";
    case PageState::kNotChecked:
      return "\xC3\x97";  // times
    case PageState::kNoLog:
      return "\xE2\x80\x93";  // dash
    default:
      return "\xE2\x97\xB7";  // clock hand
  }
}

}  // namespace

const char* ClassOf(PageState state) {
  switch (state) {
    case PageState::kMatch:
      return "match";
    case PageState::kDiffers:
      return "differs";
    case PageState::kSee:
      return "see";
    case PageState::kNotChecked:
      return "trouble";
    case PageState::kNoLog:
      return "no-log";
    default:
      return "old";
  }
}

std::string Sign(PageState state) {
  return std::string("<span class=\"sign\" aria-hidden=\"true\">") + SignOf(state) + "</span>";
}

std::string Badge(PageState state, std::string_view html) {
  return std::string("<span class=\"badge ") + ClassOf(state) + "\">" + Sign(state) + " " +
         std::string(html) + "</span>";
}

std::string ScrollBox(std::string_view label, std::string_view html) {
  return "<div class=\"scroll\" role=\"group\" tabindex=\"0\" aria-label=\"" + HtmlText(label) +
         "\">" + std::string(html) + "</div>\n";
}

std::string WholePage(const Page& page) {
  const std::string style = std::string(CommonStyle()) + std::string(page.style);
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
      "style-src 'sha256-" +
      Sha256Base64(style) +
      "'; base-uri 'none'; form-action 'none'\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<meta name=\"color-scheme\" content=\"light dark\">\n<title>";
  html += HtmlText(page.title) + "</title>\n<style>" + style + "</style>\n</head>\n<body>\n";
  return html + page.body + "</body>\n</html>\n";
}

}  // namespace logchecker
