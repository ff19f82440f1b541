// Nothing clipped, nothing in the way of anything else, rows that align: on the real geometry of real windows.
#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <cmath>

#include "desktop/text.h"
#include "hands.h"

namespace bogenwerker {
namespace {

constexpr std::array forms = {"formPrioritäten", "formAttributmonitor", "formAktionFertigkeit", "formWissensfertigkeit",
                              "formAusrüstung",  "formNamenGeben",      "formFeinschliff"};

class Geometry : public testing::TestWithParam<int> {
 protected:
  // Every form at the zoom of the row, as large as its content asks, in one screen after the other.
  void onEveryForm(const std::function<void(Screen&)>& check) {
    for (const char* form : forms) {
      SCOPED_TRACE(form);
      Screen screen(form, Screen::scriptOf("sammlerin"));
      screen.desktop.zoomTo(GetParam());
      screen.window().resize(screen.window().widget()->sizeHint());
      QApplication::processEvents();
      check(screen);
    }
  }
};

// 170 % is 14 points.
INSTANTIATE_TEST_SUITE_P(Zoom, Geometry, testing::Values(75, 100, 150, 170, 200, 250),
                         [](const auto& row) { return std::to_string(row.param); });

QRect inWindow(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint()), widget.size()}; }

void expectWhole(const QWidget& widget) {
  EXPECT_TRUE(widget.parentWidget()->contentsRect().contains(widget.geometry()));
  const QSize least = widget.minimumSizeHint();
  EXPECT_GE(widget.width(), least.width());
  EXPECT_GE(widget.height(), least.height());
  QString text;
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) text = label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) text = button->text();
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) text = group->title();
  const QSize needed = widget.fontMetrics().size(Qt::TextShowMnemonic, text);
  EXPECT_GE(widget.width(), needed.width());
  EXPECT_GE(widget.height(), needed.height());
}

void expectAllWhole(Screen& screen) {
  EXPECT_FALSE(screen.window().horizontalScrollBar()->isVisible());
  EXPECT_FALSE(screen.window().verticalScrollBar()->isVisible());
  for (const Control* control : screen.form().controls()) {
    SCOPED_TRACE(control->name());
    expectWhole(screen.widget(control->name()));
  }
}

TEST_P(Geometry, nothingIsClipped) { onEveryForm(expectAllWhole); }

TEST_P(Geometry, nothingOverlapsButTheOneButton) {
  onEveryForm([](Screen& screen) {
    std::vector<std::string> overlaps;
    const auto& controls = screen.form().controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        const bool strokes = dynamic_cast<Line*>(controls[i]) != nullptr && dynamic_cast<Line*>(controls[j]) != nullptr;
        if (strokes || &controls[i]->container() != &controls[j]->container()) continue;
        const QRect one = inWindow(screen.widget(controls[i]->name()));
        if (one.intersects(inWindow(screen.widget(controls[j]->name())))) {
          overlaps.push_back(std::string(controls[j]->name()) + " " + std::string(controls[i]->name()));
        }
      }
    }
    const bool equipment = screen.form().name() == "formAusrüstung";
    EXPECT_EQ(overlaps,
              equipment ? std::vector<std::string>{"cmdAddSpruchPunkt frmMagicStuff"} : std::vector<std::string>{});
  });
}

TEST_P(Geometry, theSpellPointButtonLiesBetweenThePointFrames) {
  Screen screen("formAusrüstung");
  screen.desktop.zoomTo(GetParam());
  screen.window().resize(screen.window().widget()->sizeHint());
  QApplication::processEvents();
  const QRect button = inWindow(screen.widget("cmdAddSpruchPunkt"));
  const QRect magic = inWindow(screen.widget("frmMagicStuff"));
  const QRect left = inWindow(screen.widget("frmSpruchPunkte"));
  const QRect right = inWindow(screen.widget("frmKraftpunkte"));
  EXPECT_TRUE(magic.contains(button));
  EXPECT_GT(button.left(), left.right());
  EXPECT_LT(button.right(), right.left());
  EXPECT_GT(button.top(), left.top());
  EXPECT_LT(button.bottom(), left.bottom());
  EXPECT_GT(button.top(), magic.center().y() - button.height() / 2);
  // It is what a click there meets.
  EXPECT_EQ(screen.window().childAt(button.center()), &screen.widget("cmdAddSpruchPunkt"));
}

