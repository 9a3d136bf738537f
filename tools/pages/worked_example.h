// The worked examples of the help pages. What a page says a user types and reads is what a program
// types and reads: its elements bear the commands, in the driver's language.
//
//   <b data-do="show FlowCalc; type dia %; enter dia">1</b> in: <b data-is="text flow">21.8</b> CFM
//
// "%" stands for the element's text; what "data-is" asks for is the element's text.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace korvane {

struct ExampleStep {
  std::string command;
  std::optional<std::string> answer;  ///< as the page shows it, where the command is a question
};

/// The steps of a page in its order; none if it has no example.
std::vector<ExampleStep> WorkedExample(const std::string& page);

/// The windows that the steps show, each once.
std::vector<std::string> WindowsOf(const std::vector<ExampleStep>& steps);

}  // namespace korvane
