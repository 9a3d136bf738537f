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

void ScriptedPlatform::RunModal(Window& window) {
  if (onModal && window.IsShown()) onModal(window);
}

void ScriptedPlatform::Show(const Message& message) {
  Notice("message " + Escaped(message.title) + " | " + Escaped(message.text));
  // OK is the only button, so that whatever was queued for a box answers it; a file waits on.
  if (!answers_.empty() && std::holds_alternative<Answer>(answers_.front())) answers_.pop_front();
}

Answer ScriptedPlatform::Ask(const Question& question) {
  Notice("ask " + Escaped(question.title) + " | " + Escaped(question.text));
  if (answers_.empty()) return Answer::Cancel;
  const auto answer = std::move(answers_.front());
  answers_.pop_front();
  const auto* chosen = std::get_if<Answer>(&answer);
  return chosen != nullptr ? *chosen : Answer::Cancel;
}

std::optional<std::string> ScriptedPlatform::TakeFile() {
  if (answers_.empty()) return std::nullopt;
  const auto answer = std::move(answers_.front());
  answers_.pop_front();
  const auto* file = std::get_if<File>(&answer);
  return file != nullptr ? std::optional(file->path) : std::nullopt;
}

std::optional<std::string> ScriptedPlatform::ChooseFile(const FileDialog& dialog) {
  const bool open = dialog.action == FileDialog::Action::Open;
  Notice(std::string("dialog ") + (open ? "open " : "save ") + Escaped(dialog.title) + " | " +
         Escaped(dialog.fileName));
  return TakeFile();
}

std::optional<std::string> ScriptedPlatform::ChooseFolder(const std::string& title) {
  Notice("dialog open " + Escaped(title) + " | ");
  return TakeFile();
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
