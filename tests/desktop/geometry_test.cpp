// Every form as it opens on the screens that players have: whole where it can be, else with its focus in sight.

#include "hands.h"

namespace bogenwerker {
namespace {

QRect place(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint()), widget.size()}; }
QRect place(std::string_view control) { return place(shown(control)); }

// Nothing cut, and nothing over it: whoever clicks on a corner meets it, or what it holds.
void expectWhole(const QWidget& widget) {
  SCOPED_TRACE(fromQt(widget.objectName()));
  EXPECT_TRUE(widget.parentWidget()->contentsRect().contains(widget.geometry()));
  const char* caption = widget.inherits("QGroupBox") ? "title" : widget.inherits("QLineEdit") ? "" : "text";
  const QSize text = widget.fontMetrics().size(Qt::TextShowMnemonic, widget.property(caption).toString());
  EXPECT_EQ(widget.size(), widget.size().expandedTo(widget.minimumSizeHint()).expandedTo(text));
  if (widget.testAttribute(Qt::WA_TransparentForMouseEvents)) return;
  const QRect here = place(widget);
  for (const QPoint& corner : {here.topLeft(), here.topRight(), here.bottomLeft(), here.bottomRight()}) {
    const QWidget* met = shownWindow().childAt(corner);
    EXPECT_TRUE(met == &widget || widget.isAncestorOf(met));
  }
}

void expectRowsAligned() {
  for (const char* row :
       {"lblPrioE optRasseMensch optMagieE optAttribute18 optFertigkeiten27 optRessE",
        "lblWill cmdWillMinus lblWillWert cmdWillPlus lblRasseWill lblNatWill", "txtWFertigkeit txtSprache",
        "cmbCyberware cmdAddCyberware lblCyberEssenz Label3 lblCyberkosten", "lblMagie Label20 lblInitiative"}) {
    const QStringList names = toQt(row).split(' ');
    if (shownWindow().findChild<QWidget*>(names.back()) == nullptr) continue;
    const int line = place(fromQt(names.front())).center().y();
    for (const QString& name : names) EXPECT_NEAR(place(fromQt(name)).center().y(), line, 4) << row;
  }
}

// The strokes lead from the rows that Reaktion comes from into it, and from there down to Initiative.
void expectBracket() {
  const int top = place("lblSchnelligkeit").center().y(), bottom = place("lblIntelligenz").center().y();
  const QRect in = place("Line4"), reaktion = place("lblReaktion"), down = place("Line5");
  const int left = place("Line1").left(), spine = place("Line3").center().x(), middle = reaktion.center().y();
  EXPECT_TRUE(in.right() < reaktion.left() && reaktion.bottom() < down.top());
  EXPECT_NEAR(down.bottom(), place("lblInitiative").top(), 3 + look().scaled(6));
  for (const auto& [line, stroke] :
       std::map<std::string, QLine>{{"Line1", {left, top, spine, top}},
                                    {"Line2", {left, bottom, spine, bottom}},
                                    {"Line3", {spine, top, spine, bottom}},
                                    {"Line4", {spine, middle, in.right(), middle}},
                                    {"Line5", {down.center().x(), down.top(), down.center().x(), down.bottom()}}}) {
    const QImage picture = shown(line).grab().toImage();
    const QImage mask = picture.createMaskFromColor(qRgb(0, 255, 0), Qt::MaskOutColor);
    const QRect ink = QRegion(QBitmap::fromImage(mask)).boundingRect();
    const QPoint from = place(line).topLeft() + ink.topLeft() / picture.devicePixelRatio() - stroke.p1();
    const QPoint to = place(line).topLeft() + ink.bottomRight() / picture.devicePixelRatio() - stroke.p2();
    EXPECT_LE(std::max(from.manhattanLength(), to.manhattanLength()), 2 + look().scaled(2)) << line;
  }
}

void expectOpened(Form& form, const QRect& screen) {
  FormWindow& window = shownWindow();
  EXPECT_TRUE(screen.contains(window.frameGeometry()));
  EXPECT_TRUE(!form.isDialog() || (window.frameGeometry().center() - screen.center()).manhattanLength() <= 2);
  const QSize wanted = window.widget()->sizeHint();
  const QSize room = screen.size() - (window.frameGeometry().size() - window.size());
  const QSize least = room - QSize(1, 1) * window.verticalScrollBar()->sizeHint().width();
  const int bars = window.horizontalScrollBar()->isVisible() + window.verticalScrollBar()->isVisible();
  const bool isWhole = wanted.boundedTo(room) == wanted;
  EXPECT_EQ(bars, isWhole ? 0 : wanted.width() > least.width() && wanted.height() > least.height() ? 2 : 1);
  EXPECT_TRUE(window.viewport()->rect().intersects(place(*QApplication::focusWidget())));
  if (!isWhole) return;
  for (const Control* control : form.controls()) expectWhole(shown(control->name()));
  expectRowsAligned();
  if (form.name() == forms.back()) expectBracket();
}

// As under a manager that asks nobody: lists and boxes grow, all else keeps its size and its distance.
void expectSpareRoomInListsAndMargins() {
  std::map<QWidget*, int> heights;
  for (auto* widget : shownWindow().findChildren<QWidget*>(QRegularExpression("^(cmd|lst)")))
    heights[widget] = widget->height() + (widget->inherits("QListView") ? 200 : 0);
  shownWindow().resize(shownWindow().size() + QSize(300, 200));
  comeToRest();
  for (const auto& [widget, height] : heights) EXPECT_EQ(widget->height(), height) << fromQt(widget->objectName());
  expectRowsAligned();
}

TEST(Geometry, everyFormOpensWholeOnTheScreenOfTheLast) {
  for (const QScreen* screen : QGuiApplication::screens()) {
    for (const int zoom : {75, 100, 250}) {
      const QRect room = screen->availableGeometry();
      Screen player(forms.front(), "sammlerin");
      shownWindow().move(room.topLeft() + QPoint(90, 60));
      comeToRest();
      player.desktop.zoomTo(zoom);
      for (const char* form : forms) {
        SCOPED_TRACE(testing::Message() << form << " at " << zoom << " on " << room.width());
        player.playUntil(form);
        expectOpened(player.form(), room);
        if (zoom == 100 && screen == QGuiApplication::primaryScreen()) expectSpareRoomInListsAndMargins();
      }
    }
  }
}

}  // namespace
}  // namespace bogenwerker
