#include "tests/support/ScriptedPlatform.h"

#include "tests/support/ScriptedFiles.h"

namespace logchecker {

namespace {

class ScriptedShell : public Shell {
 public:
  ScriptedShell(Shell& real, CallScript& script) : real_(real), script_(script) {}

  int32_t Run(const FileOperation& operation) override {
    const int32_t error = script_.Enter("Shell.Run");
    return error != 0 ? error : real_.Run(operation);
  }
  int32_t SpecialFolder(int32_t folderNumber, std::string* path) override {
    const int32_t error = script_.Enter("Shell.SpecialFolder");
    return error != 0 ? error : real_.SpecialFolder(folderNumber, path);
  }
  int32_t ShortPath(const std::string& path, std::string* shortPath) override {
    const int32_t error = script_.Enter("Shell.ShortPath");
    return error != 0 ? error : real_.ShortPath(path, shortPath);
  }

 private:
  Shell& real_;
  CallScript& script_;
};

class ScriptedProfiles : public ProfileFiles {
 public:
  ScriptedProfiles(ProfileFiles& real, CallScript& script) : real_(real), script_(script) {}

  ProfileState StateOf(const std::string& file) override {
    if (script_.Enter("Profiles.StateOf") != 0) return ProfileState::kRefused;
    return real_.StateOf(file);
  }
  std::string GetString(const std::string& section, const std::string& key,
                        const std::string& defaultValue, int32_t bufferSize,
                        const std::string& file) override {
    if (script_.Enter("Profiles.GetString") != 0) return defaultValue;
    return real_.GetString(section, key, defaultValue, bufferSize, file);
  }
  int32_t GetInt(const std::string& section, const std::string& key, int32_t defaultValue,
                 const std::string& file) override {
    if (script_.Enter("Profiles.GetInt") != 0) return defaultValue;
    return real_.GetInt(section, key, defaultValue, file);
  }
  int32_t WriteString(const std::string& section, const std::string& key, const std::string& value,
                      const std::string& file) override {
    const int32_t error = script_.Enter("Profiles.WriteString");
    return error != 0 ? error : real_.WriteString(section, key, value, file);
  }
  int32_t DeleteKey(const std::string& section, const std::string& key,
                    const std::string& file) override {
    const int32_t error = script_.Enter("Profiles.DeleteKey");
    return error != 0 ? error : real_.DeleteKey(section, key, file);
  }
  int32_t DeleteSection(const std::string& section, const std::string& file) override {
    const int32_t error = script_.Enter("Profiles.DeleteSection");
    return error != 0 ? error : real_.DeleteSection(section, file);
  }

 private:
  ProfileFiles& real_;
  CallScript& script_;
};

class ScriptedRegistry : public RegistryCalls {
 public:
  ScriptedRegistry(RegistryCalls& real, CallScript& script) : real_(real), script_(script) {}

  int32_t OpenKey(uint32_t root, const std::string& subKey, bool fullAccess,
                  RegistryKey* key) override {
    const int32_t error = script_.Enter("Registry.OpenKey");
    return error != 0 ? error : real_.OpenKey(root, subKey, fullAccess, key);
  }
  int32_t CreateKey(uint32_t root, const std::string& subKey, RegistryKey* key) override {
    const int32_t error = script_.Enter("Registry.CreateKey");
    return error != 0 ? error : real_.CreateKey(root, subKey, key);
  }
  void CloseKey(RegistryKey key) override { real_.CloseKey(key); }
  int32_t QueryType(RegistryKey key, const std::string& name, uint32_t* type,
                    uint32_t* size) override {
    const int32_t error = script_.Enter("Registry.QueryType");
    return error != 0 ? error : real_.QueryType(key, name, type, size);
  }
  int32_t QueryData(RegistryKey key, const std::string& name, uint32_t* type,
                    std::string* data) override {
    const int32_t error = script_.Enter("Registry.QueryData");
    return error != 0 ? error : real_.QueryData(key, name, type, data);
  }
  int32_t SetValue(RegistryKey key, const std::string& name, uint32_t type,
                   const std::string& data) override {
    const int32_t error = script_.Enter("Registry.SetValue");
    return error != 0 ? error : real_.SetValue(key, name, type, data);
  }
  int32_t DeleteValue(RegistryKey key, const std::string& name) override {
    const int32_t error = script_.Enter("Registry.DeleteValue");
    return error != 0 ? error : real_.DeleteValue(key, name);
  }

 private:
  RegistryCalls& real_;
  CallScript& script_;
};

class SettableClock : public Clock {
 public:
  SettableClock(Clock& real, const std::optional<double>& now) : real_(real), now_(now) {}

