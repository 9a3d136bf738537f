// korvane-startup PROGRAM REFERENCE [REPETITIONS]: the time until a program's first window is
// painted on the screen, and the memory that it has in use then, against those of a reference. The
// two take turns, so that what else the machine does falls on both; the median counts.

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr double kLongest = 20'000;  // milliseconds
constexpr double kAimTime = 1.25;    // of the reference
constexpr double kAimMemory = 1.5;

struct Start {
  double milliseconds;
  double megabytes;
};

double Since(Clock::time_point begin) {
  return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

/// The memory in use by a process, in MB.
double ResidentOf(pid_t process) {
  std::ifstream statm("/proc/" + std::to_string(process) + "/statm");
  long size = 0, resident = 0;
  statm >> size >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// The window that is put on the screen next.
Window AwaitWindow(Display* display, Clock::time_point begin) {
  while (Since(begin) < kLongest) {
    while (XPending(display) > 0) {
      XEvent event;
      XNextEvent(display, &event);
      if (event.type == MapNotify) return event.xmap.window;
    }
    pollfd connection{ConnectionNumber(display), POLLIN, 0};
    poll(&connection, 1, 100);
  }
  throw std::runtime_error("no window came");
}

/// Waits until something is painted in the window's corner, where the screen was black.
void AwaitPainting(Display* display, Window window, Clock::time_point begin) {
  XWindowAttributes place;
  XGetWindowAttributes(display, window, &place);
  while (Since(begin) < kLongest) {
    XImage* corner = XGetImage(display, DefaultRootWindow(display), place.x + 3, place.y + 3, 1, 1,
                               AllPlanes, ZPixmap);
    const bool painted = XGetPixel(corner, 0, 0) != BlackPixel(display, DefaultScreen(display));
    XDestroyImage(corner);
    if (painted) return;
    usleep(200);
  }
  throw std::runtime_error("the window stayed empty");
}

Start Measure(Display* display, const char* program) {
  XSync(display, /*discard=*/True);  // what the one before left behind
  const auto begin = Clock::now();
  const pid_t process = fork();
  if (process == 0) {
    execl(program, program, nullptr);
    _exit(127);
  }
  AwaitPainting(display, AwaitWindow(display, begin), begin);
  const Start start{Since(begin), ResidentOf(process)};
  kill(process, SIGKILL);
  waitpid(process, nullptr, 0);
  return start;
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

void Tell(const char* what, const char* unit, double aim, double own, double reference) {
  std::printf("%s: %.1f %s against %.1f %s, ratio %.2f (aim %.2f)\n", what, own, unit, reference,
              unit, own / reference, aim);
}

void Compare(const char* program, const char* reference, int repetitions) {
  Display* display = XOpenDisplay(nullptr);
  if (display == nullptr) throw std::runtime_error("there is no display");
  XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
  std::vector<double> times[2], memory[2];
  for (int round = -1; round < repetitions; ++round) {
    for (const int i : {0, 1}) {
      const Start start = Measure(display, i == 0 ? program : reference);
      if (round < 0) continue;  // the first one fills the caches
      times[i].push_back(start.milliseconds);
      memory[i].push_back(start.megabytes);
    }
  }
  XCloseDisplay(display);
  Tell("First window", "ms", kAimTime, Median(times[0]), Median(times[1]));
  Tell("Memory then", "MB", kAimMemory, Median(memory[0]), Median(memory[1]));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "korvane-startup PROGRAM REFERENCE [REPETITIONS]\n");
    return 2;
  }
  try {
    Compare(argv[1], argv[2], argc > 3 ? std::atoi(argv[3]) : 51);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "korvane-startup: %s\n", fault.what());
    return 1;
  }
  return 0;
}
