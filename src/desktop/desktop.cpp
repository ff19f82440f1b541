#include "desktop/desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "desktop/accessible.h"
#include "desktop/handbook.h"
#include "desktop/text.h"

namespace bogenwerker {
namespace {

constexpr int zoomStep = 25;
constexpr int frameWidth = 4;  // pixels, as long as no window has been seen

const QString title = QStringLiteral("Bogenwerker");

// A question ahead of the first window, yes by default.
bool isYes(const QString& text, const QString& yes, const QString& no, bool onEscape) {
  QMessageBox box(QMessageBox::Question, title, text);
  box.setTextFormat(Qt::PlainText);
  auto* agree = box.addButton(yes, QMessageBox::AcceptRole);
  auto* refuse = box.addButton(no, QMessageBox::RejectRole);
  box.setDefaultButton(agree);
  box.setEscapeButton(onEscape ? agree : refuse);
  box.exec();
  return box.clickedButton() == agree;
}

}  // namespace

Desktop::Desktop(Look& look, std::function<void()> whenOver) : look_(look), whenOver_(std::move(whenOver)) {
  installAccessibles();
  const int titleBar = look.pixelMetric(QStyle::PM_TitleBarHeight, nullptr, nullptr);
  frame_ = {frameWidth, titleBar + frameWidth, frameWidth, frameWidth};
  connect(qApp, &QGuiApplication::commitDataRequest, this, &Desktop::interrupt, Qt::DirectConnection);
}

void Desktop::show(FormsRuntime& runtime, Journal* journal) {
  runtime_ = &runtime;
  journal_ = journal;
  runtime.attach(*this);
}

void Desktop::formLoaded(Form& form) {
  auto window = std::make_unique<FormWindow>(form, look_);
  window->installEventFilter(this);
  windows_[&form] = std::move(window);
}

void Desktop::formChanged(Form& form) {
  FormWindow& window = *windows_.at(&form);
  if (!form.isVisible()) return window.hide();
  if (!notice_.isEmpty()) window.setNotice(std::exchange(notice_, {}));
  place(window, form.isDialog());
  window.setWindowState(maximised_ && !form.isDialog() ? Qt::WindowMaximized : Qt::WindowNoState);
  window.show();
  window.focusFirst();
  window.activateWindow();
}

// A form unloads within the click of its own button, which therefore has to live a little longer.
void Desktop::formUnloaded(Form& form) {
  FormWindow* window = windows_.at(&form).release();
  windows_.erase(&form);
  window->hide();
  window->deleteLater();
  if (runtime_->isOver()) whenOver_();
}

void Desktop::controlChanged(Control& control) { windows_.at(&control.form())->sync(control); }

void Desktop::lookAround() {
  for (const auto& [form, window] : windows_) {
    if (!window->isVisible()) continue;
    const QRect content = window->geometry();
    const QRect whole = window->frameGeometry();
    const QMargins frame(content.left() - whole.left(), content.top() - whole.top(), whole.right() - content.right(),
                         whole.bottom() - content.bottom());
    if (!frame.isNull()) frame_ = frame;  // none may just not be there yet
    if (form->isDialog()) continue;
    stand_ = window->normalGeometry();
    maximised_ = window->isMaximized();
  }
}

// A step appears where the one before it stood, on that screen, and whole; where the first one appears is up to the
// system. Told by the content, since frames are added around a window only once it is seen, and not by every system
// alike.
void Desktop::place(FormWindow& window, bool inTheMiddle) {
  lookAround();
  const QScreen* screen = stand_ ? QGuiApplication::screenAt(stand_->center()) : nullptr;
  if (screen == nullptr) screen = window.screen();
  const QRect room = screen->availableGeometry().marginsRemoved(frame_);
  QRect content(stand_.value_or(room).topLeft(), window.fit(room.size()));
  if (window.isMaximized() || window.isFullScreen()) return;
  if (inTheMiddle) {
    content.moveCenter(room.center());
  } else {
    if (!stand_) return window.resize(content.size());
    content.moveRight(std::min(content.right(), room.right()));
    content.moveBottom(std::min(content.bottom(), room.bottom()));
    content.moveLeft(std::max(content.left(), room.left()));
    content.moveTop(std::max(content.top(), room.top()));
  }
  window.setGeometry(content);
}

void Desktop::showMessage(Message kind, std::string_view text) {
  QMessageBox box(kind == Message::fault ? QMessageBox::Warning : QMessageBox::Information, title, toQt(text),
                  QMessageBox::Ok, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool Desktop::askToBegin(std::string_view text) {
  return isYes(toQt(text), QStringLiteral("Trotzdem beginnen"), QStringLiteral("Beenden"), false);
}

bool Desktop::wantsToGoOn() {
  return isYes(QStringLiteral("Der letzte Charakter wurde unterbrochen. Weiterspielen?"),
               QStringLiteral("Weiterspielen"), QStringLiteral("Neu beginnen"), true);
}

void Desktop::tellOnNextForm(std::string_view text) { notice_ = toQt(text); }

bool Desktop::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Close) {
    event->ignore();
    askToClose(*static_cast<QWidget*>(watched));
    return true;
  }
  if (event->type() == QEvent::KeyPress && helpByKey(*static_cast<QKeyEvent*>(event))) return true;
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::WhatsThis)) {
    static_cast<FormWindow*>(watched)->showHints();
    return true;
  }
  if (event->type() == QEvent::KeyPress && lookByKey(*static_cast<QKeyEvent*>(event))) return true;
  return QObject::eventFilter(watched, event);
}

