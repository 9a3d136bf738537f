#include "frame/data_file.h"

#include "frame/codepage.h"
#include "frame/delimited.h"
#include "frame/files.h"
#include "frame/number_text.h"

namespace korvane {
namespace {

constexpr const char* kFilter = "Data files (*.dta)|*.dta|All Files (*.*)|*.*";

std::optional<std::string> ChooseFile(Session& session, const DataFile& data,
                                      FileDialog::Action action, const std::string& title) {
  session.Refresh();
  return session.GetPlatform().ChooseFile(
      {action, title, data.defaultName, session.DataPath, kFilter});
}

std::string Written(const DataFile& data) {
  std::string text = data.signature + "\r\n";
  for (const Record& record : data.records) {
    const std::string value = record.value();
    text += record.label + ',' + value;
    if (record.endsLineIfEmpty || !value.empty()) text += "\r\n";
  }
  if (data.rest) text += data.rest();
  return ToCodePage(text);
}

}  // namespace

Record TextRecord(std::string label, TextField& field) {
  return {std::move(label), [&field] { return field.Text(); },
          [&field](const std::string& text) { field.SetText(text); }};
}

Record TextRecord(std::string label, Combo& combo) {
  return {std::move(label), [&combo] { return combo.Text(); },
          [&combo](const std::string& text) { combo.SetText(text); }};
}

Record MaskRecord(std::string label, TextField& field, Mask mask) {
  return {std::move(label), [&field, mask] { return FormatText(field.Text(), mask); },
          [&field](const std::string& text) { field.SetText(text); }};
}

Record NumberRecord(std::string label, TextField& field) {
  return {std::move(label), [&field] { return SignedText(ToNumber(field)) + ' '; },
          [&field](const std::string& text) { field.SetText(text); }};
}

Record IndexRecord(std::string label, Choice& choice) {
  return {std::move(label), [&choice] { return SignedText(choice.Index()) + ' '; },
          [&choice](const std::string& text) { choice.Select(ToInteger16(Strict(text))); }};
}

Record WordRecord(std::string label, const std::vector<Word>& words) {
  auto value = [words] {
    for (const Word& word : words)
      if (word.option.IsOn()) return word.word;
    return std::string();
  };
  auto accept = [words](const std::string& text) {
    for (const Word& word : words)
      if (word.word == text) word.option.TurnOn();
  };
  return {std::move(label), std::move(value), std::move(accept)};
}

Record CheckRecord(std::string label, CheckBox& check) {
  return {std::move(label), [&check] { return check.IsOn() ? "Yes" : "No"; },
          [&check](const std::string& text) {
            if (text == "Yes" || text == "No") check.Set(text == "Yes");
          }};
}

void SaveData(Session& session, const DataFile& data) {
  const auto path = ChooseFile(session, data, FileDialog::Action::Save, "Save as...");
  if (!path) return;
  try {
    WriteFile(*path, Written(data));
  } catch (const RuntimeFailure&) {
    session.Message("Error writing data file.", Icon::Exclamation);
  }
}

void LoadData(Session& session, const DataFile& data) {
  const auto path = ChooseFile(session, data, FileDialog::Action::Open, data.loadTitle);
  if (!path) return;
  try {
    const std::string text = FromCodePage(ReadFile(*path));
    DelimitedReader reader(text);
    if (reader.Text() != data.signature) {
      session.Message("Invalid data file.");
      return;
    }
    for (const Record& record : data.records) {
      reader.Text();  // the label
      record.accept(reader.Value());
    }
    if (data.acceptRest) data.acceptRest(reader);
    if (data.afterLoad) data.afterLoad();
  } catch (const RuntimeFailure&) {
    session.Message("Error reading data file.", Icon::Exclamation);
  }
}

}  // namespace korvane
