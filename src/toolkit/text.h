// Between the core's UTF-8 texts and the toolkit's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace korvane {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

/// A caption as it reads: of "&&" one ampersand stays.
inline QString Plain(std::string_view caption) { return ToQt(caption).replace("&&", "&"); }

}  // namespace korvane
