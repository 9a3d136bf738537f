// The data file of a calculator, of any bytes: the first chooses the calculator, the others are the
// file. The window opens and takes all clicks; a file that it can't use fails, and is told.
#include <filesystem>
#include <iterator>
#include <string>

#include "../support/temporary_folder.h"
#include "driver/scripted_platform.h"
#include "frame/person.h"
#include "fuzz.h"
#include "shell/window_catalogue.h"

namespace {

using namespace korvane;

struct Reader {
  const char* window;
  const char* file;  ///< others that it needs are those of the program
};
constexpr Reader kReaders[] = {
    {"SPROCKET", "SPROCKET.dat"},
    {"V_BELT", "SHEAVES.dat"},
    {"V_BELT", "BELTDATA.DAT"},
    {"steamflo", "vapor-p.DAT"},
    {"SAFEVENT", "solvents.dat"},
    {"Valve_Cv", "Steam_Cv.dat"},
    {"voltage_drop", "conductors.dat"},
    {"Plate_Capacitors", "dielect.dat"},
    {"pipedata", "pipe.dat"},
    {"Sched40", "pipe.dat"},
    {"Hazard_Class", "Hazard_Class.dat"},
    {"Wbeams", "SHAPES.dat"},
    {"PERIODIC", "Elements.dat"},
    {"screws", "screw_threads.dat"},
    {"screws", "drillsiz.dat"},
    {"BLOWERS", "BLOWERS.dat"},
    {"BLOWERS", "BLOWERS2.dat"},
    {"SheetMet", "Sheet_Gauges.dat"},
};

/// Clicks every command but those that end the window, and chooses the last entry of every list.
void Work(Session& session, const char* name) {
  const Person person(session);
  for (std::size_t i = 0;; ++i) {
    Window* window = session.Find(name);
    if (window == nullptr || i == window->Controls().size()) return;
    Control& control = *window->Controls()[i];
    if (!control.IsVisible() || !control.IsEnabled()) continue;
    if (auto* choice = dynamic_cast<Choice*>(&control); choice != nullptr) {
      if (!choice->Items().empty())
        person.Selects(*choice, static_cast<int>(choice->Items().size()) - 1);
    } else if (dynamic_cast<FocusControl*>(&control) != nullptr) {
      person.Clicks(control);
    }
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static const testing::TemporaryFolder folder;
  const Reader& reader = kReaders[*data % std::size(kReaders)];
  folder.Write(reader.file, std::string(Bytes(data + 1, size - 1)));

  ScriptedPlatform platform;
  Session session(platform, WindowCatalogue(), KORVANE_SOURCE_DIR "/data");
  session.DataPath = folder.Path() + '/';
  platform.onModal = [&session](Window& modal) { Person(session).Closes(modal); };
  session.Handle([&] { session.Show(reader.window); });
  Work(session, reader.window);
  std::filesystem::remove(folder.File(reader.file));
  return 0;
}
