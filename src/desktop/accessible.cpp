#include "desktop/accessible.h"

#include <QAccessibleWidget>

#include "desktop/fields.h"
#include "desktop/window.h"

namespace bogenwerker {
namespace {

// The toolkit gives the chosen text as the name of a box, so that nobody hears what it is for.
class AccessibleBox final : public QAccessibleWidget {
 public:
  explicit AccessibleBox(PickBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox), box_(box) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? box_.currentText() : QAccessibleWidget::text(kind);
  }
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.expandable = true;
    state.expanded = box_.view()->isVisible();
    return state;
  }
  [[nodiscard]] QStringList actionNames() const override { return {showMenuAction()}; }
  void doAction(const QString& action) override {
    if (action == showMenuAction() && box_.isEnabled()) box_.showPopup();
  }
  // The text is that of the edit field.
  void* interface_cast(QAccessible::InterfaceType type) override {
    const bool text = type == QAccessible::TextInterface || type == QAccessible::EditableTextInterface;
    return text ? QAccessible::queryAccessibleInterface(box_.lineEdit())->interface_cast(type)
                : QAccessibleWidget::interface_cast(type);
  }

 private:
  PickBox& box_;
};

// What a hand on a button is told, whoever listens is told too.
class AccessibleButton final : public QAccessibleWidget {
 public:
  explicit AccessibleButton(PushButton& button) : QAccessibleWidget(&button, QAccessible::Button), button_(button) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Description ? button_.hint() : QAccessibleWidget::text(kind);
  }
  [[nodiscard]] QStringList actionNames() const override {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action == pressAction()) button_.click();
    else QAccessibleWidget::doAction(action);
  }

 private:
  PushButton& button_;
};

// A window taken for the scroll area that it is would answer for scroll bars that are gone, and crash.
QAccessibleInterface* make(const QString& /*kind*/, QObject* object) {
  if (auto* window = dynamic_cast<FormWindow*>(object)) return new QAccessibleWidget(window, QAccessible::Window);
  if (auto* button = dynamic_cast<PushButton*>(object)) return new AccessibleButton(*button);
  if (auto* box = dynamic_cast<PickBox*>(object)) return new AccessibleBox(*box);
  return nullptr;
}

}  // namespace

void installAccessibles() { QAccessible::installFactory(make); }

}  // namespace bogenwerker
