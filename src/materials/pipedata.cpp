#include "materials/pipedata.h"

#include <algorithm>

#include "frame/session.h"
#include "materials/digits.h"

namespace korvane {
namespace {

std::vector<std::string> Labels() {
  std::vector<std::string> labels;
  for (const PipeStandard& standard : PipeStandards()) labels.emplace_back(standard.label);
  return labels;
}

}  // namespace

pipedata::pipedata(Session& session)
    : CalculatorWindow(session, {.name = "pipedata",
                                 .title = "Pipe and Tubing Data",
                                 .helpPage = "materials_pipe_and_tubing_data.html"}),
      picture_(*this, "", "The section to scale: outside diameter OD, inside diameter ID, wall t") {
  cmb_standard.SetItems(Labels());
  cmb_standard.onSelect = [this] { ListSizes(); };
  cmb_size.onSelect = [this] { ListWalls(); };
  cmb_wall.onSelect = [this] { ShowPipe(); };
  std::vector<const CaptionedControl*> copied = {&cmb_standard, &cmb_size, &cmb_wall};
  for (const TextField* field : Results()) copied.push_back(field);
  CopiesWith(btn_copy, std::move(copied));

  PassesFocusOn(Results());
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout pipedata::Arrangement() {
  std::vector<Layout> results;
  for (TextField* field : Results()) results.emplace_back(*field);
  return Column(
      {Row({Column({Form({cmb_standard, cmb_size, cmb_wall}), Rule(), Form(std::move(results))}),
            Column({Stretch(), picture_, Stretch()})}),
       Row({btn_copy, Stretch(), btn_print, btn_help, btn_exit})});
}

std::vector<TextField*> pipedata::Results() {
  return {&txt_od,         &txt_id,      &txt_wall,    &txt_flow_area,
          &txt_metal_area, &txt_surface, &txt_weight,  &txt_full_weight,
          &txt_inertia,    &txt_modulus, &txt_gyration};
}

void pipedata::Load() {
  CalculatorWindow::Load();
  GetSession().DataFileName = kPipeFile;
  pipes_ = ParsePipes(GetSession().ReadTable(kPipeFile));
  cmb_standard.Select(0);
}

const PipeStandard& pipedata::Standard() const {
  return PipeStandards()[static_cast<std::size_t>(cmb_standard.Index())];
}

void pipedata::ListSizes() {
  const PipeStandard& standard = Standard();
  std::vector<std::string> items;
  sizes_.clear();
  for (const Pipe& pipe : pipes_) {
    if (pipe.standard != &standard || std::ranges::find(sizes_, pipe.size) != sizes_.end())
      continue;
    sizes_.push_back(pipe.size);
    items.push_back(IsMetric() && !pipe.dn.empty() ? pipe.size + " (DN " + pipe.dn + ")"
                                                   : pipe.size);
  }
  cmb_size.CaptionBeside().SetCaption(standard.sizes);
  cmb_wall.CaptionBeside().SetCaption(standard.walls);
  cmb_size.SetItems(std::move(items));
  auto chosen = std::ranges::find(sizes_, size_);
  if (chosen == sizes_.end()) chosen = std::ranges::find(sizes_, standard.usualSize);
  const std::string wanted = size_;  // outlives what is taken in its place
  cmb_size.Select(chosen == sizes_.end() ? 0 : static_cast<int>(chosen - sizes_.begin()));
  size_ = wanted;
}

void pipedata::ListWalls() {
  size_ = sizes_[static_cast<std::size_t>(cmb_size.Index())];
  walls_.clear();
  std::vector<std::string> items;
  for (const Pipe& pipe : pipes_) {
    if (pipe.standard != &Standard() || pipe.size != size_) continue;
    walls_.push_back(&pipe);
    items.push_back(pipe.wall);
  }
  cmb_wall.SetItems(std::move(items));
  const auto named = [this](std::string_view name) {
    return std::ranges::find_if(walls_, [name](const Pipe* pipe) { return pipe->HasWall(name); });
  };
  auto chosen = named(wall_.substr(0, wall_.find(',')));
  if (chosen == walls_.end()) chosen = named(Standard().usualWall);
  const std::string wanted = wall_;  // as above
  cmb_wall.Select(chosen == walls_.end() ? 0 : static_cast<int>(chosen - walls_.begin()));
  wall_ = wanted;
}

void pipedata::ShowPipe() {
  const Pipe& pipe = *walls_[static_cast<std::size_t>(cmb_wall.Index())];
  wall_ = pipe.wall;
  const bool metric = IsMetric();
  const PipeSection& section = pipe.Section(metric);
  const auto measure = [metric](TextField& field, Double value) {
    metric ? field.Show(value, "0.0##") : field.Show(value, "0.000");
  };
  measure(txt_od, section.od);
  measure(txt_id, section.Id());
  measure(txt_wall, section.wall);
  txt_flow_area.SetText(FourDigits(section.FlowArea()));
  txt_metal_area.SetText(FourDigits(section.MetalArea()));
  txt_surface.SetText(FourDigits(pipe.OutsideSurface(metric)));
  txt_weight.SetText(FourDigits(pipe.Weight(metric)));
  txt_full_weight.SetText(FourDigits(pipe.FullWeight(metric)));
  txt_inertia.SetText(FourDigits(section.MomentOfInertia()));
  txt_modulus.SetText(FourDigits(section.SectionModulus()));
  txt_gyration.SetText(FourDigits(section.RadiusOfGyration()));
  picture_.Draw(DrawnToScale(section));
}

}  // namespace korvane
