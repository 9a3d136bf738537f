// Files of outlines that are spoilt: told, and nothing that stands in the window is lost.
#include <gtest/gtest.h>

#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

TEST(SectionFiles, AreReadWholeOrNotAtAll) {
  struct Case {
    const char* bytes;
    const char* told;  ///< nothing if it is taken
  };
  constexpr const char* invalid = "! message Korvane | Invalid data file.";
  constexpr const char* spoilt = "! message Korvane | Error reading data file.";
  const Case kCases[] = {
      {"SECTION PROPERTIES\r\nX,Y\r\n0,0\r\n4,0\r\n0,3\r\n", nullptr},
      {"SECTION PROPERTIES\nX,Y\n0 , 0\n\n4.50,0\n 0,3\n\n\n",
       "! message Korvane | The outline at "
       "point 1 has only 1 point; 3 are the "
       "least."},
      {"SECTION PROPERTY\r\nX,Y\r\n0,0\r\n4,0\r\n0,3\r\n", invalid},
      {"BEAMS\r\nSpan,3\r\n", invalid},
      {"", spoilt},
      {"SECTION PROPERTIES\r\n", spoilt},
      {"SECTION PROPERTIES\r\n0,0\r\n4,0\r\n0,3\r\n", spoilt},
      {"SECTION PROPERTIES\r\nX,Y\r\n0,0\r\n4\r\n0,3\r\n", spoilt},
      {"SECTION PROPERTIES\r\nX,Y\r\n0,0\r\n4,0,1\r\n0,3\r\n", spoilt},
      {"SECTION PROPERTIES\r\nX,Y\r\n0,0\r\n4,zero\r\n0,3\r\n", spoilt},
      {"SECTION PROPERTIES\r\nX,Y\r\n0,0\r\n4,1e400\r\n0,3\r\n", spoilt},
  };
  const TemporaryFolder folder;
  for (const Case& test : kCases) {
    SCOPED_TRACE(test.bytes);
    ScriptedSession suite;
    suite.Shows("Section_Properties");
    folder.Write("a.dta", test.bytes);
    suite.platform.QueueFile(folder.File("a.dta"));
    suite.Told();
    suite.person.Clicks(suite.Get("btn_load"));
    Lines wanted = {"! dialog open Load data... | section.dta"};
    if (test.told != nullptr) wanted.emplace_back(test.told);
    EXPECT_EQ(suite.Told(), wanted);
    const std::string& area = suite.Get<TextField>("txt_area").Text();
    const bool keeps = test.told == invalid || test.told == spoilt;
    EXPECT_EQ(area, test.told == nullptr ? "6" : keeps ? "3.25" : "");  // 3.25 was there before
  }
}

}  // namespace
}  // namespace korvane::testing
