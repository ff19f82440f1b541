// The launcher's message box, for where it has no terminal: message fault|message TEXT.
#include <QApplication>

#include "desktop/desktop.h"

int main(int argc, char** argv) {
  using namespace bogenwerker;
  if (argc != 3) return 1;
  QApplication application(argc, argv);
  Desktop desktop(Look::dress(), {});
  desktop.showMessage(std::string_view(argv[1]) == "fault" ? Message::fault : Message::closing, argv[2]);
  return 0;
}
