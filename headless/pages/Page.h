// The frame of every page: one file with all in it, which runs nothing and fetches nothing.
#pragma once

#include <string>
#include <string_view>

namespace logchecker {

struct Page {
  std::string title;       // UTF-8, as text
  std::string_view style;  // what this kind of page adds to the common style; ASCII
  std::string body;        // markup
};

// The page as UTF-8. Its content security policy allows nothing but its own style, named by its
// hash, so that even markup that came in some way could neither run nor fetch; style attributes are
// shut out with it.
std::string WholePage(const Page& page);

// What a day, or a station, has come to. Each has a colour, a sign and words.
enum class PageState {
  kMatch,       // all compared, and all right
  kDiffers,     // a mismatch
  kSee,         // something else for a person to mend
  kNotChecked,  // could not be checked
  kNoLog,       // no log yet
  kOld,         // too old to be believed
};

// "match", "differs", "see", "trouble", "no-log", "old": the class that gives the colour.
const char* ClassOf(PageState state);

// A sign for the state, so that colour is not all that tells it. A screen reader does not see it:
// words must stand beside it.
std::string Sign(PageState state);

// The state's sign and then `html`, in one element of the state's class.
std::string Badge(PageState state, std::string_view html);

// A box for what may be wider than the page; it scrolls in itself, by keyboard too. `label` is
// text.
std::string ScrollBox(std::string_view label, std::string_view html);

}  // namespace logchecker