TEST_P(Geometry, rowsAlignFromFrameToFrame) {
  struct Row {
    const char* form;
    std::vector<const char*> controls;
  };
  for (const Row& row : std::vector<Row>{
           {"formPrioritäten",
            {"lblPrioA", "optRasseA", "optVollzauberer", "optAttribute30", "optFertigkeiten50", "optRessA"}},
           {"formPrioritäten", {"lblPrioB", "optRasseB", "optAdept", "optAspekt", "optAttribute27", "optRessB"}},
           {"formPrioritäten",
            {"lblPrioC", "optRasseTroll", "optRasseElf", "optMagieC", "optFertigkeiten34", "optRessC"}},
           {"formPrioritäten",
            {"lblPrioE", "optRasseMensch", "optMagieE", "optAttribute18", "optFertigkeiten27", "optRessE"}},
           {"formAttributmonitor",
            {"lblWill", "cmdWillMinus", "lblWillWert", "cmdWillPlus", "lblRasseWill", "lblNatWill"}},
           {"formWissensfertigkeit", {"txtWFertigkeit", "txtSprache"}},
           {"formAusrüstung", {"cmbCyberware", "cmdAddCyberware", "lblCyberEssenz", "Label3", "lblCyberkosten"}},
           {"formAusrüstung", {"cmbBioware", "cmdAddBioware", "Label2", "lblBiowareIndex", "lblBiowareKosten"}},
       }) {
    Screen screen(row.form);
    screen.desktop.zoomTo(GetParam());
    QApplication::processEvents();
    const int line = inWindow(screen.widget(row.controls.front())).center().y();
    for (const char* control : row.controls) {
      EXPECT_NEAR(inWindow(screen.widget(control)).center().y(), line, 4) << control;
    }
  }
}

// Where the strokes are painted: along the rows that Reaktion comes from, and down to Initiative.
TEST_P(Geometry, theBracketLeadsFromTheRowsToReaktionAndInitiative) {
  Screen screen("formFeinschliff");
  screen.desktop.zoomTo(GetParam());
  screen.window().resize(screen.window().widget()->sizeHint());
  QApplication::processEvents();
  const QImage picture = screen.window().grab().toImage();
  const double ratio = picture.devicePixelRatio();
  const QColor ink = screen.window().palette().color(QPalette::WindowText);
  const auto painted = [&](QPoint point) {
    const int x = static_cast<int>(std::lround(point.x() * ratio)),
              y = static_cast<int>(std::lround(point.y() * ratio));
    for (int dx = -3; dx <= 3; ++dx) {
      for (int dy = -3; dy <= 3; ++dy) {
        if (picture.valid(x + dx, y + dy) && picture.pixelColor(x + dx, y + dy) == ink) return true;
      }
    }
    return false;
  };
  const auto place = [&](const char* name) { return inWindow(screen.widget(name)); };
  const int spine = place("Line3").center().x();
  const int top = place("lblSchnelligkeit").center().y();
  const int bottom = place("lblIntelligenz").center().y();
  const int reaktion = place("lblReaktion").center().y();
  for (const int y : {top, bottom}) EXPECT_TRUE(painted({place("Line1").left() + 2, y}));
  for (const int y : {top, (top + reaktion) / 2, reaktion, bottom}) EXPECT_TRUE(painted({spine, y})) << y;
  EXPECT_FALSE(painted({spine, top - 12}));
  EXPECT_FALSE(painted({spine, bottom + 12}));
  EXPECT_TRUE(painted({place("Line4").right() - 2, reaktion}));
  EXPECT_LT(place("Line4").right(), place("lblReaktion").left());
  const QRect down = place("Line5");
  for (const int y : {down.top() + 2, down.center().y(), down.bottom() - 2})
    EXPECT_TRUE(painted({down.center().x(), y}));
  EXPECT_LT(place("lblReaktion").center().y(), down.top());
  EXPECT_LT(down.bottom(), place("lblInitiative").top());
}

TEST(GeometryOnce, equipmentFitsASmallScreen) {
  Screen screen("formAusrüstung");
  const QSize needed = screen.window().widget()->sizeHint();
  EXPECT_LE(needed.width(), 1366);
  EXPECT_LE(needed.height(), 768 - 80);  // a panel and a title bar
}

TEST(GeometryOnce, listsAndFieldsGrowAndTheRestStays) {
  Screen screen("formAusrüstung");
  screen.window().resize(screen.window().widget()->sizeHint());
  QApplication::processEvents();
  const QSize list = screen.widget("lstAusrüstung").size();
  const QSize box = screen.widget("cmbCyberware").size();
  const QSize button = screen.widget("cmdAddCyberware").size();
  screen.window().resize(screen.window().size() + QSize(300, 200));
  QApplication::processEvents();
  EXPECT_EQ(screen.widget("lstAusrüstung").height(), list.height() + 200);
  EXPECT_GT(screen.widget("lstAusrüstung").width(), list.width());
  EXPECT_GT(screen.widget("cmbCyberware").width(), box.width());
  EXPECT_EQ(screen.widget("cmbCyberware").height(), box.height());
  EXPECT_EQ(screen.widget("cmdAddCyberware").size(), button);
}

TEST(GeometryOnce, aLargerSystemFontLeavesAllWhole) {
  look(14);
  for (const char* form : forms) {
    SCOPED_TRACE(form);
    Screen screen(form);
    screen.window().resize(screen.window().widget()->sizeHint());
    QApplication::processEvents();
    expectAllWhole(screen);
    if (screen.form().isDialog()) {
      EXPECT_NEAR(screen.widget("txtName").font().pointSizeF(), 14, 0.1);
    }
  }
  look(9);
}

}  // namespace
}  // namespace bogenwerker
