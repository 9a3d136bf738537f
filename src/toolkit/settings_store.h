// The per-user settings store in its native place.
#pragma once

#include <QSettings>
#include <optional>
#include <string>

namespace korvane {

class SettingsStore {
 public:
  SettingsStore();

  std::optional<std::string> Get(const std::string& key) const;
  /// A store that can't be written keeps its earlier state; the person works on.
  void Set(const std::string& key, const std::string& value);

 private:
  QSettings settings_;
};

}  // namespace korvane
