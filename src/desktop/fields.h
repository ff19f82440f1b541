// The controls that the toolkit's own widgets do not quite serve. Each shows one control of the model as sync() finds
// it, hands every gesture on at once, and holds nothing of its own.
#pragma once

#include <QAbstractListModel>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "forms/controls.h"

class QCompleter;

namespace bogenwerker {

// The entries of a combo box or the lines of a list, read where they are; nothing is copied.
class Texts final : public QAbstractListModel {
 public:
  // To be called whenever the texts have changed. They must outlive the model.
  void show(const std::vector<std::string>& texts);
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  const std::vector<std::string>* texts_ = nullptr;
  int count_ = 0;
};

// Beside the pointer or a widget, for a while. The text is plain.
void showTip(const QPoint& at, const QString& text, QWidget* over);

// A caption that keeps room for what it may come to show.
class Caption final : public QLabel {
 public:
  explicit Caption(const Label& label) : label_(label) {}
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  const Label& label_;
};

class PushButton final : public QPushButton {
 public:
  // The caption comes last: with it the toolkit asks who speaks for this button, once and for good.
  PushButton(const CommandButton& button, const QString& caption) : button_(button) { setText(caption); }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
  // Why a press would come to nothing; empty where it would not.
  [[nodiscard]] QString hint() const;

 protected:
  bool event(QEvent* event) override;

 private:
  const CommandButton& button_;
};

class TextField final : public QLineEdit {
 public:
  explicit TextField(TextBox& box);
  void sync();
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void typed(const QString& text);
  TextBox& box_;
  bool typing_ = false;
};

// An entry is picked by mouse, by arrow keys, out of the list of completions, or by Return where it is clear which one
// is meant. Leaving the field never makes a pick of a text that was merely typed.
class PickBox final : public QComboBox {
 public:
  explicit PickBox(ComboBox& box);
  void sync();
  void showPopup() override;
  // Offers the entries that hold the typed text in any place.
  [[nodiscard]] QCompleter& completions();

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] int popupWidth() const;
  [[nodiscard]] int entryNow() const;
  [[nodiscard]] int entryOf(const QModelIndex& completion) const;
  [[nodiscard]] int entryMeant();
  void typed(const QString& text);
  void pick(int row);
  ComboBox& box_;
  bool typing_ = false;
  bool enteredByClick_ = false;
  Texts entries_;
  QCompleter* completer_ = nullptr;
};

// Every click on a line is one, on the selected line too; so is every step by key.
class LineList final : public QListView {
 public:
  explicit LineList(ListBox& box);
  void sync();
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void select(int row);
  ListBox& box_;
  Texts lines_;
};

// The stroke of a line between the cells of the grid that it lies in.
class DrawnLine final : public QWidget {
 public:
  explicit DrawnLine(const Line& line) : line_(line) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Line& line_;
};

}  // namespace bogenwerker
