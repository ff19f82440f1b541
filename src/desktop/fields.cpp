#include "desktop/fields.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QCompleter>
#include <QGridLayout>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionFrame>
#include <QToolTip>
#include <algorithm>

#include "desktop/text.h"

namespace bogenwerker {
namespace {

// Where the model took in another text than was typed: what was typed goes out of the history and the other comes in,
// so that undo leads to what stood there before. The cursor stays where it was, seen from the end: what stands behind
// it had gone through before.
void correct(QLineEdit& edit, const QString& text) {
  if (edit.text() == text) return;
  const QSignalBlocker silent(edit);
  const auto behindCursor = edit.text().size() - edit.cursorPosition();
  edit.undo();
  const QString before = edit.text();
  const auto most = std::min(before.size(), text.size());
  qsizetype start = 0;
  while (start < most && before[start] == text[start]) ++start;
  qsizetype end = 0;
  while (end < most - start && before[before.size() - 1 - end] == text[text.size() - 1 - end]) ++end;
  edit.setSelection(static_cast<int>(start), static_cast<int>(before.size() - start - end));
  edit.insert(text.mid(start, text.size() - start - end));
  edit.setCursorPosition(static_cast<int>(std::max<qsizetype>(0, text.size() - behindCursor)));
}

// Whoever clicks a field to fill it wants to replace the text that only tells what belongs there, unless part of it
// was selected by hand.
void selectAllUnlessPart(QLineEdit& edit) {
  if (!edit.hasSelectedText()) edit.selectAll();
}

int roomFor(int characters, const QWidget& widget) { return widget.fontMetrics().averageCharWidth() * characters; }

}  // namespace

void Texts::show(const std::vector<std::string>& texts) {
  beginResetModel();
  texts_ = &texts;
  count_ = static_cast<int>(texts.size());
  endResetModel();
}

int Texts::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count_; }

QVariant Texts::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  if ((role != Qt::DisplayRole && role != Qt::EditRole) || !index.isValid() || row >= texts_->size()) return {};
  return toQt((*texts_)[row]);
}

// ---------------------------------------------------------------------------------------------------------------------

QSize Caption::sizeHint() const { return QLabel::sizeHint().expandedTo({roomFor(label_.characters(), *this), 0}); }

// Only rich text is broken into lines.
void showTip(const QPoint& at, const QString& text, QWidget* over) {
  QStringList paragraphs;
  for (const QString& line : text.split('\n')) paragraphs += "<p>" + line.toHtmlEscaped() + "</p>";
  QToolTip::showText(at, text.isEmpty() ? text : paragraphs.join(QString()), over);
}

QString PushButton::hint() const { return toQt(button_.hint()); }

bool PushButton::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QPushButton::event(event);
  showTip(static_cast<QHelpEvent*>(event)->globalPos(), hint(), this);
  return true;
}

QSize PushButton::sizeHint() const {
  return QPushButton::sizeHint().expandedTo({roomFor(button_.characters(), *this), 0});
}

// ---------------------------------------------------------------------------------------------------------------------

TextField::TextField(TextBox& box) : box_(box) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setMaxLength(mostTypedCharacters);
  // Assistive technology changes the text without editing it.
  connect(this, &QLineEdit::textChanged, this, &TextField::typed);
  sync();
}

void TextField::sync() {
  if (!box_.form().isLoaded() || typing_) return;
  setEnabled(box_.isEnabled());
  if (const QString text = toQt(box_.text()); text != this->text()) {
    const QSignalBlocker silent(this);
    setText(text);
  }
  if (box_.selLength() > 0) setSelection(0, box_.selLength());
}

void TextField::typed(const QString& text) {
  typing_ = true;
  box_.type(fromQt(text));
  typing_ = false;
  correct(*this, toQt(box_.text()));
}

void TextField::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton && box_.holdsStartingText()) selectAllUnlessPart(*this);
}

QSize TextField::sizeHint() const {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QSize contents(roomFor(box_.characters(), *this) + 8, QLineEdit::sizeHint().height());
  return {style()->sizeFromContents(QStyle::CT_LineEdit, &option, contents, this).width(), contents.height()};
}

// ---------------------------------------------------------------------------------------------------------------------

