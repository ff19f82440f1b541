// How every window looks: colours, fonts, and the sizes that follow the zoom.
#pragma once

#include <QFont>
#include <QProxyStyle>

namespace bogenwerker {

// One look on every platform, whatever the desktop around it prefers. It knows no form and no control by name.
class Look final : public QProxyStyle {
 public:
  static constexpr int leastZoom = 75;
  static constexpr int mostZoom = 250;

  // Makes this the style of the application, which must stand already and then owns it, and gives the application its
  // name, icon and language.
  static Look& dress();

  // In percent, leastZoom to mostZoom; beyond that the nearest of the two. Lasts for this run.
  void setZoom(int percent);
  [[nodiscard]] int zoom() const { return zoom_; }
  // Dark fields instead of grey ones. Lasts for this run.
  void setHighContrast(bool on);
  [[nodiscard]] bool isHighContrast() const { return highContrast_; }

  [[nodiscard]] QFont formFont() const;
  // The toolkit's own font.
  [[nodiscard]] QFont dialogFont() const;
  [[nodiscard]] QFont labelFont(const QFont& around, double points, bool bold) const;
  // Pixels at 100 % as pixels now.
  [[nodiscard]] int scaled(int pixels) const;

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;

 private:
  Look();
  void drawFocus(const QStyleOption& option, QPainter& painter) const;
  void drawOption(const QStyleOption& option, QPainter& painter) const;
  QFont systemFont_;
  int zoom_ = 100;
  bool highContrast_ = false;
};

}  // namespace bogenwerker
