// Table files: what is read, what is refused, and that nothing is taken for cells that aren't
// there.
#include "frame/table.h"

#include <gtest/gtest.h>

#include "frame/runtime_failure.h"

namespace korvane {
namespace {

int FailureOf(std::string_view bytes) {
  try {
    ParseTable(bytes);
    return 0;
  } catch (const RuntimeFailure& failure) {
    return failure.Number();
  }
}

TEST(Table, IsReadFrontToBack) {
  const Table table = ParseTable(
      "comment, with a comma\r\nSample Table\r\n3, 2, 1, 1\r\n1200, 900\r\n1, 4\r\n"
      "\"Size, in\",\"Weight\"\r\n\"A\",10\r\nB and more words,1.50\r\nnot read");
  EXPECT_EQ(table.title, "Sample Table");
  EXPECT_EQ(table.rows, 3);
  EXPECT_EQ(table.columns, 2);
  EXPECT_EQ(table.fixedRows, 1);
  EXPECT_EQ(table.fixedColumns, 1);
  EXPECT_EQ(table.widths, (std::vector<double>{1200, 900}));
  EXPECT_EQ(table.alignments, (std::vector<int>{1, 4}));
  // Cells are texts: a number keeps the form that it has in the file.
  EXPECT_EQ(table.texts, (std::vector<std::string>{"Size, in", "Weight", "A", "10",
                                                   "B and more words", "1.50"}));
  EXPECT_EQ(table.At(2, 1), "1.50");
  EXPECT_THROW(table.At(3, 0), RuntimeFailure);
  EXPECT_THROW(table.At(0, -1), RuntimeFailure);
}

TEST(Table, MayLayItsFieldsOutAsItPleases) {
  const Table table = ParseTable("x\nT\n2\n1,0\n0\n\n 100\n9 \n\xB0, \"\"\n");
  EXPECT_EQ(table.rows, 2);
  EXPECT_EQ(table.texts, (std::vector<std::string>{"\u00B0", ""}));
}

TEST(Table, MalformedOnesFail) {
  struct Case {
    const char* bytes;
    int failure;
  };
  constexpr Case kCases[] = {
      {"", 62},
      {"only a comment", 62},
      {"c\nT\n", 62},
      {"c\nT\n2,2,0,0\n100,100\n1,1\na,b,c", 62},  // a cell is missing
      {"c\nT\ntwo,2,0,0\n", 13},
      {"c\nT\n1,1,0,0\nwide\n", 13},
      {"c\nT\n1,1,0,0\n100\nleft\n", 13},
      {"c\nT\n1,2,2,0\n", 5},  // fewer rows than fixed ones
      {"c\nT\n2,1,0,2\n", 5},
      {"c\nT\n-1,1,-2,0\n", 5},
      {"c\nT\n1e10,1,0,0\n", 6},
      {"c\nT\n1000000,1000000,0,0\n1,2,3", 62},  // at once, and in little memory
      {"c\nT\n1000000,1,0,0\n100\n1\n1,2,3,4,5,6,7,8,9,10", 62},
  };
  for (const Case& test : kCases) EXPECT_EQ(FailureOf(test.bytes), test.failure) << test.bytes;
}

}  // namespace
}  // namespace korvane
