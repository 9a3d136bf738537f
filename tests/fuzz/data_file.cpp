// A data file of any bytes, loaded into a calculator; what the calculator then saves is loaded too.
#include "../support/temporary_folder.h"
#include "driver/scripted_platform.h"
#include "frame/person.h"
#include "fuzz.h"
#include "shell/window_catalogue.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace korvane;
  static const testing::TemporaryFolder folder;
  const std::string path = folder.File("orifice.dta");
  folder.Write("orifice.dta", std::string(Bytes(data, size)));

  ScriptedPlatform platform;
  platform.onNotice = [](const std::string& notice) {
    Require(!notice.starts_with("! failure"));  // loading and saving tell their own failures
  };
  Session session(platform, WindowCatalogue(), "");
  Window& window = session.Show("FlowCalc");
  for (const char* command : {"Command4", "Command5", "Command4"}) {  // load, save, load
    platform.QueueFile(path);
    Person(session).Clicks(*window.Find(command));
  }
  return 0;
}
