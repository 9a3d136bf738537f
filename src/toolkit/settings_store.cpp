#include "toolkit/settings_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "frame/files.h"
#include "frame/platform.h"
#include "toolkit/text.h"

namespace korvane {
namespace {

constexpr const char* kSection = "Settings/";

/// The bytes that QSettings makes of the values. QSettings replaces its file in place and reports
/// success on a full disk, so it only writes a copy, which is looked at before it counts.
std::string BytesOf(const QVariantMap& values) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("settings.conf");
  {
    QSettings copy(path, QSettings::IniFormat);
    for (auto value = values.begin(); value != values.end(); ++value)
      copy.setValue(value.key(), value.value());
  }
  const QSettings written(path, QSettings::IniFormat);
  for (auto value = values.begin(); value != values.end(); ++value)
    if (written.value(value.key()) != value.value()) failures::DeviceError();
  return ReadFile(FromQt(path));
}

}  // namespace

SettingsStore::SettingsStore()
    : settings_(QSettings::IniFormat, QSettings::UserScope, kProgramName, kProgramName) {
  settings_.setFallbacksEnabled(false);
}

std::optional<std::string> SettingsStore::Get(const std::string& key) const {
  const QVariant value = settings_.value(kSection + ToQt(key));
  if (!value.isValid()) return std::nullopt;
  return FromQt(value.toStringList().join(", "));  // a value with commas comes as a list
}

void SettingsStore::Set(const std::string& key, const std::string& value) {
  QVariantMap values;
  for (const QString& name : settings_.allKeys()) values[name] = settings_.value(name);
  values[kSection + ToQt(key)] = ToQt(value);
  const QString path = settings_.fileName();
  try {
    QDir().mkpath(QFileInfo(path).path());
    WriteFile(FromQt(path), BytesOf(values));
    settings_.sync();
  } catch (const RuntimeFailure& failure) {
    qWarning("The setting \"%s\" could not be stored: %s", key.c_str(), failure.what());
  }
}

}  // namespace korvane
