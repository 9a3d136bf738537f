// The elements' places in the chart, and what their file may hold.
#include "materials/elements.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "../frame/failure_of.h"

namespace korvane::testing {
namespace {

TEST(Elements, StandInTheUsualChart) {
  struct Case {
    int number, row, column;
  };
  for (const auto& [number, row, column] : std::initializer_list<Case>{{1, 1, 1},
                                                                       {2, 1, 18},
                                                                       {4, 2, 2},
                                                                       {5, 2, 13},
                                                                       {21, 4, 3},
                                                                       {36, 4, 18},
                                                                       {56, 6, 2},
                                                                       {57, 8, 3},
                                                                       {71, 8, 17},
                                                                       {72, 6, 4},
                                                                       {89, 9, 3},
                                                                       {103, 9, 17},
                                                                       {104, 7, 4},
                                                                       {118, 7, 18}}) {
    EXPECT_EQ(PlaceOf(number).row, row) << number;
    EXPECT_EQ(PlaceOf(number).column, column) << number;
  }
  EXPECT_EQ(PeriodOf(71), 6);
  EXPECT_EQ(PeriodOf(103), 7);
  std::set<std::pair<int, int>> places;
  for (int number = 1; number <= 118; ++number)
    places.emplace(PlaceOf(number).row, PlaceOf(number).column);
  EXPECT_EQ(places.size(), 118u);
}

TEST(Elements, AreReadStrictly) {
  const auto failure = [](const std::string& record) {
    return FailureOf([&] { ParseElements("Title\r\n" + record); });
  };
  EXPECT_EQ(failure(""), kInputPastEnd);
  EXPECT_EQ(failure(R"(1,"H","Hydrogen","1","nonmetal","1","-2","-1","1s1","2","cubic")"),
            kInputPastEnd);
  EXPECT_EQ(failure(R"(2,"He")"), kInvalidCall);
  EXPECT_EQ(failure(R"(1,"H","Hydrogen","1","noble")"), kInvalidCall);
  EXPECT_EQ(failure(R"(1,"H","Hydrogen","1","nonmetal","light")"), kTypeMismatch);
  EXPECT_EQ(failure(R"(1,"H","Hydrogen","1","nonmetal","1","cold")"), kTypeMismatch);
}

}  // namespace
}  // namespace korvane::testing
