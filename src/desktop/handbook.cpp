#include "desktop/handbook.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>
#include <iostream>

#include "desktop/text.h"

namespace bogenwerker {

void openHandbook(std::string_view section) {
  const QString page = QStringLiteral("/handbuch-") + toQt(section) + QStringLiteral(".html");
  for (const char* place : {"/handbuch", "/../share/doc/bogenwerker/handbuch"}) {
    const QFileInfo file(QCoreApplication::applicationDirPath() + QString::fromUtf8(place) + page);
    if (!file.exists()) continue;
    const QUrl url = QUrl::fromLocalFile(file.canonicalFilePath());
    if (!QDesktopServices::openUrl(url)) std::cerr << "Kein Browser für " << url.toString().toStdString() << '\n';
    return;
  }
  std::cerr << "Das Handbuch ist nicht installiert.\n";
}

}  // namespace bogenwerker
