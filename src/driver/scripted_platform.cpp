#include "driver/scripted_platform.h"

#include "frame/window.h"

namespace korvane {
namespace {

struct Escape {
  char character;
  char letter;
};
constexpr Escape kEscapes[] = {{'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}};

}  // namespace

std::string Escaped(std::string_view text) {
  std::string line;
  for (const char c : text) {
    const Escape* found = nullptr;
    for (const Escape& escape : kEscapes)
      if (escape.character == c) found = &escape;
    if (found != nullptr) {
      line += '\\';
      line += found->letter;
    } else {
      line += c;
    }
  }
  return line;
}

std::string Unescaped(std::string_view line) {
  std::string text;
  for (std::size_t i = 0; i < line.size(); ++i) {
    char c = line[i];
    if (c == '\\' && i + 1 < line.size()) {
      for (const Escape& escape : kEscapes) {
        if (escape.letter == line[i + 1]) {
          c = escape.character;
          ++i;
          break;
        }
      }
    }
    text += c;
  }
  return text;
}

void ScriptedPlatform::Reset() {
  settings.clear();
  clipboard.clear();
  answers_.clear();
}

void ScriptedPlatform::Notice(const std::string& notice) const {
  if (onNotice) onNotice("! " + notice);
}

void ScriptedPlatform::WindowShown(Window& window, bool loaded) {
  if (loaded) Notice("shown " + window.Name());
}

void ScriptedPlatform::WindowUnloaded(Window& window) { Notice("unloaded " + window.Name()); }

// Pages are there as soon as they are asked for.
void ScriptedPlatform::Refresh(Window&, const std::vector<Control*>& changed, bool) {
  for (Control* control : changed)
    if (auto* view = dynamic_cast<PageView*>(control); view != nullptr && view->TakeNavigation())
      view->Arrived();
}

void ScriptedPlatform::RunModal(Window& window) {
  if (onModal && window.IsShown()) onModal(window);
}

void ScriptedPlatform::Show(const Message& message) {
  Notice("message " + Escaped(message.title) + " | " + Escaped(message.text));
  // OK is the only button, so that whatever was queued for a box answers it; a file waits on.
  if (!answers_.empty() && !answers_.front().file) answers_.pop_front();
}

ScriptedPlatform::Reply ScriptedPlatform::TakeReply() {
  if (answers_.empty()) return {};
  Reply reply = std::move(answers_.front());
  answers_.pop_front();
  return reply;
}

Answer ScriptedPlatform::Ask(const Question& question) {
  Notice("ask " + Escaped(question.title) + " | " + Escaped(question.text));
  return TakeReply().answer;
}

std::optional<std::string> ScriptedPlatform::ChooseFile(const FileDialog& dialog) {
  const bool open = dialog.action == FileDialog::Action::Open;
  Notice(std::string("dialog ") + (open ? "open " : "save ") + Escaped(dialog.title) + " | " +
         Escaped(dialog.fileName));
  return TakeReply().file;
}

std::optional<std::string> ScriptedPlatform::ChooseFolder(const std::string& title) {
  Notice("dialog open " + Escaped(title) + " | ");
  return TakeReply().file;
}

void ScriptedPlatform::Capture(Window&) { Notice("clipboard [image]"); }

std::vector<std::string> ScriptedPlatform::PrinterNames() {
  std::vector<std::string> names;
  for (const Printer& printer : printers) names.push_back(printer.name);
  return names;
}

std::optional<Printer> ScriptedPlatform::CurrentPrinter() {
  return printer_ < printers.size() ? std::optional(printers[printer_]) : std::nullopt;
}

void ScriptedPlatform::ChoosePrinter(const std::string& name) {
  for (std::size_t i = 0; i < printers.size(); ++i)
    if (printers[i].name == name) printer_ = i;
}

void ScriptedPlatform::SetOrientation(Orientation orientation) {
  if (printer_ >= printers.size()) return;
  Printer& printer = printers[printer_];
  if (printer.orientation != orientation) std::swap(printer.paperWidth, printer.paperHeight);
  printer.orientation = orientation;
}

void ScriptedPlatform::Print(const PrintedPage& page) {
  if (printers.empty()) failures::PrinterError();
  printed.push_back(page);
}

Metrics ScriptedPlatform::GetMetrics() {
  // A screen of 1920 by 1080 at 96 dots per inch, with frames as wide as usual.
  return {.screenWidth = 28800,
          .screenHeight = 16200,
          .frameWidth = 60,
          .captionHeight = 435,
          .gridRowHeight = 240};
}

std::string ScriptedPlatform::Get(const std::string& address) {
  const auto page = webPages.find(address);
  return page == webPages.end() ? "" : page->second;
}

void ScriptedPlatform::Beep() { Notice("beep"); }

void ScriptedPlatform::SetClipboard(const std::string& text) {
  clipboard = text;
  Notice("clipboard " + Escaped(text));
}

void ScriptedPlatform::Launch(const std::string& what) { Notice("launch " + Escaped(what)); }

std::optional<std::string> ScriptedPlatform::Setting(const std::string& key) {
  const auto found = settings.find(key);
  return found == settings.end() ? std::nullopt : std::optional(found->second);
}

void ScriptedPlatform::SaveSetting(const std::string& key, const std::string& value) {
  settings[key] = value;
}

void ScriptedPlatform::Fail(const RuntimeFailure& failure) {
  Notice("failure " + std::to_string(failure.Number()) + ' ' + failure.Text());
}

void ScriptedPlatform::EndProgram(int status) { throw ProgramEnded{status}; }

}  // namespace korvane
