// The desktop.
#include <string>

#include "common/Dates.h"
#include "platform/Endings.h"
#include "platform/StandardStreams.h"
#include "sample/SampleStation.h"
#include "shell/ui/Desktop.h"

int main(int argc, char** argv) {
  logchecker::JoinConsole();
  logchecker::HoldStandardStreams();
  logchecker::EndWithoutTemporaryFiles();
  return logchecker::RunDesktop(argc, argv, [](const std::string& folder) {
    logchecker::SampleStation station;
    // From tomorrow on, with some days to load.
    station.firstDay = logchecker::Today() + 1;
    station.days = 7;
    logchecker::WriteSampleStation(folder, station);
  });
}
