#include "tests/support/posix/PageTree.h"

#include <gumbo.h>

#include <algorithm>
#include <sstream>

namespace logchecker {

namespace {

std::string NameOf(const GumboElement& element) {
  if (element.tag != GUMBO_TAG_UNKNOWN) return gumbo_normalized_tagname(element.tag);
  GumboStringPiece name = element.original_tag;
  gumbo_tag_from_original_text(&name);
  return {name.data, name.length};
}

void AddText(PageTree& tree, size_t element, const char* text) {
  for (size_t i = element;; i = tree.elements[i].parent) {
    tree.elements[i].text += text;
    if (tree.elements[i].parent == i) return;
  }
}

void Add(PageTree& tree, const GumboNode& node, size_t parent) {
  if (node.type == GUMBO_NODE_COMMENT) ++tree.comments;
  const bool isText = node.type == GUMBO_NODE_TEXT || node.type == GUMBO_NODE_WHITESPACE ||
                      node.type == GUMBO_NODE_CDATA;
  if (isText) AddText(tree, parent, node.v.text.text);
  if (node.type != GUMBO_NODE_ELEMENT) return;
  const GumboElement& element = node.v.element;
  PageElement found;
  found.name = NameOf(element);
  for (unsigned int i = 0; i < element.attributes.length; ++i) {
    const auto* attribute = static_cast<const GumboAttribute*>(element.attributes.data[i]);
    found.attributes[attribute->name] = attribute->value;
  }
  const size_t place = tree.elements.size();
  found.parent = place == 0 ? 0 : parent;
  const auto id = found.attributes.find("id");
  if (id != found.attributes.end() && !tree.places.emplace(id->second, place).second) {
    tree.doubled.insert(id->second);
  }
  tree.elements.push_back(std::move(found));
  for (unsigned int i = 0; i < element.children.length; ++i) {
    Add(tree, *static_cast<const GumboNode*>(element.children.data[i]), place);
  }
}

}  // namespace

PageTree ParsePage(const std::string& html) {
  PageTree tree;
  GumboOptions options = kGumboDefaultOptions;
  options.max_errors = 100;
  GumboOutput* output = gumbo_parse_with_options(&options, html.data(), html.size());
  tree.errors = output->errors.length;
  const GumboDocument& document = output->document->v.document;
  for (unsigned int i = 0; i < document.children.length; ++i) {
    Add(tree, *static_cast<const GumboNode*>(document.children.data[i]), 0);
  }
  gumbo_destroy_output(&options, output);
  return tree;
}

std::vector<PageElement> PageTree::Named(const std::string& name) const {
  std::vector<PageElement> found;
  std::copy_if(elements.begin(), elements.end(), std::back_inserter(found),
               [&](const PageElement& element) { return element.name == name; });
  return found;
}

std::vector<PageElement> PageTree::OfClass(const std::string& word) const {
  std::vector<PageElement> found;
  for (const PageElement& element : elements) {
    const auto classes = element.attributes.find("class");
    if (classes == element.attributes.end()) continue;
    std::istringstream words(classes->second);
    for (std::string one; words >> one;) {
      if (one == word) found.push_back(element);
    }
  }
  return found;
}

std::vector<std::string> PageTree::Values(const std::string& attribute) const {
  std::vector<std::string> values;
  for (const PageElement& element : elements) {
    const auto found = element.attributes.find(attribute);
    if (found != element.attributes.end()) values.push_back(found->second);
  }
  return values;
}

std::vector<PageElement> PageTree::Inside(const std::string& id) const {
  std::vector<PageElement> found;
  const auto root = places.find(id);
  if (root == places.end()) return found;
  // Those of one branch stand together, behind its root.
  for (size_t i = root->second + 1; i < elements.size(); ++i) {
    if (elements[i].parent < root->second) break;
    found.push_back(elements[i]);
  }
  return found;
}

bool PageTree::Has(const std::string& id) const {
  return places.count(id) > 0 && doubled.count(id) == 0;
}

}  // namespace logchecker
