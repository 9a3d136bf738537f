// A sketch file of any bytes: a drawing within its picture, or one of its failures.
#include "frame/sketch.h"

#include "frame/runtime_failure.h"
#include "fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace korvane;
  try {
    const auto commands = FindSketch(Bytes(data, size), "Case 01");
    if (!commands) return 0;
    const Sketch sketch = ParseSketch(*commands);
    Require(sketch.maxX >= 0 && sketch.maxY >= 0);
    const Drawing drawing = Fitted(sketch, 200, 100, 10);
    Require(drawing.shapes.size() == sketch.strokes.size());
    constexpr double most = 190.001;
    for (const auto& shape : drawing.shapes)
      for (const Point& point : std::get<Path>(shape).points) Require(point.x < most);
  } catch (const RuntimeFailure& failure) {
    const int number = failure.Number();
    Require(number == 6 || number == 9 || number == 11 || number == 62);
  }
  return 0;
}
