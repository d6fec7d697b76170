#include "platform/posix/ProfileText.h"

#include <algorithm>

#include "platform/StationText.h"

namespace logchecker {

namespace {

bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string_view WithoutQuotes(std::string_view text) {
  const bool quoted = text.size() >= 2 && (text.front() == '"' || text.front() == '\'') &&
                      text.back() == text.front();
  return quoted ? text.substr(1, text.size() - 2) : text;
}

std::string KeyName(const std::string& upperSection, const std::string& upperKey) {
  return upperSection + '\0' + upperKey;
}

std::string FoldName(const std::string& name) { return ToUpper(TrimBlanks(name)); }

}  // namespace

ProfileText::ProfileText(std::string_view fileBytes)
    : encoding_(EncodingOfProfile(fileBytes)), halfUnit_(HalfUnit(fileBytes, encoding_)) {
  const std::string decoded = DecodeProfile(fileBytes, encoding_);
  std::string_view bytes = decoded;
  const size_t firstEnd = bytes.find('\n');
  if (firstEnd != std::string_view::npos && (firstEnd == 0 || bytes[firstEnd - 1] != '\r')) {
    lineEnd_ = "\n";
  }
  while (!bytes.empty()) {
    size_t length = bytes.find('\n');
    length = length == std::string_view::npos ? bytes.size() : length + 1;
    lines_.push_back(ParseLine(bytes.substr(0, length)));
    bytes.remove_prefix(length);
  }
  IndexLines();
}

std::string ProfileText::ForLine(std::string_view stationText) const {
  return encoding_ == ProfileEncoding::kStation ? std::string(stationText) : ToUtf8(stationText);
}

ProfileText::Line ProfileText::ParseLine(std::string_view bytes) const {
  Line line;
  line.bytes = bytes;
  std::string stationText = line.bytes;
  if (encoding_ != ProfileEncoding::kStation) FromUtf8(bytes, &stationText);
  const std::string_view text = TrimBlanks(stationText);
  if (text.empty() || text.front() == ';') return line;
  if (text.front() == '[') {
    // The name ends at the first bracket, or with the line where there is none.
    line.isSection = true;
    line.name = ToUpper(TrimBlanks(text.substr(1, text.find(']') - 1)));
    return line;
  }
  const size_t equals = text.find('=');
  if (equals == std::string_view::npos) return line;
  line.name = ToUpper(TrimBlanks(text.substr(0, equals)));
  line.value = WithoutQuotes(TrimBlanks(text.substr(equals + 1)));
  return line;
}

void ProfileText::IndexLines() {
  sections_.clear();
  keys_.clear();
  const std::string* section = nullptr;
  for (size_t i = 0; i < lines_.size(); ++i) {
    const Line& line = lines_[i];
    if (line.isSection) {
      section = sections_.emplace(line.name, i).second ? &line.name : nullptr;
    } else if (section != nullptr && !line.name.empty()) {
      keys_.emplace(KeyName(*section, line.name), i);
    }
  }
}

size_t ProfileText::SectionLine(const std::string& section) const {
  const auto place = sections_.find(FoldName(section));
  return place == sections_.end() ? kNone : place->second;
}

size_t ProfileText::KeyLine(const std::string& section, const std::string& key) const {
  const auto place = keys_.find(KeyName(FoldName(section), FoldName(key)));
  return place == keys_.end() ? kNone : place->second;
}

const std::string* ProfileText::Find(const std::string& section, const std::string& key) const {
  const size_t line = KeyLine(section, key);
  return line == kNone ? nullptr : &lines_[line].value;
}

void ProfileText::EndLastLine() {
  if (!lines_.empty() && (lines_.back().bytes.empty() || lines_.back().bytes.back() != '\n')) {
    lines_.back().bytes += lineEnd_;
  }
}

void ProfileText::Set(const std::string& section, const std::string& key,
                      const std::string& value) {
  const size_t present = KeyLine(section, key);
  // A key that is there keeps its spelling.
  const std::string name = present == kNone
                               ? ForLine(key)
                               : lines_[present].bytes.substr(0, lines_[present].bytes.find('='));
  const Line line = ParseLine(std::string(TrimBlanks(name)) + "=" + ForLine(value) + lineEnd_);
  if (present != kNone) {
    lines_[present] = line;
  } else {
    EndLastLine();
    size_t place = SectionLine(section);
    if (place == kNone) {
      lines_.push_back(ParseLine("[" + ForLine(TrimBlanks(section)) + "]" + lineEnd_));
      place = lines_.size();
    } else {
      // Behind the section's last line that says something, ahead of the gap to the next section.
      size_t end = place + 1;
      for (size_t i = end; i < lines_.size() && !lines_[i].isSection; ++i) {
        if (!TrimBlanks(lines_[i].bytes).empty()) end = i + 1;
      }
      place = end;
    }
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place), line);
  }
  IndexLines();
}

void ProfileText::DeleteKey(const std::string& section, const std::string& key) {
  const size_t line = KeyLine(section, key);
  if (line == kNone) return;
  lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(line));
  IndexLines();
}

void ProfileText::DeleteSection(const std::string& section) {
  const size_t first = SectionLine(section);
  if (first == kNone) return;
  size_t last = first + 1;
  while (last < lines_.size() && !lines_[last].isSection) ++last;
  // Comments stay: they may well be about the section that follows.
  const auto begin = lines_.begin() + static_cast<std::ptrdiff_t>(first);
  const auto end = lines_.begin() + static_cast<std::ptrdiff_t>(last);
  lines_.erase(std::remove_if(begin, end,
                              [](const Line& line) {
                                const std::string_view text = TrimBlanks(line.bytes);
                                return text.empty() || text.front() != ';';
                              }),
               end);
  IndexLines();
}

std::string ProfileText::Bytes() const {
  std::string bytes;
  for (const Line& line : lines_) bytes += line.bytes;
  return EncodeProfile(bytes, encoding_) + halfUnit_;
}

}  // namespace logchecker
