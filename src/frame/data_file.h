// Saving and loading a calculator's values: small text files with the extension .dta.
//
// A file is its window's signature on the first line, then one line "label,value" per record, in
// the code page 1252 with CR LF line ends. Labels are for readers; loading goes by order alone.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "frame/controls.h"
#include "frame/delimited.h"
#include "frame/session.h"

namespace korvane {

/// One line of a data file.
struct Record {
  std::string label;
  std::function<std::string()> value;              ///< what saving writes behind the label
  std::function<void(const std::string&)> accept;  ///< what loading does with the field read
  bool endsLineIfEmpty = true;  ///< without a value; else the next record goes on behind the comma
};

/// The field's text as it stands.
Record TextRecord(std::string label, TextField& field);
Record TextRecord(std::string label, Combo& combo);
/// The field's number through a mask; a text that is no number as it stands.
Record MaskRecord(std::string label, TextField& field, Mask mask);
/// The field's number as a number: with a blank ahead (unless negative) and one behind.
Record NumberRecord(std::string label, TextField& field);
/// The index of a list's chosen entry, as a number.
Record IndexRecord(std::string label, Choice& choice);

/// The word that stands for the option that is on; a word that is not in the list selects nothing.
struct Word {
  Option& option;
  std::string word;
};
Record WordRecord(std::string label, const std::vector<Word>& words);
/// "Yes" or "No"; another word leaves the mark as it is.
Record CheckRecord(std::string label, CheckBox& check);

struct DataFile {
  std::string signature;
  std::string defaultName;
  std::string loadTitle;
  std::vector<Record> records;
  Handler afterLoad;  ///< usually the window's computing command
  /// Of a file that goes on with as many lines as its window has: what saving writes behind the
  /// records, and what loading does with it.
  std::function<std::string()> rest = {};
  std::function<void(DelimitedReader&)> acceptRest = {};
};

/// Asks for a file and writes the records. Nothing happens on cancel; any failure is told with
/// "Error writing data file." and leaves an earlier file whole.
void SaveData(Session& session, const DataFile& data);

/// Asks for a file and reads the records into the window. A file of another window is told with
/// "Invalid data file.", any failure with "Error reading data file."; the fields that were read
/// before the fault keep what was read.
void LoadData(Session& session, const DataFile& data);

}  // namespace korvane
