#include "headless/ReportReader.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "common/ErrorState.h"
#include "headless/ReportBytes.h"
#include "headless/ReportFields.h"
#include "platform/Platform.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

using Json = nlohmann::json;
using Place = ReportPlace;
using Shape = ReportShape;
using Value = ReportValue;

// Follows the parser through the text, keeps what belongs to a report and passes over the rest.
class Events final : public nlohmann::json_sax<Json> {
 public:
  Events(ReportBytes& bytes, const TakeReport& take) : bytes_(bytes), take_(take) {}

  bool null() override { return Scalar({}); }
  bool boolean(bool flag) override { return Scalar({Shape::kFlag, flag, 0, {}}); }
  bool number_integer(int64_t number) override {
    return Scalar({Shape::kNumber, false, number, {}});
  }
  bool number_unsigned(uint64_t number) override {
    if (number > INT64_MAX) return Scalar({Shape::kFraction, false, 0, {}});
    return Scalar({Shape::kNumber, false, static_cast<int64_t>(number), {}});
  }
  bool number_float(double /*number*/, const std::string& /*text*/) override {
    return Scalar({Shape::kFraction, false, 0, {}});
  }
  bool string(std::string& text) override {
    if (Passing()) return Note();
    return Scalar({Shape::kText, false, 0, std::move(text)});
  }
  bool binary(binary_t& /*bytes*/) override { return false; }
  bool start_object(size_t /*elements*/) override { return Start(Shape::kObject); }
  bool start_array(size_t /*elements*/) override { return Start(Shape::kList); }
  bool end_object() override { return End(); }
  bool end_array() override { return End(); }

  bool key(std::string& name) override {
    Note();
    if (Passing()) return true;
    Frame& frame = frames_.back();
    frame.field = FindReportField(frame.place, name);
    if (frame.field == nullptr) return true;
    if ((frame.seen & BitOf(*frame.field)) != 0) Fail(Quoted(*frame.field) + " stands twice");
    if (!Passing()) frame.seen |= BitOf(*frame.field);
    return true;
  }

  bool parse_error(size_t position, const std::string& /*last*/,
                   const nlohmann::detail::exception& /*error*/) override {
    const std::string byte = " at byte " + std::to_string(position);
    broken_ = !bytes_.failure().empty()   ? bytes_.failure()
              : position > bytes_.Count() ? "is cut off" + byte
                                          : "is no JSON" + byte;
    return false;
  }

  // Why the text could not be read to its end, or held nothing, if so.
  void Finish() {
    if (broken_.empty() && handedOver_ == 0) {
      inList_ = false;
      broken_ = "is a list without a report";
    }
    if (broken_.empty()) return;
    failure_ = std::exchange(broken_, "");
    HandOver();
  }

 private:
  struct Frame {
    Place place;
    const ReportField* field;  // whose value comes next; null for one that is passed over
    uint32_t seen;
  };

  static std::string Quoted(const ReportField& field) {
    return std::string("\"") + field.name + '"';
  }

  bool Note() {
    bytes_.NoteValue();
    return true;
  }

  // Inside something that is passed over: a detail, or the rest of a report that is no good.
  bool Passing() const { return passingFrom_ > 0; }
  static bool IsList(const Frame& frame) {
    return frame.place == Place::kDays || frame.place == Place::kWarnings ||
           frame.place == Place::kMismatches;
  }
  size_t DepthOfReports() const { return inList_ ? 1 : 0; }

  void Fail(const std::string& reason) {
    const std::string day = "day " + std::to_string(report_.days.size()) + ": ";
    failure_ = (frames_.size() > 1 && !report_.days.empty() ? day : "") + reason;
    frames_.clear();
    passingFrom_ = DepthOfReports() + 1;
  }

  bool Keep(size_t bytes) {
    kept_ += bytes;
    if (kept_ > kMostKeptOfAReport) Fail("holds more than 16 MiB of days and warnings");
    return !Passing();
  }

  bool Scalar(Value value) {
    Note();
    if (Passing()) return true;
    if (frames_.empty()) return NoReport();
    const Frame& frame = frames_.back();
    if (IsList(frame)) {
      Fail("a list holds something else than objects");
    } else if (frame.field != nullptr) {
      const ReportField& field = *frame.field;
      const bool fits =
          value.shape == field.shape || (value.shape == Shape::kNull && field.mayBeNull);
      if (!Keep(value.text.size())) return true;
      const std::string reason = fits ? field.take(report_, value) : "is of another type";
      if (!reason.empty()) Fail(Quoted(field) + " " + reason);
    }
    return true;
  }

