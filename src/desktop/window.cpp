#include "desktop/window.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <algorithm>

#include "desktop/fields.h"
#include "desktop/text.h"

namespace bogenwerker {
namespace {

// In pixels at 100 %.
constexpr int formMargin = 10;
constexpr int spacing = 6;

Qt::Alignment alignmentOf(Place::Align align) {
  switch (align) {
    case Place::Align::fill: return {};
    case Place::Align::left: return Qt::AlignLeft;
    case Place::Align::right: return Qt::AlignRight;
    case Place::Align::centre: return Qt::AlignCenter;
    case Place::Align::top: return Qt::AlignTop;
    case Place::Align::bottom: return Qt::AlignBottom;
  }
  return {};
}

// Breaks a caption at the blanks nearest to where equal parts would end.
QString onLines(QString caption, int lines) {
  const auto length = caption.size();
  for (int line = 1; line < lines; ++line) {
    const auto wanted = length * line / lines;
    const auto before = caption.lastIndexOf(' ', wanted);
    const auto behind = caption.indexOf(' ', wanted);
    const auto blank = before < 0 || (behind >= 0 && behind - wanted < wanted - before) ? behind : before;
    if (blank >= 0) caption[blank] = '\n';
  }
  return caption;
}

// One make a kind.
class Make final : public ControlVisitor {
 public:
  explicit Make(Control& control) {
    control.accept(*this);
    widget_->setObjectName(toQt(control.name()));
  }
  [[nodiscard]] QWidget* widget() const { return widget_; }
  // What the control is as a container, if it is one.
  [[nodiscard]] const Container* container() const { return container_; }

