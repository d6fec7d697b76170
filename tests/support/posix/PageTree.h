// A page as a browser's parser understands it.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace logchecker {

struct PageElement {
  std::string name;
  std::map<std::string, std::string> attributes;
  std::string text;   // of its own and of all in it
  size_t parent = 0;  // its place in the list; its own for the first
};

struct PageTree {
  std::vector<PageElement> elements;  // in the order of the document
  size_t comments = 0;
  std::map<std::string, size_t> places;  // of elements by their ids
  std::set<std::string> doubled;         // ids that are there more than once
  size_t errors = 0;                     // of the parser, which repairs whatever it is given

  std::vector<PageElement> Named(const std::string& name) const;
  // Elements with that word among their classes.
  std::vector<PageElement> OfClass(const std::string& word) const;
  // The values of an attribute, of all elements that have it.
  std::vector<std::string> Values(const std::string& attribute) const;
  // Elements inside the element of this id, in order; nothing where there is none.
  std::vector<PageElement> Inside(const std::string& id) const;
  bool Has(const std::string& id) const;
};

PageTree ParsePage(const std::string& html);

}  // namespace logchecker
