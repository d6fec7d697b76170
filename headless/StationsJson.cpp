#include "headless/StationsReport.h"

namespace logchecker {

namespace {

class StationsJson : public StationsReport {
 public:
  void Begin(const std::vector<ListedStation>& /*stations*/, const Write& write) override {
    write("[\n");
  }

  void Add(const StationOutcome& outcome, const Write& write) override {
    if (!first_) write(",\n");
    first_ = false;
    // The line end behind a report waits for what comes then.
    bool endsLine = false;
    size_t position = 0;
    for (std::string_view bytes = outcome.json(position); !bytes.empty();
         bytes = outcome.json(position)) {
      position += bytes.size();
      if (endsLine) write("\n");
      endsLine = bytes.back() == '\n';
      if (endsLine) bytes.remove_suffix(1);
      write(bytes);
    }
  }

  void End(const Write& write) override { write("\n]\n"); }
  bool NeedsJson() const override { return true; }

 private:
  bool first_ = true;
};

}  // namespace

std::unique_ptr<StationsReport> MakeStationsJson() { return std::make_unique<StationsJson>(); }

}  // namespace logchecker