PickBox::PickBox(ComboBox& box) : box_(box) {
  setEditable(true);
  setInsertPolicy(NoInsert);
  setCompleter(nullptr);
  lineEdit()->setMaxLength(mostTypedCharacters);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(box.characters());
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setMaxVisibleItems(16);
  setModel(&entries_);
  // The toolkit would pick the entry of the typed name once the field is left.
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
  connect(lineEdit(), &QLineEdit::textEdited, this, &PickBox::typed);
  lineEdit()->installEventFilter(this);
  lineEdit()->setAccessibleName(toQt(box.spoken()));
  connect(this, &QComboBox::activated, this, [this](int row) { pick(row); });
  sync();
}

void PickBox::sync() {
  if (!box_.form().isLoaded() || typing_) return;
  setEnabled(box_.isEnabled());
  if (entries_.rowCount() != static_cast<int>(box_.entries().size())) entries_.show(box_.entries());
  const QString text = toQt(box_.text());
  if (lineEdit()->text() == text) return;
  setCurrentIndex(entryNow());
  lineEdit()->setText(text);
}

void PickBox::typed(const QString& text) {
  typing_ = true;
  box_.type(fromQt(text));
  typing_ = false;
  correct(*lineEdit(), toQt(box_.text()));
  const QString& now = lineEdit()->text();
  if (const int entry = entryNow(); entry >= 0) setCurrentIndex(entry);
  QCompleter& completer = completions();
  completer.setCompletionPrefix(now);
  if (now.isEmpty()) return completer.popup()->hide();
  if (!completer.popup()->isVisible()) completer.popup()->setMinimumWidth(popupWidth());
  completer.complete();
}

void PickBox::pick(int row) {
  if (row >= 0) box_.pick(static_cast<std::size_t>(row));
  sync();
  lineEdit()->selectAll();
}

// The entry of which the name stands in the field, else -1. Entries may share a name: the one that is current stays so.
int PickBox::entryNow() const {
  const auto& entries = box_.entries();
  const int current = currentIndex();
  if (current >= 0 && entries[static_cast<std::size_t>(current)] == box_.text()) return current;
  const auto found = std::find(entries.begin(), entries.end(), box_.text());
  return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

int PickBox::entryOf(const QModelIndex& completion) const {
  return qobject_cast<QAbstractProxyModel*>(completer_->completionModel())->mapToSource(completion).row();
}

// By Return: the completion that is marked, the entry that was typed whole, the only completion; else -1.
int PickBox::entryMeant() {
  const bool completing = completer_ != nullptr && completer_->popup()->isVisible();
  if (completing && completer_->popup()->currentIndex().isValid()) return entryOf(completer_->popup()->currentIndex());
  if (const int entry = entryNow(); entry >= 0) return entry;
  const QAbstractItemModel* shown = completing ? completer_->completionModel() : nullptr;
  return shown != nullptr && shown->rowCount() == 1 ? entryOf(shown->index(0, 0)) : -1;
}

void PickBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QComboBox::keyPressEvent(event);
  const int entry = entryMeant();
  if (completer_ != nullptr) completer_->popup()->hide();
  if (entry >= 0) pick(entry);
}

QCompleter& PickBox::completions() {
  if (completer_ != nullptr) return *completer_;
  // Not handed to the edit field, which would show a completion as typed before anybody has picked it.
  completer_ = new QCompleter(&entries_, this);
  completer_->setWidget(this);
  completer_->setCompletionRole(Qt::DisplayRole);
  completer_->setFilterMode(Qt::MatchContains);
  completer_->setCaseSensitivity(Qt::CaseInsensitive);
  completer_->setMaxVisibleItems(16);
  connect(completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this,
          [this](const QModelIndex& index) { pick(entryOf(index)); });
  return *completer_;
}

void PickBox::showPopup() {
  auto* list = qobject_cast<QListView*>(view());
  list->setUniformItemSizes(true);
  list->setMinimumWidth(popupWidth());
  QComboBox::showPopup();
}

// Wide enough for every entry, if the screen is.
int PickBox::popupWidth() const {
  int widest = 0;
  for (const std::string& entry : box_.entries()) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(toQt(entry)));
  }
  widest += style()->pixelMetric(QStyle::PM_ScrollBarExtent) + roomFor(4, *this);
  return std::max(width(), std::min(widest, screen()->availableGeometry().width()));
}

// A page that is scrolled past must not change what was picked.
void PickBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

// Whoever comes by a click means to look for an entry, not to add to the text that stands there: as with the Tab key,
// typing replaces it.
void PickBox::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  enteredByClick_ = event->reason() == Qt::MouseFocusReason;
}

