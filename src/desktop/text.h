// Text between the model, which is UTF-8, and the toolkit.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace bogenwerker {

inline QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string fromQt(const QString& text) { return text.toStdString(); }

// For captions where the toolkit would take an ampersand for the mark of a shortcut.
inline QString toQtCaption(std::string_view caption) { return toQt(caption).replace('&', QStringLiteral("&&")); }

}  // namespace bogenwerker