  double Now() override { return now_ ? *now_ : real_.Now(); }
  double UtcNow() override { return now_.value_or(real_.UtcNow()); }
  std::string ShortDate(int32_t day) override { return real_.ShortDate(day); }
  std::string LongDate(int32_t day) override { return real_.LongDate(day); }
  std::string MonthName(int32_t month, bool abbreviated) override {
    return real_.MonthName(month, abbreviated);
  }
  std::string WeekdayName(int32_t weekday, bool abbreviated) override {
    return real_.WeekdayName(weekday, abbreviated);
  }

 private:
  Clock& real_;
  const std::optional<double>& now_;
};

using FormatList = std::optional<std::vector<uint32_t>>;

class SettableWaveDevices : public WaveDevices {
 public:
  SettableWaveDevices(WaveDevices& real, CallScript& script, const FormatList& out,
                      const FormatList& in)
      : real_(real), script_(script), out_(out), in_(in) {}

  int32_t OutCount() override {
    return out_ ? static_cast<int32_t>(out_->size()) : real_.OutCount();
  }
  int32_t InCount() override { return in_ ? static_cast<int32_t>(in_->size()) : real_.InCount(); }
  int32_t OutFormats(int32_t index, uint32_t* formats) override {
    const int32_t error = script_.Enter("WaveDevices.OutFormats");
    if (error != 0) return error;
    return out_ ? FromList(*out_, index, formats) : real_.OutFormats(index, formats);
  }
  int32_t InFormats(int32_t index, uint32_t* formats) override {
    const int32_t error = script_.Enter("WaveDevices.InFormats");
    if (error != 0) return error;
    return in_ ? FromList(*in_, index, formats) : real_.InFormats(index, formats);
  }

 private:
  static int32_t FromList(const std::vector<uint32_t>& list, int32_t index, uint32_t* formats) {
    if (index < 0 || index >= static_cast<int32_t>(list.size())) return kInvalidCall;
    *formats = list[static_cast<size_t>(index)];
    return 0;
  }

  WaveDevices& real_;
  CallScript& script_;
  const FormatList& out_;
  const FormatList& in_;
};

class SettableSystemFacts : public SystemFacts {
 public:
  SettableSystemFacts(SystemFacts& real, const std::optional<std::string>& programFolder)
      : real_(real), programFolder_(programFolder) {}

  std::string ProgramFolder() override {
    return programFolder_ ? *programFolder_ : real_.ProgramFolder();
  }
  std::string ProgramName() override { return real_.ProgramName(); }
  std::string WindowsFolder() override { return real_.WindowsFolder(); }
  bool SetWindowsFolder(const std::string& folder) override {
    return real_.SetWindowsFolder(folder);
  }
  OSVERSIONINFO Version() override { return real_.Version(); }

 private:
  SystemFacts& real_;
  const std::optional<std::string>& programFolder_;
};

class ScriptedProcesses : public Processes {
 public:
  ScriptedProcesses(Processes& real, CallScript& script) : real_(real), script_(script) {}

  int32_t Processors() override { return real_.Processors(); }
  int32_t Start(const ChildOrder& order, int32_t* child) override {
    const int32_t error = script_.Enter("Processes.Start");
    return error != 0 ? error : real_.Start(order, child);
  }
  int32_t Wait(int32_t* child, ChildEnd* end) override {
    const int32_t error = script_.Enter("Processes.Wait");
    return error != 0 ? error : real_.Wait(child, end);
  }
  int32_t ReadOutput(int32_t child, int64_t position, std::string_view* bytes) override {
    const int32_t error = script_.Enter("Processes.ReadOutput");
    return error != 0 ? error : real_.ReadOutput(child, position, bytes);
  }
  void Release(int32_t child) override { real_.Release(child); }

 private:
  Processes& real_;
  CallScript& script_;
};

}  // namespace

struct ScriptedPlatform::Parts {
  explicit Parts(ScriptedPlatform& owner)
      : files(RealPlatform().files, owner.script),
        directories(RealPlatform().directories, owner.script),
        shell(RealPlatform().shell, owner.script),
        profiles(RealPlatform().profiles, owner.script),
        registry(RealPlatform().registry, owner.script),
        clock(RealPlatform().clock, owner.now),
        waveDevices(RealPlatform().waveDevices, owner.script, owner.waveOutFormats,
                    owner.waveInFormats),
        system(RealPlatform().system, owner.programFolder),
        processes(RealPlatform().processes, owner.script),
        platform{files, directories, shell,  profiles, registry,
                 clock, waveDevices, system, processes} {}

  ScriptedFiles files;
  ScriptedDirectories directories;
  ScriptedShell shell;
  ScriptedProfiles profiles;
  ScriptedRegistry registry;
  SettableClock clock;
  SettableWaveDevices waveDevices;
  SettableSystemFacts system;
  ScriptedProcesses processes;
  Platform platform;
};

ScriptedPlatform::ScriptedPlatform()
    : parts_(std::make_unique<Parts>(*this)), before_(UsePlatform(parts_->platform)) {}

ScriptedPlatform::~ScriptedPlatform() { UsePlatform(before_); }

}  // namespace logchecker
