#include "desktop/look.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QPainter>
#include <QPalette>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTranslator>
#include <algorithm>

namespace bogenwerker {
namespace {

constexpr double formPoints = 8.25;

constexpr QColor back{64, 64, 64};
constexpr QColor text{0, 255, 0};
constexpr QColor greyField{128, 128, 128};
constexpr QColor darkField{24, 24, 24};
constexpr QColor disabledText{165, 165, 165};
constexpr QColor disabledField{82, 82, 82};
constexpr QColor disabledInMenu{195, 195, 195};
constexpr QColor outline{112, 112, 112};
constexpr QColor selected{0, 255, 0};
constexpr QColor selectedText{0, 0, 0};

QPalette colours(const QColor& field) {
  QPalette palette(text, back, back.lighter(150), back.darker(150), back.darker(120), text, Qt::white, field, back);
  palette.setColor(QPalette::AlternateBase, field);
  palette.setColor(QPalette::Highlight, selected);
  palette.setColor(QPalette::HighlightedText, selectedText);
  palette.setColor(QPalette::PlaceholderText, text);
  palette.setColor(QPalette::ToolTipBase, back);
  palette.setColor(QPalette::ToolTipText, text);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
    palette.setColor(QPalette::Disabled, role, disabledText);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, disabledField);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, disabledField);
  return palette;
}

// The style fills menus like fields, on which what is disabled could not be read.
QPalette menuColours() {
  QPalette palette = colours(back);
  palette.setColor(QPalette::Disabled, QPalette::Base, back);
  for (const auto role : {QPalette::WindowText, QPalette::Text}) {
    palette.setColor(QPalette::Disabled, role, disabledInMenu);
  }
  return palette;
}

bool followsZoom(QStyle::PixelMetric metric) {
  switch (metric) {
    case QStyle::PM_ExclusiveIndicatorWidth:
    case QStyle::PM_ExclusiveIndicatorHeight:
    case QStyle::PM_RadioButtonLabelSpacing:
    case QStyle::PM_ButtonMargin:
    case QStyle::PM_ScrollBarExtent:
    case QStyle::PM_MessageBoxIconSize:
    case QStyle::PM_LayoutLeftMargin:
    case QStyle::PM_LayoutTopMargin:
    case QStyle::PM_LayoutRightMargin:
    case QStyle::PM_LayoutBottomMargin:
    case QStyle::PM_LayoutHorizontalSpacing:
    case QStyle::PM_LayoutVerticalSpacing: return true;
    default: return false;
  }
}

// What the toolkit says by itself, in the menus of text fields: out of the program where it is built in, else as the
// system has it installed; where it has not, that stays English.
void speakGerman() {
  auto* german = new QTranslator(QApplication::instance());
  for (const QString& folder : {QStringLiteral(":/translations"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)}) {
    if (german->load(QStringLiteral("qtbase_de"), folder)) break;
  }
  QApplication::installTranslator(german);
}

}  // namespace

Look::Look() : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion"))), systemFont_(QApplication::font()) {}

Look& Look::dress() {
  QApplication::setApplicationName(QStringLiteral("Bogenwerker"));
  QGuiApplication::setDesktopFileName(QStringLiteral("bogenwerker"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/bogenwerker.png")));
  speakGerman();
  auto* look = new Look;
  QApplication::setStyle(look);
  QApplication::setPalette(colours(greyField));
  for (const char* above : {"QMenu", "QTipLabel"}) QApplication::setPalette(menuColours(), above);
  QApplication::setFont(look->formFont());
  return *look;
}

void Look::setZoom(int percent) {
  zoom_ = std::clamp(percent, leastZoom, mostZoom);
  QApplication::setFont(formFont());
}

void Look::setHighContrast(bool on) {
  highContrast_ = on;
  QApplication::setPalette(colours(on ? darkField : greyField));
  for (const char* above : {"QMenu", "QTipLabel"}) QApplication::setPalette(menuColours(), above);
}

QFont Look::formFont() const {
  QFont font;
  font.setFamilies({QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
  font.setPointSizeF(formPoints * zoom_ / 100);
  return font;
}

QFont Look::dialogFont() const {
  QFont font = systemFont_;
  const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
  font.setPointSizeF(points * zoom_ / 100);
  return font;
}

QFont Look::labelFont(const QFont& around, double points, bool bold) const {
  QFont font = around;
  if (points != formPoints) font.setPointSizeF(points * zoom_ / 100);
  font.setBold(bold);
  return font;
}

int Look::scaled(int pixels) const { return (pixels * zoom_ + 50) / 100; }

int Look::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
  return followsZoom(metric) ? scaled(pixels) : pixels;
}

// A button is as wide as it is told to be; the style would not let one be narrow.
QSize Look::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                             const QWidget* widget) const {
  if (type == CT_PushButton) return contents + QSize(scaled(16), scaled(10));
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  switch (type) {
    case CT_ItemViewItem: return size + QSize(0, scaled(4));
    case CT_LineEdit:
    case CT_ComboBox: return {size.width(), option->fontMetrics.height() + scaled(10)};
    default: return size;
  }
}

QRect Look::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                           const QWidget* widget) const {
  QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
  if (control != CC_ComboBox) return rect;
  const QRect arrow = QProxyStyle::subControlRect(control, option, SC_ComboBoxArrow, widget);
  const int wider = scaled(arrow.width()) - arrow.width();
  if (part == SC_ComboBoxArrow) rect.setLeft(rect.left() - wider);
  if (part == SC_ComboBoxEditField) rect.setRight(rect.right() - wider);
  return rect;
}

// What the dark colours would leave too faint is drawn here.
void Look::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                         const QWidget* widget) const {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  switch (element) {
    case PE_FrameFocusRect: drawFocus(*option, *painter); break;
    case PE_FrameGroupBox: {
      const int title =
          std::max(pixelMetric(PM_ExclusiveIndicatorHeight, option, widget), option->fontMetrics.height());
      painter->setPen(outline);
      painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, title + 2.5, -0.5, -0.5), 3, 3);
      break;
    }
    case PE_IndicatorRadioButton: drawOption(*option, *painter); break;
    default: painter->restore(); return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  painter->restore();
}

// Around whatever has the focus, wherever the focus came from, by mouse or by key.
void Look::drawFocus(const QStyleOption& option, QPainter& painter) const {
  const bool onSelection = (option.state & State_Selected) != 0;
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(option.palette.color(onSelection ? QPalette::HighlightedText : QPalette::Highlight), 1,
                      onSelection ? Qt::DotLine : Qt::SolidLine));
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

void Look::drawOption(const QStyleOption& option, QPainter& painter) const {
  const double line = std::max(1.0, zoom_ / 100.0);
  const QRectF ring = QRectF(option.rect).adjusted(line, line, -line, -line);
  const QColor colour = option.palette.color(QPalette::WindowText);
  painter.setPen(QPen(colour, line));
  painter.setBrush((option.state & State_Sunken) != 0 ? option.palette.color(QPalette::Base) : back.darker(140));
  painter.drawEllipse(ring);
  if ((option.state & State_On) == 0) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  const double inset = ring.width() / 4;
  painter.drawEllipse(ring.adjusted(inset, inset, -inset, -inset));
}

void Look::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element == CE_ShapedFrame && (option->state & State_HasFocus) != 0) {
    painter->setPen(option->palette.color(QPalette::Highlight));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  }
}

}  // namespace bogenwerker
