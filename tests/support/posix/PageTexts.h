// Reports whose texts are anybody's, and what a page may make of them.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "headless/Reports.h"
#include "tests/support/posix/PageTree.h"

namespace logchecker {

// A report of a day with every kind of text in it, each as `text` gives it (station text); and of a
// second day that could not be checked.
CheckReport ReportWithTexts(const std::function<std::string()>& text);

// Whether two pages have the same elements with the same attributes, which differ in nothing but
// text: that of elements, and of the attributes that hold some.
bool DifferInTextAlone(const PageTree& one, const PageTree& other);

// As many letters as the text has characters: a text that can do no harm.
std::string Harmless(const std::string& stationText);

}  // namespace logchecker
