// The data file of a calculator, of any bytes: the first chooses the calculator, the others are the
// file. The window opens and takes all clicks; a file that it can't use fails, and is told.
#include <array>
#include <string_view>

#include "../support/temporary_folder.h"
#include "driver/scripted_platform.h"
#include "frame/person.h"
#include "fuzz.h"
#include "shell/window_catalogue.h"

namespace {

using namespace korvane;

struct Reader {
  const char* window;
  std::vector<const char*> files;
};
const std::array kReaders = {Reader{"SPROCKET", {"SPROCKET.dat"}},
                             Reader{"V_BELT", {"SHEAVES.dat", "BELTDATA.DAT", "NEMAFRAM.DAT"}},
                             Reader{"steamflo", {"vapor-p.DAT"}},
                             Reader{"SAFEVENT", {"solvents.dat"}},
                             Reader{"Valve_Cv", {"Steam_Cv.dat"}},
                             Reader{"voltage_drop", {"conductors.dat"}},
                             Reader{"Plate_Capacitors", {"dielect.dat"}},
                             Reader{"pipedata", {"pipe.dat"}},
                             Reader{"Sched40", {"pipe.dat"}},
                             Reader{"Hazard_Class", {"Hazard_Class.dat"}}};

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
  const Reader& reader = kReaders[*data % kReaders.size()];
  for (const char* file : reader.files) folder.Write(file, std::string(Bytes(data + 1, size - 1)));

  ScriptedPlatform platform;
  Session session(platform, WindowCatalogue(), "");
  session.DataPath = folder.Path() + '/';
  platform.onModal = [&session](Window& modal) { Person(session).Closes(modal); };
  session.Handle([&] { session.Show(reader.window); });
  Work(session, reader.window);
  return 0;
}