 private:
  void visit(Frame& frame) override {
    widget_ = new QGroupBox(toQtCaption(frame.caption()));
    container_ = &frame;
    nameFor(frame, frame.caption());
  }
  void visit(PictureBox& box) override {
    container_ = &box;
    auto* panel = new QFrame;
    panel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    widget_ = panel;
  }
  void visit(Line& line) override {
    widget_ = new Stroke(line);
    widget_->setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  void visit(Label& label) override {
    auto* text = new Caption(label);
    text->setTextFormat(Qt::PlainText);
    text->setAlignment((label.isCentred() ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
    widget_ = text;
  }
  void visit(CommandButton& button) override {
    auto* push = new PushButton(button, onLines(toQtCaption(button.caption()), button.lines()));
    push->setAutoDefault(true);  // Return presses it while it has the focus
    push->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    QObject::connect(push, &QPushButton::clicked, push, [&button] { button.press(); });
    widget_ = push;
    nameFor(button, button.caption());
  }
  void visit(OptionButton& option) override {
    auto* radio = new QRadioButton(toQtCaption(option.caption()));
    QObject::connect(radio, &QRadioButton::clicked, radio, [&option] { option.choose(); });
    widget_ = radio;
    nameFor(option, option.caption());
  }
  void visit(TextBox& box) override {
    widget_ = new TextField(box);
    nameFor(box, {});
  }
  void visit(ComboBox& box) override {
    widget_ = new PickBox(box);
    nameFor(box, {});
  }
  void visit(ListBox& box) override {
    widget_ = new LineList(box);
    nameFor(box, {});
  }

  void nameFor(const Control& control, std::string_view caption) {
    widget_->setAccessibleName(toQt(control.spoken().empty() ? caption : control.spoken()));
  }

  QWidget* widget_ = nullptr;
  const Container* container_ = nullptr;
};

// One sync a kind: the widget as the control is now.
class Sync final : public ControlVisitor {
 public:
  static void widget(QWidget& widget, Control& control) {
    Sync sync(widget);
    control.accept(sync);
  }

 private:
  explicit Sync(QWidget& widget) : widget_(widget) {}

  void visit(Frame& frame) override { widget_.setEnabled(frame.isEnabled()); }
  void visit(PictureBox& box) override { widget_.setEnabled(box.isEnabled()); }
  void visit(Line& /*line*/) override {}
  void visit(Label& label) override {
    widget_.setEnabled(label.isEnabled());
    const QString caption = toQt(label.caption());
    if (!label.spoken().empty()) widget_.setAccessibleName(toQt(label.spoken()) + QStringLiteral(": ") + caption);
    static_cast<QLabel&>(widget_).setText(caption);
  }
  void visit(CommandButton& button) override { widget_.setEnabled(button.isEnabled()); }
  void visit(OptionButton& option) override {
    widget_.setEnabled(option.isEnabled());
    auto& radio = static_cast<QRadioButton&>(widget_);
    if (radio.isChecked() == option.value()) return;
    // One of an exclusive group cannot be switched off.
    radio.setAutoExclusive(option.value());
    radio.setChecked(option.value());
    radio.setAutoExclusive(true);
  }
  void visit(TextBox& /*box*/) override { static_cast<TextField&>(widget_).sync(); }
  void visit(ComboBox& /*box*/) override { static_cast<PickBox&>(widget_).sync(); }
  void visit(ListBox& /*box*/) override { static_cast<LineList&>(widget_).sync(); }

  QWidget& widget_;
};

// One fit a kind: what in a widget follows the zoom and is not the toolkit's to know.
class Fit final : public ControlVisitor {
 public:
  static void widget(QWidget& widget, Control& control, const Look& look) {
    Fit fit(widget, look);
    control.accept(fit);
  }

 private:
  Fit(QWidget& widget, const Look& look) : widget_(widget), look_(look) {}

  void visit(Frame& frame) override { grid(frame.margin()); }
  void visit(PictureBox& /*box*/) override { grid(0); }
  void visit(Line& /*line*/) override { widget_.setMinimumSize(look_.scaled(14), look_.scaled(4)); }
  void visit(Label& label) override {
    widget_.setFont(look_.labelFont(widget_.parentWidget()->font(), label.size(), label.isBold()));
  }
  void visit(CommandButton& /*button*/) override { widget_.updateGeometry(); }
  void visit(OptionButton& /*option*/) override {}
  void visit(TextBox& /*box*/) override { widget_.updateGeometry(); }
  void visit(ComboBox& /*box*/) override { widget_.updateGeometry(); }
  void visit(ListBox& /*box*/) override { widget_.updateGeometry(); }

  void grid(int margin) {
    const int around = look_.scaled(margin);
    widget_.layout()->setContentsMargins(around, around, around, around);
    widget_.layout()->setSpacing(look_.scaled(spacing));
  }

  QWidget& widget_;
  const Look& look_;
};

QGridLayout* gridFor(QWidget* widget, const Container& container) {
  auto* grid = new QGridLayout(widget);
  const Stretch& stretch = container.stretch();
  for (std::size_t row = 0; row < stretch.rows.size(); ++row)
    grid->setRowStretch(static_cast<int>(row), stretch.rows[row]);
  for (std::size_t column = 0; column < stretch.columns.size(); ++column) {
    grid->setColumnStretch(static_cast<int>(column), stretch.columns[column]);
  }
  return grid;
}

}  // namespace

FormWindow::FormWindow(Form& form, const Look& look) : form_(form), look_(look) {
  setObjectName(toQt(form.name()));
  setWindowTitle(toQt(form.caption()));
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);

  auto* content = new QWidget;
  QHash<const Container*, QGridLayout*> grids{{&form, gridFor(content, form)}};
  for (Control* control : form.controls()) {
    const Make made(*control);
    QWidget* widget = made.widget();
    const Place& at = control->place();
    grids.value(&control->container())
        ->addWidget(widget, at.row, at.column, at.rows, at.columns, alignmentOf(at.align));
    if (const Container* container = made.container()) {
      grids.insert(container, gridFor(widget, *container));
      widget->lower();  // whatever shares its place lies over it
    }
    widgets_.insert(control, widget);
    sync(*control);
  }
  setWidget(content);
  chainTabs();
}

void FormWindow::sync(Control& control) { Sync::widget(*widgets_.value(&control), control); }

void FormWindow::fit() {
  setFont(form_.isDialog() ? look_.dialogFont() : look_.formFont());
  const int around = look_.scaled(formMargin);
  widget()->layout()->setContentsMargins(around, around, around, around);
  widget()->layout()->setSpacing(look_.scaled(spacing));
  for (Control* control : form_.controls()) Fit::widget(*widgets_.value(control), *control, look_);
  // Rows of one height wherever they lie, so that they align from frame to frame.
  const int line = fontMetrics().height() + look_.scaled(12);
  for (Control* control : form_.controls()) {
    auto* grid = static_cast<QGridLayout*>(widgets_.value(control)->parentWidget()->layout());
    const Place& at = control->place();
    for (int row = at.row; row < at.row + at.rows; ++row) grid->setRowMinimumHeight(row, line);
  }
  limitSize();
  resize(widget()->sizeHint().boundedTo(screen()->availableGeometry().size()));
}

void FormWindow::limitSize() {
  QLayout& layout = *widget()->layout();
  layout.activate();
  const QSize wanted = widget()->sizeHint();
  const QSize room = screen()->availableGeometry().size();
  setMinimumSize(layout.minimumSize().boundedTo(room));
  // Where nothing can grow, more room would only tear the rows apart.
  const Qt::Orientations grows = layout.expandingDirections();
  setMaximumSize((grows & Qt::Horizontal) != 0 ? QWIDGETSIZE_MAX : wanted.width(),
                 (grows & Qt::Vertical) != 0 ? QWIDGETSIZE_MAX : wanted.height());
}

void FormWindow::focusFirst() {
  for (QWidget* widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain()) {
    if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabled()) return widget->setFocus(Qt::TabFocusReason);
  }
}

// A caption that grows takes the window along.
bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  const bool done = QScrollArea::eventFilter(watched, event);
  if (watched == widget() && event->type() == QEvent::LayoutRequest) limitSize();
  return done;
}

void FormWindow::chainTabs() {
  std::vector<const Control*> stops;
  for (const Control* control : form_.controls()) {
    if (control->tab() && widgets_.value(control)->focusPolicy() != Qt::NoFocus) stops.push_back(control);
  }
  std::sort(stops.begin(), stops.end(), [](auto* a, auto* b) { return *a->tab() < *b->tab(); });
  for (std::size_t i = 1; i < stops.size(); ++i) setTabOrder(widgets_.value(stops[i - 1]), widgets_.value(stops[i]));
}

}  // namespace bogenwerker