bool PickBox::eventFilter(QObject* watched, QEvent* event) {
  if (watched == lineEdit() && event->type() == QEvent::MouseButtonRelease) {
    const bool left = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (left && (std::exchange(enteredByClick_, false) || box_.holdsStartingText())) selectAllUnlessPart(*lineEdit());
  }
  return QComboBox::eventFilter(watched, event);
}

// ---------------------------------------------------------------------------------------------------------------------

LineList::LineList(ListBox& box) : box_(box) {
  setModel(&lines_);
  setEditTriggers(NoEditTriggers);
  setTextElideMode(Qt::ElideNone);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  sync();
}

// What is scrolled to stays in view while a list is written anew; a list that has grown shows its end.
void LineList::sync() {
  if (!box_.form().isLoaded()) return;
  setEnabled(box_.isEnabled());
  const int before = lines_.rowCount();
  const int current = currentIndex().row();
  const int scrolled = verticalScrollBar()->value();
  lines_.show(box_.lines());
  const int now = lines_.rowCount();
  if (now > 0 && current >= 0) {
    selectionModel()->setCurrentIndex(lines_.index(std::min(current, now - 1)), QItemSelectionModel::NoUpdate);
  }
  if (const auto selected = box_.selected()) {
    selectionModel()->setCurrentIndex(lines_.index(static_cast<int>(*selected)), QItemSelectionModel::ClearAndSelect);
  }
  verticalScrollBar()->setValue(scrolled);
  if (before > 0 && now > before) scrollToBottom();
}

QSize LineList::sizeHint() const {
  const int frame = 2 * frameWidth();
  return {roomFor(box_.charactersShown(), *this) + verticalScrollBar()->sizeHint().width() + frame,
          (fontMetrics().height() + 6) * box_.linesShown() + frame};
}

void LineList::select(int row) {
  box_.select(static_cast<std::size_t>(row));
  sync();
  if (currentIndex().isValid()) scrollTo(currentIndex());
}

void LineList::mousePressEvent(QMouseEvent* event) {
  const QModelIndex line = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && line.isValid()) select(line.row());
}
void LineList::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }
void LineList::mouseMoveEvent(QMouseEvent* /*event*/) {}
void LineList::mouseReleaseEvent(QMouseEvent* /*event*/) {}

void LineList::keyPressEvent(QKeyEvent* event) {
  const int before = currentIndex().row();
  const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  const bool space = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  // While no line is selected, the first arrow or space takes the one that is framed.
  if (before >= 0 && (space || (arrow && !box_.selected()))) return select(before);
  QListView::keyPressEvent(event);
  if (currentIndex().isValid() && currentIndex().row() != before) select(currentIndex().row());
}

// The frame around the list tells of the focus, too.
void LineList::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  update();
}
void LineList::focusOutEvent(QFocusEvent* event) {
  QListView::focusOutEvent(event);
  update();
}

// ---------------------------------------------------------------------------------------------------------------------

void DrawnLine::paintEvent(QPaintEvent* /*event*/) {
  const auto& grid = *static_cast<const QGridLayout*>(parentWidget()->layout());
  const Place& at = line_.place();
  const QRect first = grid.cellRect(at.row, at.column).translated(-pos());
  const QRect last = grid.cellRect(at.row + at.rows - 1, at.column + at.columns - 1).translated(-pos());
  const bool fromMiddle = line_.from() == LineDesign::End::middle;
  const bool toMiddle = line_.to() == LineDesign::End::middle;
  const QPoint middle = (first.topLeft() + last.bottomRight()) / 2;

  QPainter painter(this);
  const int thick = std::max(1, fontMetrics().height() / 10);
  QRect stroke = first.united(last);
  if (line_.stroke() == LineDesign::Stroke::horizontal) {
    if (fromMiddle) stroke.setLeft(first.center().x());
    if (toMiddle) stroke.setRight(last.center().x() + thick - 1);
    stroke.setTop(middle.y());
    stroke.setHeight(thick);
  } else {
    if (fromMiddle) stroke.setTop(first.center().y());
    if (toMiddle) stroke.setBottom(last.center().y() + thick - 1);
    stroke.setLeft(middle.x());
    stroke.setWidth(thick);
  }
  painter.fillRect(stroke, palette().color(QPalette::WindowText));
}

}  // namespace bogenwerker
