// Limits of threads against those that are printed, and what the file of threads may hold.
#include "mechanical/threads.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "../frame/failure_of.h"
#include "frame/files.h"

namespace korvane::testing {
namespace {

std::string DataFile(const char* name) {
  return ReadFile(std::string(KORVANE_SOURCE_DIR) + "/data/" + name);
}

constexpr double kNotPrinted = 0;

struct Printed {
  const char* thread;
  ThreadClass threadClass;
  double majorMax, majorMin, pitchMax, pitchMin;        ///< external
  double minorLeast, minorMost, pitchLeast, pitchMost;  ///< internal
};

constexpr auto kLoose = ThreadClass::Loose;
constexpr auto kUsual = ThreadClass::Usual;
constexpr auto kClose = ThreadClass::Close;

// Charts of ASME B1.1 and of ISO 965-2 and ASME B1.13M, as handbooks and makers print them.
constexpr Printed kPrinted[] = {
    {"0-80 UNF", kUsual, .0595, .0563, .0514, .0496, .0465, .0514, .0519, .0542},
    {"0-80 UNF", kClose, .0600, .0568, .0519, .0506, .0465, .0514, .0519, .0536},
    {"1-64 UNC", kUsual, .0724, .0686, .0623, .0603, .0561, .0623, .0629, .0655},
    {"1-72 UNF", kUsual, .0724, .0689, .0634, .0615, .0580, .0635, .0640, .0665},
    {"1-72 UNF", kClose, .0730, .0695, .0640, .0626, .0580, .0635, .0640, .0659},
    {"2-56 UNC", kClose, .0860, .0819, .0744, .0728, .0667, .0737, .0744, .0765},
    {"3-48 UNC", kUsual, .0983, .0938, .0848, .0825, .0764, .0845, .0855, .0885},
    {"5-40 UNC", kUsual, kNotPrinted, 0, 0, 0, .0979, .1062, .1088, .1121},
    {"6-32 UNC", kUsual, kNotPrinted, 0, 0, 0, .104, .114, .1177, .1214},
    {"10-24 UNC", kUsual, kNotPrinted, 0, 0, 0, .145, .156, .1629, .1672},
    {"1/4-20 UNC", kUsual, .2489, .2408, .2164, .2127, .196, .207, .2175, .2224},
    {"1/4-20 UNC", kClose, .2500, .2419, .2175, .2147, .1960, .2067, .2175, .2211},
    {"3/8-16 UNC", kUsual, .3737, .3643, .3331, .3287, .307, .321, .3344, .3401},
    {"3/8-16 UNC", kClose, .3750, .3656, .3344, .3311, .3070, .3182, .3344, .3387},
    {"1/2-13 UNC", kUsual, .4985, .4876, .4485, .4435, .417, .434, .4500, .4565},
    {"1/2-13 UNC", kClose, .5000, .4891, .4500, .4463, .4170, .4284, .4500, .4548},
    {"5/8-11 UNC", kLoose, .6234, .6052, .5644, .5561, .527, .546, .5660, .5767},
    {"5/8-11 UNC", kClose, .6250, .6129, .5660, .5619, .5270, .5391, .5660, .5714},
    {"5/8-18 UNF", kLoose, .6236, .6105, .5875, .5805, .565, .578, .5889, .5980},
    {"5/8-18 UNF", kClose, .6250, .6163, .5889, .5854, .5650, .5730, .5889, .5934},
    {"5/8-24 UNEF", kUsual, .6238, .6166, .5967, .5927, .580, .590, .5979, .6031},
    {"15/16-20 UNEF", kUsual, .9361, .9280, .9036, .8991, .883, .895, .9050, .9109},
    {"1-8 UNC", kUsual, kNotPrinted, 0, 0, 0, .865, .890, .9188, .9276},
    {"1-1/2-6 UNC", kUsual, kNotPrinted, 0, 0, 0, 1.320, 1.350, 1.3917, 1.4022},
    {"1-3/4-5 UNC", kUsual, kNotPrinted, 0, 0, 0, 1.534, 1.568, 1.6201, 1.6317},
    {"2-4.5 UNC", kUsual, kNotPrinted, 0, 0, 0, 1.759, 1.795, 1.8557, 1.8681},
    {"3-4 UNC", kUsual, kNotPrinted, 0, 0, 0, 2.729, 2.767, 2.8376, 2.8515},
    {"M1.6 x 0.35", kUsual, 1.581, 1.496, 1.354, 1.291, 1.221, 1.321, 1.373, 1.458},
    {"M3 x 0.5", kUsual, 2.980, 2.874, 2.655, 2.580, 2.459, 2.599, 2.675, 2.775},
    {"M5 x 0.8", kUsual, 4.976, 4.826, 4.456, 4.361, 4.134, 4.334, 4.480, 4.605},
    {"M6 x 1", kUsual, 5.974, 5.794, 5.324, 5.212, 4.917, 5.153, 5.350, 5.500},
    {"M10 x 1.5", kUsual, 9.968, 9.732, 8.994, 8.862, 8.376, 8.676, 9.026, 9.206},
    {"M10 x 1.25", kUsual, kNotPrinted, 0, 0, 0, 8.647, 8.912, 9.188, 9.348},
    {"M12 x 1.75", kUsual, kNotPrinted, 0, 0, 0, 10.106, 10.441, 10.863, 11.063},
    {"M12 x 1.25", kUsual, kNotPrinted, 0, 0, 0, 10.647, 10.912, 11.188, 11.368},
    {"M14 x 2", kUsual, kNotPrinted, 0, 0, 0, 11.835, 12.210, 12.701, 12.913},
};

TEST(Threads, HaveTheLimitsThatArePrinted) {
  const std::vector<Thread> threads = ParseThreads(DataFile(kThreadFile));
  for (const Printed& printed : kPrinted) {
    SCOPED_TRACE(printed.thread);
    const auto thread = std::ranges::find(threads, printed.thread, &Thread::Name);
    ASSERT_NE(thread, threads.end());
    const ThreadLimits limits = thread->Limits(printed.threadClass);
    const auto near = [](Double value, double told) {
      if (told != kNotPrinted) {
        EXPECT_NEAR(value.Value(), told, 0.00001);
      }
    };
    near(limits.externalMajorMax, printed.majorMax);
    near(limits.externalMajorMin, printed.majorMin);
    near(limits.externalPitchMax, printed.pitchMax);
    near(limits.externalPitchMin, printed.pitchMin);
    near(limits.internalMinorMin, printed.minorLeast);
    near(limits.internalMinorMax, printed.minorMost);
    near(limits.internalPitchMin, printed.pitchLeast);
    near(limits.internalPitchMax, printed.pitchMost);
  }
}

// Grades beside 6, in micrometers: the tables of ISO 965-1.
TEST(Threads, TakeOtherGradesFromTheirSeries) {
  const std::vector<Thread> threads = ParseThreads(DataFile(kThreadFile));
  struct Row {
    const char* thread;
    ThreadClass threadClass;
    int external, major, internal, minor;
  };
  for (const Row& row : {Row{"M2 x 0.4", kClose, 42, 60, 71, 90},
                         {"M3 x 0.5", kClose, 48, 67, 80, 112},
                         {"M10 x 1.5", kClose, 85, 150, 140, 236},
                         {"M10 x 1.5", kLoose, 212, 375, 224, 375},
                         {"M8 x 1.25", kLoose, 190, 335, 200, 335},
                         {"M64 x 6", kLoose, 450, 950, 475, 1000}}) {
    SCOPED_TRACE(row.thread);
    const auto thread = std::ranges::find(threads, row.thread, &Thread::Name);
    ASSERT_NE(thread, threads.end());
    const ThreadLimits limits = thread->Limits(row.threadClass);
    const auto micrometers = [](Double wide, Double narrow) {
      return static_cast<int>((wide - narrow).Value() * 1000 + 0.5);
    };
    EXPECT_EQ(micrometers(limits.externalPitchMax, limits.externalPitchMin), row.external);
    EXPECT_EQ(micrometers(limits.externalMajorMax, limits.externalMajorMin), row.major);
    EXPECT_EQ(micrometers(limits.internalPitchMax, limits.internalPitchMin), row.internal);
    EXPECT_EQ(micrometers(limits.internalMinorMax, limits.internalMinorMin), row.minor);
  }
}

// Every thread can be made: limits of all classes in their order, screw within nut.
TEST(Threads, FitTogether) {
  for (const Thread& thread : ParseThreads(DataFile(kThreadFile))) {
    for (const ThreadClass one : {kLoose, kUsual, kClose}) {
      if (!thread.Has(one)) continue;
      SCOPED_TRACE(thread.Name() + ' ' + NameOf(one, thread.metric));
      const ThreadLimits limits = thread.Limits(one);
      EXPECT_LT(limits.externalMajorMin, limits.externalMajorMax);
      EXPECT_LE(limits.externalMajorMax, limits.internalMajorMin);
      EXPECT_LT(limits.externalPitchMin, limits.externalPitchMax);
      EXPECT_LE(limits.externalPitchMax, limits.internalPitchMin);
      EXPECT_LT(limits.internalPitchMin, limits.internalPitchMax);
      EXPECT_LT(limits.externalMinorMax, limits.internalMinorMin);
      EXPECT_LT(limits.internalMinorMin, limits.internalMinorMax);
      EXPECT_LT(limits.internalMinorMax, limits.internalPitchMin);
    }
  }
}

TEST(Threads, FailForWhatTheFileMayNotHold) {
  const std::string whole = DataFile(kThreadFile);
  const auto failureOf = [](const std::string& text) {
    return FailureOf([&text] { ParseThreads(text); });
  };
  EXPECT_EQ(failureOf("comment\r\n"), kInputPastEnd);
  EXPECT_EQ(failureOf(whole.substr(0, whole.size() / 3)), kInputPastEnd);
  EXPECT_EQ(failureOf("c\r\nwhitworth,1/4,BSW,0.25,20\r\n"), kInvalidCall);
  EXPECT_EQ(failureOf("c\r\nunified,1/4,UNC,0.25,0\r\n"), kInvalidCall);
  EXPECT_EQ(failureOf("c\r\nunified,1/4,UNC,0.25,4\r\n"), kInvalidCall);
  EXPECT_EQ(failureOf("c\r\nunified,1/4,UNC,wide,20\r\n"), kTypeMismatch);
}

TEST(Drills, AreTheNearestOfTheirKindUpToTheLargest) {
  const std::vector<Drill> drills = ParseDrills(DataFile(kDrillFile));
  EXPECT_EQ(NearestDrill(drills, false, 0.2013)->name, "No. 7");
  EXPECT_EQ(NearestDrill(drills, false, 0.5)->name, "1/2");
  EXPECT_EQ(NearestDrill(drills, true, 10.295)->name, "10.3 mm");
  EXPECT_EQ(NearestDrill(drills, false, 3.51)->name, "3-1/2");
  EXPECT_FALSE(NearestDrill(drills, false, 3.75));
}

}  // namespace
}  // namespace korvane::testing