  // A value in the place of a report.
  bool NoReport() {
    failure_ = "is no report";
    return HandOver();
  }

  bool Start(Shape shape) {
    Note();
    if (++depth_ > kDeepestReport) {
      broken_ = "is nested deeper than " + std::to_string(kDeepestReport);
      return false;
    }
    if (Passing()) return true;
    if (frames_.empty()) return StartOfReport(shape);
    const Frame& frame = frames_.back();
    if (IsList(frame)) {
      const Place inside = PlaceInList(frame.place);
      constexpr size_t kMemoryOfAnEntry = 160;
      if (shape == Shape::kList) {
        Fail("a list holds something else than objects");
      } else if (Keep(kMemoryOfAnEntry)) {
        BeginInReport(inside, report_);
        frames_.push_back({inside, nullptr, 0});
      }
    } else if (frame.field == nullptr) {
      passingFrom_ = depth_;
    } else if (frame.field->shape != shape) {
      Fail(Quoted(*frame.field) + " is of another type");
    } else {
      frames_.push_back({frame.field->inside, nullptr, 0});
    }
    return true;
  }

  bool StartOfReport(Shape shape) {
    if (shape == Shape::kList && depth_ == 1) {
      inList_ = true;
      return true;
    }
    report_ = {};
    kept_ = 0;
    frames_.push_back({Place::kReport, nullptr, 0});
    if (shape == Shape::kList) Fail("is no report");
    return true;
  }

  bool End() {
    Note();
    const size_t depth = depth_--;
    if (!Passing()) EndOfFrame();
    if (depth == passingFrom_) {
      passingFrom_ = 0;
      if (frames_.empty()) return HandOver();
    }
    return true;
  }

  // The list of reports has no frame. A report that is good is passed over from its own end on.
  void EndOfFrame() {
    if (frames_.empty()) return;
    const Frame frame = frames_.back();
    const std::string reason = IsList(frame) ? "" : EndInReport(frame.place, frame.seen, report_);
    if (!reason.empty()) {
      Fail(reason);
      return;
    }
    frames_.pop_back();
    if (frames_.empty()) passingFrom_ = DepthOfReports() + 1;
  }

  // False where it was the last that is read.
  bool HandOver() {
    ReportReading reading;
    ++handedOver_;
    if (failure_.empty()) {
      reading.report = std::exchange(report_, {});
    } else {
      const std::string which = inList_ ? "report " + std::to_string(handedOver_) + ": " : "";
      reading.failure = which + std::exchange(failure_, "");
    }
    bytes_.NoteReport();
    take_(std::move(reading));
    if (handedOver_ < kMostReportsInAList || !inList_) return true;
    broken_ = "is a list of more than " + std::to_string(kMostReportsInAList) + " reports";
    return false;
  }

  ReportBytes& bytes_;
  const TakeReport& take_;
  std::vector<Frame> frames_;
  ReadReport report_;
  std::string failure_;  // of the report that is being read
  std::string broken_;   // of the whole text
  bool inList_ = false;
  size_t depth_ = 0;
  size_t passingFrom_ = 0;  // the depth of what is passed over, 0 for nothing
  size_t kept_ = 0;
  size_t handedOver_ = 0;
};

}  // namespace

void ReadReports(const NextBytes& next, const TakeReport& take) {
  ReportBytes bytes(next);
  Events events(bytes, take);
  Json::sax_parse(ReportByteIterator(&bytes), ReportByteIterator(nullptr), &events);
  events.Finish();
}

ReportReading ReadOneReport(std::string_view bytes) {
  std::vector<ReportReading> readings;
  const auto next = [&bytes] { return std::exchange(bytes, {}); };
  ReadReports(next, [&](ReportReading&& reading) { readings.push_back(std::move(reading)); });
  if (readings.size() == 1) return readings[0];
  return {std::nullopt, readings.back().failure.empty() ? "is a list" : readings.back().failure};
}

void ReadReportFile(const std::string& path, const TakeReport& take) {
  Files& files = Os().files;
  int16_t number = 0;
  size_t shown = 0;
  int32_t error = files.FreeFile(&number);
  if (error == kNoError) error = files.OpenForInput(number, path);
  const auto next = [&] {
    std::string_view bytes;
    files.Skip(number, std::exchange(shown, 0));
    error = files.Peek(number, &bytes);
    shown = bytes.size();
    return bytes;
  };
  if (error == kNoError) {
    ReadReports(next, [&](ReportReading&& reading) {
      if (error == kNoError) take(std::move(reading));
    });
  }
  if (error != kNoError) take({std::nullopt, "can't be read: " + ToUtf8(ErrorText(error))});
  files.Close(number);
}

}  // namespace logchecker
