// Every form as it opens on the screens that players have: whole where it can be, else with its focus in sight.

#include "hands.h"

namespace bogenwerker {
namespace {

QRect place(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint()), widget.size()}; }
QRect place(std::string_view control) { return place(shown(control)); }

// Nothing cut, and nothing over it: whoever clicks on a corner meets it, or what it holds.
void expectWhole(const QWidget& widget) {
  EXPECT_TRUE(widget.parentWidget()->contentsRect().contains(widget.geometry()));
  const char* caption = widget.inherits("QGroupBox") ? "title" : widget.inherits("QLineEdit") ? "" : "text";
  const QSize text = widget.fontMetrics().size(Qt::TextShowMnemonic, widget.property(caption).toString());
  EXPECT_EQ(widget.size(), widget.size().expandedTo(widget.minimumSizeHint()).expandedTo(text));
  const QRect here = place(widget);
  for (const QPoint& corner : {here.topLeft(), here.topRight(), here.bottomLeft(), here.bottomRight()}) {
    const QWidget* met = shownWindow().childAt(corner);
    const bool isThrough = widget.testAttribute(Qt::WA_TransparentForMouseEvents);
    EXPECT_TRUE(isThrough || met == &widget || widget.isAncestorOf(met));
  }
}

void expectRowsAligned() {
  for (const char* row :
       {"lblPrioE optRasseMensch optMagieE optAttribute18 optFertigkeiten27 optRessE",
        "lblWill cmdWillMinus lblWillWert cmdWillPlus lblRasseWill lblNatWill", "txtWFertigkeit txtSprache",
        "cmbBioware cmdAddBioware Label2 lblBiowareIndex lblBiowareKosten", "lblMagie Label20 lblInitiative"}) {
    const QStringList names = toQt(row).split(' ');
    if (shownWindow().findChild<QWidget*>(names.back()) == nullptr) continue;
    const int line = place(fromQt(names.front())).center().y();
    for (const QString& name : names) EXPECT_NEAR(place(fromQt(name)).center().y(), line, 4) << row;
  }
}

// The strokes lead from the rows that Reaktion comes from into it, and from there down to Initiative.
void expectBracket() {
  const QImage picture = shownWindow().grab().toImage();
  const auto inkAround = [&](int x, int y) {
    const QImage part = picture.copy(QRect(QPoint(x - 3, y - 3) * picture.devicePixelRatio(), QSize(9, 9)));
    int ink = 0;
    for (int i = 0; i < 81; ++i) ink += part.pixelColor(i % 9, i / 9) == QColor(0, 255, 0) ? 1 : 0;
    return ink;
  };
  const QRect down = place("Line5");
  EXPECT_LT(place("lblReaktion").bottom(), down.top());
  EXPECT_NEAR(down.bottom(), place("lblInitiative").top(), 3 + look().scaled(6));
  for (const int y : {down.top() + 4, down.bottom() - 4}) EXPECT_GT(inkAround(down.center().x(), y), 0);
  const int spine = place("Line3").center().x();
  const int top = place("lblSchnelligkeit").center().y(), bottom = place("lblIntelligenz").center().y();
  for (const int y : {top, (top + bottom) / 2, bottom}) EXPECT_GT(inkAround(spine, y), 0);
  for (const int y : {top - 12, bottom + 12}) EXPECT_EQ(inkAround(spine, y), 0);
  for (const int y : {top, bottom}) EXPECT_GT(inkAround(place("Line1").left() + 4, y), 0);
  for (const int y : {top, bottom}) EXPECT_EQ(inkAround(place("Line1").right() + 1, y), 0);
  EXPECT_GT(inkAround(place("Line4").right() - 4, place("lblReaktion").center().y()), 0);
  EXPECT_LT(place("Line4").right(), place("lblReaktion").left());
}

void expectOpened(Form& form, const QRect& screen) {
  FormWindow& window = shownWindow();
  EXPECT_TRUE(screen.contains(window.frameGeometry()));
  const QPoint apart = window.frameGeometry().center() - screen.center();
  EXPECT_TRUE(!form.isDialog() || apart.manhattanLength() <= 2);
  const QSize wanted = window.widget()->sizeHint();
  const QSize room = screen.size() - (window.frameGeometry().size() - window.size());
  const int bars = window.horizontalScrollBar()->isVisible() + window.verticalScrollBar()->isVisible();
  if (wanted.boundedTo(room) != wanted) {
    const QSize least = room - QSize(1, 1) * window.verticalScrollBar()->sizeHint().width();
    EXPECT_EQ(bars, wanted.width() > least.width() && wanted.height() > least.height() ? 2 : 1);
    EXPECT_TRUE(window.viewport()->rect().contains(place(*QApplication::focusWidget()).center()));
    return;
  }
  EXPECT_EQ(bars, 0);
  for (const Control* one : form.controls()) {
    SCOPED_TRACE(one->name());
    expectWhole(shown(one->name()));
  }
  expectRowsAligned();
  if (form.name() == forms.back()) expectBracket();
}

TEST(Geometry, everyFormOpensWholeOnTheScreenOfTheLast) {
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect room = screen->availableGeometry();
    for (const int zoom : room.height() > 1100 ? std::array{75, 170, 250} : std::array{100, 125, 150}) {
      Screen player(forms.front(), scriptOf("sammlerin"));
      shownWindow().move(room.topLeft() + QPoint(90, 60));
      player.desktop.zoomTo(zoom);
      for (const char* form : forms) {
        SCOPED_TRACE(testing::Message() << form << " at " << zoom << " on " << room.width());
        player.playUntil(form);
        expectOpened(player.form(), room);
      }
    }
  }
}

// As under a manager that asks nobody: lists and boxes grow, all else keeps its size and its distance.
TEST(Geometry, spareRoomGoesToListsAndMargins) {
  Screen player;
  for (const char* form : forms) {
    player.playUntil(form);
    std::map<QWidget*, int> heights;
    for (auto* widget : shownWindow().findChildren<QWidget*>(QRegularExpression(QStringLiteral("^(cmd|lst)"))))
      heights[widget] = widget->height() + (widget->inherits("QListView") ? 200 : 0);
    shownWindow().resize(shownWindow().size() + QSize(300, 200));
    QApplication::processEvents();
    for (const auto& [widget, height] : heights) EXPECT_EQ(widget->height(), height) << fromQt(widget->objectName());
    expectRowsAligned();
  }
}

}  // namespace
}  // namespace bogenwerker
