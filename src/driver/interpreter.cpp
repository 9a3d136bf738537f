#include "driver/interpreter.h"

#include "driver/verbs.h"

namespace korvane {

Interpreter::Interpreter(Input input, Output output, std::string programFolder,
                         std::span<const WindowUnit> catalogue)
    : input_(std::move(input)),
      output_(std::move(output)),
      programFolder_(std::move(programFolder)),
      catalogue_(catalogue) {
  platform_.onModal = [this](Window& modal) { WaitFor(modal); };
  Start();
}

Interpreter::~Interpreter() = default;

void Interpreter::Start() {
  platform_.onNotice = nullptr;
  session_.reset();
  platform_.Reset();
  closingReply_.reset();
  session_ = std::make_unique<Session>(platform_, catalogue_, programFolder_);
  session_->ShowsSplash = false;
  session_->Handle([this] { session_->Show("MAINFORM"); });
  inUse_ = "MAINFORM";
  platform_.onNotice = output_;
}

void Interpreter::Run() {
  while (true) {
    try {
      output_(Evaluate(ReadCommand()));
    } catch (const InputOver&) {
      return;
    } catch (const Restart&) {
      Start();
      output_("=");
    } catch (const ScriptedPlatform::ProgramEnded&) {
      closingReply_.reset();
      session_->DropWindows();
      output_("=");
    }
  }
}

std::string Interpreter::ReadCommand() {
  while (true) {
    auto line = input_();
    if (!line) throw InputOver();
    if (!line->empty() && line->front() != '#') return *std::move(line);
  }
}

std::string Interpreter::Evaluate(const std::string& line) {
  std::string reply = "=";
  try {
    const std::string value = Verbs(*this, line).Perform();
    if (!value.empty()) reply += ' ' + Escaped(value);
  } catch (const NotUnderstood& fault) {
    reply = "? " + fault.why;
  }
  // A command that opened a modal window was answered then; what is owed now is the answer to the
  // one that closed it.
  if (closingReply_) reply = *std::exchange(closingReply_, std::nullopt);
  return reply;
}

void Interpreter::WaitFor(const Window& modal) {
  const std::string opener = std::exchange(inUse_, modal.Name());
  output_("=");
  while (modal.IsShown()) {
    std::string reply = Evaluate(ReadCommand());
    if (modal.IsShown())
      output_(reply);
    else
      closingReply_ = std::move(reply);
  }
  inUse_ = opener;
}

Window* Interpreter::InUse() const {
  Window* window = session_->Find(inUse_);
  return window != nullptr && window->IsShown() ? window : session_->Active();
}

}  // namespace korvane