bool Desktop::helpByKey(const QKeyEvent& press) const {
  if (press.key() != Qt::Key_F1 || press.modifiers() != Qt::NoModifier) return false;
  if (!press.isAutoRepeat()) openHandbook(runtime_->visibleForm()->help());
  return true;
}

bool Desktop::lookByKey(const QKeyEvent& press) {
  if (press.key() == Qt::Key_F8 && !press.isAutoRepeat()) {
    look_.setHighContrast(!look_.isHighContrast());
    return true;
  }
  if ((press.modifiers() & Qt::ControlModifier) == 0) return false;
  switch (press.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: zoomTo(look_.zoom() + zoomStep); return true;
    case Qt::Key_Minus: zoomTo(look_.zoom() - zoomStep); return true;
    case Qt::Key_0: zoomTo(100); return true;
    default: return false;
  }
}

void Desktop::zoomTo(int percent) {
  look_.setZoom(percent);
  for (const auto& [form, window] : windows_) {
    if (form->isVisible()) place(*window, form->isDialog());
  }
}

void Desktop::askToClose(QWidget& window) {
  if (!runtime_->isUntouched()) {
    QMessageBox box(QMessageBox::Question, title, QStringLiteral("Charakter verwerfen?"), QMessageBox::NoButton,
                    &window);
    const auto* discard = box.addButton(QStringLiteral("Verwerfen"), QMessageBox::DestructiveRole);
    auto* goOn = box.addButton(QStringLiteral("Weiterspielen"), QMessageBox::RejectRole);
    const QPushButton* later = nullptr;
    if (journal_ != nullptr && journal_->isKept()) {
      box.setInformativeText(QStringLiteral("Unterbrochen wartet er, bis Sie den Bogenwerker wieder starten."));
      later = box.addButton(QStringLiteral("Unterbrechen"), QMessageBox::AcceptRole);
    }
    box.setDefaultButton(goOn);
    box.setEscapeButton(goOn);
    box.exec();
    if (later != nullptr && box.clickedButton() == later) return interrupt();
    if (box.clickedButton() != discard) return;
  }
  runtime_->close();
}

// Also where a session ends in the middle of a gesture, which waits for an answer to a message.
void Desktop::interrupt() {
  if (runtime_ == nullptr) return;
  if (journal_ != nullptr) journal_->interrupt();
  runtime_->close();
  while (QWidget* modal = QApplication::activeModalWidget()) {
    if (!modal->close()) break;
  }
}

}  // namespace bogenwerker
