#include "desktop/window.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
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

void fitGrid(QWidget& widget, int margin, const Look& look) {
  const int around = look.scaled(margin);
  widget.layout()->setContentsMargins(around, around, around, around);
  widget.layout()->setSpacing(look.scaled(spacing));
}

// One make a kind: the widget, and with it what it takes later on.
class Make final : public ControlVisitor {
 public:
  static ShownControl shown(Control& control) {
    Make make;
    control.accept(make);
    make.made_.widget->setObjectName(toQt(control.name()));
    make.made_.sync();
    return make.made_;
  }

 private:
  void visit(Frame& frame) override {
    auto* group = new QGroupBox(toQtCaption(frame.caption()));
    nameFor(*group, frame, frame.caption());
    made_ = {group, [=, &frame] { group->setEnabled(frame.isEnabled()); },
             [=, &frame](const Look& look) { fitGrid(*group, frame.margin(), look); }, &frame};
  }
  void visit(PictureBox& box) override {
    auto* panel = new QFrame;
    panel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    made_ = {panel, [=, &box] { panel->setEnabled(box.isEnabled()); },
             [=](const Look& look) { fitGrid(*panel, 0, look); }, &box};
  }
  void visit(Line& line) override {
    auto* drawn = new DrawnLine(line);
    drawn->setAttribute(Qt::WA_TransparentForMouseEvents);
    made_ = {drawn, [] {}, [=](const Look& look) { drawn->setMinimumSize(look.scaled(14), look.scaled(4)); }};
  }
  void visit(Label& label) override {
    auto* text = new Caption(label);
    text->setTextFormat(Qt::PlainText);
    text->setAlignment((label.isCentred() ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
    const auto sync = [=, &label] {
      text->setEnabled(label.isEnabled());
      const QString caption = toQt(label.caption());
      if (!label.spoken().empty()) text->setAccessibleName(toQt(label.spoken()) + QStringLiteral(": ") + caption);
      text->setText(caption);
    };
    made_ = {text, sync, [=, &label](const Look& look) {
               text->setFont(look.labelFont(text->parentWidget()->font(), label.size(), label.isBold()));
             }};
  }
  void visit(CommandButton& button) override {
    auto* push = new PushButton(button, onLines(toQtCaption(button.caption()), button.lines()));
    push->setAutoDefault(true);  // Return presses it while it has the focus
    push->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    QObject::connect(push, &QPushButton::clicked, push, [&button] { button.press(); });
    nameFor(*push, button, button.caption());
    made_ = {push, [=, &button] { push->setEnabled(button.isEnabled()); }};
  }
  void visit(OptionButton& option) override {
    auto* radio = new QRadioButton(toQtCaption(option.caption()));
    // Not every way to switch one on is a click.
    QObject::connect(radio, &QRadioButton::toggled, radio, [&option](bool on) {
      if (on) option.choose();
    });
    nameFor(*radio, option, option.caption());
    made_ = {radio, [=, &option] {
               radio->setEnabled(option.isEnabled());
               if (radio->isChecked() == option.value()) return;
               const QSignalBlocker silent(radio);
               // One of an exclusive group cannot be switched off.
               radio->setAutoExclusive(option.value());
               radio->setChecked(option.value());
               radio->setAutoExclusive(true);
             }};
  }
  void visit(TextBox& box) override { field(new TextField(box), box); }
  void visit(ComboBox& box) override { field(new PickBox(box), box); }
  void visit(ListBox& box) override { field(new LineList(box), box); }

  template <class Field>
  void field(Field* widget, const Control& control) {
    nameFor(*widget, control, {});
    made_ = {widget, [=] { widget->sync(); }};
  }

  static void nameFor(QWidget& widget, const Control& control, std::string_view caption) {
    widget.setAccessibleName(toQt(control.spoken().empty() ? caption : control.spoken()));
  }

  ShownControl made_;
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

  QHash<const Container*, QGridLayout*> grids{{&form, gridFor(content_, form)}};
  for (Control* control : form.controls()) {
    const ShownControl shown = Make::shown(*control);
    QWidget* widget = shown.widget;
    const Place& at = control->place();
    grids.value(&control->container())
        ->addWidget(widget, at.row, at.column, at.rows, at.columns, alignmentOf(at.align));
    if (shown.container != nullptr) {
      grids.insert(shown.container, gridFor(widget, *shown.container));
      widget->lower();  // whatever shares its place lies over it
    }
    shown_.insert(control, shown);
  }
  auto* page = new QWidget;
  auto* around = new QGridLayout(page);
  around->setContentsMargins(0, 0, 0, 0);
  around->addWidget(content_);
  setWidget(page);
  chainTabs();
  // A click must not move away what it is meant for.
  connect(qApp, &QApplication::focusChanged, this, [this] {
    if (QGuiApplication::mouseButtons() == Qt::NoButton) showFocus();
  });
}

// What has the focus loses it on the way out, and nobody is left to show where it went.
FormWindow::~FormWindow() { qApp->disconnect(this); }

void FormWindow::sync(const Control& control) { shown_.find(&control)->sync(); }

QSize FormWindow::fit(QSize room) {
  room_ = room;
  setFont(form_.isDialog() ? look_.dialogFont() : look_.formFont());
  fitGrid(*content_, formMargin, look_);
  for (const ShownControl& shown : std::as_const(shown_)) {
    if (shown.fit) shown.fit(look_);
    shown.widget->updateGeometry();
  }
  // Rows of one height wherever they lie, so that they align from frame to frame.
  const int line = fontMetrics().height() + look_.scaled(12);
  for (Control* control : form_.controls()) {
    auto* grid = static_cast<QGridLayout*>(shown_.value(control).widget->parentWidget()->layout());
    const Place& at = control->place();
    for (int row = at.row; row < at.row + at.rows; ++row) grid->setRowMinimumHeight(row, line);
  }
  // A layout knows its size once those within it know theirs, and those come later in the table.
  const auto& controls = form_.controls();
  std::for_each(controls.rbegin(), controls.rend(), [this](const Control* control) {
    if (QLayout* layout = shown_.value(control).widget->layout()) layout->activate();
  });
  limitSize();
  // A pixel to spare: fractional scale factors round, and one too few would cost two scroll bars.
  return inRoom(widget()->sizeHint() + QSize(1, 1));
}

// Where nothing can grow, more room would only tear the rows apart: it stays around the content, whatever size a window
// manager gives the window.
void FormWindow::limitSize() {
  QLayout& content = *content_->layout();
  content.activate();
  const Qt::Orientations grows = content.expandingDirections();
  QLayout& page = *widget()->layout();
  const Qt::Alignment alignment = ((grows & Qt::Horizontal) != 0 ? Qt::Alignment() : Qt::AlignHCenter) |
                                  ((grows & Qt::Vertical) != 0 ? Qt::Alignment() : Qt::AlignTop);
  // Set anew, the same one too asks for another layout, which would come back here without end.
  if (page.itemAt(0)->alignment() != alignment) page.setAlignment(content_, alignment);
  page.activate();
  setMinimumSize(inRoom(page.minimumSize()));
}

// A scroll bar along one side must not make the other side need one.
QSize FormWindow::inRoom(QSize content) const {
  if (content.height() > room_.height()) content.rwidth() += verticalScrollBar()->sizeHint().width();
  if (content.width() > room_.width()) content.rheight() += horizontalScrollBar()->sizeHint().height();
  return content.boundedTo(room_);
}

void FormWindow::showFocus() {
  QWidget* focus = focusWidget();
  const int around = look_.scaled(formMargin);
  if (focus != nullptr && widget()->isAncestorOf(focus)) ensureWidgetVisible(focus, around, around);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  showFocus();
}

void FormWindow::focusFirst() {
  for (QWidget* widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain()) {
    if ((widget->focusPolicy() & Qt::TabFocus) == 0 || !widget->isEnabled()) continue;
    widget->setFocus(Qt::TabFocusReason);
    if (auto* box = qobject_cast<QComboBox*>(widget)) box->lineEdit()->selectAll();  // it may not be active yet
    return;
  }
}

void FormWindow::showHints() {
  QWidget* focus = focusWidget();
  const auto* pressed = dynamic_cast<PushButton*>(focus);
  QString text = pressed == nullptr ? QString() : pressed->hint();
  QStringList grey;
  for (const Control* control : form_.controls()) {
    const auto* button = dynamic_cast<PushButton*>(shown_.value(control).widget);
    if (button == nullptr || button->isEnabled() || button->hint().isEmpty()) continue;
    grey += button->accessibleName() + QStringLiteral(": ") + button->hint();
  }
  if (text.isEmpty()) text = grey.join('\n');
  QWidget* over = focus == nullptr ? this : focus;
  showTip(over->mapToGlobal(over->rect().bottomLeft()), text, over);
}

void FormWindow::setNotice(const QString& text) {
  setStatusTip(text);
  auto* line = new QLabel(text);
  line->setTextFormat(Qt::PlainText);
  line->setWordWrap(true);
  static_cast<QGridLayout*>(widget()->layout())->addWidget(line, 1, 0);
}

// A caption that grows takes the window along.
bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  const bool done = QScrollArea::eventFilter(watched, event);
  if (watched == widget() && event->type() == QEvent::LayoutRequest && room_.isValid()) limitSize();
  return done;
}

void FormWindow::chainTabs() {
  std::vector<const Control*> stops;
  for (const Control* control : form_.controls()) {
    if (control->tab() && shown_.value(control).widget->focusPolicy() != Qt::NoFocus) stops.push_back(control);
  }
  std::sort(stops.begin(), stops.end(), [](auto* a, auto* b) { return *a->tab() < *b->tab(); });
  for (std::size_t i = 1; i < stops.size(); ++i)
    setTabOrder(shown_.value(stops[i - 1]).widget, shown_.value(stops[i]).widget);
}

}  // namespace bogenwerker
